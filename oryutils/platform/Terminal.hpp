#pragma once

#include <string>
#include <vector>

namespace OryUtils::Interno {

/// The arguments of the process without the program's name. Linux: argv as it came. Windows: the command line in
/// UTF-16 from the system, converted to UTF-8, since argv there has lost what the code page does not hold.
std::vector<std::string> BuscarArgumentos(int AQuantidade, const char* const* AArgumentos);

/// While it lives a console shows and gives UTF-8 (Windows), and writing to a closed pipe is an error of the write
/// instead of the end of the process (Linux). One per process, made by main.
class TTerminalUtf8 {
public:
    TTerminalUtf8();
    ~TTerminalUtf8();
    TTerminalUtf8(const TTerminalUtf8&) = delete;
    TTerminalUtf8& operator=(const TTerminalUtf8&) = delete;

private:
    unsigned FEntradaAnterior = 0;
    unsigned FSaidaAnterior = 0;
};

}  // namespace OryUtils::Interno

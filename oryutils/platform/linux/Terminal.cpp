#include "oryutils/platform/Terminal.hpp"

#include <csignal>

namespace OryUtils::Interno {

std::vector<std::string> BuscarArgumentos(int AQuantidade, const char* const* AArgumentos) {
    return AQuantidade > 1 ? std::vector<std::string>(AArgumentos + 1, AArgumentos + AQuantidade)
                           : std::vector<std::string>();
}

// A reader that is gone and a file at its limit are errors of a write, not the end of the program.
TTerminalUtf8::TTerminalUtf8() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}
TTerminalUtf8::~TTerminalUtf8() = default;

}  // namespace OryUtils::Interno

#include "oryutils/platform/Terminal.hpp"

#include <csignal>

namespace OryUtils::Interno {

std::vector<std::string> BuscarArgumentos(int AQuantidade, const char* const* AArgumentos) {
    return AQuantidade > 1 ? std::vector<std::string>(AArgumentos + 1, AArgumentos + AQuantidade)
                           : std::vector<std::string>();
}

TTerminalUtf8::TTerminalUtf8() { std::signal(SIGPIPE, SIG_IGN); }
TTerminalUtf8::~TTerminalUtf8() = default;

}  // namespace OryUtils::Interno

#include "oryutils/platform/Terminal.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <memory>
#include <shellapi.h>

namespace OryUtils::Interno {
namespace {

bool PossuiConsole(DWORD APadrao) {
    DWORD modo = 0;
    return ::GetConsoleMode(::GetStdHandle(APadrao), &modo) != 0;
}

}  // namespace

std::vector<std::string> BuscarArgumentos(int AQuantidade, const char* const* AArgumentos) {
    int total = 0;
    const std::unique_ptr<wchar_t*, decltype(&::LocalFree)> lista(::CommandLineToArgvW(::GetCommandLineW(), &total),
                                                                  &::LocalFree);
    std::vector<std::string> resultado;
    if (!lista) {  // no memory for the system's list: better the narrow arguments than none
        for (int i = 1; i < AQuantidade; ++i) resultado.emplace_back(AArgumentos[i]);
        return resultado;
    }
    for (int i = 1; i < total; ++i) resultado.push_back(ParaUtf8(DeWide(lista.get()[i])));
    return resultado;
}

TTerminalUtf8::TTerminalUtf8() {
    if (PossuiConsole(STD_INPUT_HANDLE)) {
        FEntradaAnterior = ::GetConsoleCP();
        ::SetConsoleCP(CP_UTF8);
    }
    if (PossuiConsole(STD_OUTPUT_HANDLE) || PossuiConsole(STD_ERROR_HANDLE)) {
        FSaidaAnterior = ::GetConsoleOutputCP();
        ::SetConsoleOutputCP(CP_UTF8);
    }
    const HANDLE saida = ::GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD modo = 0;
    if (::GetConsoleMode(saida, &modo)) ::SetConsoleMode(saida, modo | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

TTerminalUtf8::~TTerminalUtf8() {
    if (FEntradaAnterior) ::SetConsoleCP(FEntradaAnterior);
    if (FSaidaAnterior) ::SetConsoleOutputCP(FSaidaAnterior);
}

}  // namespace OryUtils::Interno

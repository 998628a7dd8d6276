#include "oryutils/platform/Terminal.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <memory>
#include <shellapi.h>

namespace OryUtils::Interno {
namespace {

std::string ParaUtf8(const wchar_t* ATexto) {
    const int total = ::WideCharToMultiByte(CP_UTF8, 0, ATexto, -1, nullptr, 0, nullptr, nullptr);
    if (total <= 1) return {};
    std::string resultado(static_cast<std::size_t>(total), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, ATexto, -1, resultado.data(), total, nullptr, nullptr);
    resultado.pop_back();  // the terminator
    return resultado;
}

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
    for (int i = 1; i < total; ++i) resultado.push_back(ParaUtf8(lista.get()[i]));
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

bool PossuiVariavelDeAmbiente(const char* ANome) {
    const std::string nome = ANome;
    const std::wstring largo(nome.begin(), nome.end());
    return ::GetEnvironmentVariableW(largo.c_str(), nullptr, 0) > 1;
}

}  // namespace OryUtils::Interno

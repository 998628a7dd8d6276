#include "oryutils/platform/windows/CaminhoDoSistema.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

std::wstring CaminhoDoSistema(std::u16string_view ANome) {
    // The shortest limit, that of new folders: room for a file name of the oldest kind stays behind them.
    constexpr std::size_t CMaiorPasta = MAX_PATH - 12;
    // No path of the system is longer, with the current folder before it. Behind the mark some systems would take a
    // part of the name for the whole.
    constexpr std::size_t CMaiorCaminho = 32'000;
    const std::wstring nome(ANome.begin(), ANome.end());
    if (nome.size() < CMaiorPasta || nome.size() > CMaiorCaminho || nome.starts_with(LR"(\\?\)") ||
        nome.starts_with(LR"(\\.\)"))
        return nome;
    // Behind the mark "/", "." and ".." would be names like any other.
    std::wstring completo(::GetFullPathNameW(nome.c_str(), 0, nullptr, nullptr), L'\0');
    completo.resize(::GetFullPathNameW(nome.c_str(), static_cast<DWORD>(completo.size()), completo.data(), nullptr));
    if (completo.starts_with(LR"(\\)")) return LR"(\\?\UNC)" + completo.substr(1);
    return LR"(\\?\)" + completo;
}

}  // namespace OryUtils::Interno

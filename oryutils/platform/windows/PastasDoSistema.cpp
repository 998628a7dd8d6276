#include "oryutils/platform/PastasDoSistema.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <array>
#include <shlobj.h>
#include <vector>

namespace OryUtils::Interno {
namespace {

// "C:\" keeps its separator: "C:" would be the drive's current folder.
std::u16string SemSeparadorFinal(std::u16string APasta) {
    while (APasta.size() > 3 && APasta.back() == u'\\') APasta.pop_back();
    return APasta;
}

// Calls a function that gives the length it needs when there is no room for its answer.
template <typename TChamar>
std::u16string Perguntar(TChamar AChamar) {
    std::vector<wchar_t> texto(MAX_PATH + 1);
    UINT tamanho = AChamar(texto.data(), static_cast<UINT>(texto.size()));
    if (tamanho >= texto.size()) {
        texto.resize(tamanho + 1);
        tamanho = AChamar(texto.data(), static_cast<UINT>(texto.size()));
    }
    return tamanho < texto.size() ? SemSeparadorFinal(DeWide({texto.data(), tamanho})) : std::u16string();
}

}  // namespace

std::optional<std::u16string> BuscarPastaDeDocumentos() {
    std::array<wchar_t, MAX_PATH + 1> pasta{};
    if (!::SHGetSpecialFolderPathW(nullptr, pasta.data(), CSIDL_PERSONAL, FALSE)) return std::nullopt;
    return SemSeparadorFinal(DeWide(pasta.data()));
}

std::u16string BuscarPastaTemporaria() {
    return Perguntar([](wchar_t* ATexto, UINT ATamanho) { return ::GetTempPathW(ATamanho, ATexto); });
}

std::u16string BuscarPastaDoSistema() {
    return Perguntar([](wchar_t* ATexto, UINT ATamanho) { return ::GetSystemDirectoryW(ATexto, ATamanho); });
}

std::u16string BuscarUnidadeDoSistema() {
    const std::u16string pasta =
        Perguntar([](wchar_t* ATexto, UINT ATamanho) { return ::GetWindowsDirectoryW(ATexto, ATamanho); });
    return pasta.size() > 1 && pasta[1] == u':' ? pasta.substr(0, 2) : std::u16string();
}

std::u16string BuscarPastaDeProgramasPadrao() { return {}; }

}  // namespace OryUtils::Interno

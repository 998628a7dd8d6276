#include "oryutils/platform/VersaoDeArquivo.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace OryUtils::Interno {
namespace {

/// A name with its folder: the version functions look for one without it among the system's libraries.
std::u16string BuscarNomeCompleto(std::u16string_view AArquivo) {
    const std::u16string nome(AArquivo);
    std::u16string completo(::GetFullPathNameW(ParaWide(nome), 0, nullptr, nullptr), u'\0');
    const DWORD tamanho =
        ::GetFullPathNameW(ParaWide(nome), static_cast<DWORD>(completo.size()), ParaWide(completo.data()), nullptr);
    completo.resize(std::min<std::size_t>(tamanho, completo.size()));
    return completo;
}

struct TValor {
    std::span<const char> Bytes;  // from its beginning to the end of the block
    std::size_t Tamanho;          // what the file says of it; characters of a text
};
std::optional<TValor> Consultar(const std::vector<char>& ABloco, const std::u16string& ACaminho) {
    void* valor = nullptr;
    UINT tamanho = 0;
    if (ABloco.empty() || !::VerQueryValueW(ABloco.data(), ParaWide(ACaminho), &valor, &tamanho)) return {};
    // As integers: a broken resource may have its value anywhere.
    const auto inicio = reinterpret_cast<std::uintptr_t>(valor) - reinterpret_cast<std::uintptr_t>(ABloco.data());
    if (inicio > ABloco.size()) return {};
    return TValor{std::span(ABloco).subspan(inicio), tamanho};
}

/// The first bytes of a value that are as T has them.
template <typename T>
std::optional<T> Ler(const std::optional<TValor>& AValor) {
    if (!AValor || std::min(AValor->Tamanho, AValor->Bytes.size()) < sizeof(T)) return {};
    T lido{};
    std::memcpy(&lido, AValor->Bytes.data(), sizeof lido);
    return lido;
}

}  // namespace

TVersaoDeArquivo::TVersaoDeArquivo(std::u16string_view AArquivo) {
    if (AArquivo.empty() || AArquivo.find(u'\0') != AArquivo.npos) return;
    const std::u16string nome = BuscarNomeCompleto(AArquivo);
    const DWORD tamanho = ::GetFileVersionInfoSizeW(ParaWide(nome), nullptr);
    if (tamanho == 0) return;
    FBloco.resize(std::size_t{tamanho} + 1);
    if (!::GetFileVersionInfoW(ParaWide(nome), 0, tamanho, FBloco.data())) FBloco.clear();
}

std::optional<TVersaoFixa> TVersaoDeArquivo::ConsultarFixa() const {
    const auto dados = Ler<VS_FIXEDFILEINFO>(Consultar(FBloco, u"\\"));
    if (!dados) return {};
    return TVersaoFixa{dados->dwFileVersionMS, dados->dwFileVersionLS};
}

std::optional<TTraducao> TVersaoDeArquivo::ConsultarTraducao() const {
    return Ler<TTraducao>(Consultar(FBloco, u"\\VarFileInfo\\Translation"));
}

std::optional<std::u16string> TVersaoDeArquivo::ConsultarTexto(std::u16string_view ATabela,
                                                               std::u16string_view AChave) const {
    const auto valor =
        Consultar(FBloco, (std::u16string(u"\\StringFileInfo\\").append(ATabela) += u'\\').append(AChave));
    if (!valor) return {};
    std::u16string texto(std::min(valor->Tamanho, valor->Bytes.size() / sizeof(char16_t)), u'\0');
    std::memcpy(texto.data(), valor->Bytes.data(), texto.size() * sizeof(char16_t));
    texto.resize(std::min(texto.find(u'\0'), texto.size()));
    return texto;
}

}  // namespace OryUtils::Interno

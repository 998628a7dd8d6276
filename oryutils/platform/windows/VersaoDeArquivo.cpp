#include "oryutils/platform/VersaoDeArquivo.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <cstring>

namespace OryUtils::Plataforma {
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
    const char* Inicio = nullptr;
    UINT Tamanho = 0;
};
TValor Consultar(const std::vector<char>& ABloco, const std::u16string& ACaminho) {
    void* valor = nullptr;
    UINT tamanho = 0;
    if (ABloco.empty() || !::VerQueryValueW(ABloco.data(), ParaWide(ACaminho), &valor, &tamanho)) return {};
    return {static_cast<const char*>(valor), tamanho};
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
    const TValor valor = Consultar(FBloco, u"\\");
    VS_FIXEDFILEINFO dados{};
    if (!valor.Inicio || valor.Tamanho < sizeof dados) return {};
    std::memcpy(&dados, valor.Inicio, sizeof dados);
    return TVersaoFixa{dados.dwFileVersionMS, dados.dwFileVersionLS};
}

std::optional<TTraducao> TVersaoDeArquivo::ConsultarTraducao() const {
    const TValor valor = Consultar(FBloco, u"\\VarFileInfo\\Translation");
    WORD entrada[2];
    if (!valor.Inicio || valor.Tamanho < sizeof entrada) return {};
    std::memcpy(entrada, valor.Inicio, sizeof entrada);
    return TTraducao{entrada[0], entrada[1]};
}

std::optional<std::u16string> TVersaoDeArquivo::ConsultarTexto(std::u16string_view ATabela,
                                                               std::u16string_view AChave) const {
    const TValor valor =
        Consultar(FBloco, (std::u16string(u"\\StringFileInfo\\").append(ATabela) += u'\\').append(AChave));
    if (!valor.Inicio) return {};
    // The length is what the file says of itself; the block ends where it ends.
    const auto resto = static_cast<std::size_t>(FBloco.data() + FBloco.size() - valor.Inicio) / sizeof(char16_t);
    std::u16string texto(std::min<std::size_t>(valor.Tamanho, resto), u'\0');
    std::memcpy(texto.data(), valor.Inicio, texto.size() * sizeof(char16_t));
    texto.resize(std::min(texto.find(u'\0'), texto.size()));
    return texto;
}

}  // namespace OryUtils::Plataforma

#include "oryutils/readers/BlocoDeVersao.hpp"

#include "oryutils/characters/Ascii.hpp"
#include "oryutils/readers/BytesDePe.hpp"

#include <algorithm>
#include <initializer_list>

namespace OryUtils::Interno {
namespace {

// A node: its length, the length of its value and its type, 16 bits each; the key, ending with a 0; the value; the
// children. The value, the children and each node begin at a multiple of four bytes from the beginning of their node.
constexpr std::size_t CCabecalho = 6;
constexpr std::size_t CLetra = 2;
constexpr std::size_t CParteFixa = 52;
constexpr std::size_t CVersaoNaParteFixa = 8;

constexpr std::size_t Alinhar(std::size_t ATamanho) { return (ATamanho + 3) & ~std::size_t{3}; }

}  // namespace

std::optional<TBlocoDeVersao::TNo> TBlocoDeVersao::LerNo(std::size_t AInicio) const {
    if (AInicio > FBytes.size() || FBytes.size() - AInicio < CCabecalho) return {};
    const std::size_t tamanho = LerPalavra(FBytes, AInicio);
    const std::size_t valor = LerPalavra(FBytes, AInicio + 2);
    const bool texto = LerPalavra(FBytes, AInicio + 4) != 0;
    std::size_t fimDaChave = AInicio + CCabecalho;
    while (FBytes.size() - fimDaChave >= CLetra && LerPalavra(FBytes, fimDaChave) != 0) fimDaChave += CLetra;
    if (FBytes.size() - fimDaChave < CLetra) return {};
    TNo no{};
    no.Valor = AInicio + Alinhar(fimDaChave + CLetra - AInicio);
    no.TamanhoDoValor = valor;
    no.Filhos = no.Valor + Alinhar(texto ? valor * CLetra : valor);
    no.Fim = AInicio + tamanho;
    return no;
}

bool TBlocoDeVersao::TemChave(std::size_t AInicio, std::u16string_view AChave) const {
    const std::size_t inicio = AInicio + CCabecalho;
    if (FBytes.size() < inicio + (AChave.size() + 1) * CLetra) return false;
    for (std::size_t i = 0; i < AChave.size(); ++i)
        if (MinusculaAscii(LerPalavra(FBytes, inicio + i * CLetra)) != MinusculaAscii(AChave[i])) return false;
    return LerPalavra(FBytes, inicio + AChave.size() * CLetra) == 0;
}

std::optional<TBlocoDeVersao::TNo> TBlocoDeVersao::AcharFilho(const TNo& APai, std::u16string_view AChave) const {
    for (std::size_t inicio = APai.Filhos; inicio < APai.Fim && inicio + CCabecalho <= FBytes.size();) {
        if (TemChave(inicio, AChave)) return LerNo(inicio);
        const std::size_t tamanho = Alinhar(LerPalavra(FBytes, inicio));
        if (tamanho == 0) break;
        inicio += tamanho;
    }
    return {};
}

std::optional<TBlocoDeVersao::TNo> TBlocoDeVersao::Achar(std::u16string_view AGrupo, std::u16string_view ATabela,
                                                         std::u16string_view AChave) const {
    auto no = LerNo(0);
    for (const std::u16string_view nome : {AGrupo, ATabela, AChave}) {
        if (nome.empty()) break;
        if (no) no = AcharFilho(*no, nome);
    }
    return no;
}

std::span<const char> TBlocoDeVersao::LerValor(const TNo& ANo, std::size_t AQuantidade) const {
    if (ANo.Valor > FBytes.size()) return {};
    const auto resto = FBytes.subspan(ANo.Valor);
    return resto.first(std::min(AQuantidade, resto.size()));
}

std::optional<TVersaoFixa> TBlocoDeVersao::ConsultarFixa() const {
    const auto no = LerNo(0);
    if (!no) return {};
    const auto valor = LerValor(*no, no->TamanhoDoValor);
    if (valor.size() < CParteFixa) return {};
    return TVersaoFixa{LerPalavraDupla(valor, CVersaoNaParteFixa), LerPalavraDupla(valor, CVersaoNaParteFixa + 4)};
}

std::optional<TTraducao> TBlocoDeVersao::ConsultarTraducao() const {
    const auto no = Achar(u"VarFileInfo", u"Translation");
    if (!no) return {};
    const auto valor = LerValor(*no, no->TamanhoDoValor);
    if (valor.size() < 2 * CLetra) return {};
    return TTraducao{LerPalavra(valor, 0), LerPalavra(valor, CLetra)};
}

std::optional<std::u16string> TBlocoDeVersao::ConsultarTexto(std::u16string_view ATabela,
                                                             std::u16string_view AChave) const {
    const auto no = Achar(u"StringFileInfo", ATabela, AChave);
    if (!no) return {};
    const auto valor = LerValor(*no, no->TamanhoDoValor * CLetra);
    std::u16string texto;
    for (std::size_t i = 0; i + CLetra <= valor.size(); i += CLetra) {
        const char16_t letra = LerPalavra(valor, i);
        if (letra == 0) break;
        texto += letra;
    }
    return texto;
}

}  // namespace OryUtils::Interno

#include "oryutils/sql/interno/CondicaoSql.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Tabela.hpp"

#include <array>
#include <cstdint>
#include <new>

namespace OryUtils::Interno {
namespace {

enum TFormaDoValor { fvNenhum, fvEscalar, fvLista, fvInicio, fvFim, fvMeio, fvIntervalo };

struct TPalavra {
    TCondicaoFiltro Condicao;
    std::u16string_view Texto;
    TFormaDoValor Forma;
};

constexpr std::array CPalavras{
    TPalavra{cfNenhum, u"", fvNenhum},
    TPalavra{cfIgual, u"=", fvEscalar},
    TPalavra{cfMaior, u">", fvEscalar},
    TPalavra{cfMaiorIgual, u">=", fvEscalar},
    TPalavra{cfMenor, u"<", fvEscalar},
    TPalavra{cfMenorIgual, u"<=", fvEscalar},
    TPalavra{cfIn, u"IN", fvLista},
    TPalavra{cfNotIn, u"NOT IN", fvLista},
    TPalavra{cfIsNull, u"IS NULL", fvNenhum},
    TPalavra{cfIsNotNull, u"IS NOT NULL", fvNenhum},
    TPalavra{cfIniciaCom, u"STARTING WITH", fvInicio},
    TPalavra{cfTerminaCom, u"LIKE", fvFim},
    TPalavra{cfContem, u"LIKE", fvMeio},
    TPalavra{cfBetween, u"BETWEEN", fvIntervalo},
    TPalavra{cfDiferente, u"<>", fvEscalar},
};
static_assert(CobreEnumeracao<CPalavras, &TPalavra::Condicao>());

void AnexarValor(std::u16string& ASaida, const Variant& AValor, bool AEntreAspas) {
    if (!AEntreAspas) return AnexarVariante(ASaida, AValor);
    ASaida += u'\'';
    if (const std::u16string* texto = AValor.GetTexto())
        AnexarComApostrofosDobrados(ASaida, *texto);
    else
        AnexarComApostrofosDobrados(ASaida, VarianteParaTexto(AValor));
    ASaida += u'\'';
}

/// '%value' or '%value%'. The parts are added as variants, so that null makes the whole text empty.
void AnexarModelo(std::u16string& ASaida, const Variant& AValor, TFormaDoValor AForma) {
    const Variant inicio = Variant(u"%") + AValor;
    AnexarValor(ASaida, AForma == fvMeio ? inicio + Variant(u"%") : inicio, true);
}

void AnexarLista(std::u16string& ASaida, const Variant& AValor, bool AEntreAspas) try {
    const auto* itens = AValor.GetItens();
    if (!itens) return AnexarValor(ASaida, AValor, AEntreAspas);
    // The last index is kept in 8 bits. For an empty array it becomes 255, and at() raises.
    const auto ultimo = static_cast<std::uint8_t>(itens->size() - 1);
    for (std::size_t i = 0; i <= ultimo; ++i) {
        if (i) ASaida += u',';
        AnexarValor(ASaida, itens->at(i), AEntreAspas);
    }
} catch (const std::bad_alloc&) {
    throw;
} catch (const std::exception&) {
    throw Exception(u"Erro na geração do SQL com cláusula IN ou NOT IN.");
}

void AnexarIntervalo(std::u16string& ASaida, const Variant& AValor, bool AEntreAspas) {
    const auto* itens = AValor.GetItens();
    if (itens && itens->size() != 2) throw Exception(u"Número de parâmetros incorreto para a pesquisa com BETWEEN.");
    AnexarValor(ASaida, itens ? itens->front() : AValor, AEntreAspas);
    ASaida += u" AND ";
    AnexarValor(ASaida, itens ? itens->back() : AValor, AEntreAspas);
}

}  // namespace

void AnexarComApostrofosDobrados(std::u16string& ASaida, std::u16string_view ATexto) {
    for (std::size_t fim = ATexto.find(u'\''); fim != ATexto.npos; fim = ATexto.find(u'\'')) {
        ASaida.append(ATexto, 0, fim + 1) += u'\'';
        ATexto.remove_prefix(fim + 1);
    }
    ASaida += ATexto;
}

std::u16string_view BuscarPalavra(TCondicaoFiltro ACondicao) noexcept {
    return ACondicao < CPalavras.size() ? CPalavras[ACondicao].Texto : u"";
}

bool EstahCompleta(const TOryUtilsFiltroSql& ACondicao) noexcept {
    return !ACondicao.GetTabela().empty() && !ACondicao.GetCampo().empty() &&
           !BuscarPalavra(ACondicao.GetCondicao()).empty();
}

bool FaltaValor(const TOryUtilsFiltroSql& ACondicao) noexcept {
    return CPalavras[ACondicao.GetCondicao()].Forma != fvNenhum && ACondicao.GetValor() == Variant();
}

void AnexarCondicao(std::u16string& ASaida, const TOryUtilsFiltroSql& ACondicao) {
    const TPalavra& palavra = CPalavras[ACondicao.GetCondicao()];
    const Variant& valor = ACondicao.GetValor();
    const bool entreAspas = ACondicao.GetQuoteStr();
    const bool maiusculas = ACondicao.GetUsarUpperCase();

    ASaida += maiusculas ? u"( UPPER(" : u"( ";
    ASaida += MaiusculaDe(ACondicao.GetTabela());
    ASaida += u'.';
    ASaida += MaiusculaDe(ACondicao.GetCampo());
    ASaida += maiusculas ? u") " : u" ";
    ASaida += palavra.Texto;
    ASaida += u' ';
    switch (palavra.Forma) {
        case fvNenhum:
            break;
        case fvEscalar:
            if (maiusculas) ASaida += u"UPPER(";
            AnexarValor(ASaida, valor, entreAspas);
            if (maiusculas) ASaida += u')';
            break;
        case fvLista:
            ASaida += u'(';
            AnexarLista(ASaida, valor, entreAspas);
            ASaida += u" )";
            break;
        case fvInicio:
            AnexarValor(ASaida, valor, true);
            break;
        case fvFim:
        case fvMeio:
            AnexarModelo(ASaida, valor, palavra.Forma);
            break;
        case fvIntervalo:
            AnexarIntervalo(ASaida, valor, entreAspas);
            break;
    }
    ASaida += u" )";
}

}  // namespace OryUtils::Interno

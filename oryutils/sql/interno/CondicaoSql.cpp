#include "oryutils/sql/interno/CondicaoSql.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <array>

namespace OryUtils::Interno {
namespace {

enum TFormaDoValor { fvNenhum, fvEscalar, fvLista, fvInicio, fvFim, fvMeio, fvIntervalo };

struct TPalavra {
    TPedacoSql Texto;
    TFormaDoValor Forma;
};

// In the order of TCondicaoFiltro.
constexpr std::array<TPalavra, cfDiferente + 1> CPalavras{{
    {u"", fvNenhum},
    {u"=", fvEscalar},
    {u">", fvEscalar},
    {u">=", fvEscalar},
    {u"<", fvEscalar},
    {u"<=", fvEscalar},
    {u"IN", fvLista},
    {u"NOT IN", fvLista},
    {u"IS NULL", fvNenhum},
    {u"IS NOT NULL", fvNenhum},
    {u"STARTING WITH", fvInicio},
    {u"LIKE", fvFim},
    {u"LIKE", fvMeio},
    {u"BETWEEN", fvIntervalo},
    {u"<>", fvEscalar},
}};

constexpr TPedacoSql CAbre(u"( ");
constexpr TPedacoSql CAbreMaiusculas(u"( UPPER(");
constexpr TPedacoSql CMaiusculas(u"UPPER(");
constexpr TPedacoSql CE(u" AND ");
constexpr TPedacoSql CFecha(u" )");

char16_t Maiuscula(char16_t ACaractere) {
    if (ACaractere >= 0x80) return MaiusculaDe(ACaractere);
    return static_cast<char16_t>(ACaractere - (ACaractere >= u'a' && ACaractere <= u'z' ? u'a' - u'A' : 0));
}

char16_t* EscreverNome(char16_t* ADestino, std::u16string_view ANome) {
    for (const char16_t c : ANome) *ADestino++ = Maiuscula(c);
    return ADestino;
}

/// Each apostrophe inside a quoted text is doubled.
char16_t* EscreverCitado(char16_t* ADestino, std::u16string_view ATexto) {
    for (const char16_t c : ATexto) {
        *ADestino++ = c;
        *ADestino = u'\'';  // stays only behind another one
        ADestino += c == u'\'';
    }
    return ADestino;
}

void AnexarTexto(TTextoSql& ASaida, std::u16string_view ATexto, bool AEntreAspas) {
    if (!AEntreAspas) return ASaida.AnexarTexto(ATexto);
    char16_t* fim = ASaida.Abrir(2 * ATexto.size() + 2);
    *fim++ = u'\'';
    fim = EscreverCitado(fim, ATexto);
    *fim++ = u'\'';
    ASaida.Fechar(fim);
}

void AnexarValor(TTextoSql& ASaida, const Variant& AValor, bool AEntreAspas) {
    if (const auto* texto = AValor.GetTexto()) return AnexarTexto(ASaida, *texto, AEntreAspas);
    if (const auto* inteiro = std::get_if<std::int64_t>(&AValor.GetValor())) {
        std::array<char16_t, CTamanhoMaximoInt64> digitos;
        return AnexarTexto(ASaida, EscreverInt64(*inteiro, digitos), AEntreAspas);
    }
    AnexarTexto(ASaida, VarianteParaTexto(AValor), AEntreAspas);
}

/// '%value' or '%value%'.
void AnexarModelo(TTextoSql& ASaida, const Variant& AValor, std::u16string_view ASufixo) {
    if (!AValor.GetTexto()) {
        const Variant soma = Variant(u"%") + AValor;
        return AnexarValor(ASaida, ASufixo.empty() ? soma : soma + Variant(ASufixo), true);
    }
    char16_t* fim = ASaida.Abrir(2 * AValor.GetTexto()->size() + ASufixo.size() + 3);
    *fim++ = u'\'';
    *fim++ = u'%';
    fim = EscreverCitado(fim, *AValor.GetTexto());
    for (const char16_t c : ASufixo) *fim++ = c;
    *fim++ = u'\'';
    ASaida.Fechar(fim);
}

void AnexarLista(TTextoSql& ASaida, const Variant& AValor, bool AEntreAspas) try {
    const auto* itens = AValor.GetItens();
    if (!itens) return AnexarValor(ASaida, AValor, AEntreAspas);
    // The last index is kept in 8 bits; that of an empty array turns to 255, where there is no element.
    const auto ultimo = static_cast<std::uint8_t>(itens->size() - 1);
    for (std::size_t i = 0; i <= ultimo; ++i) {
        if (i) ASaida.Anexar(u',');
        AnexarValor(ASaida, itens->at(i), AEntreAspas);
    }
} catch (const std::exception&) {
    throw Exception(u"Erro na geração do SQL com cláusula IN ou NOT IN.");
}

void AnexarIntervalo(TTextoSql& ASaida, const Variant& AValor, bool AEntreAspas) {
    const auto* itens = AValor.GetItens();
    if (itens && itens->size() != 2) throw Exception(u"Número de parâmetros incorreto para a pesquisa com BETWEEN.");
    AnexarValor(ASaida, itens ? itens->front() : AValor, AEntreAspas);
    ASaida.Anexar(CE);
    AnexarValor(ASaida, itens ? itens->back() : AValor, AEntreAspas);
}

}  // namespace

std::u16string_view BuscarPalavra(TCondicaoFiltro ACondicao) noexcept {
    return ACondicao < CPalavras.size() ? CPalavras[ACondicao].Texto.GetTexto() : u"";
}

void AnexarCondicao(TTextoSql& ASaida, const TPedacoSql& AJuncao, const TOryUtilsFiltroSql& ACondicao) {
    const TPalavra& palavra = CPalavras[ACondicao.GetCondicao()];
    const std::u16string_view tabela = ACondicao.GetTabela();
    const std::u16string_view campo = ACondicao.GetCampo();
    const Variant& valor = ACondicao.GetValor();
    const bool entre_aspas = ACondicao.GetQuoteStr();
    const bool maiusculas = ACondicao.GetUsarUpperCase();

    constexpr std::size_t CPedacos = 4;
    char16_t* fim = ASaida.Abrir(CPedacos * TPedacoSql::CMaiorTamanho + tabela.size() + campo.size());
    fim = AJuncao.Escrever(fim);
    fim = (maiusculas ? CAbreMaiusculas : CAbre).Escrever(fim);
    fim = EscreverNome(fim, tabela);
    *fim++ = u'.';
    fim = EscreverNome(fim, campo);
    if (maiusculas) *fim++ = u')';
    *fim++ = u' ';
    fim = palavra.Texto.Escrever(fim);
    *fim++ = u' ';
    ASaida.Fechar(fim);
    switch (palavra.Forma) {
        case fvNenhum:
            break;
        case fvEscalar:
            if (maiusculas) ASaida.Anexar(CMaiusculas);
            AnexarValor(ASaida, valor, entre_aspas);
            if (maiusculas) ASaida.Anexar(u')');
            break;
        case fvLista:
            ASaida.Anexar(u'(');
            AnexarLista(ASaida, valor, entre_aspas);
            ASaida.Anexar(CFecha);
            break;
        case fvInicio:
            AnexarValor(ASaida, valor, true);
            break;
        case fvFim:
            AnexarModelo(ASaida, valor, u"");
            break;
        case fvMeio:
            AnexarModelo(ASaida, valor, u"%");
            break;
        case fvIntervalo:
            AnexarIntervalo(ASaida, valor, entre_aspas);
            break;
    }
    ASaida.Anexar(CFecha);
}

}  // namespace OryUtils::Interno

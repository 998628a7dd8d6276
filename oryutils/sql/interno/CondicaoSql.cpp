#include "oryutils/sql/interno/CondicaoSql.hpp"

#include "oryutils/runtime/Caixa.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <array>
#include <initializer_list>

namespace OryUtils::Interno {
namespace {

enum TFormaDoValor { fvNenhum, fvEscalar, fvLista, fvInicio, fvFim, fvMeio, fvIntervalo };

struct TPalavra {
    std::u16string_view Texto;
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

/// Appends all the parts with one growth of the text.
void AnexarPartes(std::u16string& ASaida, std::initializer_list<std::u16string_view> APartes) {
    std::size_t posicao = ASaida.size();
    std::size_t tamanho = posicao;
    for (const std::u16string_view parte : APartes) tamanho += parte.size();
    ASaida.resize(tamanho);
    for (const std::u16string_view parte : APartes)
        for (const char16_t c : parte) ASaida[posicao++] = c;
}

char16_t Maiuscula(char16_t ACaractere) {
    if (ACaractere >= 0x80) return MaiusculaDe(ACaractere);
    return static_cast<char16_t>(ACaractere - (ACaractere >= u'a' && ACaractere <= u'z' ? u'a' - u'A' : 0));
}

/// The inner part of a quoted text: the apostrophes from AInicio on are doubled, in place.
void DobrarApostrofos(std::u16string& ASaida, std::size_t AInicio) {
    std::size_t primeiro = ASaida.find(u'\'', AInicio);
    if (primeiro == std::u16string::npos) return;
    std::size_t quantos = 0;
    for (std::size_t i = primeiro; i < ASaida.size(); ++i) quantos += ASaida[i] == u'\'';
    std::size_t origem = ASaida.size();
    ASaida.resize(ASaida.size() + quantos);
    for (std::size_t destino = ASaida.size(); destino != origem;) {
        ASaida[--destino] = ASaida[--origem];
        if (ASaida[origem] == u'\'') ASaida[--destino] = u'\'';
    }
}

void AnexarValor(std::u16string& ASaida, const Variant& AValor, bool AEntreAspas) {
    if (!AEntreAspas) return AnexarVariante(ASaida, AValor);
    ASaida += u'\'';
    const std::size_t inicio = ASaida.size();
    AnexarVariante(ASaida, AValor);
    DobrarApostrofos(ASaida, inicio);
    ASaida += u'\'';
}

/// '%value' or '%value%'.
void AnexarModelo(std::u16string& ASaida, const Variant& AValor, std::u16string_view ASufixo) {
    if (!AValor.GetTexto()) {
        const Variant soma = Variant(u"%") + AValor;
        return AnexarValor(ASaida, ASufixo.empty() ? soma : soma + Variant(ASufixo), true);
    }
    ASaida += u"'%";
    const std::size_t inicio = ASaida.size();
    ASaida += *AValor.GetTexto();
    DobrarApostrofos(ASaida, inicio);
    ASaida += ASufixo;
    ASaida += u'\'';
}

void AnexarLista(std::u16string& ASaida, const Variant& AValor, bool AEntreAspas) try {
    const auto* itens = AValor.GetItens();
    if (!itens) return AnexarValor(ASaida, AValor, AEntreAspas);
    // The last index is kept in 8 bits; that of an empty array turns to 255, where there is no element.
    const auto ultimo = static_cast<std::uint8_t>(itens->size() - 1);
    for (std::size_t i = 0; i <= ultimo; ++i) {
        if (i) ASaida += u',';
        AnexarValor(ASaida, itens->at(i), AEntreAspas);
    }
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

std::u16string_view BuscarPalavra(TCondicaoFiltro ACondicao) noexcept {
    return ACondicao < CPalavras.size() ? CPalavras[ACondicao].Texto : u"";
}

bool EstahCompleta(const TOryUtilsFiltroSql& ACondicao) noexcept {
    return !ACondicao.GetTabela().empty() && !ACondicao.GetCampo().empty() &&
           !BuscarPalavra(ACondicao.GetCondicao()).empty();
}

void AnexarCondicao(std::u16string& ASaida, const TOryUtilsFiltroSql& ACondicao) {
    const TPalavra& palavra = CPalavras[ACondicao.GetCondicao()];
    const Variant& valor = ACondicao.GetValor();
    const bool entre_aspas = ACondicao.GetQuoteStr();
    const bool maiusculas = ACondicao.GetUsarUpperCase();

    const std::u16string_view abre = maiusculas ? u"( UPPER(" : u"( ";
    const std::size_t inicio = ASaida.size() + abre.size();
    const std::size_t fim = inicio + ACondicao.GetTabela().size() + 1 + ACondicao.GetCampo().size();
    AnexarPartes(ASaida, {abre, ACondicao.GetTabela(), u".", ACondicao.GetCampo(), maiusculas ? u") " : u" ",
                          palavra.Texto, u" "});
    for (std::size_t i = inicio; i < fim; ++i) ASaida[i] = Maiuscula(ASaida[i]);
    switch (palavra.Forma) {
        case fvNenhum:
            break;
        case fvEscalar:
            if (maiusculas) ASaida += u"UPPER(";
            AnexarValor(ASaida, valor, entre_aspas);
            if (maiusculas) ASaida += u')';
            break;
        case fvLista:
            ASaida += u'(';
            AnexarLista(ASaida, valor, entre_aspas);
            ASaida += u" )";
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
    ASaida += u" )";
}

}  // namespace OryUtils::Interno

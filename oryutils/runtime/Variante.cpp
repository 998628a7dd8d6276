#include "oryutils/runtime/Variante.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/runtime/interno/ValorDeMoeda.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace OryUtils {
namespace {

constexpr std::int64_t CDezMil = 10000;

// In the order of Variant::TValor.
constexpr std::array<std::u16string_view, std::variant_size_v<Variant::TValor>> CNomesDosTipos{
    u"não atribuído", u"nulo", u"lógico", u"inteiro", u"decimal", u"moeda", u"data-hora", u"texto", u"vetor"};

[[noreturn]] void RecusarTipo(const Variant& AValor, std::u16string_view APara) {
    throw EVariantTypeCastError(u"Não foi possível converter a variante do tipo " +
                                std::u16string(CNomesDosTipos[AValor.GetValor().index()]) + u" para o tipo " +
                                std::u16string(APara) + u".");
}

void AnexarInteiro(std::u16string& ADestino, std::int64_t AValor) {
    std::array<char16_t, CTamanhoMaximoInt64> texto;
    ADestino += EscreverInt64(AValor, texto);
}

struct TEscritor {
    std::u16string& Destino;
    const Variant& Valor;

    void operator()(TNaoAtribuido) const {}
    void operator()(TNulo) const {}
    void operator()(bool AValor) const { Destino += AValor ? u"True" : u"False"; }
    void operator()(std::int64_t AValor) const { AnexarInteiro(Destino, AValor); }
    void operator()(Extended AValor) const {
        std::array<char16_t, CTamanhoMaximoExtended> texto;
        Destino += EscreverExtended(AValor, texto, FormatSettings().DecimalSeparator);
    }
    void operator()(TMoeda AValor) const {
        // The whole part of -0,5 has no sign of its own.
        if (AValor.DezMilesimos < 0) Destino += u'-';
        AnexarInteiro(Destino, std::abs(AValor.DezMilesimos / CDezMil));
        auto resto = std::abs(AValor.DezMilesimos % CDezMil);
        if (resto == 0) return;
        Destino += FormatSettings().DecimalSeparator;
        for (; resto > 0; resto = resto * 10 % CDezMil) Destino += static_cast<char16_t>(u'0' + resto * 10 / CDezMil);
    }
    void operator()(TDateTime AValor) const { Destino += FormatarDataHora(u"c", AValor); }
    void operator()(const std::u16string& AValor) const { Destino += AValor; }
    void operator()(const TVetorDeVariantes&) const { RecusarTipo(Valor, u"texto"); }
};

template <typename T>
bool Tem(const Variant& AValor) {
    return std::holds_alternative<T>(AValor.GetValor());
}

/// Integers are exact as an Extended; an amount of money is so again when the sum is rounded to its four decimals.
Extended ConverterEmNumero(const Variant& AValor) {
    const auto& valor = AValor.GetValor();
    if (const auto* logico = std::get_if<bool>(&valor)) return *logico ? -1 : 0;
    if (const auto* inteiro = std::get_if<std::int64_t>(&valor)) return static_cast<Extended>(*inteiro);
    if (const auto* decimal = std::get_if<Extended>(&valor)) return *decimal;
    if (const auto* moeda = std::get_if<TMoeda>(&valor)) return BuscarValorDaMoeda(*moeda);
    if (const auto* data = std::get_if<TDateTime>(&valor)) return data->Valor;
    if (const auto* texto = AValor.GetTexto())
        if (const auto numero = TentarTextoParaExtended(*texto)) return *numero;
    RecusarTipo(AValor, u"número");
}

bool EhInteiro(const Variant& AValor) { return Tem<std::int64_t>(AValor) || Tem<bool>(AValor); }

}  // namespace

TMoeda TMoeda::De(Extended AValor) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return De(AValor); });
    const Extended escalado = std::round(AValor * CDezMil);
    if (!(std::abs(escalado) < 0x1p63L))
        throw EConvertError(u"'" + ExtendedParaTexto(AValor) + u"' não é um valor monetário válido");
    return {static_cast<std::int64_t>(escalado)};
}

TVetorDeVariantes::TVetorDeVariantes(std::vector<Variant> AItens) : FItens(std::move(AItens)) {
    for (const Variant& item : FItens)
        if (const auto* vetor = std::get_if<TVetorDeVariantes>(&item.GetValor()))
            FNivel = std::max(FNivel, vetor->FNivel + 1);
    if (FNivel > CMaiorNivel) throw EVariantError(u"Vetor com níveis demais.");
}

bool TVetorDeVariantes::operator==(const TVetorDeVariantes& AOutro) const { return FItens == AOutro.FItens; }

void AnexarVariante(std::u16string& ADestino, const Variant& AValor) {
    std::visit(TEscritor{ADestino, AValor}, AValor.GetValor());
}

std::u16string VarianteParaTexto(const Variant& AValor) {
    std::u16string texto;
    AnexarVariante(texto, AValor);
    return texto;
}

Variant operator+(const Variant& AUm, const Variant& AOutro) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return AUm + AOutro; });
    for (const Variant* valor : {&AUm, &AOutro})
        if (valor->GetItens()) RecusarTipo(*valor, u"número");
    if (Tem<TNulo>(AUm) || Tem<TNulo>(AOutro)) return TNulo{};
    if (Tem<TNaoAtribuido>(AUm)) return AOutro;
    if (Tem<TNaoAtribuido>(AOutro)) return AUm;
    if (AUm.GetTexto() && AOutro.GetTexto()) return *AUm.GetTexto() + *AOutro.GetTexto();

    const Extended soma = ConverterEmNumero(AUm) + ConverterEmNumero(AOutro);
    if (Tem<TDateTime>(AUm) || Tem<TDateTime>(AOutro)) return TDateTime(static_cast<double>(soma));
    if (Tem<TMoeda>(AUm) || Tem<TMoeda>(AOutro)) return TMoeda::De(soma);
    if (EhInteiro(AUm) && EhInteiro(AOutro) && soma >= -0x1p63L && soma < 0x1p63L)
        return static_cast<std::int64_t>(soma);
    return soma;
}

}  // namespace OryUtils

#include "oryutils/registry_numbers/interno/OutrosDocumentos.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/interno/RegraDeDocumento.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace OryUtils::Interno {
namespace {

constexpr TFormatoDocumento CFormatoPis{11, {}, {{11, {3, 2, 9, 8, 7, 6, 5, 4, 3, 2}}}};
constexpr TFormatoDocumento CFormatosCei[]{
    {12, {}, {{12, {7, 4, 1, 8, 5, 2, 1, 6, 3, 7, 4}, {CModulo10.DoResto, paDezenaEUnidade}}}}};
constexpr TFormatoDocumento CFormatosMunicipio[]{{7, {}, {{7, {1, 2, 1, 2, 1, 2}, {CModulo10.DoResto, paAlgarismos}}}}};

/// Municipalities whose official code was given out with another check digit.
constexpr std::array<std::u16string_view, 9> CMunicipiosForaDaRegra{
    u"2201919", u"2201988", u"2202251", u"2611533", u"3117836", u"3152131", u"4305871", u"5203939", u"5203962"};

/// The N characters of a text that is left without those of ARetirados and without the blanks that are then at its
/// ends; none when there are not N.
template <std::size_t N>
std::optional<std::array<char16_t, N>> Limpar(std::u16string_view ATexto, std::u16string_view ARetirados) noexcept {
    const auto ehRetirado = [&](char16_t c) { return ARetirados.find(c) != ARetirados.npos; };
    const auto sobra = [&](char16_t c) { return EhBranco(c) || ehRetirado(c); };
    while (!ATexto.empty() && sobra(ATexto.front())) ATexto.remove_prefix(1);
    while (!ATexto.empty() && sobra(ATexto.back())) ATexto.remove_suffix(1);
    std::array<char16_t, N> limpo;
    std::size_t lidos = 0;
    for (const char16_t c : ATexto) {
        if (ehRetirado(c)) continue;
        if (lidos == N) return {};
        limpo[lidos++] = c;
    }
    if (lidos < N) return {};
    return limpo;
}

template <std::size_t N>
constexpr std::u16string_view Ver(const std::array<char16_t, N>& ATexto) noexcept {
    return {ATexto.data(), N};
}

using TTextoDaCnh = std::array<char16_t, CTamanhoMaximoInteiro>;

/// The number of a driving licence with at least ADigitos digits, written into ADestino. A text with punctuation, and
/// any other that is not a number, counts as 0.
std::u16string_view EscreverCnh(std::u16string_view ANumero, int ADigitos, TTextoDaCnh& ADestino) noexcept {
    ANumero = Aparar(ANumero);
    const bool permitido = std::ranges::all_of(ANumero, [](char16_t c) { return EhDigito(c) || EhLetra(c); });
    return EscreverZeros(permitido ? TextoParaExtendedPadrao(ANumero, 0) : 0, ADigitos, ADestino);
}

/// Whether all digits before the last one are the same.
bool RepeteUmDigito(std::u16string_view ACnh) noexcept {
    return ACnh.substr(0, ACnh.size() - 1).find_first_not_of(ACnh[0]) == ACnh.npos;
}

/// The sum of ADigitos with the weights 2, 3, 4 and so on.
int SomarComPesosCrescentes(std::u16string_view ADigitos) noexcept {
    int soma = 0;
    for (int peso = 2; const char16_t c : ADigitos) soma += ValorDe(c) * peso++;
    return soma;
}

}  // namespace

TMotivoRecusa ConferirPis(std::u16string_view ANumero) noexcept {
    return Conferir(CFormatoPis, LerNumero(ANumero, [](char16_t c) { return c == u' '; }));
}

TMotivoRecusa ConferirCei(std::u16string_view ANumero) {
    auto cei = Limpar<12>(ANumero, u".,_/-");
    if (!cei) return mrTamanho;
    if (TextoParaExtended(Ver(*cei)) == 0) return mrNenhum;
    // The conversion takes a sign and an exponent; in the sum they count 0.
    std::ranges::replace_if(
        *cei, [](char16_t c) { return !EhDigito(c); }, u'0');
    return Conferir(CFormatosCei, Ver(*cei));
}

TMotivoRecusa ConferirNovoFormatoCnh(std::u16string_view ANumero) noexcept {
    TTextoDaCnh texto;
    const std::u16string_view cnh = EscreverCnh(ANumero, 11, texto);
    if (RepeteUmDigito(cnh)) return mrRepetido;
    const int soma = SomarComPesosCrescentes(cnh.substr(0, cnh.size() - 2));
    return ValorDe(cnh[9]) == CalcularDigito(CModulo11, soma) ? mrNenhum : mrDigito;
}

TMotivoRecusa ConferirFormatoAntigoCnh(std::u16string_view ANumero) noexcept {
    TTextoDaCnh texto;
    const std::u16string_view cnh = EscreverCnh(ANumero, 9, texto);
    if (RepeteUmDigito(cnh)) return mrRepetido;
    const int soma = SomarComPesosCrescentes(cnh.substr(0, cnh.size() - 1));
    return ValorDe(cnh[8]) == CalcularDigito(CResto11, soma) ? mrNenhum : mrDigito;
}

TMotivoRecusa ConferirCnh(std::u16string_view ANumero) noexcept {
    if (ConferirNovoFormatoCnh(ANumero) == mrNenhum || TextoParaIntPadrao(ANumero, 99999) == 0) return mrNenhum;
    return ConferirFormatoAntigoCnh(ANumero);
}

TMotivoRecusa ConferirCodigoMunicipio(std::u16string_view ACodigo) {
    const auto codigo = Limpar<7>(ACodigo, u".");
    if (!codigo) return mrTamanho;
    for (std::size_t i = 0; i < 6; ++i) TextoParaInt(Ver(*codigo).substr(i, 1));  // raises where there is no digit
    const TMotivoRecusa motivo = Conferir(CFormatosMunicipio, Ver(*codigo));
    return motivo == mrCaractere ? mrDigito : motivo;
}

TMotivoRecusa ConferirCodigoMunicipioOficial(std::u16string_view ACodigo) {
    const auto codigo = Limpar<7>(ACodigo, u".");
    if (codigo && std::ranges::find(CMunicipiosForaDaRegra, Ver(*codigo)) != CMunicipiosForaDaRegra.end())
        return mrNenhum;
    return ConferirCodigoMunicipio(ACodigo);
}

}  // namespace OryUtils::Interno

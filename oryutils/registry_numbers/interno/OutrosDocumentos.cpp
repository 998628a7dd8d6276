#include "oryutils/registry_numbers/interno/OutrosDocumentos.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace OryUtils {
namespace {

constexpr std::array CPesosPis{3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr std::array CPesosCei{7, 4, 1, 8, 5, 2, 1, 6, 3, 7, 4};
constexpr std::array CPesosMunicipio{1, 2, 1, 2, 1, 2};

/// Municipalities whose official code was given out with another check digit.
constexpr std::array<std::u16string_view, 9> CMunicipiosForaDaRegra{
    u"2201919", u"2201988", u"2202251", u"2611533", u"3117836", u"3152131", u"4305871", u"5203939", u"5203962"};

/// The N characters of a number after its clean-up, or the reason why there are not N.
template <std::size_t N>
struct TLimpo {
    std::array<char16_t, N> Texto{};
    TMotivoRecusa Motivo = mrTamanho;

    std::u16string_view GetTexto() const noexcept { return {Texto.data(), N}; }
};

/// ATexto without the characters of ARetirados. Stops as soon as there are too many.
template <std::size_t N>
TLimpo<N> Limpar(std::u16string_view ATexto, std::u16string_view ARetirados) noexcept {
    TLimpo<N> limpo;
    std::size_t quantos = 0;
    for (const char16_t c : ATexto) {
        if (ARetirados.find(c) != ARetirados.npos) continue;
        if (quantos == N) return limpo;
        limpo.Texto[quantos++] = c;
    }
    if (quantos == N) limpo.Motivo = mrNenhum;
    return limpo;
}

/// As Limpar, and without the blanks that are at the ends once the characters are gone.
template <std::size_t N>
TLimpo<N> LimparEAparar(std::u16string_view ATexto, std::u16string_view ARetirados) noexcept {
    const auto sobra = [&](char16_t c) { return EhBranco(c) || ARetirados.find(c) != ARetirados.npos; };
    while (!ATexto.empty() && sobra(ATexto.front())) ATexto.remove_prefix(1);
    while (!ATexto.empty() && sobra(ATexto.back())) ATexto.remove_suffix(1);
    return Limpar<N>(ATexto, ARetirados);
}

/// Of a character that is not a digit: 0.
constexpr int ValorDe(char16_t ACaractere) noexcept { return EhDigito(ACaractere) ? ACaractere - u'0' : 0; }

template <std::size_t N>
int Somar(std::u16string_view ADigitos, const std::array<int, N>& APesos) noexcept {
    int soma = 0;
    for (std::size_t i = 0; i < N; ++i) soma += ValorDe(ADigitos[i]) * APesos[i];
    return soma;
}

/// Digits of a driving licence: the number written with at least ADigitos digits. Punctuation, and any other text that
/// is not a number, makes it 0. Room for the longest number.
class TNumeroCnh {
public:
    TNumeroCnh(std::u16string_view ANumero, int ADigitos) noexcept {
        ANumero = Aparar(ANumero);
        const auto permitido = [](char16_t c) { return EhDigito(c) || EhLetra(c); };
        const bool numero = std::ranges::all_of(ANumero, permitido);
        FDigitos = EscreverZeros(numero ? TextoParaExtendedPadrao(ANumero, 0) : 0, ADigitos, FTexto);
    }
    TNumeroCnh(const TNumeroCnh&) = delete;
    TNumeroCnh& operator=(const TNumeroCnh&) = delete;

    /// The last digit takes no part.
    bool EhRepetido() const noexcept {
        return FDigitos.substr(0, FDigitos.size() - 1).find_first_not_of(FDigitos[0]) == FDigitos.npos;
    }
    /// Sum of the first AQuantos digits, with weights from 2 up.
    long SomarPrimeiros(std::size_t AQuantos) const noexcept {
        long soma = 0;
        for (std::size_t i = 0; i < AQuantos; ++i) soma += ValorDe(FDigitos[i]) * static_cast<long>(i + 2);
        return soma;
    }
    std::size_t Tamanho() const noexcept { return FDigitos.size(); }
    /// 1 = leftmost.
    int Digito(std::size_t APosicao) const noexcept { return ValorDe(FDigitos[APosicao - 1]); }

private:
    std::array<char16_t, CTamanhoMaximoInteiro> FTexto;
    std::u16string_view FDigitos;
};

}  // namespace

TMotivoRecusa ConferirPis(std::u16string_view ANumero) noexcept {
    const auto pis = Limpar<11>(ANumero, u" ");
    if (pis.Motivo != mrNenhum) return pis.Motivo;
    if (!std::ranges::all_of(pis.Texto, EhDigito)) return mrCaractere;
    const int resto = Somar(pis.GetTexto(), CPesosPis) % 11;
    return ValorDe(pis.Texto[10]) == (resto < 2 ? 0 : 11 - resto) ? mrNenhum : mrDigito;
}

TMotivoRecusa ConferirCei(std::u16string_view ANumero) {
    const auto cei = LimparEAparar<12>(ANumero, u".,_/-");
    if (cei.Motivo != mrNenhum) return cei.Motivo;
    if (TextoParaExtended(cei.GetTexto()) == 0) return mrNenhum;
    const int soma = Somar(cei.GetTexto(), CPesosCei);
    const int unidades = soma % 10;
    const int dezenas = soma % 100 / 10;
    return ValorDe(cei.Texto[11]) == (10 - (dezenas + unidades) % 10) % 10 ? mrNenhum : mrDigito;
}

TMotivoRecusa ConferirNovoFormatoCnh(std::u16string_view ANumero) noexcept {
    const TNumeroCnh cnh(ANumero, 11);
    if (cnh.EhRepetido()) return mrRepetido;
    const auto resto = cnh.SomarPrimeiros(cnh.Tamanho() - 2) % 11;
    return cnh.Digito(10) == (resto < 2 ? 0 : 11 - resto) ? mrNenhum : mrDigito;
}

TMotivoRecusa ConferirFormatoAntigoCnh(std::u16string_view ANumero) noexcept {
    const TNumeroCnh cnh(ANumero, 9);
    if (cnh.EhRepetido()) return mrRepetido;
    return cnh.Digito(9) == cnh.SomarPrimeiros(cnh.Tamanho() - 1) % 11 % 10 ? mrNenhum : mrDigito;
}

TMotivoRecusa ConferirCnh(std::u16string_view ANumero) noexcept {
    if (ConferirNovoFormatoCnh(ANumero) == mrNenhum || TextoParaIntPadrao(ANumero, 99999) == 0) return mrNenhum;
    return ConferirFormatoAntigoCnh(ANumero);
}

TMotivoRecusa ConferirCodigoMunicipio(std::u16string_view ACodigo) {
    const auto codigo = LimparEAparar<7>(ACodigo, u".");
    if (codigo.Motivo != mrNenhum) return codigo.Motivo;
    int soma = 0;
    for (std::size_t i = 0; i < CPesosMunicipio.size(); ++i) {
        const int digito =
            EhDigito(codigo.Texto[i]) ? codigo.Texto[i] - u'0' : TextoParaInt(codigo.GetTexto().substr(i, 1));
        const int produto = digito * CPesosMunicipio[i];
        soma += produto / 10 + produto % 10;
    }
    return codigo.Texto[6] == u'0' + (10 - soma % 10) % 10 ? mrNenhum : mrDigito;
}

TMotivoRecusa ConferirCodigoMunicipioOficial(std::u16string_view ACodigo) {
    const TMotivoRecusa motivo = ConferirCodigoMunicipio(ACodigo);
    if (motivo != mrDigito) return motivo;
    const auto codigo = LimparEAparar<7>(ACodigo, u".");
    return std::ranges::find(CMunicipiosForaDaRegra, codigo.GetTexto()) != CMunicipiosForaDaRegra.end() ? mrNenhum
                                                                                                        : motivo;
}

}  // namespace OryUtils

#include "oryutils/text/interno/FormulaDecimal.hpp"

#include <algorithm>
#include <cmath>

namespace OryUtils::Interno {

void RetirarZeros(TDecimal& ADecimal) noexcept {
    while (ADecimal.Decimais > 0 && ADecimal.Digitos % 10 == 0) {
        ADecimal.Digitos /= 10;
        --ADecimal.Decimais;
    }
}

std::optional<TDecimal> DecimalDe(Extended AValor) noexcept {
    const Extended magnitude = std::abs(AValor);
    if (!(magnitude < CPrimeiroDe16Digitos)) return std::nullopt;
    if (ArredondarAoInteiro(magnitude) == magnitude) return TDecimal{static_cast<std::int64_t>(AValor), 0};
    const auto [digitos, ordem] = SepararQuinzeDigitos(magnitude);
    if (ordem > 14 || ordem < -TDecimal::CDecimaisSemExpoente) return std::nullopt;
    TDecimal decimal{static_cast<std::int64_t>(digitos), 14 - ordem};
    RetirarZeros(decimal);
    return AValor < 0 ? decimal.Oposto() : decimal;
}

bool ArredondarDecimal(TDecimal AValor, TDecimal& AResultado) noexcept {
    const std::int64_t magnitude = std::abs(AValor.Digitos);
    int sobram = 0;
    while (sobram < 4 && magnitude >= TDecimal::CPrimeiroLongo * PotenciaInteira(sobram)) ++sobram;
    if (sobram > std::min(AValor.Decimais, 3)) return false;
    if (sobram > 0) {
        // The float errs by less than a fifth of the last digit here, and so rounds to the same side.
        const std::int64_t unidade = PotenciaInteira(sobram);
        const std::int64_t resto = magnitude % unidade;
        if (resto * 2 == unidade) return false;
        const std::int64_t digitos = magnitude / unidade + (resto * 2 > unidade);
        AValor = {AValor.Digitos < 0 ? -digitos : digitos, AValor.Decimais - sobram};
    }
    if (!AValor.Cabe()) RetirarZeros(AValor);
    if (!AValor.Cabe()) return false;
    AResultado = AValor;
    return true;
}

char16_t* EscreverDecimal(TDecimal AValor, char16_t* ADestino, char16_t ASeparador) noexcept {
    if (AValor.Digitos < 0) {
        *ADestino++ = u'-';
        AValor.Digitos = -AValor.Digitos;
    }
    RetirarZeros(AValor);
    std::array<char16_t, CTamanhoMaximoDecimal> espaco;
    char16_t* const fim = espaco.data() + espaco.size();
    char16_t* p = fim;
    auto digitos = static_cast<std::uint64_t>(AValor.Digitos);
    const auto escrever_digito = [&] {
        *--p = static_cast<char16_t>(u'0' + digitos % 10);
        digitos /= 10;
    };
    for (int i = 0; i < AValor.Decimais; ++i) escrever_digito();
    if (AValor.Decimais > 0) *--p = ASeparador;
    do escrever_digito();
    while (digitos > 0);
    return std::copy(p, fim, ADestino);
}

}  // namespace OryUtils::Interno

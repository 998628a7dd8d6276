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
    const auto inteiro = static_cast<std::int64_t>(AValor);
    if (static_cast<Extended>(inteiro) == AValor) return TDecimal{inteiro, 0};
    const auto [digitos, ordem] = SepararQuinzeDigitos(magnitude);
    if (ordem > 14 || ordem < -TDecimal::CDecimaisSemExpoente) return std::nullopt;
    TDecimal decimal{static_cast<std::int64_t>(digitos), 14 - ordem};
    RetirarZeros(decimal);
    return AValor < 0 ? decimal.Oposto() : decimal;
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

#include "oryutils/text/interno/FormulaExpressao.hpp"

#include "oryutils/runtime/interno/QuinzeDigitos.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"

#include <array>
#include <cmath>

namespace OryUtils::Interno {
namespace {

/// From here up a number is written without an exponent that has a sign.
constexpr Extended CMenorSemExpoenteNegativo = 1e-4L;
constexpr int CDigitosEm64Bits = 19;

TOperCalc OperacaoDe(char16_t AOperador) noexcept {
    return AOperador == u'*'   ? ocMultiplicacao
           : AOperador == u'/' ? ocDivisao
           : AOperador == u'+' ? ocSoma
                               : ocSubtracao;
}

}  // namespace

Extended CalcularOperacao(TOperCalc AOperador, Extended AUm, Extended AOutro) noexcept {
    switch (AOperador) {
        case ocMultiplicacao:
            return AUm * AOutro;
        case ocDivisao:
            return AOutro == 0 ? 0 : AUm / AOutro;
        case ocSoma:
            return AUm + AOutro;
        default:
            return AUm - AOutro;
    }
}

/// Reads the operand that starts at AInicio, behind AOperador, and answers where it ends.
const char16_t* TExpressao::LerOperando(const char16_t* AInicio, const char16_t* AFim, char16_t AOperador) {
    const char16_t* p = AInicio;
    // At the start and behind any other operator a "-" is the sign of the number.
    const bool negativo = p != AFim && *p == u'-' && AOperador != u'-';
    p += negativo;
    const char16_t* const inicio_dos_digitos = p;
    std::uint64_t digitos = 0;
    for (; p != AFim && EhDigito(*p); ++p) digitos = digitos * 10 + static_cast<unsigned>(*p - u'0');
    std::ptrdiff_t quantos = p - inicio_dos_digitos;
    std::ptrdiff_t decimais = 0;
    if (p != AFim && *p == FRegras.SeparadorDecimal) {
        const char16_t* const inicio_dos_decimais = ++p;
        for (; p != AFim && EhDigito(*p); ++p) digitos = digitos * 10 + static_cast<unsigned>(*p - u'0');
        decimais = p - inicio_dos_decimais;
        quantos += decimais;
    }
    TParcela& parcela = FParcelas.emplace_back();
    parcela.Operador = AOperador;
    if ((p == AFim || EhSinalDeOperacao(*p)) && quantos <= CDigitosEm64Bits &&
        (quantos > 0 || p == inicio_dos_digitos)) {
        parcela.Valor = static_cast<Extended>(digitos);
        if (decimais > 0) parcela.Valor = MultiplicarPorPotenciaDe10(parcela.Valor, -static_cast<int>(decimais));
        if (negativo) parcela.Valor = -parcela.Valor;
        return p;
    }
    while (p != AFim && !EhSinalDeOperacao(*p)) ++p;
    parcela.Texto = {AInicio, p};
    const auto lido = TentarTextoParaExtended(parcela.Texto);
    parcela.EhNumero = lido.has_value();
    parcela.Valor = lido.value_or(0);
    return p;
}

/// Whether a result behind AOperador is one operand to the operators. "5-" and "-3" meet as two subtractions.
bool TExpressao::EhUmNumeroSo(char16_t AOperador, Extended AValor) noexcept {
    const Extended magnitude = std::abs(AValor);
    if (AValor < 0 && AOperador == u'-') return false;
    return AValor == 0 || (magnitude >= CMenorSemExpoenteNegativo && std::isfinite(AValor));
}

/// Puts a result in the place of the last operand, as the operators find it in the text.
void TExpressao::ReporNoFim(Extended AValor) {
    const char16_t operador = FParcelas.back().Operador;
    if (EhUmNumeroSo(operador, AValor)) {
        FParcelas.back().Valor = AValor;
        return;
    }
    FParcelas.pop_back();
    if (EhUmNumeroSo(0, AValor)) {
        FParcelas.push_back({.Operador = u'-'});
        FParcelas.push_back({.Valor = -AValor, .Operador = u'-'});
        return;
    }
    std::array<char16_t, CTamanhoMaximoExtended> texto;
    ReporTexto(operador, EscreverExtended(AValor, texto, FRegras.SeparadorDecimal));
}

/// A result that reads as no number, or whose exponent has a sign that the operators take for a subtraction.
void TExpressao::ReporTexto(char16_t AOperador, std::u16string_view ATexto) {
    if (ATexto.front() == u'-' && AOperador == u'-') {
        FParcelas.push_back({.Operador = u'-'});
        ATexto.remove_prefix(1);
    }
    const std::u16string& guardado = FTextos.emplace_back(ATexto);
    const std::u16string_view texto = guardado;
    const std::size_t menos = texto.find(u'-', 1);
    FParcelas.push_back({.Texto = texto.substr(0, menos), .Operador = AOperador, .EhNumero = false});
    if (menos != std::u16string_view::npos) LerOperando(texto.data() + menos + 1, texto.data() + texto.size(), u'-');
}

/// False: AParcela is no number, and now is its turn.
bool TExpressao::Recusar(const TParcela& AParcela) {
    *FErro = {meNumero, std::u16string(AParcela.Texto)};
    return false;
}

/// The number that stands for the operation of ADireita, as its text reads back.
Extended TExpressao::Operar(const TParcela& AEsquerda, const TParcela& ADireita) const {
    const Extended exato = CalcularOperacao(OperacaoDe(ADireita.Operador), AEsquerda.Valor, ADireita.Valor);
    const Extended valor = FRegras.Ajuste == maNenhum ? exato : FRegras.Ajustar(exato);
    const Extended magnitude = std::abs(valor);
    const bool inteiro = magnitude < CPrimeiroDe16Digitos && ArredondarAoInteiro(magnitude) == magnitude;
    if (!inteiro) return ArredondarPara15Digitos(valor);
    return magnitude == 0 ? 0 : valor;
}

/// Resolves every AOperador, from the left to the right.
bool TExpressao::Passar(char16_t AOperador) {
    std::size_t ultima = 0;
    for (std::size_t i = 1; i < FParcelas.size(); ++i) {
        if (FParcelas[i].Operador != AOperador) {
            if (++ultima != i) FParcelas[ultima] = FParcelas[i];
            continue;
        }
        TParcela& esquerda = FParcelas[ultima];
        if (!esquerda.EhNumero) return Recusar(esquerda);
        if (!FParcelas[i].EhNumero) return Recusar(FParcelas[i]);
        const Extended valor = Operar(esquerda, FParcelas[i]);
        if (!EhUmNumeroSo(esquerda.Operador, valor)) return PassarComTextos(AOperador, ultima, i, valor);
        esquerda.Valor = valor;
    }
    FParcelas.erase(FParcelas.begin() + static_cast<std::ptrdiff_t>(ultima) + 1, FParcelas.end());
    return true;
}

/// The rest of a pass, from operand APosicao on, whose AValor does not fit the place of one operand.
bool TExpressao::PassarComTextos(char16_t AOperador, std::size_t AUltima, std::size_t APosicao, Extended AValor) {
    FAnteriores.assign(FParcelas.begin() + static_cast<std::ptrdiff_t>(APosicao) + 1, FParcelas.end());
    FParcelas.erase(FParcelas.begin() + static_cast<std::ptrdiff_t>(AUltima) + 1, FParcelas.end());
    ReporNoFim(AValor);
    for (const TParcela& parcela : FAnteriores) {
        if (parcela.Operador != AOperador) {
            FParcelas.push_back(parcela);
            continue;
        }
        // Only a result with an exponent leaves a subtraction behind in the last pass, with no number before it.
        if (AOperador == u'-' && FParcelas.size() > 1) return Recusar(FParcelas.front());
        if (!FParcelas.back().EhNumero) return Recusar(FParcelas.back());
        if (!parcela.EhNumero) return Recusar(parcela);
        ReporNoFim(Operar(FParcelas.back(), parcela));
    }
    return true;
}

Extended TExpressao::Calcular(std::u16string_view ATexto, const TRegrasFormula& ARegras, TErroFormula& AErro) {
    FRegras = ARegras;
    FErro = &AErro;
    FParcelas.clear();
    if (!FTextos.empty()) FTextos.clear();
    const char16_t* p = ATexto.data();
    const char16_t* const fim = p + ATexto.size();
    bool tem_divisao = false;
    bool tem_soma = false;
    for (char16_t operador = 0;;) {
        p = LerOperando(p, fim, operador);
        if (operador == u'*') {
            const TParcela& direita = FParcelas.back();
            const TParcela& esquerda = *(&direita - 1);
            if (!esquerda.EhNumero || !direita.EhNumero) {
                Recusar(esquerda.EhNumero ? direita : esquerda);
                return 0;
            }
            const Extended valor = Operar(esquerda, direita);
            FParcelas.pop_back();
            ReporNoFim(valor);
        }
        if (p == fim) break;
        operador = *p++;
        tem_divisao |= operador == u'/';
        tem_soma |= operador == u'+';
    }
    if (tem_divisao && !Passar(u'/')) return 0;
    if (tem_soma && !Passar(u'+')) return 0;
    while (FParcelas.size() > 1)
        if (!Passar(u'-')) return 0;
    if (!FParcelas.front().EhNumero) Recusar(FParcelas.front());
    return FParcelas.front().Valor;
}

}  // namespace OryUtils::Interno

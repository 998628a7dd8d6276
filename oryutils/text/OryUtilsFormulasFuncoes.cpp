// The functions of formulas: their values, and the step that resolves them.
#include "oryutils/characters/Caixa.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"
#include "oryutils/text/interno/FormulaChamadas.hpp"

#include <cmath>
#include <utility>

namespace OryUtils {
namespace {

using Interno::TChamada;

constexpr bool TemDoisArgumentos(TFuncCalc AFuncao) noexcept {
    return AFuncao == fcMAX || AFuncao == fcMIN || AFuncao == fcEXP;
}

[[noreturn]] void RecusarArgumentos() { throw Exception(u"São necessários dois argumentos para calcular a função."); }

Extended CalcularFuncao(TFuncCalc AFuncao, Extended AUm, Extended AOutro) noexcept {
    switch (AFuncao) {
        case fcSQR:
            return std::sqrt(AUm);
        case fcLOG:
            return std::log(AUm) / std::log(10.0L);
        case fcLN:
            return std::log(AUm);
        case fcINT:
            return TOryUtilsFormulas::GetInteiro(AUm);
        case fcABS:
            return std::abs(AUm);
        case fcMAX:
            return TOryUtilsFormulas::GetMaximo(AUm, AOutro);
        case fcMIN:
            return TOryUtilsFormulas::GetMinimo(AUm, AOutro);
        case fcEXP:
            return TOryUtilsFormulas::GetExponencial(AUm, AOutro);
    }
    return 0;
}

/// Step 1 of an evaluation.
std::u16string Normalizar(std::u16string_view AFormula) {
    std::u16string formula = MaiusculaDe(AFormula);
    std::erase_if(formula, [](char16_t c) { return c == u' ' || c == u'.'; });
    return formula;
}

/// The text from AInicio to AFim, which stands directly in a call of AFuncao, with values in the place of the calls in
/// it. APrimeira is the first of these.
std::u16string MontarTexto(std::u16string_view AFormula, const std::vector<TChamada>& AChamadas, TFuncCalc AFuncao,
                           std::size_t AInicio, std::size_t AFim, std::size_t APrimeira) {
    std::u16string texto;
    for (std::size_t i = APrimeira; i < AChamadas.size() && AChamadas[i].Nome < AFim; i = AChamadas[i].Seguinte) {
        const TChamada& interna = AChamadas[i];
        texto.append(AFormula, AInicio, interna.Nome - AInicio);
        // A function of a later kind finds the value in its argument, and step 1 removes the points there too.
        texto += AFuncao > interna.Funcao ? Normalizar(interna.Valor) : interna.Valor;
        AInicio = std::min(interna.Fim + 1, AFim);
    }
    return texto.append(AFormula, AInicio, AFim - AInicio);
}

}  // namespace

void TOryUtilsFormulas::ResolverFuncoes(std::u16string& AFormula) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { ResolverFuncoes(AFormula); });
    // The caller keeps its text when something here raises.
    std::u16string formula = Normalizar(AFormula);
    std::vector<TChamada> chamadas = Interno::LocalizarChamadas(formula);
    for (const auto [indice, ehInicio] : Interno::OrdenarPassos(chamadas)) {
        TChamada& chamada = chamadas[indice];
        const TFuncCalc funcao = chamada.Funcao;
        const bool dois = TemDoisArgumentos(funcao);
        const auto calcular = [&](std::size_t AInicio, std::size_t AFim, std::size_t APrimeira) {
            std::u16string argumento = MontarTexto(formula, chamadas, funcao, AInicio, AFim, APrimeira);
            ResolverVariaveis(argumento);
            return CalcularSemNomes(argumento);
        };
        if (ehInicio && dois) {
            if (chamada.Separador == TChamada::CSemSeparador || chamada.SeparadorDeOutra) RecusarArgumentos();
            chamada.Primeiro = calcular(chamada.Argumento, chamada.Separador, indice + 1);
        } else if (!ehInicio) {
            const Extended ultimo = dois ? calcular(chamada.Separador + 1, chamada.Fim, chamada.SeguinteAoSeparador)
                                         : calcular(chamada.Argumento, chamada.Fim, indice + 1);
            chamada.Valor = ExtendedParaTexto(CalcularFuncao(funcao, dois ? chamada.Primeiro : ultimo, ultimo));
        }
    }
    if (chamadas.size() > 1) formula = MontarTexto(formula, chamadas, chamadas[0].Funcao, 0, formula.size(), 1);
    AFormula = std::move(formula);
}

std::pair<std::u16string, std::u16string> TOryUtilsFormulas::GetArgumentos(std::u16string_view ATexto) {
    const std::size_t separador = ATexto.find(u';');
    if (separador == std::u16string_view::npos) RecusarArgumentos();
    return {std::u16string(ATexto.substr(0, separador)), std::u16string(ATexto.substr(separador + 1))};
}

Extended TOryUtilsFormulas::GetInteiro(Extended AValor) noexcept { return std::trunc(AValor); }

Extended TOryUtilsFormulas::GetExponencial(Extended ABase, Extended AExpoente) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return GetExponencial(ABase, AExpoente); });
    constexpr Extended CMaiorExpoenteInteiro = 2147483647;
    if (std::trunc(AExpoente) != AExpoente || !(std::abs(AExpoente) <= CMaiorExpoenteInteiro))
        return std::pow(ABase, AExpoente);
    // By squares: whole powers are exact as far as the digits go, on every system.
    Extended potencia = 1;
    Extended quadrado = ABase;
    for (auto resto = static_cast<std::uint64_t>(std::abs(AExpoente)); resto > 0; resto >>= 1) {
        if (resto & 1) potencia *= quadrado;
        quadrado *= quadrado;
    }
    return AExpoente < 0 ? 1 / potencia : potencia;
}

}  // namespace OryUtils

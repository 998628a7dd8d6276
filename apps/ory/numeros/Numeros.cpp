#include "numeros/Numeros.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/fields/interno/NumeroDigitado.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include "Leitura.hpp"
#include "Opcoes.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

/// An amount as people write it in Brazil: "1.234,56", "1234,56", "R$ 10", and "1234.56" where the point can part no
/// thousands. "1.000" is a thousand.
OryUtils::Extended LerValor(std::string_view ATexto) {
    const auto formatos = OryUtils::BuscarFormatosBrasileiros();
    const auto numero = OryUtils::Interno::LerNumeroDigitado(OryUtils::DeUtf8(ATexto), formatos, false);
    // The exception quotes what was written.
    return OryUtils::TextoParaExtended(numero ? *numero : OryUtils::DeUtf8(ATexto), formatos);
}

bool EscreverExtenso(std::string_view AValor, TAmbiente& AAmbiente) {
    try {
        AAmbiente.Saida.Escrever(
            OryUtils::ParaUtf8(OryUtils::TOryUtilsMatematica::BuscarValorPorExtenso(LerValor(AValor))) + "\n");
        return true;
    } catch (const OryUtils::Exception& erro) {
        AAmbiente.Saida.Escrever("\n");
        AAmbiente.Erro.Escrever(std::string(erro.what()) + "\n");
        return false;
    }
}

}  // namespace

void DescreverFormula(TOpcoes AComando, TPedidoDeFormula& APedido) {
    AComando.Valor("EXPRESSAO", APedido.Expressao, "a fórmula: \"salario*0,11 + MAX(a;b)\"").Obrigatoria();
    AComando.Valor("NOME=VALOR", APedido.Variaveis, "as variáveis");
    AComando.Valor("--ajuste", APedido.Ajuste, "ajuste de cada resultado: nenhum, matematico, truncamento");
    AComando.Valor("--casas", APedido.Casas, "casas decimais do ajuste");
    AComando.Rodape(
        "Saída do programa: 0 certo, 1 a fórmula está errada, 2 chamada errada.\n\n"
        "Exemplos:\n"
        "  ory formula \"salario*0,11\" salario=1.234,56\n"
        "  ory formula \"MAX(a;b)/3\" a=10 b=2,5 --ajuste matematico --casas 4");
}

int MostrarFormula(const TPedidoDeFormula& APedido, TAmbiente& AAmbiente) {
    constexpr std::array<std::string_view, 3> CAjustes{"nenhum", "matematico", "truncamento"};  // ordinals
    const auto ajuste = std::find(CAjustes.begin(), CAjustes.end(), APedido.Ajuste);
    if (ajuste == CAjustes.end()) throw EFalha("--ajuste é nenhum, matematico ou truncamento");
    if (APedido.Casas > 255) throw EFalha("--casas vai até 255");
    OryUtils::TOryUtilsFormulas formula;
    formula.SetTipoAjusteValor(static_cast<OryUtils::TMetodoArredondamento>(ajuste - CAjustes.begin()));
    formula.SetCasasDecimais(static_cast<std::uint8_t>(APedido.Casas));
    try {
        for (const std::string& variavel : APedido.Variaveis) {
            const std::size_t igual = variavel.find('=');
            if (igual == std::string::npos) throw EFalha("'" + variavel + "' não é NOME=VALOR");
            formula.AdicionarVariavel(OryUtils::DeUtf8(std::string_view(variavel).substr(0, igual)),
                                      LerValor(std::string_view(variavel).substr(igual + 1)));
        }
        const OryUtils::Extended valor = formula.Calcular(OryUtils::DeUtf8(APedido.Expressao));
        AAmbiente.Saida.Escrever(OryUtils::ParaUtf8(formula.GetExpressaoResolvida()) + " = " +
                                 OryUtils::ParaUtf8(OryUtils::ExtendedParaTexto(valor)) + "\n");
    } catch (const OryUtils::Exception& erro) {
        AAmbiente.Erro.Escrever(std::string(erro.what()) + "\n");
        return stInvalido;
    }
    return stTudoCerto;
}

void DescreverExtenso(TOpcoes AComando, TPedidoDeExtenso& APedido) {
    AComando.Valor("VALOR", APedido.Valores, "1.234,56 ou 1234,56 (1.000 é mil); sem nenhum, lê um valor por linha");
    AComando.Rodape(
        "Saída do programa: 0 certo, 1 algum valor não é um número, 2 chamada errada.\n\n"
        "Exemplos:\n"
        "  ory extenso 1.234,56\n"
        "  cut -d';' -f2 valores.csv | ory extenso");
}

int MostrarExtenso(const TPedidoDeExtenso& APedido, TAmbiente& AAmbiente) {
    bool tudoCerto = true;
    for (const std::string& valor : APedido.Valores) tudoCerto &= EscreverExtenso(valor, AAmbiente);
    if (APedido.Valores.empty()) {
        TLeitorDeLinhas linhas(AAmbiente.Entrada);
        while (linhas.Proxima() == TLeitorDeLinhas::leLinha) tudoCerto &= EscreverExtenso(linhas.GetLinha(), AAmbiente);
    }
    return tudoCerto ? stTudoCerto : stInvalido;
}

}  // namespace Ory

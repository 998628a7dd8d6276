#include "numeros/Numeros.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include "Leitura.hpp"
#include "Opcoes.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

/// "1.234,56" and "1234,56" as written here, "1234.56" as other programs write it.
OryUtils::Extended LerValor(std::string_view ATexto) {
    std::u16string texto = OryUtils::DeUtf8(ATexto);
    if (texto.find(u',') != std::u16string::npos)
        std::erase(texto, u'.');
    else
        std::replace(texto.begin(), texto.end(), u'.', u',');
    return OryUtils::TextoParaExtended(texto, OryUtils::BuscarFormatosBrasileiros());
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
    AComando.Valor("VALOR", APedido.Valores, "1234,56 ou 1234.56; sem nenhum, lê um valor por linha");
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

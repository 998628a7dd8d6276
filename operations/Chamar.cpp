#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "operations/Vinculo.hpp"

#include <array>
#include <new>

namespace Ory {
namespace {

constexpr std::string_view CProtocolo = "EProtocolo";
constexpr std::string_view COperacaoDesconhecida = "EOperacaoDesconhecida";
constexpr std::string_view CArgumento = "EArgumento";

std::string ResponderErro(std::string_view AMensagem, std::string_view AClasse) {
    std::string resposta = R"({"erro":)";
    EscreverTextoJson(resposta, AMensagem);
    resposta += R"(,"classe":)";
    EscreverTextoJson(resposta, AClasse);
    resposta += '}';
    return resposta;
}

std::string ResponderDesconhecida(std::string_view ANome) {
    return ResponderErro("operação desconhecida: " + std::string(ANome), COperacaoDesconhecida);
}

std::string Invocar(const TOperacao& AOperacao, std::span<const TJson> AValores) {
    try {
        const std::size_t esperados = AOperacao.Parametros.size();
        if (AValores.size() != esperados)
            throw EArgumento("esperava " + std::to_string(esperados) + (esperados == 1 ? " argumento" : " argumentos") +
                             ", veio " + std::to_string(AValores.size()) + ": " + DescreverOperacao(AOperacao));
        std::string resposta = R"({"resultado":)";
        AOperacao.Invocar({AValores}, resposta);
        resposta += '}';
        return resposta;
    } catch (const OryUtils::Exception& erro) {
        return ResponderErro(erro.what(), erro.GetNomeDaClasse());
    } catch (const EArgumento& erro) {
        return ResponderErro(erro.what(), CArgumento);
    } catch (const std::bad_alloc&) {
        return ResponderErro("memória insuficiente", "EOutOfMemory");
    } catch (const std::exception& erro) {
        return ResponderErro(erro.what(), "Exception");
    }
}

/// A text of the command line as the JSON value that the parameter takes.
TJson DeLinhaDeComando(const TParametro& AParametro, const std::string& ATexto) {
    if (!AParametro.TextoCru) {
        TJson valor = TJson::parse(ATexto, nullptr, false);
        if (!valor.is_discarded()) return valor;
    }
    return ATexto;
}

}  // namespace

std::span<const std::span<const TOperacao>> BuscarOperacoes() noexcept {
    static const std::array tabelas{
        BuscarOperacoesDeTexto(),   BuscarOperacoesDeRegistros(), BuscarOperacoesDeDatas(),  BuscarOperacoesDeSql(),
        BuscarOperacoesDeNumeros(), BuscarOperacoesDeArquivos(),  BuscarOperacoesDeSistema()};
    return tabelas;
}

void PrepararProcesso() {
    OryUtils::GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    OryUtils::CosturaInterface() = OryUtils::BuscarCosturaPadrao();
}

const TOperacao* BuscarOperacao(std::string_view ANome) noexcept {
    for (const std::span<const TOperacao> tabela : BuscarOperacoes()) {
        const auto achada = std::lower_bound(tabela.begin(), tabela.end(), ANome,
                                             [](const TOperacao& A, std::string_view B) { return A.Nome < B; });
        if (achada != tabela.end() && achada->Nome == ANome) return &*achada;
    }
    return nullptr;
}

std::string DescreverOperacao(const TOperacao& AOperacao) {
    std::string texto(AOperacao.Nome);
    texto += '(';
    for (std::size_t i = 0; i < AOperacao.Parametros.size(); ++i) {
        if (i) texto += ", ";
        texto += AOperacao.Parametros[i].Tipo;
    }
    texto += "): ";
    texto += AOperacao.Resultado;
    return texto;
}

std::string Chamar(std::string_view ARequisicao) {
    try {
        const TJson requisicao = TJson::parse(ARequisicao);
        if (!requisicao.is_object()) return ResponderErro("a requisição não é um objeto JSON", CProtocolo);
        const auto nome = requisicao.find("op");
        if (nome == requisicao.end() || !nome->is_string())
            return ResponderErro("falta \"op\", o nome da operação", CProtocolo);
        const TOperacao* operacao = BuscarOperacao(nome->get_ref<const std::string&>());
        if (!operacao) return ResponderDesconhecida(nome->get_ref<const std::string&>());
        const auto argumentos = requisicao.find("args");
        if (argumentos == requisicao.end()) return Invocar(*operacao, {});
        if (!argumentos->is_array()) return ResponderErro("\"args\" não é uma lista", CProtocolo);
        return Invocar(*operacao, argumentos->get_ref<const TJson::array_t&>());
    } catch (const TJson::parse_error& erro) {
        return ResponderErro("JSON inválido no byte " + std::to_string(erro.byte), CProtocolo);
    } catch (const std::bad_alloc&) {
        return ResponderErro("memória insuficiente", "EOutOfMemory");
    } catch (const std::exception& erro) {  // a number that no type holds, for one
        return ResponderErro(erro.what(), CProtocolo);
    }
}

std::string ChamarComTextos(std::string_view ANome, std::span<const std::string> AArgumentos) {
    const TOperacao* operacao = BuscarOperacao(ANome);
    if (!operacao) return ResponderDesconhecida(ANome);
    std::vector<TJson> valores;
    for (std::size_t i = 0; i < AArgumentos.size(); ++i) {
        const bool sobra = i >= operacao->Parametros.size();  // refused by their number
        valores.push_back(sobra ? TJson(AArgumentos[i]) : DeLinhaDeComando(operacao->Parametros[i], AArgumentos[i]));
    }
    return Invocar(*operacao, valores);
}

}  // namespace Ory

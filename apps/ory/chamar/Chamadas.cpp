#include "chamar/Chamadas.hpp"

#include "Leitura.hpp"
#include "Sugestao.hpp"
#include "operations/Json.hpp"
#include "operations/Operacoes.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

namespace Ory {
namespace {

void EscreverParaPessoas(std::string& ASaida, const TJson& AValor) {
    if (AValor.is_string())
        ASaida += AValor.get_ref<const std::string&>();
    else if (AValor.is_array())
        for (std::size_t i = 0; i < AValor.size(); ++i) {
            if (i) ASaida += '\n';
            EscreverParaPessoas(ASaida, AValor[i]);
        }
    else if (!AValor.is_null())
        ASaida += AValor.dump();
}

std::string SugerirOperacao(const std::string& AEscrita) {
    std::vector<std::string> nomes;
    for (const auto tabela : BuscarOperacoes())
        for (const TOperacao& operacao : tabela) nomes.emplace_back(operacao.Nome);
    return Sugerir(AEscrita, nomes);
}

}  // namespace

TStatus ChamarUma(const std::string& AOperacao, std::span<const std::string> AArgumentos, bool AJson,
                  TAmbiente& AAmbiente) {
    std::string resposta = ChamarComTextos(AOperacao, AArgumentos);
    const TJson lida = TJson::parse(resposta);
    const auto erro = lida.find("erro");
    TStatus status = stTudoCerto;
    if (erro != lida.end()) {
        const auto& classe = lida.at("classe").get_ref<const std::string&>();
        status = classe == "EOperacaoDesconhecida" || classe == "EArgumento" ? stFalha : stInvalido;
        if (!AJson) {
            const std::string sugestao = classe == "EOperacaoDesconhecida" ? SugerirOperacao(AOperacao) : "";
            AAmbiente.Erro.Escrever("ory: " + erro->get_ref<const std::string&>() + sugestao + "\n");
            return status;
        }
    }
    if (!AJson) {
        resposta.clear();
        EscreverParaPessoas(resposta, lida.at("resultado"));
    }
    AAmbiente.Saida.Escrever(resposta + "\n");
    return status;
}

void ChamarEmLote(TEntrada& AEntrada, TSaida& ASaida, std::size_t AMaiorRequisicao) {
    constexpr std::size_t CMuito = 64 * 1024;
    std::string respostas;
    const auto descarregar = [&] {
        if (!respostas.empty()) ASaida.Escrever(respostas);
        respostas.clear();
    };
    TLeitorDeLinhas linhas(AEntrada, AMaiorRequisicao);
    linhas.GetBytes().AoEsperar(descarregar);
    linhas.GetBytes().PularMarcaUtf8();
    while (true) {
        const TLeitorDeLinhas::TLeitura leitura = linhas.Proxima();
        if (leitura == TLeitorDeLinhas::leFim) break;
        respostas += leitura == TLeitorDeLinhas::leLinha
                         ? Chamar(linhas.GetLinha())
                         : R"({"erro":"requisição longa demais","classe":"EProtocolo"})";
        respostas += '\n';
        if (respostas.size() >= CMuito) descarregar();
    }
    descarregar();
}

namespace {

// The values of the enumerations among the arguments: ,"valores":{"TTipoInscricao":{"tiCNPJ":1}}.
void EscreverValores(std::string& ASaida, const TOperacao& AOperacao) {
    TJson tipos = TJson::object();
    for (const TParametro& parametro : AOperacao.Parametros)
        for (const TValorDeEnumeracao& valor : parametro.Valores)
            tipos[std::string(parametro.Tipo)][std::string(valor.Nome)] = valor.Valor;
    if (!tipos.empty()) ASaida += R"(,"valores":)" + tipos.dump();
}

}  // namespace

void ListarOperacoes(TSaida& ASaida, bool AJson) {
    std::vector<const TOperacao*> operacoes;
    for (const auto tabela : BuscarOperacoes())
        for (const TOperacao& operacao : tabela) operacoes.push_back(&operacao);
    std::sort(operacoes.begin(), operacoes.end(),
              [](const TOperacao* A, const TOperacao* B) { return A->Nome < B->Nome; });
    std::string saida = AJson ? "[" : "";
    for (const TOperacao* operacao : operacoes) {
        if (!AJson) {
            saida += DescreverOperacao(*operacao) + "\n";
            continue;
        }
        if (saida.size() > 1) saida += ",\n";
        saida += R"({"op":)";
        EscreverTextoJson(saida, operacao->Nome);
        saida += R"(,"args":[)";
        for (std::size_t i = 0; i < operacao->Parametros.size(); ++i) {
            if (i) saida += ',';
            EscreverTextoJson(saida, operacao->Parametros[i].Tipo);
        }
        saida += R"(],"resultado":)";
        EscreverTextoJson(saida, operacao->Resultado);
        EscreverValores(saida, *operacao);
        saida += '}';
    }
    if (AJson) saida += "]\n";
    ASaida.Escrever(saida);
}

}  // namespace Ory

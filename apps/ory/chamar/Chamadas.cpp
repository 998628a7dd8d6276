#include "chamar/Chamadas.hpp"

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

/// Answers the requests of the lines that come in any pieces.
class TAtendente {
public:
    TAtendente(TSaida& ASaida, std::size_t AMaiorRequisicao) : FSaida(ASaida), FMaior(AMaiorRequisicao) {}

    void Receber(std::string_view APedaco) {
        if (FNoInicio) APedaco = TirarMarca(APedaco);
        while (!APedaco.empty()) {
            const std::size_t quebra = APedaco.find('\n');
            const std::string_view parte = APedaco.substr(0, quebra);
            if (quebra == std::string_view::npos) return Guardar(parte);
            APedaco.remove_prefix(quebra + 1);
            if (FParte.empty() && !FLonga && parte.size() <= FMaior) {
                Responder(parte);
                continue;
            }
            Guardar(parte);
            ResponderGuardada();
        }
    }

    void Terminar() {
        if (!FParte.empty() || FLonga) ResponderGuardada();
        Descarregar();
    }

    void Descarregar() {
        if (!FRespostas.empty()) FSaida.Escrever(FRespostas);
        FRespostas.clear();
    }

private:
    // The mark may come in pieces; what it is not yet sure of waits.
    std::string_view TirarMarca(std::string_view APedaco) {
        constexpr std::string_view CMarca = "\xEF\xBB\xBF";
        while (!APedaco.empty() && FParte.size() < CMarca.size() && APedaco.front() == CMarca[FParte.size()]) {
            FParte += APedaco.front();
            APedaco.remove_prefix(1);
        }
        if (APedaco.empty() && FParte.size() < CMarca.size()) return {};
        FNoInicio = false;
        if (FParte == CMarca) FParte.clear();
        return APedaco;
    }

    void Guardar(std::string_view AParte) {
        if (FParte.size() + AParte.size() > FMaior) {
            FLonga = true;
            FParte.clear();
        }
        if (!FLonga) FParte += AParte;
    }

    void ResponderGuardada() {
        if (FLonga)
            Juntar(R"({"erro":"requisição longa demais","classe":"EProtocolo"})");
        else
            Responder(FParte);
        FParte.clear();
        FLonga = false;
    }

    void Responder(std::string_view ALinha) {
        if (ALinha.ends_with('\r')) ALinha.remove_suffix(1);
        Juntar(Chamar(ALinha));
    }

    void Juntar(std::string_view AResposta) {
        constexpr std::size_t CMuito = 64 * 1024;
        FRespostas += AResposta;
        FRespostas += '\n';
        if (FRespostas.size() >= CMuito) Descarregar();
    }

    TSaida& FSaida;
    std::size_t FMaior;
    std::string FParte{};  // of a line that has not ended yet
    std::string FRespostas{};
    bool FLonga = false;  // that line is past the limit
    bool FNoInicio = true;
};

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
            AAmbiente.Erro.Escrever("ory: " + erro->get_ref<const std::string&>() + "\n");
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
    std::vector<char> pedaco(64 * 1024);
    TAtendente atendente(ASaida, AMaiorRequisicao);
    while (true) {
        if (AEntrada.LerEsperaria()) atendente.Descarregar();
        const std::size_t lidos = AEntrada.Ler(pedaco);
        if (!lidos) break;
        atendente.Receber({pedaco.data(), lidos});
    }
    atendente.Terminar();
}

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
        saida += '}';
    }
    if (AJson) saida += "]\n";
    ASaida.Escrever(saida);
}

}  // namespace Ory

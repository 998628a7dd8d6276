#include "LinhaDeComando.hpp"

#include "oryutils/OryUtils.hpp"

#include "Opcoes.hpp"
#include "chamar/Chamadas.hpp"
#include "conferir/Conferir.hpp"
#include "documento/Documento.hpp"
#include "log/Log.hpp"
#include "mensagem/Mensagem.hpp"
#include "numeros/Numeros.hpp"
#include "processos/Processos.hpp"
#include "servico/Servico.hpp"
#include "sistema/Sistema.hpp"
#include "versao/Versao.hpp"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Ory {
namespace {

/// The options as they come, before they are checked.
struct TOpcoesDeConferir {
    TPedidoDeConferencia Conferencia{};
    std::vector<std::string> Colunas{};
    std::string Codificacao{};
    std::string Delimitador{};
    std::string Vereditos{};
    std::string Cores = "auto";
};

struct TOpcoesDeChamar {
    std::string Operacao{};
    std::vector<std::string> Argumentos{};
    bool Lote = false;
    bool Json = false;
};

struct TOpcoesDeOperacoes {
    bool Json = false;
};

TPedidoDeConferencia LerPedido(const TOpcoesDeConferir& ALidas) {
    TPedidoDeConferencia pedido = ALidas.Conferencia;
    for (const std::string& coluna : ALidas.Colunas) {
        const std::size_t igual = coluna.rfind('=');
        if (igual == std::string::npos || igual == 0) throw EFalha("--coluna espera nome=tipo, veio " + coluna);
        pedido.Opcoes.Colunas.emplace_back(coluna.substr(0, igual), BuscarPapel(coluna.substr(igual + 1)));
    }
    if (ALidas.Codificacao == "utf-8" || ALidas.Codificacao == "utf8")
        pedido.Opcoes.Codificacao = coUtf8;
    else if (ALidas.Codificacao == "windows-1252" || ALidas.Codificacao == "1252")
        pedido.Opcoes.Codificacao = coWindows1252;
    else if (!ALidas.Codificacao.empty())
        throw EFalha("--codificacao espera utf-8 ou windows-1252, veio " + ALidas.Codificacao);
    if (ALidas.Delimitador == "tab")
        pedido.Opcoes.Delimitador = '\t';
    else if (ALidas.Delimitador.size() == 1 && ALidas.Delimitador.find_first_of("\"\r\n") == std::string::npos)
        pedido.Opcoes.Delimitador = ALidas.Delimitador.front();
    else if (!ALidas.Delimitador.empty())
        throw EFalha("--delimitador espera um caractere ou tab, veio " + ALidas.Delimitador);
    if (ALidas.Cores != "auto" && ALidas.Cores != "nunca")
        throw EFalha("--cores espera nunca ou auto, veio " + ALidas.Cores);
    pedido.SemCores = ALidas.Cores == "nunca";
    if (ALidas.Vereditos.empty()) return pedido;
    pedido.Vereditos = BuscarPapel(ALidas.Vereditos).Tipo;
    if (!pedido.Vereditos) throw EFalha("não há vereditos do tipo " + ALidas.Vereditos);
    if (pedido.Vereditos->PedeUf && pedido.Opcoes.Uf.empty())
        throw EFalha("vereditos de " + ALidas.Vereditos + " pedem --uf");
    if (pedido.Json || !pedido.Saida.empty() || !pedido.Opcoes.Colunas.empty())
        throw EFalha("--vereditos não combina com --json, --saida nem --coluna");
    return pedido;
}

void DescreverConferir(TOpcoes AComando, TOpcoesDeConferir& AOpcoes) {
    TPedidoDeConferencia& pedido = AOpcoes.Conferencia;
    AComando.Valor("ARQUIVO", pedido.Arquivo, "arquivo CSV; \"-\" ou nenhum: a entrada padrão");
    AComando
        .Valor("--coluna", AOpcoes.Colunas,
               "nome=tipo: diz o que há na coluna desse nome ou dessa posição; pode repetir.\n"
               "Tipos: " +
                   ListarPapeis())
        .SemMaisValores();
    AComando.Valor("--uf", pedido.Opcoes.Uf, "UF das inscrições estaduais de todo o arquivo");
    AComando.Valor("--codificacao", AOpcoes.Codificacao, "utf-8 ou windows-1252 (padrão: detecta)");
    AComando.Valor("--delimitador", AOpcoes.Delimitador, "um caractere ou tab (padrão: detecta ; , | ou tab)");
    AComando.Marca("--sem-cabecalho", pedido.Opcoes.SemCabecalho,
                   "a primeira linha já é dado; as colunas vão pela posição: --coluna 2=cnpj");
    AComando.Valor("--saida", pedido.Saida,
                   "grava o arquivo de novo com veredito e número formatado de cada coluna conferida;\n"
                   "\"-\": na saída padrão, e o resumo na saída de erros");
    AComando.Marca("--vazio-ok", pedido.Opcoes.VazioVale, "um arquivo sem registros não é uma falha");
    AComando.Valor("--log", pedido.Log, "escreve um log da conferência; a extensão passa a ser .log");
    AComando.Marca("--json", pedido.Json, "resumo em JSON");
    AComando.Valor("--mostrar", pedido.Opcoes.Mostrar, "quantos inválidos mostrar por coluna (padrão: 5)");
    AComando.Valor("--vereditos", AOpcoes.Vereditos,
                   "tipo: em vez de CSV lê um número por linha e escreve 1 (válido) ou 0 por linha");
    AComando.Valor("--cores", AOpcoes.Cores, "nunca ou auto (padrão: auto, só em terminal e sem NO_COLOR)");
    AComando.Rodape(
        "Saída do programa: 0 tudo válido, 1 há inválidos, 2 não foi possível ler ou gravar, ou não há registros.\n"
        "Um registro pode ter até 16 MiB. --saida pode ser o próprio ARQUIVO: ele só é trocado no fim.\n\n"
        "Exemplos:\n"
        "  ory conferir clientes.csv\n"
        "  ory conferir clientes.csv --coluna \"doc do sócio=cpf\" --saida conferido.csv\n"
        "  cut -d';' -f3 clientes.csv | ory conferir --vereditos cnpj");
}

void DescreverChamar(TOpcoes AComando, TOpcoesDeChamar& AOpcoes) {
    AComando.Valor("OPERACAO", AOpcoes.Operacao, "nome da operação; veja ory operacoes");
    AComando.Valor("ARGUMENTO", AOpcoes.Argumentos,
                   "um valor por argumento: texto como está, listas em JSON ([\"a\",\"b\"]),\n"
                   "datas AAAA-MM-DDTHH:MM:SS, enumerações pelo nome ou número");
    AComando.Marca("--lote", AOpcoes.Lote, "lê um pedido JSON por linha e responde um JSON por linha");
    AComando.Marca("--json", AOpcoes.Json, "resposta em JSON, como em --lote (antes da operação)");
    AComando.Rodape(
        "Saída do programa: 0 certo, 1 a operação falhou, 2 chamada errada.\n\n"
        "Exemplos:\n"
        "  ory chamar ValidouCnpjCpf 1 11222333000181\n"
        "  ory chamar LimparTexto:chars 1-2.3 '[\".\",\"-\"]'\n"
        "  echo '{\"op\":\"ValidouCnpjCpf\",\"args\":[1,\"11222333000181\"]}' | ory chamar --lote");
}

void DescreverOperacoes(TOpcoes AComando, TOpcoesDeOperacoes& AOpcoes) {
    AComando.Marca("--json", AOpcoes.Json, "lista em JSON");
    AComando.Rodape(
        "Saída do programa: 0 certo, 2 chamada errada.\n\n"
        "Exemplos:\n"
        "  ory operacoes | grep Validou\n"
        "  ory operacoes --json");
}

/// The sub-commands, each with what was asked of it and what runs it.
class TComandos {
public:
    TComandos(TAplicativo& AAplicativo, TAmbiente& AAmbiente) : FAplicativo(AAplicativo), FAmbiente(AAmbiente) {}

    /// ADescrever gives the sub-command its options, which fill a TPedido; AExecutar runs it.
    template <typename TPedido>
    void Incluir(const std::string& ANome, const std::string& ADescricao, void (*ADescrever)(TOpcoes, TPedido&),
                 int (*AExecutar)(const TPedido&, TAmbiente&)) {
        const TOpcoes comando = FAplicativo.Incluir(ANome, ADescricao);
        const auto pedido = std::make_shared<TPedido>();
        ADescrever(comando, *pedido);
        FComandos.push_back({comando, [this, pedido, AExecutar] { return AExecutar(*pedido, FAmbiente); }});
    }
    /// Runs the one that was written; nothing when none was.
    std::optional<int> Executar() const {
        const auto escrito = std::ranges::find_if(FComandos, [](const auto& c) { return c.Comando.FoiEscrito(); });
        return escrito == FComandos.end() ? std::nullopt : std::optional(escrito->Executar());
    }

private:
    struct TComando {
        TOpcoes Comando;
        std::function<int()> Executar;
    };
    TAplicativo& FAplicativo;
    TAmbiente& FAmbiente;
    std::vector<TComando> FComandos{};
};

int ExecutarConferir(const TOpcoesDeConferir& AOpcoes, TAmbiente& AAmbiente) {
    return Conferir(LerPedido(AOpcoes), AAmbiente);
}

int ExecutarChamar(const TOpcoesDeChamar& AOpcoes, TAmbiente& AAmbiente) {
    if (AOpcoes.Lote) {
        if (!AOpcoes.Operacao.empty()) throw EFalha("--lote não leva operação na linha de comando");
        ChamarEmLote(AAmbiente.Entrada, AAmbiente.Saida);
        return stTudoCerto;
    }
    if (AOpcoes.Operacao.empty()) throw EFalha("falta a operação ou --lote; veja ory chamar --ajuda");
    return ChamarUma(AOpcoes.Operacao, AOpcoes.Argumentos, AOpcoes.Json, AAmbiente);
}

int ExecutarOperacoes(const TOpcoesDeOperacoes& AOpcoes, TAmbiente& AAmbiente) {
    ListarOperacoes(AAmbiente.Saida, AOpcoes.Json);
    return stTudoCerto;
}

}  // namespace

void EscreverVersao(TSaida& ASaida) { ASaida.Escrever("ory " + std::string(OryUtils::BuscarVersaoOryUtils()) + "\n"); }

int ExecutarLinhaDeComando(std::span<const std::string> AArgumentos, TAmbiente& AAmbiente) {
    TAplicativo aplicativo("ory",
                           "Confere e formata números de cadastro brasileiros e chama as operações da OryUtils.");
    bool versao = false;
    aplicativo.Opcoes().Marca("--versao,--version", versao, "mostra a versão");
    TComandos comandos(aplicativo, AAmbiente);
    comandos.Incluir("conferir", "confere os números de um arquivo CSV", DescreverConferir, ExecutarConferir);
    comandos.Incluir("documento", "diz o que é um número, se é válido e por quê", DescreverDocumento, MostrarDocumento);
    comandos.Incluir("gerar", "gera números válidos inventados, para testes", DescreverGeracao, GerarNumeros);
    comandos.Incluir("chamar", "chama uma operação da biblioteca", DescreverChamar, ExecutarChamar);
    comandos.Incluir("operacoes", "lista o que chamar pode chamar", DescreverOperacoes, ExecutarOperacoes);
    comandos.Incluir("mensagem", "mostra uma mensagem e responde o que foi escolhido", DescreverMensagem,
                     MostrarMensagem);
    comandos.Incluir("formula", "calcula uma fórmula e mostra a expressão resolvida", DescreverFormula, MostrarFormula);
    comandos.Incluir("extenso", "escreve valores por extenso", DescreverExtenso, MostrarExtenso);
    comandos.Incluir("log", "escreve um log de processo com as linhas da entrada", DescreverLog, EscreverLog);
    comandos.Incluir("versao", "mostra o que arquivos dizem de si, ou compara versões", DescreverVersao, MostrarVersao);
    comandos.Incluir("sistema", "mostra a máquina: nomes, endereços, discos e pastas", DescreverSistema,
                     MostrarSistema);
    comandos.Incluir("processos", "lista os processos da máquina", DescreverProcessos, MostrarProcessos);
    comandos.Incluir("servico", "mostra o estado de um serviço do sistema", DescreverServico, MostrarServico);

    if (!aplicativo.Ler(AArgumentos)) {
        AAmbiente.Saida.Escrever(aplicativo.Ajuda());
        return stTudoCerto;
    }
    if (versao) {
        EscreverVersao(AAmbiente.Saida);
        return stTudoCerto;
    }
    if (const auto status = comandos.Executar()) return *status;
    AAmbiente.Erro.Escrever(aplicativo.Ajuda());
    return stFalha;
}

}  // namespace Ory

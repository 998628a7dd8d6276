#include "log/Log.hpp"

#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/runtime/Utf.hpp"

#include "Cli.hpp"
#include "conferir/Codificacao.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

using namespace OryUtils;

struct TLogDoComando : TOryUtilsArquivoLog {
    using TOryUtilsArquivoLog::SalvarArquivoLog;
    using TOryUtilsArquivoLog::TOryUtilsArquivoLog;
};

TCodificacaoLog LerCodificacao(const std::string& ANome) {
    constexpr std::array<std::string_view, 3> CNomes{"padrao", "utf-8", "windows-1252"};  // ordinals
    const auto achado = std::find(CNomes.begin(), CNomes.end(), ANome);
    if (achado == CNomes.end()) throw EFalha("--codificacao espera padrao, utf-8 ou windows-1252, veio " + ANome);
    return static_cast<TCodificacaoLog>(achado - CNomes.begin());
}

}  // namespace

void DescreverLog(CLI::App& AComando, TPedidoDeLog& APedido) {
    AComando.add_option("ARQUIVO", APedido.Arquivo, "arquivo do log; a extensão passa a ser .log")->required();
    AComando.add_flag("--diario", APedido.Diario, "um arquivo por dia: nome_DD_MM_AAAA.log");
    AComando.add_flag("--somente-texto", APedido.SomenteTexto, "linhas sem data e hora");
    AComando.add_flag("--existente", APedido.Existente, "continua o arquivo que já existe, em vez de começar outro");
    AComando.add_flag("--acrescentar", APedido.Acrescentar,
                      "grava só o que é novo, enquanto ninguém mais mexer no arquivo (para logs longos)");
    AComando.add_option("--codificacao", APedido.Codificacao,
                        "do arquivo: padrao (a do sistema), utf-8 ou windows-1252");
    AComando.add_flag("--eco", APedido.Eco, "repete as linhas na saída padrão");
    AComando.footer(
        "Lê linhas da entrada padrão; o arquivo fica em dia sempre que a entrada faz uma pausa.\n"
        "Saída do programa: 0 gravado, 2 não foi possível ler ou gravar.\n\n"
        "Exemplos:\n"
        "  ./importar.sh 2>&1 | ory log /var/log/importacao --diario --existente --acrescentar\n"
        "  importar.bat | ory log C:\\Logs\\Importacao --eco");
}

int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente) {
    TLogDoComando log(DeUtf8(APedido.Arquivo));
    log.SetTipoPeriodicidade(APedido.Diario ? tplDiario : tplUnico);
    if (log.GetArquivoLog().empty()) throw EFalha("não há nome de arquivo em '" + APedido.Arquivo + "'");
    log.SetFormatoMensagem(APedido.SomenteTexto ? tfmSomenteTexto : tfmComDataHora);
    log.SetUsarArquivoLogExistente(APedido.Existente);
    log.SetModoGravacao(APedido.Acrescentar ? mgAcrescentar : mgReescrever);
    log.SetCodificacao(LerCodificacao(APedido.Codificacao));
    log.IniciarLog();

    std::string linha;
    bool pendente = true;
    const auto terminar_linha = [&] {
        if (!linha.empty() && linha.back() == '\r') linha.pop_back();
        log.Adicionar(Decodificar(linha), clWindowText);
        pendente = true;
        linha.clear();
    };
    std::array<char, 65536> bloco;
    while (true) {
        if (pendente && AAmbiente.Entrada.LerEsperaria()) {
            log.SalvarArquivoLog();
            pendente = false;
        }
        const std::size_t lidos = AAmbiente.Entrada.Ler(bloco);
        if (lidos == 0) break;
        std::string_view resto(bloco.data(), lidos);
        if (APedido.Eco) AAmbiente.Saida.Escrever(resto);
        for (std::size_t fim = 0; (fim = resto.find('\n')) != std::string_view::npos; resto.remove_prefix(fim + 1)) {
            linha += resto.substr(0, fim);
            terminar_linha();
        }
        linha += resto;
    }
    if (!linha.empty()) terminar_linha();
    log.FinalizarLog();
    if (!log.EstahSalvo()) throw EFalha("não foi possível gravar " + ParaUtf8(log.GetArquivoLog()));
    return stTudoCerto;
}

}  // namespace Ory

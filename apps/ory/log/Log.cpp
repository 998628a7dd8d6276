#include "log/Log.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/files/interno/AmbienteDoLog.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"

#include "Opcoes.hpp"
#include "conferir/Codificacao.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

using namespace OryUtils;

/// A log that tells of each run whose file could not be written: one that ends with its day takes its lines with it.
class TLogDoComando : public TOryUtilsArquivoLog {
public:
    TLogDoComando(const std::string& AArquivo, TAmbiente& AAmbiente, TAmbienteDoLog& AMundo)
        : TOryUtilsArquivoLog(DeUtf8(AArquivo), AMundo), FErro(AAmbiente.Erro) {
        SetOnAposFinalizarLog(TEventoAposFinalizarLog::De<&TLogDoComando::AoFinalizar>(*this));
    }
    using TOryUtilsArquivoLog::SalvarArquivoLog;
    bool FaltouAlgum() const noexcept { return FFaltou; }

private:
    void AoFinalizar(TObjeto*, std::u16string_view) {
        if (EstahSalvo()) return;
        FFaltou = true;
        FErro.Escrever("ory: " + DescreverFalhaDoLog(GetArquivoLog()) + "\n");
    }

    TSaida& FErro;
    bool FFaltou = false;
};

TCodificacaoLog LerCodificacao(const std::string& ANome) {
    constexpr std::array<std::string_view, 3> CNomes{"padrao", "utf-8", "windows-1252"};  // ordinals
    const auto achado = std::find(CNomes.begin(), CNomes.end(), ANome);
    if (achado == CNomes.end()) throw EFalha("--codificacao espera padrao, utf-8 ou windows-1252, veio " + ANome);
    return static_cast<TCodificacaoLog>(achado - CNomes.begin());
}

/// Each line of the input becomes one of the log, until the input ends.
void LerLinhas(const TPedidoDeLog& APedido, TAmbiente& AAmbiente, TLogDoComando& ALog) {
    std::string linha;
    bool pendente = true;
    const auto terminar_linha = [&] {
        if (!linha.empty() && linha.back() == '\r') linha.pop_back();
        ALog.Adicionar(Decodificar(linha), clWindowText);
        pendente = true;
        linha.clear();
    };
    bool eco = APedido.Eco;
    const auto ecoar = [&](std::string_view ABytes) {
        try {
            if (eco) AAmbiente.Saida.Escrever(ABytes);
        } catch (const ESaidaFechada&) {
            eco = false;  // nobody listens any more; the log goes on
        }
    };
    std::array<char, 65536> bloco;
    while (true) {
        if (pendente && AAmbiente.Entrada.LerEsperaria()) {
            ALog.SalvarArquivoLog();
            pendente = false;
        }
        const std::size_t lidos = AAmbiente.Entrada.Ler(bloco);
        if (lidos == 0) break;
        std::string_view resto(bloco.data(), lidos);
        ecoar(resto);
        for (std::size_t fim = 0; (fim = resto.find('\n')) != std::string_view::npos; resto.remove_prefix(fim + 1)) {
            linha += resto.substr(0, fim);
            terminar_linha();
        }
        linha += resto;
    }
    if (!linha.empty()) terminar_linha();
}

}  // namespace

std::string DescreverFalhaDoLog(const std::u16string& AArquivo) {
    std::string falha = "não foi possível gravar " + ParaUtf8(AArquivo);
    const std::u16string_view pasta = ExtrairPastaDoArquivo(AArquivo);
    OryUtils::Interno::TFluxo fluxo;
    if (OryUtils::Interno::ExistePasta(AArquivo))
        return falha.append(": ").append(DescreverErro(OryUtils::Interno::efEhPasta));
    if (!pasta.empty() && !OryUtils::Interno::ExistePasta(pasta)) return falha += ": a pasta não pôde ser criada";
    const OryUtils::Interno::TErroFluxo erro = fluxo.AbrirParaAcrescentar(ParaUtf8(AArquivo));
    if (erro == OryUtils::Interno::efNenhum) return falha;  // it may be written to now
    if (erro == OryUtils::Interno::efNaoExiste) return falha += ": o arquivo não pôde ser criado";
    return falha.append(": ").append(DescreverErro(erro));
}

void DescreverLog(TOpcoes AComando, TPedidoDeLog& APedido) {
    AComando.Valor("ARQUIVO", APedido.Arquivo, "arquivo do log; a extensão passa a ser .log").Obrigatoria();
    AComando.Marca("--diario", APedido.Diario, "um arquivo por dia: nome_DD_MM_AAAA.log");
    AComando.Marca("--somente-texto", APedido.SomenteTexto, "linhas sem data e hora");
    AComando.Marca("--existente", APedido.Existente, "continua o arquivo que já existe, em vez de começar outro");
    AComando.Marca("--acrescentar", APedido.Acrescentar,
                   "grava só o que é novo, enquanto ninguém mais mexer no arquivo (para logs longos)");
    AComando.Valor("--codificacao", APedido.Codificacao, "do arquivo: padrao (a do sistema), utf-8 ou windows-1252");
    AComando.Marca("--eco", APedido.Eco, "repete as linhas na saída padrão");
    AComando.Rodape(
        "Lê linhas da entrada padrão; o arquivo fica em dia sempre que a entrada faz uma pausa.\n"
        "Saída do programa: 0 gravado, 2 não foi possível ler ou gravar.\n\n"
        "Exemplos:\n"
        "  ./importar.sh 2>&1 | ory log /var/log/importacao --diario --existente --acrescentar\n"
        "  importar.bat | ory log C:\\Logs\\Importacao --eco");
}

int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente) {
    return EscreverLog(APedido, AAmbiente, BuscarAmbienteDoSistema());
}

int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente, TAmbienteDoLog& AMundo) {
    TLogDoComando log(APedido.Arquivo, AAmbiente, AMundo);
    log.SetTipoPeriodicidade(APedido.Diario ? tplDiario : tplUnico);
    if (log.GetArquivoLog().empty()) throw EFalha("não há nome de arquivo em '" + APedido.Arquivo + "'");
    log.SetFormatoMensagem(APedido.SomenteTexto ? tfmSomenteTexto : tfmComDataHora);
    log.SetUsarArquivoLogExistente(APedido.Existente);
    log.SetModoGravacao(APedido.Acrescentar ? mgAcrescentar : mgReescrever);
    log.SetCodificacao(LerCodificacao(APedido.Codificacao));
    log.IniciarLog();
    try {
        LerLinhas(APedido, AAmbiente, log);
    } catch (const EFalha& erro) {
        log.Adicionar(u"Falha: " + DeUtf8(erro.what()), clWindowText);
        log.FinalizarLog();
        throw;
    }
    log.FinalizarLog();
    return log.FaltouAlgum() ? stFalha : stTudoCerto;
}

}  // namespace Ory

#include "log/Log.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogAmbiente.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"

#include "Fluxos.hpp"
#include "Leitura.hpp"
#include "Opcoes.hpp"
#include "conferir/Codificacao.hpp"

#include <algorithm>
#include <array>
#include <utility>

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

/// An input whose bytes are repeated on an output.
class TEntradaComEco final : public TEntrada {
public:
    TEntradaComEco(TEntrada& AEntrada, TSaida& ASaida) : FEntrada(AEntrada), FSaida(ASaida) {}
    bool LerEsperaria() override { return FEntrada.LerEsperaria(); }
    std::size_t Ler(std::span<char> ADestino) override {
        const std::size_t lidos = FEntrada.Ler(ADestino);
        try {
            if (!FFechada) FSaida.Escrever({ADestino.data(), lidos});
        } catch (const ESaidaFechada&) {
            FFechada = true;  // nobody listens any more; the log goes on
        }
        return lidos;
    }

private:
    TEntrada& FEntrada;
    TSaida& FSaida;
    bool FFechada = false;
};

/// Each line of the input becomes one of the log, until the input ends.
void LerLinhas(TEntrada& AEntrada, TLogDoComando& ALog) {
    TLeitorDeLinhas linhas(AEntrada);
    bool pendente = true;
    linhas.GetBytes().AoEsperar([&] {
        if (std::exchange(pendente, false)) ALog.SalvarArquivoLog();
    });
    while (linhas.Proxima() == TLeitorDeLinhas::leLinha) {
        ALog.Adicionar(Decodificar(linhas.GetLinha()), clWindowText);
        pendente = true;
    }
}

}  // namespace

std::string DescreverFalhaDoLog(const std::u16string& AArquivo) {
    std::string falha = "não foi possível gravar " + ParaUtf8(AArquivo);
    const std::u16string_view pasta = ExtrairPastaDoArquivo(AArquivo);
    OryUtils::Interno::TFluxo fluxo;
    if (OryUtils::Interno::ExistePasta(AArquivo))
        return falha.append(": ").append(DescreverErro(OryUtils::Interno::efEhPasta));
    if (!pasta.empty() && !OryUtils::Interno::ExistePasta(pasta)) return falha += ": a pasta não pôde ser criada";
    OryUtils::Interno::TErroFluxo erro = fluxo.AbrirParaAcrescentar(ParaUtf8(AArquivo));
    // A log that is continued must be read, too.
    if (erro == OryUtils::Interno::efNenhum) erro = fluxo.AbrirArquivoParaLer(AArquivo);
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
                   "o padrão: grava só o que é novo, enquanto ninguém mais mexer");
    AComando.Marca("--reescrever", APedido.Reescrever, "grava o texto inteiro a cada vez");
    AComando.Valor("--codificacao", APedido.Codificacao, "do arquivo: padrao (a do sistema), utf-8 ou windows-1252");
    AComando.Marca("--eco", APedido.Eco, "repete as linhas na saída padrão");
    AComando.Rodape(
        "Lê linhas da entrada padrão; o arquivo fica em dia sempre que a entrada faz uma pausa.\n"
        "Saída do programa: 0 gravado, 2 não foi possível ler ou gravar.\n\n"
        "Exemplos:\n"
        "  ./importar.sh 2>&1 | ory log /var/log/importacao --diario --existente\n"
        "  importar.bat | ory log C:\\Logs\\Importacao --eco");
}

int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente) {
    TAmbienteDoLog mundo;
    return EscreverLog(APedido, AAmbiente, mundo);
}

int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente, TAmbienteDoLog& AMundo) {
    TLogDoComando log(APedido.Arquivo, AAmbiente, AMundo);
    log.SetTipoPeriodicidade(APedido.Diario ? tplDiario : tplUnico);
    if (log.GetArquivoLog().empty()) throw EFalha("não há nome de arquivo em '" + APedido.Arquivo + "'");
    OryUtils::Interno::TFluxo fluxo;
    const auto erroDeAbertura = fluxo.AbrirArquivoParaLer(log.GetArquivoLog());
    if (erroDeAbertura == OryUtils::Interno::efNomeComprido)
        throw EFalha("não foi possível gravar " + ParaUtf8(log.GetArquivoLog()) + ": " +
                     std::string(DescreverErro(erroDeAbertura)));
    // A pipe would keep the log waiting for a reader, or lose what was said before there was one.
    if (erroDeAbertura == OryUtils::Interno::efOutro && !OryUtils::Interno::ExistePasta(log.GetArquivoLog()))
        throw EFalha("não é um arquivo: " + ParaUtf8(log.GetArquivoLog()));
    log.SetFormatoMensagem(APedido.SomenteTexto ? tfmSomenteTexto : tfmComDataHora);
    log.SetUsarArquivoLogExistente(APedido.Existente);
    if (APedido.Reescrever && APedido.Acrescentar) throw EFalha("só um de --acrescentar e --reescrever");
    log.SetModoGravacao(APedido.Reescrever ? mgReescrever : mgAcrescentar);
    log.SetCodificacao(LerCodificacao(APedido.Codificacao));
    log.IniciarLog();
    try {
        TEntradaComEco comEco(AAmbiente.Entrada, AAmbiente.Saida);
        LerLinhas(APedido.Eco ? comEco : AAmbiente.Entrada, log);
    } catch (const EFalha& erro) {
        log.Adicionar(u"Falha: " + DeUtf8(erro.what()), clWindowText);
        log.FinalizarLog();
        throw;
    }
    log.FinalizarLog();
    return log.FaltouAlgum() ? stFalha : stTudoCerto;
}

}  // namespace Ory

#include "conferir/Conferir.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/platform/Arquivos.hpp"

#include "conferir/Progresso.hpp"
#include "conferir/Relatorio.hpp"
#include "log/Log.hpp"

#include <exception>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

namespace Ory {
namespace {

using namespace OryUtils::Interno;

constexpr int CLarguraDoLog = 100;

/// The file at the end of the links that start with ANome.
std::string SeguirAtalhos(const std::string& ANome) {
    std::filesystem::path caminho(std::u8string(ANome.begin(), ANome.end()));
    std::error_code erro;
    for (int i = 0; i < 40 && std::filesystem::is_symlink(caminho, erro); ++i)
        caminho = caminho.parent_path() / std::filesystem::read_symlink(caminho, erro);
    const std::u8string nome = caminho.u8string();
    return {nome.begin(), nome.end()};
}

/// The file that takes the place of ANome when it is finished, and goes when it is not. A device or a pipe of that name
/// is written to as it stands; a link stays, and the file that it leads to is replaced.
class TArquivoNovo {
public:
    explicit TArquivoNovo(const std::string& ANome) : FNome(SeguirAtalhos(ANome)) {
        constexpr int CTentativas = 100;
        TFluxo fluxo;
        if (fluxo.AbrirParaAcrescentar(FNome) == efNenhum && !fluxo.BuscarTamanho()) {
            FSaida = std::make_unique<TSaidaDeFluxo>(std::move(fluxo), FNome);
            return;
        }
        TErroFluxo erro = efJaExiste;
        for (int i = 0; i < CTentativas && erro == efJaExiste; ++i) {
            FNomeProvisorio = FNome + ".parte" + (i ? std::to_string(i) : "");
            erro = fluxo.CriarNovo(FNomeProvisorio, FNome);
        }
        if (erro != efNenhum)
            throw EFalha("não foi possível criar " + FNome + ": " + std::string(DescreverErro(erro, FNome)));
        FSaida = std::make_unique<TSaidaDeFluxo>(std::move(fluxo), FNome);
    }
    TArquivoNovo(const TArquivoNovo&) = delete;
    TArquivoNovo& operator=(const TArquivoNovo&) = delete;
    ~TArquivoNovo() {
        if (!FSaida) return;
        FSaida.reset();
        if (!FNomeProvisorio.empty()) ExcluirArquivo(FNomeProvisorio);
    }

    TSaida& GetSaida() { return *FSaida; }

    void Concluir() {
        TErroFluxo erro = FSaida->GetFluxo().Fechar();
        if (erro == efNenhum && !FNomeProvisorio.empty()) erro = SubstituirArquivo(FNomeProvisorio, FNome);
        if (erro != efNenhum)
            throw EFalha("não foi possível gravar " + FNome + ": " + std::string(DescreverErro(erro)));
        FSaida.reset();
    }

private:
    std::string FNome;
    std::string FNomeProvisorio{};            // empty for what is no file
    std::unique_ptr<TSaidaDeFluxo> FSaida{};  // none when there is nothing to undo
};

/// The process log of a run; does nothing when none was asked for.
class TLogDaConferencia {
public:
    explicit TLogDaConferencia(const std::string& AArquivo) {
        if (AArquivo.empty()) return;
        FLog.emplace(OryUtils::DeUtf8(AArquivo));
        if (FLog->GetArquivoLog().empty()) throw EFalha("não há nome de arquivo em '" + AArquivo + "'");
    }

    void Adicionar(std::string_view ATexto) {
        if (!FLog) return;
        while (true) {
            const std::size_t quebra = ATexto.find('\n');
            FLog->Adicionar(OryUtils::DeUtf8(ATexto.substr(0, quebra)), OryUtils::clWindowText);
            if (quebra == std::string_view::npos) return;
            ATexto.remove_prefix(quebra + 1);
        }
    }
    /// The footer and the file; false when it could not be written.
    bool Finalizar() {
        if (FLog) FLog->FinalizarLog();
        return !FLog || FLog->EstahSalvo();
    }
    const std::u16string& GetArquivo() const { return FLog->GetArquivoLog(); }

private:
    std::optional<OryUtils::TOryUtilsArquivoLog> FLog{};
};

TStatus ConferirComLog(const TPedidoDeConferencia& APedido, TAmbiente& AAmbiente, TLogDaConferencia& ALog) {
    const bool entradaPadrao = APedido.Arquivo.empty() || APedido.Arquivo == "-";
    if (APedido.Arquivo.empty() && AAmbiente.EntradaEhTerminal)
        throw EFalha("falta o arquivo (ou \"-\" para a entrada padrão); veja ory conferir --ajuda");

    std::unique_ptr<TEntradaDeFluxo> arquivo;
    std::optional<std::uint64_t> tamanho;
    if (!entradaPadrao) {
        TFluxo fluxo;
        const TErroFluxo erro = fluxo.AbrirParaLer(APedido.Arquivo);
        if (erro != efNenhum)
            throw EFalha("não foi possível ler " + APedido.Arquivo + ": " +
                         std::string(DescreverErro(erro, APedido.Arquivo)));
        tamanho = fluxo.BuscarTamanho();
        arquivo = std::make_unique<TEntradaDeFluxo>(std::move(fluxo), APedido.Arquivo);
    }
    TEntrada& entrada = arquivo ? *arquivo : AAmbiente.Entrada;

    TOpcoesDeConferencia opcoes = APedido.Opcoes;
    TProgresso progresso(AAmbiente.Erro, tamanho);
    if (AAmbiente.ErroEhTerminal) opcoes.AoProgredir = [&](std::uint64_t ABytes) { progresso.Mostrar(ABytes); };

    if (APedido.Vereditos) {
        if (AAmbiente.Cores) opcoes.AoProgredir = nullptr;  // the verdicts themselves move on the terminal
        const TResumoDeVereditos resumo = EscreverVereditos(entrada, AAmbiente.Saida, *APedido.Vereditos, opcoes);
        progresso.Apagar();
        ALog.Adicionar(EscreverQuantidade(resumo.Validos) + " válidos, " + EscreverQuantidade(resumo.Outros) +
                       " inválidos ou vazios");
        return resumo.Outros ? stInvalido : stTudoCerto;
    }

    const bool saidaPadrao = APedido.Saida == "-";
    std::optional<TArquivoNovo> saida;
    if (!APedido.Saida.empty() && !saidaPadrao) saida.emplace(APedido.Saida);
    TSaida* const destino = saidaPadrao ? &AAmbiente.Saida : saida ? &saida->GetSaida() : nullptr;
    const TResumo resumo = ConferirCsv(entrada, destino, opcoes);
    progresso.Apagar();
    arquivo.reset();  // the output may be about to take its name
    if (saida) saida->Concluir();

    const std::string nome = entradaPadrao ? "entrada padrão" : APedido.Arquivo;
    if (!APedido.Log.empty()) ALog.Adicionar(EscreverRelatorio(resumo, nome, CLarguraDoLog, false));
    const bool cores = AAmbiente.Cores && !APedido.SemCores && !saidaPadrao;
    TSaida& relatorio = saidaPadrao ? AAmbiente.Erro : AAmbiente.Saida;
    relatorio.Escrever(APedido.Json ? EscreverRelatorioJson(resumo, nome)
                                    : EscreverRelatorio(resumo, nome, AAmbiente.Largura, cores));
    if (resumo.EstahVazio()) return stFalha;
    return resumo.EstahTudoValido() ? stTudoCerto : stInvalido;
}

}  // namespace

TStatus Conferir(const TPedidoDeConferencia& APedido, TAmbiente& AAmbiente) {
    TLogDaConferencia log(APedido.Log);
    TStatus status = stFalha;
    try {
        log.Adicionar("Conferência de " + (APedido.Arquivo.empty() ? "entrada padrão" : APedido.Arquivo));
        status = ConferirComLog(APedido, AAmbiente, log);
    } catch (const std::exception& erro) {
        log.Adicionar("Falha: " + std::string(erro.what()));
        log.Finalizar();
        throw;
    }
    if (!log.Finalizar()) throw EFalha(DescreverFalhaDoLog(log.GetArquivo()));
    return status;
}

}  // namespace Ory

#include "oryutils/files/UnOryUtilsArquivoLog.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogAmbiente.hpp"
#include "oryutils/files/interno/CargaDoLog.hpp"
#include "oryutils/files/interno/GravadorDoLog.hpp"
#include "oryutils/files/interno/LinhasDoLog.hpp"
#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/Ligado.hpp"
#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <optional>
#include <utility>

namespace OryUtils {
namespace {

const std::u16string CSeparador(78, u'*');

TAmbienteDoLog& BuscarAmbienteDoSistema() {
    static TAmbienteDoLog ambiente;
    return ambiente;
}

bool EhVazio(std::u16string_view ATexto) { return Aparar(ATexto).empty(); }

}  // namespace

TOryUtilsArquivoLog::TOryUtilsArquivoLog(std::u16string_view AArquivoLog)
    : TOryUtilsArquivoLog(AArquivoLog, BuscarAmbienteDoSistema()) {}

TOryUtilsArquivoLog::TOryUtilsArquivoLog(std::u16string_view AArquivoLog, TAmbienteDoLog& AAmbiente)
    : FAmbiente(AAmbiente),
      FLog(std::make_unique<TLinhasDoLog>()),
      FGravador(std::make_unique<TGravadorDoLog>()),
      FDataControleLog(BuscarParteData(AAmbiente.BuscarAgora())),
      FFormatos(FormatSettings()) {
    SetArquivoLog(AArquivoLog);
}

TOryUtilsArquivoLog::~TOryUtilsArquivoLog() = default;

void TOryUtilsArquivoLog::IniciarLog() {
    if (FLogIniciado) return;
    FLogIniciado = true;
    if (FUsarArquivoLogExistente)
        CarregarArquivo();
    else
        Limpar();
    AdicionarMensagem(u"Início do processo", clBlue);
    AdicionarMensagem(u"Aplicação executora: " + FAmbiente.BuscarAplicacao(), clBlue);
    AdicionarMensagem(u"Versão: " + FAmbiente.BuscarVersao(), clBlue);
    AdicionarMensagem(u"IP: " + FAmbiente.BuscarIP(), clBlue);
    AdicionarMensagem(u"Nome da máquina: " + FAmbiente.BuscarNomeDaMaquina(), clBlue);
    AdicionarSeparador();
}

void TOryUtilsArquivoLog::Adicionar(std::u16string_view AMensagem, TColor ACor) {
    TDateTime agora = ConferirData();
    if (!FLogIniciado) {
        IniciarLog();
        agora = FAmbiente.BuscarAgora();
    }
    AdicionarMensagem(AMensagem, ACor, agora);
}

void TOryUtilsArquivoLog::AdicionarSeparador() { Adicionar(CSeparador, clWindowText); }

void TOryUtilsArquivoLog::AdicionarEspacoEmBranco(int AQuantidade) {
    for (int i = 0; i < AQuantidade; ++i) FLog->Adicionar({});
}

void TOryUtilsArquivoLog::InserirTexto(std::u16string_view ATexto, int AIndice, TColor /*ACor*/) {
    if (EhVazio(ATexto)) return;
    std::u16string texto(ATexto);
    IniciarLog();
    if (AIndice < 0 || static_cast<std::size_t>(AIndice) > FLog->GetQuantidade())
        throw EListError(u"Índice fora dos limites da lista (" + InteiroParaTexto(AIndice) + u")");
    FLog->Inserir(static_cast<std::size_t>(AIndice), texto);
}

void TOryUtilsArquivoLog::FinalizarLog() {
    AdicionarMensagem(CSeparador, clWindowText);
    AdicionarMensagem(u"Fim do processo", clBlue);
    AdicionarMensagem({}, clWindowText);
    FGravador->Soltar();  // the last save looks at the file
    SalvarArquivoLog();
    if (!FGravador->Soltar()) FSalvo = false;
    if (FTipoPeriodicidade == tplDiario) AtualizarDataModificacaoLogFechamento(FDataControleLog);
    const std::u16string pasta(ExtrairPastaDoArquivo(FArquivoLog));  // the event may change the name
    FOnAposFinalizarLog(this, pasta);
    FLogIniciado = false;
}

void TOryUtilsArquivoLog::Limpar() {
    FLog->Limpar();
    FPorCarregar = false;  // the lines of the file would have gone with the others
}

void TOryUtilsArquivoLog::ExibirLog() {
    if (Interno::ExisteArquivo(FArquivoLog))
        TOryUtilsFiles::AbrirArquivo(FArquivoLog);
    else
        CosturaInterface().Alerta(PreencherModelo(u"Arquivo %s não encontrado.", {FArquivoLog}));
}

void TOryUtilsArquivoLog::SetArquivoLog(std::u16string_view AValor) {
    if (EhVazio(FNomeArquivoLogSemFormatacao)) FNomeArquivoLogSemFormatacao = ExtrairNomeDoArquivo(AValor);
    FArquivoLog = FormatarNomeArquivoLog(AValor);
}

std::u16string TOryUtilsArquivoLog::GetTexto() const { return FLog->GetTexto(); }

void TOryUtilsArquivoLog::SetTipoPeriodicidade(TTipoPeriodicidadeLog AValor) {
    FTipoPeriodicidade = AValor;
    SetArquivoLog(FArquivoLog);
}

TCodificacaoLog TOryUtilsArquivoLog::GetCodificacao() const noexcept { return FLog->GetCodificacao(); }

void TOryUtilsArquivoLog::SetCodificacao(TCodificacaoLog AValor) { FLog->SetCodificacao(AValor); }

std::u16string TOryUtilsArquivoLog::FormatarNomeArquivoLog(std::u16string_view ANomeDado, std::u16string_view AValor,
                                                           TTipoPeriodicidadeLog ATipoPeriodicidade, TDateTime AData) {
    const std::u16string nome =
        TOryUtilsFiles::ExtrairNomeDoArquivoSemExtensao(EhVazio(ANomeDado) ? AValor : ANomeDado);
    if (EhVazio(nome)) return {};
    std::u16string resultado(ExtrairPastaDoArquivo(AValor));
    if (resultado.ends_with(u':')) resultado += u'\\';  // a drive without a delimiter
    resultado += nome;
    if (ATipoPeriodicidade == tplDiario) resultado += FormatarDataHora(u"'_'dd'_'mm'_'yyyy", AData);
    return resultado += u".log";
}

std::u16string TOryUtilsArquivoLog::FormatarNomeArquivoLog(std::u16string_view ANome) const {
    return FormatarNomeArquivoLog(FNomeArquivoLogSemFormatacao, ANome, FTipoPeriodicidade, FDataControleLog);
}

void TOryUtilsArquivoLog::AdicionarMensagem(std::u16string_view AMensagem, TColor ACor) {
    AdicionarMensagem(AMensagem, ACor, FAmbiente.BuscarAgora());
}

void TOryUtilsArquivoLog::AdicionarMensagem(std::u16string_view AMensagem, TColor ACor, TDateTime AAgora) {
    constexpr std::size_t CMaiorGuardado = 4096;
    // One piece of memory serves line after line; what is called below may log too, and then takes another.
    std::u16string linha = std::move(FLinha);
    linha.clear();
    if (FFormatoMensagem == tfmComDataHora && !EhVazio(AMensagem)) linha = BuscarCarimbo(AAgora);
    linha += AMensagem;
    FLog->Adicionar(linha);
    CosturaInterface().ProcessarMensagens();
    ValidarEventoOnStatus(linha, ACor);
    if (FSalvarAutomaticamente) SalvarArquivoLog();
    if (linha.capacity() <= CMaiorGuardado) FLinha = std::move(linha);
}

void TOryUtilsArquivoLog::AtualizarArquivoLog() { ConferirData(); }

// The instant that was compared, which is the message's too.
TDateTime TOryUtilsArquivoLog::ConferirData() {
    const TDateTime agora = FAmbiente.BuscarAgora();
    // The footer lets messages be processed, and what they log still belongs to the day that ends.
    if (FMudandoDeDia) return agora;
    const TDateTime hoje = BuscarParteData(agora);
    if (hoje == FDataControleLog) return agora;
    const Interno::TLigado mudando(FMudandoDeDia);
    FinalizarLog();
    FLogIniciado = false;
    FDataControleLog = hoje;
    SetArquivoLog(FArquivoLog);
    Limpar();
    return agora;
}

void TOryUtilsArquivoLog::CarregarArquivo() {
    if (EhVazio(FArquivoLog)) return;
    Interno::TFluxo fluxo;
    const TLogExistente existente = AbrirLogExistente(fluxo, FArquivoLog);
    if (existente == leSemArquivo) {
        FPorCarregar = false;
        return;
    }
    // Lines that wait for those of the file are of its runs, and stay behind them; others give way.
    if (!std::exchange(FPorCarregar, true)) FLog->Limpar();
    if (existente == leIlegivel) return;
    if (auto linhas = LerLogExistente(fluxo, GetCodificacao())) {
        FLog->ColocarAntes(std::move(*linhas));
        FPorCarregar = false;
    }
}

void TOryUtilsArquivoLog::SalvarArquivoLog() {
    if (EhVazio(FArquivoLog)) return;
    const auto buscarTexto = [&]() -> std::optional<TTextoPronto> {
        if (FPorCarregar) CarregarArquivo();
        if (FPorCarregar) return {};
        return FLog->BuscarTextoPronto();
    };
    FSalvo = FGravador->Gravar(FArquivoLog, buscarTexto, FModoGravacao, FAmbiente);
}

void TOryUtilsArquivoLog::ValidarEventoOnStatus(std::u16string_view AStatus, TColor ACor) {
    FOnStatus(this, AStatus, ACor);
}

void TOryUtilsArquivoLog::AtualizarDataModificacaoLogFechamento(TDateTime AData) {
    if (EhVazio(FArquivoLog)) return;
    TOryUtilsFiles::AlterouDataHoraArquivo(FArquivoLog, AData);
}

// Lines come in bursts; those of one instant share the text.
const std::u16string& TOryUtilsArquivoLog::BuscarCarimbo(TDateTime AAgora) {
    if (FCarimbo.empty() || AAgora != FInstanteDoCarimbo)
        FCarimbo = FormatarDataHora(u"'['ddddd tt']: '", AAgora, FFormatos);
    FInstanteDoCarimbo = AAgora;
    return FCarimbo;
}

}  // namespace OryUtils

#include "oryutils/forms/console/ToolkitConsole.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/forms/console/DialogoConsole.hpp"
#include "oryutils/forms/console/ExibicaoConsole.hpp"
#include "oryutils/forms/console/SeletorConsole.hpp"
#include "oryutils/forms/console/TextoDoTerminal.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr TTamanho CCelula{6, 13};

}  // namespace

int TToolkitConsole::ExecutarModal(TFormulario& AFormulario) {
    return TDialogoConsole(AFormulario, FConversa,
                           [this] {
                               DispararTemporizadores();
                               return BuscarEspera();
                           })
        .Executar();
}

std::shared_ptr<void> TToolkitConsole::Exibir(TFormulario& AFormulario) {
    const auto exibicao = std::make_shared<TExibicaoConsole>(AFormulario, FConversa);
    FExibicoes.push_back(exibicao);
    return exibicao;
}

void TToolkitConsole::ProcessarMensagens() {
    DispararTemporizadores();
    std::erase_if(FExibicoes, [](const auto& e) { return e.expired(); });
    for (const auto& exibicao : FExibicoes)
        if (const auto viva = exibicao.lock()) viva->Atualizar();
}

// Words are moved to the next line whole; one longer than a line stays alone on its own.
TTamanho TToolkitConsole::MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const {
    if (ATexto.empty()) return {};
    const int colunas = ALarguraMaxima > 0 ? std::max(1, ALarguraMaxima / CCelula.Largura) : 0;
    int linhas = 1;
    int coluna = 0;
    int maior = 0;
    int palavra = 0;
    for (const char16_t c : ATexto) {
        if (c == u'\r') continue;
        if (c == u'\n' || c == u' ') {  // only a finished word is sure of its line
            maior = std::max(maior, palavra > 0 ? coluna : 0);
            linhas += c == u'\n';
            coluna = c == u'\n' ? 0 : coluna + 1;
            palavra = 0;
            continue;
        }
        ++palavra;
        ++coluna;
        if (colunas > 0 && coluna > colunas && coluna > palavra) {
            ++linhas;
            maior = std::max(maior, coluna - palavra - 1);
            coluna = palavra;
        }
    }
    if (palavra > 0) maior = std::max(maior, coluna);
    return {maior * CCelula.Largura, linhas * CCelula.Altura};
}

std::uintptr_t TToolkitConsole::LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) {
    const std::chrono::milliseconds intervalo(std::max(1, AMilissegundos));
    const auto proximo = FConversa.GetInstante() + intervalo;
    const std::lock_guard trava(FTrava);
    FTemporizadores.push_back(
        {++FUltimoTemporizador, std::this_thread::get_id(), intervalo, proximo, std::move(AAcao)});
    return FUltimoTemporizador;
}

void TToolkitConsole::DesligarTemporizador(std::uintptr_t ATemporizador) {
    const std::lock_guard trava(FTrava);
    std::erase_if(FTemporizadores, [&](const TTemporizador& t) { return t.Numero == ATemporizador; });
}

// Each timer of this thread that is due, once. An action may switch timers on and off, so the list is read afresh.
void TToolkitConsole::DispararTemporizadores() {
    const auto agora = FConversa.GetInstante();
    while (true) {
        std::function<void()> acao;
        {
            const std::lock_guard trava(FTrava);
            const auto vencido = std::find_if(FTemporizadores.begin(), FTemporizadores.end(), [&](const auto& t) {
                return t.Thread == std::this_thread::get_id() && t.Proximo <= agora;
            });
            if (vencido == FTemporizadores.end()) return;
            vencido->Proximo = agora + vencido->Intervalo;
            acao = vencido->Acao;
        }
        try {
            acao();
        } catch (const EAbort&) {
            // EAbort ends the handler and nothing else.
        }
    }
}

// Until the next timer of this thread.
std::optional<std::chrono::milliseconds> TToolkitConsole::BuscarEspera() {
    const auto agora = FConversa.GetInstante();
    std::optional<std::chrono::milliseconds> espera;
    const std::lock_guard trava(FTrava);
    for (const TTemporizador& t : FTemporizadores) {
        if (t.Thread != std::this_thread::get_id()) continue;
        const auto resta = std::max(std::chrono::milliseconds(0), t.Proximo - agora);
        if (!espera || resta < *espera) espera = resta;
    }
    return espera;
}

// A line of the user without the blanks around it; none at the end of the input.
std::optional<std::u16string> TToolkitConsole::Perguntar(std::u16string_view APergunta) {
    FConversa.Escrever(Interno::ParaTerminal(APergunta, FConversa.GetColunas()));
    std::u16string linha;
    auto lida = Interno::llTempo;
    while (lida == Interno::llTempo) {
        DispararTemporizadores();
        lida = FConversa.LerLinha(BuscarEspera(), linha);
    }
    return lida == Interno::llFim ? std::nullopt : std::optional(std::u16string(Aparar(linha)));
}

std::vector<std::u16string> TToolkitConsole::EscolherCaminhos(const TPedidoDeCaminho& APedido) {
    if (!FConversa.PodeConversar()) return {};
    return Interno::PerguntarCaminhos(APedido, [this](std::u16string_view APergunta) { return Perguntar(APergunta); });
}

void TToolkitConsole::Bipar() {
    if (FConversa.PodeConversar()) FConversa.Escrever(u"\a");
}

void TToolkitConsole::CopiarParaAreaDeTransferencia(std::u16string_view) {
    throw Exception(u"O console não possui área de transferência.");
}

}  // namespace OryUtils

#pragma once

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/forms/console/Conversa.hpp"

#include <chrono>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace OryUtils {

class TExibicaoConsole;

/// Forms as text, for batches and remote shells: a message is "Aviso: CNPJ inválido. Verifique." on stderr.
///
/// A form whose only question is one button (information, warning, error) is printed and answered at once. Any other
/// one asks when stdin and stderr are terminals: options by their number, check boxes by "s" or "n", edits by a line,
/// that of a password unseen, memos by lines up to one with a point alone, lists by numbers, texts or parts of texts,
/// the buttons by caption, accents and case aside, or by the letter marked in it; an empty line keeps what stands, or
/// presses the button that has the focus, which the question names; "" empties an edit. Lines break between words at
/// the width of the terminal, and no text commands it. What is not understood is asked again; end of input cancels.
/// Without a terminal the answer is mrCancel.
///
/// Every thread may show forms. Timers tick while a question waits and in ProcessarMensagens, for the thread that set
/// them. There is no clipboard: copying raises Exception.
class ORY_API TToolkitConsole final : public TToolkit {
public:
    explicit TToolkitConsole(TConversa& AConversa = BuscarConversaDoSistema()) : FConversa(AConversa) {}

    const char* GetNome() const noexcept override { return "console"; }
    bool EhThreadDaInterface() const override { return true; }
    int ExecutarModal(TFormulario& AFormulario) override;
    void ProcessarMensagens() override;
    /// As TExibicaoConsole: for forms with a TProgresso.
    std::shared_ptr<void> Exibir(TFormulario& AFormulario) override;
    bool PodePerguntar() const override { return FConversa.PodeConversar(); }
    /// In cells of a fixed font, 6 by 13.
    TTamanho MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const override;
    int GetTamanhoFonte() const override { return 8; }
    int GetPixelsPorPolegada() const override { return 96; }
    TRetangulo GetAreaDeTrabalho() const override { return {0, 0, 1024, 768}; }
    std::uintptr_t LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) override;
    void DesligarTemporizador(std::uintptr_t ATemporizador) override;
    /// Asks for paths on the terminal; a relative one starts at the initial folder. An empty line cancels, or ends the
    /// list of several files, or takes the name that is suggested for a file to write ("" cancels then). Whether a
    /// file that exists is replaced is asked.
    std::vector<std::u16string> EscolherCaminhos(const TPedidoDeCaminho& APedido) override;
    void SetCursor(TCursorTela) override {}
    bool EstahPressionada(std::uint16_t) const override { return false; }
    void Bipar() override;
    void CopiarParaAreaDeTransferencia(std::u16string_view ATexto) override;

private:
    struct TTemporizador {
        std::uintptr_t Numero;
        std::thread::id Thread;
        std::chrono::milliseconds Intervalo;
        std::chrono::milliseconds Proximo;
        std::function<void()> Acao;
    };

    void DispararTemporizadores();
    std::optional<std::chrono::milliseconds> BuscarEspera();
    std::optional<std::u16string> Perguntar(std::u16string_view APergunta);

    TConversa& FConversa;
    std::mutex FTrava;
    std::vector<TTemporizador> FTemporizadores;
    std::uintptr_t FUltimoTemporizador = 0;
    std::vector<std::weak_ptr<TExibicaoConsole>> FExibicoes;  // also under FTrava
};

}  // namespace OryUtils

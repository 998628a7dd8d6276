#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/console/Conversa.hpp"

#include <functional>

namespace OryUtils {

/// One form as a conversation, from its first line to its modal result.
class TDialogoConsole final : private TJanela {
public:
    /// Lets the timers tick and tells how long to wait for the next one.
    using TEspera = std::function<std::optional<std::chrono::milliseconds>()>;

    TDialogoConsole(TFormulario& AFormulario, TConversa& AConversa, TEspera AEspera);
    ~TDialogoConsole() override;

    int Executar();

private:
    void Mudou(TControleFormulario& AControle, TMudanca AMudanca) override;
    void MudouFormulario(TMudanca) override {}
    void ResultadoMudou() override {}

    void Escrever(std::u16string_view ATexto);
    void Imprimir();
    void ImprimirControle(const TControleFormulario& AControle);
    void PerguntarControles();
    void PerguntarControle(TControleFormulario& AControle);
    void PerguntarOpcao(TGrupoOpcoes& AGrupo);
    void PerguntarChecagem(TCaixaChecagem& ACaixa);
    void PerguntarTexto(TCaixaEdicao& ACaixa);
    void PerguntarItens(TListaEscolha& ALista);
    void PerguntarLinhas(TMemorando& AMemorando);
    void PerguntarBotao(const std::vector<TBotao*>& ABotoes);
    /// A line of the user; none when the form has meanwhile been closed. End of input closes it.
    enum TLinhaLida { lsAparada, lsComBrancos, lsSenha };
    std::optional<std::u16string> Ler(std::u16string_view APergunta, TLinhaLida AComo = lsAparada);

    TFormulario& FFormulario;
    TConversa& FConversa;
    TEspera FEspera;
    std::vector<const TControleFormulario*> FReaparecidos;
    TControleFormulario* FFocado = nullptr;  // by what the last button did
};

}  // namespace OryUtils

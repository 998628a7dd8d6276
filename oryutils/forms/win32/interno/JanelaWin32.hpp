#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/win32/interno/ControleNativo.hpp"
#include "oryutils/forms/win32/interno/Telas.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <exception>
#include <memory>
#include <vector>

namespace OryUtils::Interno {

class TLacoDeMensagens;

/// What a host's handler raises must not cross the system's code: EAbort ends the handler and nothing else, any other
/// is kept in ADestino (the first one) for the loop to raise. Returns whether the handler came to its end.
template <typename TAcao>
bool Proteger(std::exception_ptr& ADestino, TAcao&& AAcao) noexcept {
    try {
        AAcao();
        return true;
    } catch (const EAbort&) {
    } catch (...) {
        if (!ADestino) ADestino = std::current_exception();
    }
    return false;
}

/// A form shown: its window and controls, and its modal run.
class TJanelaWin32 final : public TJanela {
public:
    /// Creates the window, not shown yet.
    TJanelaWin32(TFormulario& AFormulario, TLacoDeMensagens& ALaco, TTelas& ATelas);
    ~TJanelaWin32() override;

    /// Shows the window and runs until the form has a result; raises what a handler raised.
    int Executar();

    // For a form without a loop of its own; Executar does all of it.
    void Mostrar();
    void Fechar() { FFormulario.Fechar(); }
    void RelancarErro();
    void Destruir();

    HWND GetHandle() const noexcept { return FJanela; }
    /// A key on its way to a control of this form: true when it goes no further.
    bool TratarTecla(const MSG& AMensagem);
    /// Somebody clicked or typed on this form.
    void AvisarIntervencao() noexcept;
    /// Tells the model of a focus that has moved. False when the box that it left refused.
    bool AcompanharFoco();

    void Mudou(TControleFormulario& AControle, TMudanca AMudanca) override;
    void MudouFormulario(TMudanca AMudanca) override;
    void ResultadoMudou() override;

private:
    static LRESULT CALLBACK Procedimento(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL);
    static const wchar_t* BuscarClasse();
    LRESULT Tratar(UINT AMensagem, WPARAM AW, LPARAM AL);
    void AoComandar(WORD ANotificacao, HWND AControle);
    void AoClicar(TControleNativo& AControle);

    void Criar(HWND ADona);
    void Realizar(TControleFormulario& AControle);
    void Posicionar(HWND ADona);
    void ConferirTela();
    void OrdenarTabulacao();
    void LerTudo();
    /// Tells of another choice in a list.
    void LerEscolha(TControleNativo& AControle);
    void Focar(TControleNativo* AControle);
    void AtualizarPadrao();
    TControleNativo* BuscarNativo(HWND AJanela) const noexcept;
    TControleNativo* BuscarNativo(const TControleFormulario* AModelo) const noexcept;

    TFormulario& FFormulario;
    TLacoDeMensagens& FLaco;
    TTelas& FTelas;
    TTelaWin32 FTela;
    HWND FJanela = nullptr;
    std::vector<std::unique_ptr<TControleNativo>> FNativos;
    TControleFormulario* FFocado = nullptr;
    std::exception_ptr FExcecao;
    bool FAtualizando = false;
    bool FSaindo = false;
};

}  // namespace OryUtils::Interno

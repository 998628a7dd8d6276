#pragma once

#include "oryutils/forms/Controles.hpp"
#include "oryutils/runtime/Componente.hpp"

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// A change of a class or of an enumeration in this header counts CVersaoDoModelo up: see forms/interno/FabricaQt.hpp.
namespace OryUtils {

/// Border of a form: a dialog of fixed size, or one that the user may resize.
enum TEstiloBorda : int { ebDialogo, ebRedimensionavel };

enum TPosicaoFormulario : int { pfDesenhada, pfCentroDaTela };

/// A key pressed on a form, before the focused control sees it.
struct TTecla {
    std::uint16_t Codigo = 0;  ///< virtual-key code as on Windows (Esc 27, Enter 13, C 67)
    bool Shift = false;
    bool Ctrl = false;
    bool Alt = false;
    bool ComSelecao = false;  ///< text is selected, which Ctrl+C would copy
    bool Tratada = false;     ///< out: true keeps the key from the focused control
};

/// The native window of a shown form, implemented by a toolkit.
class TJanela {
public:
    virtual ~TJanela() = default;
    virtual void Mudou(TControleFormulario& AControle, TMudanca AMudanca) = 0;
    virtual void MudouFormulario(TMudanca AMudanca) = 0;
    /// Wakes the modal loop up: the form's modal result may have changed.
    virtual void ResultadoMudou() = 0;
};

/// A dialog as a model: controls with positions in pixels, computed by portable code. A toolkit realises it natively,
/// runs it, and writes back what the user did. A component: it may own others, which go with it. Belongs to the thread
/// of the user interface.
/// Example:
///   TFormulario formulario;
///   auto& botao = formulario.Adicionar<TBotao>();
///   botao.SetTexto(u"O&K");
///   botao.SetModalResult(mrOk);
///   if (formulario.ExecutarModal() == mrOk) ...
class ORY_API TFormulario : public TComponente {
public:
    TFormulario();
    ~TFormulario() override;
    TFormulario(const TFormulario&) = delete;
    TFormulario& operator=(const TFormulario&) = delete;

    /// Adds a control; also while the form is shown.
    template <std::derived_from<TControleFormulario> T>
    T& Adicionar() {
        auto controle = std::make_unique<T>(*this);
        T& referencia = *controle;
        Incorporar(std::move(controle));
        return referencia;
    }
    /// In creation order.
    const std::vector<std::unique_ptr<TControleFormulario>>& GetControles() const noexcept { return FControles; }
    /// The first control of that name; null when there is none.
    TControleFormulario* BuscarControle(std::u16string_view ANome) const noexcept;
    /// Moves AControle to the place before ASeguinte: it is realised, tabbed to and read in that order.
    void ColocarAntes(const TControleFormulario& AControle, const TControleFormulario& ASeguinte);
    /// The buttons in creation order.
    std::vector<TBotao*> GetBotoes() const;

    const std::u16string& GetTitulo() const noexcept { return FTitulo; }
    void SetTitulo(std::u16string_view ATitulo);
    /// Size of the client area, in pixels.
    int GetLarguraCliente() const noexcept { return FCliente.Largura; }
    int GetAlturaCliente() const noexcept { return FCliente.Altura; }
    void SetTamanhoCliente(int ALargura, int AAltura);
    /// Left and top of the window for pfDesenhada, screen pixels.
    const TRetangulo& GetPosicao() const noexcept { return FPosicaoNaTela; }
    void SetPosicao(int ALeft, int ATop);

    TEstiloBorda EstiloBorda = ebDialogo;
    TPosicaoFormulario Posicao = pfCentroDaTela;
    int ContextoAjuda = 0;

    /// Has the focus when the form is shown; while it is shown, has it now. Null: the first that can take it.
    TControleFormulario* GetControleAtivo() const noexcept { return FControleAtivo; }
    void SetControleAtivo(TControleFormulario* AControle);
    void AceitarControleAtivo(TControleFormulario* AControle) { FControleAtivo = AControle; }

    /// Fired when the form has just been shown.
    TEvento<TObjeto*> OnShow;
    /// Fired for each key before the focused control.
    TEvento<TObjeto*, TTecla&> OnKeyDown;
    /// Fired after the user resized the window; the client size is the new one.
    TEvento<TObjeto*> OnResize;
    /// The user asks for help, by F1 or by a help button: the form and its ContextoAjuda.
    TEvento<TObjeto*, int> OnAjuda;
    void PedirAjuda() { OnAjuda(this, ContextoAjuda); }

    int GetModalResult() const noexcept { return FModalResult; }
    /// Other than mrNone ends the modal run.
    void SetModalResult(int AResultado);
    /// Ends a modal run with mrCancel unless a result stands already. Does nothing when not shown.
    void Fechar();

    /// Shows the form by the toolkit in use until a modal result is set, and returns it. Modal runs nest. Raises
    /// Exception when called from a thread that does not own the user interface.
    int ExecutarModal();

    /// The native window while shown, else null. Toolkits set it.
    TJanela* GetJanela() const noexcept { return FJanela; }
    void SetJanela(TJanela* AJanela) noexcept { FJanela = AJanela; }

    // What the toolkits tell of the user, the same for all of them.

    /// A key before the focused control: AoIntervir, OnKeyDown, then F1 by OnAjuda, Enter and Esc by the default and
    /// cancel buttons. Returns true when the key is spent. Enter in a memo or on a focused button is left to the
    /// control.
    bool TratarTecla(TTecla& ATecla);
    void AoRedimensionar(int ALargura, int AAltura);
    /// Somebody is there: a key was pressed on the form, or a button of the mouse. Called before what it does there.
    virtual void AoIntervir() {}
    /// The form, shown, has come to a screen of other pixels per inch or another work area. Positions and sizes grow or
    /// shrink by AAgora / AAntes; forms that lay themselves out do so again.
    virtual void AoMudarTela(int AAntes, int AAgora);

protected:
    /// Called once after every modal run, however it ended (an exception included); must not raise.
    virtual void AoEncerrar() noexcept {}

private:
    void Incorporar(std::unique_ptr<TControleFormulario> AControle);

    std::vector<std::unique_ptr<TControleFormulario>> FControles;
    std::u16string FTitulo;
    TTamanho FCliente{320, 200};
    TRetangulo FPosicaoNaTela;
    TControleFormulario* FControleAtivo = nullptr;
    TJanela* FJanela = nullptr;
    int FModalResult = mrNone;
};

}  // namespace OryUtils

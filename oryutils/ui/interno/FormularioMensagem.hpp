#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/UnOryUtilsDialogsIOP.hpp"
#include "oryutils/ui/interno/Disposicao.hpp"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace OryUtils {

class TFormularioMensagem;

/// The message forms of one TOryUtilsDialogs.
struct TFormulariosVivos {
    std::vector<TFormularioMensagem*> Formularios;  ///< those that are alive, the innermost last
    bool UltimaPorTempo = false;                    ///< how the modal run that ended last came to its end
};

/// The standard message form with the captions, results and focus of its parameters: icon, label "Message", one button
/// for each kind of the set in kind order. It closes itself when its parameters say so; its timer is on only between
/// showing and the first tick or the end of the modal run. Ctrl+C copies it as text (MontarTextoCopiado), unless some
/// of it is selected.
class TFormularioMensagem : public TFormulario {
public:
    /// AVivos  list in which the form stands while it lives; null for none.
    /// Raises what ValidarPropriedades and ExigirToolkit raise.
    TFormularioMensagem(const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros, const TTextosDialogos& ATextos,
                        std::shared_ptr<TFormulariosVivos> AVivos);
    ~TFormularioMensagem() override;

    const TOryUtilsDialogsFormCustomizadoBaseIOP& GetParametros() const noexcept { return FParametros; }
    bool GetTemporizadorLigado() const noexcept { return FTemporizador != 0; }

    /// What the form is made of; who adds a part lays the form out again.
    TPartesDoDialogo& GetPartes() noexcept { return FPartes; }
    /// Gives every control its place.
    virtual void Dispor();
    void AoMudarTela(int AAntes, int AAgora) override;
    void AoIntervir() override;

protected:
    void AoEncerrar() noexcept override;

private:
    void CriarControles();
    void AplicarParametros(const TTextosDialogos& ATextos);
    void EscolherBotaoPadrao();
    void AoMostrar(TObjeto* ASender);
    void AoTeclar(TObjeto* ASender, TTecla& ATecla);
    void AoClicarAjuda(TObjeto* ASender);
    bool ContaTempo() const noexcept;
    void ContarSegundo();
    void MostrarSegundos(std::u16string_view ASegundos);
    void AoVencerTempo();
    void DesligarTemporizador() noexcept;

    TOryUtilsDialogsFormCustomizadoBaseIOP FParametros;
    std::shared_ptr<TFormulariosVivos> FVivos;
    TPartesDoDialogo FPartes;
    TToolkit* FToolkit = nullptr;
    std::uintptr_t FTemporizador = 0;
    TBotao* FPadrao = nullptr;
    int FSegundos = 0;  // left, while they are shown
    bool FVenceu = false;
};

/// The message as shown: with the note that an auto-closing one carries.
std::u16string BuscarMensagemComNota(const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros,
                                     const TTextosDialogos& ATextos);

/// Layout facts of any form with buttons and a label "Message".
TOryUtilsDialogsInfoFormMensagemIOP BuscarFatosDoFormulario(const TFormulario& AFormulario);

}  // namespace OryUtils

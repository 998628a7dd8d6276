#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/Campos.hpp"
#include "oryutils/fields/ControladorFormatos.hpp"
#include "oryutils/fields/Mascara.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// What an edit box bound to a field does with keys and texts, the same for all toolkits; the toolkit's class moves
/// texts, caret and selection between it and the native box. With an edit mask it edits in the mask; a number takes
/// digits, one decimal separator ("." or ",") and a minus sign in front; any other field takes any text.
/// While the box has the focus it shows what is edited, otherwise what is displayed (see TField). Leaving it takes the
/// text to the field.
class ORY_API TEditorDeCampo {
public:
    /// ACampo must outlive the editor.
    explicit TEditorDeCampo(TField& ACampo);
    virtual ~TEditorDeCampo();
    TEditorDeCampo(const TEditorDeCampo&) = delete;
    TEditorDeCampo& operator=(const TEditorDeCampo&) = delete;

    TField& GetCampo() const noexcept { return FCampo; }
    /// Why the field did not take the text of the last exit; empty when it did. The box then keeps the text.
    const std::u16string& GetErro() const noexcept { return FErro; }
    /// Shows the field's value and mask anew, after the program changed them.
    void Atualizar();
    /// What the box holds now goes to the field, as when the focus leaves it; a box that has the focus goes on editing
    /// what the field took.
    virtual void Gravar() = 0;

protected:
    // What the toolkit's class calls.

    TEdicaoMascara Digitar(const TEdicaoMascara& AEdicao, char16_t ACaractere) const;
    TEdicaoMascara Colar(const TEdicaoMascara& AEdicao, std::u16string_view ATexto) const;
    TEdicaoMascara Teclar(const TEdicaoMascara& AEdicao, TTeclaMascara ATecla) const;
    /// A text that came some other way.
    TEdicaoMascara Ajustar(const TEdicaoMascara& AEdicao) const { return FMascara.Ajustar(AEdicao); }
    void AoEntrar();
    void AoSair(std::u16string_view ATexto);
    void AoGravar(std::u16string_view ATexto);

    // What it provides.

    virtual void Mostrar(const TEdicaoMascara& AEdicao) = 0;

private:
    bool EhNumero() const noexcept { return FMascara.EstahVazia() && EhCampoNumerico(FCampo.GetTipo()); }
    void LerMascara();
    void AoMudarFormatos();
    std::u16string FiltrarNumero(const TEdicaoMascara& AEdicao, std::u16string_view ATexto, bool AColado) const;

    TField& FCampo;
    TMascara FMascara;
    std::u16string FErro;
    bool FTemFoco = false;
};

}  // namespace OryUtils

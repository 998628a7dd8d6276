#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/Campos.hpp"
#include "oryutils/fields/ControladorFormatos.hpp"
#include "oryutils/fields/Mascara.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace OryUtils {

/// What an edit box bound to a field does with keys and texts, the same for all toolkits; the toolkit's class moves
/// texts, caret and selection between it and the native box.
///
/// With the focus the box shows what is edited, otherwise what is displayed (see TField). Only a change that the person
/// makes, or a text that the program writes into the box, reaches the field: entering and leaving leave it bit for bit,
/// also when what was typed has been taken back by hand. A field that the program changes is shown at once, unless the
/// person has typed.
///
/// With a mask the box edits in the mask. A mask that is aligned at the right ("!") or follows the number
/// (SetEscolhaDeMascara) is laid out anew with each key. A value that the mask cannot show whole is edited as it
/// stands, and must fit the mask when it is left changed. A number takes digits, "." and ",", a minus sign in front,
/// and "%" where its display has one; LerNumeroDigitado tells how it is read. Any other field is the native box's own.
///
/// What cannot be taken makes the box beep and calls OnRecusar: a character at once, a pasted text as a whole, and on
/// leaving a text that is no value of the field or leaves required places empty; GetErro tells why, and the text stays.
class ORY_API TEditorDeCampo {
public:
    using TAoRecusar = TEvento<TEditorDeCampo&>;

    /// ACampo must outlive the editor, and the editor a change of the field: no listener of the field destroys it.
    /// OnRecusar may.
    explicit TEditorDeCampo(TField& ACampo);
    virtual ~TEditorDeCampo();
    TEditorDeCampo(const TEditorDeCampo&) = delete;
    TEditorDeCampo& operator=(const TEditorDeCampo&) = delete;

    TField& GetCampo() const noexcept { return FCampo; }
    /// Why the field did not take the text of the last exit; empty when it did. The box then keeps the text.
    const std::u16string& GetErro() const noexcept { return FErro; }
    /// True when the box holds a text that has not reached the field.
    bool EstahModificado() const noexcept { return FModificado; }
    /// Shows the field's value and mask anew; what was typed is lost.
    void Atualizar();
    /// What was typed goes to the field, as when the focus leaves the box; a box that has the focus goes on editing.
    void Gravar();
    /// Brings back what stood in the box on entering, and the field's value of that time. False: nothing has changed.
    bool Desfazer();

    /// A text as the box of a number reads it: digits, decimal separator and sign. "1.234,56" and "1,234.56" are the
    /// same amount; none for what is no number, or no whole one where the field wants that.
    std::optional<std::u16string> LerNumero(std::u16string_view ATexto) const;

    TAoRecusar OnRecusar;

protected:
    // What the toolkit's class calls.

    /// True when keys and pasted texts are the editor's; otherwise the native box does what it always does.
    bool TrataTexto() const noexcept { return !FMascara.EstahVazia() || EhNumero(); }
    /// True when the arrows, Home, End and the keys that delete are the editor's.
    bool TrataTeclas() const noexcept { return !FMascara.EstahVazia(); }
    /// These three answer false for what was refused.
    bool AoDigitar(char16_t ACaractere);
    /// The decimal key of the keypad.
    bool AoTeclarDecimal();
    bool AoColar(std::u16string_view ATexto);
    void AoTeclar(TTeclaMascara ATecla);
    /// The native box changed its text on its own, or the program wrote one.
    void AoMudarTexto();
    void AoEntrar();
    void AoSair();
    /// The focus went to another window: what is good reaches the field, and the box stays as it is.
    void AoSuspender();

    // What it provides.

    virtual TEdicaoMascara Ler() const = 0;
    virtual void Mostrar(const TEdicaoMascara& AEdicao) = 0;
    virtual bool EhSomenteLeitura() const = 0;
    virtual void Bipar() = 0;

private:
    struct TFaixa {
        std::size_t Inicio, Fim;
    };

    bool EhNumero() const noexcept { return !FEmBruto && EhCampoNumerico(FCampo.GetTipo()); }
    bool EhPorConteudo() const noexcept { return FMascara.AlinhaADireita() || FCampo.GetEscolhaDeMascara(); }
    bool MostraPercentual() const;
    void AoMudarFormatos();
    void AoMudarCampo();
    void MostrarParaEditar();
    std::u16string PorNaMascara(std::u16string_view ATexto);

    bool Armazenar();
    std::u16string LerValor(std::u16string_view ATexto) const;

    void Recusar();
    bool Trocar(const TEdicaoMascara& AAntes, const TEdicaoMascara& ADepois);
    void AnotarMudanca(std::u16string_view ATexto);
    bool MostrarInteiro(const TEdicaoMascara& AEdicao);
    TFaixa BuscarSelecao(const TEdicaoMascara& AEdicao) const;
    TEdicaoMascara TrocarConteudo(const TEdicaoMascara& AAntes, std::u16string_view AIncluido);
    TEdicaoMascara ApagarConteudo(const TEdicaoMascara& AAntes, TTeclaMascara ATecla);
    std::optional<TEdicaoMascara> Dispor(std::u16string_view AConteudo, std::size_t AQuantos);
    TEdicaoMascara DigitarNumero(const TEdicaoMascara& AAntes, char16_t ACaractere) const;
    TEdicaoMascara ColarNumero(const TEdicaoMascara& AAntes, std::u16string_view ATexto) const;

    TField& FCampo;
    /// Those of the text in the box: filter, reading and showing have one source.
    TFormatSettings FFormatos;
    TMascara FMascara;
    Variant FAoEntrar;
    /// The text of the box for the value that the field has; with it nothing has been changed.
    std::optional<std::u16string> FNaEntrada;
    std::u16string FErro;
    bool FTemFoco = false;
    bool FModificado = false;
    bool FGravando = false;
    /// The field's mask cannot show the value: it is edited without one.
    bool FEmBruto = false;
    /// The box shows the text that it was given: a native box may cut or change one.
    bool FFiel = true;
};

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/EditorDeCampo.hpp"

struct HWND__;

namespace OryUtils {

/// Binds an edit control of a Win32 host (class EDIT, one line) to a field while it lives (see TEditorDeCampo). Ctrl+Z,
/// and Esc where the dialog does not use it, bring back what stood there on entering. Use it on the thread of the
/// control. When the control is destroyed the binding does nothing more. A read-only control shows the field and
/// changes nothing.
/// Example:
///   TField cpf(ftString);
///   FormatarCPF(cpf);
///   TEdicaoMascaradaWin32 edicao(GetDlgItem(dialogo, IDC_CPF), cpf);
class ORY_API TEdicaoMascaradaWin32 final : public TEditorDeCampo {
public:
    /// Shows the field's value at once. Raises EConvertError for a broken mask.
    TEdicaoMascaradaWin32(HWND__* AJanela, TField& ACampo);
    ~TEdicaoMascaradaWin32() override;

    HWND__* GetHandle() const noexcept { return FJanela; }

protected:
    TEdicaoMascara Ler() const override;
    void Mostrar(const TEdicaoMascara& AEdicao) override;
    bool EhSomenteLeitura() const override;
    void Bipar() override;

private:
    struct TTratador;

    bool Tratar(unsigned AMensagem, std::uintptr_t AWParam);
    bool TratarCaractere(char16_t ACaractere);
    bool TratarTecla(std::uintptr_t ACodigo);
    void ColarDaAreaDeTransferencia();
    void Recortar();
    void Deixar(HWND__* AOutra);
    void ConferirTexto();

    HWND__* FJanela;
    /// The text that the editor knows of.
    std::u16string FConferido;
    /// The key that the next character comes from is the decimal one of the keypad.
    bool FDecimal = false;
    bool FEscrevendo = false;
};

}  // namespace OryUtils

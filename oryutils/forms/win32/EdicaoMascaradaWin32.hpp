#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/EditorDeCampo.hpp"

struct HWND__;

namespace OryUtils {

/// Binds an edit control of a Win32 host (class EDIT, one line) to a field while it lives: typing, deleting, pasting
/// and the arrow keys follow the field's edit mask or number. Use it on the thread of the control. When the control is
/// destroyed the binding does nothing more. A read-only control is left alone.
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
    void Gravar() override;

protected:
    void Mostrar(const TEdicaoMascara& AEdicao) override;

private:
    struct TTratador;

    TEdicaoMascara Ler() const;
    bool Tratar(unsigned AMensagem, std::uintptr_t AWParam);
    void ColarDaAreaDeTransferencia();

    HWND__* FJanela;
    bool FEscrevendo = false;
};

}  // namespace OryUtils

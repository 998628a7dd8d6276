#pragma once

#include "oryutils/forms/Controles.hpp"
#include "oryutils/forms/win32/EdicaoMascaradaWin32.hpp"
#include "oryutils/forms/win32/interno/FonteDialogo.hpp"
#include "oryutils/forms/win32/interno/LeitorDeTela.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <memory>
#include <vector>

namespace OryUtils::Interno {

/// The native side of one control of the model: one window, and for a group one more for each option.
class TControleNativo {
public:
    TControleNativo(TControleFormulario& AModelo, HWND AFormulario, const TFonteDialogo& AFonte, int AId,
                    bool AIniciaGrupo);

    TControleFormulario& GetModelo() const noexcept { return *FModelo; }
    HWND GetHandle() const noexcept { return FJanela; }
    /// Where the focus goes: the window itself, or the chosen option of a group.
    HWND GetAlvoDoFoco() const noexcept;
    bool Possui(HWND AJanela) const noexcept;
    /// The windows that lie on the form, in tab order.
    std::vector<HWND> GetJanelas() const;

    /// The form has come to a screen of another scale.
    void MudarFonte(const TFonteDialogo& AFonte);
    /// Brings the native side up to date with the model.
    void Atualizar(unsigned AMudancas);
    /// Reads what the user did into the model.
    void Ler();
    /// The user changed the text; a memo is read only when somebody asks, since its text may be long.
    void MarcarTextoMudado() noexcept { FTextoMudou = true; }
    /// A push button drawn as the one that Enter presses.
    void DesenharComoPadrao(bool APadrao);

private:
    static LRESULT CALLBACK Receber(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL, UINT_PTR AId,
                                    DWORD_PTR AControle);
    TFalado BuscarFalado(HWND AJanela) const;
    HWND Criar(const wchar_t* AClasse, DWORD AEstilo, DWORD AEstiloEstendido, int AId) const;
    void CriarOpcoes();
    void PosicionarOpcoes();
    std::vector<int> MedirOpcoes(int ALargura) const;
    void RolarOpcoes(bool ARolar);
    void EncaixarTexto(HWND AJanela, std::u16string_view ATexto, TTamanho AFolga) const;
    std::vector<HWND> GetTodas() const;
    void AtualizarSelecao();

    TControleFormulario* FModelo;
    HWND FFormulario;
    const TFonteDialogo* FFonte;
    HWND FJanela = nullptr;
    std::vector<HWND> FOpcoes;
    HWND FVista = nullptr;  // holds the options while they do not all fit
    bool FTextoMudou = false;
    std::unique_ptr<TEdicaoMascaradaWin32> FEditor;  // of a box that is bound to a field
};

}  // namespace OryUtils::Interno

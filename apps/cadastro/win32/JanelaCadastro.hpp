#pragma once

#include "oryutils/forms/win32/ControleWin32.hpp"
#include "oryutils/forms/win32/EdicaoMascaradaWin32.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include "apps/cadastro/Cadastro.hpp"

#include <array>
#include <memory>
#include <vector>

namespace OryUtils::Cadastro {

/// The sample window with the system's own controls: a host of the library that knows nothing of its forms.
class TJanelaCadastro final : public TCadastro {
public:
    /// Hidden until it runs. APixelsPorPolegada 0: those of the screen; all measures follow from the font.
    explicit TJanelaCadastro(HINSTANCE AModulo, int APixelsPorPolegada = 0);
    ~TJanelaCadastro() override;

    /// Shows the window and runs until it is closed.
    int Executar();

    HWND GetHandle() const noexcept { return FJanela; }
    HWND GetCaixa(TCampo ACampo) const { return FCaixas[ACampo]; }
    HWND GetPorExtenso() const;

protected:
    TWinControl& GetControle(std::size_t ACampo) override { return FControles[ACampo]; }
    TEditorDeCampo* GetEditor(std::size_t ACampo) override { return FEdicoes[ACampo].get(); }
    std::u16string LerCaixa(std::size_t ACampo) const override;
    void EscreverCaixa(std::size_t ACampo, std::u16string_view ATexto) override;

private:
    static INT_PTR CALLBACK Procedimento(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL);
    int Pixels(int A96PorPolegada) const { return ::MulDiv(A96PorPolegada, FPixelsPorPolegada, 96); }
    SIZE Medir(std::u16string_view ATexto) const;
    void Montar();
    HWND Criar(const wchar_t* AClasse, std::u16string_view ATexto, DWORD AEstilo, const RECT& ALugar, int AId,
               DWORD AEstiloEstendido = 0) const;
    HWND CriarCaixa(std::size_t ACampo, int ALeft, int ATop);
    int BuscarLargura(std::size_t ACampo) const;
    void AoPerderFoco(std::size_t ACampo);
    void AoComandar(int AId, int ANotificacao);

    HINSTANCE FModulo;
    int FPixelsPorPolegada;
    HFONT FFonte = nullptr;
    HWND FJanela = nullptr;
    std::array<HWND, CQuantidadeCampos> FCaixas{};
    std::array<std::unique_ptr<TEdicaoMascaradaWin32>, CQuantidadeCampos> FEdicoes;
    std::vector<TControleWin32> FControles;
};

}  // namespace OryUtils::Cadastro

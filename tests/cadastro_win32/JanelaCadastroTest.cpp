// The sample window as a window of the system.
#include "oryutils/characters/Utf.hpp"

#include "apps/cadastro/win32/JanelaCadastro.hpp"
#include "comum/UsuarioDoCadastro.hpp"
#include "forms_win32/Auxiliares.hpp"

namespace OryUtils {

std::unique_ptr<TUsuario> CriarUsuario() {
    return TToolkitWin32::HaAreaDeTrabalho() ? std::make_unique<TUsuarioWin32>() : nullptr;
}

namespace Cadastro {
namespace {

class TUsuarioDaJanela final : public TUsuarioDoCadastro, public TUsuarioWin32 {
public:
    void Conduzir(TPassos APassos) override {
        FJanela = std::make_unique<TJanelaCadastro>(nullptr);
        Preencher(caNome, "Comercial Modelo");  // left empty it would be the first to complain
        const auto fechar = [&] { ::PostMessageW(FJanela->GetHandle(), WM_CLOSE, 0, 0); };
        APassos.emplace_back(fechar);
        TUsuarioWin32::Conduzir(
            std::move(APassos), [] { return true; },
            [&] {
                if (const HWND aviso = BuscarFormulario()) ::PostMessageW(aviso, WM_CLOSE, 0, 0);
                fechar();
            },
            [&] { return FJanela->Executar(); });
        FJanela.reset();
    }
    void Exemplificar() override { FJanela->Exemplificar(); }
    void Preencher(TCampo ACampo, const char* ATexto) override { ::SetWindowTextA(FJanela->GetCaixa(ACampo), ATexto); }
    std::string Ler(TCampo ACampo) override { return ParaUtf8(Texto(FJanela->GetCaixa(ACampo))); }
    std::string LerPorExtenso() override { return ParaUtf8(Texto(FJanela->GetPorExtenso())); }
    void Focar(TCampo ACampo) override { ::SetFocus(FJanela->GetCaixa(ACampo)); }
    bool EstahFocado(TCampo ACampo) override { return ::GetFocus() == FJanela->GetCaixa(ACampo); }
    void Salvar() override { Tecla(VK_RETURN); }
    std::string LerAviso() override {
        std::u16string texto;
        for (const HWND filho : Filhos(BuscarFormulario()))
            if (!(::SendMessageW(filho, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON)) texto += Texto(filho);
        return ParaUtf8(texto);
    }
    TUsuario& Teclado() override { return *this; }

private:
    std::unique_ptr<TJanelaCadastro> FJanela;
};

}  // namespace

std::unique_ptr<TUsuarioDoCadastro> CriarUsuarioDoCadastro() { return std::make_unique<TUsuarioDaJanela>(); }

namespace {

TEST_F(FormsWin32, OLugarDeTudoSegueOsPixelsPorPolegada) {
    LONG anterior = 0;
    for (const int pixels : {96, 120, 144, 192}) {
        const TJanelaCadastro janela(nullptr, pixels);
        RECT cliente{};
        ::GetClientRect(janela.GetHandle(), &cliente);
        EXPECT_GT(cliente.right, anterior);
        anterior = cliente.right;
        const auto filhos = Filhos(janela.GetHandle());
        for (std::size_t i = 0; i < filhos.size(); ++i) {
            SCOPED_TRACE(ParaUtf8(Texto(filhos[i])) + " at " + std::to_string(pixels));
            const TRetangulo r = Retangulo(filhos[i]);
            EXPECT_TRUE(r.Left >= 0 && r.Top >= 0 && r.Left + r.Width <= cliente.right &&
                        r.Top + r.Height <= cliente.bottom);
            for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(SeTocam(r, Retangulo(filhos[j]))) << j;
        }
    }
}

}  // namespace
}  // namespace Cadastro
}  // namespace OryUtils

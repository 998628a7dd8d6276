// The sample window itself: typed into, left, saved.
#include "oryutils/characters/Utf.hpp"

#include "apps/cadastro/win32/JanelaCadastro.hpp"
#include "comum/CasosDoCadastro.hpp"
#include "forms_win32/Auxiliares.hpp"

#include <cctype>
#include <cstring>

namespace OryUtils::Cadastro {
namespace {

class JanelaCadastro : public FormsWin32 {
protected:
    /// APassos at a window whose name is filled in: left empty it would be the first to complain.
    void Conduzir(TJanelaCadastro& AJanela, std::deque<std::function<void()>> APassos) {
        if (::GetWindowTextLengthW(AJanela.GetCaixa(caNome)) == 0)
            ::SetWindowTextW(AJanela.GetCaixa(caNome), L"Comercial Modelo");
        const auto fechar = [&] { ::PostMessageW(AJanela.GetHandle(), WM_CLOSE, 0, 0); };
        APassos.emplace_back(fechar);
        FormsWin32::Conduzir(
            std::move(APassos), [] { return true; },
            [&] {
                if (const HWND aviso = Dialogo()) ::PostMessageW(aviso, WM_CLOSE, 0, 0);
                fechar();
            },
            [&] { return AJanela.Executar(); });
    }
    /// The dialog of the library that is shown.
    static HWND Dialogo() { return ::FindWindowW(L"TOryFormulario", nullptr); }
    /// What it says.
    static std::string Aviso() {
        std::u16string texto;
        for (const HWND filho : Filhos(Dialogo()))
            if (!(::SendMessageW(filho, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON)) texto += Texto(filho);
        return ParaUtf8(texto);
    }

    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

TEST_F(JanelaCadastro, AsCaixasSeguemAsMascarasESairConfere) {
    for (const TCasoDeCampo& c : CCasosDeCampo) {
        TJanelaCadastro janela(nullptr);
        const HWND caixa = janela.GetCaixa(c.Campo);
        const auto texto = [&] { return ParaUtf8(Texto(caixa)); };
        std::deque<std::function<void()>> passos;
        passos.push_back([&] {
            ::SetWindowTextW(caixa, L"");
            ::SetFocus(caixa);
            Escrever(std::wstring(c.Digitado, c.Digitado + std::strlen(c.Digitado)).c_str());
        });
        passos.push_back([&] {
            EXPECT_EQ(texto(), c.NaCaixa);
            if (c.Campo == caValor && !c.Aviso) {
                EXPECT_EQ(ParaUtf8(Texto(janela.GetPorExtenso())), CValorPorExtenso);
            }
            Tecla(VK_TAB);
        });
        if (c.Aviso)
            passos.push_back([&] {
                EXPECT_EQ(Aviso(), c.Aviso);
                Tecla(VK_RETURN);
            });
        passos.push_back([&] {
            EXPECT_EQ(Dialogo(), nullptr) << "one warning, not a chain of them: " << c.Digitado;
            EXPECT_EQ(::GetFocus() == caixa, c.Aviso != nullptr) << c.Digitado;
            EXPECT_EQ(texto(), c.Depois);
        });
        Conduzir(janela, std::move(passos));
    }
}

TEST_F(JanelaCadastro, AltELetraVaiAoCampoDaLetra) {
    TJanelaCadastro janela(nullptr);
    janela.Exemplificar();
    std::deque<std::function<void()>> passos;
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        const std::size_t marca = CCampos[i].Caption.find(u'&');
        if (marca == std::u16string_view::npos) continue;
        passos.push_back([&] { ::SetFocus(janela.GetCaixa(caCEP)); });
        passos.push_back([=] { AltTecla(static_cast<WPARAM>(std::toupper(CCampos[i].Caption[marca + 1]))); });
        passos.push_back([&, i] {
            EXPECT_EQ(::GetFocus(), janela.GetCaixa(static_cast<TCampo>(i))) << ParaUtf8(CCampos[i].Caption);
        });
    }
    Conduzir(janela, std::move(passos));
}

TEST_F(JanelaCadastro, SalvarConfereTudo) {
    TJanelaCadastro janela(nullptr);
    janela.Exemplificar();
    const HWND nome = janela.GetCaixa(caNome), documento = janela.GetCaixa(caDocumento);
    Conduzir(janela, {[&] {
                          ::SetWindowTextW(nome, L" ");
                          ::SetFocus(documento);
                          Tecla(VK_RETURN);
                      },
                      [&] {
                          EXPECT_EQ(Aviso(), "Informe o nome do cliente.");
                          Tecla(VK_RETURN);
                      },
                      [&] {
                          EXPECT_EQ(::GetFocus(), nome);
                          ::SetWindowTextW(nome, L"Comercial Modelo");
                          ::SetFocus(documento);
                          Escrever(L"1122233300018");
                          Escrever(L"2");
                      },
                      [&] { Tecla(VK_RETURN); },
                      [&] {
                          EXPECT_EQ(Aviso(), "CNPJ inválido. Verifique.") << "Enter leaves the box where it is";
                          Tecla(VK_RETURN);
                      },
                      [&] { ::SendMessageW(documento, EM_SETSEL, 0, -1), Escrever(L"11222333000181"); },
                      [&] { Tecla(VK_RETURN); },
                      [&] {
                          EXPECT_EQ(Aviso(), "Cliente conferido: todos os campos são válidos.");
                          Tecla(VK_RETURN);
                      }});
}

TEST_F(JanelaCadastro, OLugarDeTudoSegueOsPixelsPorPolegada) {
    LONG anterior = 0;
    for (const int pixels : {96, 120, 144, 192}) {
        const TJanelaCadastro janela(nullptr, pixels);
        RECT cliente{};
        ::GetClientRect(janela.GetHandle(), &cliente);
        EXPECT_GT(cliente.right, anterior);
        anterior = cliente.right;
        std::vector<TRetangulo> lugares;
        for (const HWND filho : Filhos(janela.GetHandle())) {
            const TRetangulo r = Retangulo(filho);
            const std::string qual = ParaUtf8(Texto(filho)) + " at " + std::to_string(pixels);
            EXPECT_TRUE(r.Left >= 0 && r.Top >= 0 && r.Left + r.Width <= cliente.right &&
                        r.Top + r.Height <= cliente.bottom)
                << qual;
            for (const TRetangulo& outro : lugares)
                EXPECT_TRUE(r.Left >= outro.Left + outro.Width || outro.Left >= r.Left + r.Width ||
                            r.Top >= outro.Top + outro.Height || outro.Top >= r.Top + r.Height)
                    << qual;
            lugares.push_back(r);
        }
    }
}

}  // namespace
}  // namespace OryUtils::Cadastro

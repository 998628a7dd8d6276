// What the user does reaches the model.
#include "oryutils/runtime/Excecoes.hpp"

#include "Auxiliares.hpp"

namespace OryUtils {
namespace {

TEST_F(FormsWin32, RoteirosDeTodoToolkit) { ConferirRoteiros(*this); }

TEST_F(FormsWin32, EscSemBotaoDeCancelarFechaEEnterNoMemorandoEscreve) {
    TFormulario formulario;
    formulario.SetTitulo(u"Memorando");
    auto& memorando = Por<TMemorando>(formulario, u"a\nb", {0, 0, 200, 100});
    PorBotao(formulario, u"OK", mrOk).SetPadrao(true);
    const int resultado = Executar(formulario, {[&] {
                                                    ::SendMessageW(::GetFocus(), EM_SETSEL, 100, 100);
                                                    Tecla(VK_RETURN);
                                                },
                                                [] { Escrever(L"ç"); }, [] { Tecla(VK_ESCAPE); }});
    EXPECT_EQ(resultado, mrCancel);
    EXPECT_EQ(memorando.GetTexto(), u"a\nb\nç") << "line breaks stay of the kind that the text had";
}

TEST_F(FormsWin32, TabPercorreNaOrdemDeCriacaoEOBotaoFocadoEhDesenhadoComoPadrao) {
    TFormulario formulario;
    formulario.SetTitulo(u"Tab");
    Por<TRotulo>(formulario, u"Nome", {0, 0, 50, 13});
    auto& nome = Por<TCaixaEdicao>(formulario, u"", {60, 0, 100, 22});
    auto& memorando = Por<TMemorando>(formulario, u"", {60, 30, 100, 40});
    auto& grupo = Por<TGrupoOpcoes>(formulario, u"Opções: ", {0, 70, 200, 80});
    grupo.AdicionarItem(u"uma");
    grupo.AdicionarItem(u"outra");
    grupo.SetIndice(1);
    auto& oculta = Por<TCaixaEdicao>(formulario, u"", {0, 0, 10, 10});
    oculta.SetVisivel(false);
    auto& ok = PorBotao(formulario, u"OK", mrOk);
    ok.SetPadrao(true);
    auto& cancelar = PorBotao(formulario, u"Cancelar", mrCancel, 80);
    std::vector<TControleFormulario*> visitados;
    std::vector<int> padroes;
    std::deque<std::function<void()>> passos;
    for (int i = 0; i < 6; ++i)
        passos.push_back([&] {
            visitados.push_back(formulario.GetControleAtivo());
            const auto filhos = Filhos(Janela(formulario));
            const auto ehPadrao = [&](std::size_t AIndice) {
                return (::GetWindowLongPtrW(filhos[AIndice], GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
            };
            padroes.push_back(10 * ehPadrao(7) + ehPadrao(8));
            Tecla(VK_TAB);
        });
    passos.push_back([&] { formulario.Fechar(); });
    Executar(formulario, passos);
    EXPECT_EQ(visitados, (std::vector<TControleFormulario*>{&nome, &memorando, &grupo, &ok, &cancelar, &nome}));
    EXPECT_EQ(padroes, (std::vector<int>{10, 10, 10, 10, 1, 10})) << "tens: OK, ones: Cancel";
}

TEST_F(FormsWin32, SetasAndamNoGrupoEOTecladoMarcaACaixa) {
    TFormulario formulario;
    formulario.SetTitulo(u"Setas");
    auto& grupo = Por<TGrupoOpcoes>(formulario, u"Opções: ", {0, 0, 200, 100});
    for (const auto* item : {u"um", u"dois", u"três"}) grupo.AdicionarItem(item);
    grupo.SetIndice(0);
    auto& marca = Por<TCaixaChecagem>(formulario, u"&Marca", {0, 110, 100, 17});
    PorBotao(formulario, u"OK", mrOk).SetPadrao(true);
    std::vector<int> indices;
    const auto anotar = [&] { indices.push_back(grupo.GetIndice()); };
    Executar(formulario, {[&] { Tecla(VK_DOWN); }, [&] { anotar(), Tecla(VK_DOWN); }, [&] { anotar(), Tecla(VK_DOWN); },
                          [&] { anotar(), Tecla(VK_UP); }, [&] { anotar(), Clicar(Filhos(Janela(formulario))[2]); },
                          [&] { anotar(), AltTecla('M'); },
                          [&] {
                              EXPECT_TRUE(marca.GetMarcada());
                              Tecla(VK_RETURN);
                          }});
    EXPECT_EQ(indices, (std::vector<int>{1, 2, 0, 2, 1})) << "around the ends, and by click";
}

TEST_F(FormsWin32, GrupoSemEscolhaContinuaSemEscolha) {
    TFormulario formulario;
    formulario.SetTitulo(u"Nenhuma");
    auto& grupo = Por<TGrupoOpcoes>(formulario, u"Opções: ", {0, 0, 200, 100});
    grupo.AdicionarItem(u"um");
    grupo.AdicionarItem(u"dois");
    PorBotao(formulario, u"OK", mrOk).SetPadrao(true);
    Executar(formulario, {[] { Tecla(VK_RETURN); }});
    EXPECT_EQ(grupo.GetIndice(), -1) << "the first focus chooses nothing";
}

TEST_F(FormsWin32, OQueSeEscreveChegaAoModelo) {
    TFormulario formulario;
    formulario.SetTitulo(u"Texto");
    auto& caixa = Por<TCaixaEdicao>(formulario, u"velho", {0, 0, 200, 22});
    caixa.SelecionarTudo();
    std::u16string visto;
    TAcao mudar([&] { visto += caixa.GetTexto() + u"|"; });
    caixa.OnMudar = mudar.Evento();
    PorBotao(formulario, u"OK", mrOk).SetPadrao(true);
    Executar(formulario, {[] { Escrever(L"çã"); }, [&] { caixa.SetTexto(u"trocado"); },
                          [&] { Digitar(VK_CONTROL, true), Tecla('A'); },
                          [&] { Digitar(VK_CONTROL, false), Escrever(L"x"); }, [] { Tecla(VK_RETURN); }});
    EXPECT_EQ(visto, u"ç|çã|x|") << "fired for the user's changes only";
    EXPECT_EQ(caixa.GetTexto(), u"x") << "Ctrl+A selected what was there";
}

class TEscutaTeclas : public TObjeto {
public:
    void AoTeclar(TObjeto*, TTecla& ATecla) {
        if (ATecla.Codigo == 'C' && ATecla.Ctrl && !ATecla.Alt && !ATecla.Shift) {
            BuscarToolkit().CopiarParaAreaDeTransferencia(u"copiado: ação\n\U0001F600");
            ATecla.Tratada = true;
        }
        Alts += ATecla.Alt;
    }
    int Alts = 0;
};

TEST_F(FormsWin32, OFormularioVeAsTeclasAntesDoControle) {
    TFormulario formulario;
    formulario.SetTitulo(u"Teclas");
    auto& caixa = Por<TCaixaEdicao>(formulario, u"a", {0, 0, 200, 22});
    TEscutaTeclas escuta;
    formulario.OnKeyDown = TEvento<TObjeto*, TTecla&>::De<&TEscutaTeclas::AoTeclar>(escuta);
    Executar(formulario, {[] { Digitar(VK_CONTROL, true), Tecla('C'); },
                          [] { Digitar(VK_CONTROL, false), AltTecla('Z'); }, [] { Tecla(VK_ESCAPE); }});
    EXPECT_EQ(escuta.Alts, 1);
    EXPECT_EQ(caixa.GetTexto(), u"a");
    ASSERT_TRUE(::OpenClipboard(nullptr));
    const HANDLE dados = ::GetClipboardData(CF_UNICODETEXT);
    ASSERT_NE(dados, nullptr);
    EXPECT_EQ(Interno::DeWide(static_cast<const wchar_t*>(::GlobalLock(dados))), u"copiado: ação\r\n\U0001F600");
    ::GlobalUnlock(dados);
    ::CloseClipboard();
}

TEST_F(FormsWin32, RedimensionarAvisaComOTamanhoNovo) {
    TFormulario formulario;
    formulario.SetTitulo(u"Tamanho");
    formulario.EstiloBorda = ebRedimensionavel;
    int avisos = 0;
    TAcao redimensionar([&] { ++avisos; });
    formulario.OnResize = redimensionar.Evento();
    Executar(formulario, {[&] {
                 const HWND janela = Janela(formulario);
                 EXPECT_EQ(avisos, 0);
                 RECT r{};
                 ::GetWindowRect(janela, &r);
                 ::SetWindowPos(janela, nullptr, 10, 20, r.right - r.left + 30, r.bottom - r.top + 40, SWP_NOZORDER);
                 EXPECT_EQ(avisos, 1);
                 EXPECT_EQ(formulario.GetLarguraCliente(), 350);
                 EXPECT_EQ(formulario.GetAlturaCliente(), 240);
                 EXPECT_EQ(formulario.GetPosicao().Left, 10);
                 formulario.Fechar();
             }});
}

}  // namespace
}  // namespace OryUtils

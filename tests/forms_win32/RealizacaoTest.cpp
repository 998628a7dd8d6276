// The forms as windows of the system: what tests for every toolkit leave out.
#include "Auxiliares.hpp"

namespace OryUtils {

std::unique_ptr<TUsuario> CriarUsuario() {
    return TToolkitWin32::HaAreaDeTrabalho() ? std::make_unique<TUsuarioWin32>() : nullptr;
}

namespace {

struct TRealizado {
    const wchar_t* Classe;
    LONG_PTR Estilo, NaoEstilo;
    const char* Porque;
};
// In the order of TFormularioCompleto.
constexpr TRealizado CRealizados[] = {
    {L"Static", SS_ICON, WS_TABSTOP, "icon"},
    {L"Static", SS_NOPREFIX, WS_TABSTOP, "a label shows its & and takes no focus"},
    {L"Edit", WS_TABSTOP | ES_AUTOHSCROLL, ES_MULTILINE, "one line"},
    {L"Edit", ES_MULTILINE | WS_VSCROLL | ES_WANTRETURN, WS_HSCROLL, "many lines, one scroll bar"},
    {L"Button", BS_AUTOCHECKBOX | WS_TABSTOP, 0, "check box"},
    {L"Button", BS_GROUPBOX, WS_TABSTOP, "the box itself takes no focus"},
    {L"Button", BS_AUTORADIOBUTTON | WS_TABSTOP | WS_GROUP, 0, "Tab stops at the first option"},
    {L"Button", BS_AUTORADIOBUTTON, WS_GROUP, "the arrows go on to the second"},
    {L"Button", BS_AUTORADIOBUTTON, WS_GROUP, ""},
    {L"Button", WS_TABSTOP, BS_GROUPBOX & ~BS_DEFPUSHBUTTON & ~BS_AUTOCHECKBOX, "push button"},
    {L"Button", WS_TABSTOP, BS_GROUPBOX & ~BS_DEFPUSHBUTTON & ~BS_AUTOCHECKBOX, ""},
    {L"Button", WS_TABSTOP, BS_GROUPBOX & ~BS_DEFPUSHBUTTON & ~BS_AUTOCHECKBOX, ""},
};

TEST_F(FormsWin32, CadaControleTemClasseEEstilo) {
    TFormularioCompleto formulario;
    Executar(formulario, {[&] {
                 const auto filhos = Filhos(Janela(formulario));
                 ASSERT_EQ(filhos.size(), std::size(CRealizados));
                 for (std::size_t i = 0; i < filhos.size(); ++i) {
                     const TRealizado& r = CRealizados[i];
                     SCOPED_TRACE(testing::Message() << i << ' ' << r.Porque);
                     wchar_t classe[32];
                     ::GetClassNameW(filhos[i], classe, 32);
                     EXPECT_EQ(::lstrcmpiW(classe, r.Classe), 0);
                     const LONG_PTR estilo = ::GetWindowLongPtrW(filhos[i], GWL_STYLE);
                     EXPECT_EQ(estilo & (r.Estilo | r.NaoEstilo), r.Estilo);
                     if (i == 0) continue;
                     EXPECT_EQ(::SendMessageW(filhos[i], WM_GETFONT, 0, 0),
                               ::SendMessageW(filhos[1], WM_GETFONT, 0, 0));
                 }
                 EXPECT_EQ(::SendMessageW(filhos[0], STM_GETICON, 0, 0),
                           reinterpret_cast<LRESULT>(::LoadIconW(nullptr, MAKEINTRESOURCEW(32514))));
                 formulario.Fechar();
             }});
}

TEST_F(FormsWin32, FicaCentradaOuOndeFoiDesenhadaEOndeOUsuarioAPuser) {
    const TRetangulo area = FToolkit.GetAreaDeTrabalho();
    for (const auto posicao : {pfCentroDaTela, pfDesenhada}) {
        TFormularioCompleto formulario;
        formulario.Posicao = posicao;
        formulario.SetPosicao(37, 41);
        Executar(formulario, {[&] {
                     RECT r{};
                     ::GetWindowRect(Janela(formulario), &r);
                     if (posicao == pfDesenhada) {
                         EXPECT_EQ(r.left, 37);
                         EXPECT_EQ(r.top, 41);
                     } else {
                         EXPECT_NEAR(r.left - area.Left, area.Left + area.Width - r.right, 1);
                         EXPECT_NEAR(r.top - area.Top, area.Top + area.Height - r.bottom, 1);
                     }
                     ::SetWindowPos(Janela(formulario), nullptr, 10, 20, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
                     EXPECT_EQ(formulario.GetPosicao(), (TRetangulo{10, 20, 0, 0}));
                     formulario.Fechar();
                 }});
    }
}

TEST_F(FormsWin32, OMemorandoConservaAQuebraDeLinhaDoTexto) {
    TFormularioCompleto formulario;
    formulario.Memorando.SetTexto(u"a\nb");
    formulario.SetControleAtivo(&formulario.Memorando);
    Executar(formulario, {[] { Tecla(VK_RETURN); }, [&] { formulario.Fechar(); }});
    EXPECT_EQ(formulario.Memorando.GetTexto(), u"\na\nb");
}

TEST_F(FormsWin32, OQueOUsuarioDesabilitadoTinhaPerdeOFoco) {
    TFormularioCompleto formulario;
    Executar(formulario, {[&] {
                 const HWND caixa = ::GetFocus();
                 formulario.Edicao.SelecionarTudo();
                 formulario.Edicao.SetHabilitado(false);
                 EXPECT_NE(::GetFocus(), caixa) << "nobody types into a disabled box";
                 formulario.Fechar();
             }});
}

TEST_F(FormsWin32, PalavraSemFimNaoPassaDaLargura) {
    EXPECT_LE(FToolkit.MedirTexto(std::u16string(50'000, u'x'), 500).Largura, 500);
}

}  // namespace
}  // namespace OryUtils

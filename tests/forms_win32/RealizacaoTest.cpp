// What is on the screen is what the model says.
#include "Auxiliares.hpp"

namespace OryUtils {
namespace {

struct TRealizado {
    TTipoControle Tipo;
    const wchar_t* Classe;
    LONG_PTR Estilo, NaoEstilo;
    const char* Porque;
};
constexpr TRealizado CRealizados[] = {
    {tcRotulo, L"Static", SS_NOPREFIX, WS_TABSTOP, "a label shows its & and takes no focus"},
    {tcBotao, L"Button", WS_TABSTOP, BS_GROUPBOX & ~BS_DEFPUSHBUTTON & ~BS_AUTOCHECKBOX, "push button"},
    {tcGrupoOpcoes, L"Button", BS_GROUPBOX, WS_TABSTOP, "the box itself takes no focus"},
    {tcCaixaChecagem, L"Button", BS_AUTOCHECKBOX | WS_TABSTOP, 0, "check box"},
    {tcCaixaEdicao, L"Edit", WS_TABSTOP | ES_AUTOHSCROLL, ES_MULTILINE, "one line"},
    {tcMemorando, L"Edit", ES_MULTILINE | WS_VSCROLL | ES_WANTRETURN, WS_HSCROLL, "many lines, one scroll bar"},
    {tcIcone, L"Static", SS_ICON, WS_TABSTOP, "icon"},
};

void PorUmDeCada(TFormulario& AFormulario) {
    Por<TRotulo>(AFormulario, u"Ação & reação", {50, 10, 200, 26}).SetQuebraLinha(true);
    Por<TBotao>(AFormulario, u"O&K", {10, 160, 75, 25});
    Por<TGrupoOpcoes>(AFormulario, u"Opções: ", {10, 60, 150, 80});
    Por<TCaixaChecagem>(AFormulario, u"Não perguntar", {170, 60, 140, 17});
    Por<TCaixaEdicao>(AFormulario, u"São João", {170, 80, 140, 22});
    Por<TMemorando>(AFormulario, u"um\ndois\r\ntrês", {170, 105, 140, 50});
    Por<TIcone>(AFormulario, u"", {10, 10, 32, 32}).SetIdIcone(32515);
}

TEST_F(FormsWin32, CadaControleTemClasseEstiloLugarETexto) {
    TFormulario formulario;
    formulario.SetTitulo(u"Realização");
    formulario.SetTamanhoCliente(321, 201);
    PorUmDeCada(formulario);
    Executar(formulario, {[&] {
                 const HWND janela = Janela(formulario);
                 ASSERT_NE(janela, nullptr);
                 RECT cliente{};
                 ::GetClientRect(janela, &cliente);
                 EXPECT_EQ(cliente.right, 321);
                 EXPECT_EQ(cliente.bottom, 201);
                 const auto filhos = Filhos(janela);
                 ASSERT_EQ(filhos.size(), std::size(CRealizados));
                 for (std::size_t i = 0; i < filhos.size(); ++i) {
                     const auto& modelo = *formulario.GetControles()[i];
                     const TRealizado& r = CRealizados[i];
                     wchar_t classe[32];
                     ::GetClassNameW(filhos[i], classe, 32);
                     EXPECT_EQ(::lstrcmpiW(classe, r.Classe), 0) << r.Porque;
                     const LONG_PTR estilo = ::GetWindowLongPtrW(filhos[i], GWL_STYLE);
                     EXPECT_EQ(estilo & r.Estilo, r.Estilo) << r.Porque;
                     EXPECT_EQ(estilo & r.NaoEstilo, 0) << r.Porque;
                     EXPECT_EQ(Retangulo(filhos[i]), modelo.GetRetangulo()) << r.Porque;
                     if (r.Tipo != tcMemorando) {
                         EXPECT_EQ(Texto(filhos[i]), modelo.GetTexto());
                     }
                     if (r.Tipo != tcIcone) {
                         EXPECT_EQ(::SendMessageW(filhos[i], WM_GETFONT, 0, 0),
                                   ::SendMessageW(filhos[0], WM_GETFONT, 0, 0));
                     }
                 }
                 EXPECT_EQ(Texto(filhos[tcMemorando]), u"um\r\ndois\r\ntrês");
                 EXPECT_EQ(::SendMessageW(filhos[tcIcone], STM_GETICON, 0, 0),
                           reinterpret_cast<LRESULT>(::LoadIconW(nullptr, MAKEINTRESOURCEW(32515))));
                 formulario.Fechar();
             }});
    EXPECT_EQ(formulario.BuscarControle(u""), formulario.GetControles()[0].get());
    EXPECT_EQ(formulario.GetControles()[tcMemorando]->GetTexto(), u"um\ndois\r\ntrês") << "not typed in: as it was";
}

TEST_F(FormsWin32, FicaCentradaNaAreaDeTrabalhoOuOndeFoiDesenhada) {
    const TRetangulo area = FToolkit.GetAreaDeTrabalho();
    for (const auto posicao : {pfCentroDaTela, pfDesenhada}) {
        TFormulario formulario;
        formulario.SetTitulo(u"Posição");
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
                     formulario.Fechar();
                 }});
    }
}

TEST_F(FormsWin32, OGrupoTemUmBotaoParaCadaOpcaoDentroDele) {
    for (const int opcoes : {1, 4, 9}) {
        TFormulario formulario;
        formulario.SetTitulo(u"Opções");
        auto& grupo = Por<TGrupoOpcoes>(formulario, u"Opções: ", {20, 5, 250, 40 + 20 * opcoes});
        grupo.SetQuebraLinha(true);
        for (int i = 0; i < opcoes; ++i) grupo.AdicionarItem(u"Opção");
        grupo.SetIndice(opcoes - 1);
        PorBotao(formulario, u"Depois", mrOk);
        Executar(formulario, {[&] {
                     const auto filhos = Filhos(Janela(formulario));
                     ASSERT_EQ(static_cast<int>(filhos.size()), opcoes + 2) << "options come right after their group";
                     int fim = grupo.GetTop();
                     for (int i = 1; i <= opcoes; ++i) {
                         const HWND filho = filhos[static_cast<std::size_t>(i)];
                         const TRetangulo r = Retangulo(filho);
                         EXPECT_GE(r.Top, fim) << "one below the other";
                         EXPECT_GE(r.Height, FToolkit.MedirTexto(u"Opção", 0).Altura);
                         fim = r.Top + r.Height;
                         EXPECT_EQ(::SendMessageW(filho, BM_GETCHECK, 0, 0) == BST_CHECKED, i == opcoes);
                     }
                     EXPECT_LE(fim, grupo.GetTop() + grupo.GetHeight());
                     formulario.Fechar();
                 }});
        EXPECT_EQ(grupo.GetIndice(), opcoes - 1);
    }
}

TEST_F(FormsWin32, OQueMudaNoModeloMudaNaTela) {
    TFormulario formulario;
    formulario.SetTitulo(u"Antes");
    auto& caixa = Por<TCaixaEdicao>(formulario, u"a", {10, 10, 100, 22});
    auto& grupo = Por<TGrupoOpcoes>(formulario, u"Opções: ", {10, 40, 200, 60});
    auto& marca = Por<TCaixaChecagem>(formulario, u"Marca", {10, 110, 100, 17});
    auto& memorando = Por<TMemorando>(formulario, u"", {120, 10, 100, 22});
    PorBotao(formulario, u"OK", mrOk);
    Executar(formulario, {[&] {
                 formulario.SetTitulo(u"Depois");
                 const HWND janela = Janela(formulario);
                 ASSERT_NE(janela, nullptr);
                 const auto filhos = Filhos(janela);
                 caixa.SetTexto(u"b");
                 EXPECT_EQ(Texto(filhos[0]), u"b");
                 caixa.SelecionarTudo();
                 EXPECT_EQ(::SendMessageW(filhos[0], EM_GETSEL, 0, 0), MAKELRESULT(0, 1));
                 caixa.SetLeft(20);
                 EXPECT_EQ(Retangulo(filhos[0]).Left, 20);
                 EXPECT_EQ(::GetFocus(), filhos[0]);
                 caixa.SetHabilitado(false);
                 EXPECT_FALSE(::IsWindowEnabled(filhos[0]));
                 EXPECT_NE(::GetFocus(), filhos[0]) << "nobody types into a disabled box";
                 marca.SetMarcada(true);
                 EXPECT_EQ(::SendMessageW(filhos[2], BM_GETCHECK, 0, 0), BST_CHECKED);
                 marca.SetVisivel(false);
                 EXPECT_FALSE(::IsWindowVisible(filhos[2]));
                 memorando.SetSomenteLeitura(true);
                 EXPECT_TRUE(::GetWindowLongPtrW(filhos[3], GWL_STYLE) & ES_READONLY);
                 grupo.AdicionarItem(u"primeira");
                 grupo.AdicionarItem(u"segunda");
                 grupo.SetIndice(1);
                 auto& nova = Por<TCaixaEdicao>(formulario, u"nova", {10, 130, 100, 22});
                 formulario.SetTamanhoCliente(400, 300);
                 RECT cliente{};
                 ::GetClientRect(janela, &cliente);
                 EXPECT_EQ(cliente.right, 400);
                 EXPECT_EQ(cliente.bottom, 300);
                 const auto agora = Filhos(janela);
                 ASSERT_EQ(agora.size(), 8u);
                 EXPECT_EQ(Texto(agora[2]), u"primeira") << "new options stand next to their group in tab order";
                 EXPECT_EQ(Texto(agora[3]), u"segunda");
                 EXPECT_EQ(::SendMessageW(agora[3], BM_GETCHECK, 0, 0), BST_CHECKED);
                 EXPECT_EQ(Texto(agora[7]), u"nova");
                 EXPECT_EQ(Retangulo(agora[7]), nova.GetRetangulo());
                 nova.ReceberFoco();
                 EXPECT_EQ(::GetFocus(), agora[7]);
                 formulario.Fechar();
             }});
}

TEST_F(FormsWin32, TextosEstranhosNaoQuebram) {
    std::u16string megabyte;
    while (megabyte.size() < 1'000'000)
        megabyte +=
            u"Mensagem muito longa, com acentuação, de um registro de eventos de um dia inteiro de trabalho.\r\n";
    const std::u16string semBranco(50'000, u'x');
    const std::u16string textos[] = {u"",
                                     std::u16string(u"a\0b", 3),
                                     u"só \xD800 e \xDC00 soltos",
                                     u"\U0001F600",
                                     u"\x1\x2\x7F\x85",
                                     u"\n\n\r\r\n",
                                     semBranco,
                                     megabyte};
    for (const auto& texto : textos) {
        TFormulario formulario;
        formulario.SetTitulo(u"Estranho");
        const TTamanho medida = FToolkit.MedirTexto(texto, 500);
        EXPECT_LE(medida.Largura, 500);
        EXPECT_GT(medida.Altura, 0);
        Por<TRotulo>(formulario, texto, {0, 0, 500, 400}).SetQuebraLinha(true);
        auto& memorando = Por<TMemorando>(formulario, texto, {0, 100, 300, 50});
        auto& caixa = Por<TCaixaEdicao>(formulario, std::u16string_view(texto).substr(0, 100'000), {0, 150, 300, 20});
        Executar(formulario, {[&] {
                     const auto filhos = Filhos(Janela(formulario));
                     if (texto == megabyte) {
                         EXPECT_EQ(Texto(filhos[1]), texto) << "no limit cuts it";
                     }
                     ::SendMessageW(filhos[1], EM_SETSEL, 0, 0);
                     ::SendMessageW(filhos[1], EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(L"+"));
                     formulario.SetTitulo(texto.substr(0, 1000));
                     formulario.Fechar();
                 }});
        if (texto.find(u'\0') == texto.npos && texto != u"\n\n\r\r\n") {
            EXPECT_EQ(memorando.GetTexto(), u"+" + texto) << "typed in: the rest stays";
        }
        EXPECT_EQ(caixa.GetTexto(), texto.substr(0, 100'000)) << "not typed in: as it was";
    }
}

TEST_F(FormsWin32, MedidasDoTexto) {
    const int linha = FToolkit.MedirTexto(u"", 0).Altura;
    struct TCaso {
        std::u16string_view Texto;
        int LarguraMaxima, Linhas;
        const char* Porque;
    };
    constexpr TCaso CCasos[] = {
        {u"uma", 0, 1, "one line"},
        {u"uma\r\nduas", 0, 2, "CR LF"},
        {u"uma\nduas\rtrês", 0, 3, "LF and CR alone"},
        {u"uma\r\n\r\ntrês", 300, 3, "an empty line between"},
        {u"uma\r\n", 300, 2, "a break at the end opens a line"},
        {u"uma duas três quatro cinco seis", 0, 1, "no limit: never wraps"},
        {u"iiiiiiiiii iiiiiiiiii", 1000, 1, "wide enough"},
    };
    for (const TCaso& c : CCasos)
        EXPECT_EQ(FToolkit.MedirTexto(c.Texto, c.LarguraMaxima).Altura, c.Linhas * linha) << c.Porque;
    EXPECT_EQ(FToolkit.MedirTexto(u"a&b", 0).Largura, FToolkit.MedirTexto(u"a", 0).Largura +
                                                          FToolkit.MedirTexto(u"&", 0).Largura +
                                                          FToolkit.MedirTexto(u"b", 0).Largura)
        << "& is a character like any other";
    // Each wrap of a text as wide as n words costs a line: the height never grows with the width.
    std::u16string texto;
    for (int i = 0; i < 2000; ++i) texto += u"palavra ";
    int anterior = FToolkit.MedirTexto(texto, 60).Altura;
    for (int largura = 120; largura < 1000; largura *= 2) {
        const TTamanho medida = FToolkit.MedirTexto(texto, largura);
        EXPECT_LE(medida.Largura, largura);
        EXPECT_LT(medida.Altura, anterior);
        EXPECT_GE(static_cast<long>(medida.Altura / linha) * largura, FToolkit.MedirTexto(texto, 0).Largura)
            << "no word is lost";
        anterior = medida.Altura;
    }
    EXPECT_GT(FToolkit.GetTamanhoFonte(), 5);
    EXPECT_GE(FToolkit.GetPixelsPorPolegada(), 72);
}

}  // namespace
}  // namespace OryUtils

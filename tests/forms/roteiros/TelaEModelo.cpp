// What is on the screen is what the model says, and what the user does there reaches the model.
#include "oryutils/characters/Utf.hpp"

#include "forms/roteiros/Roteiros.hpp"

#include <algorithm>
#include <array>

namespace OryUtils {
namespace {

// The kind of line break is each toolkit's own.
std::u16string SoLF(std::u16string_view ATexto) {
    std::u16string texto;
    for (std::size_t i = 0; i < ATexto.size(); ++i)
        if (ATexto[i] != u'\r')
            texto += ATexto[i];
        else if (i + 1 == ATexto.size() || ATexto[i + 1] != u'\n')
            texto += u'\n';
    return texto;
}

std::string Descrever(const TVisto& AVisto) {
    std::string texto = ParaUtf8(SoLF(AVisto.Texto));
    const TRetangulo& r = AVisto.Lugar;
    for (const int n : {r.Left, r.Top, r.Width, r.Height}) texto += ' ' + std::to_string(n);
    if (AVisto.Visivel) texto += " visible";
    if (AVisto.Habilitado) texto += " enabled";
    if (AVisto.Focado) texto += " focused";
    if (AVisto.Marcado) texto += " marked";
    return texto + ' ' + ParaUtf8(AVisto.TextoDasOpcoes) + std::to_string(AVisto.Escolhida);
}

std::vector<std::string> Descrever(const std::vector<TVisto>& AVistos) {
    std::vector<std::string> linhas;
    for (const TVisto& visto : AVistos) linhas.push_back(Descrever(visto));
    return linhas;
}

std::vector<TVisto> VerModelo(const TFormulario& AFormulario) {
    std::vector<TVisto> vistos{
        {{0, 0, AFormulario.GetLarguraCliente(), AFormulario.GetAlturaCliente()}, AFormulario.GetTitulo()}};
    for (const auto& controle : AFormulario.GetControles()) {
        vistos.push_back({controle->GetRetangulo(), controle->GetTexto(), controle->GetVisivel(),
                          controle->GetHabilitado(), AFormulario.GetControleAtivo() == controle.get()});
        TVisto& visto = vistos.back();
        if (const auto* caixa = dynamic_cast<TCaixaChecagem*>(controle.get())) visto.Marcado = caixa->GetMarcada();
        if (const auto* memo = dynamic_cast<TMemorando*>(controle.get())) visto.Marcado = memo->GetSomenteLeitura();
        if (const auto* grupo = dynamic_cast<TGrupoOpcoes*>(controle.get())) {
            visto.Escolhida = grupo->GetIndice();
            for (const auto& item : grupo->GetItens()) visto.TextoDasOpcoes += item + u"\n";
        }
    }
    return vistos;
}

TEST_F(Roteiro, ATelaEhOModeloDesdeOInicioEACadaMudanca) {
    TFormularioCompleto f;
    f.Nao.SetVisivel(false);
    f.Memorando.SetHabilitado(false);
    f.Memorando.SetTexto(u"um\ndois\r\ntrês");
    f.Grupo.SetIndice(1);
    TCaixaEdicao* nova = nullptr;
    const std::pair<const char*, std::function<void()>> mudancas[] = {
        {"as it was built", [] {}},
        {"title", [&] { f.SetTitulo(u"Depois"); }},
        {"size", [&] { f.SetTamanhoCliente(500, 400); }},
        {"text of a label", [&] { f.Mensagem.SetTexto(u"Novo texto"); }},
        {"text of a box", [&] { f.Edicao.SetTexto(u"São João"); }},
        {"place",
         [&] {
             f.Edicao.SetRetangulo({61, 62, 63, 24});
         }},
        {"focus", [&] { f.SetControleAtivo(&f.Caixa); }},
        {"disabled", [&] { f.Sim.SetHabilitado(false); }},
        {"shown", [&] { f.Nao.SetVisivel(true); }},
        {"hidden", [&] { f.Mensagem.SetVisivel(false); }},
        {"checked", [&] { f.Caixa.SetMarcada(true); }},
        {"only read", [&] { f.Memorando.SetSomenteLeitura(true); }},
        {"another option", [&] { f.Grupo.AdicionarItem(u"Quarta"); }},
        {"chosen", [&] { f.Grupo.SetIndice(3); }},
        {"no choice", [&] { f.Grupo.SetIndice(-1); }},
        {"a new control",
         [&] {
             nova = &f.Adicionar<TCaixaEdicao>();
             nova->SetRetangulo({300, 295, 75, 25});
             nova->SetTexto(u"nova");
         }},
        {"which takes the focus", [&] { nova->ReceberFoco(); }},
    };
    FUsuario->Executar(f, {[&] {
                           for (const auto& [porque, mudar] : mudancas) {
                               mudar();
                               EXPECT_EQ(Descrever(FUsuario->Ver(f)), Descrever(VerModelo(f))) << porque;
                           }
                           f.Fechar();
                       }});
    EXPECT_EQ(f.Memorando.GetTexto(), u"um\ndois\r\ntrês") << "not typed in: as it was";
}

TEST_F(Roteiro, AsOpcoesFicamUmaAbaixoDaOutraDentroDoGrupo) {
    for (const int opcoes : {1, 4, 9}) {
        TFormulario f;
        f.SetTitulo(u"Opções");
        auto& grupo = f.Adicionar<TGrupoOpcoes>();
        grupo.SetTexto(u"Opções: ");
        grupo.SetRetangulo({20, 5, 250, 40 + 20 * opcoes});
        grupo.SetQuebraLinha(true);
        for (int i = 0; i < opcoes; ++i) grupo.AdicionarItem(u"Opção");
        FUsuario->Executar(f, {[&] {
                               const TVisto visto = FUsuario->Ver(f)[1];
                               ASSERT_EQ(static_cast<int>(visto.Opcoes.size()), opcoes);
                               int fim = grupo.GetTop();
                               for (const TRetangulo& r : visto.Opcoes) {
                                   EXPECT_GE(r.Top, fim);
                                   EXPECT_GE(r.Height, BuscarToolkit().MedirTexto(u"Opção", 0).Altura);
                                   EXPECT_GE(r.Left, grupo.GetLeft());
                                   EXPECT_LE(r.Left + r.Width, grupo.GetLeft() + grupo.GetWidth());
                                   fim = r.Top + r.Height;
                               }
                               EXPECT_LE(fim, grupo.GetTop() + grupo.GetHeight());
                               f.Fechar();
                           }});
    }
}

// The active control and what the user made of it; a memo is read when it is left.
std::string DescreverAtivo(const TFormularioCompleto& AFormulario) {
    const auto* ativo = AFormulario.GetControleAtivo();
    const std::string nome = ParaUtf8(ativo->GetNome());
    if (ativo == &AFormulario.Edicao) return nome + ' ' + ParaUtf8(ativo->GetTexto());
    if (ativo == &AFormulario.Caixa) return nome + (AFormulario.Caixa.GetMarcada() ? " on" : " off");
    return ativo == &AFormulario.Grupo ? nome + ' ' + std::to_string(AFormulario.Grupo.GetIndice()) : nome;
}

struct TCasoDeGesto {
    void (*Gesto)(TUsuario&);
    const char* Depois;
    const char* Porque;
};
template <std::uint16_t VTecla>
void Dar(TUsuario& AUsuario) {
    AUsuario.Teclar(VTecla);
}
constexpr TCasoDeGesto CGestos[] = {
    {[](auto& u) { u.Escrever("Sa"); }, "Edicao Sa", "in the place of the selected text"},
    {[](auto& u) { u.TeclarComCtrl('A'); }, "Edicao Sa", ""},
    {[](auto& u) { u.Escrever("x"); }, "Edicao x", "Ctrl+A selected what was there"},
    {Dar<CTab>, "Memorando", "Tab goes in the order of creation"},
    {[](auto& u) { u.Escrever("a"); }, "Memorando", ""},
    {Dar<CEnter>, "Memorando", "a memo keeps its Enter"},
    {[](auto& u) { u.Escrever("b"); }, "Memorando", ""},
    {Dar<CTab>, "Caixa off", ""},
    {Dar<CEspaco>, "Caixa on", ""},
    {[](auto& u) { u.TeclarComAlt('P'); }, "Caixa off", "the letter of its caption"},
    {Dar<CTab>, "Grupo -1", "the focus alone chooses nothing"},
    {Dar<CEspaco>, "Grupo 0", ""},
    {Dar<CAbaixo>, "Grupo 1", ""},
    {Dar<CAbaixo>, "Grupo 2", ""},
    {[](auto& u) { u.ClicarComMouse(u"Outra"); }, "Grupo 1", ""},
    {Dar<CAcima>, "Grupo 0", ""},
    {Dar<CTab>, "Sim", ""},
    {Dar<CTab>, "Cancelar", "over the hidden one"},
    {Dar<CTab>, "Edicao x", "and from the last to the first"},
};

TEST_F(Roteiro, OQueOUsuarioFazChegaAoModelo) {
    TFormularioCompleto f;
    f.Nao.SetVisivel(false);
    f.Mensagem.SetTexto(u"Sem letra");  // Wine goes by the letter after the & of a label, though it is shown
    f.Edicao.SetTexto(u"velho");
    f.Edicao.SelecionarTudo();
    std::u16string mudancas;
    TOuvinte<TObjeto*> mudar{[&](TObjeto* AQuem) {
        EXPECT_EQ(AQuem, &f.Edicao);
        mudancas += f.Edicao.GetTexto() + u"|";
    }};
    f.Edicao.OnMudar = mudar.GetEvento();
    TPassos passos;
    for (const TCasoDeGesto& c : CGestos) {
        passos.push_back([&] { c.Gesto(*FUsuario); });
        passos.push_back([&] { EXPECT_EQ(DescreverAtivo(f), c.Depois) << c.Porque; });
    }
    passos.push_back([&] {
        f.Edicao.SetTexto(u"do programa");
        FUsuario->Teclar(CEnter);
    });
    EXPECT_EQ(FUsuario->Executar(f, passos), mrYes);
    EXPECT_EQ(mudancas, u"S|Sa|x|") << "the program's own change is no news";
    EXPECT_EQ(f.Memorando.GetTexto(), u"a\r\nb");
}

TEST_F(Roteiro, OFormularioVeAsTeclasAntesDoControle) {
    TFormulario f;
    f.SetTitulo(u"Teclas");
    auto& caixa = f.Adicionar<TCaixaEdicao>();
    std::string teclas;
    TOuvinte<TObjeto*, TTecla&> teclado{[&](TObjeto*, TTecla& ATecla) {
        if (ATecla.Codigo < 'A') return;
        teclas += (ATecla.Ctrl ? "Ctrl+" : "") + std::string(ATecla.Alt ? "Alt+" : "") +
                  std::string(ATecla.Shift ? "Shift+" : "") + static_cast<char>(ATecla.Codigo) + ' ';
        ATecla.Tratada = ATecla.Codigo >= 'X';
    }};
    f.OnKeyDown = teclado.GetEvento();
    const int resultado = FUsuario->Executar(
        f, {[&] { FUsuario->Teclar('A'); }, [&] { FUsuario->Teclar('X'); }, [&] { FUsuario->TeclarComCtrl('C'); },
            [&] { FUsuario->TeclarComAlt('Z'); }, [&] { FUsuario->Teclar(CEsc); }});
    EXPECT_EQ(resultado, mrCancel) << "Esc closes a form without buttons";
    EXPECT_EQ(teclas, "A X Ctrl+C Alt+Z ");
    EXPECT_EQ(caixa.GetTexto(), u"a") << "X and Z were kept from the box";
}

TEST_F(Roteiro, RedimensionarAvisaComOTamanhoNovo) {
    TFormularioCompleto f;
    f.EstiloBorda = ebRedimensionavel;
    std::vector<TTamanho> tamanhos;
    TOuvinte<TObjeto*> mudou{[&](TObjeto*) { tamanhos.push_back({f.GetLarguraCliente(), f.GetAlturaCliente()}); }};
    f.OnResize = mudou.GetEvento();
    FUsuario->Executar(f, {[&] { f.SetTamanhoCliente(430, 340); },
                           [&] {
                               EXPECT_TRUE(tamanhos.empty()) << "the program's own change is no news";
                               FUsuario->Redimensionar(f, {600, 350});
                           },
                           [&] { f.Fechar(); }});
    EXPECT_EQ(tamanhos, (std::vector<TTamanho>{{600, 350}}));
}

TEST_F(Roteiro, TextosEstranhosNaoQuebram) {
    std::u16string megabyte;
    while (megabyte.size() < 1'000'000)
        megabyte += u"Mensagem muito longa, com acentuação, de um registro de um dia inteiro de trabalho.\r\n";
    const std::u16string textos[] = {u"",
                                     std::u16string(u"a\0b", 3),
                                     u"só \xD800 e \xDC00 soltos",
                                     u"\U0001F600",
                                     u"\x1\x2\x7F\x85",
                                     u"\n\n\r\r\n",
                                     std::u16string(50'000, u'x'),
                                     megabyte};
    for (const auto& texto : textos) {
        TFormularioCompleto f;
        f.Mensagem.SetTexto(texto);
        f.Mensagem.SetQuebraLinha(true);
        f.Memorando.SetTexto(texto);
        f.Edicao.SetTexto(texto.substr(0, 100'000));
        f.SetControleAtivo(&f.Memorando);
        const auto responder = [&] {
            f.SetTitulo(texto.substr(0, 1000));
            FUsuario->Clicar(u"&Não");
        };
        EXPECT_EQ(FUsuario->Executar(f, {[&] { FUsuario->Escrever("+"); }, responder}), mrNo);
        EXPECT_EQ(f.Edicao.GetTexto(), texto.substr(0, 100'000)) << "not typed in: as it was";
        if (texto.find(u'\0') != texto.npos) continue;
        EXPECT_TRUE(SoLF(f.Memorando.GetTexto()) == u"+" + SoLF(texto)) << ParaUtf8(texto.substr(0, 100));
    }
}

TEST_F(Roteiro, MedidasDoTexto) {
    TToolkit& toolkit = BuscarToolkit();
    const auto medir = [&](std::u16string_view ATexto, int ALargura) { return toolkit.MedirTexto(ATexto, ALargura); };
    const int linha = medir(u"Mg", 0).Altura;
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
    for (const TCaso& c : CCasos) EXPECT_EQ(medir(c.Texto, c.LarguraMaxima).Altura, c.Linhas * linha) << c.Porque;
    EXPECT_GT(medir(u"a&b", 0).Largura, medir(u"ab", 0).Largura) << "& is a character like any other";
    // Each wrap of a text as wide as n words costs a line: the height never grows with the width.
    std::u16string texto;
    for (int i = 0; i < 2000; ++i) texto += u"palavra ";
    int anterior = medir(texto, 60).Altura;
    for (int largura = 120; largura < 1000; largura *= 2) {
        const TTamanho medida = medir(texto, largura);
        EXPECT_LE(medida.Largura, largura);
        EXPECT_LT(medida.Altura, anterior);
        EXPECT_GE(static_cast<long>(medida.Altura / linha) * largura, medir(texto, 0).Largura) << "no word is lost";
        anterior = medida.Altura;
    }
    EXPECT_GT(toolkit.GetTamanhoFonte(), 5);
    EXPECT_GE(toolkit.GetPixelsPorPolegada(), 72);
}

}  // namespace
}  // namespace OryUtils

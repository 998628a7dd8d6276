// What a key, a click or an event of the program does to the run of a form.
#include "forms/roteiros/Roteiros.hpp"

#include <thread>

namespace OryUtils {
namespace {

struct TCasoDeResposta {
    TControleFormulario& (*Focado)(TFormularioCompleto&);
    void (*Gesto)(TUsuario&);
    int Esperado;
    const char* Porque;
};
constexpr auto CCaixa = [](TFormularioCompleto& f) -> TControleFormulario& { return f.Edicao; };
constexpr auto CMemorando = [](TFormularioCompleto& f) -> TControleFormulario& { return f.Memorando; };
constexpr auto CChecagem = [](TFormularioCompleto& f) -> TControleFormulario& { return f.Caixa; };
constexpr auto CNao = [](TFormularioCompleto& f) -> TControleFormulario& { return f.Nao; };
constexpr auto CDarEnter = [](TUsuario& u) { u.Teclar(CEnter); };
constexpr auto CDarEsc = [](TUsuario& u) { u.Teclar(CEsc); };
constexpr TCasoDeResposta CRespostas[] = {
    {CCaixa, CDarEnter, mrYes, "Enter in a box presses the default button"},
    {CChecagem, CDarEnter, mrYes, "Enter on a check box too"},
    {CNao, CDarEnter, mrNo, "Enter on a focused button presses that one"},
    {CNao, [](TUsuario& u) { u.Teclar(CEspaco); }, mrNo, "so does the space bar"},
    {CCaixa, CDarEsc, mrCancel, "Esc presses the cancel button"},
    {CMemorando, CDarEsc, mrCancel, "also in a memo"},
    {CCaixa, [](TUsuario& u) { u.TeclarComAlt('N'); }, mrNo, "Alt and the letter of the caption"},
    {CMemorando, [](TUsuario& u) { u.TeclarComAlt('S'); }, mrYes, "Alt and the letter from a memo"},
    {CCaixa, [](TUsuario& u) { u.Clicar(u"&Não"); }, mrNo, "click"},
    {CCaixa, [](TUsuario& u) { u.ClicarComMouse(u"&Cancelar"); }, mrCancel, "pressed and let go by the mouse"},
    {CCaixa, [](TUsuario& u) { u.FecharJanela(); }, mrCancel, "the close box"},
};

TEST_F(Roteiro, RespostasPorTecladoEMouse) {
    for (const TCasoDeResposta& c : CRespostas) {
        TFormularioCompleto f;
        f.SetControleAtivo(&c.Focado(f));
        const auto gesto = [&] {
            EXPECT_EQ(f.GetControleAtivo(), &c.Focado(f)) << c.Porque;
            c.Gesto(*FUsuario);
        };
        EXPECT_EQ(FUsuario->Executar(f, {gesto}), c.Esperado) << c.Porque;
        EXPECT_EQ(f.GetJanela(), nullptr) << c.Porque;
    }
}

struct TCasoDeErro {
    void (*Montar)(TFormularioCompleto&, TEvento<TObjeto*>, TEvento<TObjeto*, TTecla&>);
    void (*Gesto)(TUsuario&);
    const char* Onde;
};
constexpr TCasoDeErro CErros[] = {
    {[](auto& f, auto e, auto) { f.OnShow = e; }, nullptr, "the show event"},
    {[](auto& f, auto e, auto) { f.Sim.OnClick = e; }, [](auto& u) { u.Clicar(u"&Sim"); }, "a button"},
    {[](auto& f, auto e, auto) { f.Edicao.OnSair = e; }, [](auto& u) { u.Teclar(CTab); }, "the focus that leaves"},
    {[](auto& f, auto e, auto) { f.Edicao.OnMudar = e; }, [](auto& u) { u.Escrever("x"); }, "a typed letter"},
    {[](auto& f, auto, auto t) { f.OnKeyDown = t; }, [](auto& u) { u.Teclar('A'); }, "a key"},
};

TEST_F(Roteiro, ExcecoesSaemDepoisDoLaco) {
    TOuvinte<TObjeto*> evento{[](TObjeto*) { throw EConvertError(u"não é número"); }};
    TOuvinte<TObjeto*, TTecla&> tecla{[](TObjeto*, TTecla&) { throw EConvertError(u"não é número"); }};
    for (const TCasoDeErro& c : CErros) {
        TFormularioCompleto f;
        c.Montar(f, evento.GetEvento(), tecla.GetEvento());
        TPassos passos;
        if (c.Gesto) passos.push_back([&] { c.Gesto(*FUsuario); });
        EXPECT_THROW(FUsuario->Executar(f, passos), EConvertError) << c.Onde;
        EXPECT_EQ(f.GetJanela(), nullptr) << c.Onde;
        EXPECT_FALSE(FUsuario->HaFormulario()) << c.Onde;
    }
}

TEST_F(Roteiro, AExcecaoDeDentroPassaPeloDeForaQueAPodeTratar) {
    TFormularioCompleto fora(u"Fora"), dentro(u"Dentro");
    TOuvinte<TObjeto*> falhar{[](TObjeto*) { throw std::string("qualquer tipo"); }};
    bool pegou = false;
    TOuvinte<TObjeto*> abrir{[&](TObjeto*) {
        try {
            dentro.ExecutarModal();
        } catch (const std::string&) {
            pegou = true;
        }
    }};
    dentro.OnShow = falhar.GetEvento();
    fora.Nao.OnClick = abrir.GetEvento();
    EXPECT_EQ(FUsuario->Executar(fora, {[&] { FUsuario->TeclarComAlt('N'); }}), mrNo);
    EXPECT_TRUE(pegou);
}

TEST_F(Roteiro, AbortEhSilencioso) {
    TFormularioCompleto f;
    TOuvinte<TObjeto*> abortar{[](TObjeto*) { Abort(); }};
    f.OnShow = abortar.GetEvento();
    f.Sim.OnClick = abortar.GetEvento();
    const int resultado = FUsuario->Executar(f, {[&] { FUsuario->Clicar(u"&Sim"); },
                                                 [&] {
                                                     EXPECT_EQ(f.GetModalResult(), mrNone) << "nothing is closed";
                                                     FUsuario->Clicar(u"&Não");
                                                 }});
    EXPECT_EQ(resultado, mrNo);
}

TEST_F(Roteiro, TemporizadorFechaEDesligaASiMesmo) {
    TFormularioCompleto f;
    TToolkit& toolkit = BuscarToolkit();
    int vezes = 0;
    std::uintptr_t numero = 0;
    numero = toolkit.LigarTemporizador(10, [&, guardado = std::string(64, 'x')] {
        if (++vezes < 3) return;
        toolkit.DesligarTemporizador(numero);
        EXPECT_EQ(guardado.size(), 64u) << "the action outlives its timer";
        f.Fechar();
    });
    EXPECT_NE(numero, 0u);
    EXPECT_EQ(f.ExecutarModal(), mrCancel);
    toolkit.DesligarTemporizador(numero);
    toolkit.ProcessarMensagens();
    EXPECT_EQ(vezes, 3);
}

struct TCasoDeSaida {
    bool Aceita;
    void (*Sair)(TUsuario&);
    std::string_view Esperado;
    const char* Porque;
};
constexpr auto CTeclarTab = [](TUsuario& u) { u.Teclar(CTab); };
constexpr auto CClicarSalvar = [](TUsuario& u) { u.ClicarComMouse(u"&Salvar"); };
constexpr TCasoDeSaida CSaidas[] = {
    {true, CTeclarTab, "saiu A.saiu B.", "left twice, both fine"},
    {false, CTeclarTab, "saiu A.saiu A.", "the focus comes back from B before anybody is there"},
    {true, CClicarSalvar, "saiu A.clicou.clicou.", "the exit comes before the click"},
    {false, CClicarSalvar, "saiu A.saiu A.", "a refused exit drops the click"},
};

TEST_F(Roteiro, SairDaCaixaPodeSerRecusado) {
    for (const TCasoDeSaida& c : CSaidas) {
        TFormulario formulario;
        formulario.SetTitulo(u"Saída");
        std::string visto;
        auto& a = formulario.Adicionar<TCaixaEdicao>();
        auto& b = formulario.Adicionar<TCaixaEdicao>();
        auto& salvar = formulario.Adicionar<TBotao>();
        a.SetRetangulo({0, 0, 100, 22});
        b.SetRetangulo({0, 30, 100, 22});
        salvar.SetRetangulo({0, 160, 75, 25});
        salvar.SetTexto(u"&Salvar");
        TOuvinte<TObjeto*> sairA{[&](TObjeto*) {
            visto += "saiu A.";
            if (c.Aceita) return;
            a.ReceberFoco();
            // The warning, while it is up, takes the focus away from the form: nothing is left by that.
            TFormularioCompleto aviso(u"Aviso");
            FUsuario->Executar(aviso, {[&] { FUsuario->Teclar(CEnter); }});
            Abort();
        }};
        TOuvinte<TObjeto*> sairB{[&](TObjeto*) { visto += "saiu B."; }};
        TOuvinte<TObjeto*> clicar{[&](TObjeto*) { visto += "clicou."; }};
        a.OnSair = sairA.GetEvento();
        b.OnSair = sairB.GetEvento();
        salvar.OnClick = clicar.GetEvento();
        const auto sair = [&] { c.Sair(*FUsuario); };
        const auto conferir = [&] {
            EXPECT_EQ(formulario.GetControleAtivo() == &a, !c.Aceita) << c.Porque;
            formulario.Fechar();
        };
        EXPECT_EQ(FUsuario->Executar(formulario, {sair, sair, conferir}), mrCancel) << "EAbort is silent";
        EXPECT_EQ(visto, c.Esperado) << c.Porque;
    }
}

TEST_F(Roteiro, OFormularioDeForaContinuaDepoisDoDeDentro) {
    TFormularioCompleto fora(u"Fora"), dentro(u"Dentro");
    TOuvinte<TObjeto*> abrir{[&](TObjeto*) {
        const auto responder = [&] {
            EXPECT_THROW(fora.ExecutarModal(), Exception) << "it is shown already";
            FUsuario->Clicar(u"&Não");
        };
        EXPECT_EQ(FUsuario->Executar(dentro, {responder}), mrNo);
    }};
    fora.Sim.OnClick = abrir.GetEvento();
    fora.Sim.SetModalResult(mrNone);
    const int resultado =
        FUsuario->Executar(fora, {[&] { FUsuario->Clicar(u"&Sim"); }, [&] { FUsuario->ClicarComMouse(u"&Cancelar"); }});
    EXPECT_EQ(resultado, mrCancel);
}

TEST_F(Roteiro, SoAThreadDaInterfaceMostra) {
    TToolkit& toolkit = BuscarToolkit();
    EXPECT_TRUE(toolkit.EhThreadDaInterface());
    std::thread([&] {
        EXPECT_FALSE(toolkit.EhThreadDaInterface());
        EXPECT_THROW(TFormulario().ExecutarModal(), Exception);
    }).join();
}

}  // namespace
}  // namespace OryUtils

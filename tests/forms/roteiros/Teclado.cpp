// Walks through every dialog by the keyboard alone.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "forms/roteiros/Roteiros.hpp"

#include <map>

namespace OryUtils {
namespace {

/// "Tab", "Shift+Tab", "Alt+N", "Ctrl+C"; one letter alone is typed.
void Dar(TUsuario& AUsuario, const std::string& ATecla) {
    static const std::map<std::string, std::uint16_t> teclas{{"Tab", CTab},     {"Enter", CEnter}, {"Esc", CEsc},
                                                             {"Up", CAcima},    {"Down", CAbaixo}, {"F1", CF1},
                                                             {"Space", CEspaco}};
    const auto mais = ATecla.find('+');
    const std::string tecla = mais == std::string::npos ? ATecla : ATecla.substr(mais + 1);
    if (ATecla.starts_with("Alt+"))
        AUsuario.TeclarComAlt(tecla[0]);
    else if (ATecla.starts_with("Ctrl+"))
        AUsuario.TeclarComCtrl(tecla[0]);
    else if (ATecla.starts_with("Shift+"))
        AUsuario.TeclarComShift(teclas.at(tecla));
    else if (const auto achada = teclas.find(tecla); achada != teclas.end())
        AUsuario.Teclar(achada->second);
    else
        AUsuario.Escrever(tecla.c_str());
}

/// "*Uma [Sim]": the option Uma has the focus and is chosen, Enter presses Sim.
std::string Descrever(const TFoco& AFoco) {
    return (AFoco.Marcado ? "*" : "") + ParaUtf8(AFoco.Texto) + " [" + ParaUtf8(AFoco.BotaoPadrao) + "]";
}

struct TPassoDeTecla {
    const char* Tecla;
    const char* Depois;  ///< null: the dialog is gone
};
struct TCasoDePasseio {
    const char* Dialogo;
    int (*Mostrar)(TOryUtilsDialogs&);
    const char* NoInicio;
    std::vector<TPassoDeTecla> Passos;
    int Resultado;
};

template <typename TParametros>
TParametros Montar() {
    TParametros parametros;
    parametros.Titulo = u"Título";
    parametros.Mensagem = u"Uma mensagem.";
    parametros.TipoDialogo = mtConfirmation;
    parametros.Botoes = {mbYes, mbCancel};
    parametros.CaptionBotoes = {u"&Imprimir", u"&Cancelar"};
    parametros.BotaoPadrao = mrYes;
    return parametros;
}

template <int VOpcao>
int ComOpcoes(TOryUtilsDialogs& ADialogos) {
    auto parametros = Montar<TOryUtilsDialogsFormCustomizadoComOpcoesIOP>();
    parametros.OpcoesMensagem = {u"&Uma", u"&Outra", u"&Terceira"};
    parametros.OpcaoPadrao = VOpcao;
    const auto retorno = ADialogos.ConfirmacaoCustomizadaComOpcoes(parametros);
    return retorno->RetornoMensagem * 100 + retorno->IndiceOpcao;
}

int ComCaixa(TOryUtilsDialogs& ADialogos) {
    auto parametros = Montar<TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP>();
    parametros.TextoCaixaChecagem = u"&Não perguntar";
    const auto retorno = ADialogos.ConfirmacaoCustomizadaComCaixaChecagem(parametros);
    return retorno->RetornoMensagem * 100 + retorno->CaixaChecagem;
}

int ComDetalhes(TOryUtilsDialogs& ADialogos) {
    auto parametros = Montar<TOryUtilsDialogsFormCustomizadoComDetalhesIOP>();
    parametros.MensagemDetalhe = u"detalhe";
    return ADialogos.ConfirmacaoCustomizadaComDetalhes(parametros);
}

int ComEntrada(TOryUtilsDialogs& ADialogos) {
    std::u16string valor = u"velho";
    if (!ADialogos.InputQuery(u"Título", u"Valor:", valor)) return -1;
    return valor == u"ci" ? 1 : 0;
}

const TCasoDePasseio CPasseios[] = {
    {"a message",
     [](auto& d) { return d.Informacao(u"Feito."); },
     "OK [OK]",
     {{"Tab", "OK [OK]"}, {"Down", "OK [OK]"}, {"x", "OK [OK]"}, {"Enter", nullptr}},
     mrOk},
    {"a question",
     [](auto& d) { return d.ConfirmacaoRetornoModal(u"Excluir?", btNo); },
     "Não [Não]",
     {{"Tab", "Sim [Sim]"}, {"Shift+Tab", "Não [Não]"}, {"Down", "Sim [Sim]"}, {"Up", "Não [Não]"}, {"s", nullptr}},
     mrYes},
    {"a question left by Esc",
     [](auto& d) { return d.ConfirmacaoRetornoModal(u"Excluir?", btYes); },
     "Sim [Sim]",
     {{"Esc", nullptr}},
     mrCancel},
    {"a question answered by Alt and a letter",
     [](auto& d) { return d.ConfirmacaoRetornoModal(u"Excluir?", btYes); },
     "Sim [Sim]",
     {{"Alt+N", nullptr}},
     mrNo},
    {"options, the second of them chosen before",
     ComOpcoes<1>,
     "Imprimir [Imprimir]",
     {{"Tab", "Cancelar [Cancelar]"},
      {"Tab", "*Outra [Imprimir]"},
      {"Space", "*Outra [Imprimir]"},
      {"Down", "*Terceira [Imprimir]"},
      {"Down", "*Uma [Imprimir]"},
      {"Up", "*Terceira [Imprimir]"},
      {"Tab", "Imprimir [Imprimir]"},
      {"Shift+Tab", "*Terceira [Imprimir]"},
      {"o", "*Outra [Imprimir]"},
      {"Enter", nullptr}},
     mrYes * 100 + 1},
    {"options of which none is chosen",
     ComOpcoes<-1>,
     "Imprimir [Imprimir]",
     {{"Shift+Tab", "Uma [Imprimir]"}, {"Down", "*Outra [Imprimir]"}, {"i", nullptr}},
     mrYes * 100 + 1},
    {"a check box",
     ComCaixa,
     "Imprimir [Imprimir]",
     {{"Shift+Tab", "Não perguntar [Imprimir]"},
      {"Space", "*Não perguntar [Imprimir]"},
      {"n", "Não perguntar [Imprimir]"},
      {"Alt+N", "*Não perguntar [Imprimir]"},
      {"Enter", nullptr}},
     mrYes * 100 + 1},
    {"details",
     ComDetalhes,
     "Imprimir [Imprimir]",
     {{"Shift+Tab", "Mostrar Detalhes [Mostrar Detalhes]"},
      {"Space", "Ocultar Detalhes [Ocultar Detalhes]"},
      {"Tab", "detalhe [Imprimir]"},
      {"i", "detalhe [Imprimir]"},
      {"Tab", "Imprimir [Imprimir]"},
      {"Enter", nullptr}},
     mrYes},
    {"a line of text",
     ComEntrada,
     "velho [OK]",
     {{"c", "c [OK]"},
      {"i", "ci [OK]"},
      {"Tab", "OK [OK]"},
      {"Tab", "Cancelar [Cancelar]"},
      {"Down", "OK [OK]"},
      {"Tab", "Cancelar [Cancelar]"},
      {"Shift+Tab", "OK [OK]"},
      {"k", nullptr}},
     1},
};

TEST_F(Roteiro, PasseiosPeloTeclado) {
    for (const TCasoDePasseio& c : CPasseios) {
        SCOPED_TRACE(c.Dialogo);
        TPassos passos{[&] { EXPECT_EQ(Descrever(FUsuario->VerFoco()), c.NoInicio); }};
        for (const TPassoDeTecla& p : c.Passos) {
            passos.push_back([&] { Dar(*FUsuario, p.Tecla); });
            if (p.Depois)
                passos.push_back([&] { EXPECT_EQ(Descrever(FUsuario->VerFoco()), p.Depois) << "after " << p.Tecla; });
        }
        passos.push_back([&] {
            ADD_FAILURE() << "the last key closes";
            FUsuario->FecharJanela();
        });
        TOryUtilsDialogs dialogos;
        FUsuario->Conduzir(passos, [&] { EXPECT_EQ(c.Mostrar(dialogos), c.Resultado); });
    }
}

#define TRACO "---------------------------\n"

// Higher than the screen.
const std::u16string CLonga = u"linha" + std::u16string(300, u'\n') + u"fim";

struct TCasoDeCopia {
    int (*Mostrar)(TOryUtilsDialogs&);
    std::vector<const char*> Teclas;  ///< before Ctrl+C
    std::string Copiado;
    const char* Porque;
};
const TCasoDeCopia CCopias[] = {
    {[](auto& d) { return d.ConfirmacaoRetornoModal(u"Excluir\r\ntudo?", btNo, u"Cuidado"); },
     {},
     TRACO "Cuidado\n" TRACO "Excluir\ntudo?\n" TRACO "Sim   Não   \n" TRACO,
     "as the system's own boxes do"},
    {ComOpcoes<0>,
     {"Shift+Tab", "Down"},
     TRACO "Título\n" TRACO "Uma mensagem.\n( ) Uma\n(x) Outra\n( ) Terceira\n" TRACO "Imprimir   Cancelar   \n" TRACO,
     "with what is chosen now"},
    {ComCaixa,
     {"n"},
     TRACO "Título\n" TRACO "Uma mensagem.\n[x] Não perguntar\n" TRACO "Imprimir   Cancelar   \n" TRACO,
     ""},
    {ComDetalhes, {}, "Uma mensagem.\n\ndetalhe", "a detail form copies its texts"},
    {[](auto& d) { return d.Informacao(CLonga); },
     {"Tab", "Ctrl+A"},
     ParaUtf8(CLonga),
     "what is selected goes before the whole"},
};

TEST_F(Roteiro, CtrlCCopiaAMensagem) {
    for (const TCasoDeCopia& c : CCopias) {
        TPassos passos;
        for (const char* tecla : c.Teclas) passos.push_back([&, tecla] { Dar(*FUsuario, tecla); });
        passos.push_back([&] { Dar(*FUsuario, "Ctrl+C"); });
        std::string copiado;
        passos.push_back([&] {
            copiado = ParaUtf8(FUsuario->LerAreaDeTransferencia());
            FUsuario->FecharJanela();
        });
        TOryUtilsDialogs dialogos;
        FUsuario->Conduzir(passos, [&] { c.Mostrar(dialogos); });
        std::erase(copiado, '\r');
        EXPECT_EQ(copiado, c.Copiado) << c.Porque;
    }
}

TEST_F(Roteiro, AjudaPorF1EPeloBotao) {
    std::vector<int> contextos;
    TOuvinte<TObjeto*, int> ajuda{[&](TObjeto*, int AContexto) { contextos.push_back(AContexto); }};
    EventoDeAjuda() = ajuda.GetEvento();
    TOryUtilsDialogs dialogos;
    TOryUtilsDialogsFormCustomizadoComDetalhesIOP parametros;
    parametros.Botoes = {mbOK, mbHelp};
    parametros.CaptionBotoes = {u"O&K", u"&Ajuda"};
    parametros.ContextoAjuda = 42;
    TPassos passos;
    for (const char* tecla : {"F1", "a", "Alt+A", "Esc"}) passos.push_back([this, tecla] { Dar(*FUsuario, tecla); });
    FUsuario->Conduzir(passos, [&] { EXPECT_EQ(dialogos.ConfirmacaoCustomizadaComDetalhes(parametros), mrCancel); });
    EXPECT_EQ(contextos, (std::vector<int>{42, 42, 42}));
    std::u16string valor;
    FUsuario->Conduzir({[&] { Dar(*FUsuario, "F1"); }, [&] { Dar(*FUsuario, "Esc"); }},
                       [&] { dialogos.InputQuery(u"T", u"Valor", valor); });
    EXPECT_EQ(contextos, (std::vector<int>{42, 42, 42, 0})) << "an input box has no context";
    EventoDeAjuda() = {};
}

}  // namespace
}  // namespace OryUtils

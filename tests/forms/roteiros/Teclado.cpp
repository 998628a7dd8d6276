// Walks through every dialog by the keyboard alone.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Formatos.hpp"
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
        AUsuario.TeclarComCtrl(tecla == "Enter" ? static_cast<char>(CEnter) : tecla[0]);
    else if (ATecla.starts_with("Shift+"))
        AUsuario.TeclarComShift(teclas.at(tecla));
    else if (const auto achada = teclas.find(tecla); achada != teclas.end())
        AUsuario.Teclar(achada->second);
    else
        AUsuario.Escrever(tecla.c_str());
}

/// "*Uma [Sim]": the option Uma has the focus and is chosen, Enter presses Sim.
std::string Descrever(TFoco AFoco) {
    std::erase(AFoco.Texto, u'\r');
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

// The answer of a request, as the walks compare answers.
template <typename T>
int Comparar(bool AConfirmou, const T& AValor, const T& AEsperado) {
    if (!AConfirmou) return -1;
    EXPECT_EQ(AValor, AEsperado);
    return 1;
}

template <TTipoTexto VTipo>
int ComTexto(TOryUtilsDialogs& ADialogos, const char16_t* AProposto, const char16_t* AEsperado) {
    std::u16string valor = AProposto;
    const TOryUtilsDialogsPedidoTextoIOP parametros{
        .Titulo = u"Título", .Pergunta = u"Valor:", .Tipo = VTipo, .Obrigatorio = true};
    return Comparar(ADialogos.PedirTexto(parametros, valor), valor, std::u16string(AEsperado));
}

int ComSenha(TOryUtilsDialogs& ADialogos) {
    std::u16string senha = u"antes";
    return Comparar(ADialogos.PedirSenha(u"Título", u"Senha:", senha), senha, std::u16string(u" s1"));
}

int ComLinhas(TOryUtilsDialogs& ADialogos) {
    std::u16string valor = u"a\nb";
    const bool confirmou = ADialogos.PedirLinhas({.Titulo = u"Título", .Pergunta = u"Texto:"}, valor);
    return Comparar(confirmou, valor, std::u16string(u"um\r\ndois"));
}

template <bool VVarios>
int ComLista(TOryUtilsDialogs& ADialogos, std::vector<std::int32_t> AEscolhidos, std::vector<std::int32_t> AEsperado) {
    const bool confirmou = ADialogos.PedirEscolha({.Titulo = u"Título",
                                                   .Pergunta = u"Cidade:",
                                                   .Itens = {u"Santos", u"Rio & Cia", u"São Paulo", u"Salvador"},
                                                   .Varios = VVarios},
                                                  AEscolhidos);
    return Comparar(confirmou, AEscolhidos, AEsperado);
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
    {"a check box that would have the answer remembered",
     [](auto& d) {
         auto parametros = Montar<TOryUtilsDialogsFormCustomizadoLembradaIOP>();
         parametros.Chave = u"Teclado";
         return d.ConfirmacaoCustomizadaLembrada(parametros)->RetornoMensagem;
     },
     "Imprimir [Imprimir]",
     {{"Shift+Tab", "Não perguntar novamente [Imprimir]"},
      {"Space", "*Não perguntar novamente [Imprimir]"},
      {"Tab", "Imprimir [Imprimir]"},
      {"Tab", "Cancelar [Cancelar]"},
      {"Alt+P", "Não perguntar novamente [Imprimir]"},
      {"Alt+P", "*Não perguntar novamente [Imprimir]"},
      {"Esc", nullptr}},
     mrCancel},
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
    {"a CPF, first a wrong one, which stays in its box",
     [](auto& d) { return ComTexto<ttCPF>(d, u"1", u"52998224725"); },
     "   .   .   -   [OK]",
     {{"x", "   .   .   -   [OK]"},
      {"52998224726", "529.982.247-26 [OK]"},
      {"Enter", "OK [OK]"},
      {"Enter", "529.982.247-26 [OK]"},
      {"Tab", "OK [OK]"},
      {"Space", "OK [OK]"},
      {"Enter", "529.982.247-26 [OK]"},
      {"52998224725", "529.982.247-25 [OK]"},
      {"Enter", nullptr}},
     1},
    {"a number, read by its marks",
     [](auto& d) { return ComTexto<ttNumero>(d, u"1,5", u"1234,5"); },
     "1,5 [OK]",
     {{"1.234,50x", "1.234,50 [OK]"}, {"Enter", nullptr}},
     1},
    {"a date, left by Esc",
     [](auto& d) { return ComTexto<ttData>(d, u"31/12/2024", u""); },
     "31/12/2024 [OK]",
     {{"5/3/24", "5_/3_/24__ [OK]"}, {"Esc", nullptr}},
     -1},
    {"a required text, then the answer",
     [](auto& d) { return ComTexto<ttLivre>(d, u"", u"a"); },
     " [OK]",
     {{"Enter", "OK [OK]"}, {"Enter", " [OK]"}, {"a", "a [OK]"}, {"Enter", nullptr}},
     1},
    {"a password, blanks and all",
     ComSenha,
     " [OK]",
     {{" s1", " s1 [OK]"},
      {"Tab", "OK [OK]"},
      {"Tab", "Cancelar [Cancelar]"},
      {"Shift+Tab", "OK [OK]"},
      {"k", nullptr}},
     1},
    {"lines",
     ComLinhas,
     "a\nb [OK]",
     {{"Ctrl+A", "a\nb [OK]"},
      {"um", "um [OK]"},
      {"Enter", "um\n [OK]"},
      {"dois", "um\ndois [OK]"},
      {"Tab", "OK [OK]"},
      {"Shift+Tab", "um\ndois [OK]"},
      {"Ctrl+Enter", nullptr}},
     1},
    {"an item of a list, found by typing",
     [](auto& d) { return ComLista<false>(d, {}, {3}); },
     " [OK]",
     {{"sa", "sa [OK]"},
      {"Down", "*Santos [OK]"},
      {"Down", "*São Paulo [OK]"},
      {"Down", "*Salvador [OK]"},
      {"Up", "*São Paulo [OK]"},
      {"Down", "*Salvador [OK]"},
      {"Tab", "OK [OK]"},
      {"Shift+Tab", "*Salvador [OK]"},
      {"Enter", nullptr}},
     1},
    {"the item that typing leaves first, by Enter at once",
     [](auto& d) { return ComLista<false>(d, {0}, {1}); },
     " [OK]",
     {{"CIA", "CIA [OK]"}, {"Enter", nullptr}},
     1},
    {"no item of a list",
     [](auto& d) { return ComLista<false>(d, {}, {}); },
     " [OK]",
     {{"Enter", "OK [OK]"}, {"Enter", "Santos [OK]"}, {"Esc", nullptr}},
     -1},
    {"several items, chosen under two searches",
     [](auto& d) {
         return ComLista<true>(d, {0}, {0, 1, 3});
     },
     " [OK]",
     {{"rio", "rio [OK]"},
      {"Down", "Rio & Cia [OK]"},
      {"Space", "*Rio & Cia [OK]"},
      {"Shift+Tab", "rio [OK]"},
      {"Ctrl+A", "rio [OK]"},
      {"s", "s [OK]"},
      {"Down", "*Santos [OK]"},
      {"Down", "São Paulo [OK]"},
      {"Space", "*São Paulo [OK]"},
      {"Space", "São Paulo [OK]"},
      {"Down", "Salvador [OK]"},
      {"Space", "*Salvador [OK]"},
      {"Enter", nullptr}},
     1},
};

TEST_F(Roteiro, PasseiosPeloTeclado) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
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

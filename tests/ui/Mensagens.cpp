#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/OryUtilsDialogs.hpp"

#include "ToolkitRoteirizado.hpp"

namespace OryUtils {
namespace {

constexpr std::uint16_t CEnter = 13;
constexpr std::uint16_t CEsc = 27;

TEST_F(TesteDialogos, CadaTipoDeBotao) {
    struct TCaso {
        TMsgDlgBtn Tipo;
        const char16_t *Caption, *Nome;
        int Resultado;
    };
    constexpr TCaso CCasos[] = {
        {mbYes, u"&Sim", u"Yes", 6},
        {mbNo, u"&Não", u"No", 7},
        {mbOK, u"O&K", u"OK", 1},
        {mbCancel, u"&Cancelar", u"Cancel", 2},
        {mbAbort, u"A&bortar", u"Abort", 3},
        {mbRetry, u"&Retry", u"Retry", 4},  // stays in English
        {mbIgnore, u"&Ignorar", u"Ignore", 5},
        {mbAll, u"To&dos", u"All", 8},
        {mbNoToAll, u"Nã&o p/ Todos", u"NoToAll", 9},
        {mbYesToAll, u"Si&m p/ Todos", u"YesToAll", 10},
        {mbHelp, u"&Ajuda", u"Help", 2},  // help closes nothing: the window's button does
        {mbClose, u"&Fechar", u"Close", 11},
    };
    for (const TCaso& caso : CCasos) {
        EXPECT_EQ(OryMsg::Textos().BuscarCaption(caso.Tipo), caso.Caption);
        Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
            ASSERT_EQ(AFormulario.GetBotoes().size(), 1U);
            EXPECT_EQ(AFormulario.GetBotoes()[0]->GetNome(), caso.Nome);
            BuscarBotao(AFormulario, caso.Caption).Clicar();
        });
        // Another kind second in the list changes nothing: the single button keeps its own result.
        EXPECT_EQ(Dialogos.ConfirmacaoCustomizada(u"?", mtCustom, {caso.Tipo, caso.Tipo}, 0, u"T",
                                                  {CCaptionsBotao[caso.Tipo]}),
                  caso.Resultado)
            << ParaUtf8(caso.Caption);
    }
}

TEST_F(TesteDialogos, AvisosDasDuasGeracoes) {
    struct TCaso {
        std::function<int(std::u16string_view)> Mostrar;
        const char16_t* Titulo;
        int Icone;
    };
    const TCaso casos[] = {
        {[&](auto m) { return Dialogos.Informacao(m); }, u"Informação", 32516},
        {[&](auto m) { return Dialogos.Alerta(m); }, u"Aviso", 32515},
        {[&](auto m) { return Dialogos.Erro(m); }, u"Erro", 32513},
        {[](auto m) { return OryMsg::Information(m); }, u"Informação", 32516},
        {[](auto m) { return OryMsg::Warning(m); }, u"Aviso", 32515},
        {[](auto m) { return OryMsg::Error(m); }, u"Erro", 32513},
    };
    for (const TCaso& caso : casos) {
        Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
            EXPECT_EQ(AFormulario.GetTitulo(), caso.Titulo);
            EXPECT_EQ(AFormulario.Posicao, pfCentroDaTela);
            EXPECT_EQ(BuscarTexto(AFormulario, u"Message"), u"R&D: CNPJ inválido. Verifique.");
            const auto* icone = dynamic_cast<TIcone*>(AFormulario.BuscarControle(u"Image"));
            ASSERT_TRUE(icone);
            EXPECT_EQ(icone->GetIdIcone(), caso.Icone);
            EXPECT_TRUE(Teclar(AFormulario, CEnter)) << "O&K has the focus";
        });
        EXPECT_EQ(caso.Mostrar(u"R&D: CNPJ inválido. Verifique."), mrOk);
    }
    EXPECT_EQ(CCaptionsDialogo[mtWarning], u"Atenção") << "differs from the title of Alerta on purpose";
}

TEST_F(TesteDialogos, TitulosETeclasDasConfirmacoes) {
    struct TCaso {
        TButtonType Padrao;
        std::uint16_t Tecla;
        int Resultado;
        const char16_t *Dado, *Nova, *Antiga;
        const char* Porque;
    };
    constexpr TCaso CCasos[] = {
        {btYes, CEnter, mrYes, u"", u"Confirmação", u"Confirmação", "no title"},
        {btNo, CEnter, mrNo, u" \t ", u"Confirmação", u" \t ", "blank: only the newer generation trims"},
        {btNone, CEnter, mrYes, u" Clientes ", u" Clientes ", u" Clientes ", "a given title stays as it is"},
        {btYes, CEsc, mrCancel, u"T", u"T", u"T", "Esc never says yes"},
        {btNo, 0, mrCancel, u"T", u"T", u"T", "the window's button"},
    };
    for (const TCaso& caso : CCasos) {
        SCOPED_TRACE(caso.Porque);
        const auto passo = [&](TFormulario& AFormulario) {
            EXPECT_FALSE(Teclar(AFormulario, CEnter, false, true)) << "with Shift no command";
            if (caso.Tecla) Teclar(AFormulario, caso.Tecla);
        };
        Toolkit.Roteiro = {passo, passo, passo};
        EXPECT_EQ(Dialogos.ConfirmacaoRetornoModal(u"?", caso.Padrao, caso.Dado), caso.Resultado);
        EXPECT_EQ(Toolkit.Titulos.back(), caso.Nova);
        EXPECT_EQ(OryMsg::Confirmation(u"?", caso.Padrao, caso.Dado), caso.Resultado == mrYes);
        EXPECT_EQ(Toolkit.Titulos.back(), caso.Antiga);
        EXPECT_EQ(OryMsg::ConfirmationType(u"?", caso.Padrao), caso.Resultado == mrYes);
        EXPECT_EQ(Toolkit.Titulos.back(), u"Confirmação");
    }
}

// The k-th button in kind order gets the k-th caption and the result of the k-th kind of the list.
TEST_F(TesteDialogos, CaptionsEResultadosSeguemAsListas) {
    struct TCaso {
        std::vector<TMsgDlgBtn> Botoes;
        std::vector<std::u16string> Captions;
        int Padrao;
        const char* Esperado;  // each button's name, caption and result; a star at the focus
        const char* Porque;
    };
    const TCaso casos[] = {
        {{mbYes, mbNo}, {u"Vai", u"Fica"}, mrNo, "Yes=Vai 6, No=Fica 7*, ", "kind order"},
        {{mbCancel, mbYes}, {u"Volta", u"Vai"}, mrYes, "Yes=Volta 2, Cancel=Vai 6*, ", "list order differs"},
        {{mbNo, mbOK, mbYes},
         {u"N"},
         mrNone,
         "Yes=N 7, No=O&K 1*, OK=&Sim 6, ",
         "missing captions: usual ones of what the button answers; OK is the default"},
        {{mbYes, mbYes, mbNo},
         {u"A", u"B", u"C"},
         mrYes,
         "Yes=A 6, No=B 6*, ",
         "a repeated kind: the set is smaller than the lists"},
        {{mbRetry, mbIgnore},
         {u"R", u"I", u"sobra"},
         mrAbort,
         "Retry=R 4*, Ignore=I 5, ",
         "default that no button has; a caption too many"},
        {{mbClose, mbHelp}, {u"F", u"A"}, mrNone, "Help=F 11, Close=A 0*, ", "0 is the result of help"},
        {{mbNo}, {u"Só"}, mrYes, "No=Só 7*, ", "single button"},
        {{static_cast<TMsgDlgBtn>(99), mbYes}, {u"X"}, mrNone, "Yes=X 6*, ", "unknown ordinal"},
    };
    for (const TCaso& caso : casos) {
        const auto formulario =
            OryMsg::GetConfirmationCustomForm(u"?", mtConfirmation, caso.Botoes, caso.Padrao, u"T", caso.Captions);
        std::string visto;
        for (const TBotao* botao : formulario->GetBotoes()) {
            const bool foco = formulario->GetControleAtivo() == botao;
            EXPECT_TRUE(!foco || botao->GetPadrao()) << caso.Porque;
            visto += ParaUtf8(botao->GetNome() + u"=" + botao->GetTexto()) + ' ' +
                     std::to_string(botao->GetModalResult()) + (foco ? "*, " : ", ");
        }
        EXPECT_EQ(visto, caso.Esperado) << caso.Porque;
        Toolkit.Roteiro.push_back([](TFormulario& AFormulario) { Teclar(AFormulario, CEsc); });
        EXPECT_EQ(formulario->ExecutarModal(), mrCancel) << caso.Porque << ": Esc follows the result, not the kind";
    }
}

TEST_F(TesteDialogos, TextosTrocadosPeloHospedeiro) {
    struct TRestauro {
        ~TRestauro() { TextosDialogos().Restaurar(); }
    } restauro;
    TextosDialogos().Substituir(mbNo, u"&No");
    EXPECT_EQ(TextosDialogos().Buscar(tdNao), u"&No") << "the same text under both names";
    TextosDialogos().Substituir(static_cast<TMsgDlgBtn>(CQuantidadeBotoes), u"ignored");
    TextosDialogos().Substituir(tdSim, u"&Yes, of course, please");
    TextosDialogos().Substituir(tdAviso, u"Warning");
    TextosDialogos().Substituir(static_cast<TTextoDialogo>(77), u"ignored");
    Toolkit.Roteiro.push_back(
        [](TFormulario& AFormulario) { BuscarBotao(AFormulario, u"&Yes, of course, please").Clicar(); });
    EXPECT_TRUE(Dialogos.Confirmacao(u"?", btNo));
    Dialogos.Alerta(u"!");
    EXPECT_EQ(Toolkit.Titulos.back(), u"Warning");
    OryMsg::Warning(u"!");
    EXPECT_EQ(Toolkit.Titulos.back(), u"Aviso") << "each generation has its own texts";
    PreencherLargurasBotao();
    EXPECT_EQ(CLarguraBotao[mbYes], 134);  // 23 characters at 8 points: 133.8
    TextosDialogos().Restaurar();
    PreencherLargurasBotao();
    EXPECT_EQ(CLarguraBotao[mbYes], 75);
    EXPECT_EQ(CCaptionsBotao[mbYes], u"&Sim");
}

std::string ColherErro(const std::function<void()>& AAcao) {
    try {
        AAcao();
    } catch (const Exception& erro) {
        return erro.what();
    }
    return "nothing raised";
}

TEST_F(TesteDialogos, ParametrosObrigatorios) {
    for (const bool temBotoes : {false, true}) {
        TOryUtilsDialogsFormCustomizadoComOpcoesIOP opcoes;
        if (temBotoes) opcoes.Botoes = {mbOK};
        TOryUtilsDialogsFormCustomizadoComDetalhesIOP detalhes;
        detalhes.Assign(opcoes);
        const std::string mensagem = std::string("TOryUtilsDialogsFormCustomizadoIOP.") +
                                     (temBotoes ? "CaptionBotoes" : "Botoes") + ": preenchimento obrigatório.";
        EXPECT_EQ(ColherErro([&] { opcoes.ValidarPropriedades(); }), mensagem);
        EXPECT_EQ(ColherErro([&] { Dialogos.ConfirmacaoCustomizadaComOpcoes(opcoes); }), mensagem);
        EXPECT_EQ(ColherErro([&] { Dialogos.ConfirmacaoCustomizadaComDetalhes(detalhes); }), mensagem);
        EXPECT_EQ(ColherErro([&] { OryMsg::ConfirmationCustom(u"", mtError, opcoes.Botoes, 0, u"", {}); }), mensagem);
    }
    EXPECT_TRUE(Toolkit.Titulos.empty());
    EXPECT_EQ(Dialogos.GetFormularioAtual(), nullptr);
}

TEST_F(TesteDialogos, OutraThreadRecebeErro) {
    Toolkit.DaInterface = false;
    std::u16string valor;
    bool marcada = false;
    const std::function<void()> operacoes[] = {
        [&] { Dialogos.Alerta(u"a"); },
        [&] { Dialogos.Confirmacao(u"a", btYes); },
        [&] { Dialogos.InformacaoDetalhada({}); },
        [&] { Dialogos.InputQuery(u"a", u"b", valor); },
        [&] { Dialogos.BuscarArquivoSelecionado(u""); },
        [&] { Dialogos.BuscarPastaSelecionada(u"", u""); },
        [&] { Dialogos.EscolherArquivos({}); },
        [&] { OryMsg::Error(u"a"); },
        [&] { OryMsg::ConfirmacaoComCaixaChecagem(u"", mtError, {mbOK}, 0, u"", {u""}, u"", pccAcima, marcada); },
        [&] {
            const TAcumuloNotificacoes acumulo(Dialogos.GetCentralNotificacoes());
            Dialogos.Informacao(u"a");
        },
    };
    for (const auto& operacao : operacoes)
        EXPECT_EQ(ColherErro(operacao), "Formulários só podem ser mostrados pela thread da interface do usuário.");
    EXPECT_TRUE(Dialogos.GetCentralNotificacoes().GetMensagens().empty());
}

TEST_F(TesteDialogos, ObjetosDeParametrosCopiamTudo) {
    TOryUtilsDialogsFormCustomizadoComOpcoesIOP origem, copia;
    origem.Assign(
        TOryUtilsDialogsFormCustomizadoBaseIOP{u"t", mrNo, mtError, u"m", {mbNo, mbYes, mbNo}, {u"a"}, true, 1500});
    origem.OpcaoPadrao = 1;
    origem.OpcoesMensagem = {u"x", u"y"};
    copia.Assign(origem);
    EXPECT_EQ(copia, origem);
    TOryUtilsDialogsFormCustomizadoComDetalhesIOP detalhes;
    detalhes.MensagemDetalhe = u"fica";
    detalhes.Assign(origem);  // from the common base: its own properties stay
    EXPECT_EQ(detalhes.MensagemDetalhe, u"fica");
    EXPECT_EQ(static_cast<TOryUtilsDialogsFormCustomizadoBaseIOP&>(detalhes), origem);
    EXPECT_EQ(detalhes.GetListaDeBotoes(), (TMsgDlgButtons{mbYes, mbNo}));
}

TEST_F(TesteDialogos, Seletores) {
    EXPECT_EQ(Dialogos.BuscarArquivoSelecionado(u"C:\\"), u"") << "cancelled";
    Toolkit.Escolha = u"C:\\lote.txt";
    EXPECT_EQ(Dialogos.BuscarArquivoSelecionado(u"", {u"Textos", u"Planilhas", u"sobra"}, {u"*.txt;*.csv", u"*.xls"}),
              u"C:\\lote.txt");
    EXPECT_EQ(GetArquivoSelecionado(u""), u"C:\\lote.txt");
    GetArquivoSelecionado(u"", u"Imagens|*.png|Tudo", u"*");
    EXPECT_EQ(OryMsg::BrowseDialog(u"t"), u"C:\\lote.txt");
    std::vector<std::u16string> vistos;
    for (const TPedidoDeCaminho& pedido : Toolkit.Pedidos) {
        if (pedido.Selecao == scPasta) continue;
        std::u16string texto;
        for (const auto& filtro : pedido.Filtros) texto += filtro.Descricao + u"=" + filtro.Mascara + u" ";
        vistos.push_back(texto);
    }
    EXPECT_EQ(vistos, (std::vector<std::u16string>{u"Todos=*.* ", u"Textos=*.txt;*.csv Planilhas=*.xls ", u"Todos=*.* ",
                                                   u"Imagens=*.png Tudo=* "}));
    Toolkit.Pedidos.clear();
    const TOryUtilsDialogsSelecaoIOP parametros{.Titulo = u"t",
                                                .PastaInicial = u"p",
                                                .Filtros = {{u"Notas", u"*.xml"}},
                                                .NomeSugerido = u"a/b\\c: \"1\"?.xml",
                                                .ExtensaoPadrao = u"xml"};
    EXPECT_EQ(Dialogos.EscolherArquivo(parametros), u"C:\\lote.txt");
    EXPECT_EQ(Dialogos.EscolherArquivos(parametros), std::vector<std::u16string>{u"C:\\lote.txt"});
    EXPECT_EQ(Dialogos.EscolherArquivoParaSalvar(parametros), u"C:\\lote.txt");
    EXPECT_EQ(Dialogos.EscolherPasta(parametros), u"C:\\lote.txt");
    ASSERT_EQ(Toolkit.Pedidos.size(), 4U);
    for (int i = 0; i < 4; ++i) {
        const TPedidoDeCaminho& pedido = Toolkit.Pedidos[static_cast<std::size_t>(i)];
        EXPECT_EQ(pedido.Selecao, i) << "in the order of TSelecaoDeCaminho";
        EXPECT_EQ(pedido.Titulo + pedido.PastaInicial + pedido.ExtensaoPadrao, u"tpxml");
        EXPECT_EQ(pedido.NomeSugerido, u"a_b_c_ _1__.xml") << "what no file name may have";
        EXPECT_EQ(pedido.Filtros, parametros.Filtros);
    }
    Toolkit.Escolha.reset();
    EXPECT_EQ(Dialogos.EscolherArquivoParaSalvar({}), u"") << "cancelled";
}

TEST_F(TesteDialogos, EntradaDeTexto) {
    const auto digitar = [&](std::uint16_t ATecla) {
        Toolkit.Roteiro.push_back([ATecla](TFormulario& AFormulario) {
            auto* edicao = dynamic_cast<TCaixaEdicao*>(AFormulario.GetControleAtivo());
            ASSERT_TRUE(edicao);
            EXPECT_TRUE(edicao->GetSelecionarTudo());
            EXPECT_EQ(edicao->GetTexto(), u"antes");
            EXPECT_EQ(BuscarTexto(AFormulario, u"Message"), u"Nome:");
            edicao->AceitarTexto(u"depois");
            Teclar(AFormulario, ATecla);
        });
    };
    std::u16string valor = u"antes";
    digitar(CEsc);
    EXPECT_FALSE(Dialogos.InputQuery(u"T", u"Nome:", valor));
    EXPECT_EQ(valor, u"antes");
    digitar(CEsc);
    EXPECT_EQ(OryMsg::InputBox(u"T", u"Nome:", valor), u"antes");
    digitar(CEnter);
    EXPECT_EQ(Dialogos.InputBox(u"T", u"Nome:", valor), u"depois");
    digitar(CEnter);
    EXPECT_TRUE(OryMsg::InputQuery(u"T", u"Nome:", valor));
    EXPECT_EQ(valor, u"depois");
}

}  // namespace
}  // namespace OryUtils

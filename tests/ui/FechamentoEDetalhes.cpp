#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/OryUtilsDialogs.hpp"

#include "ToolkitRoteirizado.hpp"

#include <stdexcept>

namespace OryUtils {
namespace {

TOryUtilsDialogsFormCustomizadoIOP MontarTemporizada(int AMilissegundos) {
    TOryUtilsDialogsFormCustomizadoIOP parametros;
    parametros.Mensagem = u"Encerrar o sistema?";
    parametros.Botoes = {mbYes, mbNo};
    parametros.CaptionBotoes = {u"&Sim", u"&Não"};
    parametros.BotaoPadrao = mrYes;
    parametros.FecharMensagemAutomaticamente = true;
    parametros.TempoFinalizacaoAutomatica = AMilissegundos;
    return parametros;
}

TEST_F(TesteDialogos, MensagemQueSeFecha) {
    const auto parametros = MontarTemporizada(150000);
    const auto formulario = Dialogos.BuscarFormularioConfirmacaoCustomizado(parametros);
    EXPECT_TRUE(Toolkit.Temporizadores.empty()) << "built, not shown";
    const std::pair<TToolkitRoteirizado::TPasso, int> fins[] = {
        {[this](TFormulario&) {
             Toolkit.VencerTempo();
             EXPECT_FALSE(Dialogos.GetTemporizadorLigado()) << "off from the first tick on";
         },
         mrCancel},
        {[](TFormulario& AFormulario) { BuscarBotao(AFormulario, u"&Sim").Clicar(); }, mrYes},
        {[](TFormulario&) { throw std::runtime_error("event of the host"); }, -1},
        {[](TFormulario& AFormulario) { AFormulario.Fechar(); }, mrCancel},
    };
    for (const auto& [fim, esperado] : fins) {
        Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
            EXPECT_EQ(BuscarTexto(AFormulario, u"Message"),
                      u"Encerrar o sistema?\r\n\r\nObservação: \r\nEsta mensagem será fechada automaticamente em "
                      u"00:02:30 minuto(s) caso não haja intervenção.");
            ASSERT_EQ(Toolkit.Temporizadores.size(), 1U);
            EXPECT_EQ(Toolkit.Temporizadores.begin()->second.first, 150000);
            EXPECT_TRUE(Dialogos.GetTemporizadorLigado());
            EXPECT_EQ(Dialogos.GetConfiguracao(), parametros);
            fim(AFormulario);
        });
        int resultado = -1;
        try {
            resultado = formulario->ExecutarModal();
        } catch (const std::runtime_error&) {
        }
        EXPECT_EQ(resultado, esperado);
        EXPECT_TRUE(Toolkit.Temporizadores.empty());
    }
    Toolkit.Roteiro.push_back(
        [&](TFormulario&) { EXPECT_TRUE(Toolkit.Temporizadores.empty()) << "no time, no timer"; });
    Dialogos.ConfirmacaoCustomizada(MontarTemporizada(0));
}

TEST_F(TesteDialogos, OBotaoPadraoContaOsSegundos) {
    auto parametros = MontarTemporizada(2500);
    parametros.MostrarTempoRestante = true;
    const auto esperar = [&](TFormulario& AFormulario, std::u16string_view ALegenda, int AMilissegundos) {
        EXPECT_EQ(BuscarBotao(AFormulario, u"&Sim").GetLegenda(), ALegenda);
        ASSERT_EQ(Toolkit.Temporizadores.size(), AMilissegundos ? 1U : 0U);
        for (const auto& temporizador : Toolkit.Temporizadores) EXPECT_EQ(temporizador.second.first, AMilissegundos);
    };
    const auto formulario = Dialogos.BuscarFormularioConfirmacaoCustomizado(parametros);
    const int largura = formulario->GetBotoes()[0]->GetWidth();
    Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
        esperar(AFormulario, u"&Sim (3)", 500);
        Toolkit.VencerTempo();
        esperar(AFormulario, u"&Sim (2)", 1000);
        Toolkit.VencerTempo();
        esperar(AFormulario, u"&Sim (1)", 1000);
        EXPECT_EQ(AFormulario.GetBotoes()[0]->GetWidth(), largura);
        Toolkit.VencerTempo();
        EXPECT_NE(AFormulario.GetModalResult(), mrNone);
    });
    EXPECT_EQ(formulario->ExecutarModal(), mrCancel);
    EXPECT_TRUE(Dialogos.GetFechadaPorTempo());
    for (const auto& intervir : {std::function<void(TFormulario&)>([](TFormulario& f) { Teclar(f, 16); }),
                                 std::function<void(TFormulario&)>([](TFormulario& f) { f.AoIntervir(); })}) {
        Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
            Toolkit.VencerTempo();
            intervir(AFormulario);
            esperar(AFormulario, u"&Sim", 0);
            EXPECT_EQ(AFormulario.GetModalResult(), mrNone) << "it waits now";
            BuscarBotao(AFormulario, u"&Não").Clicar();
        });
        EXPECT_EQ(formulario->ExecutarModal(), mrNo);
        EXPECT_FALSE(Dialogos.GetFechadaPorTempo());
    }
}

// A message shown by an event of another leaves the outer one's timer and place alone.
TEST_F(TesteDialogos, MensagensAninhadas) {
    Toolkit.Roteiro.push_back([&](TFormulario& AFora) {
        Toolkit.Roteiro.push_back([&](TFormulario& ADentro) {
            EXPECT_EQ(Dialogos.GetFormularioAtual(), &ADentro);
            EXPECT_FALSE(Dialogos.GetTemporizadorLigado());
            Toolkit.VencerTempo();  // the outer one's time ends behind the inner message
            EXPECT_EQ(ADentro.GetModalResult(), mrNone);
            EXPECT_EQ(AFora.GetModalResult(), mrCancel);
            BuscarBotao(ADentro, u"O&K").Clicar();
        });
        EXPECT_EQ(Dialogos.Alerta(u"De dentro"), mrOk);
        EXPECT_EQ(Dialogos.GetFormularioAtual(), &AFora);
    });
    EXPECT_EQ(Dialogos.ConfirmacaoCustomizada(MontarTemporizada(1000)), mrCancel);
    EXPECT_EQ(Dialogos.GetFormularioAtual(), nullptr);
}

TEST_F(TesteDialogos, FormularioViveMaisQueOsDialogos) {
    auto dialogos = std::make_unique<TOryUtilsDialogs>();
    const auto formulario = dialogos->BuscarFormularioConfirmacaoCustomizado(MontarTemporizada(1000));
    dialogos.reset();
    Toolkit.Roteiro.push_back([&](TFormulario&) { Toolkit.VencerTempo(); });
    EXPECT_EQ(formulario->ExecutarModal(), mrCancel);
}

TEST_F(TesteDialogos, DetalheAbreEFecha) {
    Toolkit.Roteiro.push_back([](TFormulario& AFormulario) {
        const auto* memorando = AFormulario.BuscarControle(u"Detalhe");
        const int altura = AFormulario.GetAlturaCliente();
        EXPECT_FALSE(memorando->GetVisivel());
        BuscarBotao(AFormulario, u"Mostrar &Detalhes").Clicar();
        EXPECT_TRUE(memorando->GetVisivel());
        EXPECT_GE(AFormulario.GetAlturaCliente(), memorando->GetTop() + memorando->GetHeight());
        BuscarBotao(AFormulario, u"Ocultar &Detalhes").Clicar();
        EXPECT_FALSE(memorando->GetVisivel());
        EXPECT_EQ(AFormulario.GetAlturaCliente(), altura);
        EXPECT_EQ(AFormulario.GetModalResult(), mrNone);
        EXPECT_EQ(AFormulario.ContextoAjuda, 42);
        BuscarBotao(AFormulario, u"Tentar").Clicar();
    });
    TOryUtilsDialogsFormCustomizadoComDetalhesIOP parametros;
    parametros.Mensagem = u"Falhou.";
    parametros.MensagemDetalhe = u"linha 1\r\nlinha 2";
    parametros.Botoes = {mbRetry, mbAbort};
    parametros.CaptionBotoes = {u"Tentar", u"Parar"};
    parametros.ContextoAjuda = 42;
    EXPECT_EQ(Dialogos.ConfirmacaoCustomizadaComDetalhes(parametros), mrRetry);
}

TEST_F(TesteDialogos, CtrlCCopiaTudo) {
    const auto conferir = [&](TFormulario& AFormulario, TTecla ATecla, std::u16string_view AEsperado) {
        Toolkit.AreaDeTransferencia.clear();
        Toolkit.Bipes = 0;
        EXPECT_EQ(AFormulario.TratarTecla(ATecla), !AEsperado.empty());
        EXPECT_EQ(Toolkit.AreaDeTransferencia, AEsperado);
        EXPECT_EQ(Toolkit.Bipes, AEsperado.empty() ? 0 : 1);
    };
    Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
        conferir(AFormulario, {.Codigo = 'C', .Ctrl = true}, u"Falhou.\r\n\r\nlinha 1");
        conferir(AFormulario, {.Codigo = 'C'}, u"");
        conferir(AFormulario, {.Codigo = 'C', .Shift = true, .Ctrl = true}, u"");
        conferir(AFormulario, {.Codigo = 'C', .Ctrl = true, .Alt = true}, u"");
        conferir(AFormulario, {.Codigo = 'X', .Ctrl = true}, u"");
    });
    OryMsg::InfoDlg(u"Falhou.", u"linha 1");
    Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
        EXPECT_EQ(AFormulario.GetTitulo(), u"Atenção") << "the kind's title";
        EXPECT_FALSE(AFormulario.BuscarControle(u"Detalhes")->GetHabilitado()) << "no detail to show";
        conferir(AFormulario, {.Codigo = 'C', .Ctrl = true}, u"Só isto");
        BuscarBotao(AFormulario, u"&Fechar").Clicar();
    });
    EXPECT_EQ(OryMsg::DetailDlg(u"Só isto", u"", mtWarning, {mbClose}), mrClose);
}

TEST_F(TesteDialogos, CentralGuardaEMostraDeUmaVez) {
    auto& central = Dialogos.GetCentralNotificacoes();
    EXPECT_EQ(central.Exibir(), mrNone) << "nothing to show";
    {
        const TAcumuloNotificacoes fora(central);
        {
            const TAcumuloNotificacoes dentro(central);
            EXPECT_EQ(Dialogos.Alerta(u"primeira"), mrNone);
        }
        EXPECT_EQ(Dialogos.Erro(u"segunda"), mrNone) << "the outer accumulation still counts";
        Toolkit.Roteiro.push_back([](TFormulario& AFormulario) { AFormulario.GetBotoes()[0]->Clicar(); });
        EXPECT_TRUE(Dialogos.Confirmacao(u"?", btYes)) << "questions need their answer now";
    }
    EXPECT_EQ(Toolkit.Titulos.size(), 1U);
    EXPECT_EQ(central.GetMensagens(), (std::vector<std::u16string>{u"Aviso: \r\nprimeira", u"Erro: \r\nsegunda"}));
    Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
        EXPECT_TRUE(AFormulario.BuscarControle(u"Detalhe")->GetVisivel());
        EXPECT_EQ(BuscarTexto(AFormulario, u"Detalhe"), u"Aviso: \r\nprimeira\r\n\r\nErro: \r\nsegunda");
        EXPECT_EQ(BuscarTexto(AFormulario, u"Message"), u"Mensagens registradas: 2");
        EXPECT_EQ(static_cast<TIcone*>(AFormulario.BuscarControle(u"Image"))->GetIdIcone(), CIDsIcones[mtError]);
        central.Adicionar(u"Aviso", u"chegou enquanto mostrava");
        BuscarBotao(AFormulario, u"O&K").Clicar();
    });
    EXPECT_EQ(central.Exibir(), mrOk);
    EXPECT_EQ(central.GetMensagens().size(), 1U) << "what arrived meanwhile is not lost";
    central.Limpar();
    central.FinalizarAcumulo();  // one too many
    central.IniciarAcumulo();
    EXPECT_TRUE(central.EstahAcumulando());
}

TEST_F(TesteDialogos, GeracaoAntigaUsaACentralDaInstanciaGlobal) {
    GOryUtilsDialogs.Criar();
    {
        auto& central = GOryUtilsDialogs->GetCentralNotificacoes();
        const TAcumuloNotificacoes acumulo(central);
        EXPECT_EQ(OryMsg::Warning(u"w"), mrNone);
        EXPECT_EQ(central.GetMensagens(), std::vector<std::u16string>{u"Aviso: \r\nw"});
    }
    GOryUtilsDialogs.Liberar();
    EXPECT_TRUE(Toolkit.Titulos.empty());
    OryMsg::Warning(u"sem biblioteca iniciada");
    EXPECT_EQ(Toolkit.Titulos.size(), 1U);
}

}  // namespace
}  // namespace OryUtils

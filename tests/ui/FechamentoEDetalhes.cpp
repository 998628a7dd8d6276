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
    Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
        EXPECT_EQ(BuscarTexto(AFormulario, u"Message"),
                  u"Encerrar o sistema?\r\n\r\nObservação: \r\nEsta mensagem será fechada automaticamente em 00:02:30 "
                  u"minuto(s) caso não haja intervenção.");
        ASSERT_EQ(Toolkit.Temporizadores.size(), 1U);
        EXPECT_EQ(Toolkit.Temporizadores.begin()->second.first, 150000);
        EXPECT_TRUE(Dialogos.GetTemporizadorLigado());
        EXPECT_EQ(Dialogos.GetConfiguracao(), parametros);
        Toolkit.VencerTempo();
        EXPECT_FALSE(Dialogos.GetTemporizadorLigado()) << "off from the first tick on";
    });
    EXPECT_EQ(Dialogos.ConfirmacaoCustomizada(parametros), mrCancel);
    EXPECT_EQ(Dialogos.GetFormularioAtual(), nullptr);
}

TEST_F(TesteDialogos, TemporizadorLigadoSoEnquantoMostra) {
    const auto parametros = MontarTemporizada(5000);
    const auto formulario = Dialogos.BuscarFormularioConfirmacaoCustomizado(parametros);
    EXPECT_TRUE(Toolkit.Temporizadores.empty()) << "built, not shown";
    const std::vector<TToolkitRoteirizado::TPasso> fins{
        [](TFormulario& AFormulario) { BuscarBotao(AFormulario, u"&Sim").Clicar(); },
        [](TFormulario&) { throw std::runtime_error("event of the host"); },
        [](TFormulario& AFormulario) { AFormulario.Fechar(); },
    };
    for (const auto& fim : fins) {
        Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
            EXPECT_EQ(Toolkit.Temporizadores.size(), 1U);
            fim(AFormulario);
        });
        try {
            formulario->ExecutarModal();
        } catch (const std::runtime_error&) {
        }
        EXPECT_TRUE(Toolkit.Temporizadores.empty());
    }
    Toolkit.Roteiro.push_back(
        [&](TFormulario&) { EXPECT_TRUE(Toolkit.Temporizadores.empty()) << "no time, no timer"; });
    Dialogos.ConfirmacaoCustomizada(MontarTemporizada(0));
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
        BuscarBotao(AFormulario, u"Mostrar Detalhes").Clicar();
        EXPECT_TRUE(memorando->GetVisivel());
        EXPECT_GE(AFormulario.GetAlturaCliente(), memorando->GetTop() + memorando->GetHeight());
        BuscarBotao(AFormulario, u"Ocultar Detalhes").Clicar();
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
    struct TCaso {
        char Tecla;
        bool Ctrl, Shift, Alt, Copia;
    };
    constexpr TCaso CCasos[] = {
        {'C', true, false, false, true}, {'C', false, false, false, false}, {'C', true, true, false, false},
        {'C', true, false, true, false}, {'X', true, false, false, false},
    };
    Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
        for (const TCaso& caso : CCasos) {
            Toolkit.AreaDeTransferencia.clear();
            Toolkit.Bipes = 0;
            EXPECT_EQ(Teclar(AFormulario, static_cast<std::uint16_t>(caso.Tecla), caso.Ctrl, caso.Shift, caso.Alt),
                      caso.Copia);
            EXPECT_EQ(Toolkit.AreaDeTransferencia, caso.Copia ? u"Falhou.\r\n\r\nlinha 1" : u"");
            EXPECT_EQ(Toolkit.Bipes, caso.Copia ? 1 : 0);
        }
    });
    OryMsg::InfoDlg(u"Falhou.", u"linha 1");
    Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
        EXPECT_EQ(AFormulario.GetTitulo(), u"Atenção") << "the kind's title";
        EXPECT_FALSE(AFormulario.BuscarControle(u"Detalhes")->GetHabilitado()) << "no detail to show";
        Teclar(AFormulario, 'C', true);
        EXPECT_EQ(Toolkit.AreaDeTransferencia, u"Só isto");
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

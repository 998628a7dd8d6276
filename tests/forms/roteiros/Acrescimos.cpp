// What dialogs do beyond their first texts: seconds that count down.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "forms/roteiros/Roteiros.hpp"

namespace OryUtils {
namespace {

TEST_F(Roteiro, AContagemParaComAPrimeiraTeclaOuClique) {
    const std::function<void()> gestos[] = {
        [this] { FUsuario->Teclar(CTab); },
        [this] { FUsuario->Escrever("x"); },
        [this] { FUsuario->ClicarComMouse(u"&Lembrar"); },
    };
    TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP parametros;
    parametros.Botoes = {mbYes, mbNo};
    parametros.CaptionBotoes = {u"&Sim", u"&Não"};
    parametros.TextoCaixaChecagem = u"&Lembrar";
    parametros.FecharMensagemAutomaticamente = true;
    parametros.MostrarTempoRestante = true;
    parametros.TempoFinalizacaoAutomatica = 900'000;
    for (const auto& gesto : gestos) {
        TOryUtilsDialogs dialogos;
        const auto contar = [&] {
            EXPECT_TRUE(FUsuario->VerFoco().BotaoPadrao.starts_with(u"Sim ("))
                << ParaUtf8(FUsuario->VerFoco().BotaoPadrao);
        };
        const auto conferir = [&] {
            EXPECT_FALSE(dialogos.GetTemporizadorLigado());
            bool semSegundos = false;
            for (const TNativo& n : FUsuario->Medir().Controles) semSegundos |= n.Cabe && n.Texto == u"&Sim";
            EXPECT_TRUE(semSegundos);
            FUsuario->FecharJanela();
        };
        FUsuario->Conduzir({contar, gesto, conferir},
                           [&] { dialogos.ConfirmacaoCustomizadaComCaixaChecagem(parametros); });
        EXPECT_FALSE(dialogos.GetFechadaPorTempo());
    }
}

}  // namespace
}  // namespace OryUtils

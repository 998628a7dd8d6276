// What dialogs do beyond their first texts: seconds that count down, progress.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "forms/roteiros/Roteiros.hpp"

#include <chrono>
#include <thread>

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
    const auto telas = FUsuario->BuscarTelas();
    for (const auto& gesto : gestos) {
        FUsuario->AbrirEm(static_cast<std::size_t>(&gesto - gestos) * 10 % telas.size());
        TOryUtilsDialogs dialogos;
        const auto contar = [&] {
            const std::u16string padrao = FUsuario->VerFoco().BotaoPadrao;
            EXPECT_TRUE(padrao.starts_with(u"Sim (") && padrao.ends_with(u")")) << ParaUtf8(padrao);
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

TEST_F(Roteiro, OAndamentoSegueAteAlguemCancelar) {
    const std::function<void()> gestos[] = {
        [this] { FUsuario->ClicarComMouse(u"&Cancelar"); },
        [this] { FUsuario->Teclar(CEsc); },
        [this] { FUsuario->Teclar(CEnter); },
        [this] { FUsuario->TeclarComAlt('C'); },
        [this] { FUsuario->FecharJanela(); },
    };
    TOryUtilsDialogs dialogos;
    for (const auto& gesto : gestos) {
        bool cancelado = false;
        const auto trabalhar = [&] {
            const auto andamento = dialogos.MostrarAndamento({.Titulo = u"Cópia", .Mensagem = u"Copiando"});
            double percentual = -1;
            while (percentual < 100'000'000 && andamento->Atualizar(percentual, u"arquivo")) ++percentual;
            cancelado = andamento->FoiCancelado();
            EXPECT_TRUE(FUsuario->HaFormulario());
        };
        FUsuario->Conduzir({gesto}, trabalhar);
        EXPECT_TRUE(cancelado) << &gesto - gestos;
        EXPECT_FALSE(FUsuario->HaFormulario());
    }
}

TEST_F(Roteiro, OsTextosDoAndamentoCabemEmQualquerTela) {
    const std::u16string textos[] = {u"curto", u"Copiando /home/ana/" + std::u16string(200, u'M') + u"/fim", u"curto",
                                     std::u16string(300, u'\n') + u"fim", u"curto"};
    TOryUtilsDialogs dialogos;
    const auto telas = FUsuario->BuscarTelas();
    for (std::size_t tela = 0; tela < telas.size(); tela += 3) {
        FUsuario->AbrirEm(tela);
        const auto andamento = dialogos.MostrarAndamento({.Titulo = u"Cópia"});
        for (const std::u16string& texto : textos) {
            // Drawn within the time of a redraw.
            for (int i = 0; i < 5; ++i, std::this_thread::sleep_for(std::chrono::milliseconds(10)))
                EXPECT_TRUE(andamento->Atualizar(i, texto));
            const TVisao visao = FUsuario->Medir();
            const TRetangulo &j = visao.Janela, &t = telas[tela];
            EXPECT_TRUE(j.Left >= t.Left && j.Top >= t.Top && j.Left + j.Width <= t.Left + t.Width &&
                        j.Top + j.Height <= t.Top + t.Height)
                << tela;
            std::u16string visto;
            for (const TNativo& n : visao.Controles) {
                EXPECT_TRUE(n.Cabe) << tela << ParaUtf8(n.Texto.substr(0, 40));
                EXPECT_LE(n.Lugar.Top + n.Lugar.Height, visao.Cliente.Altura);
                visto += n.Texto;
            }
            const auto cauda = texto.substr(texto.size() - 3);
            EXPECT_NE(visto.find(cauda), visto.npos) << tela;
        }
    }
}

}  // namespace
}  // namespace OryUtils

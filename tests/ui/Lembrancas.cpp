// Answers that are remembered: in the settings of the user, below the name of this program.
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Registro.hpp"

#include "ToolkitRoteirizado.hpp"

namespace OryUtils {
namespace {

struct TLembrancas : TesteDialogos {
    TLembrancas() { Dialogos.EsquecerRespostas(); }
    ~TLembrancas() override { Dialogos.EsquecerRespostas(); }

    TOryUtilsDialogsFormCustomizadoLembradaIOP Parametros = [] {
        TOryUtilsDialogsFormCustomizadoLembradaIOP parametros;
        parametros.Mensagem = u"Fechar com o caixa aberto?";
        parametros.Botoes = {mbYes, mbNo, mbCancel};
        parametros.CaptionBotoes = {u"&Sim", u"&Não", u"&Cancelar"};
        parametros.Chave = u"Fechar: caixa\\aberto";
        return parametros;
    }();

    /// The next dialog is answered by that button, its box checked or not.
    void Responder(std::u16string ACaption, bool ALembrar) {
        Toolkit.Roteiro = {[=](TFormulario& AFormulario) {
            auto& caixa = dynamic_cast<TCaixaChecagem&>(*AFormulario.BuscarControle(u"CaixaChecagem"));
            EXPECT_EQ(caixa.GetTexto(), u"Não &perguntar novamente");
            EXPECT_FALSE(caixa.GetMarcada());
            caixa.AceitarMarcada(ALembrar);
            BuscarBotao(AFormulario, ACaption).Clicar();
        }};
    }
    TOryUtilsDialogsRetornoMensagemLembradaIOP Perguntar() {
        return *Dialogos.ConfirmacaoCustomizadaLembrada(Parametros);
    }
};

TEST_F(TLembrancas, SoOQueFoiRespondidoComACaixaMarcada) {
    const struct {
        const char16_t* Caption;
        bool Lembrar;
        TOryUtilsDialogsRetornoMensagemLembradaIOP Primeira, Segunda;  ///< the second would be answered by "Sim"
        const char* Porque;
    } casos[] = {
        {u"&Não", false, {mrNo, true, false}, {mrYes, true, false}, "not asked for"},
        {u"&Não", true, {mrNo, true, true}, {mrNo, false, true}, "remembered, nothing shown"},
        {u"&Cancelar", true, {mrCancel, true, false}, {mrYes, true, false}, "a cancel is no answer"},
    };
    for (const auto& caso : casos) {
        Responder(caso.Caption, caso.Lembrar);
        EXPECT_EQ(Perguntar(), caso.Primeira) << caso.Porque;
        Responder(u"&Sim", false);
        EXPECT_EQ(Perguntar(), caso.Segunda) << caso.Porque;
        EXPECT_EQ(Dialogos.EsquecerResposta(Parametros.Chave), caso.Segunda.FoiLembrada) << caso.Porque;
        EXPECT_TRUE(Toolkit.Roteiro.empty() == caso.Segunda.FoiMostrada);
    }
    Responder(u"&Sim", true);
    EXPECT_EQ(Perguntar().RetornoMensagem, mrYes) << "forgotten, asked again";
}

TEST_F(TLembrancas, UmaRespostaVelhaQueNenhumBotaoDahEhPerguntada) {
    Responder(u"&Não", true);
    Perguntar();
    Parametros.Botoes = {mbYes, mbCancel};
    Parametros.CaptionBotoes = {u"&Sim", u"&Cancelar"};
    Responder(u"&Sim", false);
    EXPECT_EQ(Perguntar(), (TOryUtilsDialogsRetornoMensagemLembradaIOP{mrYes, true, false}));
}

TEST_F(TLembrancas, EsquecerUmaOuTodas) {
    const std::u16string chaves[] = {u"uma", u"outra", u"terceira"};
    const auto contarPerguntas = [&] {
        std::size_t perguntas = 0;
        for (const auto& chave : chaves) {
            Parametros.Chave = chave;
            Responder(u"&Sim", true);
            perguntas += Perguntar().FoiMostrada;
        }
        return perguntas;
    };
    EXPECT_EQ(contarPerguntas(), 3U);
    EXPECT_EQ(contarPerguntas(), 0U);
    EXPECT_TRUE(Dialogos.EsquecerResposta(u"outra"));
    EXPECT_FALSE(Dialogos.EsquecerResposta(u"outra")) << "forgotten already";
    EXPECT_EQ(contarPerguntas(), 1U);
    Dialogos.EsquecerRespostas();
    EXPECT_EQ(contarPerguntas(), 3U);
}

TEST_F(TLembrancas, SemChaveNaoHaPergunta) {
    Parametros.Chave = u" ";
    EXPECT_THROW(Perguntar(), Exception);
    EXPECT_TRUE(Toolkit.Titulos.empty());
}

}  // namespace
}  // namespace OryUtils

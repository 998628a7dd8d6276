#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <thread>

// This program holds the library statically; the Qt toolkit it loads at run time stands on a copy of its own.
namespace OryUtils {
namespace {

struct TOuvinte {
    std::function<void()> Acao;
    void Chamar(TObjeto*) { Acao(); }
    TEvento<TObjeto*> GetEvento() { return TEvento<TObjeto*>::De<&TOuvinte::Chamar>(*this); }
};

// The environment of each run says what must be chosen.
TEST(Carregamento, EscolheOToolkitDoAmbiente) {
    const char* esperado = std::getenv("ORY_TESTE_TOOLKIT");
    ASSERT_NE(esperado, nullptr) << "run by ctest";
    EXPECT_STREQ(BuscarToolkit().GetNome(), esperado);
}

class TCarregado : public testing::Test {
protected:
    void SetUp() override {
        if (std::string(BuscarToolkit().GetNome()) != "qt") GTEST_SKIP() << "without a display";
    }
};

TEST_F(TCarregado, ExcecoesConservamOTipoEntreAsCopias) {
    TFormulario f;
    TOuvinte erro{[] { throw EConvertError(u"daqui"); }};
    f.OnShow = erro.GetEvento();
    EXPECT_THROW(f.ExecutarModal(), EConvertError) << "thrown here, carried by the other copy";

    TOuvinte aborto{[] { Abort(); }};
    auto& botao = f.Adicionar<TBotao>();
    botao.SetModalResult(mrOk);
    botao.OnClick = aborto.GetEvento();
    TOuvinte mostrou{[&] {
        TTecla enter{.Codigo = 13};
        f.SetControleAtivo(&botao);
        EXPECT_THROW(f.TratarTecla(enter), EAbort);
        botao.OnClick = {};
        Abort();  // swallowed over there
    }};
    f.OnShow = mostrou.GetEvento();
    const auto tempo = BuscarToolkit().LigarTemporizador(1, [&] { botao.Clicar(); });
    EXPECT_EQ(f.ExecutarModal(), mrOk);
    BuscarToolkit().DesligarTemporizador(tempo);

    std::thread([] {
        try {
            BuscarToolkit().MedirTexto(u"a", 0);
            FAIL() << "another thread";
        } catch (const Exception& thrown) {  // thrown by the other copy
            EXPECT_STREQ(thrown.GetNomeDaClasse(), "Exception");
        }
    }).join();
}

TEST_F(TCarregado, MensagemDaBibliotecaApareceEFecha) {
    TOryUtilsDialogsFormCustomizadoIOP parametros;
    parametros.Mensagem = u"Fecha sozinha";
    parametros.Titulo = u"Aviso";
    parametros.Botoes = {mbYes, mbNo};
    parametros.CaptionBotoes = {u"&Sim", u"&Não"};
    parametros.FecharMensagemAutomaticamente = true;
    parametros.TempoFinalizacaoAutomatica = 1;
    EXPECT_EQ(GOryUtilsDialogs->ConfirmacaoCustomizada(parametros), mrCancel);
}

}  // namespace
}  // namespace OryUtils

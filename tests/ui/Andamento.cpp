#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/interno/FormularioAndamento.hpp"

#include "ToolkitRoteirizado.hpp"

#include <chrono>

namespace OryUtils {
namespace {

using std::chrono::milliseconds;

TEST(Ritmo, QuatroDeUmaVezDepoisUmACadaIntervalo) {
    const TRitmo::TInstante inicio{};
    TRitmo ritmo(inicio);
    int desenhos = 0;
    for (int i = 0; i < 10; ++i) desenhos += ritmo.Permite(inicio);
    EXPECT_EQ(desenhos, 4);
    desenhos = 0;
    for (int ms = 1; ms <= 400; ++ms) desenhos += ritmo.Permite(inicio + milliseconds(ms));
    EXPECT_EQ(desenhos, 10);
    desenhos = 0;
    for (int i = 0; i < 10; ++i) desenhos += ritmo.Permite(inicio + std::chrono::hours(1));
    EXPECT_EQ(desenhos, 4) << "a pause saves up no more";
}

TEST_F(TesteDialogos, UmLacoApertadoQuaseNaoDesenha) {
    const auto andamento = Dialogos.MostrarAndamento({.Titulo = u"Cópia"});
    const auto inicio = std::chrono::steady_clock::now();
    Toolkit.MensagensProcessadas = 0;
    for (int i = 0; i < 100'000; ++i) ASSERT_TRUE(andamento->Atualizar(i / 1000.0, u"arquivo"));
    const auto passou = std::chrono::steady_clock::now() - inicio;
    EXPECT_LE(Toolkit.MensagensProcessadas, 5 + passou / milliseconds(40));
}

TEST_F(TesteDialogos, AndamentoMostraECancela) {
    const auto andamento = Dialogos.MostrarAndamento({.Titulo = u"Cópia", .Mensagem = u"Início"});
    ASSERT_NE(Toolkit.Exibido, nullptr);
    TFormulario& formulario = *Toolkit.Exibido;
    const auto& barra = dynamic_cast<TProgresso&>(*formulario.BuscarControle(u"Andamento"));
    EXPECT_EQ(BuscarTexto(formulario, u"Message"), u"Início");
    EXPECT_LT(barra.GetPercentual(), 0);
    EXPECT_TRUE(andamento->Atualizar(250, u"Fim"));
    EXPECT_EQ(barra.GetPercentual(), 100);
    EXPECT_EQ(BuscarTexto(formulario, u"Message"), u"Fim");
    // A handler that comes back in the middle finds nothing to do.
    Toolkit.AoProcessar = [&] { EXPECT_TRUE(andamento->Atualizar(7)); };
    EXPECT_TRUE(andamento->Atualizar(50));
    EXPECT_EQ(barra.GetPercentual(), 50);
    Toolkit.AoProcessar = [&] { Teclar(formulario, 27); };
    EXPECT_FALSE(andamento->Atualizar());
    EXPECT_TRUE(andamento->FoiCancelado());
    EXPECT_FALSE(andamento->Atualizar(51)) << "once cancelled, always";
    Toolkit.AoProcessar = nullptr;
    Toolkit.DaInterface = false;
    EXPECT_THROW(andamento->Atualizar(), Exception);
    Toolkit.DaInterface = true;
}

TEST_F(TesteDialogos, SemBotaoNadaCancela) {
    const auto andamento = Dialogos.MostrarAndamento({.Titulo = u"Cópia", .PermiteCancelar = false});
    Teclar(*Toolkit.Exibido, 27);
    Toolkit.Exibido->Fechar();
    EXPECT_TRUE(andamento->Atualizar(1));
    EXPECT_TRUE(Toolkit.Exibido->GetBotoes().empty());
}

TEST_F(TesteDialogos, APalavraLongaSeQuebraEOTextoContinuaInteiro) {
    const std::u16string caminho = u"/home/ana/" + std::u16string(100, u'x') + u"/fim.txt";
    const std::u16string texto =
        QuebrarPalavrasLongas(Toolkit, u"Copiando  " + caminho + u" agora\r\nfim", 20 * CLarguraLetra);
    EXPECT_EQ(texto.substr(0, 32), u"Copiando  " + caminho.substr(0, 20) + u"\r\n");
    std::u16string juntado;
    for (const char16_t c : texto)
        if (c != u'\r' && c != u'\n') juntado += c;
    EXPECT_EQ(juntado, u"Copiando  " + caminho + u" agorafim");
    EXPECT_LE(Toolkit.MedirTexto(texto, 20 * CLarguraLetra).Largura, 20 * CLarguraLetra);
}

}  // namespace
}  // namespace OryUtils

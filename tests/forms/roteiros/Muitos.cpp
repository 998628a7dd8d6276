// Forms and dialogs by the hundred leave nothing behind.
#include "forms/roteiros/Roteiros.hpp"
#include "resistencia/Dialogos.hpp"
#include "resistencia/Quantidade.hpp"

namespace OryUtils {
namespace {

TEST_F(Roteiro, MuitosFormulariosNadaDeixam) {
    const auto mostrar = [](int AVezes) {
        for (int i = 0; i < AVezes; ++i) {
            TFormularioCompleto f;
            TOuvinte<TObjeto*> fechar{[&](TObjeto*) { f.SetModalResult(mrOk); }};
            f.OnShow = fechar.GetEvento();
            ASSERT_EQ(f.ExecutarModal(), mrOk);
        }
        BuscarToolkit().ProcessarMensagens();
    };
    mostrar(50);
    const long objetos = FUsuario->ContarObjetos(), memoria = Testes::BuscarMemoriaKiB();
    const Testes::TRecursos recursos = Testes::BuscarRecursos();
    mostrar(300);
    EXPECT_EQ(FUsuario->ContarObjetos(), objetos);
    Testes::ExigirSemCrescimento(recursos, "three hundred forms");
    // One form takes tens of kilobytes; three hundred lost ones would be far above this.
    EXPECT_LT(Testes::BuscarMemoriaKiB(), memoria + 2'000);
}

TEST_F(Roteiro, MuitosDialogosNadaDeixam) {
    TOryUtilsDialogs dialogos;
    bool confirmar = false;
    const auto respondente = BuscarToolkit().LigarTemporizador(1, [&] {
        if (!FUsuario->HaFormulario()) return;
        if (confirmar)
            FUsuario->Teclar(CEnter);
        else
            FUsuario->FecharJanela();
    });
    const auto mostrar = [&](int AVez) {
        confirmar = AVez % 2 == 0;
        Testes::MostrarDialogo(dialogos, AVez, confirmar);
        BuscarToolkit().ProcessarMensagens();
    };
    mostrar(0);
    const long objetos = FUsuario->ContarObjetos();
    Testes::MostrarSemCrescimento(Testes::QuantidadeDeDialogos(40, 10'000), mostrar);
    EXPECT_EQ(FUsuario->ContarObjetos(), objetos);
    BuscarToolkit().DesligarTemporizador(respondente);
}

}  // namespace
}  // namespace OryUtils

// The shared library loaded and unloaded at run time, as hosts load it.

#include "oryutils/OryUtils.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/BibliotecaDinamica.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include <gtest/gtest.h>

namespace {

using OryUtils::Interno::EstahCarregada;
using OryUtils::Interno::TBibliotecaDinamica;

const std::u16string CArquivo = OryUtils::DeUtf8(ORY_ARQUIVO_DA_BIBLIOTECA);

// The names by which C++ exports the entry's functions.
constexpr const char* CContador = "_ZN8OryUtils28BuscarContadorInicioOryUtilsEv";
constexpr const char* CIniciar = "_ZN8OryUtils15IniciarOryUtilsEv";
constexpr const char* CFinalizar = "_ZN8OryUtils17FinalizarOryUtilsEv";

int Contar(const TBibliotecaDinamica& ABiblioteca) {
    auto* contador = ABiblioteca.Buscar<int()>(CContador);
    return contador ? contador() : -1;
}

TEST(Carga, PrimeiraCargaIniciaUltimaDescargaFinaliza) {
    ASSERT_FALSE(EstahCarregada(CArquivo));
    {
        const TBibliotecaDinamica primeira(CArquivo);
        ASSERT_TRUE(primeira);
        EXPECT_EQ(Contar(primeira), 1);
        {
            const TBibliotecaDinamica segunda(CArquivo);
            ASSERT_TRUE(segunda);
            EXPECT_EQ(Contar(segunda), 1) << "a second load of the same file is not a second start";
        }
        EXPECT_TRUE(EstahCarregada(CArquivo)) << "the first load still holds it";
        EXPECT_EQ(Contar(primeira), 1);
    }
    EXPECT_FALSE(EstahCarregada(CArquivo));
}

TEST(Carga, InicioManualAninhaSobreACarga) {
    const TBibliotecaDinamica biblioteca(CArquivo);
    ASSERT_TRUE(biblioteca);
    auto* iniciar = biblioteca.Buscar<void()>(CIniciar);
    auto* finalizar = biblioteca.Buscar<void()>(CFinalizar);
    ASSERT_TRUE(iniciar && finalizar);
    iniciar();
    iniciar();
    EXPECT_EQ(Contar(biblioteca), 3);
    finalizar();
    finalizar();
    finalizar();
    EXPECT_EQ(Contar(biblioteca), 0);
    finalizar();
    EXPECT_EQ(Contar(biblioteca), 0) << "one stop too many does nothing";
    iniciar();
    EXPECT_EQ(Contar(biblioteca), 1);
}

TEST(Carga, ArquivoQueFaltaNaoEhErroFatal) {
    const TBibliotecaDinamica falta(CArquivo + u".nao-existe");
    EXPECT_FALSE(falta);
    EXPECT_EQ(falta.Buscar<void()>(CIniciar), nullptr);
}

// Linked statically, the same units start before main.
TEST(Unidades, InstanciasGlobaisVivemEntreInicioEFim) {
    ASSERT_GE(OryUtils::BuscarContadorInicioOryUtils(), 1) << "the static link pulls the entry in";
    ASSERT_TRUE(OryUtils::GOryUtilsStrings);
    ASSERT_TRUE(OryUtils::GOryUtilsDialogs);
    OryUtils::FinalizarOryUtils();
    EXPECT_FALSE(OryUtils::GOryUtilsStrings);
    EXPECT_FALSE(OryUtils::GOryUtilsDialogs);

    // An instance that the host put there before the start is kept.
    auto propria = std::make_unique<OryUtils::TOryUtilsStrings>();
    const auto* endereco = propria.get();
    OryUtils::GOryUtilsStrings.Assumir(std::move(propria));
    OryUtils::IniciarOryUtils();
    EXPECT_EQ(OryUtils::GOryUtilsStrings.Get(), endereco);
    EXPECT_TRUE(OryUtils::GOryUtilsDialogs);
}

}  // namespace

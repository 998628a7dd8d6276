// The shared library loaded and unloaded at run time, as hosts load it.

#include "oryutils/OryUtils.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/BibliotecaDinamica.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>

#include <regex>
#include <vector>

namespace {

using OryUtils::Interno::EstahCarregada;
using OryUtils::Interno::TBibliotecaDinamica;

const std::u16string CArquivo = OryUtils::DeUtf8(ORY_ARQUIVO_DA_BIBLIOTECA);

// The names by which C++ exports the entry's functions.
constexpr const char* CIniciar = "_ZN8OryUtils15IniciarOryUtilsEv";
constexpr const char* CFinalizar = "_ZN8OryUtils17FinalizarOryUtilsEv";

int Contar(const TBibliotecaDinamica& ABiblioteca) {
    auto* contador = ABiblioteca.Buscar<int()>("_ZN8OryUtils28BuscarContadorInicioOryUtilsEv");
    return contador ? contador() : -1;
}

TEST(Carga, CargasEIniciosSaoContados) {
    ASSERT_FALSE(EstahCarregada(CArquivo));
    const TBibliotecaDinamica falta(CArquivo + u".nao-existe");
    EXPECT_FALSE(falta);
    EXPECT_EQ(falta.Buscar<void()>(CIniciar), nullptr) << "a file that is not there is no fatal error";
    {
        const TBibliotecaDinamica primeira(CArquivo);
        EXPECT_EQ(Contar(primeira), 1);
        EXPECT_EQ(Contar(TBibliotecaDinamica(CArquivo)), 1) << "a second load of the same file is no second start";
        EXPECT_TRUE(EstahCarregada(CArquivo)) << "the first load still holds it";
        auto* iniciar = primeira.Buscar<void()>(CIniciar);
        auto* finalizar = primeira.Buscar<void()>(CFinalizar);
        ASSERT_TRUE(iniciar && finalizar);
        iniciar();
        EXPECT_EQ(Contar(primeira), 2) << "starts nest";
        for (const int esperado : {1, 0, 0}) {
            finalizar();
            EXPECT_EQ(Contar(primeira), esperado) << "one stop too many does nothing";
        }
        iniciar();
        EXPECT_EQ(Contar(primeira), 1);
    }
    EXPECT_FALSE(EstahCarregada(CArquivo)) << "the last one unloads";
}

/// The names of all global instances, read from the headers that declare them.
std::vector<std::string> ListarInstancias() {
    const std::regex declaracao(R"(extern ORY_API TInstanciaGlobal<\w+> (\w+);)");
    std::vector<std::string> nomes;
    for (const auto& item : std::filesystem::recursive_directory_iterator(ORY_PASTA_DO_PROJETO "/oryutils")) {
        if (item.path().extension() != ".hpp") continue;
        const std::string texto = LerBytes(item.path());
        for (std::sregex_iterator achado(texto.begin(), texto.end(), declaracao), fim; achado != fim; ++achado)
            nomes.push_back((*achado)[1]);
    }
    return nomes;
}

// GOryUtilsFiles was declared and defined, and nobody created it.
TEST(Unidades, CadaInstanciaDeclaradaViveEntreInicioEFim) {
    const TBibliotecaDinamica biblioteca(CArquivo);
    ASSERT_TRUE(biblioteca);
    // An instance is a pointer to the object.
    static_assert(sizeof(OryUtils::GOryUtilsStrings) == sizeof(void*));
    const auto nomes = ListarInstancias();
    ASSERT_GE(nomes.size(), 11U);
    for (const std::string& nome : nomes) {
        void* const* instancia =
            biblioteca.Buscar<void*>(("_ZN8OryUtils" + std::to_string(nome.size()) + nome + "E").c_str());
        ASSERT_TRUE(instancia) << nome;
        EXPECT_TRUE(*instancia) << nome << " is in a header, and not in the table of units";
        biblioteca.Buscar<void()>(CFinalizar)();
        EXPECT_FALSE(*instancia) << nome;
        biblioteca.Buscar<void()>(CIniciar)();
    }
}

// Linked statically, the same units start before main.
TEST(Unidades, InstanciaDoHospedeiroFica) {
    ASSERT_GE(OryUtils::BuscarContadorInicioOryUtils(), 1) << "the static link pulls the entry in";
    ASSERT_TRUE(OryUtils::GOryUtilsDialogs);
    OryUtils::FinalizarOryUtils();
    EXPECT_FALSE(OryUtils::GOryUtilsStrings);
    auto propria = std::make_unique<OryUtils::TOryUtilsStrings>();
    const auto* endereco = propria.get();
    OryUtils::GOryUtilsStrings.Assumir(std::move(propria));
    OryUtils::IniciarOryUtils();
    EXPECT_EQ(OryUtils::GOryUtilsStrings.Get(), endereco);
    EXPECT_TRUE(OryUtils::GOryUtilsDialogs);
}

}  // namespace

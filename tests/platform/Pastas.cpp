#include "oryutils/platform/Pastas.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/Fluxo.hpp"

#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>

namespace OryUtils::Interno {
namespace {

TEST(Pastas, CaminhosCompridos) {
    const TPastaTemporaria temporaria(u"orypastas");
    const char16_t separador = BuscarSeparadorDePastas();
    std::u16string pasta = temporaria.Caminho().u16string();
    for (int i = 0; i < 20; ++i) {
        pasta += separador + std::u16string(30, u'a');
        EXPECT_TRUE(CriarPasta(pasta)) << pasta.size();
        EXPECT_TRUE(ExistePasta(pasta)) << pasta.size();
        const std::u16string arquivo = pasta + separador + u"arquivo.txt";
        TFluxo fluxo;
        EXPECT_EQ(fluxo.CriarNovo(ParaUtf8(arquivo)), efNenhum) << pasta.size();
        EXPECT_EQ(fluxo.Escrever("texto"), efNenhum);
        fluxo.Fechar();
        EXPECT_EQ(LerArquivo(arquivo), "texto") << pasta.size();
        EXPECT_EQ(ExcluirArquivo(ParaUtf8(arquivo)), efNenhum) << pasta.size();
    }
    EXPECT_TRUE(CriarPasta(pasta + u"/b/../b/./c/")) << "with the other separator, and one at the end";
    EXPECT_TRUE(ExistePasta(pasta + separador + u"b"));
    EXPECT_FALSE(CriarPasta(pasta + separador + std::u16string(300, u'n'))) << "no name is as long";
}

}  // namespace
}  // namespace OryUtils::Interno

#include "files/ArvoreWine.hpp"

#include "oryutils/files/OryUtilsFiles.hpp"

#include <gtest/gtest.h>

// Hundreds of libraries and executables that nobody here made. What the reader says of them is compared with the
// version functions of Windows by the Windows suite; here they only have to be read.

namespace {

using namespace OryUtils;

TEST(ArvoreWine, TodosOsArquivosSaoLidos) {
    const auto arquivos = BuscarArquivosDoWine();
    if (arquivos.empty()) GTEST_SKIP() << "Wine is not installed";
    std::size_t comVersao = 0;
    std::size_t comTextos = 0;
    for (const auto& arquivo : arquivos) {
        TArquivoInfo info;
        info.SetArquivo(arquivo.u16string());
        comVersao += !info.GetVersao().empty();
        comTextos += !info.GetNomeCompanhia().empty();
    }
    EXPECT_GT(comVersao, arquivos.size() / 4);
    EXPECT_GT(comTextos, arquivos.size() / 4);
}

}  // namespace

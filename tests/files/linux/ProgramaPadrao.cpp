#include "oryutils/files/OryUtilsFiles.hpp"

#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using namespace OryUtils;
using C = TOryUtilsFiles;

TEST(ProgramaPadrao, UmProgramaRecebeOsParametros) {
    const TPastaTemporaria pasta;
    const std::filesystem::path cano = pasta.Caminho() / "cano";
    ASSERT_EQ(::mkfifo(cano.c_str(), 0600), 0);
    const std::u16string programa =
        pasta.Gravar(u"-eco.sh", "#!/bin/sh\nfor p in \"$@\"; do echo \"<$p>\"; done > \"${0%/*}/cano\"\n");
    std::filesystem::permissions(programa, std::filesystem::perms::owner_all);
    ASSERT_TRUE(C::AbrirArquivo(programa, u" um \"dois três\"  \"\" qua\"tro e\" '5"));
    std::ifstream leitura(cano);  // waits for the program
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(leitura), {}), "<um>\n<dois três>\n<>\n<quatro e>\n<'5>\n");

    const std::u16string quebrado = pasta.Gravar(u"quebrado.sh", "#!/nao/existe\n");
    std::filesystem::permissions(quebrado, std::filesystem::perms::owner_all);
    EXPECT_FALSE(C::AbrirArquivo(quebrado)) << "the system could not start it";
}

TEST(ArquivosEspeciais, UmCanoSemEscritorNaoFazEsperar) {
    const TPastaTemporaria pasta;
    for (const auto* nome : {u"cano.exe", u"cano.ini"}) {
        ASSERT_EQ(::mkfifo((pasta.Caminho() / nome).c_str(), 0600), 0);
        TArquivoInfo info;
        info.SetArquivo(pasta.Nome(nome));
        EXPECT_EQ(info.GetVersao(), u"");
        EXPECT_EQ(info.GetNome(), nome);
        EXPECT_EQ(info.GetData(), 0.0) << "not opened";
    }
}

}  // namespace

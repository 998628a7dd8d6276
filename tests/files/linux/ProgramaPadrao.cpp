#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"

#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/stat.h>

namespace {

using namespace OryUtils;
using C = TOryUtilsFiles;

/// A folder with programs that tell what they do in a pipe beside them.
struct ProgramaPadrao : testing::Test {
    TPastaTemporaria Pasta;
    std::filesystem::path Cano = Pasta.Caminho() / "cano";

    const std::string Caminho = std::getenv("PATH");

    ProgramaPadrao() { EXPECT_EQ(::mkfifo(Cano.c_str(), 0600), 0); }
    ~ProgramaPadrao() override { ::setenv("PATH", Caminho.c_str(), 1); }
    std::u16string GravarPrograma(std::u16string_view ANome, std::string_view ATexto) const {
        std::u16string programa = Pasta.Gravar(ANome, ATexto);
        std::filesystem::permissions(programa, std::filesystem::perms::owner_all);
        return programa;
    }
    /// Waits for the program.
    std::string LerCano() const {
        std::ifstream leitura(Cano);
        return {std::istreambuf_iterator<char>(leitura), {}};
    }
};

TEST_F(ProgramaPadrao, UmProgramaRecebeOsParametros) {
    const auto programa =
        GravarPrograma(u"-eco.sh", "#!/bin/sh\nfor p in \"$@\"; do echo \"<$p>\"; done > \"${0%/*}/cano\"\n");
    ASSERT_TRUE(C::AbrirArquivo(programa, u" um \"dois três\"  \"\" qua\"tro e\" '5"));
    EXPECT_EQ(LerCano(), "<um>\n<dois três>\n<>\n<quatro e>\n<'5>\n");
    EXPECT_FALSE(C::AbrirArquivo(GravarPrograma(u"quebrado.sh", "#!/nao/existe\n"))) << "the system could not start it";
}

TEST_F(ProgramaPadrao, UmLogNuncaEhExecutado) {
    // A disk of another system says of every file that it may be executed; the lines of a log come from anywhere.
    GravarPrograma(u"xdg-open", "#!/bin/sh\necho \"aberto ${1##*/}\" > \"${0%/*}/cano\"\n");
    ::setenv("PATH", (Pasta.Caminho().string() + ":" + Caminho).c_str(), 1);
    TOryUtilsArquivoLog log(Pasta.Nome(u"log"));
    log.SetFormatoMensagem(tfmSomenteTexto);
    log.InserirTexto(u"echo executado > '" + Cano.u16string() + u"'", 0, clBlue);
    log.FinalizarLog();
    for (const auto modo : {std::filesystem::perms::owner_read, std::filesystem::perms::owner_all}) {
        std::filesystem::permissions(log.GetArquivoLog(), modo);
        log.ExibirLog();
        EXPECT_EQ(LerCano(), "aberto log.log\n");
    }
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

#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"

#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
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

TEST(ProgramaPadrao, UmLogNuncaEhExecutado) {
    // A disk of another system says of every file that it may be executed; the lines of a log come from anywhere.
    const TPastaTemporaria pasta;
    const std::filesystem::path cano = pasta.Caminho() / "cano";
    ASSERT_EQ(::mkfifo(cano.c_str(), 0600), 0);
    const std::u16string abridor =
        pasta.Gravar(u"xdg-open", "#!/bin/sh\necho \"aberto ${1##*/}\" > \"${0%/*}/cano\"\n");
    std::filesystem::permissions(abridor, std::filesystem::perms::owner_all);
    const std::string caminhos = std::getenv("PATH");
    ::setenv("PATH", (pasta.Caminho().string() + ":" + caminhos).c_str(), 1);

    TOryUtilsArquivoLog log(pasta.Nome(u"log"));
    log.SetFormatoMensagem(tfmSomenteTexto);
    log.InserirTexto(u"echo executado > '" + cano.u16string() + u"'", 0, clBlue);
    log.FinalizarLog();
    for (const auto modo : {std::filesystem::perms::owner_read, std::filesystem::perms::owner_all}) {
        std::filesystem::permissions(log.GetArquivoLog(), modo);
        log.ExibirLog();
        std::ifstream leitura(cano);  // waits for the program
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(leitura), {}), "aberto log.log\n");
    }
    ::setenv("PATH", caminhos.c_str(), 1);
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

#include "oryutils/characters/Utf.hpp"

#include "files/ApoioArquivos.hpp"
#include "ory/Apoio.hpp"

#include <sys/stat.h>

namespace {

/// A file of customers that only its owner may read stays so when it is written anew over itself.
TEST(ConferirSaida, QuemPodiaLerOArquivoEhQuemPodeLerONovo) {
    const TPastaTemporaria pasta;
    const mode_t mascara = ::umask(022);
    for (const mode_t modo : {mode_t{0600}, mode_t{0664}, mode_t{0640}}) {
        const std::string nome = OryUtils::ParaUtf8(pasta.Gravar(u"x.csv", "cnpj\n11222333000181\n"));
        ASSERT_EQ(::chmod(nome.c_str(), modo), 0);
        ASSERT_EQ(Rodar({"conferir", nome, "--saida", nome}).Status, 0);
        struct stat dados {};
        ASSERT_EQ(::stat(nome.c_str(), &dados), 0);
        EXPECT_EQ(dados.st_mode & 0777, modo);
        EXPECT_GT(dados.st_size, 22) << "written anew";
    }
    ::umask(mascara);
}

TEST(ConferirSaida, UmDispositivoRecebeASaidaEFica) {
    const TPastaTemporaria pasta;
    const auto nome = pasta / u"zero.csv";
    std::filesystem::create_symlink("/dev/zero", nome);
    EXPECT_EQ(Rodar({"conferir", "-", "--saida", nome.string()}, "cnpj\n11222333000181\n").Status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file(nome)) << "no file takes its place";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(pasta.Caminho()), {}), 1) << "nothing beside it";
}

}  // namespace

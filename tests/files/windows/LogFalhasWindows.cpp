#include "oryutils/platform/windows/Windows.hpp"

#include "files/LogApoio.hpp"

#include <optional>
#include <utility>

namespace {

using namespace OryUtils;

/// Another program has the file open and shares it as told.
class TAbertoPorOutro {
public:
    TAbertoPorOutro(const std::filesystem::path& AArquivo, DWORD APartilha)
        : FAlca(::CreateFileW(AArquivo.c_str(), GENERIC_READ, APartilha, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~TAbertoPorOutro() { ::CloseHandle(FAlca); }
    TAbertoPorOutro(const TAbertoPorOutro&) = delete;
    TAbertoPorOutro& operator=(const TAbertoPorOutro&) = delete;
    bool EstahAberto() const { return FAlca != INVALID_HANDLE_VALUE; }

private:
    HANDLE FAlca;
};

class LogFalhasWindows : public testing::TestWithParam<TModoGravacao> {};

TEST_P(LogFalhasWindows, AbertoPorOutroSemPartilhar) {
    const TPastaTemporaria pasta;
    TAmbienteDeTeste ambiente;
    const auto arquivo = pasta.Caminho() / "Preso.log";
    TLogDeTeste log(arquivo.u16string(), ambiente, GetParam());
    log.Adicionar(u"livre", clBlue);
    log.FinalizarLog();  // while a log by append keeps the file open, the other program could not open it so
    const std::string antes = LerBytes(arquivo);
    for (const DWORD partilha : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
        const TAbertoPorOutro outro(arquivo, partilha);
        ASSERT_TRUE(outro.EstahAberto());
        log.Adicionar(u"preso", clBlue);
        EXPECT_EQ(log.ContarTentativas(), 14) << partilha;
    }
    EXPECT_EQ(LerBytes(arquivo), antes);
    EXPECT_EQ(log.ContarTentativas(), 1);
    EXPECT_EQ(LerBytes(arquivo), log.Esperar());
    // A reader that lets others write does not stop the log.
    const TAbertoPorOutro leitor(arquivo, FILE_SHARE_READ | FILE_SHARE_WRITE);
    log.Adicionar(u"com um leitor", clBlue);
    EXPECT_EQ(log.ContarTentativas(), 1);
}

TEST_P(LogFalhasWindows, ExistenteAbertoPorOutroSemPartilhar) {
    const TPastaTemporaria pasta;
    const auto arquivo = pasta.Caminho() / "Continua.log";
    for (const DWORD partilha : {DWORD{0}, DWORD{FILE_SHARE_WRITE}}) {
        SCOPED_TRACE(partilha);
        GravarBytes(arquivo, "de ontem\r\n");
        std::optional<TAbertoPorOutro> outro(std::in_place, arquivo, partilha);
        ASSERT_TRUE(outro->EstahAberto());
        ConferirQueEsperaOExistente(arquivo, GetParam(), [&] { outro.reset(); });
    }
}

/// By the system's own code page, which knows nothing of the library's tables.
TEST(LogCodificacao, PadraoEhAPaginaDoSistema) {
    if (::GetACP() != 1252) GTEST_SKIP() << "code page " << ::GetACP();
    const std::u16string texto = u"coração € \u4E2D \U0001F600 \xD800 \u0101 (no letter like it)";
    EXPECT_EQ(Interno::ParaTextoDoSistema(texto), "cora\xE7\xE3o \x80 ? ? ? ? (no letter like it)");
    EXPECT_EQ(Interno::DeTextoDoSistema("cora\xE7\xE3o \x80"), u"coração €");
}

INSTANTIATE_TEST_SUITE_P(Modos, LogFalhasWindows, testing::Values(mgReescrever, mgAcrescentar));

}  // namespace

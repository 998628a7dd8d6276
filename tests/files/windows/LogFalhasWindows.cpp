#include "oryutils/platform/windows/Windows.hpp"

#include "comum/Acaso.hpp"
#include "files/LogApoio.hpp"
#include "resistencia/Quantidade.hpp"

#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
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

/// This program again, as one that saves a log until it is killed.
class TGravador {
public:
    TGravador(const std::filesystem::path& AArquivo, TModoGravacao AModo) {
        SECURITY_ATTRIBUTES herdavel{sizeof herdavel, nullptr, TRUE};
        HANDLE escrita = nullptr;
        EXPECT_TRUE(::CreatePipe(&FConfirmadas, &escrita, &herdavel, 0));
        ::SetHandleInformation(FConfirmadas, HANDLE_FLAG_INHERIT, 0);
        ::SetEnvironmentVariableW(L"ORY_TESTE_LOG", AArquivo.c_str());
        ::SetEnvironmentVariableW(L"ORY_TESTE_MODO", AModo == mgAcrescentar ? L"acrescentar" : L"reescrever");
        std::wstring programa(32'768, L'\0');
        programa.resize(::GetModuleFileNameW(nullptr, programa.data(), static_cast<DWORD>(programa.size())));
        std::wstring comando = L"testes --gtest_also_run_disabled_tests --gtest_filter=*DISABLED_GravaAteMorrer";
        STARTUPINFOW inicio{};
        inicio.cb = sizeof inicio;
        inicio.dwFlags = STARTF_USESTDHANDLES;
        inicio.hStdError = escrita;
        EXPECT_TRUE(::CreateProcessW(programa.c_str(), comando.data(), nullptr, nullptr, TRUE, DETACHED_PROCESS,
                                     nullptr, nullptr, &inicio, &FProcesso));
        ::CloseHandle(escrita);
    }
    ~TGravador() {
        Matar();
        for (const HANDLE alca : {FConfirmadas, FProcesso.hProcess, FProcesso.hThread}) ::CloseHandle(alca);
    }
    TGravador(const TGravador&) = delete;
    TGravador& operator=(const TGravador&) = delete;

    /// The next line that it says to have saved; none at the end.
    std::optional<int> LerConfirmada() {
        int linha = 0;
        DWORD lidos = 0;
        if (::ReadFile(FConfirmadas, &linha, sizeof linha, &lidos, nullptr) && lidos == sizeof linha) return linha;
        return {};
    }
    void Matar() {
        ::TerminateProcess(FProcesso.hProcess, 1);
        ::WaitForSingleObject(FProcesso.hProcess, INFINITE);
    }

private:
    HANDLE FConfirmadas = nullptr;
    PROCESS_INFORMATION FProcesso{};
};

// Only for TGravador.
TEST(LogMorto, DISABLED_GravaAteMorrer) {
    const wchar_t* const arquivo = ::_wgetenv(L"ORY_TESTE_LOG");
    const wchar_t* const modo = ::_wgetenv(L"ORY_TESTE_MODO");
    if (!arquivo || !modo) GTEST_SKIP() << "nobody will kill it";
    GravarAteMorrer(arquivo, std::wstring_view(modo) == L"acrescentar" ? mgAcrescentar : mgReescrever, [](int ALinha) {
        DWORD escritos = 0;
        if (!::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), &ALinha, sizeof ALinha, &escritos, nullptr)) std::abort();
    });
}

// At any moment, most of them inside of a save: every line that was told saved is there.
TEST_P(LogFalhasWindows, MortoAQualquerMomentoNaoPerdeLinhaGravada) {
    const TPastaTemporaria pasta;
    const auto arquivo = pasta.Caminho() / "Morto.log";
    ::Testes::TAcaso sorteio;
    for (int vez = 0; vez < OryUtils::Testes::Quantidade(20, 150); ++vez) {
        SCOPED_TRACE(vez);
        std::filesystem::remove(arquivo);
        TGravador gravador(arquivo, GetParam());
        const int esperar = static_cast<int>(sorteio() % 40);
        int ultima = -1;
        // The program is up when its first line comes: Wine does not get over one that is killed before.
        for (std::optional<int> linha; ultima < esperar && (linha = gravador.LerConfirmada());) ultima = *linha;
        ASSERT_GE(ultima, esperar);
        for (volatile auto espera = sorteio() % 100'000; espera > 0;) espera = espera - 1;
        gravador.Matar();
        while (const auto linha = gravador.LerConfirmada()) ultima = *linha;
        ASSERT_NO_FATAL_FAILURE(ConferirLinhasConfirmadas(arquivo, ultima));
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

#include "oryutils/platform/Pastas.hpp"

#include "files/LogApoio.hpp"

namespace {

using namespace OryUtils;
namespace fs = std::filesystem;

class LogFalhas : public testing::TestWithParam<TModoGravacao> {
protected:
    LogFalhas() { Log.SetFormatoMensagem(tfmSomenteTexto); }

    const TPastaTemporaria Pasta;
    TAmbienteDeTeste Ambiente;
    const fs::path Arquivo = Pasta.Caminho() / "p" / "Falha.log";
    TLogDeTeste Log{Arquivo.u16string(), Ambiente, GetParam()};
};

TEST_P(LogFalhas, FalhaConsertoERegravacao) {
    struct TCaso {
        std::function<void()> Estragar, Consertar;
        const char* Porque;
    };
    const TCaso casos[] = {
        {[&] { fs::remove_all(Pasta.Caminho() / "p"), GravarBytes(Pasta.Caminho() / "p", "um arquivo"); },
         [&] { fs::remove(Pasta.Caminho() / "p"); }, "a file where the folder should be"},
        {[&] { fs::remove(Arquivo), fs::create_directories(Arquivo); }, [&] { fs::remove(Arquivo); },
         "a folder in the place of the file"},
        {[&] { fs::remove(Arquivo), fs::create_directories(Arquivo / "cheia"); }, [&] { fs::remove_all(Arquivo); },
         "a folder with something in it"},
    };
    Log.Adicionar(u"começo", clBlue);
    EXPECT_EQ(Log.ContarTentativas(), 1) << "a missing folder is no fault: it is created";
    for (const TCaso& c : casos) {
        c.Estragar();
        Log.Adicionar(u"durante a falha", clBlue);
        EXPECT_EQ(Log.ContarTentativas(), 14) << c.Porque;
        EXPECT_FALSE(Log.EstahSalvo()) << c.Porque;
        EXPECT_NO_THROW(Log.FinalizarLog()) << c.Porque;
        Log.Adicionar(u"de novo", clBlue);
        EXPECT_EQ(Log.ContarTentativas(), 14) << c.Porque;
        c.Consertar();
        EXPECT_EQ(Log.ContarTentativas(), 1) << c.Porque;
        EXPECT_TRUE(Log.EstahSalvo()) << c.Porque;
        EXPECT_EQ(LerBytes(Arquivo), Log.Esperar());
        // Mended between two attempts: the attempt behind it is the last.
        c.Estragar();
        Ambiente.AoTentar = [&](int ATentativa) {
            if (ATentativa == 5) c.Consertar(), fs::create_directories(Arquivo.parent_path());
        };
        Log.Adicionar(u"mais uma", clBlue);
        EXPECT_EQ(Log.ContarTentativas(), 5) << c.Porque;
        Ambiente.AoTentar = nullptr;
        EXPECT_EQ(LerBytes(Arquivo), Log.Esperar());
    }
}

TEST_P(LogFalhas, NomeSemArquivo) {
    for (const std::u16string_view nome : {u"", u"   ", u"/tmp/.log"}) {
        TLogDeTeste log(nome, Ambiente, GetParam());
        log.SetSalvarAutomaticamente(true);
        log.Adicionar(u"só na memória", clBlue);
        log.FinalizarLog();
        EXPECT_TRUE(log.GetTexto().find(u"só na memória") != std::u16string::npos);
        EXPECT_EQ(Ambiente.Tentativas, 0);
    }
    TLogDeTeste impossivel(Arquivo.parent_path().u16string() + std::u16string(u"/a\0b.txt", 8), Ambiente);
    impossivel.FinalizarLog();
    EXPECT_EQ(Ambiente.Tentativas, 14) << "a name with the character of code 0";
    EXPECT_FALSE(fs::exists(Arquivo.parent_path() / "a"));
}

TEST_P(LogFalhas, ExistenteQueNaoSeLeDeixaALista) {
    fs::create_directories(Arquivo);
    Log.SetUsarArquivoLogExistente(true);
    Log.AdicionarEspacoEmBranco(3);
    EXPECT_NO_THROW(Log.IniciarLog());
    EXPECT_TRUE(Log.GetTexto().starts_with(Interno::BuscarQuebraDeLinha()));
}

INSTANTIATE_TEST_SUITE_P(Modos, LogFalhas, testing::Values(mgReescrever, mgAcrescentar));

fs::path Com(fs::path ANome, const char* AFim) { return ANome += AFim; }

/// What happens to the file between two saves.
struct TMexida {
    std::function<void(const fs::path&)> Mexer;
    bool Continua;
    const char* Porque;
};

std::vector<TMexida> BuscarMexidas() {
    std::vector<TMexida> mexidas{
        {[](const fs::path&) {}, true, "nothing"},
        {[](const fs::path& a) { LerBytes(a); }, true, "read"},
        {[](const fs::path& a) { fs::last_write_time(a, fs::last_write_time(a) + std::chrono::seconds(3)); }, true,
         "another time"},
        {[](const fs::path& a) { GravarBytes(a, "mais", std::ios::app); }, false, "longer"},
        {[](const fs::path& a) { fs::resize_file(a, fs::file_size(a) - 1); }, false, "shorter"},
        {[](const fs::path& a) { fs::resize_file(a, 0); }, false, "emptied"},
        {[](const fs::path& a) { fs::rename(a, Com(a, ".1")); }, false, "moved away"},
        {[](const fs::path& a) {
             fs::copy_file(a, Com(a, ".2")), fs::rename(a, Com(a, ".3")), fs::rename(Com(a, ".2"), a);
         },
         false, "another file of the same text"},
    };
    // Windows keeps the folder of an open file where it is; Wine deletes an open file only when it is closed.
    if (Interno::BuscarSeparadorDePastas() == u'/') {
        mexidas.push_back({[](const fs::path& a) { fs::remove(a); }, false, "gone"});
        mexidas.push_back({[](const fs::path& a) { fs::rename(a.parent_path(), Com(a.parent_path(), "_1")); }, false,
                           "folder moved"});
    }
    return mexidas;
}

/// A log by append, saved after each line, with one line.
struct TAcrescimo {
    const TPastaTemporaria Pasta{};
    TAmbienteDeTeste Ambiente{};
    const fs::path Arquivo = Pasta.Caminho() / "sub" / "A.log";
    TLogDeTeste Log{Arquivo.u16string(), Ambiente, mgAcrescentar};

    TAcrescimo() {
        Log.SetFormatoMensagem(tfmSomenteTexto);
        Log.SetSalvarAutomaticamente(true);
        Log.Adicionar(u"a primeira", clBlue);
    }
    /// The bytes that one more line makes the log write.
    std::size_t Adicionar() {
        Ambiente.Bytes = 0;
        Ambiente.Tentativas = 0;
        Log.Adicionar(u"mais uma", clBlue);
        EXPECT_EQ(Ambiente.Tentativas, 1);
        return Ambiente.Bytes;
    }
};

const std::size_t CUmaLinha = JuntarLinhas({u"mais uma"}).size();

TEST(LogAcrescimo, SoContinuaOQueEleMesmoDeixou) {
    for (const auto& [mexer, continua, porque] : BuscarMexidas()) {
        SCOPED_TRACE(porque);
        TAcrescimo t;
        EXPECT_EQ(t.Adicionar(), CUmaLinha);
        mexer(t.Arquivo);
        const std::size_t escritos = t.Adicionar();
        EXPECT_EQ(escritos, continua ? CUmaLinha : t.Log.Esperar().size());
        EXPECT_EQ(LerBytes(t.Arquivo), t.Log.Esperar());
        EXPECT_EQ(t.Adicionar(), CUmaLinha) << "then it goes on";
        EXPECT_EQ(LerBytes(t.Arquivo), t.Log.Esperar());
    }
}

TEST(LogAcrescimo, OlhaOArquivoACadaDecimoDeSegundoENoFim) {
    for (const auto& [mexer, continua, porque] : BuscarMexidas())
        for (const bool fim : {false, true}) {
            SCOPED_TRACE(porque);
            TAcrescimo t;
            t.Ambiente.Passo = {};
            mexer(t.Arquivo);
            t.Ambiente.Relogio += std::chrono::milliseconds(99);
            EXPECT_EQ(t.Adicionar(), CUmaLinha) << "the log has just looked";
            if (fim) {
                t.Log.FinalizarLog();
            } else {
                t.Ambiente.Relogio += std::chrono::milliseconds(1);
                const std::size_t escritos = t.Adicionar();
                EXPECT_EQ(escritos, continua ? CUmaLinha : t.Log.Esperar().size());
            }
            EXPECT_EQ(LerBytes(t.Arquivo), t.Log.Esperar());
        }
}

TEST(LogAcrescimo, OutroEscreveDuranteARegravacao) {
    TAcrescimo t;
    t.Ambiente.AoEscreverBytes = [&] { GravarBytes(t.Arquivo, std::string(10'000, 'x')); };
    t.Log.InserirTexto(u"meio", 0, clBlue);
    EXPECT_NO_THROW(t.Log.SalvarArquivoLog());
    t.Ambiente.AoEscreverBytes = {};
    EXPECT_NO_THROW(t.Adicionar()) << "the file is longer than the text";
    EXPECT_EQ(LerBytes(t.Arquivo), t.Log.Esperar());
}

TEST(LogAcrescimo, OutroLogDoMesmoArquivoTambemGrava) {
    for (const TModoGravacao modo : {mgReescrever, mgAcrescentar}) {
        TAcrescimo t;
        t.Adicionar();
        TAmbienteDeTeste ambiente;
        TLogDeTeste outro(t.Arquivo.u16string(), ambiente, modo);
        outro.Adicionar(u"o outro", clBlue);
        EXPECT_EQ(outro.ContarTentativas(), 1) << "the first one keeps the file open";
        EXPECT_EQ(LerBytes(t.Arquivo), outro.Esperar());
        t.Adicionar();
        EXPECT_EQ(LerBytes(t.Arquivo), t.Log.Esperar()) << "who saves last has its text there";
    }
}

TEST(LogAcrescimo, TextoMudadoNoMeioRegravaTudo) {
    struct TCaso {
        std::function<void(TLogDeTeste&)> Mudar;
        bool Continua;
        const char* Porque;
    };
    const TCaso casos[] = {
        {[](TLogDeTeste& l) { l.AdicionarEspacoEmBranco(2); }, true, "empty lines at the end"},
        {[](TLogDeTeste& l) { l.InserirTexto(u"fim", 7, clBlue); }, true, "inserted at the end"},
        {[](TLogDeTeste& l) { l.FinalizarLog(); }, true, "the footer"},
        {[](TLogDeTeste& l) { l.InserirTexto(u"meio", 3, clBlue); }, false, "inserted in the middle"},
        {[](TLogDeTeste& l) { l.SetCodificacao(clWindows1252); }, false, "another encoding"},
        {[](TLogDeTeste& l) { l.Limpar(), l.AdicionarEspacoEmBranco(500); }, false, "emptied and longer again"},
    };
    for (const TCaso& c : casos) {
        const TPastaTemporaria pasta;
        TAmbienteDeTeste ambiente;
        TLogDeTeste log(pasta.Nome("A"), ambiente, mgAcrescentar);
        log.SetTipoPeriodicidade(tplDiario);
        log.Adicionar(u"linha", clBlue);
        log.SalvarArquivoLog();
        c.Mudar(log);
        log.SalvarArquivoLog();
        const std::size_t tamanho = fs::file_size(pasta.Caminho() / "A_15_11_2026.log");
        if (c.Continua)
            EXPECT_EQ(ambiente.Bytes, tamanho) << c.Porque;
        else
            EXPECT_GT(ambiente.Bytes, tamanho) << c.Porque;
    }
}

/// A process killed in the middle of a save leaves any part of the file; the next one lives with it.
TEST(LogAcrescimo, QualquerPedacoDeUmArquivoSeContinua) {
    const TPastaTemporaria pasta;
    TAmbienteDeTeste ambiente;
    TLogDeTeste antigo(pasta.Nome("M"), ambiente, mgReescrever);
    antigo.Adicionar(u"ação \U0001F600", clBlue);
    antigo.FinalizarLog();
    const auto arquivo = pasta.Caminho() / "M.log";
    const std::string inteiro = LerBytes(arquivo);
    for (std::size_t corte = 0; corte <= inteiro.size(); corte += corte + 200 < inteiro.size() ? 17 : 1) {
        GravarBytes(arquivo, inteiro.substr(0, corte));
        TLogDeTeste novo(pasta.Nome("M"), ambiente, mgReescrever);
        novo.SetUsarArquivoLogExistente(true);
        novo.Adicionar(u"continua", clBlue);
        novo.SalvarArquivoLog();
        ASSERT_EQ(LerBytes(arquivo), novo.Esperar()) << corte;
        const std::u16string antes = DeUtf8(inteiro.substr(0, inteiro.substr(0, corte).rfind('\n') + 1));
        ASSERT_TRUE(novo.GetTexto().starts_with(antes)) << corte;
    }
}

}  // namespace

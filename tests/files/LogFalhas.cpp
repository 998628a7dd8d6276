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
    const fs::path pasta = Arquivo.parent_path();
    const auto consertar = [&] { fs::remove_all(pasta), fs::create_directories(pasta); };
    const struct {
        const char* Porque;
        std::function<void()> Estragar;
    } casos[] = {
        {"a file where the folder should be", [&] { fs::remove_all(pasta), GravarBytes(pasta, "um arquivo"); }},
        {"a folder in the place of the file", [&] { fs::remove(Arquivo), fs::create_directories(Arquivo); }},
        {"a folder with something in it", [&] { fs::remove(Arquivo), fs::create_directories(Arquivo / "cheia"); }},
    };
    Log.Adicionar(u"começo", clBlue);
    EXPECT_EQ(Log.ContarTentativas(), 1) << "a missing folder is no fault: it is created";
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Porque);
        c.Estragar();
        Log.Adicionar(u"durante a falha", clBlue);
        EXPECT_EQ(Log.ContarTentativas(), 14);
        EXPECT_FALSE(Log.EstahSalvo());
        EXPECT_NO_THROW(Log.FinalizarLog());
        Log.Adicionar(u"de novo", clBlue);
        EXPECT_EQ(Log.ContarTentativas(), 14);
        consertar();
        EXPECT_EQ(Log.ContarTentativas(), 1);
        EXPECT_TRUE(Log.EstahSalvo());
        EXPECT_EQ(LerBytes(Arquivo), Log.Esperar());
        // Mended between two attempts: the attempt behind it is the last.
        c.Estragar();
        Ambiente.AoTentar = [&](int ATentativa) {
            if (ATentativa == 5) consertar();
        };
        Log.Adicionar(u"mais uma", clBlue);
        EXPECT_EQ(Log.ContarTentativas(), 5);
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

INSTANTIATE_TEST_SUITE_P(Modos, LogFalhas, testing::Values(mgReescrever, mgAcrescentar));

fs::path Com(fs::path ANome, const char* AFim) { return ANome += AFim; }

/// A log by append, saved after each line, with one line.
struct TAcrescimo {
    const TPastaTemporaria Pasta{};
    TAmbienteDeTeste Ambiente{};
    const fs::path Arquivo = Pasta.Caminho() / "sub" / "A.log";
    TLogDeTeste Log{Arquivo.u16string(), Ambiente, mgAcrescentar};

    TAcrescimo() {
        Log.SetFormatoMensagem(tfmSomenteTexto);
        Log.IniciarLog();
        Log.Limpar();
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

/// When the log notices that it must write the whole again.
enum TQuando { quNunca, quNoOlhar, quNaHora };

/// What happens to the file or to the lines between two saves.
struct TMexida {
    const char* Porque;
    TQuando Regrava;
    std::function<void(const fs::path&, TLogDeTeste&)> Mexer;
};

void Trocar(const fs::path& AArquivo) {
    fs::copy_file(AArquivo, Com(AArquivo, ".2"));
    fs::rename(AArquivo, Com(AArquivo, ".3"));
    fs::rename(Com(AArquivo, ".2"), AArquivo);
}

std::vector<TMexida> BuscarMexidas() {
    using std::chrono::hours;
    std::vector<TMexida> mexidas{
        {"nothing", quNunca, [](auto&, auto&) {}},
        {"read", quNunca, [](auto& a, auto&) { LerBytes(a); }},
        {"dated", quNunca, [](auto& a, auto&) { fs::last_write_time(a, fs::last_write_time(a) + hours(1)); }},
        {"longer", quNoOlhar, [](auto& a, auto&) { GravarBytes(a, "mais", std::ios::app); }},
        {"shorter", quNoOlhar, [](auto& a, auto&) { fs::resize_file(a, fs::file_size(a) - 1); }},
        {"emptied", quNoOlhar, [](auto& a, auto&) { fs::resize_file(a, 0); }},
        {"moved away", quNoOlhar, [](auto& a, auto&) { fs::rename(a, Com(a, ".1")); }},
        {"another file of the same text", quNoOlhar, [](auto& a, auto&) { Trocar(a); }},
        {"empty lines at the end", quNunca, [](auto&, auto& l) { l.AdicionarEspacoEmBranco(2); }},
        {"inserted at the end", quNunca, [](auto&, auto& l) { l.InserirTexto(u"fim", 2, clBlue); }},
        {"inserted in the middle", quNaHora, [](auto&, auto& l) { l.InserirTexto(u"meio", 1, clBlue); }},
        {"another encoding", quNaHora, [](auto&, auto& l) { l.SetCodificacao(clWindows1252); }},
        {"other lines, and more", quNaHora, [](auto&, auto& l) { l.Limpar(), l.AdicionarEspacoEmBranco(500); }},
    };
    // Windows keeps the folder of an open file where it is; Wine deletes an open file only when it is closed.
    if (Interno::BuscarSeparadorDePastas() == u'/') {
        mexidas.push_back({"gone", quNoOlhar, [](auto& a, auto&) { fs::remove(a); }});
        mexidas.push_back({"folder moved", quNoOlhar,
                           [](auto& a, auto&) { fs::rename(a.parent_path(), Com(a.parent_path(), "_1")); }});
    }
    return mexidas;
}

/// It looks at the file every tenth of a second, and at the end.
TEST(LogAcrescimo, SoContinuaOQueEleMesmoDeixou) {
    for (const TMexida& mexida : BuscarMexidas())
        for (const bool umaLinhaAntes : {false, true})
            for (const bool fim : {false, true}) {
                SCOPED_TRACE(mexida.Porque);
                TAcrescimo t;
                t.Ambiente.Passo = {};
                std::size_t tamanho = t.Log.Esperar().size();
                const auto conferir = [&](bool ATudo) {
                    const std::size_t escritos = t.Adicionar();
                    const std::size_t agora = t.Log.Esperar().size();
                    EXPECT_EQ(escritos, ATudo ? agora : agora - tamanho);
                    tamanho = agora;
                };
                conferir(false);
                mexida.Mexer(t.Arquivo, t.Log);
                t.Ambiente.Relogio += std::chrono::milliseconds(99);
                if (umaLinhaAntes) conferir(mexida.Regrava == quNaHora);
                t.Ambiente.Relogio += std::chrono::milliseconds(fim ? 0 : 1);
                if (fim)
                    t.Log.FinalizarLog();
                else
                    conferir(mexida.Regrava == quNoOlhar || (mexida.Regrava == quNaHora && !umaLinhaAntes));
                EXPECT_EQ(LerBytes(t.Arquivo), t.Log.Esperar());
                if (fim) continue;
                conferir(false);  // then it goes on
                EXPECT_EQ(LerBytes(t.Arquivo), t.Log.Esperar());
            }
}

TEST(LogAcrescimo, OutroNomeEhOutroArquivo) {
    TAcrescimo t;
    t.Ambiente.Passo = {};
    t.Adicionar();
    t.Log.SetTipoPeriodicidade(tplDiario);
    t.Adicionar();
    EXPECT_EQ(LerBytes(t.Arquivo.parent_path() / "A_15_11_2026.log"), t.Log.Esperar());
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

}  // namespace

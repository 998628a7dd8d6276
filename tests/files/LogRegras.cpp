#include "oryutils/files/interno/DataDoArquivo.hpp"
#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "files/LogApoio.hpp"

namespace {

using namespace OryUtils;

class LogRegras : public testing::Test {
protected:
    /// Of the file of that name, by the clock of the wall.
    TDateTime BuscarData(const std::string& ANome) const {
        const auto dados = Interno::ProcurarArquivo(Pasta.Nome(ANome));
        return dados ? Interno::BuscarDataEmpacotada(dados->UltimaGravacao) : TDateTime();
    }

    const TFormatosTemporarios Formatos{BuscarFormatosBrasileiros()};
    const TPastaTemporaria Pasta;
    TAmbienteDeTeste Ambiente;
};

TEST_F(LogRegras, NomeDoArquivo) {
    constexpr struct {
        const char16_t *Dado, *Valor;
        TTipoPeriodicidadeLog Periodicidade;
        const char16_t* Esperado;
        const char* Porque;
    } CCasos[] = {
        {u"", u"C:\\Logs\\Importacao.txt", tplDiario, u"C:\\Logs\\Importacao_15_11_2026.log", "day in the name"},
        {u"", u"C:\\Logs\\Importacao.txt", tplUnico, u"C:\\Logs\\Importacao.log", "extension replaced"},
        {u"Importacao.txt", u"D:\\Outra\\Nome.txt", tplUnico, u"D:\\Outra\\Importacao.log", "the first name wins"},
        {u"  ", u"/var/log/a.b.log", tplUnico, u"/var/log/a.b.log", "a blank name is none; one extension goes"},
        {u"", u"rotina", tplUnico, u"rotina.log", "no folder: relative"},
        {u"", u"C:rotina", tplUnico, u"C:\\rotina.log", "a drive gets its delimiter"},
        {u"a", u"/tmp/", tplUnico, u"/tmp/a.log", "a folder alone"},
        {u"", u"/tmp/.log", tplDiario, u"", "nothing but an extension: no file"},
        {u"", u"/tmp/ .log", tplUnico, u"", "a blank name: no file"},
        {u"", u"", tplDiario, u"", "nothing"},
    };
    const TDateTime noite = CodificarData(2026, 11, 15) + 0.99;
    for (const auto& c : CCasos)
        EXPECT_EQ(TOryUtilsArquivoLog::FormatarNomeArquivoLog(c.Dado, c.Valor, c.Periodicidade, noite), c.Esperado)
            << c.Porque;
    TOryUtilsArquivoLog log(u"", Ambiente);
    log.SetArquivoLog(u"/logs/Tarde.txt");
    EXPECT_EQ(log.GetArquivoLog(), u"/logs/Tarde.log") << "an empty first name does not win";
}

TEST_F(LogRegras, QuemNaoFinalizaNaoGrava) {
    TLogDeTeste(Pasta.Nome("x"), Ambiente).Adicionar(u"perdida", clBlue);
    EXPECT_TRUE(std::filesystem::is_empty(Pasta.Caminho()));
}

/// Writes down what the events bring, a line each.
struct TOuvinte {
    std::string Visto{};
    TObjeto* Esperado = nullptr;
    void AoMudar(TObjeto* ASender, std::u16string_view AStatus, TColor ACor) {
        EXPECT_EQ(ASender, Esperado);
        Visto += std::to_string(ACor) + " " + ParaUtf8(AStatus) + "\n";
    }
    void AoFinalizar(TObjeto* ASender, std::u16string_view APasta) {
        EXPECT_EQ(ASender, Esperado);
        EXPECT_TRUE(std::filesystem::exists(static_cast<TOryUtilsArquivoLog*>(ASender)->GetArquivoLog()))
            << "who shows the folder finds the file in it";
        Visto += "in " + ParaUtf8(APasta);
    }
};

TEST_F(LogRegras, Eventos) {
    TOryUtilsArquivoLog log(Pasta.Nome("sub/x.txt"), Ambiente);
    TOuvinte ouvinte{.Esperado = &log};
    log.SetOnStatus(TEventoOnStatusLog::De<&TOuvinte::AoMudar>(ouvinte));
    log.SetOnAposFinalizarLog(TEventoAposFinalizarLog::De<&TOuvinte::AoFinalizar>(ouvinte));
    log.Adicionar(u"oi", 0x00123456);
    log.AdicionarEspacoEmBranco(3);
    log.InserirTexto(u"nada", 0, clBlue);
    log.Adicionar(u"  ", 7);
    log.FinalizarLog();
    const std::string azul = "16711680 [15/11/2026 00:00:00]: ";
    const std::string separador = "4278190088 [15/11/2026 00:00:00]: " + std::string(78, '*') + "\n";
    std::string esperado;
    for (std::size_t i = 0; i < 5; ++i) esperado += azul + ParaUtf8(CCabecalho[i]) + "\n";
    esperado += separador + "1193046 [15/11/2026 00:00:00]: oi\n7   \n" + separador;
    esperado += azul + "Fim do processo\n4278190088 \nin " + ParaUtf8(Pasta.Nome("sub/"));
    EXPECT_EQ(ouvinte.Visto, esperado);
}

TEST_F(LogRegras, CadaArquivoTemADataDoSeuDia) {
    TLogDeTeste log(Pasta.Nome("Dia.txt"), Ambiente);
    log.SetTipoPeriodicidade(tplDiario);
    log.Adicionar(u"antes", clBlue);
    Ambiente.Marcar(2026, 11, 16);
    log.Adicionar(u"depois", clBlue);
    Ambiente.Marcar(2026, 11, 17, 0, 30);
    log.FinalizarLog();
    // Finished after midnight, dated by the day that they record.
    EXPECT_EQ(BuscarData("Dia_15_11_2026.log"), CodificarData(2026, 11, 15));
    EXPECT_EQ(BuscarData("Dia_16_11_2026.log"), CodificarData(2026, 11, 16));
    Ambiente.Marcar(1999, 5, 4);
    TLogDeTeste(Pasta.Nome("Unico"), Ambiente).FinalizarLog();
    EXPECT_GT(BuscarData("Unico.log"), CodificarData(1999, 5, 5)) << "of today";
}

TEST_F(LogRegras, AFormaDaHoraEhUmaSoEmTodoOLog) {
    TOryUtilsArquivoLog log(u"", Ambiente);
    TFormatSettings outros = BuscarFormatosBrasileiros();
    outros.ShortDateFormat = u"yyyy-mm-dd";
    const TFormatosTemporarios temporarios(outros);
    log.Adicionar(u"x", clBlue);
    EXPECT_TRUE(log.GetTexto().ends_with(u"[15/11/2026 00:00:00]: x")) << "midnight has its time too";
}

TEST_F(LogRegras, CarregaOArquivoExistenteComQualquerFimDeLinha) {
    const struct {
        const char *Porque, *Bytes;
        TLinhas Linhas;
    } casos[] = {
        {"LF", "a\nb\n", {u"a", u"b"}},
        {"CR LF", "a\r\nb\r\n", {u"a", u"b"}},
        {"CR", "a\rb\r", {u"a", u"b"}},
        {"mixed, the last one open", "a\n\r\n\rb", {u"a", u"", u"", u"b"}},
        {"one empty line", "\n", {u""}},
        {"nothing", "", {}},
        {"the mark of an editor", "\uFEFFação\n", {u"ação"}},
        {"the mark alone", "\uFEFF", {}},
        {"the mark before an empty line", "\uFEFF\n", {u""}},
        {"no file: the list stays as it is", nullptr, {u"", u""}},
        {"a folder: so it does", nullptr, {u"", u""}},
    };
    const auto arquivo = Pasta / "E.log";
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Porque);
        if (c.Bytes)
            GravarBytes(arquivo, c.Bytes);
        else if (!std::filesystem::remove(arquivo))
            std::filesystem::create_directory(arquivo);
        TLogDeTeste log(Pasta.Nome("E"), Ambiente, mgReescrever);
        log.SetFormatoMensagem(tfmSomenteTexto);
        log.SetUsarArquivoLogExistente(true);
        log.AdicionarEspacoEmBranco(2);
        log.IniciarLog();
        EXPECT_EQ(log.GetTexto(), JuntarTexto(Somar(c.Linhas, CCabecalho)));
        if (!c.Bytes) continue;
        log.SalvarArquivoLog();
        EXPECT_EQ(LerBytes(arquivo), log.Esperar());
    }
}

TEST_F(LogRegras, CodificacaoNuncaPara) {
    const std::u16string texto = u"coração € \u4E2D \U0001F600 \xD800 fim";
    // What the system's encoding is, the tests of each system tell.
    const std::string doSistema = Interno::ParaTextoDoSistema(texto);
    const struct {
        TCodificacaoLog Codificacao;
        std::string Bytes;
        std::u16string Lido;
    } casos[] = {
        {clUtf8, "coração € \u4E2D \U0001F600 \uFFFD fim", u"coração € \u4E2D \U0001F600 \uFFFD fim"},
        {clWindows1252, "cora\xE7\xE3o \x80 ? ? ? fim", u"coração € ? ? ? fim"},
        {clPadrao, doSistema, Interno::DeTextoDoSistema(doSistema)},
    };
    TLogDeTeste log(Pasta.Nome("C"), Ambiente, mgAcrescentar);
    log.SetFormatoMensagem(tfmSomenteTexto);
    log.IniciarLog();
    log.Limpar();
    log.Adicionar(texto, clBlue);
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Codificacao);
        log.SetCodificacao(c.Codificacao);
        log.SalvarArquivoLog();
        EXPECT_EQ(LerBytes(Pasta / "C.log"), c.Bytes + ParaUtf8(Interno::BuscarQuebraDeLinha()));
        EXPECT_EQ(log.GetTexto(), texto) << "the memory keeps what the file cannot";
        TLogDeTeste seguinte(Pasta.Nome("C"), Ambiente);
        seguinte.SetCodificacao(c.Codificacao);
        seguinte.SetFormatoMensagem(tfmSomenteTexto);
        seguinte.SetUsarArquivoLogExistente(true);
        seguinte.IniciarLog();
        EXPECT_EQ(seguinte.GetTexto(), JuntarTexto(Somar({c.Lido}, CCabecalho)));
    }
    // Every byte of Windows-1252 goes there and back.
    std::string bytes;
    for (int i = 1; i < 256; ++i)
        if (i != '\r' && i != '\n') bytes += static_cast<char>(i);
    EXPECT_EQ(ParaWindows1252(DeWindows1252(bytes)), bytes);
}

TEST_F(LogRegras, LinhaCarregadaGuardaOsSeusBytes) {
    const std::string quebra = ParaUtf8(Interno::BuscarQuebraDeLinha());
    const struct {
        const char* Porque;
        TCodificacaoLog Codificacao;
        std::string Linha;
        std::u16string Lido;
        std::string EmUtf8, EmWindows1252;  // after a change of the setting
    } casos[] = {
        {"Windows-1252 continued as UTF-8", clUtf8, "cora\xE7\xE3o", u"cora\uFFFD\uFFFDo", "cora\xE7\xE3o",
         "cora\xE7\xE3o"},
        {"cut in a character", clUtf8, "a \xC3", u"a \uFFFD", "a \xC3", "a \xC3"},
        {"a line that decodes goes along", clUtf8, "ação", u"ação", "ação", "a\xE7\xE3o"},
        {"Windows-1252 as what it is", clWindows1252, "a\xE7\xE3o", u"ação", "ação", "a\xE7\xE3o"},
        {"UTF-8 continued as Windows-1252", clWindows1252, "\xC3\xA7", u"Ã§", "Ã§", "\xC3\xA7"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Porque);
        GravarBytes(Pasta / "B.log", c.Linha + "\n");
        TLogDeTeste log(Pasta.Nome("B"), Ambiente);
        log.SetFormatoMensagem(tfmSomenteTexto);
        log.SetUsarArquivoLogExistente(true);
        log.SetCodificacao(c.Codificacao);
        log.IniciarLog();
        EXPECT_EQ(log.GetTexto(), JuntarTexto(Somar({c.Lido}, CCabecalho)));
        const auto gravar = [&] {
            log.SalvarArquivoLog();
            const std::string bytes = LerBytes(Pasta / "B.log");
            return bytes.substr(0, bytes.find(quebra));
        };
        EXPECT_EQ(gravar(), c.Linha);
        log.SetCodificacao(clUtf8);
        EXPECT_EQ(gravar(), c.EmUtf8);
        log.SetCodificacao(clWindows1252);
        EXPECT_EQ(gravar(), c.EmWindows1252);
    }
}

TEST_F(LogRegras, ExibirAvisaQuandoNaoHaArquivo) {
    static std::u16string GAviso;
    const TCosturaInterface antes = CosturaInterface();
    CosturaInterface().Alerta = [](std::u16string_view AMensagem) { GAviso = AMensagem; };
    TOryUtilsArquivoLog(u"/nao/existe/100%s.txt", Ambiente).ExibirLog();
    CosturaInterface() = antes;
    EXPECT_EQ(GAviso, u"Arquivo /nao/existe/100%s.log não encontrado.");
}

/// A screen that logs while the log lets messages be processed.
TEST_F(LogRegras, MensagemProcessadaNoRodapeFicaNoDiaQueTermina) {
    static TLogDeTeste* GLog;
    static int GRestam;
    TLogDeTeste log(Pasta.Nome("R"), Ambiente, mgReescrever);
    log.SetFormatoMensagem(tfmSomenteTexto);
    log.SetTipoPeriodicidade(tplDiario);
    log.Adicionar(u"um", clBlue);
    GLog = &log;
    GRestam = 1;
    const TCosturaInterface antes = CosturaInterface();
    CosturaInterface().ProcessarMensagens = [] {
        if (GRestam-- > 0) GLog->Adicionar(u"do temporizador", clBlue);
    };
    Ambiente.Marcar(2026, 11, 16);
    log.Adicionar(u"dois", clBlue);
    CosturaInterface() = antes;
    EXPECT_NE(LerBytes(Pasta / "R_15_11_2026.log").find("do temporizador"), std::string::npos);
    EXPECT_EQ(log.GetTexto(), JuntarTexto(Somar(CCabecalho, {u"dois"})));
}

}  // namespace

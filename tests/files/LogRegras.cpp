#include "oryutils/files/interno/DataDoArquivo.hpp"
#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "files/LogApoio.hpp"

namespace {

using namespace OryUtils;

const std::u16string CAsteriscos(78, u'*');

class LogRegras : public testing::Test {
protected:
    std::u16string Carimbar(std::u16string_view AMensagem) const {
        return FormatarDataHora(u"'['dd/mm/yyyy hh:nn:ss']: '", Ambiente.Agora) + std::u16string(AMensagem);
    }
    std::vector<std::u16string> Cabecalho() const {
        return {Carimbar(u"Início do processo"),        Carimbar(u"Aplicação executora: Importador.exe"),
                Carimbar(u"Versão: 7.2.0.15"),          Carimbar(u"IP: 192.168.0.10"),
                Carimbar(u"Nome da máquina: SERVIDOR"), Carimbar(CAsteriscos)};
    }
    std::vector<std::u16string> Rodape() const { return {Carimbar(CAsteriscos), Carimbar(u"Fim do processo"), u""}; }
    static std::vector<std::u16string> Somar(std::vector<std::vector<std::u16string>> APartes) {
        std::vector<std::u16string> todas;
        for (const auto& parte : APartes) todas.insert(todas.end(), parte.begin(), parte.end());
        return todas;
    }
    /// GetTexto of those lines.
    static std::u16string Texto(const std::vector<std::u16string>& ALinhas) {
        std::u16string texto = DeUtf8(JuntarLinhas(ALinhas));
        texto.resize(texto.size() - Interno::BuscarQuebraDeLinha().size());
        return texto;
    }

    const TFormatosTemporarios Formatos{BuscarFormatosBrasileiros()};
    const TPastaTemporaria Pasta;
    TAmbienteDeTeste Ambiente;
};

TEST_F(LogRegras, NomeDoArquivo) {
    struct TCaso {
        const char16_t *Dado, *Valor;
        TTipoPeriodicidadeLog Periodicidade;
        const char16_t* Esperado;
        const char* Porque;
    };
    constexpr TCaso CCasos[] = {
        {u"", u"C:\\Logs\\Importacao.txt", tplDiario, u"C:\\Logs\\Importacao_15_11_2026.log", "day in the name"},
        {u"", u"C:\\Logs\\Importacao.txt", tplUnico, u"C:\\Logs\\Importacao.log", "extension replaced"},
        {u"Importacao.txt", u"D:\\Outra\\Nome.txt", tplUnico, u"D:\\Outra\\Importacao.log", "the first name wins"},
        {u"  ", u"/var/log/a.b.log", tplUnico, u"/var/log/a.b.log",
         "a blank name is none; only the last extension goes"},
        {u"", u"rotina", tplUnico, u"rotina.log", "no folder: relative"},
        {u"", u"C:rotina", tplUnico, u"C:\\rotina.log", "a drive gets its delimiter"},
        {u"a", u"/tmp/", tplUnico, u"/tmp/a.log", "a folder alone"},
        {u"", u"/tmp/.log", tplDiario, u"", "nothing but an extension: no file"},
        {u"", u"/tmp/ .log", tplUnico, u"", "a blank name: no file"},
        {u"", u"", tplDiario, u"", "nothing"},
    };
    for (const TCaso& c : CCasos)
        EXPECT_EQ(TOryUtilsArquivoLog::FormatarNomeArquivoLog(c.Dado, c.Valor, c.Periodicidade,
                                                              CodificarData(2026, 11, 15) + 0.99),
                  c.Esperado)
            << c.Porque;
}

TEST_F(LogRegras, UmNomeVazioNaoFica) {
    TOryUtilsArquivoLog log(u"", Ambiente);
    log.SetArquivoLog(u"/logs/Tarde.txt");
    EXPECT_EQ(log.GetArquivoLog(), u"/logs/Tarde.log");
}

TEST_F(LogRegras, QuemNaoFinalizaNaoGrava) {
    TLogDeTeste(Pasta.Nome("x"), Ambiente).Adicionar(u"perdida", clBlue);
    EXPECT_TRUE(std::filesystem::is_empty(Pasta.Caminho()));
}

TEST_F(LogRegras, InserirForaDaListaNadaMuda) {
    TOryUtilsArquivoLog log(u"", Ambiente);
    log.InserirTexto(u"topo", 0, clBlue);
    const std::u16string antes = log.GetTexto();
    for (const int indice : {-1, 8}) EXPECT_THROW(log.InserirTexto(u"x", indice, clBlue), EListError);
    EXPECT_EQ(log.GetTexto(), antes);
}

/// Writes down what the events bring.
struct TOuvinte {
    struct TStatus {
        std::u16string Linha;
        TColor Cor;
    };
    std::vector<TStatus> Linhas{};
    std::vector<std::u16string> Pastas{};
    TObjeto* Quem = nullptr;
    void AoMudar(TObjeto* ASender, std::u16string_view AStatus, TColor ACor) {
        Quem = ASender;
        Linhas.push_back({std::u16string(AStatus), ACor});
    }
    void AoFinalizar(TObjeto* ASender, std::u16string_view APasta) {
        Quem = ASender;
        Pastas.emplace_back(APasta);
        JahGravado = std::filesystem::exists(static_cast<TOryUtilsArquivoLog*>(ASender)->GetArquivoLog());
    }
    bool JahGravado = false;
};

TEST_F(LogRegras, Eventos) {
    TOuvinte ouvinte;
    TOryUtilsArquivoLog log(Pasta.Nome("sub/x.txt"), Ambiente);
    log.SetOnStatus(TEventoOnStatusLog::De<&TOuvinte::AoMudar>(ouvinte));
    log.SetOnAposFinalizarLog(TEventoAposFinalizarLog::De<&TOuvinte::AoFinalizar>(ouvinte));
    log.Adicionar(u"oi", 0x00123456);
    log.AdicionarEspacoEmBranco(3);
    log.InserirTexto(u"nada", 0, clBlue);
    log.Adicionar(u"  ", 7);
    log.FinalizarLog();
    const auto linhas = Somar({Cabecalho(), {Carimbar(u"oi"), u"  "}, Rodape()});
    const TColor cores[] = {clBlue,     clBlue, clBlue,       clBlue, clBlue,      clWindowText,
                            0x00123456, 7,      clWindowText, clBlue, clWindowText};
    ASSERT_EQ(ouvinte.Linhas.size(), linhas.size());
    for (std::size_t i = 0; i < linhas.size(); ++i) {
        EXPECT_EQ(ouvinte.Linhas[i].Linha, linhas[i]);
        EXPECT_EQ(ouvinte.Linhas[i].Cor, cores[i]) << i;
    }
    EXPECT_EQ(ouvinte.Pastas, std::vector{Pasta.Nome("sub/")});
    EXPECT_TRUE(ouvinte.JahGravado) << "who shows the folder finds the file in it";
    EXPECT_EQ(ouvinte.Quem, &log);
    EXPECT_EQ(clBlue, 0x00FF0000u);
    EXPECT_EQ(clWindowText, 0xFF000008u);
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
    for (const int dia : {15, 16}) {
        const auto dados = Interno::ProcurarArquivo(Pasta.Nome("Dia_" + std::to_string(dia) + "_11_2026.log"));
        ASSERT_TRUE(dados);
        EXPECT_EQ(Interno::BuscarDataEmpacotada(dados->UltimaGravacao), CodificarData(2026, 11, dia)) << dia;
    }
    Ambiente.Marcar(1999, 5, 4);
    TLogDeTeste unico(Pasta.Nome("Unico"), Ambiente);
    unico.FinalizarLog();
    const auto dados = Interno::ProcurarArquivo(unico.GetArquivoLog());
    EXPECT_GT(Interno::BuscarDataEmpacotada(dados.value().UltimaGravacao), CodificarData(1999, 5, 5)) << "of today";
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
    struct TCaso {
        const char* Bytes;
        std::vector<std::u16string> Linhas;
        const char* Porque;
    };
    const TCaso casos[] = {
        {"a\nb\n", {u"a", u"b"}, "LF"},
        {"a\r\nb\r\n", {u"a", u"b"}, "CR LF"},
        {"a\rb\r", {u"a", u"b"}, "CR"},
        {"a\n\r\n\rb", {u"a", u"", u"", u"b"}, "mixed, the last one open"},
        {"\n", {u""}, "one empty line"},
        {"", {}, "nothing"},
        {"\xEF\xBB\xBF"
         "ação\n",
         {u"ação"},
         "the mark of an editor"},
    };
    for (const TCaso& c : casos) {
        GravarBytes(Pasta.Caminho() / "E.log", c.Bytes);
        TLogDeTeste log(Pasta.Nome("E"), Ambiente, mgReescrever);
        log.SetUsarArquivoLogExistente(true);
        log.IniciarLog();
        EXPECT_EQ(log.GetTexto(), Texto(Somar({c.Linhas, Cabecalho()}))) << c.Porque;
        log.SalvarArquivoLog();
        EXPECT_EQ(LerBytes(Pasta.Caminho() / "E.log"), JuntarLinhas(Somar({c.Linhas, Cabecalho()}))) << c.Porque;
    }
    std::filesystem::remove(Pasta.Caminho() / "E.log");
    TLogDeTeste log(Pasta.Nome("E"), Ambiente);
    log.SetUsarArquivoLogExistente(true);
    log.AdicionarEspacoEmBranco(1);
    log.IniciarLog();
    EXPECT_EQ(log.GetTexto(), Texto(Somar({{u""}, Cabecalho()}))) << "no file: the list stays as it is";
}

TEST_F(LogRegras, OExistenteEhLidoNaCodificacaoEmQueFoiEscrito) {
    const std::vector<std::u16string> mensagens{u"ação e reação", u"ascii", u"àéîõü"};
    for (const auto codificacao : {clPadrao, clUtf8, clWindows1252}) {
        std::u16string escrito;
        for (const auto& mensagem : mensagens) {
            TLogDeTeste log(Pasta.Nome("I"), Ambiente);
            log.SetCodificacao(codificacao);
            log.SetUsarArquivoLogExistente(!escrito.empty());
            log.Adicionar(mensagem, clBlue);
            log.SalvarArquivoLog();
            EXPECT_TRUE(log.GetTexto().starts_with(escrito)) << codificacao;
            escrito = log.GetTexto();
        }
        const std::string bytes = LerBytes(Pasta.Caminho() / "I.log");
        if (codificacao != clPadrao)
            EXPECT_EQ(bytes.find("a\xE7\xE3o e rea") != bytes.npos, codificacao == clWindows1252);
        else
            EXPECT_NE(bytes.find(Interno::ParaTextoDoSistema(mensagens[0])), bytes.npos);
    }
}

TEST_F(LogRegras, CodificacaoNuncaPara) {
    const std::u16string texto = u"coração € \u4E2D \U0001F600 \xD800 fim";
    struct TCaso {
        TCodificacaoLog Codificacao;
        std::string Esperado;
    };
    const TCaso casos[] = {
        {clUtf8, ParaUtf8(texto)},
        {clWindows1252, "cora\xE7\xE3o \x80 ? ? ? fim"},
        {clPadrao, Interno::ParaTextoDoSistema(texto)},  // what that is, the tests of each system tell
    };
    const std::string quebra = ParaUtf8(Interno::BuscarQuebraDeLinha());
    TLogDeTeste log(Pasta.Nome("C"), Ambiente, mgAcrescentar);
    log.SetFormatoMensagem(tfmSomenteTexto);
    log.IniciarLog();
    log.Limpar();
    log.Adicionar(texto, clBlue);
    for (const TCaso& c : casos) {
        log.SetCodificacao(c.Codificacao);
        log.SalvarArquivoLog();
        EXPECT_EQ(LerBytes(Pasta.Caminho() / "C.log"), c.Esperado + quebra) << c.Codificacao;
        EXPECT_EQ(log.GetTexto(), texto) << "the memory keeps what the file cannot";
    }
    // Every byte of Windows-1252 goes there and back.
    std::string bytes;
    for (int i = 1; i < 256; ++i)
        if (i != '\r' && i != '\n') bytes += static_cast<char>(i);
    EXPECT_EQ(ParaWindows1252(DeWindows1252(bytes)), bytes);
}

TEST_F(LogRegras, ExibirAvisaQuandoNaoHaArquivo) {
    static std::u16string GAviso;
    TCosturaInterface& costura = CosturaInterface();
    const TCosturaInterface antes = costura;
    costura.Alerta = [](std::u16string_view AMensagem) { GAviso = AMensagem; };
    TOryUtilsArquivoLog(u"/nao/existe/100%s.txt", Ambiente).ExibirLog();
    costura = antes;
    EXPECT_EQ(GAviso, u"Arquivo /nao/existe/100%s.log não encontrado.");
}

/// A screen that logs while the log lets messages be processed.
TEST_F(LogRegras, MensagemProcessadaNoRodapeFicaNoDiaQueTermina) {
    static TLogDeTeste* GLog;
    static int GRestam;
    TLogDeTeste log(Pasta.Nome("R"), Ambiente, mgReescrever);
    log.SetTipoPeriodicidade(tplDiario);
    log.Adicionar(u"um", clBlue);
    GLog = &log;
    GRestam = 1;
    TCosturaInterface& costura = CosturaInterface();
    const TCosturaInterface antes = costura;
    costura.ProcessarMensagens = [] {
        if (GRestam-- > 0) GLog->Adicionar(u"do temporizador", clBlue);
    };
    Ambiente.Marcar(2026, 11, 16);
    log.Adicionar(u"dois", clBlue);
    costura = antes;
    EXPECT_NE(LerBytes(Pasta.Caminho() / "R_15_11_2026.log").find("do temporizador"), std::string::npos);
    EXPECT_EQ(log.GetTexto(), Texto(Somar({Cabecalho(), {Carimbar(u"dois")}})));
}

}  // namespace

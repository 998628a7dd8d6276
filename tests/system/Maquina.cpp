// Rules of the machine, most of which need no machine.
#include "oryutils/characters/Caixa.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDeDiscos.hpp"
#include "oryutils/system/interno/RegrasDePastas.hpp"
#include "oryutils/system/interno/RegrasDeTeclado.hpp"
#include "oryutils/system/interno/VersaoDoWindows.hpp"

#include "text/Apoio.hpp"

#include <filesystem>
#include <limits>

using namespace OryUtils;

namespace {

TEST(Maquina, VersaoDoWindows) {
    const std::tuple<Interno::TVersaoDoSistema, TVersaoWindows, const char*> casos[] = {
        {{1, 4, 0, u""}, vwWin95, ""},
        {{1, 4, 10, u""}, vwWin98, "no second character"},
        {{1, 4, 10, u" A "}, vwWin98SE, "second edition"},
        {{1, 4, 10, u" a"}, vwWin98, "a small letter"},
        {{1, 4, 90, u" A"}, vwWinME, ""},
        {{2, 3, 51, u""}, vwWinNT, ""},
        {{2, 4, 0, u""}, vwWinNT, "the numbers of Windows 95"},
        {{2, 5, 0, u"Service Pack 4"}, vwWin2000, ""},
        {{2, 5, 1, u""}, vwWinXP, ""},
        {{2, 5, 2, u""}, vwUnknown, "server of XP's time"},
        {{2, 6, 3, u""}, vwWinVista, "every version 6"},
        {{2, 10, 0, u""}, vwUnknown, "version 10"},
        {{0, 6, 1, u""}, vwUnknown, "another platform"},
    };
    for (const auto& [versao, esperada, porque] : casos)
        EXPECT_EQ(Interno::ClassificarVersao(versao), esperada)
            << versao.Plataforma << ' ' << versao.Maior << '.' << versao.Menor << ' ' << porque;
    EXPECT_EQ(CVetorVersaoWindows[vwWinVista], u"Windows Vista/7 ou superior");
}

TEST(Maquina, FormatarBytes) {
    constexpr std::int64_t CMaior = std::numeric_limits<std::int64_t>::max();
    for (const std::int64_t valor :
         {std::int64_t{0}, std::int64_t{1023}, std::int64_t{1024}, std::int64_t{-1023}, std::int64_t{-1024},
          std::int64_t{123456789012345678}, std::int64_t{-1} << 50, CMaior, -CMaior - 1}) {
        std::int64_t divisor = 1;
        for (int formato = fbBytes; formato <= fbTerabytes; ++formato, divisor *= 1024)
            EXPECT_EQ(TOryUtilsSistema::FormatarBytes(valor, static_cast<TFormatoBytes>(formato)), valor / divisor);
    }
    for (const int desconhecido : {-1, 5, std::numeric_limits<int>::max()})
        EXPECT_EQ(TOryUtilsSistema::FormatarBytes(CMaior, static_cast<TFormatoBytes>(desconhecido)), CMaior);
}

TEST(Maquina, EspacoLivre) {
    const TOryUtilsSystemInfoDiscoRigidoIOP disco{30, 100, u"DADOS %s", fbGigabytes, u"D"};
    const std::u16string detalhes =
        u"Informações detalhadas da unidade: \r\n\r\nUnidade: D \r\nNome: DADOS %s \r\nEspaço total: 100 GB\r\nEspaço "
        u"livre: 30 GB\r\nEspaço usado: 70 GB";
    EXPECT_EQ(disco.GetInformacoesDetalhadas(), detalhes);
    EXPECT_EQ(Interno::ConferirEspacoLivre(disco, 30), TResultStatus{}) << "equal is enough";
    EXPECT_EQ(Interno::ConferirEspacoLivre(disco, -1), TResultStatus{});
    const std::u16string falta =
        u"A unidade << D >> não possui espaço suficiente.\r\nEspaço requisitado: 31 GB.\r\n\r\n" + detalhes;
    EXPECT_EQ(Interno::ConferirEspacoLivre(disco, 31), (TResultStatus{false, falta}));
    const std::int64_t muito = std::int64_t{1} << 40;  // its low 32 bits are zero
    EXPECT_FALSE(Interno::ConferirEspacoLivre(disco, muito).Status);
}

TEST(Maquina, OQueExisteEOQueNao) {
    using S = TOryUtilsSistema;
    for (const char16_t* unidade : {u"", u"1", u"/nao/existe", u"\\\\servidor\\x", u"CD"}) {
        const auto disco = S::BuscarInformacoesDiscoRigido(unidade, fbBytes);
        EXPECT_EQ(disco->EspacoTotal, 0) << ParaUtf8(unidade);
        EXPECT_EQ(disco->NomeVolume, u"Não identificado");
        EXPECT_EQ(S::BuscarQuantidadeEspacoLivreEmDisco(unidade, fbBytes), 0);
        EXPECT_FALSE(S::ValidouEspacoLivreEmDisco(unidade, 1, fbBytes).Status);
    }
    for (const char16_t* texto : {u"", u"nada", u"1.2.3.4.5"}) {
        EXPECT_EQ(S::BuscarNomeComputadorPeloIP(texto), u"");
        EXPECT_EQ(GetMacAddress2(texto), u"");
    }
    EXPECT_FALSE(S::EhIPLocal(u"192.0.2.254", false));
    EXPECT_TRUE(S::EhIPLocal(S::BuscarIPLocal(), false));
    EXPECT_EQ(S::BuscarIPPeloNomeComputador(u""), S::BuscarIPLocal()) << "the empty name is this machine";
    EXPECT_EQ(S::BuscarIPPeloNomeComputador(u"127.0.0.3"), u"127.0.0.3");
}

TEST(Maquina, Discos) {
    char16_t proxima = u'C';  // on Linux the file systems have letters in their order
    for (const std::u16string& unidade : TOryUtilsSistema::BuscarListaDrivesComputador()) {
        const std::u16string letra(1, unidade.front() == u'/' ? proxima++ : unidade.front());
        std::error_code erro;
        const auto espaco = std::filesystem::space(unidade, erro);
        if (erro || letra > u"Z") continue;
        for (const std::u16string& nome : {letra, MinusculaDe(letra), letra + u":", letra + u":\\"}) {
            const auto disco = TOryUtilsSistema::BuscarInformacoesDiscoRigido(nome, fbBytes);
            EXPECT_EQ(disco->EspacoTotal, static_cast<std::int64_t>(espaco.capacity)) << ParaUtf8(nome);
            EXPECT_GE(disco->EspacoTotal, disco->EspacoLivre);
            EXPECT_GT(disco->EspacoLivre, espaco.available > 0 ? 0 : -1);
            EXPECT_EQ(disco->Unidade, nome);
            EXPECT_NE(disco->NomeVolume, u"");
        }
    }
}

TEST(Maquina, IndiceDaUnidade) {
    constexpr std::pair<std::u16string_view, int> CCasos[] = {{u"A", 1},    {u"c", 3}, {u"Z", 26}, {u"C:", 3},
                                                              {u"D:\\", 4}, {u"", 0},  {u"1", 0},  {u"[", 0},
                                                              {u"AB", 0},   {u"/", 0}, {u"š", 0}};
    for (const auto& [unidade, indice] : CCasos)
        EXPECT_EQ(TOryUtilsSistema::BuscarIndiceUnidadeDisco(unidade), indice) << ParaUtf8(unidade);
}

TEST(Maquina, VarToIntDef) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    // A text that is no number, one too large, none at all, a word ("True"), a fraction, an array.
    for (const Variant& valor : {Variant(u""), Variant(u"3x"), Variant(2147483648), Variant(), Variant(TNulo{}),
                                 Variant(true), Variant(2.5), Variant(std::vector<Variant>(1, 1))})
        EXPECT_EQ(VarToIntDef(valor, -7), -7);
    EXPECT_EQ(VarToIntDef(12, -7), 12);
    EXPECT_EQ(VarToIntDef(u" -3", -7), -3);
    EXPECT_EQ(VarToIntDef(2.0, -7), 2);
    EXPECT_EQ(VarToIntDef(TMoeda::De(8), -7), 8);
}

TEST(Maquina, PastasVizinhas) {
    // The program, its folder, the folder beside that, the separator of the system.
    const std::tuple<std::u16string_view, std::u16string_view, std::u16string_view, char16_t, const char*> casos[] = {
        {u"C:\\ory\\bin\\p.exe", u"C:\\ory\\bin\\", u"C:\\ory\\OryApps", u'\\', "beside the application"},
        {u"C:\\bin\\p.exe", u"C:\\bin\\", u"C:\\OryApps", u'\\', "below the drive"},
        {u"C:\\p.exe", u"C:\\", u"OryApps", u'\\', "nothing above: relative, as the rule of the folder above has it"},
        {u"/opt/ory/bin/p", u"/opt/ory/bin/", u"/opt/ory/OryApps", u'/', ""},
        {u"/opt/a\\b/bin/p", u"/opt/a\\b/bin/", u"/opt/a\\b/OryApps", u'/', "the other system's separator is a letter"},
        {u"/app/p", u"/app/", u"/OryApps", u'/', "the root has no name"},
        {u"/p", u"/", u"/OryApps", u'/', "nothing is above the root"},
    };
    for (const auto& [executavel, aplicacao, vizinha, separador, porque] : casos) {
        EXPECT_EQ(Interno::BuscarPastaDoPrograma(executavel, separador), aplicacao) << porque;
        EXPECT_EQ(Interno::MontarPastaVizinha(aplicacao, u"OryApps", separador), vizinha) << porque;
    }
    EXPECT_EQ(Interno::MontarNomeConfiguracaoForms(u"PC1", u"ana"), u"FP_PC1_ana.ini");
    EXPECT_EQ(Interno::MontarNomeConfiguracaoForms(u"%s", u"a%d"), u"FP_%s_a%d.ini");
}

TEST(Maquina, OrdemDasTeclas) {
    const auto descrever = [](TShiftState AShift, bool AEstendida) {
        std::string texto;
        for (const Interno::TEventoDeTecla& e : Interno::MontarPressionamento(0x41, AShift, AEstendida))
            texto += (e.Soltar ? "-" : "+") + std::to_string(e.Tecla) + (e.Estendida ? "e " : " ");
        return texto;
    };
    EXPECT_EQ(descrever({}, false), "+65 -65 ");
    EXPECT_EQ(descrever({}, true), "+65e -65e ");
    EXPECT_EQ(descrever({ssAlt, ssShift, ssCtrl}, true), "+17 +16 +18 +65e -65e -18 -16 -17 ");
    EXPECT_EQ(descrever({ssAlt, ssCtrl}, false), "+17 +18 +65 -65 -18 -17 ");
}

}  // namespace

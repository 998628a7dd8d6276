#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/interno/DataDoArquivo.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

using namespace OryUtils;
using C = TOryUtilsFiles;

TDateTime Instante(int AAno, int AMes, int ADia, int AHora, int AMinuto, int ASegundo, int AMili = 0) {
    return JuntarDataHora(CodificarData(AAno, AMes, ADia), CodificarHora(AHora, AMinuto, ASegundo, AMili));
}

/// What a file says of itself.
std::string Ver(const std::u16string& AArquivo) {
    TArquivoInfo info;
    info.SetArquivo(AArquivo);
    const bool semData = info.GetData() == 0.0 && info.GetDataModificacao() == 0.0;
    return ParaUtf8(info.GetNome() + u"|" + info.GetTamanho() + u"|" + info.GetTamanhoFormatado() + u"|" +
                    info.GetExtensao() + (semData ? u"|" : u"|dated"));
}

TEST(Arquivos, NomeTamanhoEExtensao) {
    const TPastaTemporaria pasta;
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    EXPECT_EQ(Ver(pasta.Gravar(u"Relatório.TXT", std::string(1536, 'x'))), "Relatório.TXT|1536|1,5 KB|.txt|dated");
    EXPECT_EQ(Ver(pasta.Caminho().u16string()), ParaUtf8(pasta.Caminho().filename().u16string()) + "|0|0 bytes||")
        << "a search finds folders too";
    pasta.Gravar(u"r", "a name does not end at a character of code 0");
    for (const auto& nome :
         {pasta.Nome(u"falta"), pasta.Nome(u"Relatório.TXT/x"), pasta.Nome(u"Relatório.TXT/"),
          pasta.Nome(std::u16string_view(u"r\0", 2)), std::u16string(1 << 20, u'x'), std::u16string(u"\xD800")}) {
        EXPECT_EQ(Ver(nome), "|0|0 bytes||");
        EXPECT_FALSE(C::AlterouDataHoraArquivo(nome, Instante(2026, 1, 1, 0, 0, 0)));
    }
}

TEST(Arquivos, DataVaiEVolta) {
    const TPastaTemporaria pasta;
    TArquivoInfo info;
    info.SetArquivo(pasta.Gravar(u"a.log", "x"));
    const struct {
        TDateTime Gravada, Lida;
        const char* Porque;
    } casos[] = {
        {Instante(2026, 11, 15, 0, 0, 0), Instante(2026, 11, 15, 0, 0, 0), "midnight"},
        {Instante(2024, 2, 29, 23, 59, 59, 999), Instante(2024, 2, 29, 23, 59, 58), "the even second before"},
        {Instante(1985, 7, 1, 12, 0, 1), Instante(1985, 7, 1, 12, 0, 0), "another time of year"},
        {Instante(1975, 7, 1, 12, 0, 0), 0, "before the packed form begins"},
        {Instante(2115, 7, 1, 12, 0, 0), 0, "after it ends"},
    };
    for (const auto& caso : casos) {
        EXPECT_TRUE(C::AlterouDataHoraArquivo(info.GetArquivo(), caso.Gravada)) << caso.Porque;
        EXPECT_EQ(info.GetDataModificacao(), caso.Lida) << caso.Porque;
        EXPECT_EQ(info.GetData(), caso.Lida) << caso.Porque;
    }
    for (const double absurda : {1e9, -1e9, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_FALSE(C::AlterouDataHoraArquivo(info.GetArquivo(), absurda));
    EXPECT_FALSE(C::AlterouDataHoraArquivo(pasta.Caminho().u16string(), Instante(2026, 1, 1, 0, 0, 0))) << "a folder";
}

// Two hours behind UTC in the summer that ends on 2018-02-18 at 02:00 UTC, three hours from then on.
std::int32_t FusoComVerao(std::int64_t AInstante) { return AInstante < 1518919200 ? -7200 : -10800; }

TEST(Arquivos, DataEmpacotadaEHoraLocalDoSeuTempo) {
    const struct {
        Interno::TInstanteUtc Instante;
        TDateTime Local;
        const char* Porque;
    } casos[] = {
        {1518919199'999, Instante(2018, 2, 17, 23, 59, 58), "last second of the summer, by its own clock"},
        {1518919200'000, Instante(2018, 2, 17, 23, 0, 0), "the hour comes again"},
        {315540000'000, Instante(1980, 1, 1, 0, 0, 0), "1980 by the wall"},
        {315532800'000, 0, "1980 in UTC, 1979 by the wall"},
        {0, 0, "1970"},
        {-1, 0, "1969"},
        {INT64_MAX, 0, "no date"},
        {INT64_MIN, 0, "no date"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Interno::BuscarDataEmpacotada(caso.Instante, FusoComVerao), caso.Local) << caso.Porque;
    EXPECT_EQ(Interno::BuscarInstanteUtc(Instante(2018, 2, 17, 23, 0, 0), FusoComVerao), 1518915600'000)
        << "a time that happens twice is its first time";

    // Clocks that go forward at midnight: a day without its first hour still dates the files of that day.
    const auto semMeiaNoite = [](std::int64_t AInstante) { return AInstante < 1541300400 ? -10800 : -7200; };
    const auto inicio = Interno::BuscarInstanteUtc(CodificarData(2018, 11, 4), semMeiaNoite);
    ASSERT_TRUE(inicio);
    EXPECT_EQ(Interno::BuscarDataEmpacotada(*inicio, semMeiaNoite), Instante(2018, 11, 4, 1, 0, 0));

    std::mt19937 sorteio(20181104);
    for (int i = 0; i < 5000; ++i) {
        // From the first instant on whose local time comes only once.
        const auto instante = 1518922800'000 + 2000 * static_cast<std::int64_t>(sorteio() % 900'000'000);
        const TDateTime local = Interno::BuscarDataEmpacotada(instante, FusoComVerao);
        EXPECT_EQ(Interno::BuscarInstanteUtc(local, FusoComVerao), instante);
    }
}

TEST(Arquivos, Pastas) {
    const TPastaTemporaria pasta;
    const std::u16string arquivo = pasta.Gravar(u"a", "x");
    for (const auto& nome : {pasta.Caminho().u16string(), pasta.Nome(u"")}) EXPECT_TRUE(C::ExisteDiretorio(nome));
    for (const auto& nome : {arquivo, pasta.Nome(u"falta"), std::u16string()}) EXPECT_FALSE(C::ExisteDiretorio(nome));
    for (const auto& nome : {pasta.Nome(u"falta.txt"), std::u16string(), std::u16string(u"a\0b", 3)})
        EXPECT_FALSE(C::AbrirArquivo(nome));
}

TEST(Arquivos, TamanhoComUnidade) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const struct {
        std::int64_t Tamanho;
        std::u16string_view Texto;
        const char* Porque;
    } casos[] = {
        {0, u"0 bytes", "nothing"},
        {1, u"1 byte", "singular"},
        {1023, u"1.023 bytes", "still bytes"},
        {1024, u"1 KB", "no decimals without need"},
        {1536, u"1,5 KB", "one decimal"},
        {1116, u"1,09 KB", "two decimals"},
        {1048570, u"1.023,99 KB", "rounds below the next unit"},
        {1048571, u"1 MB", "rounds to the next unit"},
        {5368709120, u"5 GB", "beyond 32 bits"},
        {std::numeric_limits<std::int64_t>::max(), u"8.589.934.592 GB", "no unit above GB"},
        {-1536, u"-1,5 KB", "a difference"},
        {std::numeric_limits<std::int64_t>::min(), u"-8.589.934.592 GB", "the smallest number"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(ParaUtf8(C::FormatarTamanhoArquivo(caso.Tamanho)), ParaUtf8(caso.Texto)) << caso.Porque;
}

}  // namespace

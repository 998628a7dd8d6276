#include "oryutils/dates/OryUtilsDatas.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/dates/interno/DatasInterno.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "comum/Casos.hpp"

#include <cmath>
#include <limits>
#include <random>
#include <utility>

namespace {

using namespace OryUtils;
using D = TOryUtilsDatas;

TDateTime Momento(int AAno, int AMes, int ADia, int AHora = 0, int AMinuto = 0, int ASegundo = 0, int AMili = 0) {
    return JuntarDataHora(CodificarData(AAno, AMes, ADia), CodificarHora(AHora, AMinuto, ASegundo, AMili));
}

struct OryUtilsDatas : testing::Test {
    TFormatosTemporarios Formatos{BuscarFormatosBrasileiros()};
};

TEST_F(OryUtilsDatas, PeriodosDeTodosOsMeses) {
    const struct {
        int Meses;
        int (*Numero)(TDateTime);
        int (*PrimeiroMes)(TDateTime);
        TDateTime (*DataFinal)(TDateTime);
    } periodos[] = {
        {2, D::BuscarBimestre, D::BuscarPrimeiroMesDoBimestre, D::BuscarDataFinalDoBimestre},
        {3, D::BuscarTrimestre, D::BuscarPrimeiroMesDoTrimestre, D::BuscarDataFinalDoTrimestre},
        {4, nullptr, D::BuscarPrimeiroMesDoQuadrimestre, D::BuscarDataFinalDoQuadrimestre},
        {6, D::BuscarSemestre, D::BuscarPrimeiroMesDoSemestre, D::BuscarDataFinalDoSemestre},
    };
    for (const int ano : {1, 1899, 1900, 2023, 2024, 9999})
        for (int mes = 1; mes <= 12; ++mes) {
            const auto fim = [&](int AMes) { return CodificarData(ano, AMes, BuscarDiasNoMes(ano, AMes)); };
            for (const TDateTime data : {Momento(ano, mes, 1), Momento(ano, mes, BuscarDiasNoMes(ano, mes), 23, 59)}) {
                SCOPED_TRACE(data.Valor);
                for (const auto& p : periodos) {
                    const int antes = (mes - 1) / p.Meses;
                    EXPECT_TRUE(!p.Numero || p.Numero(data) == antes + 1);
                    EXPECT_EQ(p.PrimeiroMes(data), antes * p.Meses + 1);
                    EXPECT_EQ(p.DataFinal(data), fim((antes + 1) * p.Meses));
                }
                EXPECT_EQ(D::BuscarPrimeiroDiaMes(data), CodificarData(ano, mes, 1));
                EXPECT_EQ(D::BuscarUltimoDiaMes(data), fim(mes));
            }
        }
    for (const double semData : {std::nan(""), 1e300, 2958466.0}) {
        EXPECT_EQ(D::BuscarBimestre(semData), 0);
        EXPECT_EQ(D::BuscarPrimeiroMesDoQuadrimestre(semData), 0);
        EXPECT_EQ(D::BuscarDescricaoDiaSemana(semData), u"");
        EXPECT_THROW(D::BuscarDataFinalDoSemestre(semData), EConvertError);
        EXPECT_THROW(D::BuscarDataSemHora(semData), EConvertError);
    }
}

TEST_F(OryUtilsDatas, DiasEntreDatas) {
    const TDateTime fim = Momento(2024, 3, 10, 23), inicio = Momento(2024, 3, 1, 1);
    EXPECT_EQ(D::CalcularDiferencaEntreDatas(fim, inicio), -9);
    EXPECT_EQ(D::BuscarDiasEntreDatas(fim, inicio), 9);
    EXPECT_EQ(D::BuscarDiasEntreDatas(inicio, fim), 9);
    EXPECT_EQ(D::CalcularDiferencaEntreDatas(-1.75, 0.5), 1) << "before day 0";
    EXPECT_EQ(D::BuscarDiasEntreDatas(1e300, -1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(D::CalcularDiferencaEntreDatas(std::nan(""), 1), 0);
}

TEST_F(OryUtilsDatas, DataFormatada) {
    const TDateTime data = Momento(2024, 3, 5, 14, 7, 9);
    TOryUtilsDatasFormatacaoDataIOP copia;
    copia.Assign({.AdicionarAspas = true, .Mascara = u"h", .Tipo = fdDataHora, .Data = -1.25});
    Testes::Conferir<std::u16string>({
        {D::BuscarDataFormatada(data), u"03/05/2024", "month first"},
        {D::BuscarDataFormatada(data, fdDataHora, u" \t", false), u"05/03/2024 14:07:09", "day first"},
        {D::BuscarDataFormatada(data, fdHora, u" yyyy ", false), u" 2024 ", "a mask serves every type, untrimmed"},
        {D::BuscarDataFormatada(data, fdData, u"d'''m'\"'\"", true), u"'5m'''", "inner quotes doubled"},
        {D::BuscarDataFormatada(data, static_cast<TTipoFormatoData>(9), u"", true), u"''"},
        {D::BuscarDataFormatada(copia), u"'6'"},
        {D::BuscarDataFormatada({.Tipo = fdDataHora, .Data = -1.25}), u"29/12/1899 06:00:00"},
        {GetDataFormatada(data, true), u"'03/05/2024'"},
        {GetDataFormatada(data, tfdData, u"", false), u"03/05/2024"},
        {GetDataFormatada(data, tfdDataHora, u"", false), u"05/03/2024 14:07:09"},
        {GetDataFormatada(data, tfdHora, u"", true), u"'14:07'"},
    });
    TFormatSettings formatos = FormatSettings();
    formatos.DateSeparator = u'.';
    formatos.TimeSeparator = u'h';
    const TFormatosTemporarios outros(formatos);
    EXPECT_EQ(D::BuscarDataFormatada(data), u"03.05.2024") << "the separators are those of the formats";
    EXPECT_EQ(D::BuscarHoraSemSegundos(data), u"14h07");
}

TEST_F(OryUtilsDatas, TextosDaData) {
    EXPECT_EQ(D::BuscarDataPorExtenso(Momento(2026, 4, 5)), u"Domingo, 05 de Abril de 2026");
    EXPECT_EQ(D::BuscarDataPorExtenso(Momento(987, 3, 26)), u"Segunda, 26 de Marco de 0987");
    EXPECT_EQ(D::BuscarDescricaoDiaSemana(Momento(2024, 3, 5, 23)), u"Terça-feira");
    EXPECT_EQ(D::BuscarHoraSemSegundos(Momento(2024, 3, 5, 14, 7, 59)), u"14:07") << "seconds are cut";
    EXPECT_EQ(D::BuscarDataSemHora(-1.75), -1);
    TFormatSettings outros = BuscarFormatosBrasileiros();
    outros.LongDayNames[6] = u"SÁBADO";
    outros.LongDayNames[2] = u"terça-feira";
    outros.LongMonthNames[2] = u"março";
    outros.LongMonthNames[1] = u"";
    const TFormatosTemporarios temporarios(outros);
    EXPECT_EQ(D::BuscarDataPorExtenso(Momento(2024, 3, 5)), u"Terça-feira, 05 de Março de 2024");
    EXPECT_EQ(D::BuscarDataPorExtenso(Momento(2024, 2, 10)), u"Sábado, 10 de  de 2024");
}

TEST_F(OryUtilsDatas, DataValida) {
    for (const std::u16string_view valida : {u"29/02/2024", u"31/12/1899"})
        EXPECT_TRUE(D::EhDataValida(valida) && EhDataValida(valida)) << ParaUtf8(valida);
    // Day 0 cannot be told from a failure.
    for (const std::u16string_view invalida : {u"31/02/2024", u" ./-_, ", u"30/12/1899", u"05/03/2024 10:00"})
        EXPECT_FALSE(D::EhDataValida(invalida) || EhDataValida(invalida)) << ParaUtf8(invalida);
}

TEST_F(OryUtilsDatas, OrientacaoDaData) {
    Testes::Conferir<TDateTime>({
        {D::ConverterOrientacaoData(u"03/05/2024", odDiaMes), CodificarData(2024, 3, 5)},
        {D::ConverterOrientacaoData(u"03x05y2024 14:07", odMesDia), CodificarData(2024, 5, 3), "separators"},
        {D::ConverterOrientacaoData(u"03/05/24", odDiaMes), CodificarData(24, 3, 5), "the year as it stands"},
        {D::ConverterOrientacaoData(u" -/. ", odDiaMes), 0},
        {D::ConverterOrientacaoData(u"03/05/2024", static_cast<TTipoOrientacaoData>(9)), 0, "no such order"},
        {ConverterOrientacaoData(u"03/05/2024", todDiaMes), CodificarData(2024, 3, 5)},
        {ConverterOrientacaoData(u"03/05/2024", todMesDia), 0, "the older one checks with todMesDia and answers 0"},
        {ConverterOrientacaoData(u"", todMesDia), 0},
    });
    for (const std::u16string_view texto : {u"31/31/2024", u"ab/05/2024", u"3/5/2024", u"03/05", u"03/05/20x4", u"1"}) {
        EXPECT_THROW(D::ConverterOrientacaoData(texto, odDiaMes), EConvertError);
        EXPECT_THROW(D::ConverterOrientacaoData(texto, odMesDia), EConvertError);
        EXPECT_THROW(ConverterOrientacaoData(texto, todDiaMes), EConvertError);
        EXPECT_THROW(ConverterOrientacaoData(texto, todMesDia), EConvertError);
    }
}

TEST_F(OryUtilsDatas, Xml) {
    EXPECT_EQ(D::ConverterDataXMLParaFormatoNativo(u" \r\n"), 0);
    EXPECT_EQ(ConverterDataXML(u"2024-03-05T14:07:09-03:00"), Momento(2024, 3, 5, 17, 7, 9));
    EXPECT_THROW(ConverterDataXML(u"05/03/2024"), EConvertError);
    EXPECT_TRUE(D::ConverterDataParaFormatoXML(Momento(2024, 3, 5, 14, 7, 9)).starts_with(u"2024-03-05T14:07:09.000"));
}

TEST_F(OryUtilsDatas, Milissegundos) {
    EXPECT_EQ(D::ConverterMinutosParaMilisegundos(2), 120000);
    EXPECT_EQ(D::ConverterMinutosParaMilisegundos(-1), -60000);
    EXPECT_EQ(D::ConverterMinutosParaMilisegundos(35792), 2147520000 - (std::int64_t{1} << 32)) << "wraps around";
    Testes::Conferir<std::u16string>({
        {D::ConverterMilisegundosParaTempo(999, true), u"00:00:00"},
        {D::ConverterMilisegundosParaTempo(1000, true), u"00:00:01 segundo(s)"},
        {D::ConverterMilisegundosParaTempo(150000, true), u"00:02:30 minuto(s)"},
        {D::ConverterMilisegundosParaTempo(90061000, true), u"01:01:01 hora(s)"},
        {D::ConverterMilisegundosParaTempo(90061000, false), u"01:01:01"},
        {D::ConverterMilisegundosParaTempo(86400000, true), u"00:00:00"},
        {D::ConverterMilisegundosParaTempo(-150000, true), u"00:02:30 minuto(s)"},
    });
    TFormatSettings formatos = BuscarFormatosBrasileiros();
    formatos.LongTimeFormat = u"";
    const TFormatosTemporarios temporarios(formatos);
    EXPECT_EQ(D::ConverterMilisegundosParaTempo(3600000, true), u"") << "no text, no unit";
}

TEST_F(OryUtilsDatas, Deslocamentos) {
    using namespace OryTypes;
    const TDateTime base = Momento(2024, 1, 31, 23, 59, 59);
    const auto deslocar = [&](int AMedida, int AQuantidade) {
        return Interno::Deslocar(base, static_cast<TTipoMedidaTempo>(AMedida), AQuantidade,
                                 [] { return TDateTime(77); });
    };
    Testes::Conferir<TDateTime>({
        {deslocar(tmtSegundo, 1), Momento(2024, 2, 1), "into the next month"},
        {deslocar(tmtMinuto, -60), Momento(2024, 1, 31, 22, 59, 59), "back"},
        {deslocar(tmtDia, 30), Momento(2024, 3, 1, 23, 59, 59), "days"},
        {deslocar(tmtMes, 1), Momento(2024, 2, 29, 23, 59, 59), "clamped to the month's end"},
        {deslocar(tmtAno, -1), Momento(2023, 1, 31, 23, 59, 59), "a year"},
        {deslocar(tmtHora, 0), base, "nothing"},
        {deslocar(tmtNenhuma, 5), 77, "no unit: now"},
        {deslocar(9, 5), 77, "unknown: now"},
        {deslocar(tmtMilissegundo, 5), 77, "milliseconds too: now"},
    });
    EXPECT_EQ(D::BuscarDataHoraMedidaTempo(-1.25, tmtHora, 24), 0.25) << "across day 0";
    EXPECT_THROW(D::BuscarDataHoraMedidaTempo(base, tmtAno, std::numeric_limits<int>::max()), EConvertError);
}

TEST_F(OryUtilsDatas, CompletaOQueFoiDigitado) {
    const TFormatSettings& brasil = BuscarFormatosBrasileiros();
    const auto completar = [&](std::u16string_view ATexto) {
        const std::u16string completa = Interno::Completar(ATexto, brasil, 2024);
        EXPECT_EQ(Interno::Completar(completa, brasil, 2024), completa) << "once is enough";
        return completa;
    };
    Testes::Conferir<std::u16string>({
        {completar(u"5/3"), u"05/03/2024", "current year"},
        {completar(u" 5/3/24 "), u"05/03/2024", "two digits of a year"},
        {completar(u"5-3.74"), u"05/03/1974", "other separators; the window"},
        {completar(u"0503"), u"05/03/2024", "four digits"},
        {completar(u"05032024"), u"05/03/2024", "eight digits"},
        {completar(u"2024-3-5"), u"05/03/2024", "year first"},
        {completar(u"5/3/2024 7:5"), u"05/03/2024 07:05:00", "date and time"},
        {completar(u"5/3   7"), u"05/03/2024 07:00:00", "hours after a date"},
        {completar(u"5/3 7:5:3.25"), u"05/03/2024 07:05:03.025", "milliseconds"},
        {completar(u"7:5"), u"07:05:00", "time alone"},
        {completar(u"7:5:3,5 PM"), u"19:05:03.005", "time with everything"},
        {completar(u" \t"), u"", "blank"},
        {completar(u" 31/02 "), u" 31/02 ", "no such day: unchanged, blanks too"},
        {completar(u"5/3 25:00"), u"5/3 25:00", "no such hour"},
        {completar(u"7"), u"7", "one number alone"},
        {completar(u"5/3/2024 7:5 x"), u"5/3/2024 7:5 x", "rest"},
        {completar(u"\xD800/3"), u"\xD800/3", "lone surrogate"},
    });
    TFormatSettings iso = brasil;
    iso.ShortDateFormat = u"yyyy/mm/dd";
    iso.DateSeparator = u'-';
    EXPECT_EQ(Interno::Completar(u"240305 7:5", iso, 2024), u"2024-03-05 07:05:00");
    EXPECT_EQ(Interno::Completar(u"3-5", iso, 2024), u"2024-03-05");
    EXPECT_EQ(FormatarData(u"5/3/2024 7:5"), u"05/03/2024 07:05:00");
}

}  // namespace

#include "oryutils/runtime/DataXml.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "comum/Acaso.hpp"
#include "comum/MensagemDe.hpp"

#include <gtest/gtest.h>

namespace {

using namespace OryUtils;

TDateTime Momento(int AAno, int AMes, int ADia, int AHora = 0, int AMinuto = 0, int ASegundo = 0, int AMili = 0) {
    return JuntarDataHora(CodificarData(AAno, AMes, ADia), CodificarHora(AHora, AMinuto, ASegundo, AMili));
}

TEST(DataXml, Le) {
    const std::tuple<std::u16string_view, TDateTime, const char*> casos[] = {
        {u"2024-03-05T14:07:09Z", Momento(2024, 3, 5, 14, 7, 9), "UTC"},
        {u"2024-03-05T14:07:09.25-03:00", Momento(2024, 3, 5, 17, 7, 9, 250), "west of Greenwich"},
        {u"2024-03-05T01:00:00+05:30", Momento(2024, 3, 4, 19, 30), "east, into the day before"},
        {u"2024-03-05T14:00:00+14:00", Momento(2024, 3, 5), "widest offset"},
        {u"2024-03-05T14:07:09", Momento(2024, 3, 5, 17, 7, 9), "without zone: local, here -180 minutes"},
        {u"2024-03-05", Momento(2024, 3, 5, 3), "date: local midnight"},
        {u"2024-03-05Z", Momento(2024, 3, 5), "date with zone"},
        {u"2023-12-31T24:00:00Z", Momento(2024, 1, 1), "end of the day"},
        {u"2023-12-31T24:00:00.000Z", Momento(2024, 1, 1), "end of the day with fraction zero"},
        {u"2024-03-05T14:07:09.0004999999999999999999999Z", Momento(2024, 3, 5, 14, 7, 9), "long fraction"},
        {u"2024-12-31T23:59:59.9996Z", Momento(2025, 1, 1), "fraction that rounds up to the next year"},
        {u" \t\r\n2024-03-05T14:07:09Z ", Momento(2024, 3, 5, 14, 7, 9), "blanks around"},
        {u"1899-12-29T06:00:00Z", -1.25, "before day 0"},
        {u"0001-01-01T00:00:00Z", Momento(1, 1, 1), "first instant"},
    };
    for (const auto& [texto, utc, porque] : casos) EXPECT_EQ(XmlParaDataHoraUtc(texto, -180), utc) << porque;
}

TEST(DataXml, RecusaComOMotivo) {
    constexpr const char* CForma = "' não é uma data XML válida";
    constexpr const char* CIntervalo = "' está fora do intervalo de datas (anos 1 a 9999)";
    const std::tuple<std::u16string_view, const char*, const char*> casos[] = {
        {u"", CForma, "empty"},
        {u"2024-03-05t14:07:09Z", CForma, "lower-case T"},
        {u"2024-03-05T14:07:09z", CForma, "lower-case Z"},
        {u"2024-3-05T14:07:09", CForma, "one digit"},
        {u"2024-03-05T14:07", CForma, "without seconds"},
        {u"2024-03-05T", CForma, "without time"},
        {u"2024-03-05T14:07:09ZZ", CForma, "rest"},
        {u"2024-03-05T14:07:09.", CForma, "empty fraction"},
        {u"2024-06-30T23:59:60Z", CForma, "leap second"},
        {u"2024-03-05T24:00:01", CForma, "after the end of the day"},
        {u"2024-03-05T14:60:00", CForma, "minute"},
        {u"2024-03-05T24:00:00.0001", CForma, "just after the end of the day"},
        {u"2023-02-29T00:00:00", CForma, "day"},
        {u"2024-03-05T14:07:09+14:01", CForma, "offset too wide"},
        {u"2024-03-05T14:07:09+03:60", CForma, "minutes of the offset"},
        {u"2024-03-05T14:07:09+0300", CForma, "offset without colon"},
        {u"+2024-03-05T14:07:09", CForma, "plus sign"},
        {u"02024-03-05T14:07:09", CForma, "long year with a leading zero"},
        {u"-0044-03-15T00:00:00", CIntervalo, "before year 1"},
        {u"0000-01-01", CIntervalo, "year 0"},
        {u"12024-02-29T00:00:00Z", CIntervalo, "after year 9999"},
        {u"0001-01-01T00:00:00+00:01", CIntervalo, "the instant is in year 0"},
        {u"9999-12-31T23:59:59-00:01", CIntervalo, "the instant is in year 10000"},
        {u"9999-12-31T24:00:00Z", CIntervalo, "the end of the last day"},
    };
    for (const auto& [texto, motivo, porque] : casos)
        EXPECT_EQ(Testes::MensagemDe([&] { XmlParaDataHoraUtc(texto, 0); }), "'" + ParaUtf8(texto) + motivo) << porque;
    EXPECT_THROW(XmlParaDataHoraUtc(std::u16string(1 << 20, u'1'), 0), EConvertError);
}

TEST(DataXml, Escreve) {
    const TDateTime data = Momento(2024, 3, 5, 14, 7, 9, 5);
    EXPECT_EQ(DataHoraParaXml(data, -180), u"2024-03-05T14:07:09.005-03:00");
    EXPECT_EQ(DataHoraParaXml(data, 0), u"2024-03-05T14:07:09.005Z");
    EXPECT_EQ(DataHoraParaXml(CodificarData(7, 1, 1), 765), u"0007-01-01T00:00:00.000+12:45");
    EXPECT_THROW(DataHoraParaXml(data, 841), EConvertError);
    EXPECT_THROW(DataHoraParaXml(data, std::numeric_limits<int>::min()), EConvertError);
    EXPECT_THROW(DataHoraParaXml(3e6, 0), EConvertError);
    EXPECT_THROW(DataHoraParaXml(std::numeric_limits<double>::infinity()), EConvertError);
}

TEST(DataXml, DeIdaEVoltaEmQualquerFuso) {
    Testes::TAcaso sorteio;
    std::uniform_int_distribution dia(-693592, 2958464), mili(0, 86399999), fuso(-840, 840);
    for (int i = 0; i < 20000; ++i) {
        const TDateTime local = JuntarDataHora(dia(sorteio), mili(sorteio) / 86400000.0);
        const int minutos = fuso(sorteio);
        const TDateTime utc = XmlParaDataHoraUtc(DataHoraParaXml(local, minutos), 0);
        ASSERT_EQ(IncrementarMilissegundos(utc, minutos * std::int64_t{60000}), local) << i;
    }
}

TEST(DataXml, FusoDoSistemaVaiEVolta) {
    for (int ano = 1950; ano <= 2100; ++ano) {
        const TDateTime local = Momento(ano, 7, 1, 12);
        const std::u16string texto = DataHoraParaXml(local);
        const std::u16string semZona = texto.substr(0, 23);
        ASSERT_EQ(XmlParaDataHoraUtc(semZona), XmlParaDataHoraUtc(texto)) << ParaUtf8(texto);
    }
}

}  // namespace

#include "oryutils/runtime/DataHora.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/interno/InstanteLocal.hpp"

#include "comum/Acaso.hpp"
#include "comum/MensagemDe.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

using namespace OryUtils;

constexpr double CNaoEhNumero = std::numeric_limits<double>::quiet_NaN();

struct TMomento {
    TPartesData Data;
    TPartesHora Hora;
    bool operator==(const TMomento&) const = default;
};

TMomento Decodificar(TDateTime AData) { return {DecodificarData(AData), DecodificarHora(AData)}; }

// The calendar as a child would count it: day by day with a table of months.
TEST(DataHora, TodosOsDiasDeIdaEVolta) {
    int esperado = -693593;
    int diaDaSemana = 2;  // 0001-01-01 was a Monday
    for (int ano = 1; ano <= 9999; ++ano) {
        const bool bissexto = ano % 400 == 0 || (ano % 4 == 0 && ano % 100 != 0);
        const std::array<int, 12> dias{31, bissexto ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        for (int mes = 1; mes <= 12; ++mes) {
            const int ultimo = dias[static_cast<std::size_t>(mes) - 1];
            ASSERT_EQ(BuscarDiasNoMes(ano, mes), ultimo);
            for (int dia = 1; dia <= ultimo; ++dia, ++esperado, diaDaSemana = diaDaSemana % 7 + 1) {
                const auto data = TentarCodificarData(ano, mes, dia);
                ASSERT_TRUE(data && *data == esperado) << ano << '-' << mes << '-' << dia;
                ASSERT_EQ(DecodificarData(*data), (TPartesData{ano, mes, dia}));
                ASSERT_EQ(BuscarDiaDaSemana(*data), diaDaSemana);
            }
            ASSERT_FALSE(TentarCodificarData(ano, mes, ultimo + 1));
        }
    }
    EXPECT_EQ(esperado, 2958466);
}

TEST(DataHora, RecusaOQueNaoEhDataNemHora) {
    const TPartesData datas[] = {{0, 1, 1}, {10000, 1, 1}, {2024, 0, 1}, {2024, 13, 1}, {2024, 1, 0}, {-4, 2, 29}};
    for (const auto& [ano, mes, dia] : datas) EXPECT_FALSE(TentarCodificarData(ano, mes, dia)) << ano << mes << dia;
    const TPartesHora horas[] = {{24, 0, 0, 0}, {0, 60, 0, 0}, {0, 0, 60, 0}, {0, 0, 0, 1000}, {-1, 0, 0, 0}};
    for (const auto& [h, m, s, z] : horas) EXPECT_FALSE(TentarCodificarHora(h, m, s, z)) << h << m << s << z;
    EXPECT_EQ(Testes::MensagemDe([] { CodificarData(2024, 2, 31); }), "'31/2/2024' não é uma data válida");
    EXPECT_THROW(CodificarHora(24, 0, 0, 0), EConvertError);
}

TEST(DataHora, FracaoContaParaAFrenteEArredondaAoMilissegundo) {
    const std::tuple<double, TMomento, const char*> casos[] = {
        {-1.25, {{1899, 12, 29}, {6, 0, 0, 0}}, "before day 0 the fraction still counts from midnight"},
        {-0.25, {{1899, 12, 30}, {6, 0, 0, 0}}, "day 0 has two writings"},
        {0.25, {{1899, 12, 30}, {6, 0, 0, 0}}, "the other one"},
        {1 - 1e-10, {{1899, 12, 31}, {0, 0, 0, 0}}, "what rounds up to midnight is the next day"},
        {-2 + 1e-10, {{1899, 12, 30}, {0, 0, 0, 0}}, "also before day 0: -1.9999 is the end of 1899-12-29"},
        {45356 - 1e-8, {{2024, 3, 4}, {23, 59, 59, 999}}, "0.9 ms before midnight is still the day before"},
        {-693593.5, {{1, 1, 1}, {12, 0, 0, 0}}, "first day"},
        {-693594, {{0, 0, 0}, {0, 0, 0, 0}}, "before the first day"},
        {2958465.75, {{9999, 12, 31}, {18, 0, 0, 0}}, "last day"},
        {2958466.5, {{0, 0, 0}, {12, 0, 0, 0}}, "after the last day"},
        {CNaoEhNumero, {{0, 0, 0}, {0, 0, 0, 0}}, "not a number"},
        {-1e300, {{0, 0, 0}, {0, 0, 0, 0}}, "far away"},
        {std::numeric_limits<double>::infinity(), {{0, 0, 0}, {0, 0, 0, 0}}, "infinite"},
    };
    for (const auto& [valor, esperado, porque] : casos) {
        EXPECT_EQ(Decodificar(valor), esperado) << porque;
        EXPECT_EQ(BuscarDiaDaSemana(valor) == 0, esperado.Data.Ano == 0) << porque;
    }
}

TEST(DataHora, JuntarESepararDeIdaEVolta) {
    EXPECT_EQ(JuntarDataHora(-1, 0.25), -1.25);
    EXPECT_EQ(JuntarDataHora(-1.5, 7.25), -1.25) << "only the date of one and the time of the other count";
    Testes::TAcaso sorteio;
    std::uniform_int_distribution dia(-693593, 2958465), mili(0, 86399999);
    for (int i = 0; i < 200000; ++i) {
        const int d = dia(sorteio), m = mili(sorteio);
        const TPartesHora partes{m / 3600000, m / 60000 % 60, m / 1000 % 60, m % 1000};
        const TDateTime hora = CodificarHora(partes.Hora, partes.Minuto, partes.Segundo, partes.Milissegundo);
        const TDateTime junto = JuntarDataHora(d, hora);
        ASSERT_EQ(BuscarParteData(junto), d);
        ASSERT_EQ(Decodificar(junto), (TMomento{DecodificarData(d), partes})) << d << ' ' << m;
        ASSERT_EQ(IncrementarMilissegundos(d, m), junto) << d << ' ' << m;
        ASSERT_EQ(IncrementarMilissegundos(junto, -m), d) << d << ' ' << m;
    }
}

TEST(DataHora, IncrementaMesesComoUmPorUm) {
    // Moving by n months is n steps of one month, with the day of the start clamped at the end.
    for (const TDateTime inicio :
         {CodificarData(2023, 1, 31), CodificarData(1899, 12, 30), CodificarData(2000, 2, 29)}) {
        const TPartesData partida = DecodificarData(inicio);
        int ano = partida.Ano, mes = partida.Mes;
        for (int n = 1; n <= 1300; ++n) {
            if (++mes > 12) mes = 1, ++ano;
            const TPartesData esperado{ano, mes, std::min(partida.Dia, BuscarDiasNoMes(ano, mes))};
            ASSERT_EQ(DecodificarData(IncrementarMes(inicio, n)), esperado) << n;
            ASSERT_EQ(DecodificarData(IncrementarMes(CodificarData(ano, mes, 1), -n)).Mes, partida.Mes) << n;
        }
    }
    EXPECT_EQ(IncrementarMes(-1.25, 1), CodificarData(1900, 1, 29) + 0.25) << "the time stays across day 0";
    EXPECT_EQ(IncrementarAno(CodificarData(2024, 2, 29), 1), CodificarData(2025, 2, 28));
    EXPECT_THROW(IncrementarMes(CodificarData(9999, 12, 1), 1), EConvertError);
    EXPECT_THROW(IncrementarMes(CodificarData(1, 1, 31), -1), EConvertError);
    EXPECT_THROW(IncrementarMes(CNaoEhNumero, 0), EConvertError);
    EXPECT_THROW(IncrementarAno(0, std::numeric_limits<int>::min()), EConvertError);
}

TEST(DataHora, InstanteDoRelogio) {
    EXPECT_EQ(Interno::DeInstanteLocal({2024, 3, 5, 14, 7, 9, 250}), 45356 + (14 * 3600 + 7 * 60 + 9.25) / 86400);
    EXPECT_EQ(Interno::DeInstanteLocal({2024, 2, 30, 0, 0, 0, 0}), 0);
}

}  // namespace

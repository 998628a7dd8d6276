#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace OryUtils;
using TMat = TOryUtilsMatematica;

namespace {

constexpr Extended CInfinito = std::numeric_limits<Extended>::infinity();

// The words of a whole number up to 9,999 put together from the right to the left, with a list of its own.
std::u16string ContarPorExtenso(int ANumero) {
    static const char16_t* const CUnidades[] = {
        u"",    u"UM",   u"DOIS", u"TRES",  u"QUATRO",  u"CINCO",  u"SEIS",      u"SETE",      u"OITO",    u"NOVE",
        u"DEZ", u"ONZE", u"DOZE", u"TREZE", u"CATORZE", u"QUINZE", u"DEZESSEIS", u"DEZESSETE", u"DEZOITO", u"DEZENOVE"};
    static const char16_t* const CDezenas[] = {u"",          u"",         u"VINTE",   u"TRINTA",  u"QUARENTA",
                                               u"CINQUENTA", u"SESSENTA", u"SETENTA", u"OITENTA", u"NOVENTA"};
    static const char16_t* const CCentenas[] = {
        u"",           u"CENTO",      u"DUZENTOS",   u"TREZENTOS",  u"QUATROCENTOS",
        u"QUINHENTOS", u"SEISCENTOS", u"SETECENTOS", u"OITOCENTOS", u"NOVECENTOS"};
    const auto juntar = [](const std::u16string& AMaior, const std::u16string& AMenor) {
        return AMaior.empty() ? AMenor : AMenor.empty() ? AMaior : AMaior + u" E " + AMenor;
    };
    if (ANumero >= 1000) return juntar(ContarPorExtenso(ANumero / 1000) + u" MIL", ContarPorExtenso(ANumero % 1000));
    if (ANumero == 100) return u"CEM";
    if (ANumero >= 100) return juntar(CCentenas[ANumero / 100], ContarPorExtenso(ANumero % 100));
    if (ANumero >= 20) return juntar(CDezenas[ANumero / 10], CUnidades[ANumero % 10]);
    return CUnidades[ANumero];
}

std::u16string EsperadoDosCentavos(int ACentavos) {
    const int reais = ACentavos / 100;
    const int resto = ACentavos % 100;
    if (ACentavos == 0) return u"ZERO REAIS";
    std::u16string texto = ContarPorExtenso(reais);
    if (reais > 0) texto += reais == 1 ? u" REAL" : u" REAIS";
    if (reais > 0 && resto > 0) texto += u" E ";
    if (resto > 0) texto += ContarPorExtenso(resto) + (resto == 1 ? u" CENTAVO" : u" CENTAVOS");
    return reais == 0 ? texto + u" DE REAL" : texto;
}

}  // namespace

TEST(PorExtenso, TodosOsValoresAteDezMilReais) {
    for (int centavos = 0; centavos < 1'000'000; ++centavos)
        ASSERT_EQ(TMat::BuscarValorPorExtenso(static_cast<Extended>(centavos) / 100), EsperadoDosCentavos(centavos))
            << centavos;
}

TEST(PorExtenso, RegrasDosGrupos) {
    struct TCaso {
        Extended Valor;
        std::u16string_view Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {1234567.89L,
         u"UM MILHÃO, DUZENTOS E TRINTA E QUATRO MIL E QUINHENTOS E SESSENTA E SETE REAIS E OITENTA E NOVE CENTAVOS",
         "every group"},
        {1200000, u"UM MILHÃO, DUZENTOS MIL REAIS", "thousands after a comma"},
        {1000000, u"UM MILHÃO DE REAIS", "DE"},
        {10000000, u"DEZ MILHÕES DE REAIS", "DE"},
        {100000000, u"CEM MILHÕES DE REAIS", "DE"},
        {1000000000, u"UM BILHÃO DE REAIS", "DE"},
        {1000000.5L, u"UM MILHÃO DE REAIS E CINQUENTA CENTAVOS", "DE looks at the whole part"},
        {2000000, u"DOIS MILHÕES REAIS", "no DE for any other amount"},
        {2500000000, u"DOIS BILHÕES, QUINHENTOS MILHÕES REAIS", "the whole part is beyond 31 bits"},
        {2500000000.01L, u"DOIS BILHÕES, QUINHENTOS MILHÕES REAISUM CENTAVO", "negative in 32 bits: no E"},
        {4294967296,
         u"QUATRO BILHÕES, DUZENTOS E NOVENTA E QUATRO MILHÕES, NOVECENTOS E SESSENTA E SETE MIL E "
         u"DUZENTOS E NOVENTA E SEIS",
         "0 in 32 bits: no currency"},
        {4294967297.01L,
         u"QUATRO BILHÕES, DUZENTOS E NOVENTA E QUATRO MILHÕES, NOVECENTOS E SESSENTA E SETE MIL E "
         u"DUZENTOS E NOVENTA E SETE REAL E UM CENTAVO",
         "1 in 32 bits: singular"},
        {999999999999.99L,
         u"NOVECENTOS E NOVENTA E NOVE BILHÕES, NOVECENTOS E NOVENTA E NOVE MILHÕES, NOVECENTOS E "
         u"NOVENTA E NOVE MIL E NOVECENTOS E NOVENTA E NOVE REAISNOVENTA E NOVE CENTAVOS",
         "the largest amount"},
        {1.999L, u"DOIS REAL", "words of the rounded amount, currency of the truncated one"},
        {0.999L, u"UM", "no currency for a truncated 0"},
        {0.001L, u"", "rounds to nothing"},
        {0.005L, u"UM CENTAVO DE REAL", "half a cent goes up"},
        {1.005L, u"UM REAL E UM CENTAVO", "also where no binary fraction is that half"},
        {1234567890123,
         u"UM BILHÃO, DUZENTOS E TRINTA E QUATRO MILHÕES, QUINHENTOS E SESSENTA E SETE MIL E "
         u"OITOCENTOS E NOVENTA REAIS E CENTO E VINTE E TRES CENTAVOS",
         "six groups: the first is taken for billions"},
        {1e16L, u"DEZ BILHÕES REAIS", "seven groups"},
    };
    for (const TCaso& c : casos)
        EXPECT_EQ(ParaUtf8(TMat::BuscarValorPorExtenso(c.Valor)), ParaUtf8(c.Esperado)) << c.Porque;
    EXPECT_FALSE(TMat::BuscarValorPorExtenso(std::numeric_limits<Extended>::max()).empty());
}

TEST(PorExtenso, RecusaNegativosEGuardaOTextoAnterior) {
    TConverterPorExtenso conversor;
    EXPECT_EQ(conversor.GetTexto(), u"ZERO REAIS");
    conversor.SetValor(2);
    try {
        conversor.SetValor(-0.01L);
        FAIL();
    } catch (const Exception& e) {
        EXPECT_EQ(e.GetMensagem(), u"O valor deve ser sempre maior ou igual a 0,00");
    }
    EXPECT_THROW(conversor.SetValor(CInfinito), EConvertError);
    EXPECT_THROW(conversor.SetValor(std::numeric_limits<Extended>::quiet_NaN()), EConvertError);
    EXPECT_EQ(conversor.GetValor(), 2);
    EXPECT_EQ(conversor.GetTexto(), u"DOIS REAIS");
    EXPECT_EQ(conversor.TratarGrupo(u"021"), u"VINTE E UM");
    EXPECT_EQ(conversor.TratarGrupo(u"100"), u"CEM");
    EXPECT_EQ(conversor.TratarGrupo(u"000"), u"");
    EXPECT_THROW(conversor.TratarGrupo(u"1a"), EConvertError);
}

TEST(PorExtenso, DescendenteTrocaAMoedaEAsPalavras) {
    struct TDolares : TConverterPorExtenso {
        TDolares() {
            FMoedaNoSingular = u"DÓLAR";
            FMoedaNoPlural = u"DÓLARES";
        }
        mutable int Chamadas = 0;
        std::u16string BuscarValorPorExtenso() const override {
            ++Chamadas;
            return u"*" + TConverterPorExtenso::BuscarValorPorExtenso() + u"*";
        }
    } dolares;
    EXPECT_EQ(dolares.GetTexto(), u"*ZERO DÓLARES*");
    dolares.SetValor(1.5L);
    EXPECT_EQ(dolares.GetTexto(), u"*UM DÓLAR E CINQUENTA CENTAVOS*");
    const int chamadas = dolares.Chamadas;
    dolares.SetValor(1.5L);
    EXPECT_EQ(dolares.Chamadas, chamadas) << "the same amount builds nothing";
    dolares.SetValor(0.5L);
    EXPECT_EQ(dolares.GetTexto(), u"*CINQUENTA CENTAVOS DE DÓLAR*");
}

TEST(Arredondar, CincoMetodos) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    struct TCaso {
        Extended Valor;
        TMetodoArredondamento Metodo;
        std::uint8_t Casas, AConsiderar;
        Extended Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {2.345L, maMatematico, 2, 10, 2.35L, "half up"},
        {0.1445L, maMatematico, 2, 10, 0.15L, "the 5 of a carry rounds again"},
        {0.1445L, maMatematico, 2, 3, 0.14L, "only one extra digit is looked at"},
        {0.14445L, maMatematico, 0, 10, 0, "a cascade that stops"},
        {9.995L, maMatematico, 2, 10, 10, "carry into the cleared digit"},
        {123456789.995L, maMatematico, 2, 10, 123456790, "the integer part is kept aside"},
        {1.5L, maMatematico, 4, 2, 0.015L, "no digit dropped: the considered ones count as 4 decimals"},
        {1.25L, maMatematico, 1, 25, 1.3L, "more decimals than 64 bits hold"},
        {2.349L, maTruncamento, 2, 10, 2.34L, "cut"},
        {2.9L, maTruncamento, 0, 10, 2, "nothing behind the comma is still a number"},
        {0.000012L, maTruncamento, 1, 10, 1.2L, "the exponent is cut off with the text"},
        {-0.000012L, maTruncamento, 2, 10, -0.000012L, "1,2E is no number: the value itself"},
        {2.341L, maParaCima, 2, 10, 2.35L, "away from zero"},
        {-2.341L, maParaCima, 2, 10, -2.35L, "the same below zero"},
        {2.75L, maParaCima, 2, 10, 2.75L, "nothing to round"},
        {2.999L, maParaCima, 2, 10, 3, "carry"},
        {1.10L, maParaCima, 2, 10, 1.11L, "the nearest binary number is a little above 1.10"},
        {1.05L, maParaBaixo, 2, 10, 1.04L, "the nearest binary number is a little below 1.05"},
        {0.5L, maParaCima, 10, 10, 0.0705032704L, "5,000,000,000 in 32 bits"},
        {2.349L, maParaBaixo, 2, 10, 2.34L, "towards zero"},
        {2.349L, maNenhum, 2, 10, 2.349L, "unchanged"},
        {2.349L, static_cast<TMetodoArredondamento>(9), 2, 10, 2.349L, "no such method"},
        {2.349L, maParaBaixo, 39, 10, 2.349L, "no such factor in single precision"},
        // 10^11 in single precision is 99999997952.
        {0.5L, maMatematico, 11, 11, 50000000000 / 99999997952.0L, "single-precision factor"},
        {CInfinito, maMatematico, 2, 10, CInfinito, "nothing to round"},
    };
    for (const TCaso& c : casos)
        EXPECT_EQ(ArredondarPara15Digitos(TMat::Arredondar(c.Valor, c.Metodo, c.Casas, c.AConsiderar)),
                  ArredondarPara15Digitos(c.Esperado))
            << c.Porque;
    EXPECT_EQ(TMat::Arredondar(2.345L), 2.35L);

    TFormatSettings ponto = BuscarFormatosBrasileiros();
    ponto.DecimalSeparator = u'.';
    const TFormatosTemporarios comPonto(ponto);
    EXPECT_EQ(TMat::Arredondar(2.349L, maTruncamento, 2, 10), 2.349L) << "only a comma is looked for";
}

// The cascade on the decimal text itself: with amounts of 4 decimals the digits are certain.
TEST(Arredondar, CascataSobreDigitos) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 20'000; ++i) {
        const auto milesimos = static_cast<std::int64_t>(gerador() % 10'000'000'000);
        std::int64_t esperado = milesimos;
        for (int passo = 0; passo < 2; ++passo) esperado = esperado / 10 + (esperado % 10 >= 5);
        const Extended resultado = TMat::Arredondar(static_cast<Extended>(milesimos) / 10'000, maMatematico, 2, 10);
        ASSERT_EQ(ArredondarPara15Digitos(resultado), static_cast<Extended>(esperado) / 100) << milesimos;
    }
}

TEST(Combinacoes, SomaETeste) {
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({true, false, true}, 1, false), 5);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({true, true}, 0, true), 0);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({false, true, true}, 0, true), 3);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({true, true}, 3, false), 12);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({}, 0, true), 0);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({true, false}, 9, false), 256) << "only true entries need a value";
    EXPECT_THROW(TMat::SomarCombinacaoBinaria({true, true}, 9, false), Exception);
    EXPECT_THROW(TMat::SomarCombinacaoBinaria({true}, -1, false), Exception);
    EXPECT_THROW(TMat::SomarCombinacaoBinaria({true, true}, std::numeric_limits<int>::max(), false), Exception);

    EXPECT_TRUE(TMat::EstahNaCombinacaoBinaria(5, 4));
    EXPECT_FALSE(TMat::EstahNaCombinacaoBinaria(5, 2));
    EXPECT_TRUE(TMat::EstahNaCombinacaoBinaria(0, 0));
    EXPECT_FALSE(TMat::EstahNaCombinacaoBinaria(5, 0));
    EXPECT_TRUE(TMat::EstahNaCombinacaoBinaria(-1, std::int64_t{1} << 62)) << "all 64 bits";
    // What was summed is found again.
    for (int soma = 1; soma < 512; ++soma) {
        std::vector<bool> marcados;
        for (int bit = 0; bit < 9; ++bit) marcados.push_back(soma >> bit & 1);
        ASSERT_EQ(TMat::SomarCombinacaoBinaria(marcados, 1, false), soma);
    }
}

TEST(Combinacoes, ZeroPedeValorInicialZero) {
    static std::u16string mensagem;
    const TCosturaInterface anterior = CosturaInterface();
    CosturaInterface().Erro = [](std::u16string_view AMensagem) { mensagem = AMensagem; };
    EXPECT_THROW(TMat::SomarCombinacaoBinaria({false, true}, 1, true), EAbort);
    CosturaInterface() = anterior;
    EXPECT_EQ(mensagem,
              u"Para considerar o valor 0 (zero), é necessário que o argumento <<AValorInicial>>também seja zero.");
}

TEST(Centimetros, PolegadasEPixels) {
    EXPECT_EQ(TMat::ConverterCentimetrosParaPolegadas(2.54L), 1);
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(5), 188) << "188.97 towards zero, at 96 an inch";
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(-5), -188);
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(CInfinito), 0);
    const TCosturaInterface anterior = CosturaInterface();
    CosturaInterface().BuscarPixelsPorPolegada = [] { return 120; };
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(10), 472);
    CosturaInterface() = anterior;
}

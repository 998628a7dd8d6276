#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "comum/Acaso.hpp"
#include "comum/Casos.hpp"
#include "comum/MensagemDe.hpp"
#include "comum/OutraAritmetica.hpp"

#include <cmath>
#include <limits>

using namespace OryUtils;
using Testes::Conferir;
using Testes::EmOutraAritmetica;
using F = TOryUtilsFormulas;
using TMat = TOryUtilsMatematica;

namespace {

constexpr Extended CInfinito = std::numeric_limits<Extended>::infinity();
// The usual arithmetic, then each of the others.
constexpr std::size_t CVezes[] = {0, 1, 3, 5, 7};

struct Matematica : testing::Test {
    ~Matematica() override { CosturaInterface() = BuscarCosturaPadrao(); }
    TFormatosTemporarios Formatos{BuscarFormatosBrasileiros()};
};

// The words of a whole number up to 9,999: those of its largest part, then those of the rest.
std::u16string ContarPorExtenso(int ANumero) {
    static const auto CPalavras = TOryUtilsStrings::ConverterTextoComDelimitadorParaVetorDeStrings(
        u"UM DOIS TRES QUATRO CINCO SEIS SETE OITO NOVE DEZ ONZE DOZE TREZE CATORZE QUINZE DEZESSEIS DEZESSETE DEZOITO "
        u"DEZENOVE VINTE TRINTA QUARENTA CINQUENTA SESSENTA SETENTA OITENTA NOVENTA CENTO DUZENTOS TREZENTOS "
        u"QUATROCENTOS QUINHENTOS SEISCENTOS SETECENTOS OITOCENTOS NOVECENTOS",
        u" ");
    if (ANumero == 0) return u"";
    const int degrau = ANumero >= 1000 ? 1000 : ANumero >= 100 ? 100 : ANumero >= 20 ? 10 : 1;
    const int quantos = ANumero / degrau;
    const int palavra = degrau == 100 ? 26 + quantos : degrau == 10 ? 17 + quantos : quantos - 1;
    const std::u16string maior = ANumero == 100   ? u"CEM"
                                 : degrau == 1000 ? ContarPorExtenso(quantos) + u" MIL"
                                                  : CPalavras[static_cast<std::size_t>(palavra)];
    const std::u16string menor = ContarPorExtenso(ANumero % degrau);
    return menor.empty() ? maior : maior + u" E " + menor;
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

// The same words whatever precision the calling program has set the processor to.
TEST_F(Matematica, PorExtensoTodosOsValoresAteDezMilReais) {
    for (int centavos = 0; centavos < 1'000'000; ++centavos) {
        const Extended valor = static_cast<Extended>(centavos) / 100;
        const auto calcular = [&] { return TMat::BuscarValorPorExtenso(valor); };
        ASSERT_EQ(EmOutraAritmetica(static_cast<std::size_t>(centavos), calcular), EsperadoDosCentavos(centavos));
    }
}

TEST_F(Matematica, PorExtensoRegrasDosGrupos) {
    const auto extenso = [](Extended AValor) { return ParaUtf8(TMat::BuscarValorPorExtenso(AValor)); };
    Conferir<std::string>({
        {extenso(1234567.89L),
         "UM MILHÃO, DUZENTOS E TRINTA E QUATRO MIL E QUINHENTOS E SESSENTA E SETE REAIS E OITENTA E NOVE CENTAVOS",
         "every group"},
        {extenso(1200000), "UM MILHÃO, DUZENTOS MIL REAIS", "thousands after a comma"},
        {extenso(1000000), "UM MILHÃO DE REAIS", "DE"},
        {extenso(10000000), "DEZ MILHÕES DE REAIS", "DE"},
        {extenso(100000000), "CEM MILHÕES DE REAIS", "DE"},
        {extenso(1000000000), "UM BILHÃO DE REAIS", "DE"},
        {extenso(1000000.5L), "UM MILHÃO DE REAIS E CINQUENTA CENTAVOS", "DE looks at the whole part"},
        {extenso(2000000), "DOIS MILHÕES REAIS", "no DE for any other amount"},
        {extenso(2500000000), "DOIS BILHÕES, QUINHENTOS MILHÕES REAIS", "the whole part is beyond 31 bits"},
        {extenso(2500000000.01L), "DOIS BILHÕES, QUINHENTOS MILHÕES REAISUM CENTAVO", "negative in 32 bits: no E"},
        {extenso(4294967296),
         "QUATRO BILHÕES, DUZENTOS E NOVENTA E QUATRO MILHÕES, NOVECENTOS E SESSENTA E SETE MIL E "
         "DUZENTOS E NOVENTA E SEIS",
         "0 in 32 bits: no currency"},
        {extenso(4294967297.01L),
         "QUATRO BILHÕES, DUZENTOS E NOVENTA E QUATRO MILHÕES, NOVECENTOS E SESSENTA E SETE MIL E "
         "DUZENTOS E NOVENTA E SETE REAL E UM CENTAVO",
         "1 in 32 bits: singular"},
        {extenso(999999999999.99L),
         "NOVECENTOS E NOVENTA E NOVE BILHÕES, NOVECENTOS E NOVENTA E NOVE MILHÕES, NOVECENTOS E "
         "NOVENTA E NOVE MIL E NOVECENTOS E NOVENTA E NOVE REAISNOVENTA E NOVE CENTAVOS",
         "the largest amount"},
        {extenso(1.999L), "DOIS REAL", "words of the rounded amount, currency of the truncated one"},
        {extenso(0.999L), "UM", "no currency for a truncated 0"},
        {extenso(0.001L), "", "rounds to nothing"},
        {extenso(0.005L), "UM CENTAVO DE REAL", "half a cent goes up"},
        {extenso(1.005L), "UM REAL E UM CENTAVO", "also where no binary fraction is that half"},
        {extenso(1234567890123),
         "UM BILHÃO, DUZENTOS E TRINTA E QUATRO MILHÕES, QUINHENTOS E SESSENTA E SETE MIL E "
         "OITOCENTOS E NOVENTA REAIS E CENTO E VINTE E TRES CENTAVOS",
         "six groups: the first is taken for billions"},
        {extenso(1e16L), "DEZ BILHÕES REAIS", "seven groups"},
    });
    EXPECT_FALSE(extenso(std::numeric_limits<Extended>::max()).empty());
}

TEST_F(Matematica, PorExtensoRecusaNegativosEGuardaOTextoAnterior) {
    TConverterPorExtenso conversor;
    EXPECT_EQ(conversor.GetTexto(), u"ZERO REAIS");
    conversor.SetValor(2);
    EXPECT_EQ(Testes::MensagemDe<Exception>([&] { conversor.SetValor(-0.01L); }),
              "O valor deve ser sempre maior ou igual a 0,00");
    EXPECT_THROW(conversor.SetValor(CInfinito), EConvertError);
    EXPECT_EQ(conversor.GetValor(), 2);
    EXPECT_EQ(conversor.GetTexto(), u"DOIS REAIS");
    EXPECT_EQ(conversor.TratarGrupo(u"021"), u"VINTE E UM");
    EXPECT_EQ(conversor.TratarGrupo(u"1000"), u"");
    EXPECT_THROW(conversor.TratarGrupo(u"1a"), EConvertError);
}

TEST_F(Matematica, PorExtensoDescendenteTrocaAMoedaEAsPalavras) {
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

TEST_F(Matematica, CincoArredondamentos) {
    for (const std::size_t vez : CVezes) {
        const auto arredondar = [&](Extended AValor, int AMetodo, std::uint8_t ACasas, std::uint8_t AConsiderar) {
            const auto metodo = static_cast<TMetodoArredondamento>(AMetodo);
            return ArredondarPara15Digitos(
                EmOutraAritmetica(vez, [&] { return TMat::Arredondar(AValor, metodo, ACasas, AConsiderar); }));
        };
        Conferir<Extended>({
            {arredondar(0.1445L, maMatematico, 2, 3), 0.14L, "only one extra digit is looked at"},
            {arredondar(0.14445L, maMatematico, 0, 10), 0, "a cascade that stops"},
            {arredondar(123456789.995L, maMatematico, 2, 10), 123456790, "the integer part is kept aside"},
            {arredondar(1.5L, maMatematico, 4, 2), 0.015L, "no digit dropped: the considered ones count as 4 decimals"},
            {arredondar(1.25L, maMatematico, 1, 25), 1.3L, "more decimals than 64 bits hold"},
            {arredondar(2.349L, maTruncamento, 2, 10), 2.34L, "cut"},
            {arredondar(2.9L, maTruncamento, 0, 10), 2, "nothing behind the comma is still a number"},
            {arredondar(0.000012L, maTruncamento, 1, 10), 1.2L, "the exponent is cut off with the text"},
            {arredondar(-0.000012L, maTruncamento, 2, 10), -0.000012L, "1,2E is no number: the value itself"},
            {arredondar(2.341L, maParaCima, 2, 10), 2.35L, "away from zero"},
            {arredondar(-2.341L, maParaCima, 2, 10), -2.35L, "the same below zero"},
            {arredondar(2.75L, maParaCima, 2, 10), 2.75L, "nothing to round"},
            {arredondar(2.999L, maParaCima, 2, 10), 3, "carry"},
            {arredondar(1.10L, maParaCima, 2, 10), 1.11L, "the nearest binary number is a little above 1.10"},
            {arredondar(1.05L, maParaBaixo, 2, 10), 1.04L, "the nearest binary number is a little below 1.05"},
            {arredondar(0.5L, maParaCima, 10, 10), 0.0705032704L, "5,000,000,000 in 32 bits"},
            {arredondar(2.349L, maParaBaixo, 2, 10), 2.34L, "towards zero"},
            {arredondar(2.349L, maNenhum, 2, 10), 2.349L, "unchanged"},
            {arredondar(2.349L, 9, 2, 10), 2.349L, "no such method"},
            {arredondar(2.349L, maParaBaixo, 39, 10), 2.349L, "no such factor in single precision"},
            {arredondar(0.5L, maMatematico, 11, 11), ArredondarPara15Digitos(50000000000 / 99999997952.0L),
             "10^11 in single precision is 99999997952"},
            {arredondar(CInfinito, maMatematico, 2, 10), CInfinito, "nothing to round"},
            {TMat::Arredondar(2.345L), 2.35L, "half up, two decimals"},
        });
    }
    TFormatSettings ponto = BuscarFormatosBrasileiros();
    ponto.DecimalSeparator = u'.';
    const TFormatosTemporarios comPonto(ponto);
    EXPECT_EQ(TMat::Arredondar(2.349L, maTruncamento, 2, 10), 2.349L) << "only a comma is looked for";
}

// The cascade on the decimal text itself: with amounts of 4 decimals the digits are certain.
TEST_F(Matematica, CascataSobreDigitos) {
    Testes::TAcaso gerador;
    for (int i = 0; i < 20'000; ++i) {
        const auto milesimos = static_cast<std::int64_t>(gerador() % 10'000'000'000);
        std::int64_t esperado = milesimos;
        for (int passo = 0; passo < 2; ++passo) esperado = esperado / 10 + (esperado % 10 >= 5);
        const Extended valor = static_cast<Extended>(milesimos) / 10'000;
        const Extended resultado =
            EmOutraAritmetica(static_cast<std::size_t>(i), [&] { return TMat::Arredondar(valor); });
        ASSERT_EQ(ArredondarPara15Digitos(resultado), static_cast<Extended>(esperado) / 100) << milesimos;
    }
}

TEST_F(Matematica, CombinacoesBinarias) {
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({true, true}, 0, true), 0);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({false, true, true}, 0, true), 3);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({true, true}, 3, false), 12);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({}, 0, true), 0);
    EXPECT_EQ(TMat::SomarCombinacaoBinaria({true, false}, 9, false), 256) << "only true entries need a value";
    for (const int inicial : {9, -1, std::numeric_limits<int>::max()})
        EXPECT_THROW(TMat::SomarCombinacaoBinaria({true, true}, inicial, false), Exception);
    EXPECT_TRUE(TMat::EstahNaCombinacaoBinaria(0, 0));
    EXPECT_FALSE(TMat::EstahNaCombinacaoBinaria(5, 0));
    EXPECT_FALSE(TMat::EstahNaCombinacaoBinaria(5, 6)) << "all of its bits";
    EXPECT_TRUE(TMat::EstahNaCombinacaoBinaria(-1, std::int64_t{1} << 62)) << "all 64 bits";
    // What was summed is found again.
    for (int soma = 1; soma < 512; ++soma) {
        std::vector<bool> marcados;
        for (int bit = 0; bit < 9; ++bit) marcados.push_back(TMat::EstahNaCombinacaoBinaria(soma, 1 << bit));
        ASSERT_EQ(TMat::SomarCombinacaoBinaria(marcados, 1, false), soma);
    }

    static std::u16string mensagem;
    CosturaInterface().Erro = [](std::u16string_view AMensagem) { mensagem = AMensagem; };
    EXPECT_THROW(TMat::SomarCombinacaoBinaria({false, true}, 1, true), EAbort);
    EXPECT_EQ(mensagem,
              u"Para considerar o valor 0 (zero), é necessário que o argumento <<AValorInicial>>também seja zero.");
}

TEST_F(Matematica, ContasECentimetros) {
    for (const std::size_t vez : CVezes) {
        const auto calcular = [] {
            return std::vector<Extended>{TMat::ConverterCentimetrosParaPolegadas(1),
                                         F::GetSoma(1, 1e-17L),
                                         F::GetSubtracao(1, 1e-17L),
                                         F::GetMultiplicacao(1.1L, 1.1L),
                                         F::GetDivisao(1, 3),
                                         F::GetExponencial(2, 0.5L)};
        };
        EXPECT_EQ(EmOutraAritmetica(vez, calcular),
                  (std::vector<Extended>{1 / 2.54L, 1 + 1e-17L, 1 - 1e-17L, 1.1L * 1.1L, 1 / 3.0L, std::sqrt(2.0L)}));
    }
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(5), 188) << "188.97 towards zero, at 96 an inch";
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(-5), -188);
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(CInfinito), 0);
    CosturaInterface().BuscarPixelsPorPolegada = [] { return 120; };
    EXPECT_EQ(TMat::ConverterCentimetrosParaPixels(10), 472);
}

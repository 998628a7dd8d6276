#include "oryutils/runtime/FormatoNumero.hpp"

#include "oryutils/characters/Utf.hpp"

#include "comum/Acaso.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace OryUtils {
namespace {

std::string Formatado(std::u16string_view AFormato, Extended AValor) {
    return ParaUtf8(FormatarNumero(AFormato, AValor, BuscarFormatosBrasileiros()));
}

TEST(FormatoNumero, Linguagem) {
    constexpr Extended CInfinito = std::numeric_limits<Extended>::infinity();
    const std::tuple<std::u16string_view, Extended, const char*> casos[] = {
        // The formats of the fields.
        {u",0.00", 1234.5L, "1.234,50"},
        {u",0.00", -1234567.891L, "-1.234.567,89"},
        // Places.
        {u"#", 0, ""},
        {u"#.##", 0.05L, ",05"},
        {u"#.##", 5, "5"},
        {u"0.", 5, "5"},
        {u"0.0#", 5, "5,0"},
        {u"0.#0", 5, "5,00"},
        {u"#0#", 5, "05"},
        {u".00", 1234.5L, "1234,50"},
        {u"0.0.0", 1.25L, "1,25"},
        {u"00-00", 12345, "123-45"},
        {u"(##) ##", 5, "() 5"},
        {u"0a.b0", 1.5L, "1ab,5"},
        // Thousands, wherever the comma stands.
        {u"0,", 1234567, "1.234.567"},
        {u",0000000", 12, "0.000.012"},
        {u",0", 999.5L, "1.000"},
        // Rounding: halves away from zero, on the decimal value.
        {u"0", 0.5L, "1"},
        {u"0", -2.5L, "-3"},
        {u"0.00", 0.005L, "0,01"},
        {u"0.0", 9.96L, "10,0"},
        {u"0.00", 1.005, "1,00"},  // the float nearest to it lies below
        {u"0.0000000000000000000000", 0.1L, "0,1000000000000000000000"},
        // Sections.
        {u"0;(0)", -5, "(5)"},
        {u"0;(0)", 0, "0"},
        {u"0;(0);nada", 0, "nada"},
        {u"0;;nada", -5, "-5"},
        {u"0.0;(0.0);'-'", -0.04L, "-"},
        {u"0.0;(0.0)", -0.04L, "0,0"},
        {u"0.0", -0.04L, "0,0"},
        {u"0;(0);#;resto", 7, "7"},
        {u";(0)", 5, "5"},
        {u";(0)", -5, "(5)"},
        {u"", -1234.5L, "-1234,5"},
        // Literals.
        {u"'R$' 0", 5, "R$ 5"},
        {u"\"0;0\"0", 5, "0;05"},
        {u"0'", 5, "5"},
        {u"0 '%;", 5, "5 %;"},
        {u"abc", -5, "-abc"},
        {u"0 e", 5, "5 e"},
        // Scientific.
        {u"0.00E+00", 1234.5L, "1,23E+03"},
        {u"0.00e-0", 1234.5L, "1,23e3"},
        {u"0.00E-0", 0.0012345L, "1,23E-3"},
        {u"##0.0E+0", 1234.5L, "123,5E+1"},
        {u"0.0E+000000", 9.96L, "1,0E+0001"},
        {u"0E+0", 0, "0E+0"},
        {u"#E+0", 1e4000L, "1E+4000"},
        // What is no number of 18 whole digits.
        {u"0.00", 999999999999999999.0L, "999999999999999999,00"},
        {u"0.00", 1e18L, "1E18"},
        {u"0", CInfinito, "INF"},
        {u"0;0", -CInfinito, "-INF"},
        {u"0", std::numeric_limits<Extended>::quiet_NaN(), "NAN"},
        {u"0", std::numeric_limits<Extended>::denorm_min(), "0"},
    };
    for (const auto& [formato, valor, esperado] : casos)
        EXPECT_EQ(Formatado(formato, valor), esperado) << ParaUtf8(formato) << " " << valor;
}

TEST(FormatoNumero, ContraOsCentavos) {
    Testes::TAcaso sorteio;
    for (int i = 0; i < 20000; ++i) {
        const auto centavos = static_cast<std::int64_t>(sorteio() % 1'000'000'000'000'000) >> sorteio() % 50;
        std::string esperado = std::to_string(centavos);
        if (esperado.size() < 3) esperado.insert(0, 3 - esperado.size(), '0');
        esperado.insert(esperado.size() - 2, ",");
        EXPECT_EQ(Formatado(u"0.00", static_cast<Extended>(centavos) / 100), esperado);
        for (std::size_t p = esperado.size() - 3; p > 3; p -= 3) esperado.insert(p - 3, ".");
        EXPECT_EQ(Formatado(u",0.00", static_cast<Extended>(centavos) / 100), esperado);
        if (centavos != 0) {
            EXPECT_EQ(Formatado(u",0.00", static_cast<Extended>(-centavos) / 100), "-" + esperado);
        }
    }
}

TEST(FormatoNumero, SeparadoresAusentesEFormatoLongo) {
    TFormatSettings formatos = BuscarFormatosBrasileiros();
    formatos.ThousandSeparator = 0;
    formatos.DecimalSeparator = 0;
    EXPECT_EQ(FormatarNumero(u",0.0", 1234.5L, formatos), u"12345");
    const std::u16string zeros(1 << 20, u'0');
    EXPECT_EQ(FormatarNumero(zeros, 7).size(), zeros.size());
    EXPECT_EQ(FormatarNumero(u"." + zeros, 0.5L).size(), zeros.size() + 1);
}

}  // namespace
}  // namespace OryUtils

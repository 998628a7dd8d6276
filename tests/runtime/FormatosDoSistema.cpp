#include "oryutils/platform/Localidade.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace OryUtils;
using namespace OryUtils::Interno;

// Whatever the locale of the machine: the formats are complete, and what they write they read.
TEST(FormatosDoSistema, FormatosDoUsuarioServem) {
    const TFormatSettings formatos = BuscarFormatosDoSistema();
    const auto preenchidos = [](const auto& ANomes) {
        return std::ranges::none_of(ANomes, [](const auto& n) { return n.empty(); });
    };
    EXPECT_TRUE(preenchidos(formatos.LongMonthNames) && preenchidos(formatos.ShortMonthNames));
    EXPECT_TRUE(preenchidos(formatos.LongDayNames) && preenchidos(formatos.ShortDayNames));
    EXPECT_NE(formatos.DecimalSeparator, formatos.ThousandSeparator);
    const TDateTime data = CodificarData(2024, 3, 5);
    EXPECT_EQ(TentarTextoParaData(FormatarDataHora(u"ddddd", data, formatos), formatos, 2024), data);
    const TDateTime hora = CodificarHora(14, 7, 9, 0);
    EXPECT_EQ(TentarTextoParaHora(FormatarDataHora(u"tt", hora, formatos), formatos), hora);
    EXPECT_EQ(TentarTextoParaHora(FormatarDataHora(u"t", hora, formatos), formatos), CodificarHora(14, 7, 0, 0));
}

TEST(FormatosDoSistema, TrocaPorUmTempo) {
    const TFormatSettings antes = FormatSettings();
    {
        const TFormatosTemporarios temporarios(BuscarFormatosBrasileiros());
        EXPECT_EQ(FormatSettings(), BuscarFormatosBrasileiros());
    }
    EXPECT_EQ(FormatSettings(), antes);
}

}  // namespace

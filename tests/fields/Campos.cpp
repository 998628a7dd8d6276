#include "oryutils/fields/Campos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include <gtest/gtest.h>

namespace OryUtils {
namespace {

class CamposDeDados : public testing::Test {
    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

TEST_F(CamposDeDados, NumeroExibidoEEditado) {
    TNumericField campo(ftFloat);
    EXPECT_EQ(campo.GetTextoExibido(), u"");
    campo.SetDisplayFormat(u",0.00 %");
    campo.SetValor(1234.5);
    EXPECT_EQ(campo.GetTextoExibido(), u"1.234,50 %");
    EXPECT_EQ(campo.GetTexto(), u"1.234,50 %") << "without an edit format the display format";
    campo.SetEditFormat(u"0.00");
    EXPECT_EQ(campo.GetTexto(), u"1234,50");
    campo.SetTexto(u" 0,125 ");
    EXPECT_EQ(campo.GetTextoExibido(), u"0,13 %");
    EXPECT_THROW(campo.SetTexto(u"1.234,50"), EConvertError) << "typed numbers have no thousands separators";
    EXPECT_EQ(campo.GetTexto(), u"0,13") << "a refused text changes nothing";
    campo.SetTexto(u" ");
    EXPECT_TRUE(campo.EhNulo());
    EXPECT_EQ(campo.GetTextoExibido(), u"");
}

TEST_F(CamposDeDados, OQueCadaTipoGuarda) {
    TNumericField inteiro(ftLargeint);
    inteiro.SetValor(2.5);
    EXPECT_EQ(inteiro.GetValor(), Variant(3));
    inteiro.SetValor(u"42");
    EXPECT_EQ(inteiro.GetValor(), Variant(42));
    EXPECT_EQ(inteiro.GetTextoExibido(), u"42");
    EXPECT_THROW(inteiro.SetTexto(u"4,2"), EConvertError);
    EXPECT_THROW(inteiro.SetValor(1e30), EInvalidCast);
    EXPECT_THROW(inteiro.SetValor(true), EInvalidCast);
    EXPECT_THROW(inteiro.SetValor(TDateTime(1)), EInvalidCast);
    EXPECT_THROW(TNumericField{ftString}, EInvalidCast);
    TNumericField moeda(ftCurrency);
    moeda.SetValor(TMoeda::De(12.5L));
    EXPECT_EQ(moeda.GetTextoExibido(), u"12,5");

    TField data(ftDate);
    data.SetTexto(u"29/02/2024");
    EXPECT_EQ(data.GetTextoExibido(), u"29/02/2024");
    EXPECT_THROW(data.SetTexto(u"29/02/2023"), EConvertError);
    EXPECT_THROW(data.SetValor(u"29/02/2024"), EInvalidCast);
    TField momento(ftDateTime);
    momento.SetTexto(u"05/03/2024 14:07");
    EXPECT_EQ(momento.GetTexto(), u"05/03/2024 14:07:00");
    EXPECT_THROW(momento.SetTexto(u"amanhã"), EConvertError);
}

TEST_F(CamposDeDados, Mascara) {
    TField campo(ftString);
    campo.SetEditMask(u"999.999.999-99;0; ");
    EXPECT_EQ(campo.GetTextoExibido(), u"") << "null shows nothing";
    campo.SetValor(u"52998224725");
    EXPECT_EQ(campo.GetTextoExibido(), u"529.982.247-25");
    EXPECT_EQ(campo.GetTexto(), u"52998224725");
    EXPECT_THROW(campo.SetEditMask(u"99\\"), EConvertError);
    EXPECT_EQ(campo.GetEditMask(), u"999.999.999-99;0; ");
}

}  // namespace
}  // namespace OryUtils

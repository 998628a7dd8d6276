#include "oryutils/fields/Campos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

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
    inteiro.SetDisplayFormat(u",0");
    inteiro.SetValor(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(inteiro.GetTextoExibido(), u"9223372036854775807");
    inteiro.SetTexto(inteiro.GetTexto());
    EXPECT_EQ(inteiro.GetValor(), Variant(std::numeric_limits<std::int64_t>::max()));
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

TEST_F(CamposDeDados, CadaInteiroTemASuaFaixa) {
    struct TCaso {
        TFieldType Tipo;
        std::int64_t Menor, Maior;
    };
    const TCaso casos[] = {
        {ftShortint, -128, 127},           {ftByte, 0, 255},
        {ftSmallint, -32768, 32767},       {ftWord, 0, 65535},
        {ftInteger, INT32_MIN, INT32_MAX}, {ftAutoInc, INT32_MIN, INT32_MAX},
        {ftLongWord, 0, UINT32_MAX},
    };
    for (const TCaso& caso : casos) {
        TNumericField campo(caso.Tipo);
        for (const std::int64_t valor : {caso.Menor, caso.Maior}) {
            campo.SetTexto(InteiroParaTexto(valor));
            EXPECT_EQ(campo.GetValor(), Variant(valor)) << caso.Tipo;
        }
        for (const std::int64_t valor : {caso.Menor - 1, caso.Maior + 1}) {
            EXPECT_THROW(campo.SetValor(valor), EInvalidCast) << caso.Tipo;
            EXPECT_THROW(campo.SetTexto(InteiroParaTexto(valor)), EConvertError) << caso.Tipo;
        }
        EXPECT_EQ(campo.GetValor(), Variant(caso.Maior)) << "a refused value changes nothing";
    }
}

TEST_F(CamposDeDados, MostraOQueEstahGuardado) {
    struct TCaso {
        const char16_t *Mascara, *Valor, *Exibido;
    };
    const TCaso casos[] = {
        {u"99.999.999/9999-99;0; ", u"11.222.333/0001-81", u"11.222.333/0001-81"},
        {u"99.999.999/9999-99;0; ", u"11 222 333 0001-81", u"11.222.333/0001-81"},
        {u"99.999.999/9999-99;0; ", u"12ABC34501DE35", u"12.ABC.345/01DE-35"},
        {u"99999-999;0; ", u"EC1A 1BB", u"EC1A 1BB"},
        {u"99999-999;0; ", u"01310-100 (SP)", u"01310-100 (SP)"},
        {u"!(999)99999-9999;1; ", u"11 3333-4444", u"11 3333-4444"},
        {u"99/9999;0; ", u"3/2024", u"3 /2024"},
        {u"999.999.999-99;0; ", u"529982247259", u"529.982.247-259"},
    };
    TFormatSettings comTraco = BuscarFormatosBrasileiros();
    comTraco.DateSeparator = u'-';
    for (const TCaso& caso : casos) {
        TField campo(ftString);
        campo.SetEditMask(caso.Mascara);
        campo.SetValor(std::u16string(caso.Valor));
        EXPECT_EQ(ParaUtf8(campo.GetTextoExibido(comTraco)), ParaUtf8(caso.Exibido));
    }
    TField data(ftDate);
    data.SetEditMask(u"99/99/9999;1;_");
    data.SetTexto(u"29-02-2024", comTraco);
    EXPECT_EQ(data.GetTextoExibido(comTraco), u"29-02-2024") << "dates follow the formats";
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

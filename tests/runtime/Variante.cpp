#include "oryutils/runtime/Variante.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace OryUtils {
namespace {

using TLista = std::vector<Variant>;

TEST(Variante, Texto) {
    const TDateTime data = CodificarData(2024, 3, 5);
    const std::pair<Variant, const char*> casos[] = {
        {{}, ""},
        {TNulo{}, ""},
        {true, "True"},
        {false, "False"},
        {std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"},
        {0.1, "0,1"},
        {TMoeda{125000}, "12,5"},
        {TMoeda{-1}, "-0,0001"},
        {TMoeda{std::numeric_limits<std::int64_t>::min()}, "-922337203685477,5808"},
        {TMoeda::De(-0.00005L), "-0,0001"},
        {data, "05/03/2024"},
        {TDateTime(data + 0.75), "05/03/2024 18:00:00"},
        {u"São 'x'", "São 'x'"},
    };
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    for (const auto& [valor, esperado] : casos) EXPECT_EQ(ParaUtf8(VarianteParaTexto(valor)), esperado);
    std::u16string texto = u"a";
    AnexarVariante(texto, -1);
    EXPECT_EQ(texto, u"a-1");
    EXPECT_THROW(VarianteParaTexto(TLista{1, u"b"}), EVariantTypeCastError);

    TFormatSettings outros = BuscarFormatosBrasileiros();
    outros.DecimalSeparator = u'.';
    outros.ShortDateFormat = u"yyyy-mm-dd";
    const TFormatosTemporarios trocados(outros);
    EXPECT_EQ(VarianteParaTexto(TMoeda{125000}), u"12.5");
    EXPECT_EQ(VarianteParaTexto(1.5), u"1.5");
    EXPECT_EQ(VarianteParaTexto(data), u"2024-03-05");
}

TEST(Variante, Soma) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    EXPECT_EQ(Variant(u"%") + u"a", Variant(u"%a"));
    EXPECT_EQ(Variant(u"%") + Variant(), Variant(u"%"));
    EXPECT_EQ(Variant() + 2, Variant(2));
    EXPECT_EQ(Variant(u"%") + TNulo{}, Variant(TNulo{}));
    EXPECT_EQ(Variant(2) + 3, Variant(5));
    EXPECT_EQ(Variant(2) + true, Variant(1)) << "true is -1";
    EXPECT_EQ(Variant(u" 2,5 ") + 1, Variant(3.5)) << "a text is read as a number";
    EXPECT_EQ(Variant(TMoeda{1000}) + 0.2, Variant(TMoeda{3000}));
    EXPECT_EQ(Variant(TDateTime(45000)) + 1.5, Variant(TDateTime(45001.5)));
    EXPECT_EQ(Variant(std::numeric_limits<std::int64_t>::max()) + 1, Variant(Extended{0x1p63L})) << "no longer fits";
    EXPECT_THROW(Variant(u"%") + 5, EVariantTypeCastError);
    EXPECT_THROW(Variant(u"%") + true, EVariantTypeCastError);
    EXPECT_THROW(Variant(TNulo{}) + TLista{}, EVariantTypeCastError);
    EXPECT_THROW(Variant(TMoeda{1}) + 1e300, EConvertError);
}

TEST(Variante, Vetores) {
    Variant fundo = TLista{1};
    for (int nivel = 1; nivel < TVetorDeVariantes::CMaiorNivel; ++nivel) fundo = TLista{fundo, u"x"};
    const Variant copia = fundo;
    EXPECT_EQ(copia, fundo);
    EXPECT_THROW(Variant(TLista{fundo}), EVariantError) << "any deeper could exhaust the stack";
    EXPECT_EQ(Variant(TLista{1, u"a"}), Variant(TLista{1, u"a"}));
    EXPECT_FALSE(Variant(TLista{1}) == Variant(TLista{2}));
}

}  // namespace
}  // namespace OryUtils

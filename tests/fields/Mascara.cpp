#include "oryutils/fields/Mascara.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <random>

namespace OryUtils {
namespace {

constexpr std::u16string_view CCpf = u"999.999.999-99;0; ";
constexpr std::u16string_view CCrc = u"9>LL<999999>L<9;0; ";
constexpr std::u16string_view CFone = u"!(999)99999-9999;1; ";
constexpr std::u16string_view CMascaras[] = {
    u"99.999.999/9999-99;0; ",
    CCpf,
    u"99.999.99999/99;0; ",
    u"99999-999;0; ",
    u"99/9999;0; ",
    CCrc,
    CFone,
    u"9999.999.99;0; ",
    u">AA.AAA.AAA/AAAA-99;0;_",
    u"!99:99;0;*",
    u"\\C\\;#9_LlAaCc<>!;1;_",
    u"00/00/0000;1;_",
    u"!L99;0; ",
};

TMascara Mascara(std::u16string_view AMascara) { return TMascara(AMascara, BuscarFormatosBrasileiros()); }

TEST(Mascara, ValorEdicaoEExibicao) {
    struct TCaso {
        std::u16string_view Mascara, Valor, Edicao, Exibicao, DeVolta;
        const char* Porque;
    };
    const TCaso casos[] = {
        {CCpf, u"52998224725", u"529.982.247-25", u"529.982.247-25", u"52998224725", "whole"},
        {CCpf, u"529", u"529.   .   -  ", u"529.   .   -  ", u"529", "empty places at the end are cut off"},
        {CCpf, u"5 9", u"5 9.   .   -  ", u"5 9.   .   -  ", u"5 9", "one inside holds its place"},
        {CCpf, u"", u"   .   .   -  ", u"   .   .   -  ", u"", "nothing"},
        {CCpf, u"529982247259", u"529.982.247-25", u"529.982.247-259", u"52998224725", "display loses nothing"},
        {CCpf, u"5x2", u"52 .   .   -  ", u"5x2.   .   -  ", u"52", "an edit takes what the places take"},
        {CCpf, u"529.982.247-25", u"529.982.247-25", u"529..98.2.2-47-25", u"52998224725", "a text of the mask"},
        {CCrc, u"1sp123456o5", u"1SP123456O5", u"1sp123456o5", u"1SP123456O5", "case switches"},
        {CFone, u"11987654321", u"( 11)98765-4321", u"( 11)98765-4321", u"( 11)98765-4321", "aligned right"},
        {CFone, u"(011)98765-4321", u"(011)98765-4321", u"(011)98765-4321", u"(011)98765-4321", "with literals"},
        {CFone, u"34567", u"(   )    3-4567", u"(   )    3-4567", u"(   )    3-4567", "short"},
        {CFone, u"(11) 98765-4321", u"( 11)98765-4321", u"(11) 98765-4321", u"( 11)98765-4321", "foreign text"},
        {CFone, u"", u"(   )     -    ", u"(   )     -    ", u"", "all empty stores nothing"},
        {u"00/00/0000;1;_", u"5/3/2024", u"5_/3_/2024", u"5/3/2024", u"5 /3 /2024", "separators jump"},
        {u"99/99;0;_", u"12", u"12/__", u"12/  ", u"12", "display has no blank character"},
        {u"\\9\\\\_9;0", u"7", u"9\\ 7", u"9\\ 7", u"7", "escapes, the skipped space, the default fields"},
        {u"9;X", u"7", u"7", u"7", u"7", "anything but 0 stores literals"},
        {u"<LL>LL<>LL", u"AbAbAb", u"abABAb", u"AbAbAb", u"abABAb", "the three case switches"},
        {u"LL", u"çÁ", u"çÁ", u"çÁ", u"çÁ", "accented letters are letters"},
        {u"##", u"-5", u"-5", u"-5", u"-5", "sign"},
        {u"", u"qualquer", u"qualquer", u"qualquer", u"qualquer", "no mask"},
    };
    for (const TCaso& caso : casos) {
        const TMascara mascara = Mascara(caso.Mascara);
        const std::u16string edicao = mascara.ParaEdicao(caso.Valor);
        EXPECT_EQ(ParaUtf8(edicao), ParaUtf8(caso.Edicao)) << caso.Porque;
        EXPECT_EQ(ParaUtf8(mascara.Exibir(caso.Valor)), ParaUtf8(caso.Exibicao)) << caso.Porque;
        EXPECT_EQ(ParaUtf8(mascara.ParaValor(edicao)), ParaUtf8(caso.DeVolta)) << caso.Porque;
    }
}

TEST(Mascara, SeparadoresDosFormatos) {
    TFormatSettings formatos = BuscarFormatosBrasileiros();
    formatos.DateSeparator = u'.';
    formatos.TimeSeparator = 0;
    EXPECT_EQ(TMascara(u"99/99 99:99;0;_", formatos).GetTextoVazio(), u"__.__ ____");
}

TEST(Mascara, ExamePeloMotivoCerto) {
    struct TCaso {
        std::u16string_view Mascara, Texto;
        TExameMascara Esperado;
        bool Aceita;
    };
    const TCaso casos[] = {
        {u"00000-000;0;_", u"01310-100", {}, true},
        {u"00000-000;0;_", u"01310100", {fmTamanho, 8}, true},
        {u"00000-000;0;_", u"0131010", {fmTamanho, 7}, false},
        {u"00000-000;0;_", u"01310-1__", {fmIncompleto, 7}, false},
        {u"00000-000;0;_", u"01310.100", {fmLiteral, 5}, false},
        {u"00000-000;0;_", u"_1310-1x0", {fmCaractere, 7}, false},
        {u"00000-000;0;_", u"", {fmTamanho, 0}, false},
        {u"99999-999;0;_", u"", {fmTamanho, 0}, true},
        {u"99999-999;0;_", u"013-10", {fmTamanho, 6}, false},
        {CCrc, u"1sp123456o5", {}, true},
        {u"", u"x", {}, true},
    };
    for (const TCaso& caso : casos) {
        const TMascara mascara = Mascara(caso.Mascara);
        EXPECT_EQ(mascara.Examinar(caso.Texto), caso.Esperado) << ParaUtf8(caso.Texto);
        EXPECT_EQ(mascara.Aceita(caso.Texto), caso.Aceita) << ParaUtf8(caso.Texto);
    }
}

TEST(Mascara, QuebradasSaoRecusadas) {
    const std::u16string longa(TMascara::CMaiorTamanho + 1, u'9');
    const std::u16string_view quebradas[] = {
        u";",      u";0; ",   u"xyz",    u"!><",        u"\\9",  // no place
        u"9\\",    u"\\",     longa,                             // nothing behind the escape; too long
        u"99;0;5", u"LL;0;x", u"9;0;\n", u"9;0;\xD800",          // no use as the character of empty places
    };
    for (const std::u16string_view mascara : quebradas)
        EXPECT_THROW(Mascara(mascara), EConvertError) << ParaUtf8(mascara);
    EXPECT_NO_THROW(Mascara(longa.substr(1)));
}

/// One gesture: a character is typed; keys are < > [ ] (left, right, home, end), ~ (backspace), ^ (delete).
TEdicaoMascara Gesticular(const TMascara& AMascara, TEdicaoMascara AEdicao, std::u16string_view AGestos) {
    constexpr std::u16string_view CTeclas = u"<>[]~^";  // in the order of TTeclaMascara
    for (const char16_t gesto : AGestos) {
        const std::size_t tecla = CTeclas.find(gesto);
        AEdicao = tecla == CTeclas.npos ? AMascara.Digitar(AEdicao, gesto)
                                        : AMascara.Teclar(AEdicao, static_cast<TTeclaMascara>(tecla));
    }
    return AEdicao;
}

TEST(Mascara, EdicaoViva) {
    struct TCaso {
        std::u16string_view Mascara, Gestos, Texto;
        std::size_t Cursor;
        const char* Porque;
    };
    constexpr std::u16string_view CData = u"99/99/9999;1;_";
    const TCaso casos[] = {
        {CCpf, u"529", u"529.   .   -  ", 4, "the caret goes past the literal"},
        {CCpf, u"5299", u"529.9  .   -  ", 5, "and typing goes on behind it"},
        {CCpf, u"52998224725", u"529.982.247-25", 14, "whole"},
        {CCpf, u"529982247251", u"529.982.247-25", 14, "no place left"},
        {CCpf, u"529.982.247-25", u"529.982.247-25", 14, "literals typed all the same"},
        {CCpf, u"5a2", u"52 .   .   -  ", 2, "a letter is refused"},
        {CCpf, u"5.2-9", u"529.   .   -  ", 4, "marks inside a group are passed over"},
        {CCpf, u"529~", u"52 .   .   -  ", 2, "backspace over the literal"},
        {CCpf, u"~", u"   .   .   -  ", 0, "nothing before"},
        {CCpf, u"529<<^", u"5 9.   .   -  ", 1, "delete empties, nothing moves"},
        {CCpf, u"529<^^", u"52 .   .   -  ", 2, "again: still there"},
        {CCpf, u"529[^", u" 29.   .   -  ", 0, "home"},
        {CCpf, u"52[]", u"52 .   .   -  ", 2, "end is behind the last character"},
        {CCpf, u"529[>>>>", u"529.   .   -  ", 5, "right skips the literal"},
        {CCpf, u"5299<<<1", u"519.9  .   -  ", 2, "left too; typing writes over"},
        {CCpf, u"529982247259]>", u"529.982.247-25", 14, "at the end"},
        {CData, u"12/05/2024", u"12/05/2024", 10, "separators after a whole group"},
        {CData, u"1/5/2024", u"1_/5_/2024", 10, "and after part of one"},
        {CData, u"1-5 2024", u"1_/5_/2024", 10, "whatever the mark"},
        {u"99.999/99;0;_", u"123.4/5", u"12.34_/5_", 8, "\"/\" alone jumps where other marks stand, too"},
        {u"cc;0;_", u" x", u"_x", 2, "a space has a place among any characters"},
        {CCrc, u"1sp123456o5", u"1SP123456O5", 11, "case as typed"},
        {CFone, u"11987654321", u"(119)87654-321 ", 14, "from the left"},
        {u"#9;0; ", u"+5", u"+5", 2, "sign"},
        {u"CC;0;_", u"e\u0301", u"e\u0301", 2, "a combining mark takes a place"},
        {u"CC;0;_", u"\xD83D\xDE00\t", u"__", 0, "beyond a place: refused"},
    };
    for (const TCaso& caso : casos) {
        const TMascara mascara = Mascara(caso.Mascara);
        const TEdicaoMascara edicao = Gesticular(mascara, {}, caso.Gestos);
        const std::u16string comeco = edicao.Texto.substr(0, caso.Texto.size());
        EXPECT_EQ(ParaUtf8(comeco), ParaUtf8(caso.Texto)) << caso.Porque;
        EXPECT_EQ(edicao.Cursor, caso.Cursor) << caso.Porque;
        EXPECT_EQ(edicao.Ancora, edicao.Cursor) << caso.Porque;
        EXPECT_EQ(edicao.Texto.size(), mascara.GetTamanho()) << caso.Porque;
    }
    EXPECT_EQ(Mascara(CFone).Sair(u"(119)87654-321 "), u"( 11)98765-4321");
    EXPECT_EQ(Mascara(u"!a>a;0; ").Sair(u"ÿ "), u" Ÿ") << "as the place further right writes it";
    EXPECT_EQ(Mascara(u"!L99;0; ").Sair(u"A1 "), u"A1 ") << "the letter has no place further right";
}

TEST(Mascara, SelecaoEColagem) {
    struct TCaso {
        std::u16string_view Mascara;
        TEdicaoMascara Antes;
        std::u16string_view Colado;
        TEdicaoMascara Depois;
        const char* Porque;
    };
    const TCaso casos[] = {
        {CCpf, {}, u"529.982.247-25", {u"529.982.247-25", 14, 14}, "in the mask"},
        {CCpf, {}, u"52998224725", {u"529.982.247-25", 14, 14}, "bare"},
        {CCpf, {}, u" 529 982 247 25\r\n", {u"529.982.247-25", 14, 14}, "from a letter"},
        {CCpf, {}, u"CPF 529 982 247 25", {u"   .   .   -  ", 0, 0, true}, "whole or not at all"},
        {CCpf, {u"529.982.247-25", 4, 7}, u"11", {u"529.11 .247-25", 6, 6}, "over a selection"},
        {CCpf, {u"529.982.247-25", 14, 0}, u"1", {u"1  .   .   -  ", 1, 1}, "over everything"},
        {CCpf, {u"529.982.247-25", 14, 14}, u"9", {u"529.982.247-25", 14, 14, true}, "no place left"},
        {CCpf, {u"529.982.247-25", 99, 99}, u"9", {u"529.982.247-25", 14, 14, true}, "a caret outside"},
        {CCpf, {u"52998224725", 0, 0}, u"1", {u"129.982.247-25", 1, 1}, "a text not yet in the mask"},
        {u"99999-999;0;_", {}, u"1____-__5", {u"1____-__5", 9, 9}, "empty places of a text in the mask stay"},
        {u"", {u"abc", 1, 2}, u"xy", {u"axyc", 3, 3}, "no mask"},
    };
    for (const TCaso& caso : casos) {
        const TEdicaoMascara depois = Mascara(caso.Mascara).Colar(caso.Antes, caso.Colado);
        EXPECT_EQ(ParaUtf8(depois.Texto), ParaUtf8(caso.Depois.Texto)) << caso.Porque;
        EXPECT_EQ(depois.Cursor, caso.Depois.Cursor) << caso.Porque;
        EXPECT_EQ(depois.Recusada, caso.Depois.Recusada) << caso.Porque;
    }
    const TMascara cpf = Mascara(CCpf);
    const TEdicaoMascara tudo{u"529.982.247-25", 0, 14};
    EXPECT_EQ(cpf.Digitar(tudo, u'1').Texto, u"1  .   .   -  ") << "typing over a selection";
    EXPECT_EQ(cpf.Digitar(tudo, u'x'), (TEdicaoMascara{tudo.Texto, 0, 14, true})) << "a refused character keeps it";
    EXPECT_EQ(cpf.Digitar(tudo, u'.'), tudo) << "and so does a mark";
    EXPECT_EQ(cpf.Teclar(tudo, tmExcluir), (TEdicaoMascara{u"   .   .   -  ", 0, 0}));
    EXPECT_EQ(cpf.Teclar({u"529.982.247-25", 6, 2}, tmApagar), (TEdicaoMascara{u"52 .  2.247-25", 2, 2}));
}

TEST(Mascara, ValorVaiEVolta) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(semente);
    std::mt19937 sorteio(semente);
    constexpr std::u16string_view CAlfabeto = u"0123456789+-abzXYç./:()_* ;é\u0301\xD800\t";
    for (const std::u16string_view mascara : CMascaras) {
        const TMascara m = Mascara(mascara);
        for (int i = 0; i < 2000; ++i) {
            std::u16string texto;
            for (auto n = sorteio() % 24; n > 0; --n) texto += CAlfabeto[sorteio() % CAlfabeto.size()];
            const std::u16string edicao = m.Sair(m.ParaEdicao(texto));
            ASSERT_EQ(edicao.size(), m.GetTamanho());
            const TFalhaMascara falha = m.Examinar(edicao).Falha;
            ASSERT_TRUE(falha == fmNenhuma || falha == fmIncompleto) << ParaUtf8(mascara) << ": " << ParaUtf8(texto);
            const std::u16string valor = m.ParaValor(edicao);
            ASSERT_EQ(ParaUtf8(m.ParaEdicao(valor)), ParaUtf8(edicao)) << ParaUtf8(mascara) << ": " << ParaUtf8(texto);
            ASSERT_EQ(m.ParaValor(valor), valor) << ParaUtf8(mascara) << ": " << ParaUtf8(texto);
        }
    }
}

TEST(Mascara, QualquerGestoDeixaUmTextoDaMascara) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(semente);
    std::mt19937 sorteio(semente);
    for (const std::u16string_view mascara : CMascaras) {
        const TMascara m = Mascara(mascara);
        TEdicaoMascara edicao;
        for (int i = 0; i < 3000; ++i) {
            switch (sorteio() % 8) {
                case 0:
                    edicao.Cursor = sorteio() % 40;
                    break;
                case 1:
                    edicao.Ancora = sorteio() % 40;
                    break;
                case 2:
                    edicao = m.Teclar(edicao, static_cast<TTeclaMascara>(sorteio() % 6));
                    break;
                case 3:
                    edicao = m.Colar(edicao, std::u16string(sorteio() % 9, static_cast<char16_t>(sorteio() % 256)));
                    break;
                default:
                    edicao = m.Digitar(edicao, static_cast<char16_t>(sorteio() % (i % 2 ? 128 : 65536)));
            }
            const TFalhaMascara falha = m.Ajustar(edicao).Texto == edicao.Texto ? m.Examinar(edicao.Texto).Falha
                                        : edicao.Texto.empty()                  ? fmNenhuma
                                                                                : fmTamanho;
            ASSERT_TRUE(falha == fmNenhuma || falha == fmIncompleto) << ParaUtf8(mascara) << ParaUtf8(edicao.Texto);
        }
    }
}

TEST(Mascara, Megabytes) {
    const TMascara cpf = Mascara(CCpf);
    const std::u16string letras(1 << 20, u'x');
    EXPECT_TRUE(cpf.Colar({}, letras + u"5").Recusada);
    EXPECT_EQ(cpf.Colar({}, std::u16string(1 << 20, u' ') + u"5").Texto, u"5  .   .   -  ");
    EXPECT_EQ(cpf.Exibir(letras).size(), letras.size() + 3);
    EXPECT_EQ(cpf.Examinar(letras).Falha, fmTamanho);
    EXPECT_THROW(Mascara(letras), EConvertError);
    EXPECT_THROW(Mascara(std::u16string(1 << 20, u'9')), EConvertError);
}

}  // namespace
}  // namespace OryUtils

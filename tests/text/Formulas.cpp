#include "comum/OutraAritmetica.hpp"
#include "text/Apoio.hpp"
#include "text/FormulasReferencia.hpp"

#include <algorithm>

using namespace OryUtils;

namespace {

class Formulas : public testing::Test {
    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

std::string Calcular(std::u16string_view AFormula) {
    TOryUtilsFormulas formula;
    formula.AdicionarVariavel(u"X", 2);
    formula.AdicionarVariavel(u"Neg", -3);
    return Descrever([&] { return formula.Calcular(AFormula); });
}

/// Formulas as people write them and as they mistype them.
class TGerador : public Testes::TSorteio {
public:
    std::u16string Formula(int AProfundidade) {
        std::u16string f = Operando(AProfundidade);
        for (int i = Numero(0, 4); i > 0; --i) {
            f += Texto(u"*/+-", 1, 1);
            if (Numero(0, 7) == 0) f += u'-';
            f += Operando(AProfundidade);
        }
        return f;
    }
    void Estragar(std::u16string& f) {
        static constexpr const char16_t* CPedacos[] = {u"MAX(", u"MIN(", u"EXP(", u"LN(", u"--", u"(-", u")(", u"abs("};
        for (int i = Numero(1, 3); i > 0; --i) {
            const auto p = static_cast<std::size_t>(Numero(0, static_cast<int>(f.size())));
            if (Numero(0, 3) == 0)
                f.erase(p, static_cast<std::size_t>(Numero(1, 3)));
            else
                f.insert(p,
                         Numero(0, 2) ? Texto(u"0123456789,.*/+-()()--;;XE ZSQR;\t\u00e7\xd800", 1, 1) : Um(CPedacos));
        }
    }

private:
    /// A pattern, where # stands for some digits and ~ for a formula.
    std::u16string Operando(int AProfundidade) {
        static constexpr const char16_t* CSimples[] = {
            u"#",       u"#",   u"#,#",     u"#,#", u"3", u"3",      u" 1.250", u"12345678901234,56789",
            u"0,00001", u"neg", u"TAXA1,5", u"X",   u"X", u"Salario"};
        static constexpr const char16_t* CRaros[] = {u"grande", u"E", u"Y"};
        // Powers with an exponent within reason.
        static constexpr const char16_t* CCompostos[] = {
            u"(~)",    u"(~)",      u"(~)",      u"SQR(~)",   u"log(~)",     u"LN(~)",     u"INT(~)",
            u"ABS(~)", u"MAX(~;~)", u"Min(~;~)", u"EXP(~;3)", u"EXP(~;0,5)", u"EXP(-2;3)", u"EXP(~;-2)"};
        const bool composto = AProfundidade > 0 && Numero(0, 8) > 4;
        std::u16string texto;
        for (const char16_t c : std::u16string_view(composto        ? Um(CCompostos)
                                                    : Numero(0, 50) ? Um(CSimples)
                                                                    : Um(CRaros)))
            texto += c == u'~'   ? Formula(AProfundidade - 1)
                     : c == u'#' ? Texto(u"0123456789", 1, 4)
                                 : std::u16string(1, c);
        return texto;
    }
    const char16_t* Um(std::span<const char16_t* const> ATextos) {
        return ATextos[static_cast<std::size_t>(Numero(0, static_cast<int>(ATextos.size()) - 1))];
    }
};

}  // namespace

TEST_F(Formulas, Regras) {
    struct TCaso {
        std::u16string_view Formula;
        const char* Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"2+3*4", "14", "multiplication first"},
        {u"8/2*2", "2", "every * before any /"},
        {u"---3", "-3", "-- becomes +, the first pair"},
        {u"EXP(2;3)", "8", "power"},
        {u"EXP(2;-1)", "0,5", "power"},
        {u"INT(-2,7)", "-2", "towards zero"},
        {u"LN(EXP(2,718281828459045;2))", "2", "natural logarithm"},
        {u"2-neg", "5", "a negative variable makes a --"},
        {u"", "0", "nothing"},
        {u"5-(0-3)", "2", "what a parenthesis leaves is text: 5--3 is 5-0-3"},
        {u"2(3)", "23", "what a parenthesis leaves is text"},
        {u"1/3*3", "0,111111111111111", "1/9 in 15 digits"},
        {u"MAX(MIN(1;2);3)", "Exception: São necessários dois argumentos para calcular a função.",
         "the first ; is the inner one"},
        {u"SQR(-1)", "Exception: Variável 'NAN' não existe.", "no number is a name"},
        {u"LN(Y)+SQR(Z)", "Exception: Variável 'Z' não existe.", "SQR is resolved first"},
        {u"2)*3", "EConvertError: '2)' não é um valor de ponto flutuante válido", "a parenthesis too many"},
        {u"0,001*0,01", "EConvertError: '1E' não é um valor de ponto flutuante válido", "1E-5: the minus subtracts"},
        {u"10000000*1000000000", "1E16", "no minus in the exponent"},
    };
    for (const TCaso& c : casos) EXPECT_EQ(Calcular(c.Formula), c.Esperado) << ParaUtf8(c.Formula) << ": " << c.Porque;
    EXPECT_FALSE(std::signbit(TOryUtilsFormulas().Calcular(u"-"))) << "a lone minus is 0, not -0";
}

TEST_F(Formulas, EstadoEntreAvaliacoes) {
    TOryUtilsFormulas formula;
    formula.AdicionarVariaveis({u"a", u"B"}, {1, 2.5L});
    formula.SetExpressao(u"SQR(4) + A*b");
    EXPECT_EQ(formula.GetValor(), 4.5L);
    EXPECT_EQ(formula.GetExpressaoResolvida(), u"2+1*2,5");
    formula.AdicionarVariavel(u"A", 3);
    EXPECT_EQ(formula.GetVariaveis(), (Testes::TLista{u"A=3", u"B=2,5"}));
    formula.SetExpressao(u"SQR(4) + A*b");
    EXPECT_EQ(formula.GetValor(), 4.5L) << "the same text evaluates nothing";
    formula.SetExpressao(u"A*b");
    EXPECT_EQ(formula.GetValor(), 7.5L);
    EXPECT_THROW(formula.SetExpressao(u"A*C"), Exception);
    EXPECT_EQ(formula.GetExpressao(), u"A*C");
    EXPECT_EQ(formula.GetValor(), 7.5L);
    EXPECT_THROW(formula.AdicionarVariaveis({u"D"}, {}), Exception);

    formula.SetTipoAjusteValor(maTruncamento);
    formula.SetVariaveis({u"nome = 1 2,129", u"NOME=9", u"sem sinal", u"ruim=x"});
    EXPECT_EQ(formula.Calcular(u"Nome"), 12.12L) << "blanks go, the first of equal names counts";
    formula.SetCasasDecimais(1);
    EXPECT_EQ(formula.Calcular(u"Nome"), 12.1L) << "adjusted anew";
    EXPECT_THROW(formula.Calcular(u"ruim"), EConvertError);
    formula.LimparVariaveis();
    EXPECT_EQ(formula.GetExpressaoResolvida(), u"");
    EXPECT_THROW(formula.Calcular(u"nome"), Exception);

    formula.SetValor(1.5L);
    EXPECT_EQ(formula.GetExpressao(), u"1,5");
    formula.SetValor(0);
    EXPECT_EQ(formula.GetExpressao(), u"");
}

TEST_F(Formulas, PecasDosPassos) {
    TOryUtilsFormulas formula;
    std::u16string texto = u"2 - abs(-5)-(3--1)";
    formula.ResolverFuncoes(texto);
    EXPECT_EQ(texto, u"2-5-(3--1)");
    std::u16string recusado = u"abs(1) + max(2)";
    EXPECT_THROW(formula.ResolverFuncoes(recusado), Exception);
    EXPECT_EQ(recusado, u"abs(1) + max(2)") << "a step that raises leaves the caller's text alone";
    formula.ResolverDuploSinalNegativo(texto);
    EXPECT_EQ(texto, u"2-5-(3+1)");
    formula.ResolverParenteses(texto);
    EXPECT_EQ(texto, u"2-5-4");
    EXPECT_EQ(formula.CalcularExpressao(texto), -7);
}

TEST(FormulasAoAcaso, ComoAReescrita) {
    TGerador gerador;
    SCOPED_TRACE(gerador.Semente());
    TFormatSettings ponto = BuscarFormatosBrasileiros();
    std::swap(ponto.DecimalSeparator, ponto.ThousandSeparator);
    int valores = 0;
    for (int i = 0; i < 24'000; ++i) {
        const bool brasileiro = i % 8 != 0;
        const TFormatosTemporarios formatos(brasileiro ? BuscarFormatosBrasileiros() : ponto);
        TFormulaReescrita reescrita;
        TOryUtilsFormulas formula;
        if (i % 3 == 0) {
            reescrita.Ajuste = static_cast<TMetodoArredondamento>(gerador.Numero(0, 4));
            reescrita.Casas = static_cast<std::uint8_t>(gerador.Numero(0, 4));
            formula.SetTipoAjusteValor(reescrita.Ajuste);
            formula.SetCasasDecimais(reescrita.Casas);
        }
        const std::pair<const char16_t*, Extended> variaveis[] = {
            {u"X", 2}, {u"NEG", -3.5L}, {u"SALARIO", 1500.75L}, {u"TAXA1,5", 1.0L / 3}, {u"GRANDE", 1.5e20L},
            {u"E", 7}};
        for (const auto& [nome, valor] : variaveis) {
            if (nome[0] == u'E' && i % 2) continue;
            reescrita.Variaveis[nome] = ExtendedParaTexto(valor);
            formula.AdicionarVariavel(nome, valor);
        }
        std::u16string texto = gerador.Formula(3);
        if (!brasileiro) std::replace(texto.begin(), texto.end(), u',', u'.');
        if (i % 3 == 0) gerador.Estragar(texto);

        const std::string esperado = Descrever([&] { return reescrita.Calcular(texto); });
        const auto calcular = [&] { return Descrever([&] { return formula.Calcular(texto); }); };
        ASSERT_EQ(Testes::EmOutraAritmetica(static_cast<std::size_t>(i), calcular), esperado) << ParaUtf8(texto);
        if (esperado.find(':') != std::string::npos) continue;
        ++valores;
        ASSERT_EQ(formula.GetExpressaoResolvida(), reescrita.Resolvida) << ParaUtf8(texto);
    }
    EXPECT_GT(valores, 6'000);
    EXPECT_LT(valores, 22'000);
}

TEST_F(Formulas, TextosEnormes) {
    const auto repetir = [](std::u16string_view ATexto) {
        std::u16string texto;
        while (texto.size() < 1'000'000) texto += ATexto;
        return texto;
    };
    EXPECT_EQ(Calcular(repetir(u"(")), "0");
    EXPECT_EQ(Calcular(repetir(u"ABS(-") + u"1"), "1") << "one call inside the other";
    EXPECT_EQ(Calcular(repetir(u"MAX(1;")), "1");
    EXPECT_EQ(Calcular(repetir(u"MAX(1;") + repetir(u"SQR(4)+") + u"0"), "285716") << "many calls inside many";
    EXPECT_EQ(Calcular(repetir(u"SQR(Y)+")), "Exception: Variável 'Y' não existe.");
    EXPECT_EQ(Calcular(repetir(u"INT(LOG(")), "Exception: Variável 'INF' não existe.");
    EXPECT_EQ(Calcular(repetir(u"1+") + u"0"), "500000");
    EXPECT_EQ(Calcular(repetir(u"9")).substr(0, 15), "EConvertError: ");
    EXPECT_EQ(Calcular(repetir(u"-")), "0");
    EXPECT_EQ(Calcular(repetir(u"0,01*-0,01/")), "EConvertError: 'INF' não é um valor de ponto flutuante válido");
}

TEST_F(Formulas, VariaveisSemFim) {
    TOryUtilsFormulas formula;
    formula.SetVariaveis({u"E20=1E20", u"E=1E-7", u"E16=5", u"A=1E16"});
    EXPECT_EQ(formula.Calcular(u"A+1"), 16) << "1E16 is 1 and the variable E16";
    for (const auto* texto : {u"2*E20", u"E+E"})
        EXPECT_EQ(Descrever([&] { return formula.Calcular(texto); }), "Exception: Variáveis da fórmula sem fim.");
}

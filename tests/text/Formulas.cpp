#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"

#include "comum/OutraAritmetica.hpp"
#include "text/FormulasReferencia.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

using namespace OryUtils;
using Testes::EmOutraAritmetica;

namespace {

/// The value as text, or the class and the message of the error.
template <typename TAvaliacao>
std::string Descrever(TAvaliacao AAvaliacao) {
    try {
        return ParaUtf8(ExtendedParaTexto(AAvaliacao()));
    } catch (const Exception& e) {
        return std::string(e.GetNomeDaClasse()) + ": " + e.what();
    }
}

std::string Calcular(std::u16string_view AFormula) {
    TOryUtilsFormulas formula;
    formula.AdicionarVariavel(u"X", 2);
    formula.AdicionarVariavel(u"Neg", -3);
    return Descrever([&] { return formula.Calcular(AFormula); });
}

/// Formulas as people write them and as they mistype them.
class TGerador {
public:
    explicit TGerador(std::uint64_t ASemente) : FGerador(ASemente) {}

    std::size_t Sortear(std::size_t ALimite) { return FGerador() % ALimite; }
    std::u16string Formula(int AProfundidade) {
        std::u16string f = Operando(AProfundidade);
        for (std::size_t i = Sortear(5); i > 0; --i) {
            f += u"*/+-"[Sortear(4)];
            if (Sortear(8) == 0) f += u'-';
            f += Operando(AProfundidade);
        }
        return f;
    }
    void Estragar(std::u16string& f) {
        static constexpr std::u16string_view CLetras = u"0123456789,.*/+-()()--;;XE ZSQR;\t\u00e7\xd800";
        static constexpr const char16_t* CPedacos[] = {u"MAX(", u"MIN(", u"EXP(", u"LN(", u"--", u"(-", u")(", u"abs("};
        for (std::size_t i = 1 + Sortear(3); i > 0; --i) {
            const std::size_t p = Sortear(f.size() + 1);
            switch (Sortear(4)) {
                case 0:
                    f.erase(p, 1 + Sortear(3));
                    break;
                case 1:
                    f.insert(p, CPedacos[Sortear(8)]);
                    break;
                default:
                    f.insert(p, 1, CLetras[Sortear(CLetras.size())]);
                    break;
            }
        }
    }

private:
    std::u16string Operando(int AProfundidade) {
        static constexpr const char16_t* CFuncoes[] = {u"SQR(", u"log(", u"LN(",  u"INT(",
                                                       u"ABS(", u"MAX(", u"Min(", u"EXP("};
        static constexpr const char16_t* CNomes[] = {u"X", u"neg", u"Salario", u"TAXA1,5", u"grande", u"E", u"Y"};
        switch (AProfundidade > 0 ? Sortear(9) : Sortear(5)) {
            case 0:
                return DeUtf8(std::to_string(Sortear(1000)));
            case 1:
                return DeUtf8(std::to_string(Sortear(10))) + u"," + DeUtf8(std::to_string(Sortear(100'000)));
            case 2:
                return CNomes[Sortear(Sortear(10) == 0 ? 7 : 4)];
            case 3:
                return Sortear(4) ? u"3" : u"12345678901234,56789";
            case 4:
                return Sortear(4) ? u" 1.250" : u"0,00001";
            case 5:
            case 6:
                return u"(" + Formula(AProfundidade - 1) + u")";
            default: {
                const std::size_t funcao = Sortear(8);
                const std::u16string primeiro = Formula(AProfundidade - 1);
                // Powers with an exponent within reason.
                const std::u16string segundo = funcao == 7 ? u"-2;" : funcao > 4 ? Formula(AProfundidade - 1) : u"";
                if (funcao == 7) return CFuncoes[7] + primeiro + (Sortear(2) ? u";3)" : u";0,5)");
                return CFuncoes[funcao] + primeiro + (funcao > 4 ? u";" + segundo : u"") + u")";
            }
        }
    }
    std::mt19937_64 FGerador;
};

}  // namespace

TEST(Formulas, Regras) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    struct TCaso {
        std::u16string_view Formula;
        const char* Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"2+3*4", "14", "multiplication first"},
        {u"8/2*2", "2", "every * before any /"},
        {u"10-2+3", "5", "every + before any -"},
        {u"5/0", "0", "division by zero"},
        {u"2--3", "5", "-- becomes +"},
        {u"---3", "-3", "the first pair becomes +"},
        {u"2*-3", "-6", "sign behind an operator"},
        {u"SQR(9)", "3", "square root"},
        {u"EXP(2;3)", "8", "power"},
        {u"EXP(2;-1)", "0,5", "power"},
        {u"MAX(2;5)", "5", "larger"},
        {u"MIN(2;5)", "2", "smaller"},
        {u"INT(-2,7)", "-2", "towards zero"},
        {u"LOG(100)", "2", "decimal logarithm"},
        {u"LN(EXP(2,718281828459045;2))", "2", "natural logarithm"},
        {u"abs(-7)", "7", "case plays no part"},
        {u"1.000,5*2", "2001", "points are dropped"},
        {u"x*3", "6", "variable"},
        {u"2-neg", "5", "a negative variable makes a --"},
        {u"", "0", "nothing"},
        {u"-", "0", "a lone minus"},
        {u"*+5", "5", "a missing operand"},
        {u"5-(0-3)", "2", "what a parenthesis leaves is text: 5--3 is 5-0-3"},
        {u"2(3)", "23", "what a parenthesis leaves is text"},
        {u"2*(3+(4", "14", "missing parentheses stand at the end"},
        {u"1/3*3", "0,111111111111111", "1/9 in 15 digits"},
        {u"MIN(MAX(1;2);3)", "2", "MAX is resolved before MIN"},
        {u"MAX(5)", "Exception: São necessários dois argumentos para calcular a função.", "one argument"},
        {u"MAX(MIN(1;2);3)", "Exception: São necessários dois argumentos para calcular a função.",
         "the first ; is the inner one"},
        {u"Y*3", "Exception: Variável 'Y' não existe.", "no such variable"},
        {u"SQR(-1)", "Exception: Variável 'NAN' não existe.", "no number is a name"},
        {u"LN(Y)+SQR(Z)", "Exception: Variável 'Z' não existe.", "SQR is resolved first"},
        {u"2)*3", "EConvertError: '2)' não é um valor de ponto flutuante válido", "a parenthesis too many"},
        {u"0,001*0,01", "EConvertError: '1E' não é um valor de ponto flutuante válido", "1E-5: the minus subtracts"},
        {u"10000000*1000000000", "1E16", "no minus in the exponent"},
    };
    for (const TCaso& c : casos) EXPECT_EQ(Calcular(c.Formula), c.Esperado) << ParaUtf8(c.Formula) << ": " << c.Porque;
    EXPECT_FALSE(std::signbit(TOryUtilsFormulas().Calcular(u"-"))) << "a lone minus is 0, not -0";
}

TEST(Formulas, AjusteDosValores) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    TOryUtilsFormulas formula;
    formula.AdicionarVariavel(u"Taxa", 0.127L);
    formula.SetTipoAjusteValor(maMatematico);
    EXPECT_EQ(formula.Calcular(u"10/3"), 3.33L);
    EXPECT_EQ(formula.Calcular(u"100*taxa"), 13) << "variables too";
    formula.SetTipoAjusteValor(maTruncamento);
    EXPECT_EQ(formula.Calcular(u"2/3"), 0.66L);
    EXPECT_EQ(formula.Calcular(u"100*taxa"), 12);
    formula.SetCasasDecimais(3);
    EXPECT_EQ(formula.Calcular(u"100*taxa"), 12.7L);
    formula.SetTipoAjusteValor(maParaCima);
    EXPECT_EQ(formula.AjustarValorVariavel(1.23456L), 1.23456L) << "only two methods adjust";
}

TEST(Formulas, EstadoEntreAvaliacoes) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    TOryUtilsFormulas formula;
    formula.AdicionarVariaveis({u"a", u"B"}, {1, 2.5L});
    formula.SetExpressao(u"SQR(4) + A*b");
    EXPECT_EQ(formula.GetValor(), 4.5L);
    EXPECT_EQ(formula.GetExpressaoResolvida(), u"2+1*2,5");
    formula.AdicionarVariavel(u"A", 3);
    EXPECT_EQ(formula.GetVariaveis(), (std::vector<std::u16string>{u"A=3", u"B=2,5"}));
    formula.SetExpressao(u"SQR(4) + A*b");
    EXPECT_EQ(formula.GetValor(), 4.5L) << "the same text evaluates nothing";
    formula.SetExpressao(u"A*b");
    EXPECT_EQ(formula.GetValor(), 7.5L);
    EXPECT_THROW(formula.SetExpressao(u"A*C"), Exception);
    EXPECT_EQ(formula.GetExpressao(), u"A*C");
    EXPECT_EQ(formula.GetValor(), 7.5L);
    EXPECT_THROW(formula.AdicionarVariaveis({u"D"}, {}), Exception);

    formula.SetVariaveis({u"nome = 1 2", u"NOME=9", u"sem sinal", u"ruim=x"});
    EXPECT_EQ(formula.Calcular(u"Nome"), 12) << "blanks go, the first of equal names counts";
    EXPECT_THROW(formula.Calcular(u"ruim"), EConvertError);
    formula.LimparVariaveis();
    EXPECT_EQ(formula.GetExpressaoResolvida(), u"");
    EXPECT_THROW(formula.Calcular(u"nome"), Exception);

    formula.SetValor(1.5L);
    EXPECT_EQ(formula.GetExpressao(), u"1,5");
    formula.SetValor(0);
    EXPECT_EQ(formula.GetExpressao(), u"");
}

TEST(Formulas, PecasDosPassos) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    using F = TOryUtilsFormulas;
    EXPECT_EQ(F::GetPosOperador(ocSubtracao, u"-2*-3-1"), 6U);
    EXPECT_EQ(F::GetPosOperador(ocSoma, u"-2*-3-1"), 0U);
    EXPECT_EQ(F::GetPrimeiroArgumento(u"-2*-3-1", 6), u"-3");
    EXPECT_EQ(F::GetSegundoArgumento(u"-2*-3-1", 3), u"-3");
    EXPECT_EQ(F::GetArgumentos(u"1;2;3"), std::pair(std::u16string(u"1"), std::u16string(u"2;3")));
    F formula;
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

TEST(Formulas, ComoAReescrita) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    TGerador gerador(semente);
    TFormatSettings ponto = BuscarFormatosBrasileiros();
    std::swap(ponto.DecimalSeparator, ponto.ThousandSeparator);
    int valores = 0;
    for (int i = 0; i < 24'000; ++i) {
        const bool brasileiro = i % 8 != 0;
        const TFormatosTemporarios formatos(brasileiro ? BuscarFormatosBrasileiros() : ponto);
        TFormulaReescrita reescrita;
        TOryUtilsFormulas formula;
        reescrita.Ajuste = i % 3 ? maNenhum : static_cast<TMetodoArredondamento>(gerador.Sortear(3));
        formula.SetTipoAjusteValor(reescrita.Ajuste);
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
        const auto calculado = EmOutraAritmetica(static_cast<std::size_t>(i),
                                                 [&] { return Descrever([&] { return formula.Calcular(texto); }); });
        ASSERT_EQ(calculado, esperado) << ParaUtf8(texto);
        if (esperado.find(':') != std::string::npos) continue;
        ++valores;
        ASSERT_EQ(formula.GetExpressaoResolvida(), reescrita.Resolvida) << ParaUtf8(texto);
    }
    EXPECT_GT(valores, 6'000);
    EXPECT_LT(valores, 22'000);
}

TEST(Formulas, TextosEnormes) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
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

TEST(Formulas, VariaveisSemFim) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    TOryUtilsFormulas formula;
    formula.SetVariaveis({u"E20=1E20", u"E=1E-7", u"E16=5", u"A=1E16"});
    EXPECT_EQ(formula.Calcular(u"A+1"), 16) << "1E16 is 1 and the variable E16";
    for (const auto* texto : {u"2*E20", u"E+E"})
        EXPECT_EQ(Descrever([&] { return formula.Calcular(texto); }), "Exception: Variáveis da fórmula sem fim.");
}

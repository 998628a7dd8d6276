#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace OryUtils {

/// The functions of formulas, in the order in which they are resolved.
enum TFuncCalc : std::uint8_t { fcSQR, fcLOG, fcLN, fcINT, fcABS, fcMAX, fcMIN, fcEXP };
/// The operators of formulas, in the order in which they are resolved.
enum TOperCalc : std::uint8_t { ocMultiplicacao, ocDivisao, ocSoma, ocSubtracao };

/// Evaluates arithmetic formulas as users type them, with named variables:
///
///     TOryUtilsFormulas formula;
///     formula.AdicionarVariavel(u"Salario", 1500);
///     formula.SetExpressao(u"MAX(salario*0,11; 88,25)");
///     formula.GetValor();              // 165
///     formula.GetExpressaoResolvida(); // "165"
///
/// An evaluation rewrites the text of the formula: each piece is replaced by its value, written as text, until one
/// number is left. The steps, in this order:
/// 1. The text is put in upper case, and every blank and every "." is removed. The decimal separator is that of the
///    process-wide formats, a comma.
/// 2. The functions are resolved in the order of TFuncCalc, and each evaluates its arguments as formulas. SQR is the
///    square root, LOG the decimal and LN the natural logarithm, INT drops the fraction, ABS drops the sign;
///    MAX(a;b), MIN(a;b) and EXP(a;b), a to the power b, have two arguments. The first ";" separates the arguments, so
///    the first argument cannot hold a two-argument function of the same or of a later kind.
/// 3. Each variable is replaced by its value, rounded as TipoAjusteValor says.
/// 4. Each "--" becomes "+".
/// 5. The parentheses are resolved, the inner ones first.
/// 6. The operators are resolved: every "*", then every "/", every "+", every "-". So "8/2*2" is 2 and "10-2+3" is 5.
///    A "-" at the start, or right behind one of "*/+", is the sign of a number.
///
/// What follows from rewriting text:
/// - each result is rounded as TipoAjusteValor says and keeps 15 significant digits;
/// - a result below 0,0001 is written with an exponent ("1E-5"). The operators do not understand it: the evaluation
///   ends in EConvertError unless the result is rounded away;
/// - the value of a parenthesis joins the text around it: "2(3)" is 23;
/// - a missing ")" counts as standing at the end; x/0 is 0; an operand that is missing or only "-" counts 0.
///
/// Errors: Exception "São necessários dois argumentos para calcular a função.", Exception "Variável 'X' não existe.",
/// Exception "Variáveis da fórmula sem fim." when the values of variables name other variables without end, and
/// EConvertError for an operand that is no number.
/// The time grows with the length of the formula; only memory limits the depth. One object belongs to one thread at a
/// time.
class ORY_API TOryUtilsFormulas {
public:
    /// Starts without variables, with 2 places and no adjustment.
    TOryUtilsFormulas() = default;
    TOryUtilsFormulas(const TOryUtilsFormulas&) = delete;
    TOryUtilsFormulas& operator=(const TOryUtilsFormulas&) = delete;

    const std::u16string& GetExpressao() const noexcept { return FExpressao; }
    /// Keeps AExpressao and evaluates it, unless it is the present one. After an error the new text stays with the old
    /// value. Set the formula after its variables: changing them evaluates nothing.
    void SetExpressao(std::u16string_view AExpressao);

    Extended GetValor() const noexcept { return FValor; }
    /// Keeps AValor, and its text (none for 0) as the formula; evaluates nothing.
    void SetValor(Extended AValor);

    /// The variables, one line for each: name, "=", value as text.
    const std::vector<std::u16string>& GetVariaveis() const noexcept { return FVariaveis; }
    /// Replaces the variables by the lines of AVariaveis without their blanks. Of equal names the first counts.
    void SetVariaveis(const std::vector<std::u16string>& AVariaveis);
    /// Adds a variable or gives a new value to the one of that name; case plays no part. No formula can use a variable
    /// whose name holds a blank, since the blanks of a formula are removed: "Salário base" never matches.
    void AdicionarVariavel(std::u16string_view ANome, Extended AValor);
    /// Adds each pair in order. Raises Exception when the lists differ in length; nothing is added then.
    void AdicionarVariaveis(const std::vector<std::u16string>& ANomes, const std::vector<Extended>& AValores);
    /// Removes the variables and empties ExpressaoResolvida.
    void LimparVariaveis();

    std::uint8_t GetCasasDecimais() const noexcept { return FCasasDecimais; }
    void SetCasasDecimais(std::uint8_t ACasas) noexcept { FCasasDecimais = ACasas; }
    TMetodoArredondamento GetTipoAjusteValor() const noexcept { return FTipoAjusteValor; }
    void SetTipoAjusteValor(TMetodoArredondamento ATipo) noexcept { FTipoAjusteValor = ATipo; }

    /// The formula of the last evaluation with numbers in the place of functions and variables. An evaluation that
    /// fails before it comes that far leaves it as it was.
    const std::u16string& GetExpressaoResolvida() const noexcept { return FExpressaoResolvida; }

    /// Evaluates AExpressao without keeping it; sets ExpressaoResolvida.
    Extended Calcular(std::u16string_view AExpressao);
    /// AValor rounded to CasasDecimais by TipoAjusteValor: maMatematico looks at one digit more, maTruncamento cuts,
    /// the other methods leave AValor unchanged.
    Extended AjustarValorVariavel(Extended AValor) const;

    /// Without any " ".
    static std::u16string RetirarEspacosEmBranco(std::u16string_view ATexto);
    static std::vector<std::u16string> RetirarEspacosEmBranco(const std::vector<std::u16string>& ALinhas);

    // The steps of an evaluation. Each works on the text that the step before leaves.

    /// Steps 1 and 2: upper case, no blanks, no points, no functions.
    void ResolverFuncoes(std::u16string& AFormula);
    void ResolverVariaveis(std::u16string& AFormula);
    void ResolverDuploSinalNegativo(std::u16string& AFormula);
    void ResolverParenteses(std::u16string& AFormula);
    /// The value of a text without parentheses.
    Extended CalcularExpressao(std::u16string_view ATexto);

    // Pieces of the steps. Positions are 1-based.

    /// Whether ACaractere starts a name: no operator, digit, parenthesis or separator of the process-wide formats.
    static bool EhVariavel(char16_t ACaractere);
    /// Whether the character at APosicao is an operator: any of "*/+", or a "-" with something other than these before.
    static bool EhOperador(std::u16string_view ATexto, std::size_t APosicao);
    /// The first position where AOperador stands as an operator; 0 when there is none.
    static std::size_t GetPosOperador(TOperCalc AOperador, std::u16string_view ATexto);
    /// The operand text on the left, and on the right, of the operator at APosicao.
    static std::u16string GetPrimeiroArgumento(std::u16string_view ATexto, std::size_t APosicao);
    static std::u16string GetSegundoArgumento(std::u16string_view ATexto, std::size_t APosicao);
    /// The two arguments of a function, parted at the first ";". Raises Exception when there is none.
    static std::pair<std::u16string, std::u16string> GetArgumentos(std::u16string_view ATexto);
    static Extended GetSoma(Extended AUm, Extended AOutro) noexcept;
    static Extended GetSubtracao(Extended AUm, Extended AOutro) noexcept;
    static Extended GetMultiplicacao(Extended AUm, Extended AOutro) noexcept;
    /// 0 when ADivisor is 0.
    static Extended GetDivisao(Extended ADividendo, Extended ADivisor) noexcept;
    static Extended GetInteiro(Extended AValor) noexcept;
    static Extended GetMaximo(Extended AUm, Extended AOutro) noexcept { return AUm >= AOutro ? AUm : AOutro; }
    static Extended GetMinimo(Extended AUm, Extended AOutro) noexcept { return AUm > AOutro ? AOutro : AUm; }
    /// ABase to the power AExpoente.
    static Extended GetExponencial(Extended ABase, Extended AExpoente) noexcept;
    static std::u16string_view GetOperadoresExcetoSubtracao() noexcept { return u"*/+"; }
    static std::u16string_view GetDuploSinalNegativo() noexcept { return u"--"; }

private:
    /// What the text of a variable depends on besides its line.
    struct TRegras {
        TMetodoArredondamento Ajuste = maNenhum;
        std::uint8_t Casas = 0;
        char16_t SeparadorDecimal = 0;
        bool operator==(const TRegras&) const = default;
    };
    struct TVariavel {
        std::size_t Linha;
        TRegras Regras{};  // those that Texto was made with; no separator before that
        std::u16string Texto{};
    };
    void IndexarVariavel(std::size_t ALinha);
    const std::u16string& BuscarTextoDaVariavel(std::u16string_view ANome);
    Extended CalcularSemNomes(std::u16string& AFormula);

    std::u16string FExpressao;
    Extended FValor = 0;
    std::u16string FExpressaoResolvida;
    std::uint8_t FCasasDecimais = 2;
    TMetodoArredondamento FTipoAjusteValor = maNenhum;
    std::vector<std::u16string> FVariaveis;
    std::map<std::u16string, TVariavel> FVariavelPorNome;  // the name in lower case
};

}  // namespace OryUtils

#pragma once

#include "oryutils/text/interno/FormulaDireta.hpp"
#include "oryutils/text/interno/FormulaExpressao.hpp"
#include "oryutils/text/interno/FormulaFuncoes.hpp"
#include "oryutils/text/interno/FormulaVariaveis.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// An evaluation: in one reading where that is enough, otherwise step by step. Each step runs once over its text;
/// parentheses and functions are kept on stacks of their own. The working texts stay between evaluations, so that only
/// a longer formula allocates.
class TAvaliador {
public:
    TVariaveis Variaveis;

    /// What holds for the steps that follow; forgets the error of those before.
    void SetRegras(const TRegrasFormula& ARegras) noexcept {
        FErro.Motivo = meNenhum;
        FRegras = ARegras;
        Variaveis.SetRegras(ARegras);
    }
    const TRegrasFormula& GetRegras() const noexcept { return FRegras; }

    /// AResolvida, when given, takes the text in which functions and variables are numbers.
    Extended Calcular(std::u16string_view AFormula, std::u16string* AResolvida);

    // Each asks for no error before it, sets the one it meets, and answers its text when it finds nothing to do,
    // otherwise a working text that holds until the next step of the same kind.
    std::u16string_view ResolverFuncoes(std::u16string_view AFormula);
    std::u16string_view ResolverVariaveis(std::u16string_view AFormula);
    std::u16string_view ResolverDuploSinalNegativo(std::u16string_view AFormula);
    std::u16string_view ResolverParenteses(std::u16string_view AFormula);
    Extended CalcularExpressao(std::u16string_view ATexto) { return FExpressao.Calcular(ATexto, FRegras, FErro); }

    /// Raises the error of the last step, when it met one.
    void LancarErro() const {
        if (FErro.Motivo != meNenhum) FErro.Lancar();
    }

private:
    /// A function call whose ")" has not come yet. Positions are those of the text under construction.
    struct TAberta {
        TFuncCalc Funcao;
        bool FuncaoAntesDoSeparador = false;
        bool ErroAntesDoSeparador = false;
        bool Erro = false;
        std::size_t Chamada = 0;
        std::size_t Inicio = 0;
        std::size_t Separador = std::u16string_view::npos;
        std::size_t Parenteses = 0;
    };

    char16_t* ReservarSemFuncoes(std::size_t AQuantidade);
    void AbrirFuncao(TFuncCalc AFuncao);
    void FecharFuncao();
    Extended CalcularSemFuncoes(std::u16string_view AFormula, std::u16string* AResolvida);
    bool SubstituirVariavel(std::u16string_view ANome, std::size_t ATamanhoDaFormula);
    bool FecharParentese();

    TRegrasFormula FRegras;
    TErroFormula FErro;
    TFormulaDireta FDireta{Variaveis};
    TExpressao FExpressao;
    TChamadas FChamadas;
    std::vector<TAberta> FAbertas;
    std::vector<std::size_t> FParenteses;
    std::vector<std::u16string_view> FRestos;
    std::u16string FSemFuncoes;  // working room; the text is the first FEscritos
    std::size_t FEscritos = 0;
    std::u16string FSemVariaveis;
    std::u16string FSemDuplos;
    std::u16string FSemParenteses;
};

}  // namespace OryUtils::Interno

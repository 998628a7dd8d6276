#pragma once

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/text/interno/FormulaDecimal.hpp"
#include "oryutils/text/interno/FormulaErro.hpp"
#include "oryutils/text/interno/FormulaRegras.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// The hash of a name, one character after the other; case plays no part.
class TDispersao {
public:
    void Juntar(char16_t c) noexcept { JuntarMinuscula(Minuscula(c)); }
    void JuntarMinuscula(char16_t c) noexcept { FValor = (FValor ^ c) * 1099511628211U; }
    std::uint64_t Valor() const noexcept { return FValor ^ FValor >> 32; }

    static char16_t Minuscula(char16_t c) noexcept {
        if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(c + 32);
        return c < 128 ? c : MinusculaDe(c);
    }

private:
    std::uint64_t FValor = 14695981039346656037U;
};

/// The variables of a formula: the lines as the caller sees them, an index by name, and the text that stands for each
/// in formulas, made at its first use.
class TVariaveis {
public:
    const std::vector<std::u16string>& GetLinhas() const noexcept { return FLinhas; }
    void SetLinhas(std::vector<std::u16string> ALinhas);
    void Definir(std::u16string_view ANome, Extended AValor, char16_t ASeparador);
    void Limpar();

    /// The texts are made again when the rules are others.
    void SetRegras(const TRegrasFormula& ARegras) noexcept {
        if (FRegras == ARegras) return;
        FRegras = ARegras;
        ++FGeracao;
    }
    /// The text of the value, adjusted; holds until the variables or the rules change. Empty, with AErro set, when
    /// there is no such variable or its value is no number.
    std::u16string_view BuscarTexto(std::u16string_view ANome, TErroFormula& AErro);

    /// What stands for a variable in formulas.
    struct TValor {
        std::uint8_t Tamanho = 0;
        std::array<char16_t, CTamanhoMaximoExtended> Texto{};
        std::optional<TDecimal> Decimal{};  // the text as a number; none when it has an exponent
    };
    /// None when there is no such variable or its value is no number. ADispersao is that of ANome. Holds as BuscarTexto
    /// does.
    const TValor* BuscarValor(std::u16string_view ANome, TDispersao ADispersao) {
        TEntrada* const entrada = Buscar(ANome, ADispersao.Valor());
        return entrada && (entrada->Geracao == FGeracao || Preparar(*entrada)) ? &entrada->Valor : nullptr;
    }

private:
    struct TEntrada {
        std::size_t Linha = 0;
        std::uint64_t Dispersao = 0;  // of the name
        std::uint64_t Geracao = 0;    // that of the value
        TValor Valor{};
    };
    TEntrada* Buscar(std::u16string_view ANome, std::uint64_t ADispersao) noexcept;
    TEntrada* Buscar(std::u16string_view ANome) noexcept;
    bool Preparar(TEntrada& AEntrada) const;
    void Indexar(std::size_t ALinha);
    void MontarTabela();

    std::vector<std::u16string> FLinhas;
    std::vector<TEntrada> FEntradas;
    std::vector<std::uint32_t> FTabela;  // by name: one more than the place in FEntradas, 0 where there is none
    TRegrasFormula FRegras;
    std::uint64_t FGeracao = 1;
};

}  // namespace OryUtils::Interno

#pragma once

#include "oryutils/text/interno/FormulaErro.hpp"
#include "oryutils/text/interno/FormulaRegras.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OryUtils::Interno {

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

private:
    struct TDispersao {
        using is_transparent = void;
        std::size_t operator()(std::u16string_view ANome) const noexcept;
    };
    struct TIgualdade {
        using is_transparent = void;
        bool operator()(std::u16string_view AUm, std::u16string_view AOutro) const noexcept;
    };
    struct TEntrada {
        std::size_t Linha = 0;
        std::uint64_t Geracao = 0;  // that of the text
        std::uint8_t Tamanho = 0;
        std::array<char16_t, CTamanhoMaximoExtended> Texto{};
    };
    void Indexar(std::size_t ALinha);

    std::vector<std::u16string> FLinhas;
    std::unordered_map<std::u16string, TEntrada, TDispersao, TIgualdade> FIndice;
    TRegrasFormula FRegras;
    std::uint64_t FGeracao = 1;
};

}  // namespace OryUtils::Interno

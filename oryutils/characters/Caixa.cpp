#include "oryutils/characters/Caixa.hpp"

#include <algorithm>
#include <array>

namespace OryUtils {
namespace {

// A run of upper-case letters, first and last included, and how far above each one its lower-case partner stands.
struct TFaixa {
    char16_t Primeira;
    char16_t Ultima;
    char16_t Distancia;
    char16_t Passo = 1;  // 2: upper and lower case take turns
};

// Pairs of the Unicode character database (simple case mappings, one to one). A later block may have its lower-case
// letters below the upper-case ones: the distance wraps around.
// clang-format off
constexpr std::array CFaixas{
    TFaixa{0x0041, 0x005A, 32},       // A..Z
    TFaixa{0x00C0, 0x00D6, 32},       // À..Ö
    TFaixa{0x00D8, 0x00DE, 32},       // Ø..Þ, the multiplication sign between them left out
    TFaixa{0x0100, 0x012E, 1, 2},     // Ā..Į
    TFaixa{0x0132, 0x0136, 1, 2},     // Ĳ..Ķ
    TFaixa{0x0139, 0x0147, 1, 2},     // Ĺ..Ň
    TFaixa{0x014A, 0x0176, 1, 2},     // Ŋ..Ŷ
    TFaixa{0x0178, 0x0178, 0xFF87},   // Ÿ, partner of U+00FF
    TFaixa{0x0179, 0x017D, 1, 2},     // Ź..Ž
    TFaixa{0x0386, 0x0386, 38},       // Ά
    TFaixa{0x0388, 0x038A, 37},       // Έ..Ί
    TFaixa{0x038C, 0x038C, 64},       // Ό
    TFaixa{0x038E, 0x038F, 63},       // Ύ, Ώ
    TFaixa{0x0391, 0x03A1, 32},       // Α..Ρ
    TFaixa{0x03A3, 0x03AB, 32},       // Σ..Ϋ
    TFaixa{0x0400, 0x040F, 80},       // Ѐ..Џ
    TFaixa{0x0410, 0x042F, 32},       // А..Я
    TFaixa{0x0460, 0x0480, 1, 2},     // historic Cyrillic
    TFaixa{0x048A, 0x04BE, 1, 2},     // Cyrillic of other languages
    TFaixa{0x04C0, 0x04C0, 15},
    TFaixa{0x04C1, 0x04CD, 1, 2},
    TFaixa{0x04D0, 0x052E, 1, 2},
    TFaixa{0x1E00, 0x1E94, 1, 2},     // Latin with further accents
    TFaixa{0x1EA0, 0x1EFE, 1, 2},
    TFaixa{0xFF21, 0xFF3A, 32},       // full-width A..Z
};
// clang-format on

// The offset of ACaractere in the run that starts at APrimeira when it is one of its letters.
constexpr bool Pertence(const TFaixa& AFaixa, char16_t APrimeira, char16_t ACaractere) {
    const auto desvio = static_cast<char16_t>(ACaractere - APrimeira);
    return desvio <= AFaixa.Ultima - AFaixa.Primeira && desvio % AFaixa.Passo == 0;
}

constexpr char16_t Minuscula(char16_t ACaractere) {
    for (const TFaixa& faixa : CFaixas) {
        if (ACaractere < faixa.Primeira) break;
        if (Pertence(faixa, faixa.Primeira, ACaractere)) return static_cast<char16_t>(ACaractere + faixa.Distancia);
    }
    return ACaractere;
}

constexpr char16_t Maiuscula(char16_t ACaractere) {
    for (const TFaixa& faixa : CFaixas)
        if (Pertence(faixa, static_cast<char16_t>(faixa.Primeira + faixa.Distancia), ACaractere))
            return static_cast<char16_t>(ACaractere - faixa.Distancia);
    return ACaractere;
}

// Nearly all characters of a Brazilian text: answered from a table.
constexpr std::size_t CRapidos = 0x180;

template <char16_t (*ARegra)(char16_t)>
constexpr auto Tabelar() {
    std::array<char16_t, CRapidos> tabela{};
    for (std::size_t i = 0; i < CRapidos; ++i) tabela[i] = ARegra(static_cast<char16_t>(i));
    return tabela;
}

constexpr auto CMinusculas = Tabelar<Minuscula>();
constexpr auto CMaiusculas = Tabelar<Maiuscula>();

std::u16string Trocar(std::u16string_view ATexto, char16_t (*ARegra)(char16_t) noexcept) {
    std::u16string resultado(ATexto);
    std::transform(resultado.begin(), resultado.end(), resultado.begin(), ARegra);
    return resultado;
}

}  // namespace

char16_t MinusculaDe(char16_t ACaractere) noexcept {
    return ACaractere < CRapidos ? CMinusculas[ACaractere] : Minuscula(ACaractere);
}

char16_t MaiusculaDe(char16_t ACaractere) noexcept {
    return ACaractere < CRapidos ? CMaiusculas[ACaractere] : Maiuscula(ACaractere);
}

std::u16string MinusculaDe(std::u16string_view ATexto) { return Trocar(ATexto, MinusculaDe); }

std::u16string MaiusculaDe(std::u16string_view ATexto) { return Trocar(ATexto, MaiusculaDe); }

bool IguaisIgnorandoCaixa(std::u16string_view AUm, std::u16string_view AOutro) noexcept {
    return std::equal(AUm.begin(), AUm.end(), AOutro.begin(), AOutro.end(),
                      [](char16_t a, char16_t b) { return MinusculaDe(a) == MinusculaDe(b); });
}

}  // namespace OryUtils

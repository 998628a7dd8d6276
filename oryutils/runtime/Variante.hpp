#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <compare>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace OryUtils {

struct TNaoAtribuido {
    bool operator==(const TNaoAtribuido&) const = default;
};
struct TNulo {
    bool operator==(const TNulo&) const = default;
};

/// An amount of money: a decimal number with exactly four decimals. TMoeda::De(12.5) is 125000 ten-thousandths.
struct TMoeda {
    std::int64_t DezMilesimos = 0;

    /// AValor rounded to four decimals (halves away from zero); raises EConvertError when it does not fit.
    static ORY_API TMoeda De(Extended AValor);
    auto operator<=>(const TMoeda&) const = default;
};

class Variant;

/// The elements of an array.
class TVetorDeVariantes {
public:
    /// Arrays may hold arrays, so many levels deep.
    static constexpr int CMaiorNivel = 64;

    /// Raises EVariantError beyond CMaiorNivel.
    ORY_API explicit TVetorDeVariantes(std::vector<Variant> AItens);

    const std::vector<Variant>& GetItens() const noexcept { return FItens; }
    /// 1 for an array without arrays in it.
    int GetNivel() const noexcept { return FNivel; }
    ORY_API bool operator==(const TVetorDeVariantes& AOutro) const;

private:
    std::vector<Variant> FItens;
    int FNivel = 1;
};

/// A value whose kind is known only at run time. Starts unassigned.
class Variant {
public:
    using TValor = std::variant<TNaoAtribuido, TNulo, bool, std::int64_t, Extended, TMoeda, TDateTime, std::u16string,
                                TVetorDeVariantes>;

    Variant() = default;
    Variant(TNulo) : FValor(TNulo{}) {}
    Variant(std::same_as<bool> auto AValor) : FValor(AValor) {}
    Variant(int AValor) : FValor(std::int64_t{AValor}) {}
    Variant(std::int64_t AValor) : FValor(AValor) {}
    Variant(double AValor) : FValor(Extended{AValor}) {}
    Variant(Extended AValor) : FValor(AValor) {}
    Variant(TMoeda AValor) : FValor(AValor) {}
    Variant(TDateTime AValor) : FValor(AValor) {}
    Variant(std::u16string AValor) : FValor(std::move(AValor)) {}
    Variant(std::u16string_view AValor) : FValor(std::u16string(AValor)) {}
    Variant(const char16_t* AValor) : FValor(std::u16string(AValor)) {}
    /// A one-dimensional array; raises EVariantError when it nests too deep.
    Variant(std::vector<Variant> AItens) : FValor(TVetorDeVariantes(std::move(AItens))) {}

    const TValor& GetValor() const noexcept { return FValor; }
    /// The text when it is one, else null.
    const std::u16string* GetTexto() const noexcept { return std::get_if<std::u16string>(&FValor); }
    /// The elements when it is an array, else null.
    const std::vector<Variant>* GetItens() const noexcept {
        const auto* vetor = std::get_if<TVetorDeVariantes>(&FValor);
        return vetor ? &vetor->GetItens() : nullptr;
    }
    bool operator==(const Variant&) const = default;

private:
    TValor FValor;
};

/// The ordinary text of a value, under the process-wide formats: integers in digits; floats with up to 15 digits and
/// the decimal separator ("1234,5", see ExtendedParaTexto); money with the decimals it has, four at most ("12,5");
/// "True", "False"; dates by the short date pattern and, unless midnight, the long time pattern; a text as it is; null
/// and unassigned as the empty text. An array raises EVariantTypeCastError.
ORY_API std::u16string VarianteParaTexto(const Variant& AValor);
/// As VarianteParaTexto, appended to ADestino.
ORY_API void AnexarVariante(std::u16string& ADestino, const Variant& AValor);

/// The sum of two values. A sum with null is null; unassigned adds nothing; texts are joined. Otherwise it is a sum of
/// numbers, in which a text counts as the number that it shows, true as -1, and the result is a date when one of both
/// is, else money, else an integer when both are and it fits, else a float. A text that shows no number and an array
/// raise EVariantTypeCastError; so does u"%" + 5.
ORY_API Variant operator+(const Variant& AUm, const Variant& AOutro);

}  // namespace OryUtils

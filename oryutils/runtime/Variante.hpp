#pragma once

#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <cstdint>
#include <string>
#include <variant>

namespace OryUtils {

struct TNaoAtribuido {
    bool operator==(const TNaoAtribuido&) const = default;
};
struct TNulo {
    bool operator==(const TNulo&) const = default;
};

/// A value whose kind is known only at run time. Starts unassigned.
class Variant {
public:
    using TValor = std::variant<TNaoAtribuido, TNulo, bool, std::int64_t, Extended, TDateTime, std::u16string>;

    Variant() = default;
    Variant(TNulo) : FValor(TNulo{}) {}
    Variant(bool AValor) : FValor(AValor) {}
    Variant(int AValor) : FValor(std::int64_t{AValor}) {}
    Variant(std::int64_t AValor) : FValor(AValor) {}
    Variant(double AValor) : FValor(Extended{AValor}) {}
    Variant(Extended AValor) : FValor(AValor) {}
    Variant(TDateTime AValor) : FValor(AValor) {}
    Variant(std::u16string AValor) : FValor(std::move(AValor)) {}
    Variant(std::u16string_view AValor) : FValor(std::u16string(AValor)) {}
    Variant(const char16_t* AValor) : FValor(std::u16string(AValor)) {}

    const TValor& GetValor() const noexcept { return FValor; }

private:
    TValor FValor;
};

}  // namespace OryUtils

#pragma once

#include "oryutils/registry_numbers/MotivoRecusa.hpp"

#include <bitset>
#include <optional>
#include <string>
#include <string_view>

/// The text of a Pix code: fields of two digits of number, two of length, and the value, one after the other.
namespace OryUtils::Interno {

/// The fields of a text, in order.
class TCamposBrCode {
public:
    struct TCampo {
        int Numero;
        std::u16string_view Valor;
    };
    explicit TCamposBrCode(std::u16string_view ATexto) noexcept : FResto(ATexto) {}

    /// The next one; none at the end, and where the text goes wrong: EstahCerto tells which.
    std::optional<TCampo> Proximo() noexcept;
    /// Whether all fields were read, none of them twice.
    bool EstahCerto() const noexcept { return FCerto && FResto.empty(); }

private:
    std::u16string_view FResto;
    std::bitset<100> FVistos;
    bool FCerto = true;
};

/// The value of a field of ATexto; none where it is missing or the text is not made of fields.
std::optional<std::u16string_view> BuscarCampo(std::u16string_view ATexto, int ANumero) noexcept;
/// The first of the fields 26 to 51 that is one of Pix: its inside.
std::optional<std::u16string_view> BuscarCampoPix(std::u16string_view ATexto) noexcept;
TMotivoRecusa ConferirBrCode(std::u16string_view ATexto) noexcept;

std::string MontarCampo(std::string_view ANumero, std::string_view AValor);
/// CRC-16 of polynomial 1021 and start FFFF, four hexadecimal digits.
std::string CalcularCrc(std::string_view ATexto);

}  // namespace OryUtils::Interno

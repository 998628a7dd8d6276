#pragma once

#include "oryutils/OryExport.hpp"

#include <array>
#include <cstddef>
#include <string_view>

namespace OryUtils {

enum TMotivoRecusa : int;  // 0 is valid; the names are internal

/// Checks the registry number of an accountant (CRC): digit, unit in two letters, six digits, letter of the kind of
/// registration (O, T, S or P), check digit. Letters are told apart by case. Never allocates.
/// Example:
///   TOryUtilsValidacoesCRC crc;
///   crc.SetCRC(u"1SP123456O5");
///   crc.Validar();  // crc.GetValido() tells
class ORY_API TOryUtilsValidacoesCRC {
public:
    /// ACRC  the eleven characters, without punctuation; of 12 or more the first 11 are kept.
    void SetCRC(std::u16string_view ACRC) noexcept;
    /// The text as kept.
    std::u16string_view GetCRC() const noexcept { return {FCRC.data(), FTamanho}; }

    /// Sets the verdict. Eleven characters are required. A unit that does not exist counts as "00", another letter of
    /// the kind and any other character that should be a digit as 0, so such a number may still be valid.
    void Validar() noexcept;
    /// The verdict of the last Validar; false before.
    bool GetValido() const noexcept { return FMotivo == TMotivoRecusa{0}; }
    /// The reason behind it.
    TMotivoRecusa GetMotivo() const noexcept { return FMotivo; }

private:
    static constexpr std::size_t CTamanho = 11;

    std::array<char16_t, CTamanho> FCRC{};
    std::size_t FTamanho = 0;
    TMotivoRecusa FMotivo{1};  // not valid before Validar says so
};

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace OryUtils {

enum TMotivoRecusa : int;  // 0 is valid; the names are internal

/// Checks one state registration (IE) against the rule of its federative unit (UF).
/// Lives for one validation: SetUF, SetIE, Validar, GetValido; it may be used again with new values. Never allocates.
/// Example:
///   TOryUtilsValidacoesIE ie;
///   ie.SetUF(u"RS");
///   ie.SetIE(u"2243658792");
///   ie.Validar();  // ie.GetValido() is true
class ORY_API TOryUtilsValidacoesIE {
public:
    /// AUF  two letters in either case, or "EX" (export). Any other text is a unit that refuses every IE.
    void SetUF(std::u16string_view AUF) noexcept;

    /// AIE  bare digits with their leading zeros; "P" and twelve digits for a rural producer of SP; or any text with
    /// "ISENT" in it. Letters count in either case. Any other character (punctuation, blank) empties the IE.
    /// Every rule refuses an IE of 15 or more characters; no more than the first 15 are kept.
    void SetIE(std::u16string_view AIE) noexcept;

    /// The IE as kept. Validar_BA and Validar_MT complete its zeros on the left.
    std::u16string_view GetIE() const noexcept { return {FIE.Texto.data(), FIE.Tamanho}; }
    std::u16string_view GetUF() const noexcept { return {FUF.Texto.data(), FUF.Tamanho}; }

    /// The verdict of the last Validar or Validar_XX; false before.
    bool GetValido() const noexcept { return FMotivo == TMotivoRecusa{0}; }
    /// The reason behind that verdict.
    TMotivoRecusa GetMotivo() const noexcept { return FMotivo; }

    /// True when the IE given to SetIE says "ISENTO" or "ISENTA" (exempt) somewhere.
    bool Isenta() const noexcept { return FIsenta; }

    /// Sets the verdict: false for an empty IE, true for an exempt one whatever the UF, false for zeros alone and for
    /// 15 or more characters, otherwise as the rule of the UF says.
    void Validar() noexcept;

    /// The verdict of a new object after SetUF, SetIE and Validar.
    static bool Validou(std::u16string_view AIE, std::u16string_view AUF) noexcept;

    /// Converts ATexto (the kept IE when not given) to a number, 0 when it is not one, and writes it with at least as
    /// many digits as AModelo has zeros, at most 20. The result becomes the working base and stays until the next call.
    /// Example:  FormatarBase(u"00000", u"42")  ->  "00042"
    std::u16string_view FormatarBase(std::u16string_view AModelo) noexcept { return FormatarBase(AModelo, GetIE()); }
    std::u16string_view FormatarBase(std::u16string_view AModelo, std::u16string_view ATexto) noexcept;

    /// Sum of digit k times weight k over all of APesos, the leftmost digit first, of the working base or of ABase.
    /// Digits that ABase does not have count 0.
    int SomarBase(std::span<const int> APesos) const noexcept { return SomarBase(APesos, GetBase()); }
    int SomarBase(std::span<const int> APesos, std::u16string_view ABase) const noexcept;
    /// SomarBase mod 11.
    int BuscarSomaModulo11(std::span<const int> APesos) const noexcept { return SomarBase(APesos) % 11; }
    int BuscarSomaModulo11(std::span<const int> APesos, std::u16string_view ABase) const noexcept {
        return SomarBase(APesos, ABase) % 11;
    }
    /// The usual check digit of a remainder of 11: 0 when AResto is 0 or 1, else 11 - AResto.
    static int BuscarDigitoPadrao(int AResto) noexcept { return AResto < 2 ? 0 : 11 - AResto; }

    /// The rules of the units. Each sets the verdict for the kept IE, without the tests that Validar makes first.
    void Validar_AC() noexcept;
    void Validar_AL() noexcept;
    void Validar_AM() noexcept;
    void Validar_AP() noexcept;
    void Validar_BA() noexcept;
    void Validar_CE() noexcept;
    void Validar_DF() noexcept;
    void Validar_ES() noexcept;
    void Validar_GO() noexcept;
    void Validar_MA() noexcept;
    void Validar_MG() noexcept;
    void Validar_MS() noexcept;
    void Validar_MT() noexcept;
    void Validar_PA() noexcept;
    void Validar_PB() noexcept;
    void Validar_PE() noexcept;
    void Validar_PI() noexcept;
    void Validar_PR() noexcept;
    void Validar_RJ() noexcept;
    void Validar_RN() noexcept;
    void Validar_RO() noexcept;
    void Validar_RR() noexcept;
    void Validar_RS() noexcept;
    void Validar_SC() noexcept;
    void Validar_SE() noexcept;
    void Validar_SP() noexcept;
    void Validar_TO() noexcept;
    /// Export: valid whatever the IE.
    void Validar_Exportacao() noexcept { FMotivo = TMotivoRecusa{0}; }

private:
    template <std::size_t N>
    struct TTexto {
        std::array<char16_t, N> Texto{};
        std::size_t Tamanho = 0;
    };

    std::u16string_view GetBase() const noexcept { return {FBase.Texto.data(), FBase.Tamanho}; }

    TTexto<15> FIE;
    TTexto<3> FUF;  // a third character marks a text that is no unit
    TTexto<20> FBase;
    bool FIsenta = false;
    TMotivoRecusa FMotivo{1};  // not valid before a rule says so
};

}  // namespace OryUtils

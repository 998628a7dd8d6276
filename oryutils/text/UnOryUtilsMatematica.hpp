#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// How Arredondar rounds. Every method works on the magnitude; the sign comes back at the end.
enum TMetodoArredondamento : std::uint8_t {
    maNenhum,       // the value as it is
    maMatematico,   // half up, one digit after the other: a 5 that a carry made rounds again
    maTruncamento,  // the decimal text cut
    maParaCima,     // away from zero; also moves amounts that already have the places asked for, see Arredondar
    maParaBaixo     // towards zero; the same
};

class TOryUtilsMatematica;

/// An amount of money in Portuguese words, upper case, as printed on cheques, receipts and contracts:
///
///     TConverterPorExtenso extenso;
///     extenso.SetValor(1001.01L);
///     extenso.GetTexto();  // UM MIL E UM REAIS E UM CENTAVO
///
/// The amount is written with two decimals and read group by group; amounts up to 999,999,999,999.99 read right.
/// "DE" comes before the currency for 1, 10 and 100 million and for 1 billion exactly, and for no other amount. The
/// choice between singular and plural looks at the amount without its cents and before rounding: 1.999 is "DOIS REAL".
/// A descendant replaces the wording by its own BuscarValorPorExtenso, and the currency by the two protected names.
class ORY_API TConverterPorExtenso {
public:
    /// Starts at zero: "ZERO REAIS".
    TConverterPorExtenso() = default;

    /// The words for the present amount; what GetTexto keeps. An amount that rounds to 0.00 without being 0 has none.
    virtual std::u16string BuscarValorPorExtenso() const;
    virtual ~TConverterPorExtenso() = default;

    /// The words for a group of one to three digits: "021" is "VINTE E UM", "000" is "". A number outside 0 to 999 has
    /// no words. Raises EConvertError when AGrupo is not a whole number.
    std::u16string TratarGrupo(std::u16string_view AGrupo) const;

    Extended GetValor() const noexcept { return FValor; }
    /// Sets the amount and its text; the same amount again does nothing. Raises Exception below zero ("O valor deve ser
    /// sempre maior ou igual a 0,00") and EConvertError for an infinity or what is not a number; nothing changes then.
    void SetValor(Extended AValor);
    /// The amount in words.
    const std::u16string& GetTexto() const;

protected:
    std::u16string FMoedaNoSingular = u"REAL";
    std::u16string FMoedaNoPlural = u"REAIS";

private:
    friend class TOryUtilsMatematica;

    Extended FValor = 0;
    // None until the first look at a new converter: a constructor could not call the wording of a descendant.
    mutable std::optional<std::u16string> FTexto;
};

/// Small numeric operations. None keeps anything between calls.
class ORY_API TOryUtilsMatematica {
public:
    /// Half up to 2 places, looking at 10: 2.345 gives 2.35.
    static Extended Arredondar(Extended AValor);
    /// Rounds AValor to ACasas decimal places. ACasasAConsiderar matters to maMatematico only: how many decimals it
    /// looks at, rounding them away one by one from the last: 0.1445 to 2 places is 0.15, by way of 0.145. With no more
    /// of them than ACasas none is dropped, and the digits looked at count as ACasas decimals.
    /// maTruncamento cuts the text of the number behind a decimal comma; where the process-wide decimal separator is
    /// not a comma, the value comes back unchanged, and so it does when the cut text is no number.
    /// maParaCima and maParaBaixo look at the binary number, which is seldom exactly the decimal one. So they also move
    /// amounts that already have the places asked for: to 2 places, 1.10 up is 1.11 and 1.05 down is 1.04. Use
    /// maMatematico for amounts that other operations computed.
    /// The factor 10^ACasas is of single precision; from 39 places up it has none and the value comes back unchanged.
    static Extended Arredondar(Extended AValor, TMetodoArredondamento AMetodo, std::uint8_t ACasas,
                               std::uint8_t ACasasAConsiderar);

    /// AValor in words, in reais. Errors: see TConverterPorExtenso::SetValor.
    /// Example: BuscarValorPorExtenso(0.5L) is "CINQUENTA CENTAVOS DE REAL".
    static std::u16string BuscarValorPorExtenso(Extended AValor);

    static Extended ConverterCentimetrosParaPolegadas(Extended AValor);
    /// Whole pixels of the screen in AValor centimetres, towards zero; the user interface says how many there are to
    /// an inch, 96 without one. Call it from the thread of the user interface.
    static int ConverterCentimetrosParaPixels(Extended AValor);

    /// The sum of what the true entries of AValores, a list of check boxes, are worth. Entry i is worth item
    /// AValorInicial + i of 0, 1, 2, 4, ... 256: with AValorInicial 1 the first entry is worth 1, with 0 nothing.
    /// AConsiderarZero: the first entry stands for "none": when it is true the result is 0 whatever the others are.
    /// It wants AValorInicial to be 0; otherwise an error is shown and EAbort raised.
    /// Raises Exception for a true entry that falls outside the ten items.
    static int SomarCombinacaoBinaria(const std::vector<bool>& AValores, int AValorInicial, bool AConsiderarZero);
    /// True when every bit of AValorBinarioComparacao is set in AValor; for 0, when AValor is 0 too.
    static bool EstahNaCombinacaoBinaria(std::int64_t AValor, std::int64_t AValorBinarioComparacao);
};

extern ORY_API TInstanciaGlobal<TOryUtilsMatematica> GOryUtilsMatematica;

}  // namespace OryUtils

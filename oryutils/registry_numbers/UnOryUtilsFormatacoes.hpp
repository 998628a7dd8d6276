#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/Campos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"

#include <string_view>

namespace OryUtils {

/// The Brazilian presentation of data fields: edit masks of registry numbers, display and edit formats of numbers, and
/// the process-wide formats of dates and numbers. Everything here belongs to the thread of the user interface.
/// Example:
///   GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();  // once, at the start of the program
///   FormatarCampoValor(total);                                           // shows 1234.5 as "1.234,50"
class ORY_API TOryUtilsFormatacoes {
public:
    class ORY_API TFormatoPadraoDatasEValores {
    public:
        /// Whether the controls that listen to the format controller follow the process-wide formats. Starts as
        /// true, and the controller is not told of that.
        bool GetUsarNosControlesDevExpress() const noexcept { return FUsarNosControlesDevExpress; }
        /// Also tells the format controller (fields/ControladorFormatos.hpp), which reads the formats anew and
        /// notifies its listeners: set it after Configurar to bring what is already shown up to date.
        void SetUsarNosControlesDevExpress(bool AUsar);

        /// Makes the Brazilian formats (BuscarFormatosBrasileiros) the process-wide ones: 31/12/2024, 23:59:59,
        /// 1.234,56, month and day names. The window of two-digit years and the texts of AM and PM stay. Nothing calls
        /// it by itself; call it once at the start of the program, before other threads format or read dates and
        /// numbers. They may do so at any time while nobody changes the formats.
        void Configurar();

    private:
        bool FUsarNosControlesDevExpress = true;
    };

    TOryUtilsFormatacoes() = default;
    TOryUtilsFormatacoes(const TOryUtilsFormatacoes&) = delete;
    TOryUtilsFormatacoes& operator=(const TOryUtilsFormatacoes&) = delete;

    TFormatoPadraoDatasEValores& GetFormatoPadraoDatasEValores() noexcept { return FFormatoPadraoDatasEValores; }

    /// Sets the edit mask of the field (see TMascara). Raises EConvertError for a broken one.
    void FormatarCampo(TField& ACampo, std::u16string_view AMascara);
    /// Postcode: "99999-999;0; ". A box takes all eight digits or none.
    void FormatarCEP(TField& ACampo);
    /// "99.999.999/9999-99;0; ".
    void FormatarCNPJ(TField& ACampo);
    /// CNPJ of letters and digits: ">aa.aaa.aaa/aaaa-99;0; ".
    void FormatarCnpjAlfanumericoCampo(TField& ACampo);
    /// "999.999.999-99;0; ".
    void FormatarCPF(TField& ACampo);
    /// Accountant registry: "9>LL<999999>L<9;0; ".
    void FormatarCRC(TField& ACampo);
    /// "99.999.99999/99;0; ".
    void FormatarCEI(TField& ACampo);
    /// Month and year of a tax period: "99/9999;0; ".
    void FormatarCompetencia(TField& ACampo);
    /// Phone with area code, stored with its literals: "!(999)99999-9999;1; ".
    void FormatarFone(TField& ACampo);
    /// Phone with an area code of two digits, stored as digits: (11)3333-4444, (11)93333-4444 and, without an area
    /// code, 0800 123 4567 (0300, 0500 and 0900 too). The mask follows the number; a box takes a whole number or none.
    void FormatarFoneDDD(TField& ACampo);
    /// CPF or CNPJ, of digits or of letters and digits, stored without marks: the mask follows the number, which is a
    /// CPF while it has at most eleven characters and no letter. A box takes a whole number or none.
    void FormatarCpfCnpj(TField& ACampo);
    /// Goods classification code: "9999.999.99;0; ".
    void FormatarNCM(TField& ACampo);

    /// Sets display and edit format of a TNumericField (see FormatarNumero). Raises EInvalidCast for any other field.
    void FormatarCampoNumerico(TField& ACampo, std::u16string_view AFormatoExibicao,
                               std::u16string_view AFormatoEdicao);
    /// ",0.00" and "0.00".
    void FormatarCampoValor(TField& ACampo);
    /// ",0.00 %" and "0.00".
    void FormatarCampoPercentual(TField& ACampo);
    /// "0" and "0".
    void FormatarCampoInteiro(TField& ACampo);

private:
    TFormatoPadraoDatasEValores FFormatoPadraoDatasEValores;
};

extern ORY_API TInstanciaGlobal<TOryUtilsFormatacoes> GOryUtilsFormatacoes;

// The free functions forward to the operation of the global instance with the same name.

inline void FormatarCampo(TField& ACampo, std::u16string_view AMascara) {
    GOryUtilsFormatacoes->FormatarCampo(ACampo, AMascara);
}
inline void FormatarCampoInteiro(TField& ACampo) { GOryUtilsFormatacoes->FormatarCampoInteiro(ACampo); }
inline void FormatarCampoNumerico(TField& ACampo, std::u16string_view AFormatoExibicao,
                                  std::u16string_view AFormatoEdicao) {
    GOryUtilsFormatacoes->FormatarCampoNumerico(ACampo, AFormatoExibicao, AFormatoEdicao);
}
inline void FormatarCampoPercentual(TField& ACampo) { GOryUtilsFormatacoes->FormatarCampoPercentual(ACampo); }
inline void FormatarCampoValor(TField& ACampo) { GOryUtilsFormatacoes->FormatarCampoValor(ACampo); }
inline void FormatarCEP(TField& ACampo) { GOryUtilsFormatacoes->FormatarCEP(ACampo); }
inline void FormatarCNPJ(TField& ACampo) { GOryUtilsFormatacoes->FormatarCNPJ(ACampo); }
inline void FormatarCnpjAlfanumericoCampo(TField& ACampo) {
    GOryUtilsFormatacoes->FormatarCnpjAlfanumericoCampo(ACampo);
}
inline void FormatarCPF(TField& ACampo) { GOryUtilsFormatacoes->FormatarCPF(ACampo); }
inline void FormatarCRC(TField& ACampo) { GOryUtilsFormatacoes->FormatarCRC(ACampo); }
inline void FormatarCpfCnpj(TField& ACampo) { GOryUtilsFormatacoes->FormatarCpfCnpj(ACampo); }
inline void FormatarFoneDDD(TField& ACampo) { GOryUtilsFormatacoes->FormatarFoneDDD(ACampo); }
inline void FormatarFone(TField& ACampo) { GOryUtilsFormatacoes->FormatarFone(ACampo); }
inline void FormatarNCM(TField& ACampo) { GOryUtilsFormatacoes->FormatarNCM(ACampo); }
inline void FormatarCEI(TField& ACampo) { GOryUtilsFormatacoes->FormatarCEI(ACampo); }
inline void FormatarCompetencia(TField& ACampo) { GOryUtilsFormatacoes->FormatarCompetencia(ACampo); }

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/Campos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"

#include <memory>
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
        /// Whether the controls that listen to the format controller follow the process-wide formats. True at first,
        /// without the controller having been told.
        bool GetUsarNosControlesDevExpress() const noexcept { return FUsarNosControlesDevExpress; }
        /// Also tells the format controller (runtime/ControladorFormatos.hpp), which reads the formats anew and
        /// notifies its listeners: set it after Configurar to bring what is already shown up to date.
        void SetUsarNosControlesDevExpress(bool AUsar);

        /// Makes the Brazilian formats (BuscarFormatosBrasileiros) the process-wide ones: 31/12/2024, 23:59:59,
        /// 1.234,56, month and day names. Nothing calls it by itself; call it once at the start of the program, before
        /// other threads format or read dates and numbers. They may do so at any time while nobody changes the formats.
        void Configurar();

    private:
        bool FUsarNosControlesDevExpress = true;
    };

    TOryUtilsFormatacoes();
    ~TOryUtilsFormatacoes();
    TOryUtilsFormatacoes(const TOryUtilsFormatacoes&) = delete;
    TOryUtilsFormatacoes& operator=(const TOryUtilsFormatacoes&) = delete;

    TFormatoPadraoDatasEValores& GetFormatoPadraoDatasEValores() noexcept { return *FFormatoPadraoDatasEValores; }

    /// Sets the edit mask of the field (see TMascara). Raises EConvertError for a broken one.
    void FormatarCampo(TField& ACampo, std::u16string_view AMascara);
    /// Postcode: "99999-999;0; ".
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
    std::unique_ptr<TFormatoPadraoDatasEValores> FFormatoPadraoDatasEValores;
};

extern ORY_API TInstanciaGlobal<TOryUtilsFormatacoes> GOryUtilsFormatacoes;

// The free functions forward to the operation of the global instance with the same name.

ORY_API void FormatarCampo(TField& ACampo, std::u16string_view AMascara);
ORY_API void FormatarCampoInteiro(TField& ACampo);
ORY_API void FormatarCampoNumerico(TField& ACampo, std::u16string_view AFormatoExibicao,
                                   std::u16string_view AFormatoEdicao);
ORY_API void FormatarCampoPercentual(TField& ACampo);
ORY_API void FormatarCampoValor(TField& ACampo);
ORY_API void FormatarCEP(TField& ACampo);
ORY_API void FormatarCNPJ(TField& ACampo);
ORY_API void FormatarCnpjAlfanumericoCampo(TField& ACampo);
ORY_API void FormatarCPF(TField& ACampo);
ORY_API void FormatarCRC(TField& ACampo);
ORY_API void FormatarFone(TField& ACampo);
ORY_API void FormatarNCM(TField& ACampo);
ORY_API void FormatarCEI(TField& ACampo);
ORY_API void FormatarCompetencia(TField& ACampo);

}  // namespace OryUtils

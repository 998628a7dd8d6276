#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/CamposTipos.hpp"
#include "oryutils/registry_numbers/UnOryUtilsValidacoesTypes.hpp"
#include "oryutils/runtime/Controle.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"
#include "oryutils/runtime/Variante.hpp"
#include "oryutils/types/OryTypesSistema.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

using OryTypes::TResultStatus;
using OryTypes::TTipoInscricao;
using enum OryTypes::TTipoInscricao;

/// Validations of Brazilian registry numbers and of form fields.
///
/// Validou... answers and shows nothing, except those that take a control, which also report. Validar... reports a
/// failing value: it gives the focus to the control, shows the message as a warning and raises EAbort, so the caller's
/// event handler ends.
///
/// A check applies to a control when ValidouCampo says so; otherwise Validar... does nothing. Arguments of the family:
///   ASender    what fired the event: the control itself in its exit handler, or null (a save button checking the form)
///   AControle  the control that holds the value; null when there is none
///   AMensagem  the warning to show
///
/// The Validou... rules without a control may run on any thread and never allocate; what reports belongs to the thread
/// of the user interface.
class ORY_API TOryUtilsValidacoes {
public:
    /// True when AControle is given, can take the focus, and ASender is null or that same control.
    static bool ValidouCampo(const TObjeto* ASender, const TWinControl* AControle);
    /// True as soon as one of AControles passes, in order.
    static bool ValidouCampo(const TObjeto* ASender, std::span<TWinControl* const> AControles);
    /// Reports, always: focus when AControle is given, warning, EAbort.
    [[noreturn]] static void TratarResultadoValidacao(TWinControl* AControle, std::u16string_view AMensagem);

    /// CPF (tiCPF) or CNPJ (tiCNPJ) by its check digits; false for every other kind. Everything but digits is dropped
    /// first. Repeated digits ("111.111.111-11") pass: callers that refuse them do so themselves. Never throws.
    /// Example:  ValidouCnpjCpf(tiCNPJ, u"11.222.333/0001-81")  ->  true
    static bool ValidouCnpjCpf(TTipoInscricao ATipo, std::u16string_view ANumero) noexcept;
    /// CNPJ of letters and digits, in use since July 2026, and the numeric one: twelve of A-Z and 0-9, two check
    /// digits. Letters count in either case; ". / -" and blanks are dropped, anything else is refused. Never throws.
    /// Example:  ValidouCnpjAlfanumerico(u"12.ABC.345/01DE-35")  ->  true
    static bool ValidouCnpjAlfanumerico(std::u16string_view ANumero) noexcept;
    /// "12.ABC.345/01DE-35" from the fourteen characters, bare or formatted, in either case; the check digits are not
    /// verified. ANumero unchanged when it does not hold twelve of A-Z and 0-9 and two digits.
    static std::u16string FormatarCnpjAlfanumerico(std::u16string_view ANumero);
    /// PIS: eleven digits; spaces are dropped, punctuation is refused. Never throws.
    static bool ValidouPIS(std::u16string_view ANumero) noexcept;
    /// CEI: twelve characters after dropping ". , _ / -" and the blanks at both ends. Twelve zeros are valid.
    /// Raises EConvertError when the twelve characters are not a number.
    static bool ValidouCEI(std::u16string_view ANumero);
    /// CNO: as the CEI.
    static bool ValidouCNO(std::u16string_view ANumero);
    /// Driving licence: the new format, else the old one, else any text of the integer 0. Never throws.
    static bool ValidouCNH(std::u16string_view ANumero) noexcept;
    /// Eleven digits; shorter numbers are completed with zeros on the left. Punctuation is refused. Never throws.
    static bool ValidouNovoFormatoCNH(std::u16string_view ANumero) noexcept;
    /// Nine digits, likewise.
    static bool ValidouFormatoAntigoCNH(std::u16string_view ANumero) noexcept;
    /// Municipality code of the national statistics office: seven digits after dropping "." and the blanks at both
    /// ends. Raises EConvertError when one of the first six of seven characters is not a digit.
    static bool ValidouCodigoMunicipio(std::u16string_view ACodigo);
    /// As ValidouCodigoMunicipio, and also true for the nine codes in use whose digit breaks the rule ("2201919").
    static bool ValidouCodigoMunicipioOficial(std::u16string_view ACodigo);
    /// State registration by the rule of AUF (two letters in either case, "EX" for export). AIE: bare digits, or a
    /// text with "ISENT" in it, valid whatever AUF. See TOryUtilsValidacoesIE. Never throws.
    /// Example:  ValidouIE(u"2243658792", u"RS")  ->  true
    static bool ValidouIE(std::u16string_view AIE, std::u16string_view AUF) noexcept;

    /// Verdict by the rule of ATipo: CNPJ, CPF, CEI, PIS, CNH or CNO; false for any other kind. A false verdict is
    /// reported ("CNPJ inválido. Verifique."; an empty text for another kind) when the check applies. A blank number
    /// is false and not reported. Raises EConvertError as ValidouCEI.
    static bool ValidouDocumento(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ANumero,
                                 TTipoInscricao ATipo);
    /// Reports when ValidouIE is false.
    static void ValidarIE(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AIE,
                          std::u16string_view AUF, std::u16string_view AMensagem);
    /// Reports a blank value.
    static void ValidarString(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                              std::u16string_view AMensagem);
    /// Reports a blank value with AMensagem, and "0", "+", "," or a value with a "-" with "Código inválido.
    /// Verifique.".
    static void ValidarCodigoCadastral(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                       std::u16string_view AMensagem);
    /// Reports a number that does not fit APrecisao digits of which ADecimais after the comma, and a value without
    /// digits and commas. All other characters are ignored. A comma in first place does not start a fraction.
    static void ValidarCampoNumerico(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                     std::u16string_view AMensagem, std::int16_t APrecisao, std::int16_t ADecimais);
    /// Reports a value made only of digits, also an empty one.
    static void ValidarCampoSomenteNumeros(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                           std::u16string_view AMensagem);
    /// Reports a value with neither a letter nor a digit, also an empty one.
    static void ValidarCampoSomenteCaracteresEspeciais(const TObjeto* ASender, TWinControl* AControle,
                                                       std::u16string_view AValor, std::u16string_view AMensagem);

    /// CRC of an accountant; see TOryUtilsValidacoesCRC. Never throws.
    static bool ValidouCRC(std::u16string_view ACRC) noexcept;
    /// E-mail address: one "@", a full stop not next to it, none of CCarateresEspeciais, and a domain that does not
    /// begin with "com". An empty or blank address is valid; one with other blanks at its ends is not. Never throws.
    /// Example:  ValidouEmail(u"a.b@cd.ef")  ->  true
    static bool ValidouEmail(std::u16string_view AEndereco) noexcept;
    /// AStatus tells, for people, which of the addresses fail ValidouEmail, in order. An empty list fails too.
    static void ValidouListaEmail(const std::vector<std::u16string>& AEnderecos, TResultStatus& AStatus);
    /// IPv4 address: four parts from 0 to 255; a part with a leading zero may be larger. Empty is valid. Never throws.
    static bool ValidouEnderecoIP(std::u16string_view AEndereco) noexcept;
    /// Date, time, or date and time as typed, under the process-wide formats: see TentarTextoParaData,
    /// TentarTextoParaHora and TentarTextoParaDataHora. 00:00, 30/12/1899 and what lies before them fail like a text
    /// that does not convert.
    static bool ValidouData(std::u16string_view ATexto);
    static bool ValidouHora(std::u16string_view ATexto);
    static bool ValidouDataHora(std::u16string_view ATexto);
    /// Whether ACaractere may be typed into a field of ATipo whose text is ATexto. Integers (ftSmallint, ftInteger,
    /// ftLargeint) take digits and the backspace; decimals (ftFloat, ftCurrency, ftBCD, ftFMTBcd, ftExtended) also
    /// "," and ".", each while ATexto has it at most AQuantidade times; other fields take anything. Never throws.
    /// Example:  ValidouCaractereControle(u',', u"12,5", ftFloat, 0)  ->  false
    static bool ValidouCaractereControle(char16_t ACaractere, std::u16string_view ATexto, TFieldType ATipo,
                                         std::uint16_t AQuantidade) noexcept;

    /// Reports when ValidouCRC is false.
    static void ValidarCRC(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ACRC,
                           std::u16string_view AMensagem);
    /// Reports when ValidouEmail of the trimmed address is false.
    static void ValidarEmail(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AEndereco,
                             std::u16string_view AMensagem);
    /// Reports when ValidouListaEmail fails for the parts of ATexto between ADelimitador (split as
    /// ConverterTextoComDelimitadorParaStringList does). An empty AMensagem stands for the message of the status.
    static void ValidarListaEmail(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                                  std::u16string_view AMensagem, std::u16string_view ADelimitador);
    /// As the forms without a control, and report a failing value when the check applies. Where it does not apply
    /// nothing is converted and the result is true.
    static bool ValidouData(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                            std::u16string_view AMensagem);
    static bool ValidouHora(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                            std::u16string_view AMensagem);
    static bool ValidouDataHora(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                                std::u16string_view AMensagem);
    static bool ValidouEnderecoIP(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AEndereco,
                                  std::u16string_view AMensagem);
    /// Reports a start after the end, when the end is a date above 0. A start that is no date is never reported.
    static void ValidarDataInicioFim(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AInicio,
                                     std::u16string_view AFim, std::u16string_view AMensagem);
    static void ValidarDataInicioFim(const TObjeto* ASender, TWinControl* AControle, TDateTime AInicio, TDateTime AFim,
                                     std::u16string_view AMensagem);
    /// Reports a blank name, and a folder that does not exist (the trimmed name is looked up).
    static void ValidarDiretorio(const TObjeto* ASender, TWinControl* AControle, std::u16string_view APasta,
                                 std::u16string_view AMensagem);
    /// Reports a trimmed name with a character that the system forbids in file names: on Windows < > : " / \ | ? * and
    /// the codes below 32, on Linux the slash and code 0. An empty name is not reported.
    static void ValidarCampoNomeArquivo(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ANome,
                                        std::u16string_view AMensagem);
    /// Reports a trimmed name that is no identifier: a letter or "_", then letters, digits or "_".
    static void ValidarCampoNomeComponente(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ANome,
                                           std::u16string_view AMensagem);
    /// Reports when AFalhou. With neither sender nor control the check always applies.
    static void ValidarConteudoVariavel(const TObjeto* ASender, TWinControl* AControle, bool AFalhou,
                                        std::u16string_view AMensagem);

    /// Calls AMetodos in order until the first result of the kind named by ATipo; each one is let go after its call.
    /// The result is the last one produced: with tvrPrimeiroResultadoFalso true when all passed, with
    /// tvrPrimeiroResultadoVerdadeiro false when none did. False without methods. Raises Exception at an empty one.
    static bool ValidouMetodosRetorno(std::vector<TValidacaoMetodoRetorno> AMetodos,
                                      TTipoValidacaoResultadoMetodoRetorno ATipo);
    /// A copy of the chosen value. Both are evaluated by the caller before the call.
    static Variant Iif(bool ACondicao, const Variant& AValorVerdadeiro, const Variant& AValorFalso);
};

extern ORY_API TInstanciaGlobal<TOryUtilsValidacoes> GOryUtilsValidacoes;

// The free functions forward to the operation of TOryUtilsValidacoes with the same name, except the first five.

/// ValidouCampo.
inline bool ValidarCampo(const TObjeto* ASender, const TWinControl* AControle) {
    return TOryUtilsValidacoes::ValidouCampo(ASender, AControle);
}
inline bool ValidarCampo(const TObjeto* ASender, std::span<TWinControl* const> AControles) {
    return TOryUtilsValidacoes::ValidouCampo(ASender, AControles);
}
/// ValidouDocumento.
inline bool ValidarDocumento(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ANumero,
                             TTipoInscricao ATipo) {
    return TOryUtilsValidacoes::ValidouDocumento(ASender, AControle, ANumero, ATipo);
}
/// ValidouData.
inline bool ValidarData(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                        std::u16string_view AMensagem) {
    return TOryUtilsValidacoes::ValidouData(ASender, AControle, ATexto, AMensagem);
}
/// ValidouEnderecoIP.
inline bool ValidarIPAddress(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AEndereco,
                             std::u16string_view AMensagem) {
    return TOryUtilsValidacoes::ValidouEnderecoIP(ASender, AControle, AEndereco, AMensagem);
}

inline bool ValidouCnpjCpf(TTipoInscricao ATipo, std::u16string_view ANumero) noexcept {
    return TOryUtilsValidacoes::ValidouCnpjCpf(ATipo, ANumero);
}
inline bool ValidouCnpjAlfanumerico(std::u16string_view ANumero) noexcept {
    return TOryUtilsValidacoes::ValidouCnpjAlfanumerico(ANumero);
}
inline std::u16string FormatarCnpjAlfanumerico(std::u16string_view ANumero) {
    return TOryUtilsValidacoes::FormatarCnpjAlfanumerico(ANumero);
}
inline bool ValidouPIS(std::u16string_view ANumero) noexcept { return TOryUtilsValidacoes::ValidouPIS(ANumero); }
inline bool ValidouCEI(std::u16string_view ANumero) { return TOryUtilsValidacoes::ValidouCEI(ANumero); }
inline bool ValidouCNH(std::u16string_view ANumero) noexcept { return TOryUtilsValidacoes::ValidouCNH(ANumero); }
inline bool ValidouCodigoMunicipioOficial(std::u16string_view ACodigo) {
    return TOryUtilsValidacoes::ValidouCodigoMunicipioOficial(ACodigo);
}
inline bool ValidouIE(std::u16string_view AIE, std::u16string_view AUF) noexcept {
    return TOryUtilsValidacoes::ValidouIE(AIE, AUF);
}
inline void ValidarIE(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AIE, std::u16string_view AUF,
                      std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarIE(ASender, AControle, AIE, AUF, AMensagem);
}
inline void ValidarString(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                          std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarString(ASender, AControle, AValor, AMensagem);
}
inline void ValidarCodigoCadastral(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                   std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarCodigoCadastral(ASender, AControle, AValor, AMensagem);
}
inline void ValidarCampoNumerico(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                 std::u16string_view AMensagem, std::int16_t APrecisao, std::int16_t ADecimais) {
    TOryUtilsValidacoes::ValidarCampoNumerico(ASender, AControle, AValor, AMensagem, APrecisao, ADecimais);
}
inline void ValidarCampoSomenteNumeros(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                       std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarCampoSomenteNumeros(ASender, AControle, AValor, AMensagem);
}
inline void ValidarCampoSomenteCaracteresEspeciais(const TObjeto* ASender, TWinControl* AControle,
                                                   std::u16string_view AValor, std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarCampoSomenteCaracteresEspeciais(ASender, AControle, AValor, AMensagem);
}
inline bool ValidouCRC(std::u16string_view ACRC) noexcept { return TOryUtilsValidacoes::ValidouCRC(ACRC); }
inline void ValidarCRC(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ACRC,
                       std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarCRC(ASender, AControle, ACRC, AMensagem);
}
inline bool ValidouCaractereControle(char16_t ACaractere, std::u16string_view ATexto, TFieldType ATipo,
                                     std::uint16_t AQuantidade) noexcept {
    return TOryUtilsValidacoes::ValidouCaractereControle(ACaractere, ATexto, ATipo, AQuantidade);
}
inline bool ValidouDataHora(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                            std::u16string_view AMensagem) {
    return TOryUtilsValidacoes::ValidouDataHora(ASender, AControle, ATexto, AMensagem);
}
inline bool ValidouHora(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                        std::u16string_view AMensagem) {
    return TOryUtilsValidacoes::ValidouHora(ASender, AControle, ATexto, AMensagem);
}
inline void ValidarDiretorio(const TObjeto* ASender, TWinControl* AControle, std::u16string_view APasta,
                             std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarDiretorio(ASender, AControle, APasta, AMensagem);
}
inline void ValidarDataInicioFim(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AInicio,
                                 std::u16string_view AFim, std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarDataInicioFim(ASender, AControle, AInicio, AFim, AMensagem);
}
inline void ValidarDataInicioFim(const TObjeto* ASender, TWinControl* AControle, TDateTime AInicio, TDateTime AFim,
                                 std::u16string_view AMensagem) {
    TOryUtilsValidacoes::ValidarDataInicioFim(ASender, AControle, AInicio, AFim, AMensagem);
}
inline Variant Iif(bool ACondicao, const Variant& AValorVerdadeiro, const Variant& AValorFalso) {
    return TOryUtilsValidacoes::Iif(ACondicao, AValorVerdadeiro, AValorFalso);
}

}  // namespace OryUtils

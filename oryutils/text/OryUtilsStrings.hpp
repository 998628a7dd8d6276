#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"
#include "oryutils/types/OryTypesSistema.hpp"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

using OryTypes::TTipoInscricao;
using enum OryTypes::TTipoInscricao;

/// A fixed buffer of UTF-16 code units, as older interfaces want a text.
using TVetorDeCaracteres = std::array<char16_t, 65536>;

/// The toolbox for text. Every operation takes any text, lone surrogates included, and works code unit by code unit;
/// unless it says otherwise it raises nothing, costs time linear in its arguments and may be called from any thread.
///
/// Words used below:
/// - blank: code 32 or below; to trim is to remove the blanks at both ends;
/// - digit, letter: the ASCII ones only (RemoverAcentos turns accented letters into letters);
/// - ignoring case: equal after MinusculaDe (runtime/Caixa.hpp), the same on every system and in every locale;
/// - an empty search text occurs nowhere.
///
/// A list in braces of one character must name its type, since a list of one text looks the same:
/// LimparTexto(u"1.5", TCaracteres{u'.'}).
class ORY_API TOryUtilsStrings {
public:
    // Character-class tests.

    /// True when ATexto shows at least one digit and one letter, whatever else it holds: "a-1" is, "123" is not.
    static bool TextoEhAlfaNumerico(std::u16string_view ATexto);
    /// True when every character but the blanks is a digit; so also for an empty text.
    static bool TextoEhSomenteNumerico(std::u16string_view ATexto);
    /// True when, after RemoverAcentos, every character but the blanks is a letter; so also for an empty text.
    static bool TextoEhSomenteCaracteres(std::u16string_view ATexto);
    /// True when there is a letter. Accents are not removed first: "çã" has none.
    static bool TextoPossuiCaracteres(std::u16string_view ATexto);
    /// True when there is a digit.
    static bool TextoPossuiNumeros(std::u16string_view ATexto);
    /// True when there is neither a digit nor a letter; so also for an empty text.
    static bool TextoPossuiSomenteCaracteresEspeciais(std::u16string_view ATexto);
    /// False for the backspace (code 8), the full stop, digits and letters; true for all others, the space included.
    static bool EhCaractereAcentuadoOuEspecial(char16_t ACaractere);
    /// True when the first character of ATexto, as a text, is APrefixo. A longer prefix never is; an empty prefix is
    /// the first character of an empty text only.
    /// Example:  TextoEhParametro(u"-silent", u"-").
    static bool TextoEhParametro(std::u16string_view ATexto, std::u16string_view APrefixo);
    /// True when ATexto, ignoring case, equals (AExato) or contains some item of AVetor. An empty item equals an empty
    /// text and is contained in none.
    static bool TextoContemItemVetor(std::u16string_view ATexto, const std::vector<std::u16string>& AVetor,
                                     bool AExato);

    // Removal and replacement.

    /// Turns the Portuguese accented letters and the cedilla into plain ones. The apostrophe becomes a double quote,
    /// as the files and labels written since the first version expect: "D'Ávila" gives D"Avila. All others stay.
    static std::u16string RemoverAcentos(std::u16string_view ATexto);
    /// Removes every space (code 32), inside too; other blanks stay.
    static std::u16string AllTrim(std::u16string_view ATexto);
    /// Removes every . , _ / - and then trims.
    static std::u16string LimparTexto(std::u16string_view ATexto);
    /// Removes every occurrence of each of ACaracteres, respecting case, and then trims.
    static std::u16string LimparTexto(std::u16string_view ATexto, TCaracteres ACaracteres);
    /// Removes all occurrences of each of ATextos, one after the other in their order, respecting case. Does not trim.
    static std::u16string LimparTexto(std::u16string_view ATexto, const std::vector<std::u16string>& ATextos);
    /// Keeps only the members of ACaracteres, in their order.
    static std::u16string LimparTextoMantendoCaracteres(std::u16string_view ATexto,
                                                        const TConjuntoCaracteres& ACaracteres);
    /// Keeps only the digits: "12.345/6" gives "123456".
    static std::u16string ExtrairSomenteNumeros(std::u16string_view ATexto);
    /// Removes every occurrence of each character of ACaracteres, respecting case: "a" leaves "BAnn" of "BAnana".
    static std::u16string RemoverCaractere(std::u16string_view ATexto, std::u16string_view ACaracteres);
    /// Removes every occurrence of each of ACaracteres, ignoring case, unlike RemoverCaractere.
    static std::u16string RemoverCaracteres(TCaracteres ACaracteres, std::u16string_view ATexto);
    /// Trims ATexto and turns each comma between single quotes into a space; the quotes stay: "'a,b',c" gives
    /// "'a b',c". ACaractere plays no part: it is always the comma.
    static std::u16string RemoverCaractereSomenteDeTextos(std::u16string_view ATexto, char16_t ACaractere);
    /// While AAntigo occurs: puts ANovo before its first occurrence, then deletes one character at what is now its
    /// first occurrence. So a one-character AAntigo is replaced everywhere, and of a longer one only the first
    /// character goes each time: "xaay" with "aa" and "b" gives "xbay".
    /// An ANovo from which AAntigo arises again (it contains AAntigo, or does with what is left of it behind) would
    /// never end: do not ask for that. When AAntigo occurs at all it raises an Exception instead of hanging.
    /// Each deletion costs up to the lengths of AAntigo and ANovo, however long the text is.
    static std::u16string SubstituirCaracteres(std::u16string_view ATexto, std::u16string_view AAntigo,
                                               std::u16string_view ANovo);
    /// Puts ASubstituto, which may be empty, in the place of each character that is EhCaractereAcentuadoOuEspecial.
    static std::u16string SubstituirCaracteresAcentuados(std::u16string_view ATexto, std::u16string_view ASubstituto);
    /// For each item of AAntigos in order, replaces all its occurrences by the item of ANovos at the same place, or by
    /// nothing when there is none; each step works on the result of the one before.
    static std::u16string SubstituirMultiplosTextos(std::u16string_view ATexto,
                                                    const std::vector<std::u16string>& AAntigos,
                                                    const std::vector<std::u16string>& ANovos, bool AIgnorarCaixa);

    // Extraction, padding and small builders.

    /// How often ACaractere occurs.
    static int BuscarQuantidadeCaractereNoTexto(std::u16string_view ATexto, char16_t ACaractere);
    /// How many occurrences of ACaractere have another one right behind: a run of three counts 2. 0 for a blank text.
    static int BuscarQuantidadeCaractereEmSequencia(std::u16string_view ATexto, char16_t ACaractere);
    /// ATexto made exactly ATamanho characters long: cut, or filled on the right by repeating APreenchimento, whose
    /// last copy may be cut. An empty APreenchimento only cuts; an ATamanho of zero or below gives "".
    /// Example:  BuscarTextoFormatado(u"abc", 6, u"xy") is "abcxyx".
    static std::u16string BuscarTextoFormatado(std::u16string_view ATexto, int ATamanho,
                                               std::u16string_view APreenchimento);
    /// ATexto with spaces on the right up to ATamanho characters; a longer text stays.
    static std::u16string FormatarEspacoEmBranco(std::u16string_view ATexto, int ATamanho);
    /// ACaractere AQuantidade times; "" for zero or below.
    static std::u16string RepetirCaractere(char16_t ACaractere, int AQuantidade);
    /// The last character of the trimmed text, or "" when that is empty.
    static std::u16string BuscarUltimoCaractereTexto(std::u16string_view ATexto);
    /// ATexto with ACaractere behind it, unless its last character (a blank counts) is ACaractere already; "" for a
    /// blank text.
    static std::u16string CompletarUltimoCaractereTexto(char16_t ACaractere, std::u16string_view ATexto);
    /// The trimmed text less its last character, trimmed again, when that character is ACaractere or ACaractere is code
    /// 0; otherwise, and for a blank text, ATexto as it is.
    static std::u16string ExcluirUltimoCaractereTexto(std::u16string_view ATexto, char16_t ACaractere);
    /// AValor, not trimmed, unless it is blank; then APadrao.
    static std::u16string BuscarValorPadrao(std::u16string_view AValor, std::u16string_view APadrao);
    /// The folder above the folder of ACaminho: "C:\a\b\arq.txt" gives "C:\a". Only "\" separates; "" when there are
    /// fewer than two.
    static std::u16string BuscarPastaDoNivelAnterior(std::u16string_view ACaminho);
    /// The last folder of a URL of a .br site, cleaned by LimparTexto: "http://www.x.com.br/ws/nfe-xml_v2.0" gives
    /// "nfexmlv20". "" when the URL ends with "/". Without a slash behind the first ".br" all that is there comes back;
    /// without ".br" the first two characters are left out and the same rules hold for the rest.
    static std::u16string ExtrairUltimaPastaDaURL(std::u16string_view AURL);
    /// The text between the first "<ATag", which may have attributes, and the first "</ATag>"; "" when there is none.
    /// Nesting is not handled, and a missing opening tag is not noticed: any ">" far enough from the start does.
    static std::u16string ExtrairTextoEntreTags(std::u16string_view ATexto, std::u16string_view ATag);
    /// Drops each "<" with all up to the next ">" (or the end), and every lone ">".
    static std::u16string LimparTagsHtml(std::u16string_view ATexto);
    /// Each line of ATexto, ended by CR LF, CR, LF or the end, as "<P>line</P>". Nothing follows a last line break.
    static std::u16string FormatarQuebrasDeTextoHtml(std::u16string_view ATexto);
    /// Whether an edit mask stores its literal characters with the value: "!(999)99999-9999;1; " does,
    /// "99999-999;0; " does not. A mask of fewer than four characters or without fields does not.
    static bool PossuiGravacaoMascara(std::u16string_view AMascara);
    /// A new random GUID, version 4: "{XXXXXXXX-XXXX-4XXX-XXXX-XXXXXXXXXXXX}" with upper-case hexadecimal digits.
    /// Raises when the system has no random numbers to give.
    static std::u16string BuscarNovoGuid();
    /// ATexto in UTF-8, in Base64 on a single line. A lone surrogate is written in the three bytes of its code, so that
    /// every text comes back as it was.
    static std::u16string ConverterTextoParaBase64(std::u16string_view ATexto);
    /// The text whose UTF-8 bytes stand in ATexto in Base64. Line breaks between the digits are skipped; what is not
    /// UTF-8 becomes U+FFFD. Raises EConvertError when ATexto is not Base64: a strange character, digits missing at the
    /// end, or padding that is missing or misplaced.
    static std::u16string ConverterBase64ParaTexto(std::u16string_view ATexto);
    /// The character that a key (numbered as on Windows, VK_...) produces with the present state of the keyboard, as
    /// the calling thread sees it; "" when it produces none or more than one, and where there is no keyboard (Linux
    /// without a display). Belongs to the user-interface thread.
    static std::u16string ConverterTeclaVirtualParaCaractere(std::uint16_t ATecla);
    /// The code units of ATexto at the start of a zero-filled buffer. What does not fit is left out, and a text that
    /// fills the buffer has no zero behind it.
    static std::unique_ptr<TVetorDeCaracteres> ConverterTextoParaVetorDeCaracteres(std::u16string_view ATexto);

    // Federal inscription numbers.

    /// The edit mask of an input control for a CNPJ, CPF or CEI; "" for any other kind.
    static std::u16string BuscarMascara(TTipoInscricao ATipo);
    /// The bare digits of a CNPJ, CPF or CEI in their display form: "12345678909" as CPF gives "123.456.789-09". A
    /// number of any other kind stays.
    static std::u16string FormatarInscricaoFederal(TTipoInscricao ATipo, std::u16string_view ANumero);

    // Lists, arrays and delimited text.

    /// The items of the list with ADelimitador between them. Raises an Exception when the list is missing (null).
    static std::u16string ConverterStringListParaTextoComDelimitador(const std::vector<std::u16string>* AStringList,
                                                                     std::u16string_view ADelimitador);
    /// The parts of ATexto between delimiters, each trimmed. "a;;b" gives "a", "", "b"; a last delimiter adds no item;
    /// an empty text gives an empty list. Of a longer delimiter only the first character is consumed: "a;;b" with ";;"
    /// gives "a", ";b".
    /// Lets the host's message loop run once for each item, so it belongs to the user-interface thread. Any failure, of
    /// the message loop too, is shown with the error dialog, and there is no list then.
    static std::optional<std::vector<std::u16string>> ConverterTextoComDelimitadorParaStringList(
        std::u16string_view ATexto, std::u16string_view ADelimitador);
    /// The same split; an empty array after a failure.
    static std::vector<std::u16string> ConverterTextoComDelimitadorParaVetorDeStrings(std::u16string_view ATexto,
                                                                                      std::u16string_view ADelimitador);
    /// A copy of the list as an array.
    static std::vector<std::u16string> ConverterStringListParaVetorDeStrings(
        const std::vector<std::u16string>& AStringList);
    /// A copy of the array as a list.
    static std::vector<std::u16string> ConverterVetorDeStringsParaStringList(const std::vector<std::u16string>& AVetor);
    /// The elements with ADelimitador between them.
    static std::u16string ConverterVetorDeStringsParaTextoComDelimitador(const std::vector<std::u16string>& AVetor,
                                                                         std::u16string_view ADelimitador);
    /// A copy of the array.
    static std::vector<std::u16string> StringToStringDynArray(const std::vector<std::u16string>& AVetor);
    /// Splits a command line at blanks; double quotes hold a token together and are removed: -a "b c" d gives "-a",
    /// "b c", "d". A token ends at its closing quote; an unclosed quote keeps the rest, quote included, as one token.
    /// No list when there is no memory for it.
    static std::optional<std::vector<std::u16string>> ConverterTextoParaListaDeParametros(std::u16string_view ATexto);
    /// Joins tokens into a command line, each with a space behind it. An item that follows one with "-" in front, and
    /// has none itself, is quoted: "-a", "b c", "d" gives -a "b c" d and a space.
    static std::u16string ConverterListaDeParametrosParaTexto(const std::vector<std::u16string>& ALista);
};

extern ORY_API TInstanciaGlobal<TOryUtilsStrings> GOryUtilsStrings;

// Each free function is the operation of TOryUtilsStrings that it calls.

inline std::u16string AllTrim(std::u16string_view ATexto) { return TOryUtilsStrings::AllTrim(ATexto); }
inline std::u16string BuscarPastaDoNivelAnterior(std::u16string_view ACaminho) {
    return TOryUtilsStrings::BuscarPastaDoNivelAnterior(ACaminho);
}
inline int BuscarQuantidadeCaractereNoTexto(std::u16string_view ATexto, char16_t ACaractere) {
    return TOryUtilsStrings::BuscarQuantidadeCaractereNoTexto(ATexto, ACaractere);
}
inline std::u16string ConverterStringListParaTextoComDelimitador(const std::vector<std::u16string>* AStringList,
                                                                 std::u16string_view ADelimitador) {
    return TOryUtilsStrings::ConverterStringListParaTextoComDelimitador(AStringList, ADelimitador);
}
inline std::vector<std::u16string> ConverterStringListParaVetorDeStrings(
    const std::vector<std::u16string>& AStringList) {
    return TOryUtilsStrings::ConverterStringListParaVetorDeStrings(AStringList);
}
inline std::u16string ConverterTeclaVirtualParaCaractere(std::uint16_t ATecla) {
    return TOryUtilsStrings::ConverterTeclaVirtualParaCaractere(ATecla);
}
inline std::optional<std::vector<std::u16string>> ConverterTextoComDelimitadorParaStringList(
    std::u16string_view ATexto, std::u16string_view ADelimitador) {
    return TOryUtilsStrings::ConverterTextoComDelimitadorParaStringList(ATexto, ADelimitador);
}
inline std::unique_ptr<TVetorDeCaracteres> ConverterTextoParaVetorDeCaracteres(std::u16string_view ATexto) {
    return TOryUtilsStrings::ConverterTextoParaVetorDeCaracteres(ATexto);
}
inline std::vector<std::u16string> ConverterVetorDeStringsParaStringList(const std::vector<std::u16string>& AVetor) {
    return TOryUtilsStrings::ConverterVetorDeStringsParaStringList(AVetor);
}
inline bool EhCaractereAcentuadoOuEspecial(char16_t ACaractere) {
    return TOryUtilsStrings::EhCaractereAcentuadoOuEspecial(ACaractere);
}
inline std::u16string FormatarEspacoEmBranco(std::u16string_view ATexto, int ATamanho) {
    return TOryUtilsStrings::FormatarEspacoEmBranco(ATexto, ATamanho);
}
inline std::u16string FormatarInscricaoFederal(TTipoInscricao ATipo, std::u16string_view ANumero) {
    return TOryUtilsStrings::FormatarInscricaoFederal(ATipo, ANumero);
}
inline std::u16string RemoverAcentos(std::u16string_view ATexto) { return TOryUtilsStrings::RemoverAcentos(ATexto); }
inline std::u16string RemoverCaracteres(TCaracteres ACaracteres, std::u16string_view ATexto) {
    return TOryUtilsStrings::RemoverCaracteres(ACaracteres, ATexto);
}
inline std::vector<std::u16string> StringToStringDynArray(const std::vector<std::u16string>& AVetor) {
    return TOryUtilsStrings::StringToStringDynArray(AVetor);
}
inline std::u16string SubstituirCaracteres(std::u16string_view ATexto, std::u16string_view AAntigo,
                                           std::u16string_view ANovo) {
    return TOryUtilsStrings::SubstituirCaracteres(ATexto, AAntigo, ANovo);
}
inline std::u16string SubstituirMultiplosTextos(std::u16string_view ATexto, const std::vector<std::u16string>& AAntigos,
                                                const std::vector<std::u16string>& ANovos, bool AIgnorarCaixa) {
    return TOryUtilsStrings::SubstituirMultiplosTextos(ATexto, AAntigos, ANovos, AIgnorarCaixa);
}
inline bool TextoEhAlfaNumerico(std::u16string_view ATexto) { return TOryUtilsStrings::TextoEhAlfaNumerico(ATexto); }
inline bool TextoEhSomenteCaracteres(std::u16string_view ATexto) {
    return TOryUtilsStrings::TextoEhSomenteCaracteres(ATexto);
}
inline bool TextoEhSomenteNumerico(std::u16string_view ATexto) {
    return TOryUtilsStrings::TextoEhSomenteNumerico(ATexto);
}
inline bool TextoPossuiCaracteres(std::u16string_view ATexto) {
    return TOryUtilsStrings::TextoPossuiCaracteres(ATexto);
}
inline bool TextoPossuiNumeros(std::u16string_view ATexto) { return TOryUtilsStrings::TextoPossuiNumeros(ATexto); }
inline bool TextoPossuiSomenteCaracteresEspeciais(std::u16string_view ATexto) {
    return TOryUtilsStrings::TextoPossuiSomenteCaracteresEspeciais(ATexto);
}

// Older names.

inline std::u16string ClearString(std::u16string_view ATexto) { return TOryUtilsStrings::LimparTexto(ATexto); }
inline std::u16string ClearString(std::u16string_view ATexto, TCaracteres ACaracteres) {
    return TOryUtilsStrings::LimparTexto(ATexto, ACaracteres);
}
inline std::u16string ClearString(std::u16string_view ATexto, const std::vector<std::u16string>& ATextos) {
    return TOryUtilsStrings::LimparTexto(ATexto, ATextos);
}
inline std::u16string ClearStringKeepChars(std::u16string_view ATexto, const TConjuntoCaracteres& ACaracteres) {
    return TOryUtilsStrings::LimparTextoMantendoCaracteres(ATexto, ACaracteres);
}
inline std::u16string ExtractLastDirFromUrl(std::u16string_view AURL) {
    return TOryUtilsStrings::ExtrairUltimaPastaDaURL(AURL);
}
inline std::u16string GetDefaultValue(std::u16string_view AValor, std::u16string_view APadrao) {
    return TOryUtilsStrings::BuscarValorPadrao(AValor, APadrao);
}
inline std::u16string GetMask(TTipoInscricao ATipo) { return TOryUtilsStrings::BuscarMascara(ATipo); }
inline std::u16string GetNewGuid() { return TOryUtilsStrings::BuscarNovoGuid(); }
inline std::u16string GetStringFormatada(std::u16string_view ATexto, int ATamanho, std::u16string_view APreenchimento) {
    return TOryUtilsStrings::BuscarTextoFormatado(ATexto, ATamanho, APreenchimento);
}
inline std::u16string RemoverCaracter(std::u16string_view ATexto, std::u16string_view ACaracteres) {
    return TOryUtilsStrings::RemoverCaractere(ATexto, ACaracteres);
}
inline std::u16string RemoverCaracterSomenteDeStrings(std::u16string_view ATexto, char16_t ACaractere) {
    return TOryUtilsStrings::RemoverCaractereSomenteDeTextos(ATexto, ACaractere);
}
inline std::u16string RepetirCaracter(char16_t ACaractere, int AQuantidade) {
    return TOryUtilsStrings::RepetirCaractere(ACaractere, AQuantidade);
}
inline std::u16string StrCompleteLastChar(char16_t ACaractere, std::u16string_view ATexto) {
    return TOryUtilsStrings::CompletarUltimoCaractereTexto(ACaractere, ATexto);
}

}  // namespace OryUtils

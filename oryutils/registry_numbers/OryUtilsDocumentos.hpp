// Brazil's documents as they are in force, by the name of their kind. Beside the older operations (ValidouCnpjCpf,
// ValidouPIS, ValidouIE ...), which keep their laxer rules: here zeros and repeated digits are refused.
#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/registry_numbers/MotivoRecusa.hpp"
#include "oryutils/runtime/Controle.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// One fact that a document carries: {u"UF", u"SP"}.
struct TFatoDocumento {
    std::u16string Nome, Texto;
    bool operator==(const TFatoDocumento&) const = default;
};

/// What there is to know of a kind of document, in Portuguese; see docs/documentos.md, which is made from it.
struct TDescricaoDocumento {
    std::u16string Nome;      ///< u"cpf"
    std::u16string Titulo;    ///< u"CPF"
    std::u16string Palavras;  ///< by which people call it, parted by blanks, in small letters without accents
    std::u16string Forma;     ///< u"11 dígitos"
    std::u16string Mascara;   ///< an example in its mask
    std::u16string Regra;
    std::u16string Fonte;
    std::u16string Contexto;  ///< u"", u"UF" or u"UF, se houver"
};

/// The kinds, by these names: cpf, cnpj (of digits, or of letters and digits), cpf_cnpj, ie (context: the UF), pis,
/// cei, cno, caepf, cnh, renavam, placa, titulo_eleitor, cns, municipio, cep (context: the UF, may be left out),
/// telefone, email, chave_dfe, boleto, arrecadacao, pix, pix_copia_e_cola, gtin, ncm, cfop, cest, cnae, processo, iban,
/// cartao.
///
/// Blanks, ".", "-" and "/" are dropped wherever they stand, but not inside of e-mails and Pix texts. Small letters
/// count as capitals. Any other character is refused. The context is the UF in two letters; kinds that have none pass
/// over it. No operation raises for any number or context. Each raises Exception, with the names to choose from, for
/// the name of a kind that does not exist. They may run on any thread; those that answer a verdict never allocate.
class ORY_API TOryUtilsDocumentos {
public:
    /// Example:  ValidouDocumento(u"cnpj", u"12.ABC.345/01DE-35")  ->  true
    static bool ValidouDocumento(std::u16string_view ATipo, std::u16string_view ANumero,
                                 std::u16string_view AContexto = u"");
    /// mrNenhum for a valid number, otherwise the first reason that refuses it.
    static TMotivoRecusa BuscarMotivoRecusa(std::u16string_view ATipo, std::u16string_view ANumero,
                                            std::u16string_view AContexto = u"");
    /// The reason as a sentence for people; empty for a valid number.
    /// Example:  BuscarTextoMotivoRecusa(u"cpf", u"123")  ->  u"O CPF deve ter 11 dígitos."
    static std::u16string BuscarTextoMotivoRecusa(std::u16string_view ATipo, std::u16string_view ANumero,
                                                  std::u16string_view AContexto = u"");
    /// A valid number as people write it; the text exactly as it came where it is not valid or has no mask.
    /// Example:  FormatarDocumento(u"ncm", u"84713012")  ->  u"8471.30.12"
    static std::u16string FormatarDocumento(std::u16string_view ATipo, std::u16string_view ANumero,
                                            std::u16string_view AContexto = u"");
    /// A valid number as it is stored: without blanks and marks, in capitals; a phone without the country's code. The
    /// text exactly as it came where it is not valid.
    static std::u16string LimparDocumento(std::u16string_view ATipo, std::u16string_view ANumero,
                                          std::u16string_view AContexto = u"");
    /// A valid made-up number, as LimparDocumento gives it. One seed makes one number, on every system. Empty where the
    /// kind needs a context and AContexto is none.
    static std::u16string GerarDocumento(std::u16string_view ATipo, std::int64_t ASemente,
                                         std::u16string_view AContexto = u"");
    /// What a valid number tells: of a fiscal key UF, month, issuer, model, series and number; of a bank slip bank, due
    /// date and amount; of a collection slip segment and amount; of a Pix text key, amount, receiver, city, identifier;
    /// of a lawsuit year, court and origin; of an IBAN bank, branch and account; of a postcode its UF; of a phone area
    /// and kind. Empty for other kinds and for a number that is not valid. The due date of a bank slip is counted in
    /// days since 2025-02-22 or, when that lies too far ahead of today, since the count before.
    static std::vector<TFatoDocumento> InterpretarDocumento(std::u16string_view ATipo, std::u16string_view ANumero);

    /// The names of the kinds, in the order of the table.
    static std::vector<std::u16string> BuscarTiposDocumento();
    static TDescricaoDocumento BuscarDescricaoDocumento(std::u16string_view ATipo);

    /// ValidouDocumento, and a false verdict is reported as TOryUtilsValidacoes reports, when its check applies: focus,
    /// the sentence of BuscarTextoMotivoRecusa as a warning, EAbort. A blank number is false and not reported.
    static bool ValidarNumeroDocumento(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATipo,
                                       std::u16string_view ANumero, std::u16string_view AContexto = u"");
};

/// The same as free functions.
inline bool ValidouDocumento(std::u16string_view ATipo, std::u16string_view ANumero,
                             std::u16string_view AContexto = u"") {
    return TOryUtilsDocumentos::ValidouDocumento(ATipo, ANumero, AContexto);
}
inline std::u16string FormatarDocumento(std::u16string_view ATipo, std::u16string_view ANumero,
                                        std::u16string_view AContexto = u"") {
    return TOryUtilsDocumentos::FormatarDocumento(ATipo, ANumero, AContexto);
}

}  // namespace OryUtils

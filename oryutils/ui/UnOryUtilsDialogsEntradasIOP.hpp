#pragma once

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Evento.hpp"

#include <string>
#include <vector>

namespace OryUtils {

/// What a picker is asked for. All of it is input, and all of it may stay empty.
struct TOryUtilsDialogsSelecaoIOP {
    std::u16string Titulo{};        ///< empty: the usual one
    std::u16string PastaInicial{};  ///< where the picker opens; empty: where the system thinks best
    /// The user chooses one of these, the first at first; empty shows every file. {{u"Textos", u"*.txt;*.csv"}}
    std::vector<TFiltroArquivo> Filtros{};
    /// Of EscolherArquivoParaSalvar: the name offered, without a folder. What no file name may have becomes "_".
    std::u16string NomeSugerido{};
    /// Of EscolherArquivoParaSalvar: put behind a name that has no extension; "txt", without the point.
    std::u16string ExtensaoPadrao{};

    void Assign(const TOryUtilsDialogsSelecaoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsSelecaoIOP&) const = default;
};

/// What a line of text must be. The kinds of registry numbers have the masks and rules of oryutils/registry_numbers.
enum TTipoTexto : int {
    ttLivre,     ///< any text, or one in the mask of the caller
    ttInteiro,   ///< answered as digits with or without "-"
    ttNumero,    ///< answered without thousands, with the decimal separator of the process-wide formats: "1234,5"
    ttData,      ///< these three as the process-wide formats write them: "31/12/2024"
    ttHora,      ///< "23:59:00"
    ttDataHora,  ///< "31/12/2024 23:59:00"
    ttCPF,       ///< the numbers are answered without their marks: "52998224725"
    ttCNPJ,      ///< also of letters and digits
    ttCpfCnpj,
    ttCEP,
    ttFone,  ///< with an area code of two digits, see FormatarFoneDDD
    ttPIS,
    ttCEI,
    ttCNH,
    ttEmail,
};

/// A line of text.
struct TOryUtilsDialogsPedidoTextoIOP {
    std::u16string Titulo{};
    std::u16string Pergunta{};
    TTipoTexto Tipo = ttLivre;
    /// Of ttLivre: an edit mask (see TMascara); empty for none.
    std::u16string Mascara{};
    /// The text shows as dots, or not at all on a terminal; no mask then.
    bool Senha = false;
    /// A blank text is refused.
    bool Obrigatorio = false;
    /// A check of the caller's own, after the others: the value as it would be answered, and out the sentence that
    /// refuses it; empty accepts.
    TEvento<const std::u16string&, std::u16string&> OnConferir{};

    void Assign(const TOryUtilsDialogsPedidoTextoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsPedidoTextoIOP&) const = default;
};

/// A text of several lines.
struct TOryUtilsDialogsPedidoLinhasIOP {
    std::u16string Titulo{};
    std::u16string Pergunta{};
    /// A text of blanks alone is refused.
    bool Obrigatorio = false;

    void Assign(const TOryUtilsDialogsPedidoLinhasIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsPedidoLinhasIOP&) const = default;
};

/// One item of a list, or several.
struct TOryUtilsDialogsPedidoEscolhaIOP {
    std::u16string Titulo{};
    std::u16string Pergunta{};
    /// Shown as written, "&" too; controls, line breaks among them, show as blanks.
    std::vector<std::u16string> Itens{};
    bool Varios = false;
    /// Of several: none is refused. Of one, it always is.
    bool Obrigatorio = false;

    void Assign(const TOryUtilsDialogsPedidoEscolhaIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsPedidoEscolhaIOP&) const = default;
};

}  // namespace OryUtils

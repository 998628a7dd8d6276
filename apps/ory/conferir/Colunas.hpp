#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Ory {

/// One field of a record, ready for the rule of its column.
struct TCampo {
    std::string_view Bytes;  // trimmed, not empty; UTF-8 or Windows-1252
    std::string_view UfDoRegistro;

    std::u16string Decodificar() const;
};

/// The rule of a kind of column: whether the field is valid. A valid one is appended to AFormatado, where there is one,
/// in its display form. EConvertError stands for false.
using TRegraDeColuna = bool(const TCampo& ACampo, std::string* AFormatado);

/// A kind of column. All that the command knows of one stands in its row of the table, in Colunas.cpp.
struct TTipoColuna {
    std::string_view Nome;
    std::string_view Cabecalhos;  // other headers that tell it, normalized, with a blank between two
    TRegraDeColuna& Regra;
    bool PedeUf = false;  // the rule looks at the UF of the record
};

/// The kinds that are checked. Each has a rule: a row without one does not compile.
std::span<const TTipoColuna> BuscarTipos() noexcept;

/// What a column is for: it is checked as Tipo, or it tells the UF of its record, or nothing (none of both).
struct TPapelDaColuna {
    const TTipoColuna* Tipo = nullptr;
    bool EhUf = false;
};

/// The role by its name: the kind of that name, "uf", or "nenhum". Raises EFalha for any other name.
TPapelDaColuna BuscarPapel(std::string_view ANome);
/// The role by the header of the column, UTF-8 or Windows-1252: letter case, accents and punctuation play no part.
TPapelDaColuna ReconhecerCabecalho(std::string_view ACabecalho);
/// The names of all roles, for people: "cnpj, cpf, ...".
std::string ListarPapeis();
/// Whether two headers are the same column for people: letter case, accents and punctuation play no part.
bool EhMesmoCabecalho(std::string_view AUm, std::string_view AOutro);

enum TVeredito : int { veVazio, veValido, veInvalido };

/// The verdict on one field, bytes of UTF-8 or Windows-1252. A valid one is appended to AFormatado, where there is one,
/// in its display form: UTF-8, addresses in the encoding of the file. Never throws for any bytes.
TVeredito Conferir(const TTipoColuna& ATipo, std::string_view ACampo, std::string_view AUf,
                   std::string* AFormatado = nullptr);

}  // namespace Ory

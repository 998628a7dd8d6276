#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Ory {

/// What a column holds.
enum TTipoColuna : int {
    tcNenhum,
    tcCnpj,
    tcCpf,
    tcDocumento,  // CPF or CNPJ, told apart by the length
    tcIe,
    tcUf,  // goes with the state registration; not checked itself
    tcPis,
    tcCei,
    tcCno,
    tcCnh,
    tcMunicipio,
    tcEmail,
    tcEmails,  // several, parted by ";" or ","
    tcCrc,
    tcData,
    tcHora,
    tcIp,
    tcCep,
    tcTelefone,
    tcCompetencia,  // month and year
    tcNcm,
};

enum TVeredito : int { veVazio, veValido, veInvalido };

/// The type of that name ("cnpj", "ie", "nenhum"); none when there is no such type.
std::optional<TTipoColuna> BuscarTipo(std::string_view ANome);
std::string_view BuscarNomeDoTipo(TTipoColuna ATipo);
/// The names of the types that a column can be told to be, for people: "cnpj, cpf, ...".
std::string ListarTipos();

/// The type of a column by its header, UTF-8 or Windows-1252: letter case, accents and punctuation play no part.
/// tcNenhum for any other header.
TTipoColuna ReconhecerCabecalho(std::string_view ACabecalho);
/// Whether two headers are the same column for people: letter case, accents and punctuation play no part.
bool EhMesmoCabecalho(std::string_view AUm, std::string_view AOutro);

/// The verdict on one field, bytes of UTF-8 or Windows-1252. AUf counts for a state registration only. The operations
/// of the library decide; an exempt state registration is valid. Never throws for any bytes.
TVeredito Conferir(TTipoColuna ATipo, std::string_view ACampo, std::string_view AUf);
/// Appends the valid field in its display form: CNPJ, CPF, CEI, postcode, phone, period and NCM with their marks, a
/// date as dd/mm/yyyy; addresses as they stand, in the encoding of the file; the others bare.
void EscreverFormatado(std::string& ASaida, TTipoColuna ATipo, std::string_view ACampo);

}  // namespace Ory

#pragma once

#include "pesquisa/Banco.hpp"

#include <filesystem>

namespace Exemplos {

/// The rows of a CSV file with commas, its header left out.
std::vector<TLinha> LerCsv(const std::filesystem::path& AArquivo);

/// Brazil's municipalities: code, name, state.
std::vector<TLinha> LerMunicipios(const std::filesystem::path& APasta);
/// Brazil's banks: name, CNPJ, and the short name where the name ends in "S.A.", else null.
std::vector<TLinha> LerBancos(const std::filesystem::path& APasta);

/// Creates the tables MUNICIPIO (CODIGO, NOME, UF) and BANCO (NOME, CNPJ, APELIDO) and fills them from the files of
/// APasta.
void CriarTabelas(TBanco& ABanco, const std::filesystem::path& APasta);

}  // namespace Exemplos

#pragma once

#include "oryutils/runtime/Excecoes.hpp"

#include <filesystem>
#include <ibase.h>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Exemplos {

/// Null is none.
using TCelula = std::optional<std::u16string>;
using TLinha = std::vector<TCelula>;

/// What the database refused, in its own words.
class EBanco : public OryUtils::Exception {
public:
    using Exception::Exception;
    const char* GetNomeDaClasse() const noexcept override { return "EBanco"; }
};

/// A Firebird database file, opened by the client library itself: no server runs. Texts travel in UTF-8; every value
/// comes back as text. Each operation is a transaction of its own, undone when it fails.
class TBanco {
public:
    /// A new database in AArquivo; a file of that name is replaced.
    static TBanco Criar(const std::filesystem::path& AArquivo);
    /// The database of AArquivo, which must exist.
    static TBanco Abrir(const std::filesystem::path& AArquivo);

    TBanco(TBanco&& AOutro) noexcept : FConexao(std::exchange(AOutro.FConexao, 0)) {}
    TBanco& operator=(TBanco&&) = delete;
    ~TBanco();

    /// A statement without result.
    void Executar(std::u16string_view ASql);
    /// The rows that ASql selects.
    std::vector<TLinha> Consultar(std::u16string_view ASql);
    /// Runs ASql, which has a "?" for each value of a row, once for each row.
    void ExecutarParaCada(std::u16string_view ASql, const std::vector<TLinha>& ALinhas);

private:
    explicit TBanco(isc_db_handle AConexao) : FConexao(AConexao) {}

    isc_db_handle FConexao;
};

}  // namespace Exemplos

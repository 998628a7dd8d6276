#pragma once

#include "Fluxos.hpp"
#include "conferir/Codificacao.hpp"
#include "conferir/Colunas.hpp"
#include "conferir/Csv.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Ory {

/// What to check and how. The defaults detect everything.
struct TOpcoesDeConferencia {
    char Delimitador = 0;  // 0: detected
    TCodificacao Codificacao = coDetectar;
    bool SemCabecalho = false;  // the first record is data; columns go by their position, from 1
    /// Columns told by the caller: header or position, and role. The role of none leaves a recognised column out.
    std::vector<std::pair<std::string, TPapelDaColuna>> Colunas{};
    std::string Uf{};         // for state registrations in a file without a column for it
    std::size_t Mostrar = 5;  // offenders kept for each column
    bool VazioVale = false;   // a file without records is no failure
    TLimites Limites{};
    /// Called now and then with the bytes read so far.
    std::function<void(std::uint64_t)> AoProgredir{};
};

struct TInfrator {
    std::uint64_t Linha;
    std::string Valor;  // bytes of the file, at most CMaiorValorMostrado
};
inline constexpr std::size_t CMaiorValorMostrado = 256;

struct TResumoDeColuna {
    std::string Nome{};                 // UTF-8
    const TTipoColuna* Tipo = nullptr;  // one of BuscarTipos
    std::uint64_t Validos = 0;
    std::uint64_t Invalidos = 0;
    std::uint64_t Vazios = 0;
    std::vector<TInfrator> Primeiros{};
};

struct TRegistroDesigual {
    std::uint64_t Linha;
    std::size_t Campos;
};

struct TResumo {
    TCodificacao Codificacao = coUtf8;
    bool PossuiMarcaUtf8 = false;
    char Delimitador = ';';
    std::size_t Campos = 0;       // of the header, or of the first record
    std::uint64_t Registros = 0;  // without the header and blank lines
    std::uint64_t LinhasEmBranco = 0;
    std::vector<TResumoDeColuna> Colunas{};
    std::uint64_t Desiguais = 0;  // records with another number of fields than Campos
    std::vector<TRegistroDesigual> PrimeirosDesiguais{};
    std::vector<std::string> NaoConferidas{};  // names of the other columns, UTF-8
    bool VazioVale = false;                    // a file without records is no failure

    bool EstahVazio() const noexcept { return Registros == 0 && !VazioVale; }
    /// Of what was checked; false where nothing was.
    bool EstahTudoValido() const noexcept;
};

/// Checks the CSV that AEntrada gives. ASaida, when given, receives every record as it came with a verdict ("valido",
/// "invalido", "vazio") and a formatted column (empty unless valid) added for each checked column: ASCII, so right in
/// either encoding. A record that is too short is completed with empty fields first.
/// Memory does not depend on the size of the input. Raises EFalha for what cannot be read or makes no sense: no column
/// to check, a column that is not there, quotes never closed, a record longer than the limit.
TResumo ConferirCsv(TEntrada& AEntrada, TSaida* ASaida, const TOpcoesDeConferencia& AOpcoes);

struct TResumoDeVereditos {
    std::uint64_t Validos = 0;
    std::uint64_t Outros = 0;
};

/// The bare stream: one number a line in, "1" (valid) or "0" (invalid or empty) a line out.
TResumoDeVereditos EscreverVereditos(TEntrada& AEntrada, TSaida& ASaida, const TTipoColuna& ATipo,
                                     const TOpcoesDeConferencia& AOpcoes);

}  // namespace Ory

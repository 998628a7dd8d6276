#pragma once

#include "Leitura.hpp"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The CSV of the command: RFC 4180, read with indulgence.
//   - A record ends at LF or CR LF outside quotes; a CR alone is data, but in a file without any LF it ends a record.
//   - A first line "sep=;", as spreadsheets write it, tells the delimiter and is no record.
//   - A field is quoted when its first character is a quote. Inside the quotes two quotes stand for one. The text
//     between the closing quote and the delimiter is added to the value. A quote elsewhere is data.

namespace Ory {

struct TLimites {
    std::size_t Bloco = std::size_t{256} << 10;    // bytes read at a time
    std::size_t Registro = std::size_t{16} << 20;  // the longest record accepted
};

/// Raises EFalha for the record on that line, which is longer than the limit.
[[noreturn]] void RecusarRegistroLongo(std::uint64_t ALinha, const TLimites& ALimites);

/// Skips a mark of UTF-8 at the start of an input; true when it was there. Raises EFalha when the mark is one of
/// UTF-16.
bool PularMarcaDeCodificacao(TBytesLidos& ABytes);

/// Of ";", ",", tab and "|" the one that the first record has and that the next ones have as often; ";" when there is
/// none. Quoted ones do not count.
char DetectarDelimitador(std::string_view AInicio, char AQuebra = '\n') noexcept;

/// Reads the records of an input.
class TLeitorDeRegistros {
public:
    /// ADelimitador    0: detected by the first block of the input.
    /// AMaximoDeCampos  how many fields of a record are kept; the others are only counted.
    /// Skips a mark of UTF-8 at the start. Raises EFalha when the mark is one of UTF-16.
    TLeitorDeRegistros(TEntrada& AEntrada, char ADelimitador, std::size_t AMaximoDeCampos, TLimites ALimites = {});

    /// Goes to the next record; false at the end. Raises EFalha for a record whose quotes never close, and for one
    /// longer than the limit.
    bool Proximo();
    void SetMaximoDeCampos(std::size_t AMaximo) noexcept { FMaximoDeCampos = AMaximo; }

    // Of the record. Valid until the next Proximo.
    std::span<const std::string_view> GetCampos() const noexcept { return FCampos; }
    std::size_t GetTotalDeCampos() const noexcept { return FTotalDeCampos; }
    /// The bytes of the record without its line end, and the line end: "\n", "\r\n" or "".
    std::string_view GetTexto() const noexcept { return FTexto; }
    std::string_view GetFimDeLinha() const noexcept { return FFimDeLinha; }
    /// The line on which the record starts, from 1.
    std::uint64_t GetLinha() const noexcept { return FLinha; }

    char GetDelimitador() const noexcept { return FDelimitador; }
    /// The line "sep=;" that stood before the first record, with its end; empty when there was none.
    const std::string& GetLinhaDoDelimitador() const noexcept { return FLinhaDoDelimitador; }
    bool PossuiMarcaUtf8() const noexcept { return FPossuiMarcaUtf8; }
    std::uint64_t GetBytesLidos() const noexcept { return FBytes.GetTotal(); }

private:
    void DetectarQuebra();
    void LerLinhaDoDelimitador();
    void LerBloco(std::size_t AQuantos);
    bool Dividir(std::string_view ABytes);
    std::size_t LerCampoEntreAspas(std::string_view ABytes, std::size_t AInicio, std::string_view& ACampo);
    std::size_t BuscarFimDoCampo(std::string_view ABytes, std::size_t AInicio) const noexcept;

    TBytesLidos FBytes;
    char FDelimitador;
    std::size_t FMaximoDeCampos;
    TLimites FLimites;
    bool FPossuiMarcaUtf8 = false;
    char FQuebra = '\n';
    std::string FLinhaDoDelimitador{};

    std::vector<std::string_view> FCampos{};
    std::size_t FTotalDeCampos = 0;
    std::string_view FTexto{};
    std::string_view FFimDeLinha{};
    std::uint64_t FLinha = 1;
    std::uint64_t FQuebras = 0;              // lines that end in the record, its own end included
    bool FFaltaAspa = false;                 // the last field read never closes its quotes
    std::deque<std::string> FDesdobrados{};  // values that are not a part of the text
};

/// Appends ACampo, in quotes where it needs them.
void EscreverCampo(std::string& ASaida, std::string_view ACampo, char ADelimitador);

}  // namespace Ory

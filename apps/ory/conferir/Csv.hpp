#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The CSV of the command: RFC 4180, read with indulgence.
//   - A record ends at LF or CR LF outside quotes; a CR alone is data.
//   - A field is quoted when its first character is a quote; inside, two quotes are one. What stands between the
//     closing quote and the delimiter is added to the value. A quote elsewhere is data.

namespace Ory {

/// "," when there are more of them than ";" in the first record, else ";". Quoted ones do not count.
char DetectarDelimitador(std::string_view AInicio) noexcept;

/// Finds where records end while the text arrives in parts. It remembers where it is between two parts.
class TCortadorDeRegistros {
public:
    explicit TCortadorDeRegistros(char ADelimitador) noexcept : FDelimitador(ADelimitador) {}

    /// Goes on with APedaco. The size of its front that ends with a record; 0 when no record ends in it.
    std::size_t Cortar(std::string_view APedaco) noexcept;
    /// True when the text so far ends inside quotes.
    bool EstahEntreAspas() const noexcept { return FEstado == eaEntreAspas; }

private:
    enum TEstado : std::uint8_t { eaInicioDeCampo, eaForaDeAspas, eaEntreAspas, eaAspaVista };

    char FDelimitador;
    TEstado FEstado = eaInicioDeCampo;
};

/// Reads the records of a text that holds whole records (the last one may lack its line end).
class TLeitorDeRegistros {
public:
    /// AMaximoDeCampos  how many fields of a record are kept; the others are only counted.
    TLeitorDeRegistros(std::string_view ADados, char ADelimitador, std::size_t AMaximoDeCampos);

    /// Goes to the next record; false at the end. What it gave of the record before is no longer valid.
    bool Proximo();

    std::span<const std::string_view> GetCampos() const noexcept { return FCampos; }
    std::size_t GetTotalDeCampos() const noexcept { return FTotalDeCampos; }
    /// The bytes of the record without its line end, and the line end: "\n", "\r\n" or "".
    std::string_view GetTexto() const noexcept { return FTexto; }
    std::string_view GetFimDeLinha() const noexcept { return FFimDeLinha; }
    /// LFs in the record, its line end included.
    std::uint64_t GetQuebras() const noexcept { return FQuebras; }

private:
    void LerSemAspas();
    void LerComAspas();
    std::size_t LerCampoEntreAspas(std::size_t AInicio);
    void Juntar(std::string_view ACampo);
    void Fechar(std::size_t ATamanho);

    std::string_view FResto;
    char FDelimitador;
    bool FTemAspas;
    std::size_t FMaximoDeCampos;
    std::vector<std::string_view> FCampos{};
    std::size_t FTotalDeCampos = 0;
    std::string_view FTexto{};
    std::string_view FFimDeLinha{};
    std::uint64_t FQuebras = 0;
    std::string FDesdobrado{};  // fields whose value is not a part of the text
};

/// Appends ACampo, in quotes where it needs them.
void EscreverCampo(std::string& ASaida, std::string_view ACampo, char ADelimitador);

}  // namespace Ory

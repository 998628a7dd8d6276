#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// The bytes of a log as its file holds them, each line with its end.
struct TTextoPronto {
    std::string_view Bytes;
    /// While this number stands, Bytes only grows behind what it was.
    std::uint64_t Geracao;
};

/// The lines of a log, kept as the text ready for writing, which grows with each line. A line of ASCII, which every
/// encoding holds as it is, lives in that text alone; of another the characters are kept too.
class TLinhasDoLog {
public:
    std::size_t GetQuantidade() const noexcept { return FLinhas.size(); }
    /// Costs the length of the line.
    void Adicionar(std::u16string_view ALinha);
    /// ALinha becomes line AIndice, at most GetQuantidade(). Anywhere but at the end all text behind it moves.
    void Inserir(std::size_t AIndice, std::u16string_view ALinha);
    void Limpar();
    /// The lines of AOutras, of the same encoding, come before these.
    void ColocarAntes(TLinhasDoLog&& AOutras);
    /// The lines with the system's line break between them.
    std::u16string GetTexto() const;

    TCodificacaoLog GetCodificacao() const noexcept { return FCodificacao; }
    void SetCodificacao(TCodificacaoLog ACodificacao);
    /// The text of the file: GetTexto and one line break. Valid until the next change.
    TTextoPronto BuscarTextoPronto();

private:
    struct TLinha {
        std::size_t Inicio;                        // in FPronto
        std::unique_ptr<std::u16string> Original;  // of a line that is not ASCII
    };

    std::string_view BuscarBytes(std::size_t AIndice) const noexcept;

    std::vector<TLinha> FLinhas{};
    std::string FPronto{};
    std::uint64_t FGeracao = 0;
    TCodificacaoLog FCodificacao = clPadrao;
};

}  // namespace OryUtils

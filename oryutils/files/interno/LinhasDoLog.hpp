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

/// The lines of a log, kept as the text ready for writing, which grows with each line. Of a line with characters that
/// the encoding lacks the characters are kept, too.
class TLinhasDoLog {
public:
    std::size_t GetQuantidade() const noexcept { return FLinhas.size(); }
    /// Costs the length of the line.
    void Adicionar(std::u16string_view ALinha);
    /// A line of a file: its bytes stay, whether the encoding knows them or not.
    void AdicionarBytes(std::string_view ALinha);
    /// ALinha becomes line AIndice, at most GetQuantidade(). Anywhere but at the end all text behind it moves.
    void Inserir(std::size_t AIndice, std::u16string_view ALinha);
    void Limpar();
    /// The lines of AOutras, of the same encoding, come before these.
    void ColocarAntes(TLinhasDoLog&& AOutras);
    /// The lines with the system's line break between them.
    std::u16string GetTexto() const;

    TCodificacaoLog GetCodificacao() const noexcept { return FCodificacao; }
    /// Writes every line in the encoding. Bytes of a file that were none of a text in the old one stay as they are.
    void SetCodificacao(TCodificacaoLog ACodificacao);
    /// The text of the file: GetTexto and one line break. Valid until the next change.
    TTextoPronto BuscarTextoPronto();

private:
    struct TLinha {
        std::size_t Inicio;                        // in FPronto
        std::unique_ptr<std::u16string> Original;  // of a line with characters that the encoding lacks
    };

    std::string_view BuscarBytes(std::size_t AIndice) const noexcept;

    std::vector<TLinha> FLinhas{};
    std::string FPronto{};
    std::uint64_t FGeracao = 0;
    TCodificacaoLog FCodificacao = clPadrao;
};

}  // namespace OryUtils

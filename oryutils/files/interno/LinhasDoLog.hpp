#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace OryUtils {

/// The bytes of a log as its file holds them, each line with its end.
struct TTextoPronto {
    std::string_view Bytes;
    /// While this number stands, Bytes only grows behind what it was.
    std::uint64_t Geracao;
};

/// The lines of an existing log in the bytes of its file, each with the system's line break behind it.
struct TLinhasCarregadas {
    std::string Bytes{};
    std::size_t Quantidade = 0;
};

/// The lines of a log, kept as the text ready for writing, which grows with each line: a big log costs hardly more than
/// its file. A line that its bytes alone do not tell has an entry beside them.
class TLinhasDoLog {
public:
    std::size_t GetQuantidade() const noexcept { return FQuantidade; }
    /// Costs the length of the line.
    void Adicionar(std::u16string_view ALinha);
    /// ALinha becomes line AIndice, at most GetQuantidade(). Anywhere but at the end the lines before it are counted
    /// and those behind it move.
    void Inserir(std::size_t AIndice, std::u16string_view ALinha);
    void Limpar();
    /// The lines of an existing log come before these. Their bytes stay, whether the encoding knows them or not.
    void ColocarAntes(TLinhasCarregadas&& ALinhas);
    /// The lines with the system's line break between them.
    std::u16string GetTexto() const;

    TCodificacaoLog GetCodificacao() const noexcept { return FCodificacao; }
    /// Writes every line in the encoding. Bytes of a file that were none of a text in the old one stay as they are.
    void SetCodificacao(TCodificacaoLog ACodificacao);
    /// The text of the file: GetTexto and one line break. Valid until the next change.
    TTextoPronto BuscarTextoPronto();

private:
    /// A line with a line break inside, or with characters that the encoding lacks.
    struct TEspecial {
        std::size_t Tamanho;                       // of its bytes
        std::unique_ptr<std::u16string> Original;  // where characters lack
    };
    struct TLinha {
        std::string_view Bytes;
        const std::u16string* Original;
    };

    void AdicionarBytes(std::string_view ALinha);
    /// The line that begins at AInicio.
    TLinha BuscarLinha(std::size_t AInicio) const;
    /// Where the line behind it begins.
    std::size_t BuscarProxima(std::size_t AInicio) const;
    /// The entries from ADe on are of lines that have moved by AQuanto.
    void MoverEspeciais(std::size_t ADe, std::size_t AQuanto);

    std::string FPronto{};
    std::size_t FQuantidade = 0;
    std::map<std::size_t, TEspecial> FEspeciais{};  // by where the line begins in FPronto
    std::uint64_t FGeracao = 0;
    TCodificacaoLog FCodificacao = clPadrao;
};

}  // namespace OryUtils

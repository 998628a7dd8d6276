#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"

#include <cstddef>
#include <cstdint>
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

/// The lines of a log, and beside them the text ready for writing, which grows with each line.
class TLinhasDoLog {
public:
    std::size_t GetQuantidade() const noexcept { return FLinhas.size(); }
    /// Costs the length of the line.
    void Adicionar(std::u16string ALinha);
    /// ALinha becomes line AIndice, at most GetQuantidade(). Anywhere but at the end all lines behind it move, and the
    /// next BuscarTextoPronto makes the text anew.
    void Inserir(std::size_t AIndice, std::u16string ALinha);
    void Substituir(std::vector<std::u16string> ALinhas);
    void Limpar() { Substituir({}); }
    /// The lines with the system's line break between them.
    std::u16string GetTexto() const;

    TCodificacaoLog GetCodificacao() const noexcept { return FCodificacao; }
    void SetCodificacao(TCodificacaoLog ACodificacao);
    /// The text of the file: GetTexto and one line break. Valid until the next change.
    TTextoPronto BuscarTextoPronto();

private:
    void Refazer() noexcept;
    void Codificar(std::u16string_view ALinha);

    std::vector<std::u16string> FLinhas{};
    std::string FPronto{};
    std::size_t FProntas = 0;  // lines that FPronto holds
    std::uint64_t FGeracao = 0;
    TCodificacaoLog FCodificacao = clPadrao;
};

}  // namespace OryUtils

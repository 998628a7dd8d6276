#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The file version in the fixed part of a version resource: four numbers of 16 bits in two halves.
struct TVersaoFixa {
    std::uint32_t MaisSignificativa, MenosSignificativa;
};

/// The language and the code page of a translation.
struct TTraducao {
    std::uint16_t Idioma, PaginaDeCodigo;
};

/// The bytes of a version resource: a tree of nodes, each with a key, a value and children, all of them lengths and
/// texts of the maker's. Borrows the bytes. Any bytes may come; where they contradict themselves there is no answer.
class TBlocoDeVersao {
public:
    explicit TBlocoDeVersao(std::span<const char> ABytes) : FBytes(ABytes) {}

    // As those of TVersaoDeArquivo.
    std::optional<TVersaoFixa> ConsultarFixa() const;
    std::optional<TTraducao> ConsultarTraducao() const;
    std::optional<std::u16string> ConsultarTexto(std::u16string_view ATabela, std::u16string_view AChave) const;

private:
    /// Places in FBytes; none is sure to be inside.
    struct TNo {
        std::size_t Valor;
        std::size_t TamanhoDoValor;  // bytes, or characters of a text
        std::size_t Filhos;
        std::size_t Fim;
    };
    std::optional<TNo> LerNo(std::size_t AInicio) const;
    std::optional<TNo> AcharFilho(const TNo& APai, std::u16string_view AChave) const;
    std::optional<TNo> Achar(std::u16string_view AGrupo, std::u16string_view ATabela = {},
                             std::u16string_view AChave = {}) const;
    /// The node at AInicio has the key AChave, in any letter case.
    bool TemChave(std::size_t AInicio, std::u16string_view AChave) const;
    /// Up to where the value has bytes, of the AQuantidade that it says it has.
    std::span<const char> LerValor(const TNo& ANo, std::size_t AQuantidade) const;

    std::span<const char> FBytes;
};

}  // namespace OryUtils::Interno

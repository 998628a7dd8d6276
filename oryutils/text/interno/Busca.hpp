#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

inline constexpr std::size_t CNaoEncontrado = std::u16string_view::npos;

/// Finds a text by reading each character once (Knuth, Morris, Pratt). A state is how many characters of the text
/// searched for have just been read.
class TAutomato {
public:
    explicit TAutomato(std::u16string APadrao);

    std::size_t GetTamanho() const { return FPadrao.size(); }
    /// The state after ACaractere; GetTamanho() means that an occurrence ends here.
    std::size_t Avancar(std::size_t AEstado, char16_t ACaractere) const;

private:
    std::u16string FPadrao;
    std::vector<std::size_t> FRecuos;  // by state: the longest shorter state that the same reading also is
};

/// Walks the occurrences of APadrao in ATexto, first to last, overlapping ones too, in linear time altogether.
/// An empty APadrao occurs nowhere. Borrows ATexto.
class TOcorrencias {
public:
    TOcorrencias(std::u16string_view ATexto, std::u16string_view APadrao, bool AIgnorarCaixa = false);

    /// Where the next occurrence starts, from 0, or CNaoEncontrado.
    std::size_t Proxima();
    /// The next occurrence does not overlap the last one.
    void SaltarUltima();

private:
    std::u16string_view FTexto;
    TAutomato FAutomato;
    bool FIgnorarCaixa;
    std::size_t FPosicao = 0;
    std::size_t FEstado = 0;
};

/// Where APadrao first occurs, from 0, or CNaoEncontrado.
std::size_t Localizar(std::u16string_view ATexto, std::u16string_view APadrao, bool AIgnorarCaixa = false);

/// ATexto with every occurrence of AAntigo replaced, left to right, without looking at what was put in.
std::u16string SubstituirTodos(std::u16string_view ATexto, std::u16string_view AAntigo, std::u16string_view ANovo,
                               bool AIgnorarCaixa = false);

}  // namespace OryUtils::Interno

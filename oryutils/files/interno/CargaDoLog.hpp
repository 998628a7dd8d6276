#pragma once

#include "oryutils/files/interno/LinhasDoLog.hpp"
#include "oryutils/platform/Fluxo.hpp"

#include <cstdint>
#include <optional>
#include <string_view>

namespace OryUtils {

enum TLogExistente : int {
    leAberto,
    leSemArquivo,  ///< no file of that name
    leIlegivel,    ///< it is there and cannot be opened now: no right, or another program keeps it for itself
};
TLogExistente AbrirLogExistente(Interno::TFluxo& AFluxo, std::u16string_view AArquivo);
/// The lines of an open log that is to be continued in the encoding; none when it cannot be read.
std::optional<TLinhasCarregadas> LerLogExistente(Interno::TFluxo& AFluxo, TCodificacaoLog ACodificacao);

/// Parts the bytes of a log into lines as they come. CR, LF and CR LF end a line, in any mixture; the last line needs
/// no end.
class TSeparadorDeLinhas {
public:
    /// ATamanho  how many bytes will come, as far as it is known
    explicit TSeparadorDeLinhas(std::uint64_t ATamanho = 0);
    void Acrescentar(std::string_view AParte);
    /// All lines, once. The mark that some editors put before UTF-8 is no part of the first one.
    TLinhasCarregadas Terminar(TCodificacaoLog ACodificacao);

private:
    void TerminarLinha();

    TLinhasCarregadas FLinhas{};
    bool FAberta = false;
    bool FDepoisDeCr = false;
};

}  // namespace OryUtils

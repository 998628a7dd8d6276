#pragma once

#include "oryutils/platform/CodificacaoAnsi.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Sistema {

/// What a command prints, taken in chunks of 255 bytes. Each chunk ends at its first zero byte, is turned into text by
/// itself and trimmed; the list's text, its lines with CR LF between them, becomes the old text followed by the chunk.
/// The text is never put together again for that: all chunks cost time linear in their bytes.
class TSaidaDeComando {
public:
    /// Bytes taken at once.
    static constexpr std::size_t CTamanhoDaParte = 255;
    using TDecodificador = std::function<std::u16string(std::string_view)>;

    /// Appends to ALinhas, which must outlive this. ADecodificador reads the chunks that are not plain ASCII.
    TSaidaDeComando(std::vector<std::u16string>& ALinhas, TDecodificador ADecodificador);

    /// Takes the whole chunks of what is left from before and ABytes; the rest is kept for what comes next.
    void Receber(std::string_view ABytes);
    /// The producer has paused or ended: what was kept is a chunk of its own.
    void FecharParte();
    /// Whether something is kept.
    bool PossuiResto() const noexcept { return !FResto.empty(); }

private:
    void ReceberParte(std::string_view ABytes);
    void AnexarAparado(std::u16string_view ATexto);
    void AbrirLinhas();

    std::vector<std::u16string>& FLinhas;
    TDecodificador FDecodificador;
    std::string FResto;
    bool FAberta = false;  // the last line of the list is the one that the next chunk goes on with
};

/// The lines of what a command printed at once, its bytes being UTF-8.
std::vector<std::u16string> LinhasDaSaidaDeComando(std::string_view ABytes);

}  // namespace OryUtils::Sistema

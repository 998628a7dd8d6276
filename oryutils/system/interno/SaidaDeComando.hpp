#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace OryUtils::Interno {

/// The text of what a command prints, taken in chunks of 255 bytes. A chunk ends at its first zero byte. Each chunk is
/// decoded by itself, so both halves of a character that a chunk's end cuts are malformed. Blanks and line breaks at
/// both ends of a chunk are removed, so two lines may become one there.
class TSaidaDeComando {
public:
    static constexpr std::size_t CTamanhoDaParte = 255;
    /// Turns the bytes of one chunk into text.
    using TDecodificador = std::function<std::u16string(std::string_view)>;

    explicit TSaidaDeComando(TDecodificador ADecodificador) : FDecodificador(std::move(ADecodificador)) {}

    /// Takes the whole chunks out of the bytes kept from before and ABytes; keeps the rest for the next call.
    void Receber(std::string_view ABytes);
    /// The command has paused or ended: the bytes kept become a chunk.
    void FecharParte();

    /// Ends the output and gives its text, with CR LF between the lines.
    std::u16string RetirarTexto();
    /// Ends the output and puts it behind the text of ALinhas: the first line goes on with the last one of the list.
    /// Each chunk counts as an assignment of the list's text, "old text + chunk". So the first chunk turns line breaks
    /// inside the items into lines, and a blank chunk before any text removes an empty last line. No output at all
    /// leaves the list as it is.
    void ContinuarLista(std::vector<std::u16string>& ALinhas);

private:
    void ReceberParte(std::string_view ABytes);

    TDecodificador FDecodificador;
    std::string FResto;                     // less than a chunk
    std::u16string FTexto;                  // neither begins nor ends with a line break
    std::size_t FPartesVaziasNoComeco = 0;  // blank chunks received before any text
};

/// The lines of a command's output given whole, in UTF-8.
std::vector<std::u16string> LinhasDaSaidaDeComando(std::string_view ABytes);

}  // namespace OryUtils::Interno

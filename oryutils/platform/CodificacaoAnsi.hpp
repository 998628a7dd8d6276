#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Reads the bytes that the system's console programs write: by the ANSI code page on Windows, by the code set of the
/// environment's locale (LC_ALL, LC_CTYPE, LANG) on Linux, where the plain "C" locale counts as UTF-8. Malformed bytes
/// become U+FFFD; never throws for them. The locale is asked once, at the first call.
/// APagina  the code page instead: 1 for that of consoles (Linux: the same code set), 65001 for UTF-8, or another
///          number of Windows'; 0 is none
class TDecodificadorAnsi {
public:
    explicit TDecodificadorAnsi(std::uint32_t APagina = 0) : FPagina(APagina) {}
    ~TDecodificadorAnsi();
    TDecodificadorAnsi(const TDecodificadorAnsi&) = delete;
    TDecodificadorAnsi& operator=(const TDecodificadorAnsi&) = delete;

    /// False when the system does not have the code page.
    bool ConhecePagina();
    /// The text of ABytes, which stand by themselves: a character of which a part is missing is malformed.
    std::u16string Decodificar(std::string_view ABytes);

private:
    enum TTipo : int { tdNaoPerguntado, tdUtf8, tdOutro };
    void Perguntar();

    TTipo FTipo = tdNaoPerguntado;
    std::uint32_t FPagina;
    void* FConversor = nullptr;
    bool FConhece = true;
};

/// ATexto in the same code page or code set; "?" for a character that it does not have.
std::string CodificarAnsi(std::u16string_view ATexto);

}  // namespace OryUtils::Interno

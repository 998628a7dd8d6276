#include "conferir/Codificacao.hpp"

#include "oryutils/characters/Utf.hpp"

namespace Ory {

std::u16string Decodificar(std::string_view ABytes) {
    return OryUtils::EhUtf8Valido(ABytes) ? OryUtils::DeUtf8(ABytes) : OryUtils::DeWindows1252(ABytes);
}

std::string DecodificarParaUtf8(std::string_view ABytes, TCodificacao ACodificacao) {
    switch (ACodificacao) {
        case coWindows1252:
            return OryUtils::ParaUtf8(OryUtils::DeWindows1252(ABytes));
        case coUtf8:
            return OryUtils::ParaUtf8(OryUtils::DeUtf8(ABytes));
        default:
            return OryUtils::ParaUtf8(Decodificar(ABytes));
    }
}

void TIndicios::Observar(std::string_view ABytes) noexcept {
    // Whole chunks at a time, so that the compiler makes vector code of it.
    constexpr std::size_t CTrecho = 4096;
    bool ascii = true;
    for (std::size_t inicio = 0; ascii && inicio < ABytes.size(); inicio += CTrecho) {
        unsigned char uniao = 0;
        for (const char c : ABytes.substr(inicio, CTrecho))
            uniao = static_cast<unsigned char>(uniao | static_cast<unsigned char>(c));
        ascii = uniao < 0x80;
    }
    if (ascii) return;
    PossuiNaoAscii = true;
    PossuiUtf8Invalido = PossuiUtf8Invalido || !OryUtils::EhUtf8Valido(ABytes);
}

void TIndicios::Juntar(const TIndicios& AOutro) noexcept {
    PossuiNaoAscii = PossuiNaoAscii || AOutro.PossuiNaoAscii;
    PossuiUtf8Invalido = PossuiUtf8Invalido || AOutro.PossuiUtf8Invalido;
}

}  // namespace Ory

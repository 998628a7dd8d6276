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

}  // namespace Ory

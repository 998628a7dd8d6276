#include "oryutils/files/interno/CodificacaoDoLog.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

std::string Codificar(std::u16string_view ATexto, TCodificacaoLog ACodificacao) {
    switch (ACodificacao) {
        case clUtf8:
            return ParaUtf8(ATexto);
        case clWindows1252:
            return ParaWindows1252(ATexto);
        default:
            return Interno::ParaTextoDoSistema(ATexto);
    }
}

std::u16string Decodificar(std::string_view ABytes, TCodificacaoLog ACodificacao) {
    switch (ACodificacao) {
        case clUtf8:
            return DeUtf8(ABytes);
        case clWindows1252:
            return DeWindows1252(ABytes);
        default:
            return Interno::DeTextoDoSistema(ABytes);
    }
}

}  // namespace

bool AcrescentarCodificado(std::string& ADestino, std::u16string_view ATexto, TCodificacaoLog ACodificacao) {
    // Every encoding here holds ASCII as it is, and most of a log is ASCII.
    const auto fim = std::find_if(ATexto.begin(), ATexto.end(), [](char16_t c) { return c >= 0x80; });
    ADestino.append(ATexto.begin(), fim);
    if (fim == ATexto.end()) return true;
    const std::u16string_view resto(fim, ATexto.end());
    const std::string bytes = Codificar(resto, ACodificacao);
    ADestino += bytes;
    return Decodificar(bytes, ACodificacao) == resto;
}

bool AcrescentarDecodificado(std::u16string& ADestino, std::string_view ABytes, TCodificacaoLog ACodificacao) {
    const auto fim = std::find_if(ABytes.begin(), ABytes.end(), [](char c) { return (c & 0x80) != 0; });
    ADestino.append(ABytes.begin(), fim);
    if (fim == ABytes.end()) return true;
    const std::string_view resto(fim, ABytes.end());
    const std::u16string texto = Decodificar(resto, ACodificacao);
    ADestino += texto;
    return Codificar(texto, ACodificacao) == resto;
}

}  // namespace OryUtils

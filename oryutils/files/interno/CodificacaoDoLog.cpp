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

std::vector<std::string_view> SepararLinhas(std::string_view ABytes, TCodificacaoLog ACodificacao) {
    constexpr std::string_view CMarcaUtf8 = "\xEF\xBB\xBF";
    if (ABytes.starts_with(CMarcaUtf8) && Decodificar(CMarcaUtf8, ACodificacao) == u"\uFEFF")
        ABytes.remove_prefix(CMarcaUtf8.size());
    std::vector<std::string_view> linhas;
    // No byte of a longer character of any ANSI code page, nor of UTF-8, is a CR or an LF.
    while (!ABytes.empty()) {
        const std::size_t fim = std::min(ABytes.find_first_of("\r\n"), ABytes.size());
        linhas.push_back(ABytes.substr(0, fim));
        ABytes.remove_prefix(fim);
        ABytes.remove_prefix(ABytes.starts_with("\r\n") ? 2 : ABytes.empty() ? 0 : 1);
    }
    return linhas;
}

}  // namespace OryUtils

#include "oryutils/text/interno/Utf8Exato.hpp"

#include "oryutils/characters/Utf.hpp"

namespace OryUtils::Interno {
namespace {

constexpr bool EhAlto(char16_t ACaractere) { return ACaractere >= 0xD800 && ACaractere <= 0xDBFF; }
constexpr bool EhBaixo(char16_t ACaractere) { return ACaractere >= 0xDC00 && ACaractere <= 0xDFFF; }

// The first byte of every surrogate; it is never a continuation byte.
constexpr unsigned char CInicioSubstituto = 0xED;

// The surrogate written at AInicio, or 0.
char16_t LerSubstituto(std::string_view ABytes, std::size_t AInicio) {
    if (AInicio + 2 >= ABytes.size()) return 0;
    const auto segundo = static_cast<unsigned char>(ABytes[AInicio + 1]);
    const auto terceiro = static_cast<unsigned char>(ABytes[AInicio + 2]);
    if (segundo < 0xA0 || segundo > 0xBF || (terceiro & 0xC0) != 0x80) return 0;
    return static_cast<char16_t>(0xD000 | (segundo & 0x3F) << 6 | (terceiro & 0x3F));
}

}  // namespace

std::string ParaUtf8Exato(std::u16string_view ATexto) {
    std::string resultado;
    std::size_t inicio = 0;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const char16_t c = ATexto[i];
        if (EhAlto(c) && i + 1 < ATexto.size() && EhBaixo(ATexto[i + 1])) {
            ++i;
        } else if (EhAlto(c) || EhBaixo(c)) {
            resultado += ParaUtf8(ATexto.substr(inicio, i - inicio));
            resultado += static_cast<char>(CInicioSubstituto);
            resultado += static_cast<char>(0x80 | (c >> 6 & 0x3F));
            resultado += static_cast<char>(0x80 | (c & 0x3F));
            inicio = i + 1;
        }
    }
    return resultado += ParaUtf8(ATexto.substr(inicio));
}

std::u16string DeUtf8Exato(std::string_view ABytes) {
    std::u16string resultado;
    std::size_t inicio = 0;
    for (std::size_t i = ABytes.find(static_cast<char>(CInicioSubstituto)); i != std::string_view::npos;
         i = ABytes.find(static_cast<char>(CInicioSubstituto), i + 1)) {
        const char16_t substituto = LerSubstituto(ABytes, i);
        if (substituto == 0) continue;
        resultado.append(DeUtf8(ABytes.substr(inicio, i - inicio))) += substituto;
        inicio = i + 3;
    }
    return resultado.append(DeUtf8(ABytes.substr(inicio)));
}

}  // namespace OryUtils::Interno

#include "oryutils/characters/Utf.hpp"

#include <algorithm>
#include <array>
#include <cstdint>

namespace OryUtils {
namespace {

constexpr char32_t CSubstituto = 0xFFFD;

// What Windows-1252 puts at 0x80..0x9F; a hole keeps the control of the same code.
constexpr std::array<char16_t, 32> CWindows1252{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool EhContinuacao(unsigned char AByte) { return (AByte & 0xC0) == 0x80; }

struct TLeitura {
    char32_t Codigo;
    std::size_t Bytes;  // read; at least 1
    bool Valida;
};

// One code point, or the maximal part of an ill-formed sequence.
TLeitura LerCodigo(std::string_view ATexto) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(ATexto[i]); };
    const unsigned char primeiro = byte(0);
    if (primeiro < 0x80) return {primeiro, 1, true};
    if (primeiro < 0xC2 || primeiro > 0xF4) return {CSubstituto, 1, false};
    const std::size_t total = primeiro < 0xE0 ? 2 : primeiro < 0xF0 ? 3 : 4;
    // The second byte is narrower after these leads: no overlong forms, no surrogates, nothing above U+10FFFF.
    unsigned char menor = 0x80;
    unsigned char maior = 0xBF;
    if (primeiro == 0xE0) menor = 0xA0;
    if (primeiro == 0xED) maior = 0x9F;
    if (primeiro == 0xF0) menor = 0x90;
    if (primeiro == 0xF4) maior = 0x8F;
    char32_t codigo = primeiro & (0x7Fu >> total);
    for (std::size_t i = 1; i < total; ++i) {
        const bool falta = i >= ATexto.size();
        if (falta || !EhContinuacao(byte(i)) || (i == 1 && (byte(i) < menor || byte(i) > maior)))
            return {CSubstituto, i, false};
        codigo = codigo << 6 | (byte(i) & 0x3Fu);
    }
    return {codigo, total, true};
}

std::size_t ContarAscii(std::string_view ATexto) {
    std::size_t i = 0;
    while (i < ATexto.size() && static_cast<unsigned char>(ATexto[i]) < 0x80) ++i;
    return i;
}

}  // namespace

std::u16string DeUtf8(std::string_view ATexto) {
    std::u16string resultado;
    resultado.reserve(ATexto.size());
    while (!ATexto.empty()) {
        const std::size_t ascii = ContarAscii(ATexto);
        resultado.append(ATexto.begin(), ATexto.begin() + static_cast<std::ptrdiff_t>(ascii));
        ATexto.remove_prefix(ascii);
        if (ATexto.empty()) break;
        const TLeitura leitura = LerCodigo(ATexto);
        ATexto.remove_prefix(leitura.Bytes);
        if (leitura.Codigo < 0x10000) {
            resultado += static_cast<char16_t>(leitura.Codigo);
        } else {
            const char32_t resto = leitura.Codigo - 0x10000;
            resultado += static_cast<char16_t>(0xD800 + (resto >> 10));
            resultado += static_cast<char16_t>(0xDC00 + (resto & 0x3FF));
        }
    }
    return resultado;
}

std::string ParaUtf8(std::u16string_view ATexto) {
    std::string resultado;
    resultado.reserve(ATexto.size());
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        char32_t c = ATexto[i];
        const bool alto = c >= 0xD800 && c <= 0xDBFF;
        if (alto && i + 1 < ATexto.size() && ATexto[i + 1] >= 0xDC00 && ATexto[i + 1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (ATexto[i + 1] - 0xDC00u);
            ++i;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = CSubstituto;
        }
        const auto juntar = [&](char32_t AByte) { resultado += static_cast<char>(AByte); };
        if (c < 0x80) {
            juntar(c);
        } else if (c < 0x800) {
            juntar(0xC0 | c >> 6);
            juntar(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            juntar(0xE0 | c >> 12);
            juntar(0x80 | (c >> 6 & 0x3F));
            juntar(0x80 | (c & 0x3F));
        } else {
            juntar(0xF0 | c >> 18);
            juntar(0x80 | (c >> 12 & 0x3F));
            juntar(0x80 | (c >> 6 & 0x3F));
            juntar(0x80 | (c & 0x3F));
        }
    }
    return resultado;
}

std::u16string DeWindows1252(std::string_view ATexto) {
    std::u16string resultado;
    resultado.reserve(ATexto.size());
    for (const char c : ATexto) {
        const auto byte = static_cast<unsigned char>(c);
        resultado += byte >= 0x80 && byte < 0xA0 ? CWindows1252[byte - 0x80u] : static_cast<char16_t>(byte);
    }
    return resultado;
}

std::string ParaWindows1252(std::u16string_view ATexto) {
    std::string resultado;
    resultado.reserve(ATexto.size());
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const char16_t c = ATexto[i];
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            resultado += static_cast<char>(c);
            continue;
        }
        const auto achado = std::find(CWindows1252.begin(), CWindows1252.end(), c);
        resultado += achado == CWindows1252.end() ? '?' : static_cast<char>(0x80 + (achado - CWindows1252.begin()));
        const bool par =
            c >= 0xD800 && c <= 0xDBFF && i + 1 < ATexto.size() && ATexto[i + 1] >= 0xDC00 && ATexto[i + 1] <= 0xDFFF;
        if (par) ++i;  // one character, one "?"
    }
    return resultado;
}

bool EhUtf8Valido(std::string_view ATexto) noexcept {
    while (true) {
        ATexto.remove_prefix(ContarAscii(ATexto));
        if (ATexto.empty()) return true;
        const TLeitura leitura = LerCodigo(ATexto);
        if (!leitura.Valida) return false;
        ATexto.remove_prefix(leitura.Bytes);
    }
}

}  // namespace OryUtils

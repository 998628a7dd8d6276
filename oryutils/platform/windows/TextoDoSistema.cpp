#include "oryutils/platform/TextoDoSistema.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

// The calls of the system take 32-bit counts; a longer text goes in parts that end where a character does.
constexpr std::size_t CMaiorParte = 1u << 28;

bool EhSubstituto(char16_t ACaractere) { return ACaractere >= 0xD800 && ACaractere <= 0xDFFF; }

// No ANSI code page reaches beyond the BMP, and the system would write two marks for such a character.
std::u16string TrocarSubstitutos(std::u16string_view ATexto) {
    std::u16string resultado;
    resultado.reserve(ATexto.size());
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const char16_t c = ATexto[i];
        resultado += EhSubstituto(c) ? u'?' : c;
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < ATexto.size() && ATexto[i + 1] >= 0xDC00 && ATexto[i + 1] <= 0xDFFF)
            ++i;
    }
    return resultado;
}

}  // namespace

std::string ParaTextoDoSistema(std::u16string_view ATexto) {
    if (::GetACP() == CP_UTF8) return ParaUtf8(ATexto);
    if (std::any_of(ATexto.begin(), ATexto.end(), EhSubstituto)) return ParaTextoDoSistema(TrocarSubstitutos(ATexto));
    std::string resultado;
    for (; !ATexto.empty(); ATexto.remove_prefix(std::min(ATexto.size(), CMaiorParte))) {
        const auto unidades = static_cast<int>(std::min(ATexto.size(), CMaiorParte));
        const auto* const origem = reinterpret_cast<const wchar_t*>(ATexto.data());
        // Without the flag a letter would become one that looks like it.
        const auto converter = [&](char* ADestino, int ATamanho) {
            return ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, origem, unidades, ADestino, ATamanho, "?",
                                         nullptr);
        };
        const std::size_t antes = resultado.size();
        const int bytes = converter(nullptr, 0);
        resultado.resize(antes + static_cast<std::size_t>(bytes));
        converter(resultado.data() + antes, bytes);
    }
    return resultado;
}

std::u16string DeTextoDoSistema(std::string_view ATexto, std::uint32_t APagina) {
    if (APagina == CP_UTF8 || (APagina == CP_ACP && ::GetACP() == CP_UTF8)) return DeUtf8(ATexto);
    std::u16string resultado;
    for (; !ATexto.empty(); ATexto.remove_prefix(std::min(ATexto.size(), CMaiorParte))) {
        const auto bytes = static_cast<int>(std::min(ATexto.size(), CMaiorParte));
        const auto converter = [&](wchar_t* ADestino, int ATamanho) {
            return ::MultiByteToWideChar(APagina, 0, ATexto.data(), bytes, ADestino, ATamanho);
        };
        const std::size_t antes = resultado.size();
        const int unidades = converter(nullptr, 0);
        resultado.resize(antes + static_cast<std::size_t>(unidades));
        converter(ParaWide(resultado.data() + antes), unidades);
    }
    return resultado;
}

std::u16string_view BuscarQuebraDeLinha() noexcept { return u"\r\n"; }

}  // namespace OryUtils::Interno

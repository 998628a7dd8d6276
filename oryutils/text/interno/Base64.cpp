#include "oryutils/text/interno/Base64.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <array>
#include <cstdint>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CAlfabeto = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char16_t CPreenchimento = u'=';
constexpr std::uint8_t CInvalido = 64;

constexpr auto CValores = [] {
    std::array<std::uint8_t, 128> valores{};
    valores.fill(CInvalido);
    for (std::size_t i = 0; i < CAlfabeto.size(); ++i) valores[CAlfabeto[i]] = static_cast<std::uint8_t>(i);
    return valores;
}();

constexpr std::uint8_t ValorDe(char16_t ACaractere) {
    return ACaractere < CValores.size() ? CValores[ACaractere] : CInvalido;
}

[[noreturn]] void Recusar(std::u16string_view AMotivo) {
    throw EConvertError(std::u16string(u"O texto não está em Base64: ").append(AMotivo));
}

}  // namespace

std::u16string CodificarBase64(std::string_view ABytes) {
    std::u16string resultado;
    resultado.reserve((ABytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < ABytes.size(); i += 3) {
        const std::size_t bytes = ABytes.size() - i < 3 ? ABytes.size() - i : 3;
        std::uint32_t grupo = 0;
        for (std::size_t j = 0; j < 3; ++j)
            grupo = grupo << 8 | (j < bytes ? static_cast<unsigned char>(ABytes[i + j]) : 0u);
        for (std::size_t j = 0; j < 4; ++j)
            resultado += j <= bytes ? CAlfabeto[grupo >> (18 - 6 * j) & 63] : CPreenchimento;
    }
    return resultado;
}

std::string DecodificarBase64(std::u16string_view ATexto) {
    std::string resultado;
    resultado.reserve(ATexto.size() / 4 * 3);
    std::uint32_t grupo = 0;
    int digitos = 0;        // of the present group of four
    int preenchimento = 0;  // once there is some, nothing but padding may follow
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const char16_t c = ATexto[i];
        if (c == u'\r' || c == u'\n') continue;
        if (c == CPreenchimento) {
            ++preenchimento;
            continue;
        }
        const std::uint8_t valor = ValorDe(c);
        if (valor == CInvalido || preenchimento > 0)
            Recusar(u"caractere inválido na posição " + InteiroParaTexto(static_cast<std::int64_t>(i) + 1) + u".");
        grupo = grupo << 6 | valor;
        if (++digitos < 4) continue;
        for (const int deslocamento : {16, 8, 0}) resultado += static_cast<char>(grupo >> deslocamento & 0xFF);
        grupo = 0;
        digitos = 0;
    }
    if (digitos == 1) Recusar(u"tamanho inválido.");
    if (preenchimento != (4 - digitos) % 4) Recusar(u"preenchimento inválido.");
    if (digitos >= 2) resultado += static_cast<char>(grupo >> (digitos == 2 ? 4 : 10) & 0xFF);
    if (digitos == 3) resultado += static_cast<char>(grupo >> 2 & 0xFF);
    return resultado;
}

}  // namespace OryUtils::Interno

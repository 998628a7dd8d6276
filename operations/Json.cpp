#include "operations/Json.hpp"

#include "oryutils/characters/Utf.hpp"

namespace Ory {
namespace {

constexpr std::string_view CHexa = "0123456789abcdef";

bool PrecisaEscapar(char AByte) { return static_cast<unsigned char>(AByte) < 0x20 || AByte == '"' || AByte == '\\'; }

void Escapar(std::string& ASaida, char AByte) {
    ASaida += '\\';
    switch (AByte) {
        case '"':
        case '\\':
            ASaida += AByte;
            return;
        case '\n':
            ASaida += 'n';
            return;
        case '\r':
            ASaida += 'r';
            return;
        case '\t':
            ASaida += 't';
            return;
        default:
            break;
    }
    const auto codigo = static_cast<unsigned char>(AByte);
    ASaida += "u00";
    ASaida += CHexa[codigo >> 4];
    ASaida += CHexa[codigo & 15];
}

void EscreverUtf8Valido(std::string& ASaida, std::string_view ATexto) {
    ASaida += '"';
    std::size_t copiado = 0;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        if (!PrecisaEscapar(ATexto[i])) continue;
        ASaida.append(ATexto, copiado, i - copiado);
        Escapar(ASaida, ATexto[i]);
        copiado = i + 1;
    }
    ASaida.append(ATexto, copiado);
    ASaida += '"';
}

}  // namespace

void EscreverTextoJson(std::string& ASaida, std::string_view ATexto) {
    if (OryUtils::EhUtf8Valido(ATexto)) return EscreverUtf8Valido(ASaida, ATexto);
    EscreverTextoJson(ASaida, OryUtils::DeUtf8(ATexto));
}

void EscreverTextoJson(std::string& ASaida, std::u16string_view ATexto) {
    EscreverUtf8Valido(ASaida, OryUtils::ParaUtf8(ATexto));
}

}  // namespace Ory

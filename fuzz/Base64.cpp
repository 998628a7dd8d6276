// Any text as Base64, and any bytes there and back; UTF of all kinds, malformed too.
#include "oryutils/text/interno/Base64.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/interno/Utf8Exato.hpp"

#include "Comum.hpp"

using namespace OryUtils;

namespace {

void Ler(std::u16string ATexto) {
    try {
        const std::string bytes = Interno::DecodificarBase64(ATexto);
        std::erase_if(ATexto, [](char16_t c) { return c == u'\r' || c == u'\n'; });
        Fuzz::Exigir(Interno::CodificarBase64(bytes).size() == ATexto.size());
        Fuzz::Exigir(Interno::DecodificarBase64(Interno::CodificarBase64(bytes)) == bytes);
    } catch (const EConvertError&) {
        // The answer for what is not Base64.
    }
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    const std::string bytes = TEntrada(AEntrada).Bytes();
    Ler(TEntrada(AEntrada).Resto());
    Exigir(Interno::DecodificarBase64(Interno::CodificarBase64(bytes)) == bytes);

    const std::u16string texto = DeUtf8(bytes);
    const std::string limpo = ParaUtf8(texto);
    Exigir(EhUtf8Valido(limpo) && EhUtf8Valido(bytes) == (limpo == bytes) && DeUtf8(limpo) == texto);
    Exigir(ParaWindows1252(DeWindows1252(bytes)) == bytes);
    const std::u16string unidades = TEntrada(AEntrada).Resto();
    Exigir(Interno::DeUtf8Exato(Interno::ParaUtf8Exato(unidades)) == unidades);
    Exigir(EhUtf8Valido(ParaUtf8(unidades)));
}

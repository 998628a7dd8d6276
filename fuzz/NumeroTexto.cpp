// Any text as a number, beside the C library; any number as text and back.
#include "oryutils/runtime/NumeroTexto.hpp"

#include "oryutils/characters/Caracteres.hpp"

#include "Comum.hpp"

#include <cerrno>
#include <cmath>

using namespace OryUtils;

namespace {

// The same number for the C library; empty when it is none that both write alike.
std::string ParaC(std::u16string_view ATexto) {
    std::string texto;
    for (const char16_t c : ATexto) {
        const bool algarismo = c >= u'0' && c <= u'9';
        if (!algarismo && std::u16string_view(u"+-,eE").find(c) == std::u16string_view::npos) return {};
        texto += c == u',' ? '.' : static_cast<char>(c);
    }
    return texto;
}

void Ler(std::u16string_view ATexto) {
    const auto lido = TentarTextoParaExtended(ATexto, BuscarFormatosBrasileiros());
    const std::string texto = ParaC(Aparar(ATexto));
    if (!texto.empty()) {
        char* fim = nullptr;
        const Extended valor = std::strtold(texto.c_str(), &fim);
        const bool inteiro = *fim == 0 && std::isfinite(valor);
        Fuzz::Exigir(lido.has_value() == inteiro && (!inteiro || *lido == valor));
    }
    const auto inteiro = TentarTextoParaInt64(ATexto);
    if (inteiro) Fuzz::Exigir(TentarTextoParaInt64(InteiroParaTexto(*inteiro)) == inteiro);
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    Ler(TEntrada(AEntrada).Resto());
    const TFormatSettings& formatos = BuscarFormatosBrasileiros();
    const Extended valor =
        AEntrada.Valor<double>() * std::pow(10.0L, static_cast<std::int16_t>(AEntrada.Valor<std::int16_t>() % 4000));
    const std::u16string texto = ExtendedParaTexto(valor, formatos);
    if (std::isfinite(valor)) {
        const Extended volta = ArredondarPara15Digitos(valor);
        const auto lido = TentarTextoParaExtended(texto, formatos);
        Exigir(std::isfinite(volta) ? lido == volta : !lido.has_value());
    }
    const int digitos = AEntrada.Byte();
    Exigir(FormatarZeros(valor, digitos).size() >= static_cast<std::size_t>(digitos));
}

// Any pattern, number and separators.
#include "oryutils/runtime/FormatoNumero.hpp"

#include "Comum.hpp"

void Fuzz::Provar(TEntrada AEntrada) {
    OryUtils::TFormatSettings formatos = OryUtils::BuscarFormatosBrasileiros();
    if (AEntrada.Byte() % 4 == 0) {
        formatos.DecimalSeparator = AEntrada.Valor<char16_t>();
        formatos.ThousandSeparator = AEntrada.Valor<char16_t>();
    }
    // A double in half of the cases: not every pattern of 80 bits is a number that programs make.
    const OryUtils::Extended valor = AEntrada.Byte() % 2
                                         ? OryUtils::Extended{AEntrada.Valor<double>()}
                                         : static_cast<OryUtils::Extended>(AEntrada.Valor<std::int32_t>()) / 100;
    const std::u16string formato = AEntrada.Texto(255);
    const std::u16string texto = OryUtils::FormatarNumero(formato, valor, formatos);
    Exigir(texto.size() <= 2 * formato.size() + 400);
}

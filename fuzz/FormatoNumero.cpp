// Any pattern, number and separators.
#include "oryutils/runtime/FormatoNumero.hpp"

#include "Comum.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* ABytes, std::size_t ATamanho) {
    Fuzz::TEntrada entrada(ABytes, ATamanho);
    OryUtils::TFormatSettings formatos = OryUtils::BuscarFormatosBrasileiros();
    if (entrada.Byte() % 4 == 0) {
        formatos.DecimalSeparator = entrada.Valor<char16_t>();
        formatos.ThousandSeparator = entrada.Valor<char16_t>();
    }
    // A double in half of the cases: not every pattern of 80 bits is a number that programs make.
    const OryUtils::Extended valor = entrada.Byte() % 2
                                         ? OryUtils::Extended{entrada.Valor<double>()}
                                         : static_cast<OryUtils::Extended>(entrada.Valor<std::int32_t>()) / 100;
    const std::u16string formato = entrada.Texto(255);
    const std::u16string texto = OryUtils::FormatarNumero(formato, valor, formatos);
    Fuzz::Exigir(texto.size() <= 2 * formato.size() + 400);
    return 0;
}

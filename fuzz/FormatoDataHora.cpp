// Any pattern and instant; any text read as a date and time.
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "Comum.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* ABytes, std::size_t ATamanho) {
    Fuzz::TEntrada entrada(ABytes, ATamanho);
    OryUtils::TFormatSettings formatos = OryUtils::BuscarFormatosBrasileiros();
    const double valor = entrada.Valor<double>();
    if (entrada.Byte() % 2) formatos.ShortDateFormat = entrada.Texto(16);
    const std::u16string texto = entrada.Texto(255);
    static_cast<void>(OryUtils::FormatarDataHora(texto, valor, formatos));
    if (const auto data = OryUtils::TentarTextoParaData(texto, formatos, 2024)) {
        const OryUtils::TPartesData partes = OryUtils::DecodificarData(*data);
        Fuzz::Exigir(OryUtils::TentarCodificarData(partes.Ano, partes.Mes, partes.Dia) == *data);
    }
    static_cast<void>(OryUtils::TentarTextoParaHora(texto, formatos));
    static_cast<void>(OryUtils::TentarTextoParaDataHora(texto, formatos, 2024));
    return 0;
}

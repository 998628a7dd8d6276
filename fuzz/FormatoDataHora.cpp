// Any pattern and instant; any text read as a date and time.
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "Comum.hpp"

void Fuzz::Provar(TEntrada AEntrada) {
    OryUtils::TFormatSettings formatos = OryUtils::BuscarFormatosBrasileiros();
    const double valor = AEntrada.Valor<double>();
    if (AEntrada.Byte() % 2) formatos.ShortDateFormat = AEntrada.Texto(16);
    const std::u16string texto = AEntrada.Texto(255);
    static_cast<void>(OryUtils::FormatarDataHora(texto, valor, formatos));
    if (const auto data = OryUtils::TentarTextoParaData(texto, formatos, 2024)) {
        const OryUtils::TPartesData partes = OryUtils::DecodificarData(*data);
        Exigir(OryUtils::TentarCodificarData(partes.Ano, partes.Mes, partes.Dia) == *data);
    }
    static_cast<void>(OryUtils::TentarTextoParaHora(texto, formatos));
    static_cast<void>(OryUtils::TentarTextoParaDataHora(texto, formatos, 2024));
}

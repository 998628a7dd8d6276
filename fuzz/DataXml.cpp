// Any text as an XML date: what is read is an instant that is written and read back.
#include "oryutils/runtime/DataXml.hpp"

#include "oryutils/runtime/Excecoes.hpp"

#include "Comum.hpp"

using namespace OryUtils;

void Fuzz::Provar(TEntrada AEntrada) {
    const int local = static_cast<std::int8_t>(AEntrada.Byte()) * 6;
    const std::u16string texto = AEntrada.Resto();
    try {
        const TDateTime instante = XmlParaDataHoraUtc(texto, local);
        const TPartesData dia = DecodificarData(instante);
        Exigir(TentarCodificarData(dia.Ano, dia.Mes, dia.Dia).has_value());
        const TDateTime volta = XmlParaDataHoraUtc(DataHoraParaXml(instante, 0), local);
        Exigir(DecodificarData(volta) == dia && DecodificarHora(volta) == DecodificarHora(instante));
        static_cast<void>(XmlParaDataHoraUtc(texto));
    } catch (const EConvertError&) {
        // The answer for what is no date.
    }
}

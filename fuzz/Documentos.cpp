// Any text as a number of any kind, with any context: a verdict without raising, and what is written of a valid number
// is valid again.
#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"

#include "Comum.hpp"

using namespace OryUtils;
using D = TOryUtilsDocumentos;

void Fuzz::Provar(TEntrada AEntrada) {
    static const auto tipos = D::BuscarTiposDocumento();
    static constexpr std::u16string_view CContextos[]{u"", u"SP", u"ba", u"XX"};
    const std::u16string& tipo = tipos[AEntrada.Byte() % tipos.size()];
    const std::u16string_view contexto = CContextos[AEntrada.Byte() % 4];
    const std::u16string numero = AEntrada.Resto();
    const bool valido = D::ValidouDocumento(tipo, numero, contexto);
    Exigir(valido == (D::BuscarMotivoRecusa(tipo, numero, contexto) == mrNenhum));
    Exigir(valido == D::BuscarTextoMotivoRecusa(tipo, numero, contexto).empty());
    const std::u16string escrito = D::FormatarDocumento(tipo, numero, contexto);
    const std::u16string limpo = D::LimparDocumento(tipo, numero, contexto);
    D::InterpretarDocumento(tipo, numero);
    if (!valido) {
        Exigir(escrito == numero && limpo == numero);
        return;
    }
    Exigir(D::ValidouDocumento(tipo, escrito, contexto));
    Exigir(D::LimparDocumento(tipo, escrito, contexto) == limpo);
    Exigir(D::ValidouDocumento(tipo, limpo, contexto));
}

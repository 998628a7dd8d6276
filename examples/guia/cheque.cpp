// A cheque: the amount in digits and in words, the place and the date.
#include "oryutils/dates/OryUtilsDatas.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include "guia/Escrever.hpp"

#include <string>

using namespace OryUtils;

// [cheque]
void EscreverCheque(Extended AValor, std::u16string_view AFavorecido, TDateTime AData) {
    const std::u16string extenso = TOryUtilsMatematica::BuscarValorPorExtenso(AValor);
    Escrever(u"R$ " + FormatarNumero(u",0.00", AValor));
    Escrever(u"Pague por este cheque a quantia de");
    Escrever(TOryUtilsStrings::BuscarTextoFormatado(extenso + u" ", 84, u"*"));
    Escrever(u"a " + std::u16string(AFavorecido));
    Escrever(u"Porto Alegre, " + TOryUtilsDatas::BuscarDataPorExtenso(AData));
}
// [cheque]

// [dolar]
class TPorExtensoEmDolar : public TConverterPorExtenso {
public:
    TPorExtensoEmDolar() {
        FMoedaNoSingular = u"DÓLAR";
        FMoedaNoPlural = u"DÓLARES";
    }
};
// [dolar]

int main() {
    // [uso]
    DefinirFormatSettings(BuscarFormatosBrasileiros());
    EscreverCheque(1234.56L, u"Comercial Modelo Ltda.", CodificarData(2026, 11, 23));
    // [uso]
    Escrever(u"");

    // [outros]
    for (const Extended valor : {0.5L, 1.0L, 1'000'000.0L, 2'000'000.01L})
        Escrever(TOryUtilsMatematica::BuscarValorPorExtenso(valor));

    TPorExtensoEmDolar dolar;
    dolar.SetValor(20.25L);
    Escrever(dolar.GetTexto());

    try {
        Escrever(TOryUtilsMatematica::BuscarValorPorExtenso(-1));
    } catch (const Exception& erro) {
        Escrever(erro.GetMensagem());
    }
    // [outros]
}

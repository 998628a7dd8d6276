#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "oryutils/fields/ControladorFormatos.hpp"
#include "oryutils/registry_numbers/interno/MascarasDeCampos.hpp"
#include "oryutils/runtime/Formatos.hpp"

namespace OryUtils {

TInstanciaGlobal<TOryUtilsFormatacoes> GOryUtilsFormatacoes;

using namespace Interno;

void TOryUtilsFormatacoes::TFormatoPadraoDatasEValores::SetUsarNosControlesDevExpress(bool AUsar) {
    FUsarNosControlesDevExpress = AUsar;
    TControladorFormatos& controlador = ControladorFormatos();
    controlador.BeginUpdate();
    controlador.SetUsarFormatosDoProcesso(AUsar);
    controlador.EndUpdate();
    controlador.GetFormats();
    controlador.NotifyListeners();
}

void TOryUtilsFormatacoes::TFormatoPadraoDatasEValores::Configurar() {
    const TFormatosEmConfiguracao configurando;
    DefinirFormatSettings(BuscarFormatosBrasileiros());
}

void TOryUtilsFormatacoes::FormatarCampo(TField& ACampo, std::u16string_view AMascara) { ACampo.SetEditMask(AMascara); }
void TOryUtilsFormatacoes::FormatarCEP(TField& ACampo) { FormatarCampo(ACampo, CMascaraCep); }
void TOryUtilsFormatacoes::FormatarCNPJ(TField& ACampo) { FormatarCampo(ACampo, CMascaraCnpj); }
void TOryUtilsFormatacoes::FormatarCnpjAlfanumericoCampo(TField& ACampo) {
    FormatarCampo(ACampo, CMascaraCnpjAlfanumerico);
}
void TOryUtilsFormatacoes::FormatarCPF(TField& ACampo) { FormatarCampo(ACampo, CMascaraCpf); }
void TOryUtilsFormatacoes::FormatarCRC(TField& ACampo) { FormatarCampo(ACampo, CMascaraCrc); }
void TOryUtilsFormatacoes::FormatarCEI(TField& ACampo) { FormatarCampo(ACampo, CMascaraCei); }
void TOryUtilsFormatacoes::FormatarCompetencia(TField& ACampo) { FormatarCampo(ACampo, CMascaraCompetencia); }
void TOryUtilsFormatacoes::FormatarFone(TField& ACampo) { FormatarCampo(ACampo, CMascaraFone); }
void TOryUtilsFormatacoes::FormatarNCM(TField& ACampo) { FormatarCampo(ACampo, CMascaraNcm); }

void TOryUtilsFormatacoes::FormatarCampoNumerico(TField& ACampo, std::u16string_view AFormatoExibicao,
                                                 std::u16string_view AFormatoEdicao) {
    auto* numerico = dynamic_cast<TNumericField*>(&ACampo);
    if (!numerico) throw EInvalidCast(u"Conversão de classe inválida");
    numerico->SetDisplayFormat(AFormatoExibicao);
    numerico->SetEditFormat(AFormatoEdicao);
}
void TOryUtilsFormatacoes::FormatarCampoValor(TField& ACampo) { FormatarCampoNumerico(ACampo, u",0.00", u"0.00"); }
void TOryUtilsFormatacoes::FormatarCampoPercentual(TField& ACampo) {
    FormatarCampoNumerico(ACampo, u",0.00 %", u"0.00");
}
void TOryUtilsFormatacoes::FormatarCampoInteiro(TField& ACampo) { FormatarCampoNumerico(ACampo, u"0", u"0"); }

}  // namespace OryUtils

#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "oryutils/fields/ControladorFormatos.hpp"
#include "oryutils/registry_numbers/interno/MascarasDeCampos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

namespace OryUtils {

TInstanciaGlobal<TOryUtilsFormatacoes> GOryUtilsFormatacoes;

namespace {

using namespace MascarasDeCampos;

}  // namespace

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

TOryUtilsFormatacoes::TOryUtilsFormatacoes()
    : FFormatoPadraoDatasEValores(std::make_unique<TFormatoPadraoDatasEValores>()) {}
TOryUtilsFormatacoes::~TOryUtilsFormatacoes() = default;

void TOryUtilsFormatacoes::FormatarCampo(TField& ACampo, std::u16string_view AMascara) { ACampo.SetEditMask(AMascara); }
void TOryUtilsFormatacoes::FormatarCEP(TField& ACampo) { FormatarCampo(ACampo, CCep); }
void TOryUtilsFormatacoes::FormatarCNPJ(TField& ACampo) { FormatarCampo(ACampo, CCnpj); }
void TOryUtilsFormatacoes::FormatarCnpjAlfanumericoCampo(TField& ACampo) { FormatarCampo(ACampo, CCnpjAlfanumerico); }
void TOryUtilsFormatacoes::FormatarCPF(TField& ACampo) { FormatarCampo(ACampo, CCpf); }
void TOryUtilsFormatacoes::FormatarCRC(TField& ACampo) { FormatarCampo(ACampo, CCrc); }
void TOryUtilsFormatacoes::FormatarCEI(TField& ACampo) { FormatarCampo(ACampo, CCei); }
void TOryUtilsFormatacoes::FormatarCompetencia(TField& ACampo) { FormatarCampo(ACampo, CCompetencia); }
void TOryUtilsFormatacoes::FormatarFone(TField& ACampo) { FormatarCampo(ACampo, CFone); }
void TOryUtilsFormatacoes::FormatarNCM(TField& ACampo) { FormatarCampo(ACampo, CNcm); }

void TOryUtilsFormatacoes::FormatarCampoNumerico(TField& ACampo, std::u16string_view AFormatoExibicao,
                                                 std::u16string_view AFormatoEdicao) {
    auto* numerico = dynamic_cast<TNumericField*>(&ACampo);
    if (!numerico) throw EInvalidCast(u"Conversão de classe inválida");
    numerico->SetDisplayFormat(AFormatoExibicao);
    numerico->SetEditFormat(AFormatoEdicao);
}
void TOryUtilsFormatacoes::FormatarCampoValor(TField& ACampo) {
    FormatarCampoNumerico(ACampo, CValor.Exibicao, CValor.Edicao);
}
void TOryUtilsFormatacoes::FormatarCampoPercentual(TField& ACampo) {
    FormatarCampoNumerico(ACampo, CPercentual.Exibicao, CPercentual.Edicao);
}
void TOryUtilsFormatacoes::FormatarCampoInteiro(TField& ACampo) {
    FormatarCampoNumerico(ACampo, CInteiro.Exibicao, CInteiro.Edicao);
}

void FormatarCampo(TField& ACampo, std::u16string_view AMascara) {
    GOryUtilsFormatacoes->FormatarCampo(ACampo, AMascara);
}
void FormatarCampoNumerico(TField& ACampo, std::u16string_view AFormatoExibicao, std::u16string_view AFormatoEdicao) {
    GOryUtilsFormatacoes->FormatarCampoNumerico(ACampo, AFormatoExibicao, AFormatoEdicao);
}
void FormatarCampoInteiro(TField& ACampo) { GOryUtilsFormatacoes->FormatarCampoInteiro(ACampo); }
void FormatarCampoPercentual(TField& ACampo) { GOryUtilsFormatacoes->FormatarCampoPercentual(ACampo); }
void FormatarCampoValor(TField& ACampo) { GOryUtilsFormatacoes->FormatarCampoValor(ACampo); }
void FormatarCEP(TField& ACampo) { GOryUtilsFormatacoes->FormatarCEP(ACampo); }
void FormatarCNPJ(TField& ACampo) { GOryUtilsFormatacoes->FormatarCNPJ(ACampo); }
void FormatarCnpjAlfanumericoCampo(TField& ACampo) { GOryUtilsFormatacoes->FormatarCnpjAlfanumericoCampo(ACampo); }
void FormatarCPF(TField& ACampo) { GOryUtilsFormatacoes->FormatarCPF(ACampo); }
void FormatarCRC(TField& ACampo) { GOryUtilsFormatacoes->FormatarCRC(ACampo); }
void FormatarFone(TField& ACampo) { GOryUtilsFormatacoes->FormatarFone(ACampo); }
void FormatarNCM(TField& ACampo) { GOryUtilsFormatacoes->FormatarNCM(ACampo); }
void FormatarCEI(TField& ACampo) { GOryUtilsFormatacoes->FormatarCEI(ACampo); }
void FormatarCompetencia(TField& ACampo) { GOryUtilsFormatacoes->FormatarCompetencia(ACampo); }

}  // namespace OryUtils

#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/fields/ControladorFormatos.hpp"
#include "oryutils/registry_numbers/interno/MascarasDeCampos.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <algorithm>
#include <iterator>

namespace OryUtils {

TInstanciaGlobal<TOryUtilsFormatacoes> GOryUtilsFormatacoes;

using namespace Interno;

namespace {

constexpr std::u16string_view CSemDDD[] = {u"0300", u"0500", u"0800", u"0900"};
constexpr std::size_t CDigitosCpf = 11, CDigitosFoneFixo = 10;

std::u16string_view EscolherMascaraDeFone(std::u16string_view AConteudo) {
    if (std::ranges::find(CSemDDD, AConteudo.substr(0, 4)) != std::end(CSemDDD)) return CMascaraFoneSemDDD;
    return AConteudo.size() > CDigitosFoneFixo ? CMascaraFoneMovel : CMascaraFoneFixo;
}

std::u16string_view EscolherMascaraDeCpfCnpj(std::u16string_view AConteudo) {
    const bool cpf = AConteudo.size() <= CDigitosCpf && std::ranges::all_of(AConteudo, EhDigito);
    return cpf ? CMascaraCpfInteiro : CMascaraCnpjInteiro;
}

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
    const TFormatSettings& anteriores = FormatSettings();
    TFormatSettings formatos = BuscarFormatosBrasileiros();
    formatos.TimeAMString = anteriores.TimeAMString;
    formatos.TimePMString = anteriores.TimePMString;
    formatos.TwoDigitYearCenturyWindow = anteriores.TwoDigitYearCenturyWindow;
    DefinirFormatSettings(formatos);
}

void TOryUtilsFormatacoes::FormatarCampo(TField& ACampo, std::u16string_view AMascara) { ACampo.SetEditMask(AMascara); }
void TOryUtilsFormatacoes::FormatarCEP(TField& ACampo) {
    FormatarCampo(ACampo, CMascaraCep);
    ACampo.SetSomenteCompleto(true);
}
void TOryUtilsFormatacoes::FormatarCNPJ(TField& ACampo) { FormatarCampo(ACampo, CMascaraCnpj); }
void TOryUtilsFormatacoes::FormatarCnpjAlfanumericoCampo(TField& ACampo) {
    FormatarCampo(ACampo, CMascaraCnpjAlfanumerico);
}
void TOryUtilsFormatacoes::FormatarCPF(TField& ACampo) { FormatarCampo(ACampo, CMascaraCpf); }
void TOryUtilsFormatacoes::FormatarCRC(TField& ACampo) { FormatarCampo(ACampo, CMascaraCrc); }
void TOryUtilsFormatacoes::FormatarCEI(TField& ACampo) { FormatarCampo(ACampo, CMascaraCei); }
void TOryUtilsFormatacoes::FormatarCompetencia(TField& ACampo) { FormatarCampo(ACampo, CMascaraCompetencia); }
void TOryUtilsFormatacoes::FormatarFone(TField& ACampo) { FormatarCampo(ACampo, CMascaraFone); }
void TOryUtilsFormatacoes::FormatarFoneDDD(TField& ACampo) { ACampo.SetEscolhaDeMascara(&EscolherMascaraDeFone); }
void TOryUtilsFormatacoes::FormatarCpfCnpj(TField& ACampo) { ACampo.SetEscolhaDeMascara(&EscolherMascaraDeCpfCnpj); }
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

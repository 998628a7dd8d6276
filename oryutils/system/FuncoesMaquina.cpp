#include "oryutils/system/OryUtilsSystem.hpp"

namespace OryUtils {

using C = TOryUtilsSistema;

std::u16string GetNomeUsuarioLogadoNoWindows() { return C::BuscarNomeUsuarioLogadoNoWindows(); }
std::u16string GetNomeComputador() { return C::BuscarNomeComputador(); }
std::u16string GetIPLocal() { return C::BuscarIPLocal(); }
std::u16string GetEnderecoMac(std::u16string_view AIP) { return C::BuscarEnderecoMac(AIP); }
std::u16string GetMacAddress2(std::u16string_view AIP) { return C::BuscarEnderecoMac2(AIP); }
std::u16string BuscarEnderecoMacViaARP(std::u16string_view AIP) { return C::BuscarEnderecoMacViaARP(AIP); }
TVersaoWindows GetWindowsVersion() { return C::BuscarVersaoWindows(); }
std::u16string GetWindowsDrive() { return C::BuscarUnidadeInstalacaoWindows(); }
std::u16string GetWindowsSystemDir() { return C::BuscarPastaSystemWindows(); }
std::u16string GetPastaTempWindows() { return C::BuscarPastaTempWindows(); }
std::u16string GetPastaArquivoDeProgramas() { return C::BuscarPastaArquivoDeProgramas(); }
std::u16string GetPastaMeusDocumentos() { return C::BuscarPastaMeusDocumentos(); }
std::u16string GetApplicationPath() { return C::BuscarPastaAplicacao(); }
std::u16string BuscarPastaConfiguracaoFormularios() { return C::BuscarPastaConfiguracaoFormularios(); }
std::u16string BuscarPastaOryApps() { return C::BuscarPastaOryApps(); }
std::u16string GetPastaInstalacaoVelmar(TVersaoVelmar AVersao) { return C::BuscarPastaInstalacaoVelmar(AVersao); }
TInformacoesVelmar GetInformacoesVelmar(TVersaoVelmar AVersao) { return C::BuscarInformacoesVelmar(AVersao); }
void SimularPressionamentoTecla(std::uint16_t ATecla, TShiftState AShift, bool ATeclaEstendida) {
    C::SimularPressionamentoTecla(ATecla, AShift, ATeclaEstendida);
}
int VarToIntDef(const Variant& AValor, int APadrao) { return C::VarToIntDef(AValor, APadrao); }

}  // namespace OryUtils

#include "oryutils/platform/Executavel.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/platform/PastasDoSistema.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Registro.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDePastas.hpp"

#include <cstdint>

namespace OryUtils {
namespace {

std::u16string MontarVizinha(std::u16string_view ANome) {
    return Interno::MontarPastaVizinha(TOryUtilsSistema::BuscarPastaAplicacao(), ANome,
                                       Interno::BuscarSeparadorDePastas());
}

/// KEY_READ | KEY_WOW64_32KEY: what 32-bit programs see.
constexpr std::uint32_t CLeituraDe32Bits = 0x20219;

/// A text of the machine's settings; empty when it is missing, of another kind or may not be read.
std::u16string LerDaMaquina(std::u16string_view AChave, std::u16string_view AValor, std::uint32_t AAcesso = arLeitura) {
    try {
        TRegistry registro(AAcesso);
        registro.SetRootKey(crLocalMachine);
        return registro.OpenKey(AChave, false) ? registro.ReadString(AValor) : std::u16string();
    } catch (const ERegistryException&) {
        return {};
    }
}

}  // namespace

std::u16string TOryUtilsSistema::BuscarPastaAplicacao() {
    return Interno::BuscarPastaDoPrograma(Interno::BuscarArquivoExecutavel(), Interno::BuscarSeparadorDePastas());
}

std::u16string TOryUtilsSistema::BuscarPastaConfiguracaoFormularios() {
    const std::u16string pasta = BuscarPastaAplicacao() + u"ConfigsTemp";
    Interno::CriarPasta(pasta);
    return pasta + Interno::BuscarSeparadorDePastas();
}

std::u16string TOryUtilsSistema::BuscarPastaPadraoLogSistema() {
    std::u16string pasta = BuscarPastaAplicacao() + u"LogSistema";
    Interno::CriarPasta(pasta);
    return pasta;
}

std::u16string TOryUtilsSistema::BuscarPastaOryApps() { return MontarVizinha(u"OryApps"); }

std::u16string TOryUtilsSistema::BuscarPastaOryDados() { return MontarVizinha(u"OryDados"); }

std::u16string TOryUtilsSistema::BuscarPastaOryAppsAjuda() {
    return MontarVizinha(u"OryApps_Ajuda") + Interno::BuscarSeparadorDePastas();
}

std::u16string TOryUtilsSistema::BuscarPastaOryEventosServer() { return MontarVizinha(u"OryEventosServer"); }

std::u16string TOryUtilsSistema::BuscarPastaArquivoDeProgramas() {
    const std::u16string pasta = LerDaMaquina(u"\\Software\\Microsoft\\Windows\\CurrentVersion", u"ProgramFilesDir");
    return pasta.empty() ? Interno::BuscarPastaDeProgramasPadrao() : pasta;
}

std::u16string TOryUtilsSistema::BuscarPastaMeusDocumentos() {
    const auto pasta = Interno::BuscarPastaDeDocumentos();
    if (!pasta) throw Exception(u"Não foi possível identificar o local da pasta Meus Documentos.");
    return *pasta;
}

std::u16string TOryUtilsSistema::BuscarPastaSystemWindows() { return Interno::BuscarPastaDoSistema(); }

std::u16string TOryUtilsSistema::BuscarPastaTempWindows() { return Interno::BuscarPastaTemporaria(); }

std::u16string TOryUtilsSistema::BuscarUnidadeInstalacaoWindows() { return Interno::BuscarUnidadeDoSistema(); }

std::u16string TOryUtilsSistema::BuscarPastaInstalacaoVelmar(TVersaoVelmar AVersao) {
    if (AVersao != VdVelmarXE) return {};
    // The development environment is a program of 32 bits.
    constexpr std::u16string_view CChave = u"Software\\Embarcadero\\BDS\\8.0";
    std::u16string pasta = LerDaMaquina(CChave, u"RootDir");
    return pasta.empty() ? LerDaMaquina(CChave, u"RootDir", CLeituraDe32Bits) : pasta;
}

TInformacoesVelmar TOryUtilsSistema::BuscarInformacoesVelmar(TVersaoVelmar AVersao) {
    const std::u16string raiz = BuscarPastaInstalacaoVelmar(AVersao);
    return {raiz, raiz + u"\\bin", raiz + u"\\lib\\win32\\release"};
}

std::u16string TOryUtilsSistema::BuscarCaminhoArquivoConfiguracaoForms() {
    return BuscarPastaConfiguracaoFormularios() +
           Interno::MontarNomeConfiguracaoForms(BuscarNomeComputador(), BuscarNomeUsuarioLogadoNoWindows());
}

}  // namespace OryUtils

#include "oryutils/platform/PastasDoSistema.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/VariavelDeAmbiente.hpp"
#include "oryutils/platform/linux/PastaDeDocumentos.hpp"
#include "oryutils/platform/linux/PastaInicial.hpp"

namespace OryUtils::Interno {
namespace {

std::string SemSeparadorFinal(std::string APasta) {
    while (APasta.size() > 1 && APasta.back() == '/') APasta.pop_back();
    return APasta;
}

}  // namespace

std::optional<std::u16string> BuscarPastaDeDocumentos() {
    const std::string inicio = SemSeparadorFinal(BuscarPastaInicial());
    if (inicio.empty()) return std::nullopt;
    const std::u16string arquivo = DeUtf8(BuscarPastaDeConfiguracoes() + "/user-dirs.dirs");
    const std::string pasta = LerPastaDeDocumentos(LerArquivo(arquivo).value_or(""), inicio == "/" ? "" : inicio);
    if (!pasta.empty()) return DeUtf8(SemSeparadorFinal(pasta));
    return DeUtf8((inicio == "/" ? "" : inicio) + "/Documents");
}

std::u16string BuscarPastaTemporaria() {
    const std::string pasta = BuscarVariavelDeAmbiente("TMPDIR");
    return pasta.starts_with('/') ? DeUtf8(SemSeparadorFinal(pasta)) : u"/tmp";
}

std::u16string BuscarPastaDoSistema() { return u"/usr/lib"; }

std::u16string BuscarUnidadeDoSistema() { return u"/"; }

std::u16string BuscarPastaDeProgramasPadrao() { return u"/opt"; }

}  // namespace OryUtils::Interno

#include "oryutils/platform/PastasDoSistema.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/linux/Exibicao.hpp"
#include "oryutils/platform/linux/PastaDeDocumentos.hpp"
#include "oryutils/platform/linux/PastaInicial.hpp"

#include <climits>

#include <fstream>
#include <iterator>
#include <unistd.h>
#include <vector>

namespace OryUtils::Interno {
namespace {

std::string SemSeparadorFinal(std::string APasta) {
    while (APasta.size() > 1 && APasta.back() == '/') APasta.pop_back();
    return APasta;
}

}  // namespace

std::u16string BuscarCaminhoDoExecutavel() {
    std::vector<char> caminho(PATH_MAX);
    const ssize_t tamanho = ::readlink("/proc/self/exe", caminho.data(), caminho.size());
    return tamanho > 0 ? DeUtf8({caminho.data(), static_cast<std::size_t>(tamanho)}) : std::u16string();
}

std::optional<std::u16string> BuscarPastaDeDocumentos() {
    const std::string inicio = SemSeparadorFinal(BuscarPastaInicial());
    if (inicio.empty()) return std::nullopt;
    std::string configuracoes = BuscarVariavelDeAmbiente("XDG_CONFIG_HOME");
    if (!configuracoes.starts_with('/')) configuracoes = inicio + "/.config";
    std::ifstream arquivo(configuracoes + "/user-dirs.dirs", std::ios::binary);
    const std::string texto(std::istreambuf_iterator<char>(arquivo), {});
    const std::string pasta = LerPastaDeDocumentos(texto, inicio == "/" ? "" : inicio);
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

#include "oryutils/forms/interno/ToolkitPadrao.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/forms/console/ToolkitConsole.hpp"
#include "oryutils/forms/interno/FabricaQt.hpp"
#include "oryutils/platform/BibliotecaDinamica.hpp"
#include "oryutils/platform/VariavelDeAmbiente.hpp"
#include "oryutils/platform/linux/Exibicao.hpp"

#include <vector>

namespace OryUtils {
namespace {

// With the number of the binary interface, told by the build.
constexpr const char* CArquivoQt = ORY_QT_ARQUIVO;

// The file whose full path ORYUTILS_QT gives, and no other; else beside this code, in the lib folder of the same
// installation, and wherever the system looks. Never the current folder.
std::vector<std::string> BuscarCandidatos() {
    const std::string escolhido = Interno::BuscarVariavelDeAmbiente("ORYUTILS_QT");
    if (!escolhido.empty()) return {escolhido.front() == '/' ? escolhido : std::string()};
    std::vector<std::string> candidatos;
    const std::string pasta = Interno::BuscarPastaDoModulo();
    if (!pasta.empty()) candidatos = {pasta + "/" + CArquivoQt, pasta + "/../lib/" + CArquivoQt};
    candidatos.emplace_back(CArquivoQt);
    return candidatos;
}

TToolkit* CarregarQt() {
    for (const std::string& candidato : BuscarCandidatos()) {
        if (candidato.empty()) continue;
        Interno::TBibliotecaDinamica biblioteca(DeUtf8(candidato));
        const auto fabrica = biblioteca.Buscar<TFabricaQt>(CFabricaQt);
        if (!fabrica) continue;
        biblioteca.Soltar();  // Qt is not made to be unloaded
        if (TToolkit* toolkit = fabrica(CVersaoDoModelo)) return toolkit;
    }
    return nullptr;
}

}  // namespace

TToolkit& BuscarToolkitPadrao() {
    static TToolkitConsole console;
    static TToolkit* const qt = Interno::PossuiExibicao() ? CarregarQt() : nullptr;
    return qt ? *qt : console;
}

}  // namespace OryUtils

#include "oryutils/platform/ProgramaPadrao.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/linux/Filhos.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace OryUtils::Interno {
namespace {

/// Starts a program that nobody waits for, in a session of its own and away from the streams of this one. The error of
/// the system; 0 when the program has started.
int Disparar(std::vector<std::string> AComando) {
    const pid_t pid = GerarFilho(
        {.Argumentos = std::move(AComando), .Entrada = CNenhumFluxo, .Saida = CNenhumFluxo, .Erro = CNenhumFluxo});
    return pid < 0 ? -pid : 0;
}

}  // namespace

bool AbrirComProgramaPadrao(std::u16string_view AArquivo, std::u16string_view AParametros) {
    if (AArquivo.find(u'\0') != AArquivo.npos || AParametros.find(u'\0') != AParametros.npos) return false;
    // A full path is neither taken for an option nor looked up among the programs.
    const std::unique_ptr<char, decltype(&std::free)> nome(::realpath(ParaUtf8(AArquivo).c_str(), nullptr), &std::free);
    struct stat dados {};
    if (!nome || ::stat(nome.get(), &dados) != 0) return false;
    if (S_ISREG(dados.st_mode) && ::access(nome.get(), X_OK) == 0) {
        std::vector<std::string> comando{nome.get()};
        for (const std::u16string& parametro : SepararArgumentos(AParametros)) comando.push_back(ParaUtf8(parametro));
        const int erro = Disparar(std::move(comando));
        // On some disks every file may be executed, also those that are no program.
        if (erro != ENOEXEC) return erro == 0;
    }
    return Disparar({"xdg-open", nome.get()}) == 0;
}

}  // namespace OryUtils::Interno

#include "oryutils/platform/linux/Elevacao.hpp"

#include "oryutils/platform/Caminho.hpp"

namespace OryUtils::Interno {

std::vector<std::string> BuscarElevador(bool AManterPasta) {
    if (ExisteComando(u"pkexec")) {
        // It goes to root's folder unless told to stay.
        if (AManterPasta) return {"pkexec", "--keep-cwd"};
        return {"pkexec"};
    }
    if (ExisteComando(u"sudo")) return {"sudo", "-A", "--"};
    return {};
}

}  // namespace OryUtils::Interno

#include "oryutils/platform/Arquivos.hpp"

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace OryUtils::Interno {
namespace {

TErroFluxo BuscarErro() noexcept { return ClassificarErroDoSistema(static_cast<std::uint32_t>(errno)); }

}  // namespace

TErroFluxo SubstituirArquivo(const std::string& ADe, const std::string& APara) {
    return std::rename(ADe.c_str(), APara.c_str()) == 0 ? efNenhum : BuscarErro();
}

TErroFluxo ExcluirArquivo(const std::string& ANome) {
    return ::unlink(ANome.c_str()) == 0 || errno == ENOENT ? efNenhum : BuscarErro();
}

}  // namespace OryUtils::Interno

#include "oryutils/platform/ArquivoVigiado.hpp"

namespace OryUtils::Interno {

struct TArquivoVigiado::TVigia {};

TArquivoVigiado::TArquivoVigiado() = default;
TArquivoVigiado::~TArquivoVigiado() = default;

// The file would have to stay open, and others could neither rename nor replace it meanwhile.
bool TArquivoVigiado::Iniciar(TFluxo& /*AFluxo*/, const std::string& /*ANome*/, const TMarcaDeArquivo& /*AMarca*/) {
    return false;
}
bool TArquivoVigiado::Acrescentar(std::string_view /*ABytes*/, bool& AMexido) noexcept {
    AMexido = true;
    return false;
}
std::optional<TMarcaDeArquivo> TArquivoVigiado::Parar() noexcept { return {}; }
void TArquivoVigiado::Fechar() noexcept {}

}  // namespace OryUtils::Interno

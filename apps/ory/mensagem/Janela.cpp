#include "mensagem/Janela.hpp"

#include "oryutils/forms/Toolkit.hpp"

#include "Fluxos.hpp"

#include <charconv>

namespace Ory {
namespace {

// Decimal as WINDOWID has it, or "0x1400007" as the tools of X11 print it.
std::uintptr_t LerNumero(const std::string& ATexto) {
    const bool hexadecimal = ATexto.starts_with("0x") || ATexto.starts_with("0X");
    const char* inicio = ATexto.data() + (hexadecimal ? 2 : 0);
    const char* fim = ATexto.data() + ATexto.size();
    std::uintptr_t numero = 0;
    const auto lido = std::from_chars(inicio, fim, numero, hexadecimal ? 16 : 10);
    if (lido.ec != std::errc() || lido.ptr != fim || numero == 0)
        throw EFalha("--dono espera o número de uma janela, veio " + ATexto);
    return numero;
}

}  // namespace

TJanelaPedida::TJanelaPedida(const TPedidoDeJanela& APedido) : FPedido(APedido) {
    if (!APedido.Dona.empty()) {
        const auto atendimento = OryUtils::BuscarToolkit().SetJanelaDona(LerNumero(APedido.Dona));
        if (atendimento == OryUtils::atNaoExiste) throw EFalha("a janela de --dono não existe: " + APedido.Dona);
        if (atendimento != OryUtils::atFeito) throw EFalha("--dono não é possível neste ambiente");
    }
    if (APedido.NaFrente && OryUtils::BuscarToolkit().SetNaFrente(true) != OryUtils::atFeito)
        throw EFalha("--na-frente não é possível neste ambiente");
}

TJanelaPedida::~TJanelaPedida() {
    if (!FPedido.Dona.empty()) OryUtils::BuscarToolkit().SetJanelaDona(0);
    if (FPedido.NaFrente) OryUtils::BuscarToolkit().SetNaFrente(false);
}

}  // namespace Ory

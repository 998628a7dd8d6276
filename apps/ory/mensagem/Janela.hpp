#pragma once

#include <cstdint>
#include <string>

namespace Ory {

/// Where the window of a dialog stands among the others of the screen.
struct TPedidoDeJanela {
    std::string Dona{};  // number of the window that owns it, as written; empty for none
    bool NaFrente = false;
};

/// What was asked for, as long as it lives. Raises EFalha for what is no window, and where the system cannot do it.
class TJanelaPedida {
public:
    explicit TJanelaPedida(const TPedidoDeJanela& APedido);
    ~TJanelaPedida();
    TJanelaPedida(const TJanelaPedida&) = delete;
    TJanelaPedida& operator=(const TJanelaPedida&) = delete;

private:
    const TPedidoDeJanela& FPedido;
};

}  // namespace Ory

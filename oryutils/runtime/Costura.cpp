#include "oryutils/runtime/Costura.hpp"

#include "oryutils/characters/Utf.hpp"

#include <cstdio>

namespace OryUtils {
namespace {

void Escrever(const char* ATitulo, std::u16string_view AMensagem) {
    std::fprintf(stderr, "%s: %s\n", ATitulo, ParaUtf8(AMensagem).c_str());
}

void AtribuirFocoDireto(TWinControl* AControle) {
    if (AControle && AControle->PodeReceberFoco()) AControle->ReceberFoco();
}

}  // namespace

TCosturaInterface BuscarCosturaPadrao() noexcept {
    return {.Alerta = [](std::u16string_view AMensagem) { Escrever("Aviso", AMensagem); },
            .Erro = [](std::u16string_view AMensagem) { Escrever("Erro", AMensagem); },
            .ProcessarMensagens = [] {},
            .AtribuirFoco = AtribuirFocoDireto,
            .BuscarPixelsPorPolegada = [] { return 96; },
            .MostrarCursorOcupado = [](bool) {},
            .DesabilitarJanelas = [] { return std::shared_ptr<void>(); }};
}

TCosturaInterface& CosturaInterface() noexcept {
    static TCosturaInterface costura = BuscarCosturaPadrao();
    return costura;
}

}  // namespace OryUtils

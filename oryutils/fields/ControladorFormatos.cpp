#include "oryutils/fields/ControladorFormatos.hpp"

#include "oryutils/platform/Localidade.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constinit TControladorFormatos* GInstalado = nullptr;

}  // namespace

TControladorFormatos& ControladorFormatos() noexcept {
    static TControladorFormatos proprio;
    return GInstalado ? *GInstalado : proprio;
}

void InstalarControladorFormatos(TControladorFormatos* AControlador) noexcept { GInstalado = AControlador; }

void TControladorFormatos::BeginUpdate() { ++FAtualizacoes; }

void TControladorFormatos::EndUpdate() { FAtualizacoes = std::max(FAtualizacoes - 1, 0); }

void TControladorFormatos::SetUsarFormatosDoProcesso(bool AUsar) { FUsarFormatosDoProcesso = AUsar; }

void TControladorFormatos::GetFormats() {
    FDoProcesso = FUsarFormatosDoProcesso;
    if (!FDoProcesso) FDoUsuario = Interno::BuscarFormatosDoSistema();
}

const TFormatSettings& TControladorFormatos::GetFormatos() const { return FDoProcesso ? FormatSettings() : FDoUsuario; }

void TControladorFormatos::NotifyListeners() {
    if (FAtualizacoes > 0) return;
    const std::vector<TOuvinte> ouvintes = FOuvintes;
    for (const TOuvinte& ouvinte : ouvintes)
        if (std::ranges::find(FOuvintes, ouvinte) != FOuvintes.end()) ouvinte();
}

void TControladorFormatos::AdicionarOuvinte(const TOuvinte& AOuvinte) { FOuvintes.push_back(AOuvinte); }

void TControladorFormatos::RemoverOuvinte(const TOuvinte& AOuvinte) { std::erase(FOuvintes, AOuvinte); }

}  // namespace OryUtils

#include "oryutils/forms/Toolkit.hpp"

#include "oryutils/forms/interno/ToolkitPadrao.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

TToolkit* GInstalado = nullptr;

constexpr int CPixelsPorPolegadaBase = 96;

// What a control takes besides its text, in pixels at 96 per inch, in the order of TTipoControle.
constexpr TTamanho CFolgas[] = {{0, 0}, {12, 8}, {22, 2}, {22, 2}, {12, 8}, {28, 8}, {0, 0}, {0, 0}, {28, 8}};

}  // namespace

TTamanho MedirControlePadrao(const TToolkit& AToolkit, TTipoControle ATipo, std::u16string_view ATexto,
                             int ALarguraMaxima) {
    const int ppp = AToolkit.GetPixelsPorPolegada();
    const auto escalar = [ppp](int APixels) {
        return (APixels * ppp + CPixelsPorPolegadaBase - 1) / CPixelsPorPolegadaBase;
    };
    const TTamanho folga{escalar(CFolgas[ATipo].Largura), escalar(CFolgas[ATipo].Altura)};
    const bool temLetra = ATipo == tcBotao || ATipo == tcCaixaChecagem || ATipo == tcGrupoOpcoes;
    const std::u16string texto = temLetra ? RemoverAtalho(ATexto) : std::u16string(ATexto);
    const TTamanho medido =
        AToolkit.MedirTexto(texto, ALarguraMaxima > 0 ? std::max(ALarguraMaxima - folga.Largura, 1) : 0);
    return {medido.Largura + folga.Largura, medido.Altura + folga.Altura};
}

TToolkit& BuscarToolkit() { return GInstalado ? *GInstalado : BuscarToolkitPadrao(); }

TToolkit& ExigirToolkit() {
    TToolkit& toolkit = BuscarToolkit();
    if (!toolkit.EhThreadDaInterface())
        throw Exception(u"Formulários só podem ser mostrados pela thread da interface do usuário.");
    return toolkit;
}

void InstalarToolkit(TToolkit* AToolkit) { GInstalado = AToolkit; }

}  // namespace OryUtils

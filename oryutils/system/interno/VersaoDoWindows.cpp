#include "oryutils/system/interno/VersaoDoWindows.hpp"

#include <array>
#include <optional>

namespace OryUtils::Interno {
namespace {

constexpr std::uint32_t CWindows9x = 1;
constexpr std::uint32_t CWindowsNT = 2;

struct TGeracao {
    std::uint32_t Plataforma, Maior;
    std::optional<std::uint32_t> Menor;  // none: all of them
    TVersaoWindows Versao;
};
// clang-format off
constexpr std::array CGeracoes{
    TGeracao{CWindows9x, 4,  0, vwWin95},
    TGeracao{CWindows9x, 4, 10, vwWin98},
    TGeracao{CWindows9x, 4, 90, vwWinME},
    TGeracao{CWindowsNT, 5,  0, vwWin2000},
    TGeracao{CWindowsNT, 5,  1, vwWinXP},
    TGeracao{CWindowsNT, 6, {}, vwWinVista},
};
// clang-format on

}  // namespace

TVersaoWindows ClassificarVersao(const Interno::TVersaoDoSistema& AVersao) {
    if (AVersao.Plataforma == CWindowsNT && AVersao.Maior < 5) return vwWinNT;
    for (const TGeracao& geracao : CGeracoes) {
        if (geracao.Plataforma != AVersao.Plataforma || geracao.Maior != AVersao.Maior) continue;
        if (geracao.Menor && *geracao.Menor != AVersao.Menor) continue;
        const bool segundaEdicao = AVersao.PacoteDeServico.size() > 1 && AVersao.PacoteDeServico[1] == u'A';
        return geracao.Versao == vwWin98 && segundaEdicao ? vwWin98SE : geracao.Versao;
    }
    return vwUnknown;
}

}  // namespace OryUtils::Interno

#include "oryutils/forms/win32/interno/ListaNativa.hpp"

#include "oryutils/forms/win32/interno/TextoNativo.hpp"

#include <algorithm>
#include <string>

namespace OryUtils::Interno {
namespace {

constexpr int CMargemDoItem = 8;  // pixels at 96 per inch

}  // namespace

void MostrarItens(HWND ALista, const TListaEscolha& AModelo, const TFonteDialogo& AFonte) {
    ::SendMessageW(ALista, WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(ALista, LB_RESETCONTENT, 0, 0);
    for (const std::u16string& item : AModelo.GetItens())
        ::SendMessageW(ALista, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ParaWide(ParaNativo(item))));
    AjustarItens(ALista, AFonte);
    ::SendMessageW(ALista, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(ALista, nullptr, TRUE);
}

void AjustarItens(HWND ALista, const TFonteDialogo& AFonte) {
    int maior = 0;
    const auto total = ::SendMessageW(ALista, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < total; ++i) {
        std::wstring item(
            static_cast<std::size_t>(::SendMessageW(ALista, LB_GETTEXTLEN, static_cast<WPARAM>(i), 0)) + 1, L'\0');
        ::SendMessageW(ALista, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(item.data()));
        item.pop_back();
        maior = std::max(maior, AFonte.Medir(DeWide(item), 0).Largura);
    }
    ::SendMessageW(ALista, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(maior + AFonte.Escalar(CMargemDoItem)), 0);
    ::SendMessageW(ALista, LB_SETITEMHEIGHT, 0, AFonte.GetAlturaLinha());
}

void MostrarEscolhidos(HWND ALista, const TListaEscolha& AModelo) {
    const auto& escolhidos = AModelo.GetEscolhidos();
    if (!AModelo.GetVarios()) {
        const WPARAM qual = escolhidos.empty() ? static_cast<WPARAM>(-1) : static_cast<WPARAM>(escolhidos.front());
        ::SendMessageW(ALista, LB_SETCURSEL, qual, 0);
        return;
    }
    ::SendMessageW(ALista, LB_SETSEL, FALSE, -1);
    for (const int i : escolhidos) ::SendMessageW(ALista, LB_SETSEL, TRUE, i);
}

std::vector<int> LerItensEscolhidos(HWND ALista, bool AVarios) {
    if (!AVarios) {
        const auto atual = ::SendMessageW(ALista, LB_GETCURSEL, 0, 0);
        return atual < 0 ? std::vector<int>{} : std::vector{static_cast<int>(atual)};
    }
    const auto quantos = std::max<LRESULT>(::SendMessageW(ALista, LB_GETSELCOUNT, 0, 0), 0);
    std::vector<int> escolhidos(static_cast<std::size_t>(quantos));
    if (quantos > 0)
        ::SendMessageW(ALista, LB_GETSELITEMS, static_cast<WPARAM>(quantos),
                       reinterpret_cast<LPARAM>(escolhidos.data()));
    return escolhidos;
}

}  // namespace OryUtils::Interno

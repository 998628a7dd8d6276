// What a dialog of the system shows, measured in its own windows.
#include "oryutils/forms/win32/interno/Telas.hpp"

#include "Auxiliares.hpp"

#include <commctrl.h>

namespace OryUtils {
namespace {

std::vector<TTelaWin32> MontarTelas() {
    std::vector<TTelaWin32> telas;
    for (const int porcento : {100, 125, 150, 200, 300})
        for (const auto& [largura, altura] : {std::pair{640, 480}, {800, 600}, {1366, 768}, {1920, 1080}, {3840, 2160}})
            telas.push_back({{0, 0, largura, altura}, 96 * porcento / 100});
    return telas;
}

std::u16string BuscarDica(HWND AControle) {
    HWND dicas = nullptr;
    while ((dicas = ::FindWindowExW(nullptr, dicas, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
        std::wstring texto(6000, L'\0');
        TOOLINFOW ferramenta{};
        ferramenta.cbSize = TTTOOLINFOW_V1_SIZE;
        ferramenta.hwnd = ::GetAncestor(AControle, GA_ROOT);
        ferramenta.uId = reinterpret_cast<UINT_PTR>(AControle);
        ferramenta.lpszText = texto.data();
        ::SendMessageW(dicas, TTM_GETTEXTW, texto.size(), reinterpret_cast<LPARAM>(&ferramenta));
        if (texto[0]) return Interno::DeWide(std::wstring(texto.c_str()));
    }
    return {};
}

/// Size of the text of AJanela in its own font.
SIZE MedirTexto(HWND AJanela, int ALargura, UINT AFormato) {
    const HDC tela = ::GetDC(AJanela);
    const HGDIOBJ antes = ::SelectObject(tela, reinterpret_cast<HGDIOBJ>(::SendMessageW(AJanela, WM_GETFONT, 0, 0)));
    const std::u16string texto = TUsuarioWin32::Texto(AJanela);
    RECT r{0, 0, ALargura, 0};
    ::DrawTextW(tela, Interno::ParaWide(texto), static_cast<int>(texto.size()), &r, DT_CALCRECT | AFormato);
    TEXTMETRICW medidas{};
    ::GetTextMetricsW(tela, &medidas);
    ::SelectObject(tela, antes);
    ::ReleaseDC(AJanela, tela);
    return {r.right, std::max(r.bottom, medidas.tmHeight)};
}

bool Cabe(HWND AJanela, int APixelsPorPolegada) {
    // The square of a check box and the gap before its text.
    const LONG marca = 18 * APixelsPorPolegada / 96;
    RECT r{};
    ::GetClientRect(AJanela, &r);
    const LONG_PTR estilo = ::GetWindowLongPtrW(AJanela, GWL_STYLE);
    const std::wstring classe = TUsuarioWin32::BuscarClasse(AJanela);
    if (classe == L"Edit") {
        const LONG linha = MedirTexto(AJanela, 0, DT_SINGLELINE).cy;
        if (!(estilo & ES_MULTILINE)) return r.bottom >= linha;
        ::SendMessageW(AJanela, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&r));
        // It scrolls; its last line is not cut.
        return r.bottom - r.top >= linha && (r.bottom - r.top) % linha <= linha / 2;
    }
    if (classe == L"ListBox") return r.bottom >= MedirTexto(AJanela, 0, DT_SINGLELINE).cy;  // it scrolls
    if (classe == L"Static") {
        const SIZE texto = MedirTexto(AJanela, static_cast<int>(r.right), DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX);
        return texto.cx <= r.right && texto.cy <= r.bottom;
    }
    if ((estilo & BS_TYPEMASK) == BS_GROUPBOX) return true;
    const bool marcavel = (estilo & BS_MULTILINE) != 0;
    const LONG livre = r.right - (marcavel ? marca : 6);
    const SIZE texto = MedirTexto(AJanela, static_cast<int>(livre), marcavel ? DT_WORDBREAK : DT_SINGLELINE);
    return texto.cx <= livre && texto.cy <= r.bottom;
}

void Juntar(HWND APai, HWND AJanela, bool ARolado, int APixels, std::vector<TNativo>& ANativos) {
    for (HWND filho = ::GetWindow(APai, GW_CHILD); filho; filho = ::GetWindow(filho, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(filho)) continue;
        const LONG_PTR estilo = ::GetWindowLongPtrW(filho, GWL_STYLE);
        const std::wstring classe = TUsuarioWin32::BuscarClasse(filho);
        const bool vista = classe == L"TOryVistaRolavel";
        if (vista) Juntar(filho, AJanela, true, APixels, ANativos);
        const bool botao = classe == L"Button";
        if (vista || classe == L"msctls_progress32" || (botao && (estilo & BS_TYPEMASK) == BS_GROUPBOX) ||
            (classe == L"Static" && estilo & SS_ICON))
            continue;
        TNativo nativo;
        nativo.Texto = TUsuarioWin32::Texto(filho);
        nativo.Dica = BuscarDica(filho);
        RECT r{};
        ::GetWindowRect(filho, &r);
        ::MapWindowPoints(nullptr, AJanela, reinterpret_cast<POINT*>(&r), 2);
        nativo.Lugar = {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right - r.left),
                        static_cast<int>(r.bottom - r.top)};
        nativo.Cabe = Cabe(filho, APixels);
        nativo.Focavel = classe != L"Static" && ::IsWindowEnabled(filho);
        nativo.EhOpcao = botao && (estilo & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
        nativo.Rolado = ARolado;
        ANativos.push_back(std::move(nativo));
    }
}

}  // namespace

const std::vector<TTelaWin32> TUsuarioWin32::CTelas = MontarTelas();

TTelaWin32 TUsuarioWin32::BuscarTela(void* AJanela) const {
    return FTela ? *FTela : Interno::BuscarTelaDoSistema(AJanela);
}

TVisao TUsuarioWin32::Medir() {
    const HWND janela = BuscarFormulario();
    TVisao visao;
    RECT r{};
    ::GetWindowRect(janela, &r);
    visao.Janela = {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right - r.left),
                    static_cast<int>(r.bottom - r.top)};
    ::GetClientRect(janela, &r);
    visao.Cliente = {static_cast<int>(r.right), static_cast<int>(r.bottom)};
    Juntar(janela, janela, false, BuscarTela(janela).PixelsPorPolegada, visao.Controles);
    const HWND primeiro = ::GetNextDlgTabItem(janela, nullptr, FALSE);
    HWND parada = primeiro;
    do {
        RECT lugar{};
        ::GetWindowRect(::GetParent(parada) == janela ? parada : ::GetParent(parada), &lugar);
        ::MapWindowPoints(nullptr, janela, reinterpret_cast<POINT*>(&lugar), 2);
        visao.Tabulacao.push_back({static_cast<int>(lugar.left), static_cast<int>(lugar.top), 0, 0});
        parada = ::GetNextDlgTabItem(janela, parada, FALSE);
    } while (parada != primeiro && visao.Tabulacao.size() < 100);
    return visao;
}

}  // namespace OryUtils

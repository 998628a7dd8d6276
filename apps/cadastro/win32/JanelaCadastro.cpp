#include "apps/cadastro/win32/JanelaCadastro.hpp"

#include <algorithm>

namespace OryUtils::Cadastro {
namespace {

constexpr UINT CSaiuDoCampo = WM_APP + 1;
constexpr int CPrimeiroCampo = 100;
constexpr int CSalvar = IDOK;      // what Enter presses
constexpr int CFechar = IDCANCEL;  // what Esc presses
constexpr int CPorExtenso = 50;
// Of a box, above and below its text.
constexpr int CFolgaCaixa = 7;

std::wstring Texto(std::u16string_view ATexto) { return {Interno::ParaWide(ATexto.data()), ATexto.size()}; }

/// An empty dialog box: Tab, Enter, Esc, Alt with a letter, and the focus that comes back to where it was.
struct TModelo {
    DLGTEMPLATE Caixa{};
    WORD Menu = 0, Classe = 0, Titulo = 0;
};

}  // namespace

TJanelaCadastro::TJanelaCadastro(HINSTANCE AModulo, int APixelsPorPolegada) : FModulo(AModulo) {
    const HDC tela = ::GetDC(nullptr);
    const int daTela = ::GetDeviceCaps(tela, LOGPIXELSY);
    ::ReleaseDC(nullptr, tela);
    FPixelsPorPolegada = APixelsPorPolegada > 0 ? APixelsPorPolegada : daTela;
    NONCLIENTMETRICSW metricas{};
    metricas.cbSize = sizeof metricas;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metricas, &metricas, 0);
    metricas.lfMessageFont.lfHeight =
        ::MulDiv(static_cast<int>(metricas.lfMessageFont.lfHeight), FPixelsPorPolegada, daTela);
    FFonte = ::CreateFontIndirectW(&metricas.lfMessageFont);
    TModelo modelo;
    modelo.Caixa.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    modelo.Caixa.dwExtendedStyle = WS_EX_APPWINDOW;
    FJanela =
        ::CreateDialogIndirectParamW(AModulo, &modelo.Caixa, nullptr, &Procedimento, reinterpret_cast<LPARAM>(this));
    Montar();
}

TJanelaCadastro::~TJanelaCadastro() {
    if (FJanela) ::DestroyWindow(FJanela);
    ::DeleteObject(FFonte);
}

HWND TJanelaCadastro::GetPorExtenso() const { return ::GetDlgItem(FJanela, CPorExtenso); }

int TJanelaCadastro::Executar() {
    ::ShowWindow(FJanela, SW_SHOWNORMAL);
    ::SetFocus(FCaixas[0]);
    MSG mensagem;
    while (::GetMessageW(&mensagem, nullptr, 0, 0) > 0) {
        if (FJanela && ::IsDialogMessageW(FJanela, &mensagem)) continue;
        ::TranslateMessage(&mensagem);
        ::DispatchMessageW(&mensagem);
    }
    return static_cast<int>(mensagem.wParam);
}

/// The size of ATexto in the window's font.
SIZE TJanelaCadastro::Medir(std::u16string_view ATexto) const {
    const HDC tela = ::GetDC(nullptr);
    const HGDIOBJ anterior = ::SelectObject(tela, FFonte);
    RECT r{};
    ::DrawTextW(tela, Interno::ParaWide(ATexto.data()), static_cast<int>(ATexto.size()), &r,
                DT_CALCRECT | DT_SINGLELINE);
    ::SelectObject(tela, anterior);
    ::ReleaseDC(nullptr, tela);
    return {r.right, r.bottom};
}

int TJanelaCadastro::BuscarLargura(std::size_t ACampo) const {
    const int setaOuBorda = Pixels(CCampos[ACampo].Opcoes.empty() ? 12 : 24);
    return CCampos[ACampo].Largura * static_cast<int>(Medir(u"0").cx) + setaOuBorda;
}

void TJanelaCadastro::Montar() {
    const int margem = Pixels(12), letra = static_cast<int>(Medir(u"0").cy);
    const int alturaCaixa = letra + Pixels(CFolgaCaixa), alturaLinha = alturaCaixa + Pixels(10);
    const int alturaExtenso = CLinhasPorExtenso * letra;
    const int larguraBotao = Pixels(88), alturaBotao = letra + Pixels(13);
    int colunaRotulos = 0, colunaCaixas = 0;
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        colunaRotulos = std::max(colunaRotulos, static_cast<int>(Medir(CCampos[i].Caption).cx));
        colunaCaixas = std::max(colunaCaixas, BuscarLargura(i));
    }
    const int esquerda = margem + colunaRotulos + margem;
    const int larguraCliente = esquerda + colunaCaixas + margem;

    int topo = margem;
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        if (i > 0) topo += alturaLinha;
        Criar(L"STATIC", CCampos[i].Caption, SS_CENTERIMAGE, {margem, topo, margem + colunaRotulos, topo + alturaCaixa},
              0);
        FCaixas[i] = CriarCaixa(i, esquerda, topo);
        FControles.emplace_back(FCaixas[i]);
        if (i != caValor) continue;
        Criar(L"STATIC", u"", SS_NOPREFIX,
              {esquerda, topo + alturaCaixa + Pixels(4), larguraCliente - margem,
               topo + alturaCaixa + Pixels(4) + alturaExtenso},
              CPorExtenso);
        topo += alturaExtenso + Pixels(4);
    }
    topo += alturaLinha + margem / 2;
    const int left = larguraCliente - margem - larguraBotao;
    Criar(L"BUTTON", CCaptionSalvar, BS_DEFPUSHBUTTON | WS_TABSTOP,
          {left - margem - larguraBotao, topo, left - margem, topo + alturaBotao}, CSalvar);
    Criar(L"BUTTON", CCaptionFechar, WS_TABSTOP, {left, topo, left + larguraBotao, topo + alturaBotao}, CFechar);
    ::SendMessageW(FJanela, DM_SETDEFID, CSalvar, 0);
    ::SetWindowTextW(FJanela, Texto(CTituloCadastro).c_str());

    RECT r{0, 0, larguraCliente, topo + alturaBotao + margem};
    ::AdjustWindowRectEx(&r, static_cast<DWORD>(::GetWindowLongPtrW(FJanela, GWL_STYLE)), FALSE,
                         static_cast<DWORD>(::GetWindowLongPtrW(FJanela, GWL_EXSTYLE)));
    RECT area{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const int largura = static_cast<int>(r.right - r.left), altura = static_cast<int>(r.bottom - r.top);
    ::SetWindowPos(FJanela, nullptr, static_cast<int>(area.left + area.right - largura) / 2,
                   static_cast<int>(area.top + area.bottom - altura) / 2, largura, altura, SWP_NOZORDER);
}

HWND TJanelaCadastro::CriarCaixa(std::size_t ACampo, int ALeft, int ATop) {
    const TDescricaoCampo& campo = CCampos[ACampo];
    const bool lista = !campo.Opcoes.empty();
    // Of a list the height is that of its opened box.
    const int altura = static_cast<int>(Medir(u"0").cy) + Pixels(CFolgaCaixa) + (lista ? Pixels(180) : 0);
    const HWND caixa =
        Criar(lista ? L"COMBOBOX" : L"EDIT", u"", WS_TABSTOP | (lista ? CBS_DROPDOWNLIST | WS_VSCROLL : ES_AUTOHSCROLL),
              {ALeft, ATop, ALeft + BuscarLargura(ACampo), ATop + altura}, CPrimeiroCampo + static_cast<int>(ACampo),
              lista ? 0 : WS_EX_CLIENTEDGE);
    for (const auto& opcao : campo.Opcoes)
        ::SendMessageW(caixa, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Texto(opcao).c_str()));
    if (lista) ::SendMessageW(caixa, CB_SETCURSEL, static_cast<WPARAM>(campo.OpcaoInicial), 0);
    if (TField* dados = GetCampoDeDados(ACampo))
        FEdicoes[ACampo] = std::make_unique<TEdicaoMascaradaWin32>(caixa, *dados);
    return caixa;
}

HWND TJanelaCadastro::Criar(const wchar_t* AClasse, std::u16string_view ATexto, DWORD AEstilo, const RECT& ALugar,
                            int AId, DWORD AEstiloEstendido) const {
    const HWND janela =
        ::CreateWindowExW(AEstiloEstendido, AClasse, Texto(ATexto).c_str(), AEstilo | WS_CHILD | WS_VISIBLE,
                          static_cast<int>(ALugar.left), static_cast<int>(ALugar.top),
                          static_cast<int>(ALugar.right - ALugar.left), static_cast<int>(ALugar.bottom - ALugar.top),
                          FJanela, reinterpret_cast<HMENU>(static_cast<INT_PTR>(AId)), FModulo, nullptr);
    ::SendMessageW(janela, WM_SETFONT, reinterpret_cast<WPARAM>(FFonte), FALSE);
    return janela;
}

std::u16string TJanelaCadastro::LerCaixa(std::size_t ACampo) const {
    const HWND caixa = FCaixas[ACampo];
    const auto& opcoes = CCampos[ACampo].Opcoes;
    if (!opcoes.empty()) {
        const LRESULT opcao = ::SendMessageW(caixa, CB_GETCURSEL, 0, 0);
        return opcao < 0 ? u"" : std::u16string(opcoes[static_cast<std::size_t>(opcao)]);
    }
    std::wstring texto(static_cast<std::size_t>(::GetWindowTextLengthW(caixa)), L'\0');
    ::GetWindowTextW(caixa, texto.data(), static_cast<int>(texto.size()) + 1);
    return Interno::DeWide(texto);
}

void TJanelaCadastro::EscreverCaixa(std::size_t ACampo, std::u16string_view ATexto) {
    const auto& opcoes = CCampos[ACampo].Opcoes;
    if (opcoes.empty()) {
        ::SetWindowTextW(FCaixas[ACampo], Texto(ATexto).c_str());
        return;
    }
    const auto opcao = std::ranges::find(opcoes, ATexto) - opcoes.begin();
    ::SendMessageW(FCaixas[ACampo], CB_SETCURSEL, static_cast<WPARAM>(opcao), 0);
}

// Leaving for the close button, or for another program, is always allowed.
void TJanelaCadastro::AoPerderFoco(std::size_t ACampo) {
    const HWND foco = ::GetFocus();
    if (::IsChild(FJanela, foco) && foco != ::GetDlgItem(FJanela, CFechar))
        AoSair(ACampo, static_cast<std::size_t>(std::ranges::find(FCaixas, foco) - FCaixas.begin()));
}

void TJanelaCadastro::AoComandar(int AId, int ANotificacao) {
    if (AId == CSalvar) AoSalvar();
    if (AId == CFechar) ::DestroyWindow(FJanela);
    if (AId < CPrimeiroCampo || AId >= CPrimeiroCampo + CQuantidadeCampos) return;
    const auto campo = static_cast<std::size_t>(AId - CPrimeiroCampo);
    const bool lista = !CCampos[campo].Opcoes.empty();
    // The focus is still moving: the check waits for its own message. The focus that a warning takes away, and gives
    // back, is not an exit.
    if (!EstahValidando() && ANotificacao == (lista ? CBN_KILLFOCUS : EN_KILLFOCUS))
        ::PostMessageW(FJanela, CSaiuDoCampo, campo, 0);
    if (campo == caValor && ANotificacao == EN_CHANGE && FCaixas[campo])
        ::SetWindowTextW(GetPorExtenso(), Texto(BuscarPorExtenso()).c_str());
}

INT_PTR CALLBACK TJanelaCadastro::Procedimento(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL) {
    auto* cadastro = reinterpret_cast<TJanelaCadastro*>(::GetWindowLongPtrW(AJanela, DWLP_USER));
    switch (AMensagem) {
        case WM_INITDIALOG:
            ::SetWindowLongPtrW(AJanela, DWLP_USER, AL);
            reinterpret_cast<TJanelaCadastro*>(AL)->FJanela = AJanela;
            return FALSE;  // the focus comes when it is shown
        case WM_COMMAND:
            cadastro->AoComandar(LOWORD(AW), HIWORD(AW));
            return TRUE;
        case CSaiuDoCampo:
            cadastro->AoPerderFoco(AW);
            return TRUE;
        case WM_DESTROY:
            cadastro->FJanela = nullptr;
            ::PostQuitMessage(0);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace OryUtils::Cadastro

#include "oryutils/forms/win32/interno/JanelaWin32.hpp"

#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/forms/win32/interno/ClasseDeJanela.hpp"
#include "oryutils/forms/win32/interno/DesabilitarJanelas.hpp"
#include "oryutils/forms/win32/interno/LacoDeMensagens.hpp"
#include "oryutils/forms/win32/interno/LeitorDeTela.hpp"
#include "oryutils/forms/win32/interno/Telas.hpp"
#include "oryutils/forms/win32/interno/TextoNativo.hpp"
#include "oryutils/runtime/Ligado.hpp"

#include <algorithm>
#include <oleacc.h>
#include <utility>

namespace OryUtils::Interno {
namespace {

// Above the numbers that the dialog keyboard sends by itself (IDOK, IDCANCEL).
constexpr int CPrimeiroId = 100;

bool EhBotao(const TControleFormulario* AControle) { return AControle && AControle->GetTipo() == tcBotao; }

bool EhTexto(const TControleFormulario& AControle) {
    return AControle.GetTipo() == tcCaixaEdicao || AControle.GetTipo() == tcMemorando;
}

bool EstahPressionada(int ATecla) { return (::GetKeyState(ATecla) & 0x8000) != 0; }

}  // namespace

TJanelaWin32::TJanelaWin32(TFormulario& AFormulario, TLacoDeMensagens& ALaco, TTelas& ATelas)
    : FFormulario(AFormulario), FLaco(ALaco), FTelas(ATelas) {
    const TLigado marca(FAtualizando);
    const HWND dona = BuscarDona();
    FTela = FTelas.Buscar(dona);
    Criar(dona);
    try {
        for (const auto& controle : FFormulario.GetControles()) Realizar(*controle);
    } catch (...) {
        ::DestroyWindow(FJanela);
        throw;
    }
    Posicionar(dona);
    FFormulario.SetJanela(this);
}

TJanelaWin32::~TJanelaWin32() {
    FFormulario.SetJanela(nullptr);
    if (FJanela) ::DestroyWindow(FJanela);
}

const wchar_t* TJanelaWin32::BuscarClasse() {
    static const TClasseDeJanela classe(L"TOryFormulario", &TJanelaWin32::Procedimento);
    return classe.GetNome();
}

void TJanelaWin32::Criar(HWND ADona) {
    const bool redimensiona = FFormulario.EstiloBorda == ebRedimensionavel;
    const DWORD estilo = WS_POPUP | WS_CAPTION | WS_SYSMENU | (redimensiona ? WS_THICKFRAME | WS_MAXIMIZEBOX : 0);
    const DWORD estendido =
        WS_EX_CONTROLPARENT | (redimensiona ? 0 : WS_EX_DLGMODALFRAME) | (FLaco.NaFrente ? WS_EX_TOPMOST : 0);
    ::CreateWindowExW(estendido, BuscarClasse(), Interno::ParaWide(ParaNativo(FFormulario.GetTitulo())), estilo, 0, 0,
                      0, 0, ADona, nullptr, BuscarModulo(), this);
    if (!FJanela) throw Exception(u"Não foi possível criar a janela do formulário.");
}

void TJanelaWin32::Realizar(TControleFormulario& AControle) {
    // The arrows walk inside a run of controls of one kind; another kind starts a new run.
    const bool iniciaGrupo = FNativos.empty() || FNativos.back()->GetModelo().GetTipo() != AControle.GetTipo();
    const int id = CPrimeiroId + static_cast<int>(FNativos.size());
    FNativos.push_back(std::make_unique<TControleNativo>(AControle, FJanela,
                                                         FTelas.BuscarFonte(FTela.PixelsPorPolegada), id, iniciaGrupo));
}

void TJanelaWin32::Posicionar(HWND ADona) {
    const bool centrar = FFormulario.Posicao == pfCentroDaTela && !::IsWindowVisible(FJanela);
    const SIZE moldura = BuscarTamanhoExterno(
        FJanela, {FFormulario.GetLarguraCliente(), FFormulario.GetAlturaCliente()}, FTela.PixelsPorPolegada);
    const TRetangulo area = FTelas.Buscar(centrar ? ADona : FJanela).AreaDeTrabalho;
    const int largura = static_cast<int>(moldura.cx);
    const int altura = static_cast<int>(moldura.cy);
    int esquerda = FFormulario.GetPosicao().Left;
    int topo = FFormulario.GetPosicao().Top;
    if (centrar) {
        esquerda = area.Left + (area.Width - largura) / 2;
        topo = area.Top + (area.Height - altura) / 2;
    }
    // The caller gave no position: the whole window stays on the screen; where it is too large, its title bar does.
    if (FFormulario.Posicao == pfCentroDaTela) {
        esquerda = std::max(std::min(esquerda, area.Left + area.Width - largura), area.Left);
        topo = std::max(std::min(topo, area.Top + area.Height - altura), area.Top);
    }
    ::SetWindowPos(FJanela, nullptr, esquerda, topo, largura, altura, SWP_NOZORDER | SWP_NOACTIVATE);
    FFormulario.SetPosicao(esquerda, topo);
}

// The window has come to another screen, or its screen has changed.
void TJanelaWin32::ConferirTela() {
    const TTelaWin32 tela = FTelas.Buscar(FJanela);
    const TTelaWin32 antes = std::exchange(FTela, tela);
    if (tela.PixelsPorPolegada == antes.PixelsPorPolegada && tela.AreaDeTrabalho == antes.AreaDeTrabalho) return;
    {
        const TLigado marca(FAtualizando);
        const TFonteDialogo& fonte = FTelas.BuscarFonte(tela.PixelsPorPolegada);
        for (const auto& nativo : FNativos) nativo->MudarFonte(fonte);
    }
    LerTudo();
    FFormulario.AoMudarTela(antes.PixelsPorPolegada, tela.PixelsPorPolegada);
}

void TJanelaWin32::Mostrar() {
    {
        const TLigado marca(FAtualizando);
        // A captured mouse would keep the clicks from this window.
        if (HWND captura = ::GetCapture()) ::SendMessageW(captura, WM_CANCELMODE, 0, 0);
        ::ReleaseCapture();
        // Not ShowWindow: its first call in a process obeys how the process was started, which may be hidden.
        ::SetWindowPos(FJanela, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
        ::SetActiveWindow(FJanela);
        // The only window of a program comes to the front; where the system forbids it, its task-bar button calls.
        const HWND dona = ::GetWindow(FJanela, GW_OWNER);
        if (!dona || ::GetWindowThreadProcessId(dona, nullptr) != ::GetCurrentThreadId())
            ::SetForegroundWindow(FJanela);
        Focar(BuscarNativo(FFormulario.GetControleAtivo()));
    }
    AcompanharFoco();
    AtualizarPadrao();
    ::UpdateWindow(FJanela);
    Proteger(FExcecao, [&] { FFormulario.OnShow(&FFormulario); });
}

int TJanelaWin32::Executar() {
    const HWND focoAnterior = ::GetFocus();
    bool sair = false;
    int codigoDeSaida = 0;
    {
        const TNaPilha<TJanelaWin32*> janela(FLaco.Janelas, this);
        const TNaPilha<std::exception_ptr*> destino(FLaco.Destinos, &FExcecao);
        const TDesabilitarJanelas desabilitadas(FJanela);
        Mostrar();
        while (FFormulario.GetModalResult() == mrNone && !FExcecao) {
            MSG mensagem;
            const BOOL recebida = ::GetMessageW(&mensagem, nullptr, 0, 0);
            if (recebida <= 0) {
                sair = recebida == 0;
                codigoDeSaida = static_cast<int>(mensagem.wParam);
                FFormulario.Fechar();
            } else {
                FLaco.Despachar(mensagem);
            }
        }
        LerTudo();
    }
    // The windows below answer again by now, so that the activation passes to one of them.
    Destruir();
    if (::IsWindow(focoAnterior) && ::IsWindowEnabled(::GetAncestor(focoAnterior, GA_ROOT))) ::SetFocus(focoAnterior);
    if (sair) ::PostQuitMessage(codigoDeSaida);
    if (FExcecao) std::rethrow_exception(FExcecao);
    return FFormulario.GetModalResult();
}

void TJanelaWin32::RelancarErro() {
    if (FExcecao) std::rethrow_exception(std::exchange(FExcecao, nullptr));
}

void TJanelaWin32::Destruir() {
    if (FJanela) ::DestroyWindow(FJanela);
}

void TJanelaWin32::LerTudo() {
    for (const auto& nativo : FNativos) nativo->Ler();
}

void TJanelaWin32::LerEscolha(TControleNativo& AControle) {
    if (AControle.GetModelo().GetTipo() != tcListaEscolha) return;
    auto& lista = static_cast<TListaEscolha&>(AControle.GetModelo());
    const std::vector<int> antes = lista.GetEscolhidos();
    AControle.Ler();
    if (lista.GetEscolhidos() != antes) Proteger(FExcecao, [&] { lista.OnEscolher(&lista); });
}

TControleNativo* TJanelaWin32::BuscarNativo(HWND AJanela) const noexcept {
    const auto achado =
        std::find_if(FNativos.begin(), FNativos.end(), [&](const auto& n) { return n->Possui(AJanela); });
    return achado == FNativos.end() ? nullptr : achado->get();
}

TControleNativo* TJanelaWin32::BuscarNativo(const TControleFormulario* AModelo) const noexcept {
    const auto achado =
        std::find_if(FNativos.begin(), FNativos.end(), [&](const auto& n) { return &n->GetModelo() == AModelo; });
    return achado == FNativos.end() ? nullptr : achado->get();
}

void TJanelaWin32::Focar(TControleNativo* AControle) {
    // While another window is the active one the model remembers; the focus comes with the activation.
    if (::GetActiveWindow() != FJanela || !::IsWindowVisible(FJanela)) return;
    if (!AControle || !AControle->GetModelo().PodeReceberFoco()) {
        const auto primeiro = std::find_if(FNativos.begin(), FNativos.end(), [](const auto& n) {
            return n->GetModelo().PodeReceberFoco() && n->GetAlvoDoFoco();
        });
        AControle = primeiro == FNativos.end() ? nullptr : primeiro->get();
    }
    ::SetFocus(AControle ? AControle->GetAlvoDoFoco() : FJanela);
    // Radio buttons choose themselves when focused.
    if (AControle) AControle->Atualizar(mdSelecao);
}

bool TJanelaWin32::AcompanharFoco() {
    const TControleNativo* nativo = BuscarNativo(::GetFocus());
    if (!nativo || &nativo->GetModelo() == FFocado || FSaindo) return true;
    TControleFormulario* const anterior = std::exchange(FFocado, &nativo->GetModelo());
    FFormulario.AceitarControleAtivo(FFocado);
    AtualizarPadrao();
    if (!anterior || anterior->GetTipo() != tcCaixaEdicao) return true;
    LerTudo();
    bool aceitou = false;
    {
        const TLigado marca(FSaindo);
        auto& caixa = static_cast<TCaixaEdicao&>(*anterior);
        aceitou = Proteger(FExcecao, [&] { caixa.OnSair(&caixa); });
    }
    // The handler may have moved the focus: the user is where it put it, and boxes that the focus only passed through
    // were not left.
    if (const TControleNativo* final = BuscarNativo(::GetFocus()); final && &final->GetModelo() != FFocado) {
        FFocado = &final->GetModelo();
        FFormulario.AceitarControleAtivo(FFocado);
        AtualizarPadrao();
    }
    return aceitou;
}

void TJanelaWin32::AtualizarPadrao() {
    const auto botoes = FFormulario.GetBotoes();
    const auto padrao = std::find_if(botoes.begin(), botoes.end(), [](const TBotao* b) { return b->GetPadrao(); });
    const TControleFormulario* pressionado = EhBotao(FFocado) ? FFocado : padrao == botoes.end() ? nullptr : *padrao;
    for (const auto& nativo : FNativos)
        if (EhBotao(&nativo->GetModelo())) nativo->DesenharComoPadrao(&nativo->GetModelo() == pressionado);
}

bool TJanelaWin32::TratarTecla(const MSG& AMensagem) {
    if (AMensagem.message != WM_KEYDOWN && AMensagem.message != WM_SYSKEYDOWN) return false;
    AcompanharFoco();
    // Not every system tells of a choice by the space bar.
    for (const auto& nativo : FNativos) LerEscolha(*nativo);
    LerTudo();
    constexpr LPARAM CAltPressionada = 1 << 29;
    TTecla tecla;
    tecla.Codigo = static_cast<std::uint16_t>(AMensagem.wParam);
    tecla.Shift = EstahPressionada(VK_SHIFT);
    tecla.Ctrl = EstahPressionada(VK_CONTROL);
    tecla.Alt = EstahPressionada(VK_MENU) || (AMensagem.message == WM_SYSKEYDOWN && AMensagem.lParam & CAltPressionada);
    if (const TControleNativo* focado = BuscarNativo(AMensagem.hwnd); focado && EhTexto(focado->GetModelo())) {
        DWORD inicio = 0, fim = 0;
        ::SendMessageW(AMensagem.hwnd, EM_GETSEL, reinterpret_cast<WPARAM>(&inicio), reinterpret_cast<LPARAM>(&fim));
        tecla.ComSelecao = inicio != fim;
    }
    bool gasta = true;
    if (!Proteger(FExcecao, [&] { gasta = FFormulario.TratarTecla(tecla); }) || gasta) return true;
    // The system's multi-line box does not select everything by Ctrl+A.
    const TControleNativo* focado = BuscarNativo(AMensagem.hwnd);
    if (tecla.Codigo == 'A' && tecla.Ctrl && !tecla.Alt && !tecla.Shift && focado && EhTexto(focado->GetModelo())) {
        ::SendMessageW(AMensagem.hwnd, EM_SETSEL, 0, -1);
        return true;
    }
    return false;
}

void TJanelaWin32::AvisarIntervencao() noexcept {
    Proteger(FExcecao, [&] { FFormulario.AoIntervir(); });
}

void TJanelaWin32::Mudou(TControleFormulario& AControle, TMudanca AMudanca) {
    if (!FJanela) return;
    const TLigado marca(FAtualizando);
    TControleNativo* nativo = BuscarNativo(&AControle);
    if (!nativo) {
        Realizar(AControle);
        AtualizarPadrao();
        return;
    }
    if (AMudanca == mdFoco) {
        Focar(nativo);
        return;
    }
    nativo->Atualizar(AMudanca);
    if (AMudanca == mdItens) OrdenarTabulacao();
    // A control that was switched off loses the focus.
    if (AMudanca == mdEstado && nativo->Possui(::GetFocus()) && !AControle.PodeReceberFoco()) Focar(nullptr);
}

// A window created late is last in tab order.
void TJanelaWin32::OrdenarTabulacao() {
    HWND anterior = HWND_TOP;
    for (const auto& controle : FFormulario.GetControles()) {
        const TControleNativo* nativo = BuscarNativo(controle.get());
        if (!nativo) continue;
        for (HWND janela : nativo->GetJanelas()) {
            ::SetWindowPos(janela, anterior, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
            anterior = janela;
        }
    }
}

void TJanelaWin32::MudouFormulario(TMudanca AMudanca) {
    if (!FJanela || FAtualizando) return;
    const TLigado marca(FAtualizando);
    if (AMudanca == mdTexto) EscreverTexto(FJanela, FFormulario.GetTitulo());
    if (AMudanca == mdPosicao) Posicionar(nullptr);
    if (AMudanca == mdItens) OrdenarTabulacao();
}

void TJanelaWin32::ResultadoMudou() {
    // The loop may be waiting for a message.
    if (FJanela) ::PostMessageW(FJanela, WM_NULL, 0, 0);
}

LRESULT CALLBACK TJanelaWin32::Procedimento(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL) {
    if (AMensagem == WM_NCCREATE) {
        auto* janela = static_cast<TJanelaWin32*>(reinterpret_cast<const CREATESTRUCTW*>(AL)->lpCreateParams);
        janela->FJanela = AJanela;
        ::SetWindowLongPtrW(AJanela, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(janela));
    }
    auto* janela = reinterpret_cast<TJanelaWin32*>(::GetWindowLongPtrW(AJanela, GWLP_USERDATA));
    if (!janela) return ::DefWindowProcW(AJanela, AMensagem, AW, AL);
    LRESULT resultado = 0;
    Proteger(janela->FExcecao, [&] { resultado = janela->Tratar(AMensagem, AW, AL); });
    return resultado;
}

LRESULT TJanelaWin32::Tratar(UINT AMensagem, WPARAM AW, LPARAM AL) {
    const HWND janela = FJanela;
    switch (AMensagem) {
        case WM_COMMAND:
            if (AL) AoComandar(HIWORD(AW), reinterpret_cast<HWND>(AL));
            return 0;
        case WM_CLOSE:
            FFormulario.Fechar();
            return 0;
        case WM_SETFOCUS: {
            const TLigado marca(FAtualizando);
            Focar(BuscarNativo(FFormulario.GetControleAtivo()));
            return 0;
        }
        case WM_NEXTDLGCTL: {
            HWND alvo = LOWORD(AL) ? reinterpret_cast<HWND>(AW) : ::GetNextDlgTabItem(janela, ::GetFocus(), AW != 0);
            if (alvo) ::SetFocus(alvo);
            return 0;
        }
        case DM_GETDEFID: {
            const auto padrao = std::find_if(FNativos.begin(), FNativos.end(), [](const auto& n) {
                return EhBotao(&n->GetModelo()) && static_cast<TBotao&>(n->GetModelo()).GetPadrao();
            });
            return padrao == FNativos.end() ? 0 : MAKELRESULT(::GetDlgCtrlID((*padrao)->GetHandle()), DC_HASDEFID);
        }
        case WM_MOVE:
            if (!FAtualizando && !::IsIconic(janela)) {
                const TLigado marca(FAtualizando);
                RECT r{};
                ::GetWindowRect(janela, &r);
                FFormulario.SetPosicao(r.left, r.top);
            }
            return 0;
        case WM_SIZE:
            if (!FAtualizando && AW != SIZE_MINIMIZED) FFormulario.AoRedimensionar(LOWORD(AL), HIWORD(AL));
            return 0;
        case WM_DPICHANGED:
        case WM_DISPLAYCHANGE:
        case WM_EXITSIZEMOVE:
            ConferirTela();
            return 0;
        case WM_SETTINGCHANGE:
            if (AW == SPI_SETWORKAREA) ConferirTela();
            break;
        case WM_GETOBJECT:
            if (static_cast<LONG>(AL) != OBJID_CLIENT || !EhAlerta(FFormulario)) break;
            return ResponderLeitorDeTela(
                janela, AW, {FFormulario.GetTitulo(), BuscarMensagemFalada(FFormulario), ROLE_SYSTEM_ALERT});
        case WM_SETCURSOR:
            if (!FLaco.Cursor || LOWORD(AL) != HTCLIENT) break;
            ::SetCursor(FLaco.Cursor);
            return TRUE;
        case WM_DESTROY:
            // Runs also when somebody else destroys the window, as the system does when its owner goes.
            LerTudo();
            FFormulario.Fechar();
            return 0;
        case WM_NCDESTROY:
            ::SetWindowLongPtrW(janela, GWLP_USERDATA, 0);
            FJanela = nullptr;
            break;
        default:
            break;
    }
    return ::DefWindowProcW(janela, AMensagem, AW, AL);
}

void TJanelaWin32::AoComandar(WORD ANotificacao, HWND AControle) {
    TControleNativo* nativo = BuscarNativo(AControle);
    if (!nativo || FAtualizando) return;
    TControleFormulario& modelo = nativo->GetModelo();
    if (EhTexto(modelo)) {
        if (ANotificacao != EN_CHANGE) return;
        nativo->MarcarTextoMudado();
        if (modelo.GetTipo() != tcCaixaEdicao) return;
        nativo->Ler();
        static_cast<TCaixaEdicao&>(modelo).OnMudar(&modelo);
    } else if (modelo.GetTipo() == tcListaEscolha) {
        LerEscolha(*nativo);
        if (ANotificacao == LBN_DBLCLK) static_cast<TListaEscolha&>(modelo).OnDuploClique(&modelo);
    } else if (ANotificacao == BN_CLICKED) {
        AoClicar(*nativo);
    }
}

void TJanelaWin32::AoClicar(TControleNativo& AControle) {
    // Reached by its Alt letter, a button is clicked in the same turn that the focus leaves another control.
    if (!AcompanharFoco()) return;
    for (const auto& nativo : FNativos) LerEscolha(*nativo);
    LerTudo();
    if (EhBotao(&AControle.GetModelo())) static_cast<TBotao&>(AControle.GetModelo()).Clicar();
}

}  // namespace OryUtils::Interno

#include "oryutils/forms/win32/interno/ControleNativo.hpp"

#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/forms/win32/interno/BarraDeProgresso.hpp"
#include "oryutils/forms/win32/interno/Encaixe.hpp"
#include "oryutils/forms/win32/interno/ListaNativa.hpp"
#include "oryutils/forms/win32/interno/TextoNativo.hpp"
#include "oryutils/forms/win32/interno/VistaRolavel.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>
#include <commctrl.h>
#include <numeric>
#include <oleacc.h>

namespace OryUtils::Interno {
namespace {

struct TClasseNativa {
    const wchar_t* Classe;
    DWORD Estilo;
    DWORD EstiloEstendido;
};

// In the order of TTipoControle.
// clang-format off
constexpr TClasseNativa CClasses[] = {
    {L"STATIC", SS_NOPREFIX, 0},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0},
    {L"BUTTON", BS_GROUPBOX, 0},
    {L"BUTTON", BS_AUTOCHECKBOX | BS_MULTILINE | WS_TABSTOP, 0},
    {L"EDIT",   ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {L"EDIT",   ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {L"STATIC", SS_ICON | SS_CENTERIMAGE, 0},
    {PROGRESS_CLASSW, PBS_SMOOTH, 0},
    {L"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
};
// clang-format on

// Pixels at 96 per inch.
constexpr int CRecuoOpcoes = 8;
constexpr int CTopoOpcoes = 2;
constexpr int CBordaInferiorGrupo = 4;
// The longest text of a label. The system takes minutes to paint a longer one, and no screen shows all of it.
constexpr std::size_t CMaiorRotulo = 32768;

DWORD EstiloDoRotulo(const TControleFormulario& AModelo) {
    const bool quebra = static_cast<const TRotulo&>(AModelo).GetQuebraLinha();
    return quebra ? SS_LEFT | SS_EDITCONTROL : SS_LEFTNOWORDWRAP;
}

}  // namespace

TControleNativo::TControleNativo(TControleFormulario& AModelo, HWND AFormulario, const TFonteDialogo& AFonte, int AId,
                                 bool AIniciaGrupo)
    : FModelo(&AModelo), FFormulario(AFormulario), FFonte(&AFonte) {
    const TClasseNativa& classe = CClasses[AModelo.GetTipo()];
    DWORD estilo = classe.Estilo | (AIniciaGrupo ? WS_GROUP : 0);
    if (AModelo.GetTipo() == tcRotulo) estilo |= EstiloDoRotulo(AModelo);
    const auto* caixa = AModelo.GetTipo() == tcCaixaEdicao ? static_cast<TCaixaEdicao*>(&AModelo) : nullptr;
    if (caixa && caixa->GetSenha()) estilo |= ES_PASSWORD;
    if (AModelo.GetTipo() == tcListaEscolha && static_cast<TListaEscolha&>(AModelo).GetVarios())
        estilo |= LBS_MULTIPLESEL;
    FJanela = Criar(classe.Classe, estilo, classe.EstiloEstendido, AId);
    if (AModelo.GetTipo() == tcCaixaEdicao || AModelo.GetTipo() == tcMemorando)
        ::SendMessageW(FJanela, EM_SETLIMITTEXT, 0, 0);
    if (AModelo.GetTipo() == tcIcone) {
        const auto id = static_cast<WORD>(static_cast<TIcone&>(AModelo).GetIdIcone());
        ::SendMessageW(FJanela, STM_SETICON, reinterpret_cast<WPARAM>(::LoadIconW(nullptr, MAKEINTRESOURCEW(id))), 0);
    }
    Atualizar(mdTexto | mdItens | mdPosicao | mdEstado | mdSelecao);
    if (caixa && caixa->GetCampo()) FEditor = std::make_unique<TEdicaoMascaradaWin32>(FJanela, *caixa->GetCampo());
}

HWND TControleNativo::Criar(const wchar_t* AClasse, DWORD AEstilo, DWORD AEstiloEstendido, int AId) const {
    HWND janela =
        ::CreateWindowExW(AEstiloEstendido, AClasse, L"", AEstilo | WS_CHILD, 0, 0, 0, 0, FFormulario,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(AId)),
                          reinterpret_cast<HINSTANCE>(::GetWindowLongPtrW(FFormulario, GWLP_HINSTANCE)), nullptr);
    if (!janela) throw Exception(u"Não foi possível criar um controle do formulário.");
    ::SendMessageW(janela, WM_SETFONT, reinterpret_cast<WPARAM>(FFonte->GetHandle()), FALSE);
    ::SetWindowSubclass(janela, &Receber, 0, reinterpret_cast<DWORD_PTR>(this));
    return janela;
}

LRESULT CALLBACK TControleNativo::Receber(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL, UINT_PTR AId,
                                          DWORD_PTR AControle) {
    if (AMensagem == WM_GETOBJECT && static_cast<LONG>(AL) == OBJID_CLIENT) {
        const TFalado falado = reinterpret_cast<const TControleNativo*>(AControle)->BuscarFalado(AJanela);
        if (!falado.Nome.empty()) return ResponderLeitorDeTela(AJanela, AW, falado);
    }
    if (AMensagem == WM_NCDESTROY) ::RemoveWindowSubclass(AJanela, &Receber, AId);
    return ::DefSubclassProc(AJanela, AMensagem, AW, AL);
}

TFalado TControleNativo::BuscarFalado(HWND AJanela) const {
    TFalado falado{BuscarNomeFalado(*FModelo)};
    const auto opcao = std::find(FOpcoes.begin(), FOpcoes.end(), AJanela);
    if (opcao != FOpcoes.end()) {
        const auto indice = static_cast<std::size_t>(opcao - FOpcoes.begin());
        falado.Nome = RemoverAtalho(static_cast<const TGrupoOpcoes&>(*FModelo).GetItens()[indice]);
    }
    if (FModelo->GetTipo() == tcIcone) falado.Papel = ROLE_SYSTEM_GRAPHIC;
    return falado;
}

HWND TControleNativo::GetAlvoDoFoco() const noexcept {
    if (FModelo->GetTipo() != tcGrupoOpcoes) return FJanela;
    if (FOpcoes.empty()) return nullptr;
    const int indice = static_cast<const TGrupoOpcoes*>(FModelo)->GetIndice();
    return FOpcoes[static_cast<std::size_t>(std::clamp(indice, 0, static_cast<int>(FOpcoes.size()) - 1))];
}

bool TControleNativo::Possui(HWND AJanela) const noexcept {
    return AJanela == FJanela || std::find(FOpcoes.begin(), FOpcoes.end(), AJanela) != FOpcoes.end();
}

std::vector<HWND> TControleNativo::GetJanelas() const {
    if (FVista) return {FJanela, FVista};
    std::vector<HWND> janelas{FJanela};
    janelas.insert(janelas.end(), FOpcoes.begin(), FOpcoes.end());
    return janelas;
}

std::vector<HWND> TControleNativo::GetTodas() const {
    std::vector<HWND> janelas = GetJanelas();
    if (FVista) janelas.insert(janelas.end(), FOpcoes.begin(), FOpcoes.end());
    return janelas;
}

void TControleNativo::MudarFonte(const TFonteDialogo& AFonte) {
    FFonte = &AFonte;
    for (HWND janela : GetTodas())
        ::SendMessageW(janela, WM_SETFONT, reinterpret_cast<WPARAM>(FFonte->GetHandle()), TRUE);
    if (FModelo->GetTipo() == tcListaEscolha) AjustarItens(FJanela, *FFonte);
    Atualizar(mdPosicao);
}

void TControleNativo::Atualizar(unsigned AMudancas) {
    if (AMudancas & mdTexto) {
        const std::u16string_view texto = FModelo->GetTexto();
        if (FModelo->GetTipo() == tcMemorando)
            ::SetWindowTextW(FJanela, Interno::ParaWide(ParaMemorando(texto)));
        else
            EscreverTexto(FJanela, FModelo->GetTipo() == tcRotulo ? texto.substr(0, CMaiorRotulo) : texto);
        FTextoMudou = false;
    }
    if (AMudancas & mdItens && FModelo->GetTipo() == tcGrupoOpcoes) CriarOpcoes();
    if (AMudancas & mdItens && FModelo->GetTipo() == tcListaEscolha)
        MostrarItens(FJanela, static_cast<const TListaEscolha&>(*FModelo), *FFonte);
    if (AMudancas & mdPosicao) {
        const TRetangulo& r = FModelo->GetRetangulo();
        ::SetWindowPos(FJanela, nullptr, r.Left, r.Top, r.Width, r.Height, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (AMudancas & (mdPosicao | mdItens)) PosicionarOpcoes();
    if (AMudancas & (mdTexto | mdPosicao)) {
        if (FModelo->GetTipo() == tcBotao)
            EncaixarTexto(FJanela, static_cast<const TBotao*>(FModelo)->GetLegenda(), CFolgaDoBotao);
        if (FModelo->GetTipo() == tcCaixaChecagem) EncaixarTexto(FJanela, FModelo->GetTexto(), CFolgaDoMarcavel);
    }
    if (AMudancas & (mdSelecao | mdItens)) AtualizarSelecao();
    if (AMudancas & (mdEstado | mdItens)) {
        for (HWND janela : GetTodas()) {
            ::EnableWindow(janela, FModelo->GetHabilitado());
            ::ShowWindow(janela, FModelo->GetVisivel() ? SW_SHOWNA : SW_HIDE);
        }
        if (FModelo->GetTipo() == tcMemorando)
            ::SendMessageW(FJanela, EM_SETREADONLY, static_cast<TMemorando*>(FModelo)->GetSomenteLeitura(), 0);
    }
}

void TControleNativo::CriarOpcoes() {
    const auto& grupo = static_cast<const TGrupoOpcoes&>(*FModelo);
    for (std::size_t i = FOpcoes.size(); i < grupo.GetItens().size(); ++i) {
        const DWORD estilo = BS_AUTORADIOBUTTON | BS_NOTIFY | (grupo.GetQuebraLinha() ? BS_MULTILINE : 0u) |
                             (i == 0 ? WS_GROUP | WS_TABSTOP : 0u);
        FOpcoes.push_back(Criar(L"BUTTON", estilo, 0, 0));
        EscreverTexto(FOpcoes.back(), grupo.GetItens()[i]);
    }
}

std::vector<int> TControleNativo::MedirOpcoes(int ALargura) const {
    const auto& grupo = static_cast<const TGrupoOpcoes&>(*FModelo);
    const int linha = FFonte->GetAlturaLinha() + FFonte->Escalar(CFolgaDoMarcavel.Altura);
    std::vector<int> alturas;
    for (const auto& item : grupo.GetItens())
        alturas.push_back(grupo.GetQuebraLinha() ? MedirMarcavel(*FFonte, item, ALargura).Altura : linha);
    return alturas;
}

// Options that do not all fit lie in a view that scrolls.
void TControleNativo::RolarOpcoes(bool ARolar) {
    if (ARolar == (FVista != nullptr)) return;
    const HWND vista = ARolar ? CriarVistaRolavel(FFormulario) : FVista;
    for (HWND opcao : FOpcoes) ::SetParent(opcao, ARolar ? vista : FFormulario);
    HWND anterior = FJanela;
    if (ARolar) ::SetWindowPos(vista, anterior, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (ARolar) anterior = HWND_TOP;
    for (HWND opcao : FOpcoes) {
        ::SetWindowPos(opcao, anterior, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        anterior = opcao;
    }
    if (ARolar)
        ::ShowWindow(vista, FModelo->GetVisivel() ? SW_SHOWNA : SW_HIDE);
    else
        ::DestroyWindow(vista);
    FVista = ARolar ? vista : nullptr;
}

void TControleNativo::PosicionarOpcoes() {
    if (FOpcoes.empty()) return;
    const auto& grupo = static_cast<const TGrupoOpcoes&>(*FModelo);
    const TRetangulo& r = grupo.GetRetangulo();
    const int recuo = FFonte->Escalar(CRecuoOpcoes);
    const int topo = FFonte->GetAlturaLinha() + FFonte->Escalar(CTopoOpcoes);
    const int disponivel = std::max(r.Height - topo - FFonte->Escalar(CBordaInferiorGrupo), 0);
    int largura = std::max(r.Width - 2 * recuo, 0);
    std::vector<int> alturas = MedirOpcoes(largura);
    int soma = std::accumulate(alturas.begin(), alturas.end(), 0);
    RolarOpcoes(soma > disponivel);
    int sobra = 0;
    int x = r.Left + recuo;
    int y = r.Top + topo;
    if (FVista) {
        ::SetWindowPos(FVista, nullptr, x, y, largura, disponivel, SWP_NOZORDER | SWP_NOACTIVATE);
        largura = std::max(largura - ::GetSystemMetrics(SM_CXVSCROLL), 0);
        alturas = MedirOpcoes(largura);
        soma = std::accumulate(alturas.begin(), alturas.end(), 0);
        DefinirAlturaRolavel(FVista, soma, FFonte->GetAlturaLinha());
        x = y = 0;
    } else {
        sobra = (disponivel - soma) / static_cast<int>(FOpcoes.size());
    }
    for (std::size_t i = 0; i < FOpcoes.size(); ++i) {
        ::SetWindowPos(FOpcoes[i], nullptr, x, y, largura, alturas[i] + sobra, SWP_NOZORDER | SWP_NOACTIVATE);
        EncaixarTexto(FOpcoes[i], grupo.GetItens()[i], CFolgaDoMarcavel);
        y += alturas[i] + sobra;
    }
}

// A caption that does not fit its control is shortened, and a tip tells the whole of it.
void TControleNativo::EncaixarTexto(HWND AJanela, std::u16string_view ATexto, TTamanho AFolga) const {
    RECT r{};
    ::GetClientRect(AJanela, &r);
    if (r.right == 0) return;
    const TEncaixe encaixe = EncaixarCaption(*FFonte, ATexto,
                                             {static_cast<int>(r.right) - FFonte->Escalar(AFolga.Largura),
                                              static_cast<int>(r.bottom) - FFonte->Escalar(AFolga.Altura)});
    if (LerTexto(AJanela) != encaixe.Texto) ::SetWindowTextW(AJanela, Interno::ParaWide(encaixe.Texto));
    MostrarDica(AJanela, encaixe.Inteiro ? std::u16string() : RemoverAtalho(ATexto));
}

void TControleNativo::AtualizarSelecao() {
    switch (FModelo->GetTipo()) {
        case tcGrupoOpcoes: {
            const int indice = static_cast<TGrupoOpcoes*>(FModelo)->GetIndice();
            for (std::size_t i = 0; i < FOpcoes.size(); ++i)
                ::SendMessageW(FOpcoes[i], BM_SETCHECK, static_cast<int>(i) == indice ? BST_CHECKED : BST_UNCHECKED, 0);
            // Tab stops at the chosen option alone, as the system's button sees to; without one it stops at the first.
            if (indice < 0 && !FOpcoes.empty())
                ::SetWindowLongPtrW(FOpcoes[0], GWL_STYLE, ::GetWindowLongPtrW(FOpcoes[0], GWL_STYLE) | WS_TABSTOP);
            break;
        }
        case tcCaixaChecagem:
            ::SendMessageW(FJanela, BM_SETCHECK,
                           static_cast<TCaixaChecagem*>(FModelo)->GetMarcada() ? BST_CHECKED : BST_UNCHECKED, 0);
            break;
        case tcProgresso:
            MostrarPercentual(FJanela, static_cast<TProgresso*>(FModelo)->GetPercentual());
            break;
        case tcCaixaEdicao:
            if (static_cast<TCaixaEdicao*>(FModelo)->GetSelecionarTudo()) ::SendMessageW(FJanela, EM_SETSEL, 0, -1);
            break;
        case tcListaEscolha:
            MostrarEscolhidos(FJanela, static_cast<TListaEscolha&>(*FModelo));
            break;
        default:
            break;
    }
}

void TControleNativo::Ler() {
    switch (FModelo->GetTipo()) {
        case tcGrupoOpcoes: {
            const auto marcada = std::find_if(FOpcoes.begin(), FOpcoes.end(), [](HWND AOpcao) {
                return ::SendMessageW(AOpcao, BM_GETCHECK, 0, 0) == BST_CHECKED;
            });
            static_cast<TGrupoOpcoes*>(FModelo)->AceitarIndice(
                marcada == FOpcoes.end() ? -1 : static_cast<int>(marcada - FOpcoes.begin()));
            break;
        }
        case tcCaixaChecagem:
            static_cast<TCaixaChecagem*>(FModelo)->AceitarMarcada(::SendMessageW(FJanela, BM_GETCHECK, 0, 0) ==
                                                                  BST_CHECKED);
            break;
        case tcCaixaEdicao:
        case tcMemorando:
            if (FTextoMudou) FModelo->AceitarTexto(DeNativo(LerTexto(FJanela), FModelo->GetTexto()));
            FTextoMudou = false;
            break;
        case tcListaEscolha: {
            auto& lista = static_cast<TListaEscolha&>(*FModelo);
            lista.AceitarEscolhidos(LerItensEscolhidos(FJanela, lista.GetVarios()));
            break;
        }
        default:
            break;
    }
}

void TControleNativo::DesenharComoPadrao(bool APadrao) {
    const LONG_PTR tipo = ::GetWindowLongPtrW(FJanela, GWL_STYLE) & BS_TYPEMASK;
    const LONG_PTR desejado = APadrao ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if (tipo != desejado) ::SendMessageW(FJanela, BM_SETSTYLE, static_cast<WPARAM>(desejado), TRUE);
}

}  // namespace OryUtils::Interno

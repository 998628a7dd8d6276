#include "oryutils/forms/win32/interno/ControleNativo.hpp"

#include "oryutils/forms/win32/interno/TextoNativo.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>
#include <numeric>

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
    {L"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP, 0},
    {L"EDIT",   ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {L"EDIT",   ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {L"STATIC", SS_ICON | SS_CENTERIMAGE, 0},
};
// clang-format on

constexpr int CRecuoOpcoes = 8;
constexpr int CBordaInferiorGrupo = 4;
// Square of a radio button and the gap before its text.
constexpr int CMarcaOpcao = 20;
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
    FJanela = Criar(classe.Classe, estilo, classe.EstiloEstendido, AId);
    if (AModelo.GetTipo() == tcCaixaEdicao || AModelo.GetTipo() == tcMemorando)
        ::SendMessageW(FJanela, EM_SETLIMITTEXT, 0, 0);
    if (AModelo.GetTipo() == tcIcone) {
        const auto id = static_cast<WORD>(static_cast<TIcone&>(AModelo).GetIdIcone());
        ::SendMessageW(FJanela, STM_SETICON, reinterpret_cast<WPARAM>(::LoadIconW(nullptr, MAKEINTRESOURCEW(id))), 0);
    }
    Atualizar(mdTexto | mdItens | mdPosicao | mdEstado | mdSelecao);
}

HWND TControleNativo::Criar(const wchar_t* AClasse, DWORD AEstilo, DWORD AEstiloEstendido, int AId) const {
    HWND janela =
        ::CreateWindowExW(AEstiloEstendido, AClasse, L"", AEstilo | WS_CHILD, 0, 0, 0, 0, FFormulario,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(AId)),
                          reinterpret_cast<HINSTANCE>(::GetWindowLongPtrW(FFormulario, GWLP_HINSTANCE)), nullptr);
    if (!janela) throw Exception(u"Não foi possível criar um controle do formulário.");
    ::SendMessageW(janela, WM_SETFONT, reinterpret_cast<WPARAM>(FFonte->GetHandle()), FALSE);
    return janela;
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
    std::vector<HWND> janelas{FJanela};
    janelas.insert(janelas.end(), FOpcoes.begin(), FOpcoes.end());
    return janelas;
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
    if (AMudancas & mdPosicao) {
        const TRetangulo& r = FModelo->GetRetangulo();
        ::SetWindowPos(FJanela, nullptr, r.Left, r.Top, r.Width, r.Height, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (AMudancas & (mdPosicao | mdItens)) PosicionarOpcoes();
    if (AMudancas & (mdSelecao | mdItens)) AtualizarSelecao();
    if (AMudancas & (mdEstado | mdItens)) {
        for (HWND janela : GetJanelas()) {
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
        const DWORD estilo =
            BS_AUTORADIOBUTTON | (grupo.GetQuebraLinha() ? BS_MULTILINE : 0u) | (i == 0 ? WS_GROUP | WS_TABSTOP : 0u);
        FOpcoes.push_back(Criar(L"BUTTON", estilo, 0, 0));
        EscreverTexto(FOpcoes.back(), grupo.GetItens()[i]);
    }
}

void TControleNativo::PosicionarOpcoes() {
    if (FOpcoes.empty()) return;
    const auto& grupo = static_cast<const TGrupoOpcoes&>(*FModelo);
    const TRetangulo& r = grupo.GetRetangulo();
    const int topo = FFonte->GetAlturaLinha() + 2;
    const int disponivel = std::max(r.Height - topo - CBordaInferiorGrupo, 0);
    const int largura = std::max(r.Width - 2 * CRecuoOpcoes, 0);
    const int quantidade = static_cast<int>(FOpcoes.size());
    // Options whose text wraps get the lines that they need, when all together fit; the rest is shared.
    std::vector<int> alturas;
    for (const auto& item : grupo.GetItens())
        alturas.push_back(grupo.GetQuebraLinha() ? FFonte->Medir(item, std::max(largura - CMarcaOpcao, 1)).Altura : 0);
    int sobra = disponivel - std::accumulate(alturas.begin(), alturas.end(), 0);
    if (sobra < 0) {
        alturas.assign(alturas.size(), 0);
        sobra = disponivel;
    }
    int y = r.Top + topo;
    for (std::size_t i = 0; i < FOpcoes.size(); ++i) {
        const int altura = alturas[i] + sobra / quantidade;
        ::SetWindowPos(FOpcoes[i], nullptr, r.Left + CRecuoOpcoes, y, largura, altura, SWP_NOZORDER | SWP_NOACTIVATE);
        y += altura;
    }
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
        case tcCaixaEdicao:
            if (static_cast<TCaixaEdicao*>(FModelo)->GetSelecionarTudo()) ::SendMessageW(FJanela, EM_SETSEL, 0, -1);
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

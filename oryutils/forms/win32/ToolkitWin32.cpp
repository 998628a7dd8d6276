#include "oryutils/forms/win32/ToolkitWin32.hpp"

#include "oryutils/forms/win32/interno/DesabilitarJanelas.hpp"
#include "oryutils/forms/win32/interno/Encaixe.hpp"
#include "oryutils/forms/win32/interno/Exibicao.hpp"
#include "oryutils/forms/win32/interno/JanelaWin32.hpp"
#include "oryutils/forms/win32/interno/LacoDeMensagens.hpp"
#include "oryutils/forms/win32/interno/Seletores.hpp"
#include "oryutils/forms/win32/interno/Telas.hpp"
#include "oryutils/forms/win32/interno/Temporizadores.hpp"
#include "oryutils/forms/win32/interno/TextoNativo.hpp"

#include <algorithm>
#include <commctrl.h>
#include <utility>

namespace OryUtils {
namespace {

const DWORD GThreadDeCarga = ::GetCurrentThreadId();

// Numbers of the system's cursors.
constexpr WORD CCursorSeta = 32512;
constexpr WORD CCursorAmpulheta = 32514;

// Other programs keep the clipboard for an instant at a time.
constexpr int CTentativasAreaDeTransferencia = 10;
constexpr DWORD CEsperaAreaDeTransferencia = 10;

bool AbrirAreaDeTransferencia(HWND AJanela) {
    for (int i = 0; i < CTentativasAreaDeTransferencia; ++i) {
        if (::OpenClipboard(AJanela)) return true;
        ::Sleep(CEsperaAreaDeTransferencia);
    }
    return false;
}

}  // namespace

struct TToolkitWin32::TPartes {
    explicit TPartes(TBuscarTelaWin32 ATelas) : Telas(std::move(ATelas)) {}

    /// Of the next form.
    TTelaWin32 BuscarTela() const { return Telas.Buscar(Interno::BuscarDona()); }
    const Interno::TFonteDialogo& BuscarFonte() { return Telas.BuscarFonte(BuscarTela().PixelsPorPolegada); }

    Interno::TTelas Telas;
    Interno::TLacoDeMensagens Laco;
    Interno::TTemporizadores Temporizadores{Laco};
};

TToolkitWin32::TToolkitWin32(unsigned long AThread, TBuscarTelaWin32 ATelas)
    : FThread(AThread ? AThread : ::GetCurrentThreadId()) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_PROGRESS_CLASS};
    ::InitCommonControlsEx(&classes);
    FPartes = std::make_unique<TPartes>(std::move(ATelas));
}

TToolkitWin32::~TToolkitWin32() = default;

bool TToolkitWin32::HaAreaDeTrabalho() {
    USEROBJECTFLAGS sinais{};
    if (::GetUserObjectInformationW(::GetProcessWindowStation(), UOI_FLAGS, &sinais, sizeof sinais, nullptr) &&
        !(sinais.dwFlags & WSF_VISIBLE))
        return false;
    // A visible station may still have no desktop for this process: a hidden window tells.
    const HWND janela =
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, Interno::BuscarModulo(), nullptr);
    if (!janela) return false;
    ::DestroyWindow(janela);
    return true;
}

unsigned long TToolkitWin32::GetThreadDeCarga() noexcept { return GThreadDeCarga; }

bool TToolkitWin32::EhThreadDaInterface() const { return ::GetCurrentThreadId() == FThread; }

int TToolkitWin32::ExecutarModal(TFormulario& AFormulario) {
    Interno::TJanelaWin32 janela(AFormulario, FPartes->Laco, FPartes->Telas);
    return janela.Executar();
}

std::shared_ptr<void> TToolkitWin32::Exibir(TFormulario& AFormulario) {
    return std::make_shared<Interno::TExibicaoWin32>(AFormulario, FPartes->Laco, FPartes->Telas);
}

void TToolkitWin32::ProcessarMensagens() { FPartes->Laco.Bombear(); }

TTamanho TToolkitWin32::MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const {
    return FPartes->BuscarFonte().Medir(ATexto, ALarguraMaxima);
}

TTamanho TToolkitWin32::MedirControle(TTipoControle ATipo, std::u16string_view ATexto, int ALarguraMaxima) const {
    if ((ATipo != tcCaixaChecagem && ATipo != tcGrupoOpcoes) || ALarguraMaxima <= 0)
        return MedirControlePadrao(*this, ATipo, ATexto, ALarguraMaxima);
    return Interno::MedirMarcavel(FPartes->BuscarFonte(), ATexto, ALarguraMaxima);
}

int TToolkitWin32::GetTamanhoFonte() const { return FPartes->BuscarFonte().GetPontos(); }

int TToolkitWin32::GetPixelsPorPolegada() const { return FPartes->BuscarTela().PixelsPorPolegada; }

TRetangulo TToolkitWin32::GetAreaDeTrabalho() const { return FPartes->BuscarTela().AreaDeTrabalho; }

std::uintptr_t TToolkitWin32::LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) {
    return FPartes->Temporizadores.Ligar(AMilissegundos, std::move(AAcao));
}

void TToolkitWin32::DesligarTemporizador(std::uintptr_t ATemporizador) {
    FPartes->Temporizadores.Desligar(ATemporizador);
}

std::vector<std::u16string> TToolkitWin32::EscolherCaminhos(const TPedidoDeCaminho& APedido) {
    return APedido.Selecao == scPasta ? Interno::EscolherPasta(APedido) : Interno::EscolherArquivos(APedido);
}

void TToolkitWin32::SetCursor(TCursorTela ACursor) {
    const HCURSOR ampulheta = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(CCursorAmpulheta));
    FPartes->Laco.Cursor = ACursor == ctAmpulheta ? ampulheta : nullptr;
    ::SetCursor(ACursor == ctAmpulheta ? ampulheta : ::LoadCursorW(nullptr, MAKEINTRESOURCEW(CCursorSeta)));
}

TAtendimento TToolkitWin32::SetJanelaDona(std::uintptr_t AJanela) {
    const auto janela = reinterpret_cast<HWND>(AJanela);
    if (janela && !::IsWindow(janela)) return atNaoExiste;
    Interno::DefinirDona(janela ? ::GetAncestor(janela, GA_ROOT) : nullptr);
    return atFeito;
}

TAtendimento TToolkitWin32::SetNaFrente(bool ANaFrente) {
    FPartes->Laco.NaFrente = ANaFrente;
    return atFeito;
}

std::shared_ptr<void> TToolkitWin32::DesabilitarJanelas() {
    return std::make_shared<Interno::TDesabilitarJanelas>(nullptr);
}

bool TToolkitWin32::EstahPressionada(std::uint16_t ATecla) const { return (::GetAsyncKeyState(ATecla) & 0x8000) != 0; }

void TToolkitWin32::Bipar() { ::MessageBeep(MB_OK); }

void TToolkitWin32::CopiarParaAreaDeTransferencia(std::u16string_view ATexto) {
    const std::u16string texto = Interno::ParaNativo(ATexto);
    if (!AbrirAreaDeTransferencia(FPartes->Temporizadores.GetJanela())) return;
    ::EmptyClipboard();
    if (HGLOBAL memoria = ::GlobalAlloc(GMEM_MOVEABLE, (texto.size() + 1) * sizeof(char16_t))) {
        std::copy_n(texto.c_str(), texto.size() + 1, static_cast<char16_t*>(::GlobalLock(memoria)));
        ::GlobalUnlock(memoria);
        // From here on the memory is the clipboard's, unless it was refused.
        if (!::SetClipboardData(CF_UNICODETEXT, memoria)) ::GlobalFree(memoria);
    }
    ::CloseClipboard();
}

}  // namespace OryUtils

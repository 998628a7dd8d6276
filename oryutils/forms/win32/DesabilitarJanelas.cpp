#include "oryutils/forms/win32/interno/DesabilitarJanelas.hpp"

namespace OryUtils::Interno {
namespace {

HWND GDona = nullptr;

bool Responde(HWND AJanela) { return ::IsWindowVisible(AJanela) && ::IsWindowEnabled(AJanela); }

}  // namespace

TDesabilitarJanelas::TDesabilitarJanelas(HWND AExceto) : FExceto(AExceto) {
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND AJanela, LPARAM AAlvo) -> BOOL {
            auto& alvo = *reinterpret_cast<TDesabilitarJanelas*>(AAlvo);
            if (AJanela != alvo.FExceto && Responde(AJanela)) {
                ::EnableWindow(AJanela, FALSE);
                alvo.FJanelas.push_back(AJanela);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(this));
}

TDesabilitarJanelas::~TDesabilitarJanelas() {
    for (HWND janela : FJanelas)
        if (::IsWindow(janela)) ::EnableWindow(janela, TRUE);
}

void DefinirDona(HWND ADona) noexcept { GDona = ADona; }

HWND BuscarDona() {
    if (HWND ativa = ::GetActiveWindow()) return ativa;
    if (::IsWindow(GDona)) return GDona;
    HWND dona = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND AJanela, LPARAM ADona) -> BOOL {
            if (!Responde(AJanela)) return TRUE;
            *reinterpret_cast<HWND*>(ADona) = AJanela;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&dona));
    return dona;
}

}  // namespace OryUtils::Interno

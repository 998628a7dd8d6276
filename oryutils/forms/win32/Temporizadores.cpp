#include "oryutils/forms/win32/interno/Temporizadores.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/forms/win32/interno/ClasseDeJanela.hpp"
#include "oryutils/forms/win32/interno/JanelaWin32.hpp"
#include "oryutils/runtime/Costura.hpp"

#include <algorithm>
#include <utility>

namespace OryUtils::Interno {
namespace {

/// No loop of this library runs that could raise the exception: the user is told of it.
void Informar(const std::exception_ptr& AExcecao) {
    std::exception_ptr ignorada;
    Proteger(ignorada, [&] {
        try {
            std::rethrow_exception(AExcecao);
        } catch (const Exception& erro) {
            CosturaInterface().Erro(erro.GetMensagem());
        } catch (const std::exception& erro) {
            CosturaInterface().Erro(DeUtf8(erro.what()));
        }
    });
}

}  // namespace

TTemporizadores::~TTemporizadores() {
    if (FJanela) ::DestroyWindow(FJanela);
}

HWND TTemporizadores::GetJanela() {
    static const TClasseDeJanela classe(L"TOryTemporizadores", &TTemporizadores::Procedimento);
    if (!FJanela) {
        FJanela =
            ::CreateWindowExW(0, classe.GetNome(), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, BuscarModulo(), nullptr);
        if (!FJanela) throw Exception(u"Não foi possível criar a janela dos temporizadores.");
        ::SetWindowLongPtrW(FJanela, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    return FJanela;
}

std::uintptr_t TTemporizadores::Ligar(int AMilissegundos, std::function<void()> AAcao) {
    const std::uintptr_t numero = FUltimo + 1;
    if (!::SetTimer(GetJanela(), numero, static_cast<UINT>(std::max(AMilissegundos, 1)), nullptr))
        throw Exception(u"Não foi possível ligar um temporizador.");
    FUltimo = numero;
    FAcoes[numero] = std::move(AAcao);
    return numero;
}

void TTemporizadores::Desligar(std::uintptr_t ATemporizador) {
    if (FAcoes.erase(ATemporizador) > 0) ::KillTimer(FJanela, ATemporizador);
}

void TTemporizadores::Tocar(std::uintptr_t ATemporizador) {
    const auto achado = FAcoes.find(ATemporizador);
    if (achado == FAcoes.end()) return;
    // A copy: the action may switch its own timer off.
    const std::function<void()> acao = achado->second;
    std::exception_ptr excecao;
    Proteger(FLaco.Destinos.empty() ? excecao : *FLaco.Destinos.back(), acao);
    if (excecao) Informar(excecao);
}

LRESULT CALLBACK TTemporizadores::Procedimento(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL) {
    auto* temporizadores = reinterpret_cast<TTemporizadores*>(::GetWindowLongPtrW(AJanela, GWLP_USERDATA));
    if (AMensagem != WM_TIMER || !temporizadores) return ::DefWindowProcW(AJanela, AMensagem, AW, AL);
    temporizadores->Tocar(AW);
    return 0;
}

}  // namespace OryUtils::Interno

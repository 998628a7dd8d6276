#include "oryutils/platform/Console.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

// A console tells of releases, mouse and focus as well; only a key that goes down starts a line.
bool PossuiTecla(HANDLE AEntrada) {
    INPUT_RECORD registro{};
    DWORD lidos = 0;
    while (::PeekConsoleInputW(AEntrada, &registro, 1, &lidos) && lidos > 0) {
        if (registro.EventType == KEY_EVENT && registro.Event.KeyEvent.bKeyDown) return true;
        ::ReadConsoleInputW(AEntrada, &registro, 1, &lidos);
    }
    return false;
}

}  // namespace

bool PodeConversar() { return TFluxo::EntradaPadrao().EhTerminal() && TFluxo::ErroPadrao().EhTerminal(); }

int BuscarColunasDoTerminal() {
    CONSOLE_SCREEN_BUFFER_INFO tela{};
    return ::GetConsoleScreenBufferInfo(::GetStdHandle(STD_ERROR_HANDLE), &tela) ? tela.dwSize.X : 0;
}

void EscreverNoErroPadrao(std::u16string_view ATexto) {
    const HANDLE saida = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD modo = 0;
    if (!::GetConsoleMode(saida, &modo)) {
        TFluxo::ErroPadrao().Escrever(ParaUtf8(ATexto));
        return;
    }
    constexpr std::size_t CMaiorParte = 8192;  // a console refuses long texts
    while (!ATexto.empty()) {
        const std::u16string parte(ATexto.substr(0, CMaiorParte));
        DWORD escritos = 0;
        if (!::WriteConsoleW(saida, parte.data(), static_cast<DWORD>(parte.size()), &escritos, nullptr) || !escritos)
            return;
        ATexto.remove_prefix(std::min<std::size_t>(escritos, ATexto.size()));
    }
}

void MostrarDigitado(bool AMostrar) {
    const HANDLE entrada = ::GetStdHandle(STD_INPUT_HANDLE);
    DWORD modo = 0;
    if (!::GetConsoleMode(entrada, &modo)) return;
    constexpr DWORD CEco = ENABLE_ECHO_INPUT;
    ::SetConsoleMode(entrada, AMostrar ? modo | CEco : modo & ~CEco);
}

TLeituraDeLinha LerLinhaDoTerminal(std::optional<std::chrono::milliseconds> ALimite, std::u16string& ALinha) {
    using TRelogio = std::chrono::steady_clock;
    const HANDLE entrada = ::GetStdHandle(STD_INPUT_HANDLE);
    const auto inicio = TRelogio::now();
    while (ALimite && !PossuiTecla(entrada)) {
        const auto passou = std::chrono::duration_cast<std::chrono::milliseconds>(TRelogio::now() - inicio);
        const auto resta = std::clamp<std::chrono::milliseconds::rep>((*ALimite - passou).count(), 0, 1'000'000);
        const DWORD situacao = ::WaitForSingleObject(entrada, static_cast<DWORD>(resta));
        if (situacao == WAIT_FAILED) return llFim;
        if (situacao == WAIT_TIMEOUT && passou + std::chrono::milliseconds(resta) >= *ALimite) return llTempo;
    }
    std::u16string linha;
    while (linha.empty() || linha.back() != u'\n') {
        wchar_t parte[512];
        DWORD lidos = 0;
        if (!::ReadConsoleW(entrada, parte, 512, &lidos, nullptr) || lidos == 0) break;
        for (DWORD i = 0; i < lidos; ++i) linha += static_cast<char16_t>(parte[i]);
        if (linha.find(u'\x1a') != std::u16string::npos) return llFim;  // Ctrl+Z
    }
    if (linha.empty()) return llFim;
    while (!linha.empty() && (linha.back() == u'\n' || linha.back() == u'\r')) linha.pop_back();
    ALinha = linha;
    return llLinha;
}

}  // namespace OryUtils::Interno

#include "oryutils/platform/Console.hpp"

#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/Fluxo.hpp"

#include <climits>

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace OryUtils::Interno {

bool PodeConversar() { return TFluxo::EntradaPadrao().EhTerminal() && TFluxo::ErroPadrao().EhTerminal(); }

int BuscarColunasDoTerminal() {
    winsize tamanho{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &tamanho) == 0 ? tamanho.ws_col : 0;
}

void EscreverNoErroPadrao(std::u16string_view ATexto) { TFluxo::ErroPadrao().Escrever(CodificarAnsi(ATexto)); }

void MostrarDigitado(bool AMostrar) {
    termios modos{};
    if (::tcgetattr(STDIN_FILENO, &modos) != 0) return;
    if (AMostrar)
        modos.c_lflag |= ECHO;
    else
        modos.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    ::tcsetattr(STDIN_FILENO, TCSADRAIN, &modos);
}

TLeituraDeLinha LerLinhaDoTerminal(std::optional<std::chrono::milliseconds> ALimite, std::u16string& ALinha) {
    using TRelogio = std::chrono::steady_clock;
    const auto fim = ALimite ? TRelogio::now() + *ALimite : TRelogio::time_point::max();
    std::string bytes;
    while (true) {
        // A terminal hands out whole lines, so waiting for the first byte waits for the line.
        int espera = -1;
        if (ALimite && bytes.empty()) {
            const auto resta = std::chrono::ceil<std::chrono::milliseconds>(fim - TRelogio::now()).count();
            espera = static_cast<int>(std::clamp<decltype(resta)>(resta, 0, INT_MAX));
        }
        pollfd entrada{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
        const int pronta = ::poll(&entrada, 1, espera);
        if (pronta == 0) return llTempo;
        if (pronta < 0 && errno == EINTR) continue;
        char byte = 0;  // one by one: what follows the line belongs to whoever reads next
        const ssize_t lidos = ::read(STDIN_FILENO, &byte, 1);
        if (lidos < 0 && errno == EINTR) continue;
        if (lidos <= 0 && bytes.empty()) return llFim;
        if (lidos <= 0 || byte == '\n') break;
        bytes += byte;
    }
    ALinha = TDecodificadorAnsi().Decodificar(bytes);
    return llLinha;
}

}  // namespace OryUtils::Interno

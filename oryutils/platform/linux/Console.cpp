#include "oryutils/platform/Console.hpp"

#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/Fluxo.hpp"

#include <climits>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace OryUtils::Interno {

namespace {

void LigarEco(bool ALigado) noexcept {
    termios modos{};
    if (::tcgetattr(STDIN_FILENO, &modos) != 0) return;
    if (ALigado)
        modos.c_lflag |= ECHO;
    else
        modos.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    ::tcsetattr(STDIN_FILENO, ALigado ? TCSANOW : TCSADRAIN, &modos);
}

// What ends a program from outside while a password is typed: the terminal would stay without echo for the next one.
constexpr int CSinaisDeFim[]{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

void AoSerEncerrado(int ASinal) {
    LigarEco(true);
    ::signal(ASinal, SIG_DFL);
    ::raise(ASinal);
}

/// AQuem takes the place of ADe; a host's own handler stays.
void TrocarTratador(void (*ADe)(int), void (*AQuem)(int)) noexcept {
    for (const int sinal : CSinaisDeFim) {
        struct sigaction atual {};
        if (::sigaction(sinal, nullptr, &atual) == 0 && atual.sa_handler == ADe) ::signal(sinal, AQuem);
    }
}

}  // namespace

bool PodeConversar() { return TFluxo::EntradaPadrao().EhTerminal() && TFluxo::ErroPadrao().EhTerminal(); }

int BuscarColunasDoTerminal() {
    winsize tamanho{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &tamanho) == 0 ? tamanho.ws_col : 0;
}

void EscreverNoErroPadrao(std::u16string_view ATexto) { TFluxo::ErroPadrao().Escrever(CodificarAnsi(ATexto)); }

void MostrarDigitado(bool AMostrar) {
    if (!AMostrar) TrocarTratador(SIG_DFL, &AoSerEncerrado);
    LigarEco(AMostrar);
    if (AMostrar) TrocarTratador(&AoSerEncerrado, SIG_DFL);
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

#include "oryutils/platform/InicioDeProcessos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Prazo.hpp"
#include "oryutils/platform/linux/Descritor.hpp"
#include "oryutils/platform/linux/Elevacao.hpp"
#include "oryutils/platform/linux/Filhos.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace OryUtils::Interno {
namespace {

// The message loops of hosts have no common signal, so they are looked after so often.
constexpr std::chrono::milliseconds CFatia{20};

int ParaPoll(std::chrono::milliseconds AEspera) { return static_cast<int>(AEspera.count()); }

std::vector<std::string> ConverterArgumentos(const std::vector<std::u16string>& AArgumentos) {
    std::vector<std::string> argumentos;
    for (const std::u16string& argumento : AArgumentos) argumentos.push_back(ParaUtf8(argumento));
    return argumentos;
}

// Blanks in front of a line do not count, as on Windows.
std::vector<std::string> SepararComando(std::u16string_view ALinha) {
    ALinha.remove_prefix(std::min(ALinha.find_first_not_of(u" \t"), ALinha.size()));
    return ConverterArgumentos(SepararLinhaDeComando(ALinha));
}

TProcessoIniciado Iniciado(pid_t APid) {
    TProcessoIniciado processo;
    processo.ID = processo.IDThread = static_cast<std::uint32_t>(APid);
    processo.Processo = TAlcaDeProcesso(AbrirPidfd(APid));
    return processo;
}

}  // namespace

std::optional<TProcessoIniciado> CriarProcesso(std::u16string_view ALinhaDeComando, bool AExibir) {
    TPedidoDeFilho pedido{.Argumentos = SepararComando(ALinhaDeComando)};
    pedido.Entrada = CNenhumFluxo;
    if (!AExibir) pedido.Saida = pedido.Erro = CNenhumFluxo;
    const pid_t pid = GerarFilho(pedido);
    if (pid < 0) return std::nullopt;
    return Iniciado(pid);
}

std::optional<TProcessoIniciado> ExecutarPeloSistema(const TPedidoDeExecucao& APedido) {
    TPedidoDeFilho pedido{.Argumentos = ConverterArgumentos(SepararArgumentos(APedido.Parametros)),
                          .Pasta = ParaUtf8(APedido.Pasta),
                          .SessaoPropria = false};
    pedido.Argumentos.insert(pedido.Argumentos.begin(), ParaUtf8(APedido.Aplicacao));
    if (APedido.Elevar && ::geteuid() != 0) {
        const std::vector<std::string> elevador = BuscarElevador(!pedido.Pasta.empty());
        if (elevador.empty()) return std::nullopt;
        pedido.Argumentos.insert(pedido.Argumentos.begin(), elevador.begin(), elevador.end());
    }
    const pid_t pid = GerarFilho(pedido);
    if (pid < 0) return std::nullopt;
    return Iniciado(pid);
}

TEspera EsperarProcesso(const TProcessoIniciado& AProcesso, std::chrono::milliseconds ALimite, bool AAcordar) {
    const auto pid = static_cast<pid_t>(AProcesso.ID);
    const TPrazo prazo(ALimite);
    while (true) {
        const std::chrono::milliseconds resta = prazo.Resta();
        if (EsperarFilho(pid, AProcesso.Processo.Get(), ParaPoll(std::min(resta, CFatia)))) return epTerminou;
        if (resta <= CFatia) return epTempo;
        if (AAcordar) return epMensagens;
    }
}

TEspera EsperarMensagens(std::chrono::milliseconds ALimite) {
    ::poll(nullptr, 0, ParaPoll(std::min(ALimite, CFatia)));
    return ALimite > CFatia ? epMensagens : epTempo;
}

std::unique_ptr<TProcessoCapturado> TProcessoCapturado::Iniciar(std::u16string_view ALinhaDeComando) {
    int pontas[2];
    if (::pipe2(pontas, O_CLOEXEC) != 0) return nullptr;
    TDescritor leitura(pontas[0]);
    const TDescritor escrita(pontas[1]);
    constexpr int CCapacidade = 1 << 20;  // stops the writer of much output less often; the system may refuse it
    ::fcntl(leitura.Get(), F_SETPIPE_SZ, CCapacidade);
    TPedidoDeFilho pedido{.Argumentos = SepararComando(ALinhaDeComando)};
    pedido.Saida = pedido.Erro = escrita.Get();
    const pid_t pid = GerarFilho(pedido);
    if (pid < 0) return nullptr;
    return std::unique_ptr<TProcessoCapturado>(new TProcessoCapturado(Iniciado(pid), leitura.Soltar()));
}

TProcessoCapturado::~TProcessoCapturado() { ::close(static_cast<int>(FLeitura)); }

TProcessoCapturado::TLeitura TProcessoCapturado::Ler(std::span<char> ADestino, std::chrono::milliseconds ALimite,
                                                     std::size_t& ALidos) noexcept {
    pollfd leitura{.fd = static_cast<int>(FLeitura), .events = POLLIN, .revents = 0};
    const int espera = ALimite == CEsperaSemLimite ? -1 : ParaPoll(ALimite);
    if (::poll(&leitura, 1, espera) <= 0) return lcNada;
    const ssize_t lidos = ::read(leitura.fd, ADestino.data(), ADestino.size());
    if (lidos < 0 && errno == EINTR) return lcNada;
    if (lidos <= 0) return lcFim;
    ALidos = static_cast<std::size_t>(lidos);
    return lcBytes;
}

}  // namespace OryUtils::Interno

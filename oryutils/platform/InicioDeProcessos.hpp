#pragma once

#include "oryutils/platform/AlcaDeProcesso.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The limit of a wait without limit: the number of milliseconds that Windows takes for it.
inline constexpr std::chrono::milliseconds CEsperaSemLimite{0xFFFFFFFF};

enum TEspera : int { epTerminou, epMensagens, epTempo };

/// A process that was started. (Linux) Processo may be none on a kernel without pidfd; Thread always is.
struct TProcessoIniciado {
    TAlcaDeProcesso Processo{};
    TAlcaDeProcesso Thread{};
    std::uint32_t ID = 0;
    std::uint32_t IDThread = 0;
};

/// Starts a command line in a console of its own, without inheriting handles. (Linux) It gets a session of its own; its
/// input is /dev/null, and its output goes there too unless AExibir is true.
std::optional<TProcessoIniciado> CriarProcesso(std::u16string_view ALinhaDeComando, bool AExibir);

struct TPedidoDeExecucao {
    std::u16string Aplicacao{};
    std::u16string Parametros{};
    std::u16string Pasta{};  // empty: the caller's
    void* Janela = nullptr;
    bool Elevar = false;
    bool Exibir = false;
};
/// Starts a program through the system's shell. (Linux) Elevar means pkexec or sudo -A in front, except for root.
/// (Windows) A success without a process of its own, such as a document handed to a running program, has ID 0.
std::optional<TProcessoIniciado> ExecutarPeloSistema(const TPedidoDeExecucao& APedido);

/// Waits for the end of a process, at most ALimite.
/// AAcordar  true: the wait also ends, with epMensagens, when the application may have messages to process: every few
///           milliseconds, on Windows sooner for a message, but not at once, so that messages that follow one another
///           leave the processor free.
TEspera EsperarProcesso(const TProcessoIniciado& AProcesso, std::chrono::milliseconds ALimite, bool AAcordar);
/// Waits for messages of the application, at most ALimite: epMensagens (see above) or epTempo.
TEspera EsperarMensagens(std::chrono::milliseconds ALimite);

/// A hidden process whose output comes through a pipe.
class TProcessoCapturado {
public:
    enum TLeitura : int { lcBytes, lcNada, lcFim };

    /// Null when the command cannot be started.
    static std::unique_ptr<TProcessoCapturado> Iniciar(std::u16string_view ALinhaDeComando);
    ~TProcessoCapturado();
    TProcessoCapturado(const TProcessoCapturado&) = delete;
    TProcessoCapturado& operator=(const TProcessoCapturado&) = delete;

    /// Waits at most ALimite for output and reads what is there, at most ADestino.size() bytes.
    /// Result: lcBytes with ALidos set; lcNada when nothing came; lcFim when no writer is left.
    TLeitura Ler(std::span<char> ADestino, std::chrono::milliseconds ALimite, std::size_t& ALidos) noexcept;
    const TProcessoIniciado& GetProcesso() const noexcept { return FProcesso; }

private:
    TProcessoCapturado(TProcessoIniciado AProcesso, std::intptr_t ALeitura)
        : FProcesso(std::move(AProcesso)), FLeitura(ALeitura) {}

    TProcessoIniciado FProcesso;
    std::intptr_t FLeitura;                   // read end of the pipe
    std::chrono::milliseconds FIntervalo{1};  // (Windows) between two looks at the pipe
};

}  // namespace OryUtils::Interno

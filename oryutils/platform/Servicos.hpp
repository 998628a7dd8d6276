#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// What the service manager tells of a service.
struct TSituacaoServico {
    /// 1 stopped, 2 start pending, 3 stop pending, 4 running, 5 continue pending, 6 pause pending, 7 paused.
    std::uint32_t Estado = 0;
    /// Counts up while the service is on its way.
    std::uint32_t PontoDeVerificacao = 0;
    /// The time that the service wishes to pass before the next question.
    std::chrono::milliseconds EsperaSugerida{0};
    /// False when the service's process has certainly ended. A service that waits for those that it depends on has
    /// none yet.
    bool TemProcesso = true;
};

/// A service opened with certain rights; closed with the object.
class TServico {
public:
    virtual ~TServico() = default;
    TServico(const TServico&) = delete;
    TServico& operator=(const TServico&) = delete;

    /// Asks the service to start, without arguments.
    virtual bool Iniciar() = 0;
    /// Sends the stop control; the service stops in its own time.
    virtual bool Parar() = 0;
    /// Marks the service for deletion.
    virtual bool Excluir() = 0;
    virtual std::optional<TSituacaoServico> Consultar() = 0;
    /// The id of the service's process, 0 when there is none or it cannot be told.
    virtual std::uint32_t BuscarIDProcesso() = 0;
    /// False for a service of another machine: the id of its process means nothing here.
    virtual bool EhDestaMaquina() const noexcept { return true; }

protected:
    TServico() = default;
};

enum TAcessoServico : int { asConsultar, asIniciar, asParar, asTotal };

/// A connection to the service manager; closed with the object.
class TGerenciadorServicos {
public:
    virtual ~TGerenciadorServicos() = default;
    TGerenciadorServicos(const TGerenciadorServicos&) = delete;
    TGerenciadorServicos& operator=(const TGerenciadorServicos&) = delete;

    /// Null when there is no such service or not that right.
    virtual std::unique_ptr<TServico> AbrirServico(std::u16string_view ANome, TAcessoServico AAcesso) = 0;
    /// Creates a service of its own process, started with the machine, its errors ignored; without group, dependencies
    /// or account. Returns the creation's own value, 0 when it failed; the service is not left open.
    virtual std::uintptr_t CriarServico(std::u16string_view ANome, std::u16string_view ANomeExibicao,
                                        std::u16string_view AExecutavel) = 0;

protected:
    TGerenciadorServicos() = default;
};

enum TAcessoGerenciador : int { agConectar, agTotal };

/// The service manager of AMaquina, the empty name meaning this one; null when it does not answer or refuses.
/// (Windows) The Service Control Manager. (Linux) systemd, through systemctl; null where there is none, and for every
/// other machine.
std::unique_ptr<TGerenciadorServicos> AbrirGerenciadorServicos(std::u16string_view AMaquina,
                                                               TAcessoGerenciador AAcesso);

}  // namespace OryUtils::Interno

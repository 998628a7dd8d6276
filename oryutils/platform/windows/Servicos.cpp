#include "oryutils/platform/Servicos.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <type_traits>

namespace OryUtils::Interno {
namespace {

struct TFecharServico {
    void operator()(SC_HANDLE AServico) const noexcept { CloseServiceHandle(AServico); }
};
using TIdentificador = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, TFecharServico>;

constexpr DWORD DireitosDe(TAcessoServico AAcesso) noexcept {
    switch (AAcesso) {
        case asIniciar:
            return SERVICE_START | SERVICE_QUERY_STATUS;
        case asParar:
            return SERVICE_STOP | SERVICE_QUERY_STATUS;
        case asTotal:
            return SERVICE_ALL_ACCESS;
        default:
            return SERVICE_QUERY_STATUS;
    }
}

/// False when no process has that id any more.
bool VivoOuDesconhecido(DWORD AID) {
    if (AID == 0) return false;
    const HANDLE processo = OpenProcess(SYNCHRONIZE, FALSE, AID);
    if (!processo) return GetLastError() != ERROR_INVALID_PARAMETER;
    const bool vivo = WaitForSingleObject(processo, 0) == WAIT_TIMEOUT;
    CloseHandle(processo);
    return vivo;
}

class TServicoWindows final : public TServico {
public:
    explicit TServicoWindows(TIdentificador AServico) : FServico(std::move(AServico)) {}

    bool Iniciar() override { return StartServiceW(FServico.get(), 0, nullptr) != 0; }
    bool Parar() override {
        SERVICE_STATUS situacao{};
        return ControlService(FServico.get(), SERVICE_CONTROL_STOP, &situacao) != 0;
    }
    bool Excluir() override { return DeleteService(FServico.get()) != 0; }
    std::optional<TSituacaoServico> Consultar() override {
        SERVICE_STATUS situacao{};
        if (!QueryServiceStatus(FServico.get(), &situacao)) return std::nullopt;
        return TSituacaoServico{situacao.dwCurrentState, situacao.dwCheckPoint,
                                std::chrono::milliseconds(situacao.dwWaitHint), VivoOuDesconhecido(BuscarIDProcesso())};
    }
    std::uint32_t BuscarIDProcesso() override {
        SERVICE_STATUS_PROCESS situacao{};
        DWORD tamanho = 0;
        if (!QueryServiceStatusEx(FServico.get(), SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE*>(&situacao),
                                  sizeof situacao, &tamanho))
            return 0;
        return situacao.dwProcessId;
    }

private:
    TIdentificador FServico;
};

class TGerenciadorWindows final : public TGerenciadorServicos {
public:
    explicit TGerenciadorWindows(TIdentificador AGerenciador) : FGerenciador(std::move(AGerenciador)) {}

    std::unique_ptr<TServico> AbrirServico(std::u16string_view ANome, TAcessoServico AAcesso) override {
        const std::u16string nome(ANome);
        TIdentificador servico(OpenServiceW(FGerenciador.get(), ParaWide(nome), DireitosDe(AAcesso)));
        return servico ? std::make_unique<TServicoWindows>(std::move(servico)) : nullptr;
    }
    std::uintptr_t CriarServico(std::u16string_view ANome, std::u16string_view ANomeExibicao,
                                std::u16string_view AExecutavel) override {
        const std::u16string nome(ANome), exibicao(ANomeExibicao), executavel(AExecutavel);
        const TIdentificador servico(CreateServiceW(FGerenciador.get(), ParaWide(nome), ParaWide(exibicao),
                                                    SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS, SERVICE_AUTO_START,
                                                    SERVICE_ERROR_IGNORE, ParaWide(executavel), nullptr, nullptr,
                                                    nullptr, nullptr, nullptr));
        return reinterpret_cast<std::uintptr_t>(servico.get());
    }

private:
    TIdentificador FGerenciador;
};

}  // namespace

std::unique_ptr<TGerenciadorServicos> AbrirGerenciadorServicos(std::u16string_view AMaquina,
                                                               TAcessoGerenciador AAcesso) {
    const std::u16string maquina(AMaquina);
    TIdentificador gerenciador(OpenSCManagerW(maquina.empty() ? nullptr : ParaWide(maquina), nullptr,
                                              AAcesso == agTotal ? SC_MANAGER_ALL_ACCESS : SC_MANAGER_CONNECT));
    return gerenciador ? std::make_unique<TGerenciadorWindows>(std::move(gerenciador)) : nullptr;
}

}  // namespace OryUtils::Interno

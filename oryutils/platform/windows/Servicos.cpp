#include "oryutils/platform/Servicos.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
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

/// False when the process of that id has ended. 0 is no id: nothing is known.
bool VivoOuDesconhecido(DWORD AID) {
    if (AID == 0) return true;
    const HANDLE processo = OpenProcess(SYNCHRONIZE, FALSE, AID);
    if (!processo) return GetLastError() != ERROR_INVALID_PARAMETER;
    const bool vivo = WaitForSingleObject(processo, 0) == WAIT_TIMEOUT;
    CloseHandle(processo);
    return vivo;
}

std::u16string BuscarNome(COMPUTER_NAME_FORMAT AFormato) {
    wchar_t nome[256];
    DWORD tamanho = 256;
    return ::GetComputerNameExW(AFormato, nome, &tamanho) ? DeWide({nome, tamanho}) : std::u16string();
}

/// True when AMaquina, with or without the "\\" in front, names the machine that the program runs on.
bool EhEstaMaquina(std::u16string_view AMaquina) {
    if (AMaquina.starts_with(u"\\\\")) AMaquina.remove_prefix(2);
    const std::u16string nomes[] = {
        u"",
        u".",
        u"localhost",
        u"127.0.0.1",
        BuscarNome(ComputerNameNetBIOS),
        BuscarNome(ComputerNameDnsHostname),
        BuscarNome(ComputerNameDnsFullyQualified),
    };
    return std::ranges::any_of(nomes,
                               [&](const std::u16string& ANome) { return IguaisIgnorandoCaixa(ANome, AMaquina); });
}

class TServicoWindows final : public TServico {
public:
    TServicoWindows(TIdentificador AServico, bool ADestaMaquina)
        : FServico(std::move(AServico)), FDestaMaquina(ADestaMaquina) {}

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
                                std::chrono::milliseconds(situacao.dwWaitHint),
                                !FDestaMaquina || VivoOuDesconhecido(BuscarIDProcesso())};
    }
    std::uint32_t BuscarIDProcesso() override {
        SERVICE_STATUS_PROCESS situacao{};
        DWORD tamanho = 0;
        if (!QueryServiceStatusEx(FServico.get(), SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE*>(&situacao),
                                  sizeof situacao, &tamanho))
            return 0;
        return situacao.dwProcessId;
    }
    bool EhDestaMaquina() const noexcept override { return FDestaMaquina; }

private:
    TIdentificador FServico;
    bool FDestaMaquina;
};

class TGerenciadorWindows final : public TGerenciadorServicos {
public:
    TGerenciadorWindows(TIdentificador AGerenciador, bool ADestaMaquina)
        : FGerenciador(std::move(AGerenciador)), FDestaMaquina(ADestaMaquina) {}

    std::unique_ptr<TServico> AbrirServico(std::u16string_view ANome, TAcessoServico AAcesso) override {
        const std::u16string nome(ANome);
        TIdentificador servico(OpenServiceW(FGerenciador.get(), ParaWide(nome), DireitosDe(AAcesso)));
        return servico ? std::make_unique<TServicoWindows>(std::move(servico), FDestaMaquina) : nullptr;
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
    bool FDestaMaquina;
};

}  // namespace

std::unique_ptr<TGerenciadorServicos> AbrirGerenciadorServicos(std::u16string_view AMaquina,
                                                               TAcessoGerenciador AAcesso) {
    const std::u16string maquina(AMaquina);
    TIdentificador gerenciador(OpenSCManagerW(maquina.empty() ? nullptr : ParaWide(maquina), nullptr,
                                              AAcesso == agTotal ? SC_MANAGER_ALL_ACCESS : SC_MANAGER_CONNECT));
    return gerenciador ? std::make_unique<TGerenciadorWindows>(std::move(gerenciador), EhEstaMaquina(AMaquina))
                       : nullptr;
}

}  // namespace OryUtils::Interno

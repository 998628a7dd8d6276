#include "oryutils/system/interno/Servicos.hpp"

#include "oryutils/runtime/Costura.hpp"

#include <algorithm>
#include <array>
#include <chrono>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CSemGerenciador =
    u"Não foi possível abrir o SC Manager (Gerenciador de serviços do Windows).\r\n\r\nTente executar o processo como "
    u"administrador, se o problema persistir entre em contatocom o suporte técnico.";

struct TErroCriacao {
    std::uintptr_t Valor;
    std::u16string_view Mensagem;
};

// Looked up by the value that the creation itself returns, as callers know it: a creation that fails returns 0 and so
// reports success, and they confirm with the state of the service.
constexpr std::array CErrosCriacao{
    TErroCriacao{5, u"Não existem permissões de acesso para instalar o serviço."},
    TErroCriacao{6, u"Ponteiro de identifidação do serviço é inválido."},
    TErroCriacao{87, u"Parâmetro inválido definido para o serviço."},
    TErroCriacao{123, u"O nome especificado para o serviço é inválido."},
    TErroCriacao{1057, u"A conta de usuário especificada nos parâmetros do lpServiceStartName não existe."},
    TErroCriacao{1059, u"Existe uma dependência circular identificada no serviço."},
    TErroCriacao{1073, u"Serviço já existe (está instalado) no gerenciador de serviços do Windows."},
    TErroCriacao{1078,
                 u"Nome do serviço duplicado.\r\nO nome de exibição do serviço já existe no gerenciador de serviços do "
                 u"Windows.\r\nVerifique se existe algum serviço com nome ou nome de exibição igual ao definido."},
};

// A service may wish for no time at all between two questions; the processor is for others meanwhile.
constexpr std::chrono::milliseconds CMenorRodada{20};

// A manager that goes on for so long about a service whose process is gone will not change its mind.
constexpr int CSegundosSemProcesso = 5;

// A service of another machine that does not stop can only be waited for: so long at least.
constexpr int CMenorLimiteDeOutraMaquina = 5;

TResultStatus Falha(std::u16string_view AMensagem) { return {false, std::u16string(AMensagem)}; }

/// A service together with the manager that it was opened by.
struct TServicoAberto {
    std::unique_ptr<TGerenciadorServicos> Gerenciador{};
    std::unique_ptr<TServico> Servico{};
    explicit operator bool() const noexcept { return Servico != nullptr; }
    TServico* operator->() const noexcept { return Servico.get(); }
};

TServicoAberto AbrirServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina, std::u16string_view AServico,
                            TAcessoServico AAcesso) {
    TServicoAberto aberto{AAbrir(AMaquina, agConectar)};
    if (aberto.Gerenciador) aberto.Servico = aberto.Gerenciador->AbrirServico(AServico, AAcesso);
    return aberto;
}

/// Counts a limit in seconds down. Each round takes off the whole seconds that the service asked for. A service that
/// asks for less than a second would never use the limit up that way, so the clock decides for it.
class TLimiteDeEspera {
public:
    explicit TLimiteDeEspera(int ASegundos) : FLimite(ASegundos), FRestante(ASegundos) {}

    /// True once the limit has been used up before this round.
    bool Esgotou(std::chrono::milliseconds AEspera) {
        if (FRestante.count() <= 0) return true;
        const auto segundos = std::chrono::floor<std::chrono::seconds>(AEspera);
        FRestante -= segundos;
        return segundos.count() == 0 && std::chrono::steady_clock::now() - FInicio >= FLimite;
    }

private:
    std::chrono::seconds FLimite;
    std::chrono::seconds FRestante;
    std::chrono::steady_clock::time_point FInicio = std::chrono::steady_clock::now();
};

/// The way of a service to the state that it was asked into.
class TCaminhada {
public:
    TCaminhada(TServico& AServico, TSituacaoServico& ASituacao) : FServico(AServico), FSituacao(ASituacao) {}

    /// Lets the application process its messages and asks again after the time that the service wishes, CMenorRodada at
    /// least. False when it does not answer, when its check point went backwards (it has ended its way or begun
    /// another), and when its process is gone and the manager goes on as if it were not.
    bool Avancar() {
        const TSituacaoServico anterior = FSituacao;
        CosturaInterface().ProcessarMensagens();
        TOryUtilsSistema::Dormir(static_cast<std::uint32_t>(std::max(anterior.EsperaSugerida, CMenorRodada).count()));
        const auto nova = FServico.Consultar();
        if (!nova) return false;
        FSituacao = *nova;
        if (FSituacao.PontoDeVerificacao < anterior.PontoDeVerificacao) return false;
        return FSituacao.TemProcesso || !FSemProcesso.Esgotou(anterior.EsperaSugerida);
    }

private:
    TServico& FServico;
    TSituacaoServico& FSituacao;
    TLimiteDeEspera FSemProcesso{CSegundosSemProcesso};
};

}  // namespace

TResultStatus InstalouServico(const TAbrirGerenciador& AAbrir, std::u16string_view AServico,
                              std::u16string_view ANomeExibicao, std::u16string_view AExecutavel) {
    const auto gerenciador = AAbrir({}, agTotal);
    if (!gerenciador) return Falha(CSemGerenciador);
    const std::uintptr_t valor = gerenciador->CriarServico(AServico, ANomeExibicao, AExecutavel);
    const auto erro = std::ranges::find(CErrosCriacao, valor, &TErroCriacao::Valor);
    return erro == CErrosCriacao.end() ? TResultStatus{} : Falha(erro->Mensagem);
}

TResultStatus DesinstalouServico(const TAbrirGerenciador& AAbrir, std::u16string_view AServico) {
    const auto gerenciador = AAbrir({}, agTotal);
    if (!gerenciador) return Falha(CSemGerenciador);
    if (const auto servico = gerenciador->AbrirServico(AServico, asTotal)) {
        servico->Parar();
        servico->Excluir();
    }
    return {};
}

bool IniciarServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina, std::u16string_view AServico) {
    const TServicoAberto servico = AbrirServico(AAbrir, AMaquina, AServico, asIniciar);
    if (!servico) return false;
    const bool iniciou = servico->Iniciar();
    auto situacao = servico->Consultar();
    if (!situacao) return false;
    // A service that stopped on its way will not run any more, however long one waits.
    TCaminhada caminhada(*servico.Servico, *situacao);
    while (iniciou && situacao->Estado != sswServicoRodando && situacao->Estado != sswServicoParado)
        if (!caminhada.Avancar()) break;
    return situacao->Estado == sswServicoRodando;
}

bool PararServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina, std::u16string_view AServico,
                  int ATempoLimite) {
    const TServicoAberto servico = AbrirServico(AAbrir, AMaquina, AServico, asParar);
    if (!servico) return false;
    const bool parou = servico->Parar();
    auto situacao = servico->Consultar();
    if (!situacao) return false;
    const bool aqui = servico->EhDestaMaquina();
    TLimiteDeEspera limite(aqui ? ATempoLimite : std::max(ATempoLimite, CMenorLimiteDeOutraMaquina));
    TCaminhada caminhada(*servico.Servico, *situacao);
    while (parou && situacao->Estado != sswServicoParado) {
        const std::chrono::milliseconds espera = situacao->EsperaSugerida;
        if (!caminhada.Avancar()) break;
        if (situacao->Estado == sswServicoParado || !limite.Esgotou(espera)) continue;
        if (!aqui) break;
        if (const std::uint32_t id = servico->BuscarIDProcesso()) TOryUtilsSistema::FinalizouProcessoPeloPID(id);
    }
    return situacao->Estado == sswServicoParado;
}

TStatusServicoWindows BuscarStatusServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina,
                                          std::u16string_view AServico) {
    const TServicoAberto servico = AbrirServico(AAbrir, AMaquina, AServico, asConsultar);
    const auto situacao = servico ? servico->Consultar() : std::nullopt;
    if (!situacao || situacao->Estado > sswServicoPausado) return sswErro;
    return static_cast<TStatusServicoWindows>(situacao->Estado);
}

std::uint32_t BuscarIDProcessoServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina,
                                      std::u16string_view AServico) {
    const TServicoAberto servico = AbrirServico(AAbrir, AMaquina, AServico, asConsultar);
    return servico ? servico->BuscarIDProcesso() : 0;
}

}  // namespace OryUtils::Interno

#include "oryutils/platform/linux/Servicos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/readers/UnidadesSystemd.hpp"

#include <algorithm>
#include <array>
#include <unistd.h>

namespace OryUtils::Interno {
namespace {

/// Where units that the administrator owns are kept.
constexpr std::string_view CPastaUnidades = "/etc/systemd/system";

// systemctl gives no hint of how long to wait before the next question.
constexpr std::chrono::milliseconds CEsperaSugerida{200};

/// What "systemctl" prints, read to its end; nothing when it cannot be started.
std::optional<std::string> ExecutarSystemctl(const std::string& AArgumentos) {
    const auto processo = TProcessoCapturado::Iniciar(DeUtf8("systemctl --no-pager --no-ask-password " + AArgumentos));
    if (!processo) return std::nullopt;
    std::string saida;
    std::array<char, 4096> bloco;
    for (;;) {
        std::size_t lidos = 0;
        const auto leitura = processo->Ler(bloco, CEsperaSemLimite, lidos);
        if (leitura == TProcessoCapturado::lcBytes) saida.append(bloco.data(), lidos);
        if (leitura == TProcessoCapturado::lcFim) break;
    }
    EsperarProcesso(processo->GetProcesso(), CEsperaSemLimite, false);
    return saida;
}

/// The name without the kind of unit that the user may have written behind it.
std::string NomeDeServico(std::u16string_view ANome) {
    constexpr std::string_view tipo = ".service";
    std::string nome = ParaUtf8(ANome);
    if (nome.ends_with(tipo)) nome.resize(nome.size() - tipo.size());
    return nome;
}

bool Pediu(const std::string& AArgumentos) {
    const auto saida = ExecutarSystemctl(AArgumentos);
    return saida && !saida->starts_with("Failed") && saida->find("\nFailed") == std::string::npos;
}

std::string NomeDeArquivo(std::string_view APasta, std::string_view ANome) {
    return std::string(APasta).append("/").append(ANome).append(".service");
}

class TServicoSystemd final : public TServico {
public:
    TServicoSystemd(std::string APasta, std::string ANome) : FPasta(std::move(APasta)), FNome(std::move(ANome)) {}

    bool Iniciar() override { return Pedir("start --no-block ", 2); }
    bool Parar() override { return Pedir("stop --no-block ", 3); }
    bool Excluir() override {
        Pediu("disable " + FNome + ".service");
        const bool excluiu = ::unlink(NomeDeArquivo(FPasta, FNome).c_str()) == 0;
        return Pediu("daemon-reload") && excluiu;
    }
    std::optional<TSituacaoServico> Consultar() override {
        const auto situacao = BuscarSituacao();
        if (!situacao) return std::nullopt;
        return TSituacaoServico{.Estado = situacao->Estado,
                                .EsperaSugerida = CEsperaSugerida,
                                .TemProcesso = situacao->IDProcesso != 0 || situacao->TemTrabalho};
    }
    std::uint32_t BuscarIDProcesso() override {
        const auto situacao = BuscarSituacao();
        return situacao ? situacao->IDProcesso : 0;
    }

private:
    bool Pedir(const char* AVerbo, std::uint32_t AEstadoAteLa) {
        if (!Pediu(AVerbo + FNome + ".service")) return false;
        FEstadoAteLa = AEstadoAteLa;
        return true;
    }
    std::optional<TSituacaoUnidade> BuscarSituacao() {
        const auto saida =
            ExecutarSystemctl("show --property=LoadState,ActiveState,FreezerState,MainPID,Job " + FNome + ".service");
        auto situacao = saida ? LerSituacaoUnidade(*saida) : std::nullopt;
        // While the start or the stop waits in the queue, the unit still shows its old state.
        if (situacao && situacao->TemTrabalho && FEstadoAteLa != 0) situacao->Estado = FEstadoAteLa;
        return situacao;
    }

    std::string FPasta;
    std::string FNome;
    std::uint32_t FEstadoAteLa = 0;
};

class TGerenciadorSystemd final : public TGerenciadorServicos {
public:
    explicit TGerenciadorSystemd(std::string_view APasta) : FPasta(APasta) {}

    std::unique_ptr<TServico> AbrirServico(std::u16string_view ANome, TAcessoServico) override {
        const std::string nome = NomeDeServico(ANome);
        if (!EhNomeDeUnidade(nome)) return nullptr;
        auto servico = std::make_unique<TServicoSystemd>(FPasta, nome);
        return servico->Consultar() ? std::move(servico) : nullptr;
    }
    std::uintptr_t CriarServico(std::u16string_view ANome, std::u16string_view ANomeExibicao,
                                std::u16string_view AExecutavel) override {
        constexpr std::uintptr_t criado = 0x10000;  // above every number that callers look up
        const std::string nome = NomeDeServico(ANome);
        const std::string executavel = ParaUtf8(AExecutavel);
        const bool ehCaminho = ::access(executavel.c_str(), F_OK) == 0;
        const std::string texto = MontarUnidade(ParaUtf8(ANomeExibicao), executavel, ehCaminho);
        if (!EhNomeDeUnidade(nome) || texto.empty() || AbrirServico(ANome, asConsultar)) return 0;
        const std::string arquivo = NomeDeArquivo(FPasta, nome);
        TFluxo fluxo;
        if (fluxo.CriarNovo(arquivo) != efNenhum) return 0;
        const bool escreveu = fluxo.Escrever(texto) == efNenhum;
        if (fluxo.Fechar() != efNenhum || !escreveu) {
            ExcluirArquivo(arquivo);
            return 0;
        }
        return Pediu("daemon-reload") && Pediu("enable " + nome + ".service") ? criado : 0;
    }

private:
    std::string FPasta;
};

}  // namespace

std::unique_ptr<TGerenciadorServicos> AbrirSystemd(std::string_view APasta, TAcessoGerenciador AAcesso) {
    if (AAcesso == agTotal && ::access(std::string(APasta).c_str(), W_OK) != 0) return nullptr;
    const auto estado = ExecutarSystemctl("is-system-running");
    constexpr std::array respostas{"initializing", "starting", "running", "degraded", "maintenance", "stopping"};
    const bool roda = estado && std::ranges::any_of(respostas, [&](std::string_view AResposta) {
                          return estado->starts_with(AResposta);
                      });
    return roda ? std::make_unique<TGerenciadorSystemd>(APasta) : nullptr;
}

std::unique_ptr<TGerenciadorServicos> AbrirGerenciadorServicos(std::u16string_view AMaquina,
                                                               TAcessoGerenciador AAcesso) {
    return AMaquina.empty() ? AbrirSystemd(CPastaUnidades, AAcesso) : nullptr;
}

}  // namespace OryUtils::Interno

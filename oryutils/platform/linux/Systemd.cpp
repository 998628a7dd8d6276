#include "oryutils/platform/linux/Systemd.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CMaiorNome = 200;

struct TEstadoAtivo {
    std::string_view Nome;
    std::uint32_t Estado;
};

// The active states of a unit beside the service manager's numbers. A failed service has stopped.
constexpr std::array CEstados{
    TEstadoAtivo{"inactive", 1},   TEstadoAtivo{"failed", 1},       TEstadoAtivo{"maintenance", 1},
    TEstadoAtivo{"activating", 2}, TEstadoAtivo{"deactivating", 3}, TEstadoAtivo{"active", 4},
    TEstadoAtivo{"reloading", 4},  TEstadoAtivo{"refreshing", 4},
};

// A frozen service is what the service manager calls a paused one.
constexpr std::array CEstadosCongelado{
    TEstadoAtivo{"thawing", 5},
    TEstadoAtivo{"freezing", 6},
    TEstadoAtivo{"frozen", 7},
};

// systemctl has no such hint; a fifth of a second is unnoticed and cheap.
constexpr std::uint32_t CEsperaSugerida = 200;

template <typename T>
std::uint32_t EstadoDe(const T& ATabela, std::string_view ANome) noexcept {
    const auto achado = std::ranges::find(ATabela, ANome, &TEstadoAtivo::Nome);
    return achado == std::end(ATabela) ? 0 : achado->Estado;
}

/// The value of a "Key=Value" line.
std::string_view BuscarPropriedade(std::string_view ASaida, std::string_view AChave) noexcept {
    while (!ASaida.empty()) {
        const std::size_t fim = ASaida.find('\n');
        const std::string_view linha = ASaida.substr(0, fim);
        if (linha.starts_with(AChave) && linha.substr(AChave.size()).starts_with('='))
            return linha.substr(AChave.size() + 1);
        ASaida.remove_prefix(fim == std::string_view::npos ? ASaida.size() : fim + 1);
    }
    return {};
}

bool TemControle(std::string_view ATexto) noexcept {
    return std::ranges::any_of(ATexto, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

/// As one word of ExecStart: quoted, with what the unit language would expand written twice.
std::string CitarPalavra(std::string_view APalavra) {
    std::string texto = "\"";
    for (const char c : APalavra) {
        if (c == '"' || c == '\\') texto += '\\';
        if (c == '%' || c == '$') texto += c;
        texto += c;
    }
    return texto += '"';
}

}  // namespace

bool EhNomeDeUnidade(std::string_view ANome) noexcept {
    if (ANome.empty() || ANome.size() > CMaiorNome || ANome[0] == '.' || ANome[0] == '-') return false;
    return std::ranges::all_of(ANome, [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
               std::string_view(":_.\\@-").find(c) != std::string_view::npos;
    });
}

std::optional<TSituacaoUnidade> LerSituacaoUnidade(std::string_view ASaida) {
    if (BuscarPropriedade(ASaida, "LoadState") != "loaded") return std::nullopt;
    TSituacaoUnidade situacao;
    situacao.Situacao.Estado = EstadoDe(CEstados, BuscarPropriedade(ASaida, "ActiveState"));
    if (situacao.Situacao.Estado == 4)
        if (const auto congelado = EstadoDe(CEstadosCongelado, BuscarPropriedade(ASaida, "FreezerState")))
            situacao.Situacao.Estado = congelado;
    if (situacao.Situacao.Estado == 0) return std::nullopt;
    situacao.Situacao.EsperaSugerida = CEsperaSugerida;
    situacao.TemTrabalho = BuscarPropriedade(ASaida, "Job").find_first_of("123456789") != std::string_view::npos;
    const std::string_view id = BuscarPropriedade(ASaida, "MainPID");
    std::from_chars(id.data(), id.data() + id.size(), situacao.IDProcesso);
    situacao.Situacao.TemProcesso = situacao.IDProcesso != 0 || situacao.TemTrabalho;
    return situacao;
}

std::string MontarUnidade(std::string_view ANomeExibicao, std::string_view AExecutavel) {
    if (AExecutavel.empty() || TemControle(ANomeExibicao) || TemControle(AExecutavel)) return {};
    struct stat arquivo {};
    std::vector<std::string> palavras;
    if (::stat(std::string(AExecutavel).c_str(), &arquivo) == 0) {
        palavras.emplace_back(AExecutavel);  // a path with blanks needs no quotes, as on Windows
    } else {
        for (const std::u16string& palavra : SepararLinhaDeComando(DeUtf8(AExecutavel)))
            palavras.push_back(ParaUtf8(palavra));
    }
    std::string texto = "[Unit]\nDescription=";
    for (const char c : ANomeExibicao) texto.append(c == '%' ? 2 : 1, c);
    // A backslash at the end would join the next line.
    texto += ANomeExibicao.ends_with('\\') ? " \n\n[Service]\nExecStart=" : "\n\n[Service]\nExecStart=";
    for (std::size_t i = 0; i < palavras.size(); ++i) texto.append(i == 0 ? "" : " ").append(CitarPalavra(palavras[i]));
    return texto += "\n\n[Install]\nWantedBy=multi-user.target\n";
}

namespace {

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
        return situacao ? std::optional(situacao->Situacao) : std::nullopt;
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
        // What was asked for waits in the queue: the unit still shows its old state.
        if (situacao && situacao->TemTrabalho && FEstadoAteLa != 0) situacao->Situacao.Estado = FEstadoAteLa;
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
        const std::string texto = MontarUnidade(ParaUtf8(ANomeExibicao), ParaUtf8(AExecutavel));
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

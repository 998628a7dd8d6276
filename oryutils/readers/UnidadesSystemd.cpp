#include "oryutils/readers/UnidadesSystemd.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CMaiorNome = 200;

constexpr std::uint32_t CRodando = 4;

struct TEstadoAtivo {
    std::string_view Nome;
    std::uint32_t Estado;
};

// The states of a unit beside the numbers of the service manager of Windows. A failed service has stopped.
constexpr std::array CEstados{
    TEstadoAtivo{"inactive", 1},         TEstadoAtivo{"failed", 1},
    TEstadoAtivo{"maintenance", 1},      TEstadoAtivo{"activating", 2},
    TEstadoAtivo{"deactivating", 3},     TEstadoAtivo{"active", CRodando},
    TEstadoAtivo{"reloading", CRodando}, TEstadoAtivo{"refreshing", CRodando},
};

// The same of a running unit that is being frozen: a frozen service counts as a paused one.
constexpr std::array CEstadosCongelado{
    TEstadoAtivo{"thawing", 5},
    TEstadoAtivo{"freezing", 6},
    TEstadoAtivo{"frozen", 7},
};

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
        const auto letra = static_cast<unsigned char>(c);
        return EhDigito(letra) || EhLetra(letra) || std::string_view(":_.\\@-").find(c) != std::string_view::npos;
    });
}

std::optional<TSituacaoUnidade> LerSituacaoUnidade(std::string_view ASaida) {
    if (BuscarPropriedade(ASaida, "LoadState") != "loaded") return std::nullopt;
    TSituacaoUnidade situacao;
    situacao.Estado = EstadoDe(CEstados, BuscarPropriedade(ASaida, "ActiveState"));
    if (situacao.Estado == CRodando)
        if (const auto congelado = EstadoDe(CEstadosCongelado, BuscarPropriedade(ASaida, "FreezerState")))
            situacao.Estado = congelado;
    if (situacao.Estado == 0) return std::nullopt;
    situacao.TemTrabalho = BuscarPropriedade(ASaida, "Job").find_first_of("123456789") != std::string_view::npos;
    const std::string_view id = BuscarPropriedade(ASaida, "MainPID");
    std::from_chars(id.data(), id.data() + id.size(), situacao.IDProcesso);
    return situacao;
}

std::string MontarUnidade(std::string_view ANomeExibicao, std::string_view AExecutavel, bool AEhCaminho) {
    if (AExecutavel.empty() || TemControle(ANomeExibicao) || TemControle(AExecutavel)) return {};
    const std::u16string executavel = DeUtf8(AExecutavel);
    const std::vector<std::u16string> palavras =
        AEhCaminho ? std::vector{executavel} : SepararLinhaDeComando(executavel);
    std::string texto = "[Unit]\nDescription=";
    for (const char c : ANomeExibicao) texto.append(c == '%' ? 2 : 1, c);
    // A backslash at the end would join the next line.
    texto += ANomeExibicao.ends_with('\\') ? " \n\n[Service]\nExecStart=" : "\n\n[Service]\nExecStart=";
    for (std::size_t i = 0; i < palavras.size(); ++i)
        texto.append(i == 0 ? "" : " ").append(CitarPalavra(ParaUtf8(palavras[i])));
    return texto += "\n\n[Install]\nWantedBy=multi-user.target\n";
}

}  // namespace OryUtils::Interno

#include "Opcoes.hpp"

#include "Ambiente.hpp"
#include "Sugestao.hpp"

#include <CLI/CLI.hpp>

#include <string_view>
#include <utility>

namespace Ory {
namespace {

/// The library's own words are English; these take their place.
void Traduzir(CLI::App& AAplicativo) {
    const auto formatador = std::make_shared<CLI::Formatter>();
    formatador->label("Usage", "Uso");
    formatador->label("OPTIONS", "opções");
    formatador->label("SUBCOMMAND", "COMANDO");
    formatador->label("SUBCOMMANDS", "COMANDOS");
    formatador->label("Positionals", "Argumentos");
    formatador->label("TEXT", "TEXTO");
    formatador->label("UINT", "N");
    formatador->label("REQUIRED", "(obrigatório)");
    formatador->column_width(28);
    AAplicativo.formatter(formatador);
    AAplicativo.option_defaults()->group("Opções");
}

void PorAjuda(CLI::App& AAplicativo) {
    AAplicativo.set_help_flag("-h,--ajuda,--help", "mostra esta ajuda")->group("Opções");
}

/// The command that was written, or the whole when none was.
const CLI::App& BuscarEscrito(const CLI::App& AAplicativo) {
    for (const CLI::App* comando : AAplicativo.get_subcommands())
        if (comando->parsed()) return BuscarEscrito(*comando);
    return AAplicativo;
}

std::string SugerirArgumento(const std::string& AEscrito, const CLI::App& AAplicativo) {
    std::vector<std::string> nomes;
    if (AEscrito.starts_with('-'))
        for (const CLI::Option* opcao : BuscarEscrito(AAplicativo).get_options())
            for (const std::string& nome : opcao->get_lnames()) nomes.push_back("--" + nome);
    else
        for (const CLI::App* comando : AAplicativo.get_subcommands({})) nomes.push_back(comando->get_name());
    return Sugerir(AEscrito, nomes);
}

/// CLI11 takes "-1" for a huge number.
CLI::Option& ExigirNumero(CLI::Option& AOpcao) {
    return *AOpcao.check([](const std::string& AValor) {
        const bool numero = !AValor.empty() && AValor.find_first_not_of("0123456789") == std::string::npos;
        return numero ? std::string() : "espera um número inteiro, veio " + AValor;
    });
}

std::string DescreverErroDeUso(const CLI::ParseError& AErro, const CLI::App& AAplicativo) {
    if (dynamic_cast<const CLI::ExtrasError*>(&AErro)) {
        std::string sobra;
        const std::vector<std::string> argumentos = AAplicativo.remaining(true);
        for (const std::string& argumento : argumentos) sobra += " " + argumento;
        return "argumento desconhecido:" + sobra + SugerirArgumento(argumentos.front(), AAplicativo);
    }
    std::string mensagem = AErro.what();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&AErro)) {
        const std::string opcao = mensagem.substr(0, mensagem.find_first_of(": "));
        if (mensagem.find("At Most") != std::string::npos) return opcao + " tem valores demais";
        return "falta o valor de " + opcao;
    }
    if (dynamic_cast<const CLI::RequiredError*>(&AErro)) {
        constexpr std::string_view falta = " is required";
        return mensagem.starts_with("A subcommand") || !mensagem.ends_with(falta)
                   ? "falta o comando"
                   : "falta " + mensagem.substr(0, mensagem.size() - falta.size());
    }
    constexpr std::string_view conversao = "Could not convert: ";
    if (mensagem.starts_with(conversao)) return "valor inválido: " + mensagem.substr(conversao.size());
    // "--mostrar: espera ..."
    const std::size_t doisPontos = mensagem.find(": espera");
    if (dynamic_cast<const CLI::ValidationError*>(&AErro) && doisPontos != std::string::npos)
        mensagem.erase(doisPontos, 1);
    return mensagem;
}

}  // namespace

TOpcao& TOpcao::Obrigatoria() {
    FOpcao->required();
    return *this;
}

TOpcao& TOpcao::SemMaisValores() {
    FOpcao->allow_extra_args(false);
    return *this;
}

TOpcao& TOpcao::ComValores(int AQuantos) {
    FOpcao->expected(AQuantos);
    return *this;
}

TOpcao& TOpcao::AoLer(std::function<void()> AAcao) {
    FOpcao->each([acao = std::move(AAcao)](const std::string&) { acao(); });
    return *this;
}

TOpcao TOpcoes::Valor(const std::string& ANome, std::string& ADestino, const std::string& ADescricao) {
    return TOpcao(*FComando->add_option(ANome, ADestino, ADescricao));
}

TOpcao TOpcoes::Valor(const std::string& ANome, unsigned& ADestino, const std::string& ADescricao) {
    return TOpcao(ExigirNumero(*FComando->add_option(ANome, ADestino, ADescricao)));
}

TOpcao TOpcoes::Valor(const std::string& ANome, std::size_t& ADestino, const std::string& ADescricao) {
    return TOpcao(ExigirNumero(*FComando->add_option(ANome, ADestino, ADescricao)));
}

TOpcao TOpcoes::Valor(const std::string& ANome, std::vector<std::string>& ADestino, const std::string& ADescricao) {
    return TOpcao(*FComando->add_option(ANome, ADestino, ADescricao));
}

void TOpcoes::Marca(const std::string& ANome, bool& ADestino, const std::string& ADescricao) {
    FComando->add_flag(ANome, ADestino, ADescricao);
}

TOpcoes TOpcoes::SubComando(const std::string& ANome, const std::string& ADescricao) {
    CLI::App* comando = FComando->add_subcommand(ANome, ADescricao);
    PorAjuda(*comando);
    FComando->require_subcommand(1);
    return TOpcoes(*comando);
}

void TOpcoes::Rodape(const std::string& ATexto) { FComando->footer(ATexto); }
bool TOpcoes::FoiEscrito() const { return FComando->parsed(); }

TAplicativo::TAplicativo(const std::string& ANome, const std::string& ADescricao)
    : FAplicativo(std::make_unique<CLI::App>(ADescricao, ANome)) {
    Traduzir(*FAplicativo);
    PorAjuda(*FAplicativo);
    FAplicativo->allow_windows_style_options(false);  // "/dados/x.csv" is a file there too
}

TAplicativo::~TAplicativo() = default;

TOpcoes TAplicativo::Incluir(const std::string& ANome, const std::string& ADescricao) {
    CLI::App* comando = FAplicativo->add_subcommand(ANome, ADescricao);
    comando->group("Comandos");
    PorAjuda(*comando);
    return TOpcoes(*comando);
}

bool TAplicativo::Ler(std::span<const std::string> AArgumentos) {
    FAplicativo->require_subcommand(0, 1);
    std::vector<std::string> invertidos(AArgumentos.rbegin(), AArgumentos.rend());
    try {
        FAplicativo->parse(std::move(invertidos));
    } catch (const CLI::CallForHelp&) {
        return false;
    } catch (const CLI::ParseError& erro) {
        throw EFalha(DescreverErroDeUso(erro, *FAplicativo) + "; veja ory --ajuda");
    }
    return true;
}

std::string TAplicativo::Ajuda() const { return FAplicativo->help(); }

}  // namespace Ory

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

// The part of CLI11 that the command uses. Opcoes.cpp alone includes its headers: each source that does so takes
// seconds to compile and makes some twenty objects at every start of the process.
namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace Ory {

/// One option just described.
class TOpcao {
public:
    explicit TOpcao(CLI::Option& AOpcao) : FOpcao(&AOpcao) {}
    TOpcao& Obrigatoria();
    /// What stands behind its values is none of them: for another one the name is written again.
    TOpcao& SemMaisValores();
    TOpcao& ComValores(int AQuantos);
    /// AAcao is called when a value is read.
    TOpcao& AoLer(std::function<void()> AAcao);

private:
    CLI::Option* FOpcao;
};

/// The options of a sub-command, which fill variables that must outlive the reading. A name without dashes is that of
/// an argument told by its place.
class TOpcoes {
public:
    explicit TOpcoes(CLI::App& AComando) : FComando(&AComando) {}
    TOpcao Valor(const std::string& ANome, std::string& ADestino, const std::string& ADescricao);
    TOpcao Valor(const std::string& ANome, unsigned& ADestino, const std::string& ADescricao);
    TOpcao Valor(const std::string& ANome, std::size_t& ADestino, const std::string& ADescricao);
    TOpcao Valor(const std::string& ANome, std::vector<std::string>& ADestino, const std::string& ADescricao);
    void Marca(const std::string& ANome, bool& ADestino, const std::string& ADescricao);
    /// A sub-command of this one, which must be written then.
    TOpcoes SubComando(const std::string& ANome, const std::string& ADescricao);
    /// What stands below the options in the help.
    void Rodape(const std::string& ATexto);
    /// True when the sub-command was written on the command line.
    bool FoiEscrito() const;

private:
    CLI::App* FComando;
};

/// The whole command line.
class TAplicativo {
public:
    TAplicativo(const std::string& ANome, const std::string& ADescricao);
    ~TAplicativo();
    TAplicativo(const TAplicativo&) = delete;
    TAplicativo& operator=(const TAplicativo&) = delete;

    TOpcoes Opcoes() { return TOpcoes(*FAplicativo); }
    TOpcoes Incluir(const std::string& ANome, const std::string& ADescricao);
    /// Fills what was described; false when only help was asked for. Raises EFalha for what cannot be read.
    bool Ler(std::span<const std::string> AArgumentos);
    std::string Ajuda() const;

private:
    std::unique_ptr<CLI::App> FAplicativo;
};

}  // namespace Ory

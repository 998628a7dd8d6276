#pragma once

#include "oryutils/platform/Fluxo.hpp"

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace Ory {

/// What ends the command with one sentence for people (UTF-8) and the status 2.
struct EFalha : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Nobody reads the output any more: the command ends without a word.
struct ESaidaFechada : std::runtime_error {
    ESaidaFechada() : std::runtime_error("saída fechada") {}
};

/// Why a file could not be used, as the end of a sentence: "o arquivo não existe".
std::string_view DescreverErro(OryUtils::Interno::TErroFluxo AErro);
/// The same of the file ANome: where its folder is missing, that is the reason.
std::string_view DescreverErro(OryUtils::Interno::TErroFluxo AErro, const std::string& ANome);

/// Bytes to read.
class TEntrada {
public:
    virtual ~TEntrada() = default;
    /// At most ADestino.size() bytes, those that are there; 0 at the end. Raises EFalha.
    virtual std::size_t Ler(std::span<char> ADestino) = 0;
    /// True when Ler would wait for somebody to write.
    virtual bool LerEsperaria() { return false; }
};

/// Bytes to write. Raises EFalha, or ESaidaFechada.
class TSaida {
public:
    virtual ~TSaida() = default;
    virtual void Escrever(std::string_view ABytes) = 0;
};

class TEntradaDeFluxo final : public TEntrada {
public:
    TEntradaDeFluxo(OryUtils::Interno::TFluxo AFluxo, std::string ANome)
        : FFluxo(std::move(AFluxo)), FNome(std::move(ANome)) {}
    std::size_t Ler(std::span<char> ADestino) override;
    bool LerEsperaria() override { return FFluxo.LerEsperaria(); }
    OryUtils::Interno::TFluxo& GetFluxo() { return FFluxo; }

private:
    OryUtils::Interno::TFluxo FFluxo;
    std::string FNome;
};

class TSaidaDeFluxo final : public TSaida {
public:
    TSaidaDeFluxo(OryUtils::Interno::TFluxo AFluxo, std::string ANome)
        : FFluxo(std::move(AFluxo)), FNome(std::move(ANome)) {}
    void Escrever(std::string_view ABytes) override;
    OryUtils::Interno::TFluxo& GetFluxo() { return FFluxo; }

private:
    OryUtils::Interno::TFluxo FFluxo;
    std::string FNome;
};

/// Reads a text in memory, at most APedaco bytes at a time.
class TEntradaDeTexto final : public TEntrada {
public:
    explicit TEntradaDeTexto(std::string_view ATexto, std::size_t APedaco = std::string_view::npos)
        : FTexto(ATexto), FPedaco(APedaco) {}
    std::size_t Ler(std::span<char> ADestino) override {
        const std::size_t lidos = FTexto.copy(ADestino.data(), std::min(ADestino.size(), FPedaco));
        FTexto.remove_prefix(lidos);
        return lidos;
    }

private:
    std::string_view FTexto;
    std::size_t FPedaco;
};

class TSaidaDeTexto final : public TSaida {
public:
    void Escrever(std::string_view ABytes) override { Texto += ABytes; }
    std::string Texto{};
};

}  // namespace Ory

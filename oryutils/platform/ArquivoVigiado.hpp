#pragma once

#include "oryutils/platform/Fluxo.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// A file kept open for writing behind its end, with a watch on what anybody else does to it: one or two cheap
/// questions to the system before each write, where opening the file and comparing its mark costs several dear ones.
///
/// (Linux) Only for a file that nobody else has open when the watch begins, on a file system of this machine. Noticed
/// at once: the file is opened, cut, renamed, deleted, replaced, or its folder renamed. Noticed within a second: a
/// folder further up is renamed. (Windows) Does not watch.
class TArquivoVigiado {
public:
    TArquivoVigiado();
    TArquivoVigiado(const TArquivoVigiado&) = delete;
    TArquivoVigiado& operator=(const TArquivoVigiado&) = delete;
    ~TArquivoVigiado();

    /// Takes over AFluxo, which AbrirParaAcrescentar opened on ANome and whose mark is AMarca. False, and AFluxo stays
    /// as it was, where the file cannot be watched.
    bool Iniciar(TFluxo& AFluxo, const std::string& ANome, const TMarcaDeArquivo& AMarca);
    bool EstahVigiando() const noexcept { return FVigia != nullptr; }
    /// False when somebody may have touched the file since the last write, or ABytes could not be written; in the
    /// first case (AMexido) nothing was written.
    bool Acrescentar(std::string_view ABytes, bool& AMexido) noexcept;
    /// Closes the file. Its mark when it still is what the last write left, as far as its time tells; else none.
    std::optional<TMarcaDeArquivo> Parar() noexcept;
    void Fechar() noexcept;

private:
    struct TVigia;

    bool EstahIntacto(std::int64_t ASegundo) noexcept;
    std::optional<TMarcaDeArquivo> BuscarMarcaIntacta() const noexcept;

    std::unique_ptr<TVigia> FVigia;
    TFluxo FFluxo{};
    std::string FNome{};
    TMarcaDeArquivo FMarca{};  // its time lies between the two below
    std::int64_t FTempoMenor = 0;
    std::int64_t FTempoMaior = 0;
    std::int64_t FSegundo = 0;  // of the last look at the file by its name
};

}  // namespace OryUtils::Interno

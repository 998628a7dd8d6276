#pragma once

#include "oryutils/platform/Fluxo.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Plataforma {

/// A file kept open for writing behind its end, with a watch on what anybody else does to it: two cheap questions to
/// the system before each write, where opening the file and comparing its mark costs several dear ones.
///
/// (Linux) Noticed at once: the file is opened, renamed, deleted, replaced, grows or shrinks; its folder is renamed.
/// Noticed within a second: a folder further up is renamed. Not noticed: a program that already had the file open when
/// the watch began overwrites it in place. Only on file systems of this machine. (Windows) Does not watch.
class TArquivoVigiado {
public:
    TArquivoVigiado() = default;
    TArquivoVigiado(const TArquivoVigiado&) = delete;
    TArquivoVigiado& operator=(const TArquivoVigiado&) = delete;
    ~TArquivoVigiado() { Fechar(); }

    /// Takes over AFluxo, which AbrirParaAcrescentar opened on ANome and whose mark is AMarca. False, and AFluxo stays
    /// as it was, where the file cannot be watched.
    bool Iniciar(TFluxo& AFluxo, const std::string& ANome, const TMarcaDeArquivo& AMarca);
    bool EstahVigiando() const noexcept { return FVigia >= 0; }
    /// False when somebody may have touched the file since the last write, or ABytes could not be written; in the
    /// first case (AMexido) nothing was written.
    bool Acrescentar(std::string_view ABytes, bool& AMexido) noexcept;
    /// Closes the file. Its mark when it still is what the last write left, as far as its time tells; else none.
    std::optional<TMarcaDeArquivo> Parar() noexcept;
    void Fechar() noexcept;

private:
    bool EstahIntacto() noexcept;
    std::optional<TMarcaDeArquivo> BuscarMarcaIntacta() const noexcept;

    TFluxo FFluxo{};
    int FVigia = -1;
    std::string FNome{};
    TMarcaDeArquivo FMarca{};  // its time lies between the two below
    std::int64_t FTempoMenor = 0;
    std::int64_t FTempoMaior = 0;
    std::int64_t FSegundo = 0;  // of the last look at the file by its name
};

}  // namespace OryUtils::Plataforma

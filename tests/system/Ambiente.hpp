#pragma once

#include <chrono>
#include <filesystem>
#include <string>

namespace Testes {

/// Environment variables of this process, for it and for the programs that it starts. Empty is not set.
std::string BuscarVariavel(const std::string& ANome);
void DefinirVariavel(const std::string& ANome, const std::string& AValor);

/// Gives this thread a message to process, where waits are woken by messages.
void EnviarMensagemAEstaThread();
/// Tells this thread to end its message loop; who takes that message off puts it there again for the host's own loop.
void EnviarFimDoPrograma();
/// Takes all messages of this thread off.
void RetirarMensagens();

/// What this process has used of the processor.
std::chrono::milliseconds BuscarTempoDeProcessador();

/// Waits until somebody creates the file, which the system tells; false when nobody does in half a minute.
bool EsperarArquivo(const std::filesystem::path& AArquivo);
inline constexpr int CMaiorEsperaDeArquivo = 30'000;  // milliseconds

/// The variable has that value while this lives.
class TVariavel {
public:
    TVariavel(const std::string& ANome, const std::string& AValor) : FNome(ANome), FAnterior(BuscarVariavel(ANome)) {
        DefinirVariavel(FNome, AValor);
    }
    ~TVariavel() { DefinirVariavel(FNome, FAnterior); }
    TVariavel(const TVariavel&) = delete;
    TVariavel& operator=(const TVariavel&) = delete;

private:
    const std::string FNome, FAnterior;
};

}  // namespace Testes

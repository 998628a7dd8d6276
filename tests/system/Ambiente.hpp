#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>

namespace Testes {

/// Environment variables of this process, for it and for the programs that it starts. Empty is not set.
std::string BuscarVariavel(const std::string& ANome);
void DefinirVariavel(const std::string& ANome, const std::string& AValor);

/// The file that is always empty.
extern const char* const CArquivoVazio;

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

/// Listens on a port of this machine while it lives. Programs that are started meanwhile may inherit that.
class TEscuta {
public:
    /// APorta: 0 for any free one.
    explicit TEscuta(std::uint16_t APorta);
    ~TEscuta();
    TEscuta(const TEscuta&) = delete;
    TEscuta& operator=(const TEscuta&) = delete;
    /// 0 when somebody else listens there.
    std::uint16_t GetPorta() const { return FPorta; }

private:
    std::intptr_t FSocket;
    std::uint16_t FPorta = 0;
};

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

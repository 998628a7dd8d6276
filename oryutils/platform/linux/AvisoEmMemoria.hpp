#pragma once

#include "oryutils/platform/linux/Descritor.hpp"

#include <atomic>
#include <cstddef>
#include <memory>

namespace OryUtils::Interno {

struct TDevolverMemoria {
    std::size_t Tamanho = 0;
    void operator()(void* AMemoria) const noexcept;
};
/// Memory of the system's, given back to it.
using TMemoriaMapeada = std::unique_ptr<void, TDevolverMemoria>;

/// Tells from memory whether there may be something to read, where asking the system costs as much as a fourth of
/// writing a line. The system writes it into a ring (io_uring) that it shares with the process.
///
/// It serves the thread that first armed it: what happens is written there before that thread's next call of the system
/// returns, or within the moment when another processor is told. To all other threads, to a child of fork, and where
/// the system gives no ring (an older one, one that forbids it, a process with a filter of system calls), it says that
/// there may be something.
class TAvisoEmMemoria {
public:
    explicit TAvisoEmMemoria(int ADescritor) noexcept;
    TAvisoEmMemoria(const TAvisoEmMemoria&) = delete;
    TAvisoEmMemoria& operator=(const TAvisoEmMemoria&) = delete;

    /// False when nothing has come since Armar.
    bool PodeTerVindo() noexcept;
    /// For what comes from now on, and what is there already.
    void Armar() noexcept;

private:
    bool Preparar() noexcept;
    bool ValeAqui() const noexcept;

    int FDescritor;
    TDescritor FAnel{-1};
    TMemoriaMapeada FProcesso{};  // one bool, which a child of fork finds false
    TMemoriaMapeada FAneis{};
    TMemoriaMapeada FLugares{};
    // How many requests were made, answered, and their answers read.
    unsigned* FPedidos = nullptr;
    unsigned* FRespostas = nullptr;
    unsigned* FLidas = nullptr;
    std::atomic_uint FDona = 0;  // the thread
    bool FArmado = false;
};

}  // namespace OryUtils::Interno

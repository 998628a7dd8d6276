#include "oryutils/platform/linux/AvisoEmMemoria.hpp"

#include <algorithm>
#include <cstdint>
#include <linux/io_uring.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace OryUtils::Interno {
namespace {

/// Of this thread, and never of another one.
unsigned BuscarNumeroDaThread() noexcept {
    static std::atomic_uint ultimo = 0;
    thread_local const unsigned numero = ++ultimo;
    return numero;
}

unsigned LerContador(unsigned& AContador) noexcept {
    return std::atomic_ref(AContador).load(std::memory_order_acquire);
}

TMemoriaMapeada Mapear(int ADescritor, std::size_t ATamanho, long long APosicao) noexcept {
    const int tipo = ADescritor < 0 ? MAP_PRIVATE | MAP_ANONYMOUS : MAP_SHARED | MAP_POPULATE;
    void* const memoria = ::mmap(nullptr, ATamanho, PROT_READ | PROT_WRITE, tipo, ADescritor, APosicao);
    return memoria == MAP_FAILED ? TMemoriaMapeada() : TMemoriaMapeada(memoria, {ATamanho});
}

}  // namespace

void TDevolverMemoria::operator()(void* AMemoria) const noexcept { ::munmap(AMemoria, Tamanho); }

TAvisoEmMemoria::TAvisoEmMemoria(int ADescritor) noexcept : FDescritor(ADescritor) {
    // A filter may end a process for a call that it does not know.
    if (::prctl(PR_GET_SECCOMP) != 0) return;
    FProcesso = Mapear(-1, sizeof(bool), 0);
    if (!FProcesso || ::madvise(FProcesso.get(), sizeof(bool), MADV_WIPEONFORK) != 0) return;
    *static_cast<bool*>(FProcesso.get()) = Preparar();
}

bool TAvisoEmMemoria::Preparar() noexcept {
    io_uring_params medidas{};
    FAnel = TDescritor(static_cast<int>(::syscall(SYS_io_uring_setup, 1, &medidas)));
    if (FAnel.Falhou() || (medidas.features & IORING_FEAT_SINGLE_MMAP) == 0) return false;
    const auto& pedidos = medidas.sq_off;
    const auto& respostas = medidas.cq_off;
    const std::size_t fim_dos_pedidos = pedidos.array + medidas.sq_entries * sizeof(std::uint32_t);
    const std::size_t fim_das_respostas = respostas.cqes + medidas.cq_entries * sizeof(io_uring_cqe);
    FAneis = Mapear(FAnel.Get(), std::max(fim_dos_pedidos, fim_das_respostas), IORING_OFF_SQ_RING);
    FLugares = Mapear(FAnel.Get(), medidas.sq_entries * sizeof(io_uring_sqe), IORING_OFF_SQES);
    if (!FAneis || !FLugares) return false;
    const auto contador = [&](std::uint32_t APosicao) {
        return reinterpret_cast<unsigned*>(static_cast<char*>(FAneis.get()) + APosicao);
    };
    FPedidos = contador(pedidos.tail);
    FRespostas = contador(respostas.tail);
    FLidas = contador(respostas.head);
    // There is one place for requests, and all of them are the same one.
    *contador(pedidos.array) = 0;
    auto* const pedido = static_cast<io_uring_sqe*>(FLugares.get());
    pedido->opcode = IORING_OP_POLL_ADD;
    pedido->fd = FDescritor;
    pedido->poll_events = POLLIN;
    return true;
}

bool TAvisoEmMemoria::ValeAqui() const noexcept {
    // The thread first: no other one looks at what it writes.
    if (FDona.load(std::memory_order_relaxed) != BuscarNumeroDaThread()) return false;
    const auto* const neste_processo = static_cast<const bool*>(FProcesso.get());
    return neste_processo && *neste_processo;
}

bool TAvisoEmMemoria::PodeTerVindo() noexcept {
    if (!ValeAqui() || !FArmado) return true;
    const unsigned respostas = LerContador(*FRespostas);
    if (respostas == *FLidas) return false;
    std::atomic_ref(*FLidas).store(respostas, std::memory_order_release);
    FArmado = false;
    return true;
}

void TAvisoEmMemoria::Armar() noexcept {
    unsigned nenhuma = 0;
    FDona.compare_exchange_strong(nenhuma, BuscarNumeroDaThread(), std::memory_order_relaxed);
    if (!ValeAqui() || FArmado) return;
    std::atomic_ref(*FPedidos).fetch_add(1, std::memory_order_release);
    FArmado = ::syscall(SYS_io_uring_enter, FAnel.Get(), 1, 0, 0, nullptr, 0) == 1;
    if (!FArmado) *static_cast<bool*>(FProcesso.get()) = false;
}

}  // namespace OryUtils::Interno

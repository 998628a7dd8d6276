#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace Ory {

/// Works on blocks in other threads and hands the results back in the order of the blocks, to the thread that brings
/// them. Holds a fixed number of blocks, so memory does not grow with the input.
///   for (TBloco* b = &esteira.GetLivre(); Encher(*b); b = &esteira.GetLivre()) esteira.Enviar(ultimo);
///   esteira.Terminar();
template <typename TBloco, typename TResultado>
class TEsteira {
public:
    using TTrabalho = std::function<void(const TBloco&, TResultado&)>;
    using TEntrega = std::function<void(TResultado&)>;

    /// ATarefas  threads besides the caller's; 0 = the caller does the work itself.
    TEsteira(unsigned ATarefas, TTrabalho ATrabalho, TEntrega AEntrega)
        : FTrabalho(std::move(ATrabalho)),
          FEntrega(std::move(AEntrega)),
          FTarefas(ATarefas),
          FVagas(ATarefas ? 2 * ATarefas : 1) {}
    TEsteira(const TEsteira&) = delete;
    TEsteira& operator=(const TEsteira&) = delete;

    ~TEsteira() {
        {
            const std::lock_guard trava(FTrava);
            FParar = true;
        }
        FHaTrabalho.notify_all();
        for (std::thread& linha : FLinhas) linha.join();
    }

    /// The block to fill next. When all are in use it waits for the oldest and delivers its result.
    TBloco& GetLivre() {
        if (FEnviados - FEntregues == FVagas.size()) Entregar();
        return FVagas[FEnviados % FVagas.size()].Bloco;
    }

    /// Sends the block of GetLivre to work. A last block before any thread was needed is worked on here and now.
    void Enviar(bool AEhUltimo) {
        if (!FTarefas || (AEhUltimo && FLinhas.empty())) {
            TVaga& vaga = FVagas[FEnviados++ % FVagas.size()];
            FPegos = FEnviados;
            FTrabalho(vaga.Bloco, vaga.Resultado);
            vaga.Pronta = true;
            return;
        }
        while (FLinhas.size() < FTarefas) FLinhas.emplace_back([this] { Trabalhar(); });
        {
            const std::lock_guard trava(FTrava);
            ++FEnviados;
        }
        FHaTrabalho.notify_one();
    }

    /// Waits for all blocks sent and delivers their results.
    void Terminar() {
        while (FEntregues < FEnviados) Entregar();
    }

private:
    struct TVaga {
        TBloco Bloco{};
        TResultado Resultado{};
        std::exception_ptr Falha{};
        bool Pronta = false;
    };

    void Entregar() {
        TVaga& vaga = FVagas[FEntregues % FVagas.size()];
        {
            std::unique_lock trava(FTrava);
            FHaResultado.wait(trava, [&] { return vaga.Pronta; });
            vaga.Pronta = false;
        }
        ++FEntregues;
        if (vaga.Falha) std::rethrow_exception(std::exchange(vaga.Falha, nullptr));
        FEntrega(vaga.Resultado);
    }

    void Trabalhar() {
        while (true) {
            TVaga* vaga = nullptr;
            {
                std::unique_lock trava(FTrava);
                FHaTrabalho.wait(trava, [&] { return FParar || FPegos < FEnviados; });
                if (FParar) return;
                vaga = &FVagas[FPegos++ % FVagas.size()];
            }
            try {
                FTrabalho(vaga->Bloco, vaga->Resultado);
            } catch (...) {
                vaga->Falha = std::current_exception();
            }
            {
                const std::lock_guard trava(FTrava);
                vaga->Pronta = true;
            }
            FHaResultado.notify_one();
        }
    }

    TTrabalho FTrabalho;
    TEntrega FEntrega;
    unsigned FTarefas;
    std::vector<TVaga> FVagas;
    std::vector<std::thread> FLinhas{};
    std::mutex FTrava{};
    std::condition_variable FHaTrabalho{};
    std::condition_variable FHaResultado{};
    std::size_t FEnviados = 0;   // written by the bringing thread only
    std::size_t FPegos = 0;      // under the lock
    std::size_t FEntregues = 0;  // the bringing thread's own
    bool FParar = false;
};

}  // namespace Ory

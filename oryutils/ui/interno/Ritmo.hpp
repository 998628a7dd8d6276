#pragma once

#include <algorithm>
#include <chrono>

namespace OryUtils {

/// How often something may be drawn: a few times at once, so that short steps of work are all seen, then once in each
/// interval, so that drawing never takes the time of the work.
class TRitmo {
public:
    using TInstante = std::chrono::steady_clock::time_point;

    explicit TRitmo(TInstante AInicio) : FContado(AInicio) {}

    /// Whether it may be drawn now; then it counts as drawn.
    bool Permite(TInstante AAgora) {
        const auto intervalos = (AAgora - FContado) / CIntervalo;
        FContado += intervalos * CIntervalo;
        FLivres = std::min<decltype(intervalos)>(FLivres + intervalos, CDeUmaVez);
        if (FLivres == 0) return false;
        --FLivres;
        return true;
    }

private:
    static constexpr std::chrono::milliseconds CIntervalo{40};
    static constexpr std::chrono::milliseconds::rep CDeUmaVez = 4;

    TInstante FContado;
    std::chrono::milliseconds::rep FLivres = CDeUmaVez;
};

}  // namespace OryUtils

#pragma once

#include <exception>
#include <functional>

namespace OryUtils {

/// Keeps exceptions out of Qt's event loop: handlers run inside Executar, and what they raise waits in the innermost
/// guard until its owner, back from the loop, raises it again. Guards nest as modal runs do.
class TGuardaQt {
public:
    /// AInterromper is called when an exception has been kept: it ends the loop under this guard.
    explicit TGuardaQt(std::function<void()> AInterromper);
    ~TGuardaQt();
    TGuardaQt(const TGuardaQt&) = delete;
    TGuardaQt& operator=(const TGuardaQt&) = delete;

    /// Runs AAcao. EAbort ends it silently; any other exception is kept by the innermost guard (the first one counts),
    /// or told in Qt's warning log when there is no guard. Returns whether AAcao came to its end.
    static bool Executar(const std::function<void()>& AAcao) noexcept;

    bool PossuiErro() const noexcept { return FErro != nullptr; }
    void Relancar();

private:
    std::function<void()> FInterromper;
    std::exception_ptr FErro;
    TGuardaQt* FAnterior;
};

}  // namespace OryUtils

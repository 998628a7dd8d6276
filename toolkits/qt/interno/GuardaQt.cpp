#include "toolkits/qt/interno/GuardaQt.hpp"

#include "oryutils/runtime/Excecoes.hpp"

#include <QtGlobal>

#include <utility>

namespace OryUtils {
namespace {

// Handlers run on the thread of the user interface alone.
TGuardaQt* GAtual = nullptr;

}  // namespace

TGuardaQt::TGuardaQt(std::function<void()> AInterromper)
    : FInterromper(std::move(AInterromper)), FAnterior(std::exchange(GAtual, this)) {}

TGuardaQt::~TGuardaQt() { GAtual = FAnterior; }

bool TGuardaQt::Executar(const std::function<void()>& AAcao) noexcept {
    try {
        AAcao();
        return true;
    } catch (const EAbort&) {
        // EAbort ends the handler and nothing else.
    } catch (...) {
        if (GAtual) {
            if (!GAtual->FErro) GAtual->FErro = std::current_exception();
            GAtual->FInterromper();
            return false;
        }
        try {
            throw;
        } catch (const std::exception& erro) {
            qWarning("OryUtils: %s", erro.what());
        } catch (...) {
            qWarning("OryUtils: exceção desconhecida em um temporizador.");
        }
    }
    return false;
}

void TGuardaQt::Relancar() {
    if (FErro) std::rethrow_exception(std::exchange(FErro, nullptr));
}

}  // namespace OryUtils

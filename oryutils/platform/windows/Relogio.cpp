#include "oryutils/platform/Relogio.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

TInstanteLocal BuscarInstanteLocal() {
    SYSTEMTIME agora{};
    ::GetLocalTime(&agora);
    return {agora.wYear, agora.wMonth, agora.wDay, agora.wHour, agora.wMinute, agora.wSecond, agora.wMilliseconds};
}

}  // namespace OryUtils::Interno

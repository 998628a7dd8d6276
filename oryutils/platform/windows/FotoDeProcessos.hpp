#pragma once

#include "oryutils/platform/windows/Windows.hpp"

#include <functional>

namespace OryUtils::Interno {

/// Takes a snapshot by AFotografar. While a program is loading a module the system refuses it for a moment
/// (ERROR_BAD_LENGTH), and it is asked for again.
inline HANDLE Fotografar(const std::function<HANDLE()>& AFotografar) {
    constexpr int CTentativas = 100;
    for (int vez = 1;; ++vez) {
        const HANDLE foto = AFotografar();
        if (foto != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_BAD_LENGTH || vez == CTentativas) return foto;
        ::Sleep(1);
    }
}

}  // namespace OryUtils::Interno

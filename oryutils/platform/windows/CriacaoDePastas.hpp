#pragma once

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Creates APasta by ACriar, which answers with the system's error. A folder above is created only where ACriar says
/// that it is missing: on a share those at the top belong to others, and each question crosses the network.
inline bool CriarComAsDeCima(std::u16string_view APasta,
                             const std::function<DWORD(std::u16string_view APasta)>& ACriar) {
    const auto criou = [&] {
        const DWORD erro = ACriar(APasta);
        return erro == ERROR_ALREADY_EXISTS ? DWORD{ERROR_SUCCESS} : erro;
    };
    const DWORD erro = criou();
    if (erro != ERROR_PATH_NOT_FOUND) return erro == ERROR_SUCCESS;
    constexpr std::u16string_view CSeparadores = u"\\/";
    const auto semFinal = [&](std::u16string_view ACaminho) {
        return ACaminho.substr(0, ACaminho.find_last_not_of(CSeparadores) + 1);
    };
    const std::u16string_view pasta = semFinal(APasta);
    const std::u16string_view acima = semFinal(pasta.substr(0, pasta.find_last_of(CSeparadores) + 1));
    return !acima.empty() && CriarComAsDeCima(acima, ACriar) && criou() == ERROR_SUCCESS;
}

}  // namespace OryUtils::Interno

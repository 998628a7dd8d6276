#pragma once

#include "oryutils/platform/DadosDoArquivo.hpp"

#include <algorithm>
#include <time.h>

namespace OryUtils::Interno {

/// A file system may hold instants that milliseconds of 64 bits do not: they become the nearest ones.
inline TInstanteUtc DeTimespec(const timespec& ATempo) noexcept {
    constexpr time_t CMaior = INT64_MAX / 1000 - 1;
    return std::clamp(ATempo.tv_sec, -CMaior, CMaior) * TInstanteUtc{1000} + ATempo.tv_nsec / 1'000'000;
}

}  // namespace OryUtils::Interno

#pragma once

#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

// FILETIME counts units of 100 ns from 1601 on.
inline constexpr TInstanteUtc CUnidadesPorMilissegundo = 10'000;
inline constexpr TInstanteUtc CMilissegundosDe1601A1970 = 11'644'473'600'000;

inline TInstanteUtc DeFileTime(const FILETIME& ATempo) noexcept {
    const ULONGLONG unidades = static_cast<ULONGLONG>(ATempo.dwHighDateTime) << 32 | ATempo.dwLowDateTime;
    return static_cast<TInstanteUtc>(unidades / CUnidadesPorMilissegundo) - CMilissegundosDe1601A1970;
}

/// AInstante is not before 1601.
inline FILETIME ParaFileTime(TInstanteUtc AInstante) noexcept {
    const auto unidades = static_cast<ULONGLONG>((AInstante + CMilissegundosDe1601A1970) * CUnidadesPorMilissegundo);
    return {static_cast<DWORD>(unidades), static_cast<DWORD>(unidades >> 32)};
}

}  // namespace OryUtils::Interno

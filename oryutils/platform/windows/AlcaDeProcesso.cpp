#include "oryutils/platform/AlcaDeProcesso.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils {

std::intptr_t TAlcaDeProcesso::Duplicar(std::intptr_t AAlca) noexcept {
    HANDLE copia = nullptr;
    if (AAlca == 0 || !::DuplicateHandle(::GetCurrentProcess(), reinterpret_cast<HANDLE>(AAlca), ::GetCurrentProcess(),
                                         &copia, 0, FALSE, DUPLICATE_SAME_ACCESS))
        return 0;
    return reinterpret_cast<std::intptr_t>(copia);
}

void TAlcaDeProcesso::Fechar(std::intptr_t AAlca) noexcept {
    if (AAlca != 0) ::CloseHandle(reinterpret_cast<HANDLE>(AAlca));
}

}  // namespace OryUtils

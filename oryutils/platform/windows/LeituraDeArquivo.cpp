#include "oryutils/platform/LeituraDeArquivo.hpp"

#include "oryutils/platform/windows/InstanteUtc.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

HANDLE Alca(std::intptr_t AAlca) { return reinterpret_cast<HANDLE>(AAlca); }

// One call of the system takes a 32-bit count.
constexpr std::size_t CMaiorParte = 1u << 30;

}  // namespace

TLeituraDeArquivo::TLeituraDeArquivo(std::u16string_view AArquivo) {
    if (AArquivo.find(u'\0') != AArquivo.npos) return;
    const HANDLE alca = ::CreateFileW(ParaWide(std::u16string(AArquivo)), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (alca == INVALID_HANDLE_VALUE) return;
    if (::GetFileType(alca) == FILE_TYPE_DISK)
        FAlca = reinterpret_cast<std::intptr_t>(alca);
    else
        ::CloseHandle(alca);
}

TLeituraDeArquivo::~TLeituraDeArquivo() {
    if (EstahAberto()) ::CloseHandle(Alca(FAlca));
}

std::size_t TLeituraDeArquivo::Ler(std::uint64_t AInicio, std::span<char> ADestino) const noexcept {
    std::size_t total = 0;
    while (total < ADestino.size()) {
        const std::uint64_t inicio = AInicio + total;
        OVERLAPPED lugar{};
        lugar.Offset = static_cast<DWORD>(inicio);
        lugar.OffsetHigh = static_cast<DWORD>(inicio >> 32);
        DWORD lidos = 0;
        const auto quantidade = static_cast<DWORD>(std::min(ADestino.size() - total, CMaiorParte));
        if (!::ReadFile(Alca(FAlca), ADestino.data() + total, quantidade, &lidos, &lugar) || lidos == 0) break;
        total += lidos;
    }
    return total;
}

TInstanteUtc TLeituraDeArquivo::BuscarUltimaGravacao() const noexcept {
    FILETIME tempo{};
    if (!EstahAberto() || !::GetFileTime(Alca(FAlca), nullptr, nullptr, &tempo)) return 0;
    return DeFileTime(tempo);
}

}  // namespace OryUtils::Interno

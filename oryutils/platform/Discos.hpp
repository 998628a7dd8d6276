#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// A drive is named by its letter, with or without ":" and what follows. (Linux) "C" is the root file system, "D" and
/// on the others of ListarUnidades in their order; a path that starts with "/" names the file system that holds it.

struct TEspacoEmDisco {
    std::uint64_t Livre = 0;  // bytes that this user may still write
    std::uint64_t Total = 0;
};

/// None when there is no such drive or nothing is in it.
std::optional<TEspacoEmDisco> BuscarEspacoEmDisco(std::u16string_view AUnidade);

/// The label of the drive's volume; empty when it has none or the system does not tell.
std::u16string BuscarNomeDoVolume(std::u16string_view AUnidade);

/// The roots of the drives: "C:\", "D:\". (Linux) The folders where file systems of disks and file servers are
/// mounted, "/" first and the others by name; one that is mounted twice counts once.
std::vector<std::u16string> ListarUnidades();

/// The number of a drive for the disk calls of the host's environment: A = 1, B = 2; 0 for what is no letter.
constexpr int BuscarNumeroDaUnidade(std::u16string_view AUnidade) noexcept {
    if (AUnidade.empty() || (AUnidade.size() > 1 && AUnidade[1] != u':')) return 0;
    const auto letra = static_cast<char16_t>(AUnidade.front() & ~u'\x20');
    return letra >= u'A' && letra <= u'Z' ? letra - u'A' + 1 : 0;
}

}  // namespace OryUtils::Interno

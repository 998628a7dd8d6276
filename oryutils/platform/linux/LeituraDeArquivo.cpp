#include "oryutils/platform/LeituraDeArquivo.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/linux/InstanteUtc.hpp"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace OryUtils::Interno {

TLeituraDeArquivo::TLeituraDeArquivo(std::u16string_view AArquivo) {
    if (AArquivo.find(u'\0') != AArquivo.npos) return;
    // A pipe without a writer would keep the opener waiting.
    const int alca = ::open(ParaUtf8(AArquivo).c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (alca < 0) return;
    struct stat dados {};
    if (::fstat(alca, &dados) == 0 && S_ISREG(dados.st_mode))
        FAlca = alca;
    else
        ::close(alca);
}

TLeituraDeArquivo::~TLeituraDeArquivo() {
    if (EstahAberto()) ::close(static_cast<int>(FAlca));
}

std::size_t TLeituraDeArquivo::Ler(std::uint64_t AInicio, std::span<char> ADestino) const noexcept {
    std::size_t total = 0;
    while (total < ADestino.size() && AInicio + total <= std::numeric_limits<off_t>::max()) {
        const ssize_t lidos = ::pread(static_cast<int>(FAlca), ADestino.data() + total, ADestino.size() - total,
                                      static_cast<off_t>(AInicio + total));
        if (lidos < 0 && errno == EINTR) continue;
        if (lidos <= 0) break;
        total += static_cast<std::size_t>(lidos);
    }
    return total;
}

TInstanteUtc TLeituraDeArquivo::BuscarUltimaGravacao() const noexcept {
    struct stat dados {};
    if (!EstahAberto() || ::fstat(static_cast<int>(FAlca), &dados) != 0) return 0;
    return DeTimespec(dados.st_mtim);
}

}  // namespace OryUtils::Interno

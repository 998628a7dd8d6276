#include "oryutils/platform/Executavel.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

std::u16string BuscarArquivoExecutavel() {
    // A longer path is cut without a word, so a full buffer asks for a bigger one; no path has more than 32767 units.
    for (std::size_t tamanho = MAX_PATH; tamanho <= 65536; tamanho *= 4) {
        std::u16string caminho(tamanho, u'\0');
        const DWORD unidades = ::GetModuleFileNameW(nullptr, ParaWide(caminho.data()), static_cast<DWORD>(tamanho));
        if (unidades < tamanho) return caminho.substr(0, unidades);
    }
    return {};
}

}  // namespace OryUtils::Interno

// The whole of a file is read alike on both systems.
#include "oryutils/platform/Arquivos.hpp"

#include "oryutils/platform/Fluxo.hpp"

namespace OryUtils::Interno {

std::optional<std::string> LerArquivo(std::u16string_view AArquivo) {
    // The size that a file tells may grow meanwhile, and files of /proc tell 0.
    constexpr std::size_t CFolga = 4096;
    TFluxo fluxo;
    if (fluxo.AbrirArquivoParaLer(AArquivo) != efNenhum) return {};
    std::string bytes(static_cast<std::size_t>(fluxo.BuscarTamanho().value_or(0)) + CFolga, '\0');
    std::size_t lidos = 0;
    TErroFluxo erro = efNenhum;
    while (const std::size_t parte = fluxo.Ler({bytes.data() + lidos, bytes.size() - lidos}, erro)) {
        lidos += parte;
        if (lidos == bytes.size()) bytes.resize(2 * lidos);
    }
    if (erro != efNenhum) return {};
    bytes.resize(lidos);
    return bytes;
}

}  // namespace OryUtils::Interno

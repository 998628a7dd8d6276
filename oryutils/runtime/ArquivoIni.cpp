#include "oryutils/runtime/ArquivoIni.hpp"

#include "oryutils/platform/Fluxo.hpp"

#include <cstdint>
#include <vector>

namespace OryUtils {

std::u16string LerArquivoIni(std::u16string_view AArquivo, std::u16string_view ASecao, std::u16string_view AChave,
                             std::u16string_view APadrao) {
    Interno::TFluxo arquivo;
    if (arquivo.AbrirArquivoParaLer(AArquivo) != Interno::efNenhum) return std::u16string(APadrao);
    TBuscaIni busca(ASecao, AChave);
    std::vector<char> bloco(65536);
    std::uint64_t lidos = 0;
    while (!busca.GetValor()) {
        const std::size_t novos = arquivo.LerEm(lidos, bloco);
        busca.Receber({bloco.data(), novos});
        lidos += novos;
        if (novos < bloco.size()) break;
    }
    busca.Terminar();
    return busca.GetValor().value_or(std::u16string(APadrao));
}

}  // namespace OryUtils

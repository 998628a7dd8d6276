// Any bytes as an INI file: blocks of any size give one answer.
#include "oryutils/runtime/ArquivoIni.hpp"

#include "Comum.hpp"

using namespace OryUtils;

namespace {

std::u16string Buscar(std::string_view ABytes, std::size_t ABloco) {
    TBuscaIni busca(u"v", u"n");
    for (std::size_t i = 0; i < ABytes.size(); i += ABloco) busca.Receber(ABytes.substr(i, ABloco));
    busca.Terminar();
    return busca.GetValor().value_or(u"none");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* ABytes, std::size_t ATamanho) {
    if (ATamanho == 0) return 0;
    const std::string bytes(ABytes + 1, ABytes + ATamanho);
    Fuzz::Exigir(Buscar(bytes, 1 + ABytes[0] % 16) == Buscar(bytes, bytes.size() + 1));
    return 0;
}

// Any bytes as an INI file: blocks of any size give one answer.
#include "oryutils/readers/BuscaIni.hpp"

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

void Fuzz::Provar(TEntrada AEntrada) {
    const std::size_t bloco = 1 + AEntrada.Byte() % 16;
    const std::string bytes = AEntrada.Bytes();
    Exigir(Buscar(bytes, bloco) == Buscar(bytes, bytes.size() + 1));
}

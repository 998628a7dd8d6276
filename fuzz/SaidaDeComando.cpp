// Any bytes as what a command prints, in any pieces, and as the answers of "arp".
#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/system/interno/Executor.hpp"
#include "oryutils/system/interno/RegrasDeRede.hpp"

#include "Comum.hpp"

using namespace OryUtils;
using namespace OryUtils::Interno;

void Fuzz::Provar(TEntrada AEntrada) {
    const std::size_t pedaco = 1 + AEntrada.Byte();
    const std::string bytes = AEntrada.Bytes();

    Interno::TDecodificadorAnsi decodificador;
    const auto decodificar = [&](std::string_view AParte) { return decodificador.Decodificar(AParte); };
    TSaidaDeComando toda(decodificar), partes(decodificar), corrida(decodificar);
    toda.Receber(bytes);
    corrida.Receber(bytes);
    for (std::size_t i = 0; i < bytes.size(); i += pedaco) partes.Receber(std::string_view(bytes).substr(i, pedaco));
    std::vector<std::u16string> linhas, empedacos;
    toda.ContinuarLista(linhas);
    partes.ContinuarLista(empedacos);
    const std::u16string texto = corrida.RetirarTexto();
    Exigir(linhas == empedacos && texto == JuntarLinhas(linhas) && texto.size() <= 2 * bytes.size());

    for (const auto& endereco : ListarEnderecosDaSaidaARP(linhas)) Exigir(endereco.size() <= texto.size());
    const std::u16string mac = ExtrairEnderecoMac(texto);
    Exigir(mac.size() <= 17 && MaiusculaDe(mac) == mac);
}

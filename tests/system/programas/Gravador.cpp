// Writes settings until it has written them all or is killed:
//   gravador_de_ajustes PREFIX FIRST COUNT NAMES LENGTH
// Setting i is PREFIX + (i modulo NAMES), its text the digits of i repeated up to LENGTH. Its own process number is
// printed first, and each number when its setting is written.
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/runtime/Utf.hpp"
#include "oryutils/system/OryUtilsRegistry.hpp"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace OryUtils;

int main(int AQuantidade, char** AArgumentos) {
    if (AQuantidade != 6) return 2;
    const std::u16string prefixo = DeUtf8(AArgumentos[1]);
    const long primeiro = std::atol(AArgumentos[2]);
    const long quantos = std::atol(AArgumentos[3]);
    const long nomes = std::atol(AArgumentos[4]);
    const auto tamanho = static_cast<std::size_t>(std::atol(AArgumentos[5]));
    std::printf("%d\n", ::getpid());
    std::fflush(stdout);
    TOryUtilsRegistro registro;
    for (long i = primeiro; i < primeiro + quantos; ++i) {
        std::u16string texto;
        while (texto.size() < tamanho) texto += InteiroParaTexto(i) + u' ';
        const auto resultado = registro.AdicionouValor(crLocalMachine, u"Software\\OryUtilsTeste", texto,
                                                       prefixo + InteiroParaTexto(i % nomes));
        if (!resultado.Status) {
            std::fprintf(stderr, "%s\n", ParaUtf8(resultado.Mensagem).c_str());
            return 1;
        }
        std::printf("%ld\n", i);
        std::fflush(stdout);
    }
    return 0;
}

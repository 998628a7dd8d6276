// Settings of a program that hold for the whole machine.
#include "oryutils/system/OryUtilsRegistry.hpp"

#include "guia/Escrever.hpp"

#include <string>

using namespace OryUtils;

int main() {
    // [ajustes]
    TOryUtilsRegistro& registro = *GOryUtilsRegistro;
    const std::u16string chave = u"Software\\Comercial Modelo";
    registro.CriarChave(crLocalMachine, u"Software", u"Comercial Modelo");
    for (const auto& resultado : {registro.AdicionouValor(crLocalMachine, chave, u"servidor-01", u"Servidor"),
                                  registro.AdicionouValor(crLocalMachine, chave, 3050, u"Porta")})
        if (!resultado.Status) Escrever(resultado.Mensagem);

    Escrever(registro.GetValorRegistro(crLocalMachine, chave, u"Servidor"));
    Escrever(registro.ExisteValor(crLocalMachine, chave, u"Porta") ? u"com porta" : u"sem porta");
    // [ajustes]

    // [falha]
    const TResultStatus falha = registro.AdicionouValor(crLocalMachine, u"Software\\Outra Empresa", 1, u"Porta");
    Escrever(falha.Status ? u"gravou" : u"não gravou: a chave não existe");
    // [falha]
}

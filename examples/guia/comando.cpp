// Other programs: what a command prints, whether a program runs.
#include "oryutils/system/OryUtilsSystem.hpp"

#include "guia/Escrever.hpp"

#include <string>

using namespace OryUtils;

int main() {
    // [comando]
    const std::u16string nome = TOryUtilsSistema::ExecutarComandoComRetorno(u"hostname");
    Escrever(nome.empty() ? u"O comando não respondeu." : u"Nome da máquina: " + nome);

    if (!TOryUtilsSistema::ExecutouComando(u"conversor-que-nao-existe -v", true, false))
        Escrever(u"O conversor não pôde ser iniciado.");
    // [comando]

    // [processo]
    const bool aberta = TOryUtilsSistema::ProcessoEstahRodando(u"FolhaDePagamento.exe", u"");
    Escrever(aberta ? u"Feche a folha de pagamento antes de atualizar." : u"A folha de pagamento está fechada.");
    // [processo]
}

// Any text as the tables of /proc: mounts, neighbours, routes.
#include "oryutils/readers/TabelaDeMontagens.hpp"
#include "oryutils/readers/TabelasDeRede.hpp"

#include "Comum.hpp"

using namespace OryUtils::Interno;

void Fuzz::Provar(TEntrada AEntrada) {
    const auto endereco = AEntrada.Valor<TEnderecoIP>();
    const std::string tabela = AEntrada.Bytes();
    const auto montagens = LerTabelaDeMontagens(tabela);
    // "/" is there even when the table does not tell of it.
    Exigir(!montagens.empty() && montagens.front().Pasta == "/");
    for (const TMontagem& montagem : montagens) Exigir(montagem.Pasta.size() <= tabela.size() + 1);
    static_cast<void>(ProcurarVizinho(tabela, endereco));
    static_cast<void>(EstahNoEnlace(tabela, endereco));
    Exigir(BuscarInterfacePadrao(tabela).size() <= tabela.size());
}

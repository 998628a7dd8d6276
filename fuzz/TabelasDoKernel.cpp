// Any text as the tables of /proc: mounts, neighbours, routes.
#include "oryutils/readers/TabelaDeMontagens.hpp"
#include "oryutils/readers/TabelasDeRede.hpp"

#include "Comum.hpp"

using namespace OryUtils::Interno;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* ABytes, std::size_t ATamanho) {
    Fuzz::TEntrada entrada(ABytes, ATamanho);
    const auto endereco = entrada.Valor<TEnderecoIP>();
    const std::string tabela = entrada.Bytes();
    const auto montagens = LerTabelaDeMontagens(tabela);
    // "/" is there even when the table does not tell of it.
    Fuzz::Exigir(!montagens.empty() && montagens.front().Pasta == "/");
    for (const TMontagem& montagem : montagens) Fuzz::Exigir(montagem.Pasta.size() <= tabela.size() + 1);
    static_cast<void>(ProcurarVizinho(tabela, endereco));
    static_cast<void>(EstahNoEnlace(tabela, endereco));
    Fuzz::Exigir(BuscarInterfacePadrao(tabela).size() <= tabela.size());
    return 0;
}

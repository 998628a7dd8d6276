#include "oryutils/platform/Terminal.hpp"
#include "oryutils/platform/VariavelDeAmbiente.hpp"

#include "Comando.hpp"
#include "operations/Operacoes.hpp"

int main(int AQuantidade, char** AArgumentos) {
    using namespace OryUtils::Interno;
    const TTerminalUtf8 terminal;
    Ory::PrepararProcesso();

    Ory::TEntradaDeFluxo entrada(TFluxo::EntradaPadrao(), "a entrada padrão");
    Ory::TSaidaDeFluxo saida(TFluxo::SaidaPadrao(), "a saída padrão");
    Ory::TSaidaDeFluxo erro(TFluxo::ErroPadrao(), "a saída de erros");
    Ory::TAmbiente ambiente{.Entrada = entrada, .Saida = saida, .Erro = erro};
    ambiente.EntradaEhTerminal = entrada.GetFluxo().EhTerminal();
    ambiente.ErroEhTerminal = erro.GetFluxo().EhTerminal();
    if (saida.GetFluxo().EhTerminal()) {
        ambiente.Cores = BuscarVariavelDeAmbiente("NO_COLOR").empty();
        ambiente.Largura = saida.GetFluxo().BuscarLarguraDoTerminal();
    }
    return Ory::Executar(BuscarArgumentos(AQuantidade, AArgumentos), ambiente);
}

#include "servico/Servico.hpp"

#include "oryutils/runtime/Utf.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "Cli.hpp"
#include "operacoes/Json.hpp"

namespace Ory {

using namespace OryUtils;

void DescreverServico(CLI::App& AComando, TPedidoDeServico& APedido) {
    CLI::App* estado = AComando.add_subcommand("estado", "mostra o estado de um serviço");
    estado->set_help_flag("-h,--ajuda,--help", "mostra esta ajuda")->group("Opções");
    estado->add_option("NOME", APedido.Nome, "nome do serviço (não o de exibição)")->required();
    estado->add_option("--maquina", APedido.Maquina, "outra máquina (só no Windows)");
    estado->add_flag("--json", APedido.Json, "resposta em JSON");
    AComando.require_subcommand(1);
    AComando.footer(
        "Saída do programa: 0 está rodando, 1 está em outro estado, 2 o estado não pôde ser lido.\n\n"
        "Exemplo:\n"
        "  ory servico estado OryEventosServer");
}

int MostrarServico(const TPedidoDeServico& APedido, TAmbiente& AAmbiente) {
    const std::u16string nome = DeUtf8(APedido.Nome);
    const std::u16string maquina = DeUtf8(APedido.Maquina);
    const TStatusServicoWindows estado = TOryUtilsSistema::BuscarStatusServico(maquina, nome);
    const std::uint32_t processo = TOryUtilsSistema::BuscarIDProcessoServico(maquina, nome);
    std::string saida;
    if (APedido.Json) {
        saida = "{\"servico\":";
        EscreverTextoJson(saida, APedido.Nome);
        saida += ",\"estado\":" + std::to_string(estado) + ",\"texto\":";
        EscreverTextoJson(saida, CVetorStatusServicoWindows[estado]);
        saida += ",\"processo\":" + std::to_string(processo) + "}\n";
    } else {
        saida = APedido.Nome + ": " + ParaUtf8(CVetorStatusServicoWindows[estado]);
        if (processo != 0) saida += ", processo " + std::to_string(processo);
        saida += "\n";
    }
    AAmbiente.Saida.Escrever(saida);
    if (estado == sswErro) return stFalha;
    return estado == sswServicoRodando ? stTudoCerto : stInvalido;
}

}  // namespace Ory

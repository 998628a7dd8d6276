#include "servico/Servico.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "Opcoes.hpp"
#include "operations/Json.hpp"

namespace Ory {

using namespace OryUtils;

void DescreverServico(TOpcoes AComando, TPedidoDeServico& APedido) {
    TOpcoes estado = AComando.SubComando("estado", "mostra o estado de um serviço");
    estado.Valor("NOME", APedido.Nome, "nome do serviço (não o de exibição)").Obrigatoria();
    estado.Valor("--maquina", APedido.Maquina, "outra máquina (só no Windows)");
    estado.Marca("--json", APedido.Json, "resposta em JSON");
    AComando.Rodape(
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

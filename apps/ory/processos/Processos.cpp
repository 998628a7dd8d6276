#include "processos/Processos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "Opcoes.hpp"
#include "Tabela.hpp"
#include "TextoNaTela.hpp"
#include "operations/Json.hpp"

#include <algorithm>
#include <vector>

namespace Ory {
namespace {

using OryUtils::TProcessoItem;

std::string EscreverEmTabela(const std::vector<const TProcessoItem*>& AProcessos) {
    constexpr std::size_t CMaiorTexto = 500;
    // Numbers stand to the right of their columns.
    std::vector<std::string> ids{"id"};
    std::vector<std::string> memorias{"memória"};
    for (const TProcessoItem* processo : AProcessos) {
        ids.push_back(std::to_string(processo->IDProcesso));
        const std::uint64_t quilobytes = processo->MemoriaUsada / 1024;
        memorias.push_back(
            OryUtils::ParaUtf8(OryUtils::FormatarNumero(u",0 KB", static_cast<OryUtils::Extended>(quilobytes))));
    }
    for (std::vector<std::string>* coluna : {&ids, &memorias}) {
        std::size_t largura = 0;
        for (const std::string& celula : *coluna) largura = std::max(largura, ContarCaracteres(celula));
        for (std::string& celula : *coluna) celula = ADireita(celula, largura);
    }
    std::vector<std::vector<std::string>> linhas{{ids[0], memorias[0], "usuário", "processo", "caminho"}};
    for (std::size_t i = 0; i < AProcessos.size(); ++i)
        linhas.push_back({ids[i + 1], memorias[i + 1], ParaATela(AProcessos[i]->Usuario, CMaiorTexto),
                          ParaATela(AProcessos[i]->Processo, CMaiorTexto),
                          ParaATela(AProcessos[i]->Caminho, CMaiorTexto)});
    return EscreverTabela(linhas, linhas.front().size());
}

std::string EscreverEmJson(const std::vector<const TProcessoItem*>& AProcessos) {
    std::string saida = "[";
    for (const TProcessoItem* processo : AProcessos) {
        if (saida.size() > 1) saida += ",\n ";
        saida += R"({"id":)" + std::to_string(processo->IDProcesso) + R"(,"usuario":)";
        EscreverTextoJson(saida, processo->Usuario);
        saida += R"(,"processo":)";
        EscreverTextoJson(saida, processo->Processo);
        saida += R"(,"caminho":)";
        EscreverTextoJson(saida, processo->Caminho);
        saida += R"(,"memoria":)" + std::to_string(processo->MemoriaUsada) + '}';
    }
    return saida + "]\n";
}

}  // namespace

void DescreverProcessos(TOpcoes AComando, TPedidoDeProcessos& APedido) {
    AComando.Valor("--usuario", APedido.Usuario, "só os desta conta (sem o domínio)");
    AComando.Marca("--json", APedido.Json, "em JSON: uma lista, com a memória em bytes");
    AComando.Rodape(
        "O que o sistema não conta de um processo de outra conta fica vazio.\n\n"
        "Exemplos:\n"
        "  ory processos\n"
        "  ory processos --usuario ana --json");
}

int MostrarProcessos(const TPedidoDeProcessos& APedido, TAmbiente& AAmbiente) {
    const auto lista = OryUtils::TOryUtilsSistema::BuscarListaDeProcessosWindows(OryUtils::DeUtf8(APedido.Usuario));
    std::vector<const TProcessoItem*> processos;
    for (int i = 0; i < lista->GetCount(); ++i) processos.push_back(&lista->GetItems(i));
    std::ranges::sort(processos, {}, &TProcessoItem::IDProcesso);
    AAmbiente.Saida.Escrever(APedido.Json ? EscreverEmJson(processos) : EscreverEmTabela(processos));
    return stTudoCerto;
}

}  // namespace Ory

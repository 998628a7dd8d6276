#include "Tabela.hpp"

#include "TextoNaTela.hpp"

#include <algorithm>

namespace Ory {

std::string EscreverTabela(const std::vector<std::vector<std::string>>& ALinhas, std::size_t AColunasDeTexto) {
    std::vector<std::size_t> larguras;
    for (const std::vector<std::string>& linha : ALinhas) {
        larguras.resize(std::max(larguras.size(), linha.size()));
        for (std::size_t i = 0; i < linha.size(); ++i) larguras[i] = std::max(larguras[i], ContarCaracteres(linha[i]));
    }
    std::string saida;
    for (const std::vector<std::string>& linha : ALinhas) {
        for (std::size_t i = 0; i < linha.size(); ++i) {
            if (i) saida += "  ";
            saida += i < AColunasDeTexto ? AEsquerda(linha[i], larguras[i]) : ADireita(linha[i], larguras[i]);
        }
        saida.erase(saida.find_last_not_of(' ') + 1);
        saida += '\n';
    }
    return saida;
}

}  // namespace Ory

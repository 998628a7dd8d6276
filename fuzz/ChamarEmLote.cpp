// Any bytes as requests of `ory chamar --lote`: each line has its answer, which is JSON.
#include "Comum.hpp"
#include "chamar/Chamadas.hpp"
#include "operations/Json.hpp"

#include <algorithm>
#include <sstream>

using namespace Ory;

void Fuzz::Provar(TEntrada AEntrada) {
    static const bool preparado = (PrepararProcesso(), true);
    Exigir(preparado);
    const std::size_t pedaco = 1 + AEntrada.Byte();
    const std::size_t maior = AEntrada.Byte() % 2 ? CMaiorRequisicao : 64;
    const std::string bytes = AEntrada.Bytes();
    std::string_view linhas = bytes;
    if (linhas.starts_with("\xEF\xBB\xBF")) linhas.remove_prefix(3);
    const auto quebras = static_cast<std::size_t>(std::ranges::count(linhas, '\n'));

    TEntradaDeTexto fluxo(bytes, pedaco);
    TSaidaDeTexto saida;
    ChamarEmLote(fluxo, saida, maior);
    std::istringstream respostas(saida.Texto);
    std::size_t quantas = 0;
    for (std::string linha; std::getline(respostas, linha); ++quantas) {
        const TJson resposta = TJson::parse(linha, nullptr, false);
        Exigir(resposta.is_object());
        Exigir(resposta.contains("resultado") ||
               (resposta.contains("erro") && resposta.contains("classe") && resposta.at("classe") != ""));
    }
    Exigir(quantas == quebras + (!linhas.empty() && !linhas.ends_with('\n')));
    Exigir(saida.Texto.empty() || saida.Texto.ends_with('\n'));
}

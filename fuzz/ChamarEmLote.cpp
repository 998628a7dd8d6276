// Any bytes as requests of `ory chamar --lote`: each line has its answer, which is JSON.
#include "Comum.hpp"
#include "chamar/Chamadas.hpp"
#include "operations/Json.hpp"

#include <algorithm>

using namespace Ory;

namespace {

struct TPreparo {
    TPreparo() { PrepararProcesso(); }
};

void Conferir(const std::string& ARespostas, std::size_t ALinhas) {
    Fuzz::Exigir(static_cast<std::size_t>(std::ranges::count(ARespostas, '\n')) == ALinhas);
    std::string_view resto = ARespostas;
    while (!resto.empty()) {
        const std::size_t fim = resto.find('\n');
        const TJson resposta = TJson::parse(resto.substr(0, fim), nullptr, false);
        Fuzz::Exigir(resposta.is_object());
        Fuzz::Exigir(resposta.contains("resultado") ||
                     (resposta.contains("erro") && resposta.contains("classe") && resposta.at("classe") != ""));
        resto.remove_prefix(fim + 1);
    }
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    static const TPreparo preparo;
    const std::size_t pedaco = 1 + AEntrada.Byte();
    const std::size_t maior = AEntrada.Byte() % 2 ? CMaiorRequisicao : 64;
    const std::string bytes = AEntrada.Bytes();
    std::string_view linhas = bytes;
    if (linhas.starts_with("\xEF\xBB\xBF")) linhas.remove_prefix(3);
    const auto quebras = static_cast<std::size_t>(std::ranges::count(linhas, '\n'));

    TEntradaDeTexto fluxo(bytes, pedaco);
    TSaidaDeTexto saida;
    ChamarEmLote(fluxo, saida, maior);
    Conferir(saida.Texto, quebras + (!linhas.empty() && !linhas.ends_with('\n')));
}

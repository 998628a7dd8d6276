// Every operation that programs may call, with arguments of any kind and number: an answer in JSON, always. Inputs are
// short (sementes/Operacoes.opcoes): a handful of calls each, since a long one would be a hundred calls that know
// nothing of one another, and cost as much.
#include "operations/Operacoes.hpp"

#include "Comum.hpp"
#include "operations/Json.hpp"

#include <algorithm>

using namespace Ory;

namespace {

/// One value, of the kind that AParametro asks for in most cases.
TJson Valor(Fuzz::TEntrada& AEntrada, std::string_view ATipo, int ANivel = 0) {
    const std::uint8_t especie = AEntrada.Byte();
    const auto texto = [&] {
        std::string bytes;
        for (std::size_t n = AEntrada.Byte() % 48; n > 0 && !AEntrada.Acabou(); --n)
            bytes += static_cast<char>(AEntrada.Byte());
        // Malformed UTF-8 cannot come in as JSON.
        std::string escrito;
        EscreverTextoJson(escrito, bytes);
        return TJson::parse(escrito);
    };
    const auto lista = [&] {
        TJson itens = TJson::array();
        for (std::size_t n = AEntrada.Byte() % 5; n > 0 && ANivel < 2; --n)
            itens.push_back(Valor(AEntrada, "texto", ANivel + 1));
        return itens;
    };
    switch (especie % 16) {
        case 0:
            return nullptr;
        case 1:
            return especie >= 128;
        case 2:
            return AEntrada.Valor<std::int16_t>();
        case 3:
            return static_cast<OryUtils::Extended>(AEntrada.Valor<float>());
        case 4:
            return lista();
        case 5:
            return texto();
        default:
            if (ATipo.find("lista") != std::string_view::npos) return lista();
            if (ATipo.find("texto") != std::string_view::npos) return texto();
            if (ATipo.find("lógico") != std::string_view::npos) return especie >= 128;
            return especie >= 128 ? TJson(AEntrada.Byte() % 12)
                                  : TJson(static_cast<OryUtils::Extended>(AEntrada.Valor<std::int32_t>()) / 100);
    }
}

struct TPreparo {
    TPreparo() {
        PrepararProcesso();
        for (const auto tabela : BuscarOperacoes())
            for (const TOperacao& operacao : tabela) Todas.push_back(&operacao);
    }
    std::vector<const TOperacao*> Todas{};
};

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    static const TPreparo preparo;
    while (!AEntrada.Acabou()) {
        const TOperacao& operacao = *preparo.Todas[AEntrada.Valor<std::uint16_t>() % preparo.Todas.size()];
        TJson argumentos = TJson::array();
        for (const TParametro& parametro : operacao.Parametros) argumentos.push_back(Valor(AEntrada, parametro.Tipo));
        const std::string requisicao =
            TJson{{"op", operacao.Nome}, {"args", argumentos}}.dump(-1, ' ', false, TJson::error_handler_t::replace);
        const TJson resposta = TJson::parse(Chamar(requisicao), nullptr, false);
        Exigir(resposta.is_object() && (resposta.contains("resultado") || resposta.contains("erro")));
        // Arguments of the right number are never an unknown request.
        if (resposta.contains("erro")) Exigir(resposta.at("classe") != "EOperacaoDesconhecida");
    }
}

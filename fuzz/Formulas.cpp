// Any text as a formula: the evaluation and the slow rewriting agree.
#include "../tests/text/FormulasReferencia.hpp"
#include "Comum.hpp"

using namespace OryUtils;

void Fuzz::Provar(TEntrada AEntrada) {
    static const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const std::uint8_t chaves = AEntrada.Byte();
    TFormulaReescrita reescrita;
    reescrita.Ajuste = static_cast<TMetodoArredondamento>(chaves % 3);
    reescrita.Casas = chaves / 4 % 8;
    TOryUtilsFormulas formula;
    formula.SetTipoAjusteValor(reescrita.Ajuste);
    formula.SetCasasDecimais(reescrita.Casas);
    for (const auto& [nome, valor] : {std::pair{u"X", 2.0L}, {u"NEG", -3.5L}, {u"GRANDE", 1.5e20L}, {u"E", 7.0L}}) {
        if (nome[0] == u'E' && chaves & 128) continue;
        reescrita.Variaveis[nome] = ExtendedParaTexto(valor);
        formula.AdicionarVariavel(nome, valor);
    }
    const std::u16string texto = AEntrada.Resto();
    const std::string valor = Descrever([&] { return formula.Calcular(texto); });
    if (texto.size() <= 256) Exigir(valor == Descrever([&] { return reescrita.Calcular(texto); }));
}

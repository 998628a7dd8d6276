#include "oryutils/characters/Utf.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include "operations/Vinculo.hpp"

#include <utility>
#include <vector>

namespace Ory {

/// Variables of a formula: an object of names with decimals.
using TVariaveisDeFormula = std::vector<std::pair<std::u16string, Extended>>;

template <>
struct TTipoJson<TVariaveisDeFormula> : TPorValor<TVariaveisDeFormula> {
    static constexpr std::string_view Nome = "objeto de decimais";
    static constexpr bool TextoCru = false;
    static TVariaveisDeFormula Ler(const TJson& AValor) {
        if (!AValor.is_object()) throw EArgumento("esperado: " + std::string(Nome));
        TVariaveisDeFormula variaveis;
        for (const auto& [nome, valor] : AValor.items())
            variaveis.emplace_back(OryUtils::DeUtf8(nome), LerDecimal(valor));
        return variaveis;
    }
};

namespace {

using C = OryUtils::TOryUtilsMatematica;

std::uint8_t Byte(int AValor) {
    if (AValor < 0 || AValor > 255) throw EArgumento("esperado: inteiro de 0 a 255");
    return static_cast<std::uint8_t>(AValor);
}

Extended ArredondarPorMetodo(Extended AValor, int AMetodo, int ACasas, int ACasasAConsiderar) {
    return C::Arredondar(AValor, static_cast<OryUtils::TMetodoArredondamento>(Byte(AMetodo)), Byte(ACasas),
                         Byte(ACasasAConsiderar));
}

Extended CalcularFormula(std::u16string_view AExpressao, const TVariaveisDeFormula& AVariaveis, int ATipoAjuste,
                         int ACasas) {
    OryUtils::TOryUtilsFormulas formula;
    formula.SetTipoAjusteValor(static_cast<OryUtils::TMetodoArredondamento>(Byte(ATipoAjuste)));
    formula.SetCasasDecimais(Byte(ACasas));
    for (const auto& [nome, valor] : AVariaveis) formula.AdicionarVariavel(nome, valor);
    return formula.Calcular(AExpressao);
}

// clang-format off
constexpr auto COperacoes = Ordenar(std::array{
    Operacao<C::BuscarValorPorExtenso>("BuscarValorPorExtenso"),
    Operacao<Sobrecarga<Extended(Extended)>(C::Arredondar)>("Arredondar"),
    Operacao<ArredondarPorMetodo>("Arredondar:metodo"),
    Operacao<C::SomarCombinacaoBinaria>("SomarCombinacaoBinaria"),
    Operacao<C::EstahNaCombinacaoBinaria>("EstahNaCombinacaoBinaria"),
    Operacao<C::ConverterCentimetrosParaPolegadas>("ConverterCentimetrosParaPolegadas"),
    Operacao<CalcularFormula>("CalcularFormula"),
});
// clang-format on
static_assert(NomesSaoUnicos(COperacoes));

}  // namespace

std::span<const TOperacao> BuscarOperacoesDeNumeros() noexcept { return COperacoes; }

}  // namespace Ory

// The same amounts whatever precision the calling program has set the processor to.
#include "comum/OutraAritmetica.hpp"

#include "oryutils/text/OryUtilsFormulas.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace OryUtils;

namespace {

/// The results of all operations that compute.
std::vector<Extended> CalcularTudo(Extended AValor, Extended AOutro) {
    using M = TOryUtilsMatematica;
    using F = TOryUtilsFormulas;
    std::vector<Extended> valores{M::ConverterCentimetrosParaPolegadas(AValor), F::GetExponencial(AOutro, 7),
                                  F::GetExponencial(AOutro, 0.5L)};
    for (const auto metodo : {maNenhum, maMatematico, maTruncamento, maParaCima, maParaBaixo})
        valores.push_back(M::Arredondar(AValor, metodo, 2, 6));
    for (const auto operacao : {F::GetSoma, F::GetSubtracao, F::GetMultiplicacao, F::GetDivisao})
        valores.push_back(operacao(AValor, AOutro));
    F formula;
    std::u16string passos = u"ABS(0-1/3)+(1/7)";
    formula.ResolverFuncoes(passos);
    formula.ResolverParenteses(passos);
    valores.push_back(formula.CalcularExpressao(passos));
    return valores;
}

}  // namespace

TEST(OutraAritmetica, OsMesmosValores) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    for (std::size_t i = 1; i < 40'000; i += 2) {
        // Many halves of a cent among them.
        const Extended valor = static_cast<Extended>(gerador() % (std::uint64_t{1} << (10 + gerador() % 50))) / 1000;
        const Extended outro = static_cast<Extended>(gerador()) / 1e17L;
        const auto calcular = [&] {
            return std::pair(CalcularTudo(valor, outro), TOryUtilsMatematica::BuscarValorPorExtenso(valor));
        };
        ASSERT_EQ(Testes::EmOutraAritmetica(i, calcular), calcular()) << valor << ' ' << outro;
    }
}

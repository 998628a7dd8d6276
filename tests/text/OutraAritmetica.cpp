// The same amounts whatever precision the calling program has set the processor to.
#include "comum/OutraAritmetica.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <random>
#include <string>

using namespace OryUtils;

namespace {

std::string Descrever(Extended AValor, Extended AOutro) {
    using M = TOryUtilsMatematica;
    using F = TOryUtilsFormulas;
    std::string texto = ParaUtf8(M::BuscarValorPorExtenso(AValor));
    const auto por = [&](Extended ANumero) {
        std::array<char, 64> hex{};
        texto.append(hex.data(), static_cast<std::size_t>(std::snprintf(hex.data(), hex.size(), " %La", ANumero)));
    };
    for (const auto metodo : {maNenhum, maMatematico, maTruncamento, maParaCima, maParaBaixo})
        por(M::Arredondar(AValor, metodo, 2, 6));
    por(M::ConverterCentimetrosParaPolegadas(AValor));
    for (const auto operacao : {F::GetSoma, F::GetSubtracao, F::GetMultiplicacao, F::GetDivisao})
        por(operacao(AValor, AOutro));
    por(F::GetExponencial(AOutro, 7));
    por(F::GetExponencial(AOutro, 0.5L));
    F formula;
    std::u16string passos = u"ABS(0-1/3)+(1/7)";
    formula.ResolverFuncoes(passos);
    formula.ResolverParenteses(passos);
    por(formula.CalcularExpressao(passos));
    return texto + ParaUtf8(passos);
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
        const std::string esperado = Descrever(valor, outro);
        ASSERT_EQ(Testes::EmOutraAritmetica(i, [&] { return Descrever(valor, outro); }), esperado);
    }
}

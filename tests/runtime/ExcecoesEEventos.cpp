#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

namespace {

TEST(Excecoes, MensagemNosDoisCodigos) {
    const OryUtils::EConvertError erro(u"não é número");
    EXPECT_EQ(erro.GetMensagem(), u"não é número");
    EXPECT_STREQ(erro.what(), "não é número");
    EXPECT_STREQ(static_cast<const OryUtils::Exception&>(erro).GetNomeDaClasse(), "EConvertError");
    EXPECT_THROW(OryUtils::Abort(), OryUtils::EAbort);
}

struct TOuvinte {
    int Soma = 0;
    void Somar(int AValor) { Soma += AValor; }
    void Tirar(int AValor) { Soma -= AValor; }
};

TEST(Evento, IgualQuandoObjetoEMetodoSaoIguais) {
    TOuvinte um;
    TOuvinte outro;
    using TEventoInteiro = OryUtils::TEvento<int>;
    const auto evento = TEventoInteiro::De<&TOuvinte::Somar>(um);
    TEventoInteiro{}(3);
    evento(5);
    EXPECT_EQ(um.Soma, 5);
    EXPECT_EQ(evento, TEventoInteiro::De<&TOuvinte::Somar>(um));
    EXPECT_NE(evento, TEventoInteiro::De<&TOuvinte::Somar>(outro));
    EXPECT_NE(evento, TEventoInteiro::De<&TOuvinte::Tirar>(um));
    EXPECT_FALSE(TEventoInteiro{});
}

}  // namespace

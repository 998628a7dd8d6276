#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {
long GAlocacoes = 0;
}

// Not inlined: the optimizer would see "new" freed by "free".
[[gnu::noinline]] void* operator new(std::size_t ATamanho) {
    ++GAlocacoes;
    if (void* memoria = std::malloc(ATamanho)) return memoria;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* AMemoria) noexcept { std::free(AMemoria); }
[[gnu::noinline]] void operator delete(void* AMemoria, std::size_t) noexcept { std::free(AMemoria); }

namespace OryUtils {
namespace {

TEST(SemAlocacao, NasRegras) {
    using R = TOryUtilsValidacoes;
    (void)FormatSettings();  // read from the system at the first use
    const std::u16string megabyte(1 << 20, u'1');
    const std::u16string pontos(1 << 20, u'.');
    const std::u16string_view textos[] = {u"",
                                          u"0",
                                          u"529.982.247-25",
                                          u"11.222.333/0001-81",
                                          u"12ABC34501DE35",
                                          u"12345678919",
                                          u"115830024985",
                                          u"3550308",
                                          u"1E3",
                                          u"isento",
                                          u"P011004243002",
                                          u"2243658792",
                                          u"12345678901234567890123456789",
                                          u"1E4000",
                                          megabyte,
                                          pontos};
    const long antes = GAlocacoes;
    int validos = 0;
    for (const std::u16string_view texto : textos) {
        validos += R::ValidouCnpjCpf(OryTypes::tiCPF, texto) + R::ValidouCnpjCpf(OryTypes::tiCNPJ, texto);
        validos += R::ValidouCnpjAlfanumerico(texto) + R::ValidouPIS(texto) + R::ValidouCNH(texto);
        validos += R::ValidouCRC(texto) + R::ValidouEmail(texto) + R::ValidouEnderecoIP(texto);
        validos += R::ValidouData(texto) + R::ValidouHora(texto) + R::ValidouDataHora(texto);
        if (texto.size() != 14) validos += R::ValidouCEI(texto);  // a letter in it would raise
        if (texto != u"1E3") validos += R::ValidouCodigoMunicipio(texto);
        for (const std::u16string_view uf : {u"AC", u"BA", u"MT", u"RS", u"SP", u"TO", u"XX"})
            validos += R::ValidouIE(texto, uf);
    }
    EXPECT_EQ(GAlocacoes, antes);
    EXPECT_GT(validos, 10);
}

}  // namespace
}  // namespace OryUtils

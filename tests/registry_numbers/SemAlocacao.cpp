#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <sstream>
#include <vector>

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
    std::vector<std::u16string> textos{u"", std::u16string(1 << 20, u'1'), std::u16string(1 << 20, u'.')};
    std::istringstream curtos(
        "0 529.982.247-25 11.222.333/0001-81 12ABC34501DE35 12345678919 115830024985 3550308 1E3 isento P011004243002 "
        "2243658792 12345678901234567890123456789 1E4000");
    for (std::string texto; curtos >> texto;) textos.push_back(DeUtf8(texto));
    const auto tipos = TOryUtilsDocumentos::BuscarTiposDocumento();
    // These get as far as a rule goes.
    std::vector<std::u16string> gerados = textos;
    for (const std::u16string& tipo : tipos) gerados.push_back(TOryUtilsDocumentos::GerarDocumento(tipo, 7, u"SP"));
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
    for (const std::u16string_view texto : gerados)
        for (const std::u16string& tipo : tipos) validos += ValidouDocumento(tipo, texto, u"SP");
    EXPECT_EQ(GAlocacoes, antes);
    EXPECT_GT(validos, 40);
}

}  // namespace
}  // namespace OryUtils

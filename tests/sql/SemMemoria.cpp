#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>

namespace {
std::size_t GMaiorPedaco = SIZE_MAX;
}

// Not inlined: the optimizer would see "new" freed by "free".
[[gnu::noinline]] void* operator new(std::size_t ATamanho) {
    if (ATamanho <= GMaiorPedaco)
        if (void* memoria = std::malloc(ATamanho)) return memoria;
    throw std::bad_alloc();
}
// The sanitizers have one of their own, whose memory this delete would not know.
[[gnu::noinline]] void* operator new(std::size_t ATamanho, const std::nothrow_t&) noexcept try {
    return ::operator new(ATamanho);
} catch (const std::bad_alloc&) {
    return nullptr;
}
[[gnu::noinline]] void operator delete(void* AMemoria) noexcept { std::free(AMemoria); }
[[gnu::noinline]] void operator delete(void* AMemoria, std::size_t) noexcept { std::free(AMemoria); }

namespace OryUtils {
namespace {

TEST(FiltroSql, FaltaDeMemoriaNaoEhErroDoFiltro) {
    for (const TCondicaoFiltro condicao : {cfIn, cfNotIn, cfIgual}) {
        TOryUtilsFiltroSql filtro(ofAnd);
        filtro.SetTabela(u"f"), filtro.SetCampo(u"x"), filtro.SetCondicao(condicao);
        filtro.SetValor(std::u16string(100'000, u'x'));
        GMaiorPedaco = 10'000;
        EXPECT_THROW(filtro.BuscarSQL(), std::bad_alloc);
        GMaiorPedaco = SIZE_MAX;
    }
}

}  // namespace
}  // namespace OryUtils

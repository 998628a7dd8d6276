#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "system/Ambiente.hpp"

#include <gtest/gtest.h>

#include <clocale>

namespace OryUtils {
namespace {

using ::Testes::TVariavel;

TEST(CodificacaoAnsi, DaLocalidade) {
    const std::tuple<const char*, std::string_view, std::u16string_view, const char*> casos[] = {
        {"C.UTF-8", "a\xC3\xA7\xFF", u"aç\xFFFD", "UTF-8, and a byte that is not"},
        {"C", "a\xC3\xA7", u"aç", "the plain locale counts as UTF-8"},
        {"xx_NAO.EXISTE", "a\xC3\xA7", u"aç", "and so does one that is not installed"},
        {"pt_BR.ISO-8859-1", "a\xE7", u"aç", "Latin 1, where that locale is installed"},
    };
    for (const auto& [nome, bytes, esperado, porque] : casos) {
        const TVariavel localidade("LC_ALL", nome);
        if (std::string_view(nome).ends_with("1") && !::newlocale(LC_CTYPE_MASK, nome, nullptr)) continue;
        EXPECT_EQ(Interno::TDecodificadorAnsi().Decodificar(bytes), esperado) << porque;
    }
}

}  // namespace
}  // namespace OryUtils

#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "system/Ambiente.hpp"

#include <gtest/gtest.h>

#include <clocale>

namespace OryUtils {
namespace {

using ::Testes::TVariavel;

TEST(CodificacaoAnsi, DaLocalidade) {
    struct TCaso {
        const char* Localidade;
        std::string_view Bytes;
        std::u16string_view Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {"C.UTF-8", "a\xC3\xA7\xFF", u"aç\xFFFD", "UTF-8, and a byte that is not"},
        {"C", "a\xC3\xA7", u"aç", "the plain locale counts as UTF-8"},
        {"xx_NAO.EXISTE", "a\xC3\xA7", u"aç", "and so does one that is not installed"},
        {"pt_BR.ISO-8859-1", "a\xE7", u"aç", "Latin 1, where that locale is installed"},
    };
    for (const TCaso& caso : casos) {
        const TVariavel localidade("LC_ALL", caso.Localidade);
        if (std::string_view(caso.Localidade).ends_with("1") && !::newlocale(LC_CTYPE_MASK, caso.Localidade, nullptr))
            continue;
        EXPECT_EQ(Interno::TDecodificadorAnsi().Decodificar(caso.Bytes), caso.Esperado) << caso.Porque;
    }
}

}  // namespace
}  // namespace OryUtils

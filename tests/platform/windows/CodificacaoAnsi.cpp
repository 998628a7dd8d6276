#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <gtest/gtest.h>

namespace OryUtils {
namespace {

TEST(CodificacaoAnsi, ComoOSistema) {
    const std::string bytes = "a\xC3\xA7\xFF\x80 \xE7";
    wchar_t texto[32];
    const int unidades = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), texto, 32);
    EXPECT_EQ(Interno::TDecodificadorAnsi().Decodificar(bytes),
              Interno::DeWide({texto, static_cast<std::size_t>(unidades)}));
}

}  // namespace
}  // namespace OryUtils

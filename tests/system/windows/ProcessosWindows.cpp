#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "system/Auxiliar.hpp"

#include <gtest/gtest.h>

namespace OryUtils {
namespace {

using Testes::Comando;

DWORD ContarAlcas() {
    DWORD quantidade = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &quantidade);
    return quantidade;
}

TEST(ProcessosWindows, NadaFicaAberto) {
    std::vector<std::u16string> linhas;
    const auto tudo = [&] {
        TOryUtilsSistema::ExecutarComandoComRetorno(Comando(u"nada"), linhas);
        TOryUtilsSistema::ExecutarComandoComRetorno(u"este-programa-nao-existe", linhas);
        TOryUtilsSistema::ExecutouComando(Comando(u"nada"), true, false);
        TOryUtilsSistema::BuscarListaDeProcessosWindows(u"");
    };
    tudo();
    const DWORD antes = ContarAlcas();
    for (int i = 0; i < 3; ++i) tudo();
    EXPECT_EQ(ContarAlcas(), antes);
}

TEST(ProcessosWindows, CodificacaoAnsiDoSistema) {
    const std::string bytes = "a\xC3\xA7\xFF\x80 \xE7";
    wchar_t texto[32];
    const int unidades = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), texto, 32);
    EXPECT_EQ(Plataforma::TDecodificadorAnsi().Decodificar(bytes),
              Plataforma::DeWide({texto, static_cast<std::size_t>(unidades)}));
}

}  // namespace
}  // namespace OryUtils

#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"

#include "comum/Acaso.hpp"

#include <gtest/gtest.h>

#include <shellapi.h>

namespace OryUtils::Interno {
namespace {

TEST(LinhaDeComandoWindows, IgualAoSistema) {
    Testes::TAcaso sorteio;
    std::uniform_int_distribution<std::size_t> letra(0, 7);
    std::uniform_int_distribution<std::size_t> tamanho(1, 14);  // of an empty line the system tells its own name
    for (int rodada = 0; rodada < 20000; ++rodada) {
        std::u16string linha(tamanho(sorteio), u'\0');
        for (char16_t& caractere : linha) caractere = u"\"\"\\\\ \tab"[letra(sorteio)];
        int quantidade = 0;
        wchar_t** partes = ::CommandLineToArgvW(ParaWide(linha), &quantidade);
        ASSERT_NE(partes, nullptr);
        std::vector<std::u16string> esperado;
        for (int i = 0; i < quantidade; ++i) esperado.push_back(DeWide(partes[i]));
        ::LocalFree(partes);
        ASSERT_EQ(SepararLinhaDeComando(linha), esperado) << ": " << std::string(linha.begin(), linha.end());
    }
}

}  // namespace
}  // namespace OryUtils::Interno

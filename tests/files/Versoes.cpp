#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace OryUtils;
using C = TOryUtilsFiles;
using TLista = std::vector<std::u16string>;

/// The four parts and, of an error, the part that is no number behind those that came before it.
std::string Dividir(std::u16string_view AVersao) {
    constexpr std::string_view CErro = " não é um valor inteiro válido";
    std::uint16_t maior = 9, menor = 9, release = 9, build = 9;
    std::string erro;
    try {
        C::DividirVersao(AVersao, maior, menor, release, build);
    } catch (const EConvertError& e) {
        erro = std::string(" ") + e.what();
        EXPECT_TRUE(erro.ends_with(CErro)) << erro;
        erro.resize(erro.size() - CErro.size());
    }
    return std::to_string(maior) + "." + std::to_string(menor) + "." + std::to_string(release) + "." +
           std::to_string(build) + erro;
}

TEST(Versoes, Dividir) {
    // The last part is the build, however many there are; blanks before a part go. Parts are numbers of 32 bits, of
    // which 16 stay; the first one that is none is told.
    constexpr std::pair<const char16_t*, const char*> CCasos[] = {
        {u"1.2.3.4", "1.2.3.4"},
        {u"1.2.3", "1.2.0.3"},
        {u"7", "0.0.0.7"},
        {u"1.2.3.", "1.2.3.0"},
        {u" \t ", "0.0.0.0"},
        {u"  1.2.3.4\r\n", "1.2.3.4"},
        {u"1. 2.3. 4", "1.2.3.4"},
        {u"65535.65536.65537.131072", "65535.0.1.0"},
        {u"-1.+2.0003.4", "65535.2.3.4"},
        {u"2147483647.0.0.-2147483648", "65535.0.0.0"},
        {u"2147483648", "0.0.0.0 '2147483648'"},
        {u"1..2", "1.0.0.0 ''"},
        {u".1", "0.0.0.0 ''"},
        {u"1.2.3.4.5", "1.2.3.0 '4.5'"},
        {u"1.x.3.4", "1.0.0.0 'x'"},
        {u"1 .2", "0.0.0.0 '1 '"},
        {u"1,2", "0.0.0.0 '1,2'"},
    };
    for (const auto& [texto, partes] : CCasos) {
        EXPECT_EQ(Dividir(texto), partes);
        if (!std::string_view(partes).ends_with('\'')) {
            EXPECT_EQ(C::CompararVersao(texto, DeUtf8(partes)), fsEqual) << partes;
        }
    }
}

TEST(Versoes, Comparar) {
    // As numbers without sign, not as texts, the greater part first; a comma is a point; a short version is all build,
    // and empty is zero.
    constexpr const char16_t* CCasos[][3] = {
        {u"1.10.0.0", u">", u"1.9.0.0"}, {u"32768.0.0.0", u">", u"1.0.0.0"},
        {u"2,0,0,0", u"=", u"2.0.0.0"},  {u"5", u"<", u"4.0.0.0"},
        {u"", u"<", u"0.0.0.1"},         {u"1.2.3.4", u"<", u"1.2.4.0"},
        {u"1.3.0.0", u">", u"1.2.9.9"},  {u"1.2.3.4", u"<", u"1.2.3.5"},
    };
    for (const auto& [a, esperado, b] : CCasos) {
        const TFileStatus resposta = *esperado == u'=' ? fsEqual : *esperado == u'>' ? fsMajor : fsMinor;
        EXPECT_EQ(C::CompararVersao(a, b), resposta) << ParaUtf8(a);
        EXPECT_EQ(CompareVersion(b, a), resposta == fsEqual ? fsEqual : resposta == fsMajor ? fsMinor : fsMajor);
    }
    try {
        C::CompararVersao(u"1", u"1.2,3,4,5");
        ADD_FAILURE();
    } catch (const EConvertError& erro) {
        EXPECT_EQ(erro.GetMensagem(), u"'4.5' não é um valor inteiro válido") << "commas have become points";
    }
}

TEST(Versoes, FormatarPelaQuantidadeDePartes) {
    const std::u16string_view CEsperados[] = {u"", u"1", u"1.2", u"1.2.3", u"1.2.3.4", u"1.2.3.4"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(C::FormatarVersaoArquivo(u"1.2.3.4", static_cast<TTipoDivisaoVersaoArquivo>(i)), CEsperados[i]);
    EXPECT_EQ(FormatarVersaoArquivo(u"1.2", tdvRelease), u"1.2");
    EXPECT_EQ(FormatarVersaoArquivo(u".x..", tdvMenor), u".x") << "characters are copied, whatever they are";
    EXPECT_EQ(FormatarVersaoArquivo(u".x", tdvMaior), u"");
    EXPECT_EQ(FormatarVersaoArquivo(u".x", tdvNenhuma), u"") << "nothing is nothing, also when the point comes first";
}

/// The sort as it has always been described.
void OrdenarPorBolhas(TLista& ALista) {
    for (std::size_t i = 0; i < ALista.size(); ++i)
        for (std::size_t j = 0; j + 1 < ALista.size() && j <= ALista.size() - 1 - i; ++j)
            if (!ALista[j + 1].empty() && C::CompararVersao(ALista[j], ALista[j + 1]) == fsMajor)
                std::swap(ALista[j], ALista[j + 1]);
}

/// The error, if any, and the list afterwards: what a caller sees.
template <typename TOrdenar>
std::string Ver(TOrdenar AOrdenar, TLista ALista) {
    std::string visto;
    try {
        AOrdenar(ALista);
    } catch (const EConvertError& erro) {
        visto = erro.what();
    }
    for (const auto& item : ALista) visto += "|" + ParaUtf8(item);
    return visto;
}

TEST(Versoes, OrdenaComoASequenciaDeTrocas) {
    const unsigned semente = std::random_device{}();
    SCOPED_TRACE(semente);
    std::mt19937 sorteio(semente);
    // Few values, so that many are equal and differ as texts; now and then, at the end, one that is no version.
    const std::u16string_view CTextos[] = {u"1",     u"0.0.0.1", u"0,0,0,1", u"1.2",     u"1.0.0.2",  u"2.0.0.0",
                                           u" ",     u"3.1",     u"10.0",    u"9.0.0.0", u"1.10.0",   u"1.9.0",
                                           u"65536", u"1.2.3.4", u"x",       u"1..2",    u"1.2.3.4.5"};
    constexpr std::size_t CBons = 14;
    int comErro = 0;
    for (int rodada = 0; rodada < 20000; ++rodada) {
        const auto vazias = sorteio() % 4;
        const bool ruins = sorteio() % 4 == 0;
        TLista lista(sorteio() % (rodada % 500 == 0 ? 300 : 12));
        for (auto& item : lista)
            if (sorteio() % 8 >= vazias) item = CTextos[sorteio() % (ruins ? std::size(CTextos) : CBons)];
        const std::string esperado = Ver(OrdenarPorBolhas, lista);
        ASSERT_EQ(Ver(C::OrdenarListaDeVersoes, lista), esperado);
        comErro += esperado.starts_with('\'');
    }
    EXPECT_GT(comErro, 500);
    EXPECT_LT(comErro, 15000);
}

/// The name without its extension, the extension, and the kinds that a file is of.
TEST(Versoes, TiposDeArquivo) {
    constexpr std::pair<const char16_t*, const char*> CCasos[] = {
        {u"a.exe", "a|.EXE exe versioned"},
        {u"C:\\x.dll\\A.Bpl", "A|.BPL bpl versioned"},
        {u"/x.exe/a.DLL", "a|.DLL dll versioned"},
        {u"C:a.exe.dat", "a.exe|.DAT dat"},
        {u".ini", "|.INI ini"},
        {u"estilo.CSS", "estilo|.CSS html"},
        {u"a.js", "a|.JS html"},
        {u"página.html", "página|.HTML html"},
        {u"  .htm", "  |.HTM"},
        {u"pasta.exe/a", "a|"},
        {u"pasta.exe\\", "|"},
        {u"a.exe ", "a|.EXE "},
        {u"a.", "a|."},
        {u"", "|"},
    };
    const std::pair<const char*, bool (*)(std::u16string_view)> tipos[] = {
        {" exe", IsAExe},
        {" bpl", IsABpl},
        {" dll", isADll},
        {" dat", isADAT},
        {" ini", isAINI},
        {" html", isAHTML},
        {" versioned", C::EhArquivoVersionado},
    };
    for (const auto& [arquivo, dito] : CCasos) {
        std::string ditos =
            ParaUtf8(C::ExtrairNomeDoArquivoSemExtensao(arquivo) + u"|" + GetExtensionFromFile(arquivo));
        for (const auto& [nome, ehDoTipo] : tipos)
            if (ehDoTipo(arquivo)) ditos += nome;
        EXPECT_EQ(ditos, dito);
    }
}

}  // namespace

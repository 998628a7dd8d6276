#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

using namespace OryUtils;
using C = TOryUtilsFiles;
using TLista = std::vector<std::u16string>;

std::array<unsigned, 4> Dividir(std::u16string_view AVersao) {
    std::uint16_t maior = 9, menor = 9, release = 9, build = 9;
    C::DividirVersao(AVersao, maior, menor, release, build);
    return {maior, menor, release, build};
}

TEST(Versoes, Dividir) {
    const struct {
        std::u16string_view Texto;
        std::array<unsigned, 4> Partes;
        const char* Porque;
    } casos[] = {
        {u"1.2.3.4", {1, 2, 3, 4}, "whole"},
        {u"1.2.3", {1, 2, 0, 3}, "the last part is the build"},
        {u"7", {0, 0, 0, 7}, "one part"},
        {u"1.2.3.", {1, 2, 3, 0}, "nothing behind the last point"},
        {u" \t ", {0, 0, 0, 0}, "blank"},
        {u"  1.2.3.4\r\n", {1, 2, 3, 4}, "blanks around"},
        {u"1. 2.3. 4", {1, 2, 3, 4}, "blanks before a number"},
        {u"65535.65536.65537.131072", {65535, 0, 1, 0}, "16 bits"},
        {u"-1.+2.0003.4", {65535, 2, 3, 4}, "signs and zeros"},
        {u"2147483647.0.0.-2147483648", {65535, 0, 0, 0}, "the largest and the smallest number"},
    };
    for (const auto& caso : casos) EXPECT_EQ(Dividir(caso.Texto), caso.Partes) << caso.Porque;
}

TEST(Versoes, ParteInvalidaDizQual) {
    const struct {
        std::u16string_view Texto, Parte;
    } casos[] = {
        {u"1..2", u""},   {u".1", u""},       {u"1.2.3.4.5", u"4.5"},         {u"1.a.3", u"a"},   {u"1 .2", u"1 "},
        {u"1,2", u"1,2"}, {u"0x10", u"0x10"}, {u"2147483648", u"2147483648"}, {u"1.2.3.٤", u"٤"}, {u"-", u"-"},
    };
    for (const auto& caso : casos) try {
            Dividir(caso.Texto);
            ADD_FAILURE() << ParaUtf8(caso.Texto);
        } catch (const EConvertError& erro) {
            EXPECT_EQ(erro.GetMensagem(), u"'" + std::u16string(caso.Parte) + u"' não é um valor inteiro válido");
        }
    std::uint16_t maior, menor = 9, release = 9, build = 9;
    EXPECT_THROW(C::DividirVersao(u"1.x.3.4", maior, menor, release, build), EConvertError);
    EXPECT_EQ((std::array<unsigned, 4>{maior, menor, release, build}), (std::array<unsigned, 4>{1, 0, 0, 0}));
    try {
        C::CompararVersao(u"1", u"1.2,3,4,5");
        ADD_FAILURE();
    } catch (const EConvertError& erro) {
        EXPECT_EQ(erro.GetMensagem(), u"'4.5' não é um valor inteiro válido") << "commas have become points";
    }
}

TEST(Versoes, Comparar) {
    const struct {
        std::u16string_view A, B;
        TFileStatus Resposta;
        const char* Porque;
    } casos[] = {
        {u"1.2.3.4", u"1.2.3.4", fsEqual, "the same"},
        {u"1.10.0.0", u"1.9.0.0", fsMajor, "as numbers, not as texts"},
        {u"2,0,0,0", u"2.0.0.0", fsEqual, "commas"},
        {u"1.2", u"1.0.0.2", fsEqual, "a short version"},
        {u"5", u"4.0.0.0", fsMinor, "a short version is all build"},
        {u"", u"0.0.0.1", fsMinor, "empty is zero"},
        {u"65536.0.0.0", u"0.0.0.0", fsEqual, "16 bits"},
        {u"32768.0.0.0", u"1.0.0.0", fsMajor, "unsigned"},
        {u"1.2.3.4", u"1.2.4.0", fsMinor, "release before build"},
        {u"1.3.0.0", u"1.2.9.9", fsMajor, "minor before release"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(C::CompararVersao(caso.A, caso.B), caso.Resposta) << caso.Porque;
        const TFileStatus oposta = caso.Resposta == fsEqual ? fsEqual : caso.Resposta == fsMajor ? fsMinor : fsMajor;
        EXPECT_EQ(CompareVersion(caso.B, caso.A), oposta) << caso.Porque;
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
    EXPECT_EQ(FormatarVersaoArquivo(u"", tdvBuild), u"");
}

/// The sort as it has always been described.
void OrdenarPorBolhas(TLista& ALista) {
    const auto quantidade = static_cast<std::ptrdiff_t>(ALista.size());
    for (std::ptrdiff_t i = 0; i < quantidade; ++i)
        for (std::ptrdiff_t j = 0; j <= quantidade - 1 - i; ++j) {
            const auto atual = static_cast<std::size_t>(j);
            if (j + 1 < quantidade && !ALista[atual + 1].empty() &&
                C::CompararVersao(ALista[atual], ALista[atual + 1]) == fsMajor)
                std::swap(ALista[atual], ALista[atual + 1]);
        }
}

/// The list afterwards and the error, if any: what a caller sees.
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
    // Few values, so that many are equal and differ as texts; now and then one that is no version.
    const std::u16string_view CTextos[] = {u"1",       u"0.0.0.1", u"0,0,0,1", u"1.2",    u"1.0.0.2",
                                           u"2.0.0.0", u" ",       u"3.1",     u"10.0",   u"9.0.0.0",
                                           u"1.10.0",  u"1.9.0",   u"65536",   u"1.2.3.4"};
    const std::u16string_view CRuins[] = {u"x", u"1..2", u"1.2.3.4.5"};
    int comErro = 0;
    int semErro = 0;
    for (int rodada = 0; rodada < 20000; ++rodada) {
        const auto vazias = sorteio() % 4;
        const bool ruins = sorteio() % 4 == 0;
        TLista lista(sorteio() % (rodada % 500 == 0 ? 300 : 12));
        for (auto& item : lista) {
            if (sorteio() % 8 < vazias) continue;
            item = ruins && sorteio() % 6 == 0 ? CRuins[sorteio() % 3] : CTextos[sorteio() % std::size(CTextos)];
        }
        const std::string esperado = Ver(OrdenarPorBolhas, lista);
        ASSERT_EQ(Ver(C::OrdenarListaDeVersoes, lista), esperado);
        (esperado.starts_with('|') || esperado.empty() ? semErro : comErro)++;
    }
    EXPECT_GT(comErro, 500);
    EXPECT_GT(semErro, 5000);
}

TEST(Versoes, TiposDeArquivo) {
    const struct {
        std::u16string_view Arquivo, Extensao;
        std::string Tipos;
    } casos[] = {
        {u"a.exe", u".EXE", "exe versioned"},
        {u"C:\\x.dll\\A.Bpl", u".BPL", "bpl versioned"},
        {u"/x.exe/a.DLL", u".DLL", "dll versioned"},
        {u"a.exe.dat", u".DAT", "dat "},
        {u".ini", u".INI", "ini "},
        {u"estilo.CSS", u".CSS", "html "},
        {u"a.js", u".JS", "html "},
        {u"página.html", u".HTML", "html "},
        {u"a.htm", u".HTM", ""},
        {u"pasta.exe/a", u"", ""},
        {u"a.exe ", u".EXE ", ""},
        {u"a.", u".", ""},
        {u"", u"", ""},
    };
    for (const auto& [arquivo, extensao, tipos] : casos) {
        EXPECT_EQ(GetExtensionFromFile(arquivo), extensao);
        std::string ditos;
        if (IsAExe(arquivo)) ditos += "exe ";
        if (IsABpl(arquivo)) ditos += "bpl ";
        if (isADll(arquivo)) ditos += "dll ";
        if (isADAT(arquivo)) ditos += "dat ";
        if (isAINI(arquivo)) ditos += "ini ";
        if (isAHTML(arquivo)) ditos += "html ";
        if (C::EhArquivoVersionado(arquivo)) ditos += "versioned";
        EXPECT_EQ(ditos, tipos) << ParaUtf8(arquivo);
    }
}

}  // namespace

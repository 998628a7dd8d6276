#include "oryutils/readers/BuscaIni.hpp"

#include "oryutils/characters/Utf.hpp"

#include "comum/Acaso.hpp"

#include <gtest/gtest.h>

namespace {

using namespace OryUtils;

std::string Buscar(std::string_view ABytes, std::size_t ABloco, std::u16string_view ASecao = u"VERSAO",
                   std::u16string_view AChave = u"Numero") {
    TBuscaIni busca(ASecao, AChave);
    for (std::size_t i = 0; i < ABytes.size(); i += ABloco) busca.Receber(ABytes.substr(i, ABloco));
    busca.Terminar();
    return busca.GetValor() ? "=" + ParaUtf8(*busca.GetValor()) : "none";
}

std::string EmUtf16(std::string_view ATexto, bool AAlto) {
    std::string bytes = AAlto ? "\xFE\xFF" : "\xFF\xFE";
    for (const char16_t c : DeUtf8(ATexto)) {
        const char baixo = static_cast<char>(c);
        const char alto = static_cast<char>(c >> 8);
        bytes += AAlto ? alto : baixo;
        bytes += AAlto ? baixo : alto;
    }
    return bytes;
}

using namespace std::string_literals;
const std::tuple<std::string, const char*, const char*> CCasos[] = {
    {"[VERSAO]\r\nNumero=1.2.3.4\r\n", "=1.2.3.4", "plain"},
    {"[VERSAO]\nNumero=1", "=1", "no line end at the end of the file"},
    {"[VERSAO]\rNumero=1\r", "=1", "line ends of old"},
    {"  [ versao ] ; comment\n\t NUMERO \t=  1 2  ", "=1 2", "letter case and blanks"},
    {"Numero=0\n[A]\nNumero=2\n[VERSAO]\nNumero=3\nNumero=4\n[VERSAO]\nNumero=5", "=3", "its section, its first line"},
    {"[VERSAO]\nOutra=1\n[A]\n[VERSAO]\nNumero=2", "=2", "the section goes on further down"},
    {"[VERSAO]\n;Numero=1\nNumeros=2\nNumero\nNumero=", "=", "comment, other key, no value, empty value"},
    {"[VERSAO]\nNumero=\" 1 \"", "= 1 ", "quotes go, what is between them stays"},
    {"[VERSAO]\nNumero='1'\"", "='1'\"", "no pair"},
    {"[VERSAO]\nNumero=\"", "=\"", "one quote is no pair"},
    {"[VERSAO]\nNumero=a=b", "=a=b", "behind the first ="},
    {"[VERSAO\nNumero=1", "none", "no section"},
    {"<!-- [VERSAO]\nNumero=1", "none", "the section does not begin the line"},
    {"", "none", "empty"},
    {"\xEF\xBB\xBF[VERSAO]\nNumero=ação", "=ação", "UTF-8 with its mark"},
    {"[VERSAO]\nNumero=ação", "=ação", "UTF-8"},
    {"[\xE7]\nx=\xE3\n[VERSAO]\nNumero=a\xE7\xE3o", "=ação", "Windows-1252"},
    {EmUtf16("[VERSAO]\r\nNumero=ação 😀\r\n", false), "=ação 😀", "UTF-16"},
    {EmUtf16("[VERSAO]\r\nNumero=ação", true), "=ação", "UTF-16, high byte first"},
    {EmUtf16("[VERSAO]\nNumero=1", false) + "\n", "=1", "half a character at the end"},
    {"\xFF"s, "none", "half a mark"},
    {"[VERSAO]\nNumero=\0 1\0"s, "=1", "zeros are blanks"},
    {"[VERSAO]\n" + std::string(200'000, 'x') + "\nNumero=1", "=1", "a long line"},
};

TEST(BuscaIni, BlocosDeQualquerTamanho) {
    for (const auto& [bytes, resposta, porque] : CCasos)
        for (const std::size_t bloco : {1, 2, 3, 5, 7, 65536})
            EXPECT_EQ(Buscar(bytes, bloco), resposta) << porque << ", blocks of " << bloco;
    EXPECT_EQ(Buscar("[VERSAO]\nNumero=" + std::string(100'000, 'x'), 4096).size(), 1 + 65536 - 7u);
}

TEST(BuscaIni, BytesQuaisquer) {
    Testes::TAcaso sorteio;
    constexpr std::string_view CPedacos[] = {"[VERSAO]", "Numero", "=", "\n", "\r",       "\"",           "'",
                                             ";",        " ",      "[", "]",  "\xFF\xFE", "\xEF\xBB\xBF", "\xC3",
                                             "\xE7",     "1"};
    for (int rodada = 0; rodada < 5000; ++rodada) {
        std::string bytes;
        for (auto n = sorteio() % 30; n > 0; --n) bytes += CPedacos[sorteio() % std::size(CPedacos)];
        EXPECT_EQ(Buscar(bytes, 1 + sorteio() % 9), Buscar(bytes, bytes.size() + 1)) << "blocks do not matter";
    }
}

}  // namespace

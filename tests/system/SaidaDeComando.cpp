#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include <gtest/gtest.h>

#include <random>

namespace OryUtils::Interno {
namespace {

using TLinhas = std::vector<std::u16string>;

// A list of strings as its text is set: line breaks of any kind end a line.
TLinhas LinhasDe(const std::u16string& ATexto) {
    TLinhas linhas;
    std::u16string linha;
    bool aberta = false;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        if (ATexto[i] == u'\n' && i > 0 && ATexto[i - 1] == u'\r') continue;
        if (ATexto[i] == u'\r' || ATexto[i] == u'\n') {
            linhas.push_back(linha);
            linha.clear();
            aberta = false;
        } else {
            linha += ATexto[i];
            aberta = true;
        }
    }
    if (aberta) linhas.push_back(linha);
    return linhas;
}

// One read of the loop, the whole text put together again.
void LerParte(TLinhas& ALinhas, std::string_view AParte) {
    AParte = AParte.substr(0, AParte.find('\0'));
    ALinhas = LinhasDe(JuntarLinhas(ALinhas) + std::u16string(Aparar(DeUtf8(AParte))));
}

std::string Linha(std::size_t ATamanho, char ALetra) { return std::string(ATamanho, ALetra); }

TEST(SaidaDeComando, OQueSePerdeNasEmendas) {
    struct TCaso {
        std::string Saida;
        TLinhas Esperado;
        const char* Porque;
    };
    const auto largo = [](const std::string& ATexto) { return std::u16string(ATexto.begin(), ATexto.end()); };
    const TCaso casos[] = {
        {"", {}, "nothing printed"},
        {" \r\n\t ", {}, "nothing but blanks"},
        {"\r\n um \r\n\n dois\rtres\n", {u"um ", u"", u" dois", u"tres"}, "only the ends of the chunk are trimmed"},
        {Linha(254, 'a') + "\nb", {largo(Linha(254, 'a') + "b")}, "a line break at the end of a chunk fuses two lines"},
        {Linha(255, 'a') + "\nb", {largo(Linha(255, 'a') + "b")}, "so does one at the beginning"},
        {Linha(254, 'a') + "\r\nb", {largo(Linha(254, 'a') + "b")}, "and one cut in two"},
        {Linha(251, 'a') + "\nb\nc", {largo(Linha(251, 'a')), u"b", u"c"}, "inside a chunk it stays"},
        {Linha(254, 'a') + "\xC3\xA7z",
         {largo(Linha(254, 'a')) + u"\xFFFD\xFFFDz"},
         "each half of a cut letter is malformed"},
        {Linha(253, 'a') + "\xC3\xA7z", {largo(Linha(253, 'a')) + u"çz"}, "a letter that just fits"},
        {std::string("um\0dois", 7) + Linha(248, 'x') + "fim", {u"umfim"}, "a chunk ends at its zero byte"},
    };
    for (const TCaso& caso : casos) EXPECT_EQ(LinhasDaSaidaDeComando(caso.Saida), caso.Esperado) << caso.Porque;
}

TEST(SaidaDeComando, IgualAoLacoDe255BytesQueJuntaTudoDeNovo) {
    const unsigned semente = std::random_device{}();
    std::mt19937 sorteio(semente);
    const auto ate = [&](std::size_t ALimite) {
        return std::uniform_int_distribution<std::size_t>(0, ALimite)(sorteio);
    };
    const std::string_view pedacos[] = {"a",  "b",  " ", " ",    "\r\n", "\n",   "\n",
                                        "\r", "\t", "ç", "\xC3", "😀",    "\xFF", std::string_view("\0", 1)};
    const TLinhas iniciais[] = {{}, {u"x"}, {u""}, {u"x", u""}, {u"x", u"", u""}, {u"x\r\ny"}, {u"x\r"}, {u"\n", u"y"}};
    for (int rodada = 0; rodada < 3000; ++rodada) {
        std::string saida;
        const bool longa = rodada % 20 == 0;  // many chunks in one read
        const std::size_t tamanho = ate(longa ? 15000 : 1500);
        const std::size_t variedade = ate(std::size(pedacos) - 1);
        const bool soBrancos = ate(9) == 0;
        while (saida.size() < tamanho) saida += soBrancos ? pedacos[2 + ate(6)] : pedacos[ate(variedade)];
        TLinhas esperado = iniciais[ate(std::size(iniciais) - 1)];
        TLinhas obtido = esperado;
        TSaidaDeComando emLista(DeUtf8);
        TSaidaDeComando emTexto(DeUtf8);
        const bool vazia = obtido.empty();
        // Several outputs with pauses in between, each handed over in pieces.
        for (std::string_view resto = saida; !resto.empty();) {
            std::string_view parte = resto.substr(0, 1 + ate(longa ? 15000 : 900));
            resto.remove_prefix(parte.size());
            for (std::size_t i = 0; i < parte.size(); i += 255) LerParte(esperado, parte.substr(i, 255));
            while (!parte.empty()) {
                const std::size_t bytes = std::min(1 + ate(longa ? 15000 : 400), parte.size());
                emLista.Receber(parte.substr(0, bytes));
                emTexto.Receber(parte.substr(0, bytes));
                parte.remove_prefix(bytes);
            }
            emLista.FecharParte();
            emTexto.FecharParte();
        }
        emLista.ContinuarLista(obtido);
        ASSERT_EQ(obtido, esperado) << "seed " << semente << ", round " << rodada;
        if (vazia) {
            ASSERT_EQ(emTexto.RetirarTexto(), JuntarLinhas(esperado)) << "seed " << semente << ", round " << rodada;
        }
    }
}

// Long enough for the text and the list to grow many times.
TEST(SaidaDeComando, UmResultadoLongoOcupaPoucoMaisQueOTexto) {
    std::string saida;
    for (int i = 0; saida.size() < 1'400'000; ++i) saida += std::to_string(i) + "\n";
    TSaidaDeComando emTexto(DeUtf8);
    emTexto.Receber(saida);
    const std::u16string texto = emTexto.RetirarTexto();
    EXPECT_LE(texto.capacity(), texto.size() + 16);
    const TLinhas linhas = LinhasDaSaidaDeComando(saida);
    EXPECT_EQ(linhas.capacity(), linhas.size());
    EXPECT_TRUE(JuntarLinhas(linhas) == texto);
}

}  // namespace
}  // namespace OryUtils::Interno

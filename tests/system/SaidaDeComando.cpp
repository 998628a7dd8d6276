#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include "comum/Acaso.hpp"

namespace OryUtils::Interno {
namespace {

using TLinhas = std::vector<std::u16string>;

// A list of strings as its text is set: line breaks of any kind end a line.
TLinhas LinhasDe(std::u16string ATexto) {
    for (std::size_t i = 0; (i = ATexto.find(u"\r\n", i)) != ATexto.npos;) ATexto.erase(i, 1);
    TLinhas linhas;
    for (std::size_t i = 0; i < ATexto.size();) {
        const std::size_t fim = std::min(ATexto.find_first_of(u"\r\n", i), ATexto.size());
        linhas.push_back(ATexto.substr(i, fim - i));
        i = fim + 1;
    }
    return linhas;
}

// One read of the loop, the whole text put together again: a read ends at its zero byte, and loses the blanks at its
// two ends, line breaks too. So the line break at an end of a read fuses two lines, and a letter cut in two is lost.
void LerParte(TLinhas& ALinhas, std::string_view AParte) {
    AParte = AParte.substr(0, AParte.find('\0'));
    ALinhas = LinhasDe(JuntarLinhas(ALinhas) + std::u16string(Aparar(DeUtf8(AParte))));
}

TEST(SaidaDeComando, IgualAoLacoDe255BytesQueJuntaTudoDeNovo) {
    Testes::TAcaso sorteio;
    const auto ate = [&](std::size_t ALimite) { return sorteio() % (ALimite + 1); };
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
        TSaidaDeComando emLista(DeUtf8), emTexto(DeUtf8);
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
        ASSERT_EQ(obtido, esperado) << "round " << rodada;
        ASSERT_TRUE(!vazia || emTexto.RetirarTexto() == JuntarLinhas(esperado)) << "round " << rodada;
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

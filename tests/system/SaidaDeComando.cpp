#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/runtime/Caracteres.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include "text/Apoio.hpp"

namespace OryUtils::Sistema {
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

TEST(SaidaDeComando, IgualAoLacoDe255BytesQueJuntaTudoDeNovo) {
    Testes::TSorteio sorteio;
    const auto ate = [&](std::size_t ALimite) {
        return static_cast<std::size_t>(sorteio.Numero(0, static_cast<int>(ALimite)));
    };
    const std::string_view pedacos[] = {"a",  "b",  " ", " ",    "\r\n", "\n",   "\n",
                                        "\r", "\t", "ç", "\xC3", "😀",    "\xFF", std::string_view("\0", 1)};
    const TLinhas iniciais[] = {{}, {u"x"}, {u""}, {u"x", u""}, {u"x", u"", u""}, {u"x\r\ny"}, {u"x\r"}, {u"\n", u"y"}};
    for (int rodada = 0; rodada < 3000; ++rodada) {
        std::string saida;
        const bool longa = rodada % 20 == 0;  // many chunks in one read
        const std::size_t tamanho = ate(longa ? 15000 : 1500);
        const std::size_t variedade = ate(std::size(pedacos) - 1);
        const bool so_brancos = ate(9) == 0;
        while (saida.size() < tamanho) saida += so_brancos ? pedacos[2 + ate(6)] : pedacos[ate(variedade)];
        TLinhas esperado = iniciais[ate(std::size(iniciais) - 1)];
        TLinhas obtido = esperado;
        TSaidaEmLista lista(obtido);
        TSaidaDeComando alvo(lista, [](std::string_view ABytes) { return DeUtf8(ABytes); });
        std::u16string texto = JuntarLinhas(obtido);
        TSaidaEmTexto destino(texto);
        TSaidaDeComando em_texto(destino, [](std::string_view ABytes) { return DeUtf8(ABytes); });
        const bool vazia = obtido.empty();
        // Several outputs with pauses in between, each handed over in pieces.
        for (std::string_view resto = saida; !resto.empty();) {
            std::string_view parte = resto.substr(0, 1 + ate(longa ? 15000 : 900));
            resto.remove_prefix(parte.size());
            for (std::size_t i = 0; i < parte.size(); i += 255) LerParte(esperado, parte.substr(i, 255));
            while (!parte.empty()) {
                const std::size_t bytes = std::min(1 + ate(longa ? 15000 : 400), parte.size());
                alvo.Receber(parte.substr(0, bytes));
                em_texto.Receber(parte.substr(0, bytes));
                parte.remove_prefix(bytes);
            }
            alvo.FecharParte();
            em_texto.FecharParte();
        }
        ASSERT_EQ(obtido, esperado) << sorteio.Semente() << ", round " << rodada;
        if (vazia) {
            ASSERT_EQ(texto, JuntarLinhas(esperado)) << sorteio.Semente() << ", round " << rodada;
        }
    }
}

}  // namespace
}  // namespace OryUtils::Sistema

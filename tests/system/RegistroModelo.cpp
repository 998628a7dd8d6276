// Random operations on the registry beside the same ones on maps.
#include "oryutils/characters/Caixa.hpp"

#include "comum/Acaso.hpp"
#include "system/RegistroDeTeste.hpp"

#include <map>

using namespace OryUtils;
using Interno::erNenhum;
using Interno::TChaveRegistro;
using Interno::TDadoRegistro;
using Teste::TRegistro;

namespace {

using TValores = std::map<std::u16string, TDadoRegistro>;  // by lower-case name
using TModelo = std::map<std::u16string, TValores>;        // by lower-case path below the test's key
using TNomes = std::vector<std::u16string>;

class TSorteio : Testes::TAcaso {
public:
    std::size_t Numero(std::size_t ALimite) { return (*this)() % ALimite; }
    template <typename T, std::size_t N>
    const T& Um(const T (&AItens)[N]) {
        return AItens[Numero(N)];
    }
    std::u16string Caminho() {
        static constexpr std::u16string_view CPartes[] = {u"a", u"A", u"b ]", u"[c", u"é", u"É;", u"-", u"\"x="};
        std::u16string caminho(Um(CPartes));
        while (Numero(3) == 0) caminho.append(u"\\").append(Um(CPartes));
        return caminho;
    }
    std::u16string Nome() {
        static constexpr std::u16string_view CNomes[] = {u"",    u"nome",  u"NOME",         u"\"", u"a\\b",
                                                         u"@",   u"x\"=y", u"[n]",          u" ",  u";",
                                                         u"ção", u"ÇÃO",   u"\xD83D\xDE00", u"-"};
        return std::u16string(Um(CNomes));
    }
    TDadoRegistro Dado() {
        static constexpr std::uint32_t CTipos[] = {0, 1, 1, 1, 2, 3, 4, 5, 7, 11, 0x1234};
        TDadoRegistro dado{Um(CTipos), {}};
        const bool texto = dado.Tipo == 1 || dado.Tipo == 2 || dado.Tipo == 7;
        for (auto i = Numero(5) == 0 ? Numero(400) : Numero(12); i > 0; --i)
            if (texto)  // most of them fit between quotes
                dado.Bytes.append({static_cast<char>(Numero(60) == 0 ? 7 : Numero(90) + 35),
                                   static_cast<char>(Numero(8) == 0 ? Numero(256) : 0)});
            else
                dado.Bytes += static_cast<char>(Numero(256));
        if (texto) dado.Bytes.append(2, '\0');
        if (dado.Tipo == Interno::tdrInteiro && Numero(4) != 0) dado.Bytes.resize(4);
        return dado;
    }
};

std::u16string NaBase(std::u16string_view ACaminho) {
    return std::u16string(Teste::CChave).append(ACaminho.empty() ? u"" : u"\\").append(ACaminho);
}

/// The key at ACaminho and all below it, as the registry tells them, added to AModelo.
void LerTudo(TModelo& AModelo, const std::u16string& ACaminho = u"") {
    TChaveRegistro chave;
    ASSERT_EQ(chave.Abrir(crLocalMachine, NaBase(ACaminho), arLeitura, false), erNenhum);
    TNomes nomes;
    ASSERT_EQ(chave.ListarValores(nomes), erNenhum);
    TValores& valores = AModelo[ACaminho];
    for (const std::u16string& nome : nomes) ASSERT_EQ(chave.Ler(nome, valores[MinusculaDe(nome)]), erNenhum);
    EXPECT_EQ(valores.size(), nomes.size()) << "no name twice";
    ASSERT_EQ(chave.ListarSubchaves(nomes), erNenhum);
    for (const std::u16string& nome : nomes) {
        const std::u16string abaixo = ACaminho + (ACaminho.empty() ? u"" : u"\\") + MinusculaDe(nome);
        EXPECT_FALSE(AModelo.contains(abaixo)) << "no key twice";
        LerTudo(AModelo, abaixo);
    }
}

TEST_F(TRegistro, OperacoesAoAcasoSaoComoAsDeUmMapa) {
    TSorteio sorteio;
    TModelo modelo{{u"", {}}};
    for (int passo = 0; passo <= 1500 && !HasFailure(); ++passo) {
        const std::u16string caminho = sorteio.Numero(6) == 0 ? u"" : sorteio.Caminho();
        const std::u16string chaveDoModelo = MinusculaDe(caminho);
        const std::u16string nome = sorteio.Nome();
        const auto acao = sorteio.Numero(10);
        const bool excluirChave = acao == 0 && !caminho.empty(), criar = !excluirChave && acao < 3;
        const std::size_t barra = caminho.rfind(u'\\');
        const std::u16string acima = barra == caminho.npos ? u"" : caminho.substr(0, barra);
        TChaveRegistro chave;
        const auto abriu = chave.Abrir(crLocalMachine, NaBase(excluirChave ? acima : caminho), arTotal, criar);
        if (excluirChave) {
            const bool excluiu = abriu == erNenhum && chave.ExcluirSubchave(caminho.substr(barra + 1)) == erNenhum;
            EXPECT_EQ(excluiu, modelo.contains(chaveDoModelo));
            std::erase_if(modelo,
                          [&](const auto& AItem) { return (AItem.first + u"\\").starts_with(chaveDoModelo + u"\\"); });
            continue;
        }
        EXPECT_EQ(abriu == erNenhum, criar || modelo.contains(chaveDoModelo));
        if (abriu != erNenhum) continue;
        for (std::size_t fim = 0; fim != chaveDoModelo.npos && criar;) {
            fim = chaveDoModelo.find(u'\\', fim + 1);
            modelo.try_emplace(chaveDoModelo.substr(0, fim));
        }
        TValores& valores = modelo[chaveDoModelo];
        if (acao % 3 == 0) {
            const bool excluiu = chave.ExcluirValor(nome) == erNenhum;
            EXPECT_EQ(excluiu, valores.erase(MinusculaDe(nome)) == 1);
        } else {
            ASSERT_EQ(chave.Gravar(nome, valores[MinusculaDe(nome)] = sorteio.Dado()), erNenhum);
        }
        if (passo % 50 == 0) {
            TModelo lido;
            LerTudo(lido);
            EXPECT_TRUE(lido == modelo) << "step " << passo;
        }
    }
}

}  // namespace

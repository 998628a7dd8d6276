// Random operations on the registry beside the same ones on maps.
#include "oryutils/characters/Caixa.hpp"

#include "system/RegistroDeTeste.hpp"

#include <algorithm>
#include <map>
#include <random>

using namespace OryUtils;
using Interno::TChaveRegistro;
using Interno::TDadoRegistro;
using Teste::TRegistro;

namespace {

using TValores = std::map<std::u16string, TDadoRegistro>;  // by lower-case name
using TModelo = std::map<std::u16string, TValores>;        // by lower-case path below the test's key

class TSorteio {
public:
    explicit TSorteio(unsigned ASemente) : FGerador(ASemente) {}
    std::size_t Numero(std::size_t ALimite) { return FGerador() % ALimite; }
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
        const std::size_t tamanho = Numero(5) == 0 ? Numero(400) : Numero(12);
        const bool texto = dado.Tipo == 1 || dado.Tipo == 2 || dado.Tipo == 7;
        if (!texto)
            for (std::size_t i = 0; i < tamanho; ++i) dado.Bytes += static_cast<char>(Numero(256));
        // Texts are terminated, and most of them fit between quotes.
        for (std::size_t i = texto ? tamanho : 0; i > 0; --i)
            dado.Bytes.append({static_cast<char>(Numero(60) == 0 ? 7 : Numero(90) + 35),
                               static_cast<char>(Numero(8) == 0 ? Numero(256) : 0)});
        if (texto) dado.Bytes.append(2, '\0');
        if (dado.Tipo == Interno::tdrInteiro && Numero(4) != 0) dado.Bytes.resize(4);
        return dado;
    }

private:
    std::mt19937 FGerador;
};

std::u16string NaBase(std::u16string_view ACaminho) {
    return std::u16string(Teste::CChave).append(ACaminho.empty() ? u"" : u"\\").append(ACaminho);
}

bool EstahAbaixo(std::u16string_view ACaminho, std::u16string_view AChave) {
    return ACaminho == AChave || ACaminho.starts_with(std::u16string(AChave) + u"\\");
}

void Comparar(const TModelo& AModelo) {
    for (const auto& [caminho, valores] : AModelo) {
        TChaveRegistro chave;
        ASSERT_EQ(chave.Abrir(crLocalMachine, NaBase(caminho), arLeitura, false), Interno::erNenhum);
        for (const auto& [nome, esperado] : valores) {
            TDadoRegistro dado;
            ASSERT_EQ(chave.Ler(nome, dado), Interno::erNenhum);
            ASSERT_EQ(dado, esperado);
        }
        const auto conferir = [](std::vector<std::u16string> ANomes, std::vector<std::u16string> AEsperados) {
            for (auto& nome : ANomes) nome = MinusculaDe(nome);
            std::sort(ANomes.begin(), ANomes.end());
            std::sort(AEsperados.begin(), AEsperados.end());
            EXPECT_EQ(ANomes, AEsperados);
        };
        std::vector<std::u16string> nomes, esperados;
        for (const auto& [nome, dado] : valores) esperados.push_back(nome);
        ASSERT_EQ(chave.ListarValores(nomes), Interno::erNenhum);
        conferir(nomes, esperados);

        esperados.clear();
        for (const auto& [outro, dados] : AModelo)
            if (!outro.empty() && outro.substr(0, outro.rfind(u'\\') == outro.npos ? 0 : outro.rfind(u'\\')) == caminho)
                esperados.push_back(outro.substr(outro.rfind(u'\\') + 1));
        ASSERT_EQ(chave.ListarSubchaves(nomes), Interno::erNenhum);
        conferir(nomes, esperados);
    }
}

TEST_F(TRegistro, OperacoesAoAcasoSaoComoAsDeUmMapa) {
    const unsigned semente = std::random_device()();
    SCOPED_TRACE(semente);
    TSorteio sorteio(semente);
    TModelo modelo{{u"", {}}};
    for (int passo = 0; passo < 1500 && !HasFailure(); ++passo) {
        const std::u16string caminho = sorteio.Numero(6) == 0 ? u"" : sorteio.Caminho();
        const std::u16string chaveDoModelo = MinusculaDe(caminho);
        const std::u16string nome = sorteio.Nome();
        const auto acao = sorteio.Numero(10);
        if (acao == 0 && !caminho.empty()) {
            const std::size_t barra = caminho.rfind(u'\\');
            TChaveRegistro acima;
            const auto abriu = acima.Abrir(
                crLocalMachine, NaBase(barra == caminho.npos ? u"" : caminho.substr(0, barra)), arTotal, false);
            const auto excluiu = abriu == Interno::erNenhum ? acima.ExcluirSubchave(caminho.substr(barra + 1)) : abriu;
            EXPECT_EQ(excluiu == Interno::erNenhum, modelo.contains(chaveDoModelo));
            std::erase_if(modelo, [&](const auto& AItem) { return EstahAbaixo(AItem.first, chaveDoModelo); });
            continue;
        }
        const bool criar = acao < 3;
        TChaveRegistro chave;
        const auto abriu = chave.Abrir(crLocalMachine, NaBase(caminho), arTotal, criar);
        EXPECT_EQ(abriu == Interno::erNenhum, criar || modelo.contains(chaveDoModelo));
        if (abriu != Interno::erNenhum) continue;
        for (std::size_t barra = 0; barra != chaveDoModelo.npos && criar;) {
            barra = chaveDoModelo.find(u'\\', barra + 1);
            modelo.try_emplace(chaveDoModelo.substr(0, barra));
        }
        TValores& valores = modelo[chaveDoModelo];
        if (acao % 3 == 0) {
            const bool excluiu = chave.ExcluirValor(nome) == Interno::erNenhum;
            EXPECT_EQ(excluiu, valores.erase(MinusculaDe(nome)) == 1);
        } else {
            const TDadoRegistro dado = sorteio.Dado();
            ASSERT_EQ(chave.Gravar(nome, dado), Interno::erNenhum);
            valores[MinusculaDe(nome)] = dado;
        }
        if (passo % 50 == 0) Comparar(modelo);
    }
    Comparar(modelo);
}

}  // namespace

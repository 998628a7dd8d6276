#include "oryutils/changes/UnOryUtilsControleAlteracoes.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

namespace OryUtils {
namespace {

constexpr std::u16string_view CExecutando = u"Executando alterações referente a versão: ";
constexpr std::u16string_view CNadaMais = u"Não existem mais métodos para executar.";

/// A data store with its version and all that the runner told, in order.
struct TDeposito {
    std::u16string Versao{};
    bool Grava = true;
    std::vector<std::string> Diario{};
    TObjeto* Remetente = nullptr;

    void Anotar(std::u16string_view A) { Diario.push_back(ParaUtf8(A)); }
    void Ler(TObjeto* ASender, std::u16string& AVersao) {
        EXPECT_EQ(ASender, Remetente);
        EXPECT_EQ(AVersao, u"") << "it comes in empty";
        AVersao = Versao;
    }
    void Gravar(TObjeto* ASender, std::u16string_view AVersao) {
        EXPECT_EQ(ASender, Remetente);
        Anotar(u"fim " + std::u16string(AVersao));
        if (Grava) Versao = AVersao;
    }
    void Status(TObjeto* ASender, std::u16string_view A) {
        EXPECT_EQ(ASender, Remetente);
        Anotar(A);
    }
    void Erro(TObjeto* ASender, std::u16string_view A) {
        EXPECT_EQ(ASender, Remetente);
        Anotar(u"erro " + std::u16string(A));
    }
    void Ligar(TOryUtilsControleAlteracoes& AControle) {
        Remetente = &AControle;
        AControle.OnBuscarVersaoAtualAlteracao = TEventoBuscarVersaoAlteracao::De<&TDeposito::Ler>(*this);
        AControle.OnExecutarMetodoAlteracao = TEventoExecutarMetodoAlteracao::De<&TDeposito::Gravar>(*this);
        AControle.OnErroExecutarMetodoAlteracao = TEventoStatusExecucao::De<&TDeposito::Erro>(*this);
        AControle.OnStatusExecucao = TEventoStatusExecucao::De<&TDeposito::Status>(*this);
    }
};

TEST(ControleAlteracoes, SemEventosTudoComVersaoExecuta) {
    TOryUtilsControleAlteracoes controle(u"2.0");
    EXPECT_EQ(controle.GetVersaoMaxima(), u"2.0");
    int executados = 0;
    controle.Adicionar(u"3.0", [&] { ++executados; });  // past the greatest one, which the runner does not consult
    controle.Adicionar(u"1.0", [&] { throw Exception(u"ninguém ouve"); });
    controle.Adicionar(u"2.0", [&] { ++executados; });
    controle.Executar();
    EXPECT_EQ(executados, 2);
    controle.Executar();
    EXPECT_EQ(executados, 4) << "nothing is recorded, so all of it runs again";
}

TEST(ControleAlteracoes, PassoQueFalhaInformaESegue) {
    struct TCaso {
        TMetodoControleAlteracao Metodo;
        std::string Mensagem;
        const char* Porque;
    };
    const TCaso casos[] = {
        {[] { throw Exception(u"tabela já existe"); }, "tabela já existe", "the library's"},
        {[] { Abort(); }, "Operação cancelada", "the silent one is caught as well"},
        {[] { throw std::runtime_error("código \xFF"); }, "código \xEF\xBF\xBD", "the language's, its bytes mended"},
        {[] { throw 5; }, "Erro desconhecido.", "no exception class at all"},
        {nullptr, "Método não atribuído.", "an empty closure has done nothing and must not count as done"},
    };
    for (const TCaso& caso : casos) {
        SCOPED_TRACE(caso.Porque);
        TDeposito deposito{.Versao = u"1"};
        TOryUtilsControleAlteracoes controle(u"");
        deposito.Ligar(controle);
        controle.Adicionar(u"2", caso.Metodo);
        controle.Adicionar(u"3", [] {});
        controle.Executar();
        const std::vector<std::string> esperado{ParaUtf8(CExecutando) + "2", "erro " + caso.Mensagem,
                                                ParaUtf8(CExecutando) + "3", "fim 3"};
        EXPECT_EQ(deposito.Diario, esperado);
        EXPECT_EQ(deposito.Versao, u"3");
    }
}

struct TOuvinteQueRecusa {
    void Ouvir(TObjeto*, std::u16string_view) { throw Exception(u"do ouvinte"); }
    void Ler(TObjeto*, std::u16string&) { throw Exception(u"do ouvinte"); }
};

TEST(ControleAlteracoes, ErroDeUmEventoChegaAoChamador) {
    using TControle = TOryUtilsControleAlteracoes;
    const struct {
        void (*Ligar)(TControle&, TOuvinteQueRecusa&);
        bool PassoFalha, PassoRoda;
    } casos[] = {
        {[](TControle& A, auto& R) {
             A.OnBuscarVersaoAtualAlteracao = TEventoBuscarVersaoAlteracao::De<&TOuvinteQueRecusa::Ler>(R);
         },
         false, false},
        {[](TControle& A, auto& R) { A.OnStatusExecucao = TEventoStatusExecucao::De<&TOuvinteQueRecusa::Ouvir>(R); },
         false, false},
        {[](TControle& A, auto& R) {
             A.OnErroExecutarMetodoAlteracao = TEventoStatusExecucao::De<&TOuvinteQueRecusa::Ouvir>(R);
         },
         true, true},
        {[](TControle& A, auto& R) {
             A.OnExecutarMetodoAlteracao = TEventoExecutarMetodoAlteracao::De<&TOuvinteQueRecusa::Ouvir>(R);
         },
         false, true},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(&caso - casos);
        TOuvinteQueRecusa recusa;
        TControle controle(u"");
        TDeposito deposito;
        deposito.Ligar(controle);
        caso.Ligar(controle, recusa);
        int rodaram = 0;
        controle.Adicionar(u"1", [&] {
            ++rodaram;
            if (caso.PassoFalha) throw Exception(u"do passo");
        });
        controle.Adicionar(u"2", [&] { rodaram += 10; });
        EXPECT_THROW(controle.Executar(), Exception);
        EXPECT_EQ(rodaram, caso.PassoRoda ? 1 : 0) << "the second step never runs";
        for (const auto& linha : deposito.Diario) EXPECT_FALSE(linha.starts_with("erro")) << linha;
    }
}

TEST(ControleAlteracoes, PassosPodemAcrescentarPassos) {
    TOryUtilsControleAlteracoes controle(u"");
    std::vector<int> executados;
    controle.Adicionar(u"1", [&] {
        // Enough for the list to move while its first step still runs.
        for (int i = 0; i < 100; ++i) controle.Adicionar(u"2", [&executados, i] { executados.push_back(i); });
        executados.push_back(-1);
    });
    controle.Executar();
    ASSERT_EQ(executados.size(), 101U);
    for (int i = -1; i < 100; ++i) EXPECT_EQ(executados[static_cast<std::size_t>(i + 1)], i);
}

TEST(ControleAlteracoes, FechamentosSaoContadosELiberados) {
    const auto capturado = std::make_shared<int>(0);
    {
        const TMetodoControleAlteracao metodo = [capturado, vezes = 0]() mutable { *capturado = ++vezes; };
        EXPECT_EQ(capturado.use_count(), 2);
        TOryUtilsControleAlteracoes controle(u"");
        for (int i = 0; i < 3; ++i) controle.Adicionar(u"1", metodo);
        TDadosControleAlteracaoIOP um{.Metodo = metodo, .Versao = u"1"}, outro;
        outro.Assign(um);
        EXPECT_EQ(um, outro);
        EXPECT_EQ(capturado.use_count(), 2) << "copies are the same closure";
        controle.Executar();
        EXPECT_EQ(*capturado, 3) << "with one state";
    }
    EXPECT_EQ(capturado.use_count(), 1);
}

// The run beside the plain words of its rule, over versions in any order.
TEST(ControleAlteracoes, QualquerOrdemPelaRegra) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(semente));
    std::mt19937 gerador(semente);
    const auto sortearVersao = [&] {
        std::u16string versao;
        // A surrogate is below U+FFFD, unit by unit.
        for (auto tamanho = gerador() % 4; tamanho > 0; --tamanho) versao += u"019.aZÃ\xFFFD\xD83D"[gerador() % 9];
        return versao;
    };
    for (int rodada = 0; rodada < 3000; ++rodada) {
        TDeposito deposito{.Versao = sortearVersao(), .Grava = gerador() % 4 != 0};
        TOryUtilsControleAlteracoes controle(sortearVersao());
        deposito.Ligar(controle);
        std::u16string versao = deposito.Versao;
        std::vector<std::string> esperado;
        bool parou = false;
        for (auto passos = gerador() % 8; passos > 0; --passos) {
            const std::u16string alvo = sortearVersao();
            const bool falha = gerador() % 4 == 0;
            controle.Adicionar(alvo, [falha] {
                if (falha) throw Exception(u"falhou");
            });
            if (parou) continue;
            // Behind: the version is a prefix, or has the smaller unit where they first differ.
            std::size_t igual = 0;
            while (igual < versao.size() && igual < alvo.size() && versao[igual] == alvo[igual]) ++igual;
            const bool atras = igual < alvo.size() && (igual == versao.size() || versao[igual] < alvo[igual]);
            parou = !atras;
            esperado.push_back(ParaUtf8(parou ? std::u16string(CNadaMais) : std::u16string(CExecutando) + alvo));
            if (parou) continue;
            esperado.push_back(falha ? "erro falhou" : "fim " + ParaUtf8(alvo));
            if (!falha && deposito.Grava) versao = alvo;
        }
        controle.Executar();
        ASSERT_EQ(deposito.Diario, esperado);
        ASSERT_EQ(deposito.Versao, versao);
    }
}

}  // namespace
}  // namespace OryUtils

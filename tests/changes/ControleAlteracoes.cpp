#include "oryutils/changes/UnOryUtilsControleAlteracoes.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>

namespace OryUtils {
namespace {

constexpr std::u16string_view CExecutando = u"Executando alterações referente a versão: ";
constexpr std::u16string_view CNadaMais = u"Não existem mais métodos para executar.";

/// A data store with its version and all that the runner told, in order. It may refuse one kind of event.
struct TDeposito {
    std::u16string Versao{};
    bool Grava = true;
    std::string Recusa{};
    std::vector<std::string> Diario{};
    TObjeto* Remetente = nullptr;

    void Receber(TObjeto* ASender, const std::string& AEvento) {
        EXPECT_EQ(ASender, Remetente);
        if (AEvento == Recusa) throw Exception(u"do ouvinte");
    }
    void Ler(TObjeto* ASender, std::u16string& AVersao) {
        Receber(ASender, "ler");
        EXPECT_EQ(AVersao, u"") << "it comes in empty";
        AVersao = Versao;
    }
    void Gravar(TObjeto* ASender, std::u16string_view AVersao) {
        Receber(ASender, "gravar");
        Diario.push_back("fim " + ParaUtf8(AVersao));
        if (Grava) Versao = AVersao;
    }
    void Status(TObjeto* ASender, std::u16string_view A) {
        Receber(ASender, "status");
        Diario.push_back(ParaUtf8(A));
    }
    void Erro(TObjeto* ASender, std::u16string_view A) {
        Receber(ASender, "erro");
        Diario.push_back("erro " + ParaUtf8(A));
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
    const struct {
        TMetodoControleAlteracao Metodo;
        std::string Mensagem;
        const char* Porque;
    } casos[] = {
        {[] { throw Exception(u"tabela já existe"); }, "tabela já existe", "the library's"},
        {[] { Abort(); }, "Operação cancelada", "the silent one is caught as well"},
        {[] { throw std::runtime_error("código \xFF"); }, "código \xEF\xBF\xBD", "the language's, its bytes mended"},
        {[] { throw 5; }, "Erro desconhecido.", "no exception class at all"},
        {nullptr, "Método não atribuído.", "an empty closure has done nothing and must not count as done"},
    };
    for (const auto& caso : casos) {
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

TEST(ControleAlteracoes, PassoQueNaoPodeSerRegistradoFalhou) {
    TDeposito deposito{.Recusa = "gravar"};
    TOryUtilsControleAlteracoes controle(u"");
    deposito.Ligar(controle);
    for (const std::u16string_view versao : {u"1", u"2"}) controle.Adicionar(versao, [] {});
    EXPECT_NO_THROW(controle.Executar());
    const std::vector<std::string> esperado{ParaUtf8(CExecutando) + "1", "erro do ouvinte", ParaUtf8(CExecutando) + "2",
                                            "erro do ouvinte"};
    EXPECT_EQ(deposito.Diario, esperado);
}

TEST(ControleAlteracoes, ErroDeUmEventoChegaAoChamador) {
    const struct {
        const char* Recusa;
        bool PassoFalha;
        int Rodaram;
    } casos[] = {{"ler", false, 0}, {"status", false, 0}, {"erro", true, 1}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Recusa);
        TDeposito deposito{.Recusa = caso.Recusa};
        TOryUtilsControleAlteracoes controle(u"");
        deposito.Ligar(controle);
        int rodaram = 0;
        controle.Adicionar(u"1", [&] {
            ++rodaram;
            if (caso.PassoFalha) throw Exception(u"do passo");
        });
        controle.Adicionar(u"2", [&] { rodaram += 10; });
        EXPECT_THROW(controle.Executar(), Exception);
        EXPECT_EQ(rodaram, caso.Rodaram) << "the second step never runs";
        for (const auto& linha : deposito.Diario) EXPECT_FALSE(linha.starts_with("erro")) << linha;
    }
}

TEST(ControleAlteracoes, PassosPodemAcrescentarPassos) {
    TOryUtilsControleAlteracoes controle(u"");
    std::string executados, esperado = "first";
    controle.Adicionar(u"1", [&] {
        // Enough for the list to move while its first step still runs.
        for (int i = 0; i < 100; ++i)
            controle.Adicionar(u"2", [&executados, i] { executados += " " + std::to_string(i); });
        executados += "first";
    });
    controle.Executar();
    for (int i = 0; i < 100; ++i) esperado += " " + std::to_string(i);
    EXPECT_EQ(executados, esperado);
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
            // Unit by unit: the version is a prefix, or has the smaller unit where they first differ.
            parou = !std::lexicographical_compare(versao.begin(), versao.end(), alvo.begin(), alvo.end());
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

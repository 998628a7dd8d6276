// What is done over and over leaves nothing open behind.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/system/OryUtilsRegistry.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "resistencia/Dialogos.hpp"
#include "resistencia/Quantidade.hpp"
#include "resistencia/Recursos.hpp"
#include "sistema/Sistema.hpp"
#include "system/Auxiliar.hpp"
#include "ui/ToolkitRoteirizado.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <iostream>

namespace OryUtils {
namespace {

using namespace Testes;
using S = TOryUtilsSistema;

TEST(Resistencia, ComandosComSaida) {
    const int vezes = Quantidade(300, 100'000);
    std::vector<std::u16string> linhas;
    const auto rodar = [&](int AVez) {
        linhas.clear();
        const std::u16string texto = DeUtf8(std::to_string(AVez));
        S::ExecutarComandoComRetorno(Comando(u"argumentos " + texto), linhas);
        ASSERT_EQ(linhas, std::vector{u"[" + texto + u"]"});
    };
    rodar(0);
    const TRecursos antes = BuscarRecursos();
    for (int i = 1; i <= vezes && !testing::Test::HasFatalFailure(); ++i) rodar(i);
    ExigirSemCrescimento(antes, "commands");
    EXPECT_EQ(ContarFilhosMortos(), 0);
    std::cout << vezes << " commands\n";
}

TEST(Resistencia, OperacoesDoSistema) {
    const int vezes = Quantidade(30, 100);
    const TPastaTemporaria pasta;
    const std::u16string eu = ProgramaAuxiliar().u16string();
    struct TCaso {
        const char* Nome;
        std::function<void()> Fazer;
    };
    const TCaso casos[] = {
        {"ExecutouComando", [] { S::ExecutouComando(Comando(u"nada"), true, false); }},
        {"ExecutarComandoComRetorno of no program", [] { S::ExecutarComandoComRetorno(u"este-programa-nao-existe"); }},
        {"BuscarListaDeProcessosWindows", [] { S::BuscarListaDeProcessosWindows(u""); }},
        {"ProcessoEstahRodando", [] { S::ProcessoEstahRodando(u"este-programa-nao-existe", u""); }},
        {"FinalizouProcesso", [] { S::FinalizouProcesso(u"este-programa-nao-existe"); }},
        {"BuscarUsuarioEDominioDoProcesso",
         [] {
             std::u16string usuario, dominio;
             S::BuscarUsuarioEDominioDoProcesso(4, usuario, dominio);
         }},
        {"BuscarCaminhoArquivoPeloIDProcesso", [] { S::BuscarCaminhoArquivoPeloIDProcesso(4); }},
        {"BuscarMemoriaUsadaProcesso", [] { S::BuscarMemoriaUsadaProcesso(u"testes_resistencia"); }},
        {"LiberarMemoriaResidualProcesso", [] { S::LiberarMemoriaResidualProcesso(); }},
        {"EstahRodandoComoAdministrador", [] { S::EstahRodandoComoAdministrador(); }},
        {"all questions of ory sistema", [] { Ory::TirarRetrato(); }},
        {"BuscarIPPeloNomeComputador", [] { S::BuscarIPPeloNomeComputador(u"127.0.0.1"); }},
        {"BuscarEnderecoMac2", [] { S::BuscarEnderecoMac2(u"127.0.0.1"); }},
        {"EhIPLocal", [] { S::EhIPLocal(u"127.0.0.1", false); }},
        {"BuscarTempoInatividadeSistema", [] { S::BuscarTempoInatividadeSistema(); }},
        {"TeclaEstahPressionada", [] { S::TeclaEstahPressionada(16); }},
        {"BuscarVersaoArquivo", [&] { TOryUtilsFiles::BuscarVersaoArquivo(eu); }},
        {"ExisteDiretorio", [&] { TOryUtilsFiles::ExisteDiretorio(pasta.Nome(u"")); }},
        {"TRegistry",
         [] {
             TRegistry registro;
             registro.SetRootKey(crCurrentUser);
             registro.OpenKey(u"Software\\OryUtilsNaoExiste", false);
         }},
        {"BuscarStatusServico", [] { S::BuscarStatusServico(u"", u"este-servico-nao-existe"); }},
        {"Log",
         [&] {
             TOryUtilsArquivoLog log(pasta.Nome(u"x.log"));
             log.Adicionar(u"linha", clBlue);
             log.FinalizarLog();
         }},
    };
    for (const TCaso& caso : casos) {
        caso.Fazer();
        const TRecursos antes = BuscarRecursos();
        for (int i = 0; i < vezes; ++i) caso.Fazer();
        ExigirSemCrescimento(antes, caso.Nome);
    }
    EXPECT_EQ(ContarFilhosMortos(), 0);
}

/// Every kind of dialog, over forms that nobody sees.
TEST(Resistencia, Dialogos) {
    const int vezes = Quantidade(1'000, 10'000);
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    TToolkitRoteirizado toolkit;
    TOryUtilsDialogs dialogos;
    MostrarSemCrescimento(vezes, [&](int AVez) {
        MostrarDialogo(dialogos, AVez, false);
        toolkit.Titulos.clear();
        ASSERT_TRUE(toolkit.Temporizadores.empty()) << "dialog " << AVez;
    });
}

}  // namespace
}  // namespace OryUtils

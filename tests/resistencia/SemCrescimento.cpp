// What is done over and over leaves nothing open behind, and takes no more memory.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/system/OryUtilsRegistry.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "conferir/Conferencia.hpp"
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
    const auto rodar = [](int AVez) {
        std::vector<std::u16string> linhas;
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
    const std::pair<const char*, std::function<void()>> casos[] = {
        {"ExecutouComando", [] { S::ExecutouComando(Comando(u"nada"), true, false); }},
        {"ExecutarComandoComRetorno of no program", [] { S::ExecutarComandoComRetorno(u"este-programa-nao-existe"); }},
        {"BuscarListaDeProcessosWindows", [] { S::BuscarListaDeProcessosWindows(u""); }},
        {"ProcessoEstahRodando", [] { S::ProcessoEstahRodando(u"este-programa-nao-existe", u""); }},
        {"FinalizouProcesso", [] { S::FinalizouProcesso(u"este-programa-nao-existe"); }},
        {"BuscarUsuarioEDominioDoProcesso",
         [usuario = std::u16string(), dominio = std::u16string()]() mutable {
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
        {"TRegistry", [] { TRegistry().OpenKey(u"Software\\OryUtilsNaoExiste", false); }},
        {"BuscarStatusServico", [] { S::BuscarStatusServico(u"", u"este-servico-nao-existe"); }},
        {"Log",
         [&] {
             TOryUtilsArquivoLog log(pasta.Nome(u"x.log"));
             log.Adicionar(u"linha", clBlue);
             log.FinalizarLog();
         }},
    };
    for (const auto& [nome, fazer] : casos) {
        fazer();
        const TRecursos antes = BuscarRecursos();
        for (int i = 0; i < vezes; ++i) fazer();
        ExigirSemCrescimento(antes, nome);
    }
    EXPECT_EQ(ContarFilhosMortos(), 0);
}

constexpr int CLinhasDoBloco = 1000;

/// The rows of some customers, over and over; looks at the memory of the process meanwhile.
class TClientes final : public Ory::TEntrada {
public:
    explicit TClientes(int ALinhas) : FBlocos(ALinhas / CLinhasDoBloco) {
        for (int i = 0; i < CLinhasDoBloco; ++i) {
            FBloco += "Cliente " + std::to_string(i) + (i % 3 ? ";11222333000181;" : ";\"11.222.333/0001-81\";");
            FBloco += i == 7 ? "52998224720" : i % 5 ? "52998224725" : "529.982.247-25";
            FBloco += ";SP;110.042.490.114\n";
        }
    }
    long GetPicoKiB() const noexcept { return FPico; }

    std::size_t Ler(std::span<char> ADestino) override {
        if (FResto.empty() && FBlocos-- > 0) {
            FResto = FBloco;
            FPico = std::max(FPico, BuscarMemoriaKiB());
        }
        const std::size_t lidos = FResto.copy(ADestino.data(), ADestino.size());
        FResto.remove_prefix(lidos);
        return lidos;
    }

private:
    int FBlocos;
    std::string FBloco{};
    std::string_view FResto = "nome;cnpj;cpf;uf;ie\n";
    long FPico = 0;
};

TEST(Resistencia, ConferirEmMemoriaConstante) {
    const int linhas = Quantidade(200'000, 10'000'000);
    TClientes poucos(linhas / 10);
    TClientes muitos(linhas);
    Ory::ConferirCsv(poucos, nullptr, {});
    const Ory::TResumo resumo = Ory::ConferirCsv(muitos, nullptr, {});
    EXPECT_EQ(resumo.Registros, linhas);
    ASSERT_EQ(resumo.Colunas.size(), 3u);
    EXPECT_EQ(resumo.Colunas[0].Validos, linhas);
    EXPECT_EQ(resumo.Colunas[1].Invalidos, linhas / CLinhasDoBloco);
    EXPECT_EQ(resumo.Colunas[2].Validos, linhas);
    std::cout << linhas / 10 << " rows: " << poucos.GetPicoKiB() << " KiB at the most; " << linhas
              << " rows: " << muitos.GetPicoKiB() << " KiB\n";
    EXPECT_LE(muitos.GetPicoKiB(), poucos.GetPicoKiB() + 1024) << "ten times the rows";
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

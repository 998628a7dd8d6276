#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include "system/Ambiente.hpp"
#include "system/Auxiliar.hpp"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <thread>

namespace OryUtils {
namespace {

using Testes::Comando;
using Testes::EntreAspas;
using Testes::TAoProcessarMensagens;
using Testes::TDorminhoco;
using Testes::TPastaTemporaria;
using TLinhas = std::vector<std::u16string>;

TLinhas Executar(std::u16string_view ALinha) {
    TLinhas linhas;
    TOryUtilsSistema::ExecutarComandoComRetorno(ALinha, linhas);
    return linhas;
}

TEST(Comandos, CadaSaidaComoOComandoATermina) {
    const std::tuple<std::u16string_view, TLinhas, const char*> casos[] = {
        {u"nada", {u"ja havia"}, "nothing printed leaves the list"},
        {u"argumentos a b", {u"ja havia[a]", u"[b]"}, "the output goes on with the text of the list"},
        {uR"(argumentos "dois tres" "" a\b "c\\" d\"e)",
         {u"ja havia[dois tres]", u"[]", u"[a\\b]", u"[c\\]", u"[d\"e]"},
         "arguments come as written"},
        {u"erro falhou", {u"ja haviafalhou"}, "standard error is captured too"},
        {u"morrer", {u"ja haviaantes"}, "a command that is killed gives what it printed before"},
    };
    for (const auto& [argumentos, esperado, porque] : casos) {
        TLinhas linhas{u"ja havia"};
        TOryUtilsSistema::ExecutarComandoComRetorno(Comando(argumentos), linhas);
        EXPECT_EQ(linhas, esperado) << porque;
    }
    EXPECT_EQ(ExecutarComandoComRetorno(Comando(u"argumentos a b")), u"[a]\r\n[b]") << "the form with one text";
    const std::u16string herdado = ExecutarComandoComRetorno(Comando(u"herdar"));
    EXPECT_TRUE(herdado.starts_with(u"pai")) << "of the command itself";
    EXPECT_TRUE(herdado.ends_with(u"filho")) << "printed after the command had ended, by what inherited the output";
}

TEST(Comandos, OComandoHerdaAEntradaESoEla) {
    // The port is free again while the command lives.
    const TPastaTemporaria pasta;
    auto escuta = std::make_unique<::Testes::TEscuta>(0);
    const std::uint16_t porta = escuta->GetPorta();
    ASSERT_NE(porta, 0);
    std::uint16_t novaPorta = 0;
    {
        const TAoProcessarMensagens aoProcessar([&] {
            if (!escuta || !std::filesystem::exists(pasta / "a")) return;
            escuta.reset();
            novaPorta = ::Testes::TEscuta(porta).GetPorta();
            std::ofstream(pasta / "siga") << "sim";
        });
        Executar(Comando(u"parar " + EntreAspas(pasta / "a") + u" " + EntreAspas(pasta / "siga")));
    }
    EXPECT_EQ(novaPorta, porta);

    pasta.Gravar(u"entrada", "lida");
    ASSERT_TRUE(std::freopen((pasta / "entrada").string().c_str(), "r", stdin));
    EXPECT_EQ(Executar(Comando(u"ler")), TLinhas{u"lida"});
    ASSERT_TRUE(std::freopen(::Testes::CArquivoVazio, "r", stdin));
    EXPECT_EQ(Executar(Comando(u"ler")), TLinhas{});
}

// A pipe that a command of another thread had inherited would have a writer as long as that one lives.
TEST(Comandos, ThreadsQueIniciamComandosNaoSeEncontram) {
    using Interno::TProcessoCapturado;
    const TPastaTemporaria pasta;
    const std::u16string longo = Comando(u"parar " + EntreAspas(pasta / "a") + u" " + EntreAspas(pasta / "siga"));
    std::vector<std::unique_ptr<TProcessoCapturado>> longos(20), curtos(20);
    {
        const auto iniciar = [](std::vector<std::unique_ptr<TProcessoCapturado>>& AProcessos,
                                const std::u16string& ALinha) {
            for (auto& processo : AProcessos) processo = TProcessoCapturado::Iniciar(ALinha);
        };
        const std::jthread deLongos(iniciar, std::ref(longos), longo);
        const std::jthread deCurtos(iniciar, std::ref(curtos), Comando(u"nada"));
    }
    int abertos = 0;
    for (const auto& curto : curtos) {
        ASSERT_TRUE(curto);
        Interno::EsperarProcesso(curto->GetProcesso(), Interno::CEsperaSemLimite, false);
        std::array<char, 16> bloco{};
        std::size_t lidos = 0;
        abertos += curto->Ler(bloco, std::chrono::milliseconds(0), lidos) != TProcessoCapturado::lcFim;
    }
    EXPECT_EQ(abertos, 0);
    std::ofstream(pasta / "siga") << "sim";
    for (const auto& processo : longos)
        Interno::EsperarProcesso(processo->GetProcesso(), Interno::CEsperaSemLimite, false);
}

TEST(Comandos, OQueNaoIniciaDeixaALista) {
    const std::u16string comZero = Comando(u"argumentos a") + u'\0' + u"b";
    for (const std::u16string& linha : {std::u16string(u"este-programa-nao-existe -a"), std::u16string(),
                                        std::u16string(u"   "), comZero, EntreAspas(ORY_PASTA_DO_PROJETO)}) {
        TLinhas linhas{u"ja havia", u""};
        TOryUtilsSistema::ExecutarComandoComRetorno(linha, linhas);
        EXPECT_EQ(linhas, (TLinhas{u"ja havia", u""}));
        EXPECT_EQ(TOryUtilsSistema::ExecutarComandoComRetorno(linha), u"");
        EXPECT_FALSE(TOryUtilsSistema::ExecutouComando(linha, true, false));
    }
}

TEST(Comandos, UmComandoMudoNaoEhUmQueNaoInicia) {
    TLinhas linhas{u"ja havia"};
    EXPECT_FALSE(TOryUtilsSistema::ExecutouComandoComRetorno(u"este-programa-nao-existe", linhas));
    EXPECT_TRUE(TOryUtilsSistema::ExecutouComandoComRetorno(Comando(u"nada"), linhas));
    const TPastaTemporaria pasta;
    EXPECT_FALSE(
        TOryUtilsSistema::ExecutouComandoComRetorno(Comando(u"criar " + EntreAspas(pasta / "a")), linhas, 4242))
        << "no such code page";
    EXPECT_FALSE(std::filesystem::exists(pasta / "a")) << "nothing ran";
    EXPECT_EQ(linhas, TLinhas{u"ja havia"});
}

TEST(Comandos, ASaidaPorOutraPaginaDeCodigo) {
    const std::tuple<std::uint32_t, std::string_view, std::u16string> casos[] = {
        {850, "a\x87\xC6o", u"ação"},  {437, "a\x87\xE0", u"açα"},
        {1252, "a\xE7\xE3o", u"ação"}, {CPaginaUtf8, "a\xC3\xA7\xC3\xA3o", u"ação"},
        {CPaginaOem, "cao", u"cao"},
    };
    const TPastaTemporaria pasta;
    for (const auto& [pagina, bytes, texto] : casos) {
        TLinhas linhas;
        const std::u16string comando = Comando(u"arquivo " + EntreAspas(pasta.Gravar(u"saida", bytes)));
        EXPECT_TRUE(TOryUtilsSistema::ExecutouComandoComRetorno(comando, linhas, pagina)) << pagina;
        EXPECT_EQ(linhas, TLinhas{texto}) << pagina;
    }
}

// The program prints at once, so the chunks are those of the bytes; broken letters are decoded chunk by chunk.
TEST(Comandos, CemMegabytes) {
    std::string bytes;
    while (bytes.size() < 100'000'000)
        bytes += std::string(bytes.size() % 999, static_cast<char>('a' + bytes.size() % 26)) +
                 "\r\nação\xFF\x80\xC3 \xE2\x82 😀\r\n";
    std::u16string esperado;
    Interno::TDecodificadorAnsi decodificador;
    for (std::size_t i = 0; i < bytes.size(); i += 255)
        esperado += Aparar(decodificador.Decodificar(std::string_view(bytes).substr(i, 255)));
    const TPastaTemporaria pasta;
    const std::u16string comando = Comando(u"arquivo " + EntreAspas(pasta.Gravar(u"saida", bytes)));
    EXPECT_TRUE(TOryUtilsSistema::ExecutarComandoComRetorno(comando) == esperado);
    EXPECT_TRUE(Interno::JuntarLinhas(Executar(comando)) == esperado);
}

TEST(Comandos, AsMensagensFluemEUmaPausaFechaAParte) {
    const TPastaTemporaria pasta;
    int vezes = 0;
    // The program has printed its first word once the file "a" exists, and goes on once the file "siga" does. The loop
    // has read the word by the second call that sees "a"; a call 150 ms later is behind the pause, and between that one
    // and the next the loop has closed the chunk.
    int depoisDaPalavra = 0;
    int depoisDaPausa = 0;
    std::chrono::steady_clock::time_point lida;
    const TAoProcessarMensagens aoProcessar([&] {
        ++vezes;
        if (!std::filesystem::exists(pasta / "a")) return;
        if (++depoisDaPalavra == 2) lida = std::chrono::steady_clock::now();
        if (depoisDaPalavra < 2 || std::chrono::steady_clock::now() - lida < std::chrono::milliseconds(150)) return;
        if (++depoisDaPausa == 2) std::ofstream(pasta / "siga") << "sim";
    });
    ::Testes::EnviarMensagemAEstaThread();  // and nobody ever takes it
    EXPECT_EQ(Executar(Comando(u"parar " + EntreAspas(pasta / "a") + u" " + EntreAspas(pasta / "siga"))),
              TLinhas{u"ab"})
        << "the line break was at the end of what was read at once";
    EXPECT_GE(vezes, 2);
    EXPECT_LT(vezes, 500) << "it waits between two looks";
}

TEST(Comandos, DormirDeixaAsMensagensFluir) {
    int vezes = 0;
    const TAoProcessarMensagens aoProcessar([&] { ++vezes; });
    TOryUtilsSistema::Dormir(0);
    EXPECT_EQ(vezes, 0);
    TOryUtilsSistema::Dormir(60);  // returns
}

TEST(Comandos, ProcessoCriadoEAguardado) {
    const TPastaTemporaria pasta;
    ASSERT_TRUE(ExecutarComando(Comando(u"criar " + EntreAspas(pasta / "um")), true, false));
    EXPECT_TRUE(std::filesystem::exists(pasta / "um")) << "it has ended when the wait is over";

    TOryUtilsSystemDadosCriacaoProcessoIOP dados;
    const TDorminhoco dorminhoco;
    dados.Comando = Comando(dorminhoco.Argumentos());
    dados.AguardarProcesso = true;
    dados.TempoLimiteProcesso = 1;
    TOryUtilsSystemDadosRetornoProcessoIOP avisado;
    dados.MetodoRetornoCriacaoProcesso = [&](const TOryUtilsSystemDadosRetornoProcessoIOP& ARetorno) {
        avisado = ARetorno;
    };
    const auto retorno = TOryUtilsSistema::CriarProcesso(dados);
    ASSERT_TRUE(retorno->CriouProcesso);
    EXPECT_EQ(*retorno, avisado);
    EXPECT_NE(dados.IDProcesso, 0U);
    EXPECT_EQ(retorno->InformacaoProcesso.IDProcesso, dados.IDProcesso);
    EXPECT_NE(retorno->InformacaoProcesso.Processo, 0);
    EXPECT_TRUE(TOryUtilsSistema::ProcessoEstahRodando(dados.IDProcesso, u"")) << "the limit of the wait has passed";
    dorminhoco.Esperar();
    EXPECT_TRUE(TOryUtilsSistema::FinalizouProcessoPeloPID(dados.IDProcesso).Status);

    dados.Comando = u"este-programa-nao-existe";
    EXPECT_FALSE(TOryUtilsSistema::CriarProcesso(dados)->CriouProcesso);
    EXPECT_FALSE(avisado.CriouProcesso) << "a failure is told too";
}

TEST(Comandos, ModoAdministradorDesligado) {
    static bool desabilitadas = false;
    TOryUtilsSistema sistema;
    EXPECT_TRUE(sistema.GetAtivarExecucaoComandosModoAdministrador());
    sistema.SetAtivarExecucaoComandosModoAdministrador(false);
    const TPastaTemporaria pasta;
    bool bloqueadas = false;
    // Messages never end: each one that is processed brings the next.
    const TAoProcessarMensagens aoProcessar([&] {
        bloqueadas |= desabilitadas;
        ::Testes::EnviarMensagemAEstaThread();
    });
    CosturaInterface().DesabilitarJanelas = [] {
        desabilitadas = true;
        return std::shared_ptr<void>(&desabilitadas, [](void*) { desabilitadas = false; });
    };
    TOryUtilsSystemDadosComandoModoAdministradorIOP dados;
    dados.Aplicacao = Testes::ProgramaAuxiliar().u16string();
    dados.Parametros = u"criar \"um arquivo\"";
    dados.Diretorio = pasta.Caminho().u16string();
    dados.BloquearTela = true;
    std::uint32_t id = 0;
    dados.MetodoRetornoCriacaoProcesso = [&](const TOryUtilsSystemDadosRetornoProcessoModoAdminIOP& ARetorno) {
        EXPECT_TRUE(ARetorno.CriouProcesso);
        EXPECT_FALSE(desabilitadas) << "it is told before the wait";
        id = ARetorno.IDProcesso;
        ::Testes::EnviarMensagemAEstaThread();
    };
    EXPECT_TRUE(sistema.ExecutouComandoModoAdministrador(dados));
    EXPECT_TRUE(std::filesystem::exists(pasta / "um arquivo")) << "waited for, in the working folder";
    EXPECT_FALSE(desabilitadas);
    EXPECT_NE(id, 0U);
    EXPECT_EQ(dados.IDProcesso, id);

    EXPECT_TRUE(sistema.ExecutouComandoModoAdministrador(nullptr, dados.Aplicacao, u"criar outro",
                                                         pasta.Caminho().u16string(), true));
    EXPECT_TRUE(std::filesystem::exists(pasta / "outro"));

    const TDorminhoco dorminhoco;
    dados.Parametros = dorminhoco.Argumentos();
    dados.TempoLimiteProcesso = 30;
    EXPECT_TRUE(sistema.ExecutouComandoModoAdministrador(dados));
    EXPECT_TRUE(bloqueadas) << "while it waited";
    EXPECT_FALSE(desabilitadas) << "the limit gives the windows back";
    EXPECT_TRUE(TOryUtilsSistema::ProcessoEstahRodando(dados.IDProcesso, u"")) << "the limit ended the wait";
    dorminhoco.Esperar();
    EXPECT_TRUE(TOryUtilsSistema::FinalizouProcessoPeloPID(dados.IDProcesso).Status);
}

}  // namespace
}  // namespace OryUtils

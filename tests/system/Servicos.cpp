// The decisions of the service and firewall operations, with a service manager and a command runner that do as told.
#include "oryutils/system/interno/Servicos.hpp"

#include "oryutils/system/interno/ComandosServico.hpp"
#include "oryutils/system/interno/Firewall.hpp"

#include "system/ProgramasFalsos.hpp"

#include <gtest/gtest.h>

#include <deque>

using namespace OryUtils;
using namespace Interno;

namespace {

std::u16string Estrelas() { return std::u16string(79, u'*'); }
constexpr std::u16string_view CConselho = u"\r\n\r\nReinicie a aplicação em modo administrador e tente novamente.";

/// Records the command and prints AResposta.
TExecutorDeComando Responder(std::u16string& AComando, std::u16string AResposta) {
    return [&AComando, AResposta](std::u16string_view ALinha, std::vector<std::u16string>& ASaida) {
        AComando = ALinha;
        if (!AResposta.empty()) ASaida.push_back(AResposta);
    };
}

TEST(ConfiguracaoDeServico, ComandosEMensagens) {
    std::u16string comando;
    struct TCaso {
        std::u16string Comando, Inicio;
        TResultStatus (*Configurar)(const TExecutorDeComando&);
    };
    const TCaso casos[] = {
        {u"sc failure \"Ory\" actions= restart/0/restart/0// reset= 240",
         u"Não foi possível configurar a ação padrão de recuperação do serviço << Ory >>.\r\n\r\n",
         [](const TExecutorDeComando& e) { return Interno::ConfigurouAcaoPadraoRecuperacaoServico(e, u"Ory"); }},
        {u"sc config Ory depend= Firebird",
         u"Não foi possível configurar o serviço: << Firebird >>\r\n\r\ncomo dependência do serviço: << Ory "
         u">>\r\n\r\n\r\n",
         [](const TExecutorDeComando& e) { return Interno::ConfigurouDependenciaServico(e, u"Ory", u"Firebird"); }},
        {u"sc config \"Ory\" obj= \".\\ana\" password= \"a b\"",
         u"Não foi possível configurar o usuário de logon para o serviço: << Ory >>.\r\n\r\n\r\n",
         [](const TExecutorDeComando& e) {
             return Interno::ConfigurouUsuarioLogonServico(e, u"Ory", u".\\ana", u"a b");
         }},
        {u"sc config \"Ory\" start= delayed-auto error= normal",
         u"Não foi possível configurar os dados adicionais do serviço << Ory >>.\r\n\r\n",
         [](const TExecutorDeComando& e) {
             return Interno::ConfigurouDadosAdicionaisServico(e, u"Ory", {u"start= delayed-auto", u"error= normal"});
         }},
    };
    for (const TCaso& caso : casos) {
        EXPECT_EQ(caso.Configurar(Responder(comando, u"[SC] ChangeServiceConfig SUCCESS")), TResultStatus{});
        EXPECT_EQ(comando, caso.Comando);
        // A word of failure counts in any case and inside another word.
        for (const char16_t* resposta : {u"[SC] OpenService FAILED 5", u"Acesso NEGADO.", u"aterroriza"}) {
            const std::u16string mensagem = caso.Inicio + u"Erro ocorrido: \r\n\r\n" + Estrelas() + u"\r\n" + resposta +
                                            u"\r\n" + Estrelas() + std::u16string(CConselho);
            EXPECT_EQ(caso.Configurar(Responder(comando, resposta)), (TResultStatus{false, mensagem}));
        }
    }
    EXPECT_EQ(Interno::MontarComandoDependencia(u"a b", u"c\"d"), u"sc config \"a b\" depend= \"c\\\"d\"");
}

TEST(Firewall, ComandosDosDoisDialetos) {
    using Interno::dfAntigo, Interno::dfAvancado;
    const auto conferir = [](const auto& AMontar, std::u16string_view AAvancado, std::u16string_view AAntigo) {
        EXPECT_EQ(AMontar(dfAvancado), u"netsh advfirewall firewall " + std::u16string(AAvancado));
        EXPECT_EQ(AMontar(dfAntigo), u"netsh firewall " + std::u16string(AAntigo));
    };
    conferir([](auto d) { return Interno::MontarLiberacaoDePorta(d, tpTCP, 3050, u"FB"); },
             u"add rule name=\"FB\" dir=in action=allow protocol=TCP localport=3050",
             u"set portopening TCP 3050 \"FB\"");
    conferir([](auto d) { return Interno::MontarExclusaoDePorta(d, tpUDP, 80); },
             u"delete rule name=all protocol=UDP localport=80", u"delete portopening protocol=UDP port=80");
    conferir([](auto d) { return Interno::MontarLiberacaoDePrograma(d, u"C:\\a b.exe", u"Ory"); },
             u"add rule name=\"Ory\" dir=in action=allow program=\"C:\\a b.exe\" enable=yes",
             u"set allowedprogram \"C:\\a b.exe\" \"Ory\" ENABLE");
    conferir([](auto d) { return Interno::MontarExclusaoDePrograma(d, u"C:\\a b.exe", u"Ory"); },
             u"delete rule name=\"Ory\" program=\"C:\\a b.exe\"", u"delete allowedprogram \"C:\\a b.exe\"");
    for (int versao = vwUnknown; versao <= vwWinVista; ++versao)
        EXPECT_EQ(Interno::DialetoDe(static_cast<TVersaoWindows>(versao)),
                  versao == vwUnknown || versao == vwWinVista ? dfAvancado : dfAntigo);
}

TEST(Firewall, RespostasEMensagens) {
    std::u16string comando;
    using Interno::dfAvancado;
    for (const char16_t* resposta : {u"Ok.", u"tudo oK", u"Token"})
        EXPECT_TRUE(Interno::LiberouPorta(Responder(comando, resposta), dfAvancado, tpTCP, 1, u"x").Status);
    const auto negar = Responder(comando, u"Acesso negado");
    const std::pair<TResultStatus, std::u16string> falhas[] = {
        {Interno::LiberouPorta(negar, dfAvancado, tpTCP, 3050, u"x"), u"liberar a porta << 3050 >> no"},
        {Interno::ExcluiuPorta(negar, dfAvancado, tpTCP, 3050), u"excluir a porta << 3050 >> do"},
        {Interno::LiberouPrograma(negar, dfAvancado, u"%s.exe", u"x"), u"liberar o programa << %s.exe >> no"},
        {Interno::ExcluiuPrograma(negar, dfAvancado, u"a.exe", u"x"), u"excluir o programa << a.exe >> do"},
    };
    for (const auto& [falha, oque] : falhas)
        EXPECT_EQ(falha.Mensagem,
                  u"Não foi possível " + oque + u" firewall do Windows.\r\n\r\nErro ocorrido: \r\n\r\nAcesso negado");
    // A command that cannot be started prints nothing, and so opens nothing.
    EXPECT_FALSE(Interno::ExcluiuPrograma(Responder(comando, u""), dfAvancado, u"a.exe", u"x").Status);
}

TEST(Firewall, ProgramasDeVerdadeRecebemOsArgumentos) {
    Testes::TProgramasFalsos programas;
    programas.Por("sc", {"[SC] ChangeServiceConfig SUCCESS", "[SC] OpenService FAILED 5:\r\n\r\nAccess is denied."});
    programas.Por("netsh", {"Ok.\r\n", "No rules match the specified criteria."});
    EXPECT_TRUE(TOryUtilsSistema::ConfigurouUsuarioLogonServico(u"Ory\\", u".\\ana", u"a\\\" b & c;$(d)").Status);
    EXPECT_FALSE(TOryUtilsSistema::ConfigurouAcaoPadraoRecuperacaoServico(u"Ory Eventos").Status);
    EXPECT_TRUE(TOryUtilsSistema::LiberouPortaFirewallWindows(tpTCP, 3050, u"Banco | x").Status);
    EXPECT_FALSE(TOryUtilsSistema::ExcluiuProgramaFirewallWindows(u"/a b/c", u"Ory").Status);
    EXPECT_EQ(programas.LerChamadas(),
              "sc|config|Ory\\|obj=|.\\ana|password=|a\\\" b & c;$(d)\n"
              "sc|failure|Ory Eventos|actions=|restart/0/restart/0//|reset=|240\n"
              "netsh|advfirewall|firewall|add|rule|name=Banco | x|dir=in|action=allow|protocol=TCP|localport=3050\n"
              "netsh|advfirewall|firewall|delete|rule|name=Ory|program=/a b/c\n");
}

TSituacaoServico Estado(std::uint32_t AEstado, std::uint32_t APonto, int AEspera) {
    return {AEstado, APonto, std::chrono::milliseconds(AEspera)};
}

/// What a scripted service answers, one situation a question; the last one stays.
struct TRoteiro {
    std::deque<std::optional<TSituacaoServico>> Situacoes{};
    bool Aceita = true;
    std::uintptr_t Criacao = 0x10000;
    std::string Registro{};
};

class TServicoRoteirizado final : public TServico {
public:
    explicit TServicoRoteirizado(TRoteiro& ARoteiro) : FRoteiro(ARoteiro) {}
    bool Iniciar() override { return Registrar("iniciar "); }
    bool Parar() override { return Registrar("parar "); }
    bool Excluir() override { return Registrar("excluir "); }
    std::optional<TSituacaoServico> Consultar() override {
        const auto situacao = FRoteiro.Situacoes.front();
        if (FRoteiro.Situacoes.size() > 1) FRoteiro.Situacoes.pop_front();
        return situacao;
    }
    std::uint32_t BuscarIDProcesso() override {
        Registrar("id ");
        return 0;
    }

private:
    bool Registrar(const char* AFeito) {
        FRoteiro.Registro += AFeito;
        return FRoteiro.Aceita;
    }
    TRoteiro& FRoteiro;
};

class TGerenciadorRoteirizado final : public TGerenciadorServicos {
public:
    explicit TGerenciadorRoteirizado(TRoteiro& ARoteiro) : FRoteiro(ARoteiro) {}
    std::unique_ptr<TServico> AbrirServico(std::u16string_view ANome, TAcessoServico) override {
        return ANome == u"ausente" ? nullptr : std::make_unique<TServicoRoteirizado>(FRoteiro);
    }
    std::uintptr_t CriarServico(std::u16string_view, std::u16string_view, std::u16string_view) override {
        return FRoteiro.Criacao;
    }

private:
    TRoteiro& FRoteiro;
};

Interno::TAbrirGerenciador Abrir(TRoteiro& ARoteiro) {
    return [&ARoteiro](std::u16string_view AMaquina, TAcessoGerenciador) -> std::unique_ptr<TGerenciadorServicos> {
        if (AMaquina == u"longe") return nullptr;
        return std::make_unique<TGerenciadorRoteirizado>(ARoteiro);
    };
}

const Interno::TAbrirGerenciador CSemGerenciador = [](auto...) { return nullptr; };

TEST(Servicos, InstalacaoComparaOValorDaCriacao) {
    TRoteiro roteiro;
    const auto instalar = [&](std::uintptr_t AValor) {
        roteiro.Criacao = AValor;
        return Interno::InstalouServico(Abrir(roteiro), u"Ory", u"Ory", u"/ory");
    };
    EXPECT_TRUE(instalar(0).Status) << "a failed creation answers 0 and so reports success";
    EXPECT_TRUE(instalar(0x10000).Status);
    EXPECT_EQ(instalar(5).Mensagem, u"Não existem permissões de acesso para instalar o serviço.");
    EXPECT_EQ(instalar(6).Mensagem, u"Ponteiro de identifidação do serviço é inválido.");
    for (const std::uintptr_t valor : {87, 123, 1057, 1059, 1073, 1078}) EXPECT_FALSE(instalar(valor).Status);

    const std::u16string semGerenciador =
        u"Não foi possível abrir o SC Manager (Gerenciador de serviços do Windows).\r\n\r\nTente executar o processo "
        u"como administrador, se o problema persistir entre em contatocom o suporte técnico.";
    EXPECT_EQ(Interno::InstalouServico(CSemGerenciador, u"a", u"b", u"c").Mensagem, semGerenciador);
    EXPECT_EQ(Interno::DesinstalouServico(CSemGerenciador, u"a"), (TResultStatus{false, semGerenciador}));
}

TEST(Servicos, RemocaoNaoContaAsFalhasDoServico) {
    TRoteiro roteiro;
    roteiro.Aceita = false;
    EXPECT_TRUE(Interno::DesinstalouServico(Abrir(roteiro), u"Ory").Status);
    EXPECT_EQ(roteiro.Registro, "parar excluir ");
    EXPECT_TRUE(Interno::DesinstalouServico(Abrir(roteiro), u"ausente").Status);
}

TEST(Servicos, Estados) {
    for (std::uint32_t estado = 0; estado <= 9; ++estado) {
        TRoteiro roteiro{{TSituacaoServico{estado}}};
        EXPECT_EQ(Interno::BuscarStatusServico(Abrir(roteiro), u"", u"Ory"),
                  estado <= 7 ? static_cast<int>(estado) : 0);
    }
    TRoteiro mudo{{std::nullopt}};
    EXPECT_EQ(Interno::BuscarStatusServico(Abrir(mudo), u"", u"Ory"), sswErro);
    EXPECT_EQ(Interno::BuscarStatusServico(Abrir(mudo), u"", u"ausente"), sswErro);
    EXPECT_EQ(Interno::BuscarStatusServico(Abrir(mudo), u"longe", u"Ory"), sswErro);
    EXPECT_EQ(CVetorStatusServicoWindows[sswErro],
              u"Erro leitura serviço (pode indicar que não está instalado ou que está travado)");
}

TEST(Servicos, InicioEsperaOCaminhoDoServico) {
    struct TCaso {
        const char* Por;
        std::deque<std::optional<TSituacaoServico>> Situacoes;
        bool Aceita, Roda;
    };
    for (const TCaso& caso : {
             TCaso{"through its check points",
                   {Estado(2, 1, 1), Estado(2, 2, 1), Estado(2, 2, 1), Estado(4, 0, 0)},
                   true,
                   true},
             TCaso{"check point backwards", {Estado(2, 5, 1), Estado(2, 1, 1), Estado(4, 0, 0)}, true, false},
             TCaso{"no answer any more", {Estado(2, 1, 1), std::nullopt}, true, false},
             TCaso{"ended on its way", {Estado(2, 0, 1), Estado(1, 0, 0)}, true, false},
             TCaso{"runs already", {Estado(4, 0, 0)}, false, true},
             TCaso{"refused", {Estado(1, 0, 0)}, false, false},
         }) {
        TRoteiro roteiro{caso.Situacoes, caso.Aceita};
        EXPECT_EQ(Interno::IniciarServico(Abrir(roteiro), u"", u"Ory"), caso.Roda) << caso.Por;
    }
    TRoteiro nenhum;
    EXPECT_FALSE(Interno::IniciarServico(Abrir(nenhum), u"", u"ausente"));
}

TEST(Servicos, ParadaEsgotaOLimite) {
    struct TCaso {
        const char* Por;
        std::deque<std::optional<TSituacaoServico>> Situacoes;
        bool Aceita;
        int Limite;
        bool Parou;
        const char* Registro;
    };
    for (const TCaso& caso : {
             TCaso{"in time", {Estado(3, 1, 1), Estado(3, 2, 1), Estado(1, 0, 0)}, true, 60, true, "parar "},
             TCaso{"no time at all", {Estado(3, 1, 1), Estado(3, 1, 1), Estado(1, 1, 0)}, true, 0, true, "parar id "},
             TCaso{"a second of hint uses the limit up; the next round ends the process",
                   {Estado(3, 1, 1000), Estado(3, 1, 1), Estado(3, 1, 1), Estado(1, 1, 0)},
                   true,
                   1,
                   true,
                   "parar id "},
             TCaso{"stopped already", {Estado(1, 0, 0)}, false, 60, true, "parar "},
             TCaso{"refused", {Estado(4, 0, 0)}, false, 60, false, "parar "},
         }) {
        TRoteiro roteiro{caso.Situacoes, caso.Aceita};
        EXPECT_EQ(Interno::PararServico(Abrir(roteiro), u"", u"Ory", caso.Limite), caso.Parou) << caso.Por;
        EXPECT_EQ(roteiro.Registro, caso.Registro) << caso.Por;
    }
}

}  // namespace

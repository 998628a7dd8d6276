// The decisions of the service and firewall operations, with commands and a service manager that do as told.
#include "oryutils/system/interno/Servicos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/interno/ComandosFirewall.hpp"

#include "system/ProgramasFalsos.hpp"

#include <gtest/gtest.h>

#include <deque>

using namespace OryUtils;
using namespace Interno;
using S = TOryUtilsSistema;

namespace {

std::u16string Estrelas() { return u"\r\n" + std::u16string(79, u'*'); }
constexpr const char16_t* CConselho = u"\r\n\r\nReinicie a aplicação em modo administrador e tente novamente.";

TEST(ComandosDoSistema, ConfiguracaoDeServicos) {
    Testes::TProgramasFalsos programas;
    const std::tuple<TResultStatus (*)(), std::string, std::u16string> casos[] = {
        {[] { return S::ConfigurouAcaoPadraoRecuperacaoServico(u"Ory Eventos"); },
         "sc|failure|Ory Eventos|actions=|restart/0/restart/0//|reset=|240\n",
         u"Não foi possível configurar a ação padrão de recuperação do serviço << Ory Eventos >>.\r\n\r\n"},
        {[] { return S::ConfigurouDependenciaServico(u"a b", u"c\"d"); }, "sc|config|a b|depend=|c\"d\n",
         u"Não foi possível configurar o serviço: << c\"d >>\r\n\r\ncomo dependência do serviço: << a b "
         u">>\r\n\r\n\r\n"},
        {[] { return S::ConfigurouUsuarioLogonServico(u"Ory\\", u".\\ana", u"a\\\" b & c;$(d)"); },
         "sc|config|Ory\\|obj=|.\\ana|password=|a\\\" b & c;$(d)\n",
         u"Não foi possível configurar o usuário de logon para o serviço: << Ory\\ >>.\r\n\r\n\r\n"},
        {[] {
             return S::ConfigurouDadosAdicionaisServico(u"%s", {u"start= delayed-auto", u"error= normal"});
         },
         "sc|config|%s|start=|delayed-auto|error=|normal\n",
         u"Não foi possível configurar os dados adicionais do serviço << %s >>.\r\n\r\n"},
    };
    for (const auto& [configurar, chamada, inicio] : casos) {
        programas.Por("sc", {"[SC] ChangeServiceConfig SUCCESS"});
        EXPECT_EQ(configurar(), TResultStatus{});
        EXPECT_EQ(programas.LerChamadas(), chamada);
        // A word of failure counts in any case and inside another word.
        for (const char16_t* resposta : {u"[SC] OpenService FAILED 5", u"Acesso NEGADO.", u"aterroriza"}) {
            programas.Por("sc", {ParaUtf8(resposta)});
            const std::u16string erro =
                u"Erro ocorrido: \r\n" + Estrelas() + u"\r\n" + resposta + Estrelas() + CConselho;
            EXPECT_EQ(configurar(), (TResultStatus{false, inicio + erro}));
            EXPECT_EQ(programas.LerChamadas(), chamada);
        }
    }
}

TEST(ComandosDoSistema, Firewall) {
    Testes::TProgramasFalsos programas;
    const std::tuple<TResultStatus (*)(), std::string, std::u16string> casos[] = {
        {[] { return S::LiberouPortaFirewallWindows(tpTCP, 3050, u"Banco | x"); },
         "add|rule|name=Banco | x|dir=in|action=allow|protocol=TCP|localport=3050", u"liberar a porta << 3050 >> no"},
        {[] { return S::ExcluiuPortaFirewallWindows(tpUDP, 80); }, "delete|rule|name=all|protocol=UDP|localport=80",
         u"excluir a porta << 80 >> do"},
        {[] { return S::LiberouProgramaFirewallWindows(u"/a b/%s", u"Ory"); },
         "add|rule|name=Ory|dir=in|action=allow|program=/a b/%s|enable=yes", u"liberar o programa << /a b/%s >> no"},
        {[] { return S::ExcluiuProgramaFirewallWindows(u"a.exe", u"x y"); }, "delete|rule|name=x y|program=a.exe",
         u"excluir o programa << a.exe >> do"},
    };
    // "ok" in any case and inside another word confirms; a command that prints nothing opens nothing.
    const std::pair<std::u16string, bool> respostas[] = {
        {u"Ok.", true}, {u"tudo oK", true}, {u"Token", true}, {u"Acesso negado", false}, {u"", false}};
    for (const auto& [executar, chamada, oque] : casos)
        for (const auto& [resposta, confirma] : respostas) {
            programas.Por("netsh", {ParaUtf8(resposta)});
            const std::u16string erro = u" firewall do Windows.\r\n\r\nErro ocorrido: \r\n\r\n" + resposta;
            const TResultStatus falha{false, u"Não foi possível " + oque + erro};
            EXPECT_EQ(executar(), confirma ? TResultStatus{} : falha);
            EXPECT_EQ(programas.LerChamadas(), "netsh|advfirewall|firewall|" + chamada + "\n");
        }
}

TEST(ComandosDoSistema, FirewallDosWindowsAntigos) {
    EXPECT_EQ(MontarLiberacaoDePorta(dfAntigo, tpTCP, 3050, u"FB"), u"netsh firewall set portopening TCP 3050 \"FB\"");
    EXPECT_EQ(MontarExclusaoDePorta(dfAntigo, tpUDP, 80), u"netsh firewall delete portopening protocol=UDP port=80");
    EXPECT_EQ(MontarLiberacaoDePrograma(dfAntigo, u"a b.exe", u"Ory"),
              u"netsh firewall set allowedprogram \"a b.exe\" \"Ory\" ENABLE");
    EXPECT_EQ(MontarExclusaoDePrograma(dfAntigo, u"a b.exe", u""), u"netsh firewall delete allowedprogram \"a b.exe\"");
    for (const auto versao : {vwWin95, vwWinNT, vwWinXP}) EXPECT_EQ(DialetoDe(versao), dfAntigo);
    for (const auto versao : {vwUnknown, vwWinVista}) EXPECT_EQ(DialetoDe(versao), dfAvancado);
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
    std::uint32_t BuscarIDProcesso() override { return Registrar("id "), 0; }

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

TAbrirGerenciador Abrir(TRoteiro& ARoteiro) {
    return [&](std::u16string_view AMaquina, TAcessoGerenciador) {
        return AMaquina == u"longe" ? nullptr : std::make_unique<TGerenciadorRoteirizado>(ARoteiro);
    };
}

const TAbrirGerenciador CSemGerenciador = [](auto...) { return nullptr; };

TEST(Servicos, InstalacaoComparaOValorDaCriacao) {
    TRoteiro roteiro;
    const auto instalar = [&](std::uintptr_t AValor) {
        roteiro.Criacao = AValor;
        return InstalouServico(Abrir(roteiro), u"Ory", u"Ory", u"/ory");
    };
    EXPECT_TRUE(instalar(0).Status) << "a failed creation answers 0 and so reports success";
    EXPECT_TRUE(instalar(0x10000).Status);
    EXPECT_EQ(instalar(5).Mensagem, u"Não existem permissões de acesso para instalar o serviço.");
    EXPECT_EQ(instalar(6).Mensagem, u"Ponteiro de identifidação do serviço é inválido.");
    for (const std::uintptr_t valor : {87, 123, 1057, 1059, 1073, 1078}) EXPECT_FALSE(instalar(valor).Status);

    const TResultStatus semGerenciador{
        false,
        u"Não foi possível abrir o SC Manager (Gerenciador de serviços do Windows).\r\n\r\nTente executar o processo "
        u"como administrador, se o problema persistir entre em contatocom o suporte técnico."};
    EXPECT_EQ(InstalouServico(CSemGerenciador, u"a", u"b", u"c"), semGerenciador);
    EXPECT_EQ(DesinstalouServico(CSemGerenciador, u"a"), semGerenciador);

    roteiro.Aceita = false;
    EXPECT_TRUE(DesinstalouServico(Abrir(roteiro), u"Ory").Status) << "what the service refuses does not count";
    EXPECT_EQ(roteiro.Registro, "parar excluir ");
    EXPECT_TRUE(DesinstalouServico(Abrir(roteiro), u"ausente").Status);
}

TEST(Servicos, Estados) {
    for (std::uint32_t estado = 0; estado <= 9; ++estado) {
        TRoteiro roteiro{{TSituacaoServico{estado}}};
        EXPECT_EQ(BuscarStatusServico(Abrir(roteiro), u"", u"Ory"), estado <= 7 ? static_cast<int>(estado) : 0);
    }
    TRoteiro mudo{{std::nullopt}};
    for (const auto& [maquina, servico] : {std::pair{u"", u"Ory"}, {u"", u"ausente"}, {u"longe", u"Ory"}}) {
        EXPECT_EQ(BuscarStatusServico(Abrir(mudo), maquina, servico), sswErro);
        EXPECT_FALSE(IniciarServico(Abrir(mudo), maquina, servico));
        EXPECT_FALSE(PararServico(Abrir(mudo), maquina, servico, 1));
    }
    EXPECT_EQ(CVetorStatusServicoWindows[sswErro],
              u"Erro leitura serviço (pode indicar que não está instalado ou que está travado)");
}

TEST(Servicos, OCaminhoDoServicoEhEsperado) {
    using TSituacoes = std::deque<std::optional<TSituacaoServico>>;
    const auto em = [](std::uint32_t AEstado, std::uint32_t APonto, int AEspera) {
        return TSituacaoServico{AEstado, APonto, std::chrono::milliseconds(AEspera)};
    };
    // The limit of a stop in seconds, or a start; the situations; whether the service takes the order; whether it
    // comes to where it shall; what it was asked.
    constexpr int CInicio = -1;
    const std::tuple<int, TSituacoes, bool, bool, const char*, const char*> casos[] = {
        {CInicio, {em(2, 1, 1), em(2, 2, 1), em(2, 2, 1), em(4, 0, 0)}, true, true, "iniciar ", "check by check"},
        {CInicio, {em(2, 5, 1), em(2, 1, 1), em(4, 0, 0)}, true, false, "iniciar ", "check point backwards"},
        {CInicio, {em(2, 1, 1), std::nullopt}, true, false, "iniciar ", "no answer any more"},
        {CInicio, {em(2, 0, 1), em(1, 0, 0)}, true, false, "iniciar ", "ended on its way"},
        {CInicio, {em(4, 0, 0)}, false, true, "iniciar ", "runs already"},
        {CInicio, {em(1, 0, 0)}, false, false, "iniciar ", "refused"},
        {60, {em(3, 1, 1), em(3, 2, 1), em(1, 0, 0)}, true, true, "parar ", "in time"},
        {0, {em(3, 1, 1), em(3, 1, 1), em(1, 1, 0)}, true, true, "parar id ", "no time at all"},
        // A second of hint uses the limit up; the next round ends the process.
        {1, {em(3, 1, 1000), em(3, 1, 1), em(3, 1, 1), em(1, 1, 0)}, true, true, "parar id ", "too slow"},
        {60, {em(1, 0, 0)}, false, true, "parar ", "stopped already"},
        {60, {em(4, 0, 0)}, false, false, "parar ", "refused"},
    };
    for (const auto& [limite, situacoes, aceita, chegou, registro, porque] : casos) {
        TRoteiro roteiro{situacoes, aceita};
        const auto abrir = Abrir(roteiro);
        EXPECT_EQ(limite == CInicio ? IniciarServico(abrir, u"", u"Ory") : PararServico(abrir, u"", u"Ory", limite),
                  chegou)
            << porque;
        EXPECT_EQ(roteiro.Registro, registro) << porque;
    }
}

}  // namespace

// systemd through a systemctl of the tests: a script that keeps a unit's state in files and records how it was called.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/linux/Servicos.hpp"
#include "oryutils/system/interno/Servicos.hpp"

#include "files/ApoioArquivos.hpp"
#include "system/Ambiente.hpp"

#include <gtest/gtest.h>

using namespace OryUtils;
using namespace Interno;
namespace fs = std::filesystem;

namespace {

constexpr const char* CSystemctl = R"(#!/bin/sh
# Flags before the verb are the same for all calls.
shift 2
echo "$*" >> "$ORY_TESTE_SYSTEMD/chamadas"
cd "$ORY_TESTE_SYSTEMD"
case "$1" in
is-system-running) cat situacao ;;
show) if [ -f unidades/Ory.service ]; then
          echo LoadState=loaded; cat estado; cat congelado; cat id; cat trabalho; : > trabalho
      else echo LoadState=not-found; echo ActiveState=inactive; fi ;;
start) echo ActiveState=active > estado; echo Job=77 > trabalho ;;
stop) echo ActiveState=inactive > estado; echo Job=78 > trabalho ;;
disable | enable | daemon-reload) ;;
*) echo "Failed to understand $1" >&2; exit 1 ;;
esac
)";

class ServicosLinux : public testing::Test {
protected:
    ServicosLinux() {
        fs::create_directory(FPasta / "unidades");
        Escrever("systemctl", CSystemctl);
        fs::permissions(FPasta / "systemctl", fs::perms::owner_all);
        Escrever("situacao", "degraded\n");
        Escrever("estado", "ActiveState=inactive\n");
        Escrever("congelado", "FreezerState=running\n");
        Escrever("id", "MainPID=0\n");
        Escrever("trabalho", "");
    }
    void Escrever(const char* ANome, std::string_view ATexto) { GravarBytes(FPasta / ANome, ATexto); }
    TAbrirGerenciador Abrir() {
        return [this](std::u16string_view AMaquina, TAcessoGerenciador AAcesso) {
            return AMaquina.empty() ? AbrirSystemd((FPasta / "unidades").string(), AAcesso) : nullptr;
        };
    }
    const TPastaTemporaria FPasta;
    const Testes::TVariavel FCaminho{"PATH", FPasta.Caminho().string() + ":" + Testes::BuscarVariavel("PATH")};
    const Testes::TVariavel FVariavel{"ORY_TESTE_SYSTEMD", FPasta.Caminho().string()};
};

TEST_F(ServicosLinux, DaInstalacaoARemocao) {
    const auto abrir = Abrir();
    InstalouServico(abrir, u"--now", u"", u"/bin/true");
    EXPECT_TRUE(fs::is_empty(FPasta / "unidades")) << "a name that would be an option makes nothing";
    EXPECT_EQ(BuscarStatusServico(abrir, u"", u"Ory"), sswErro);
    ASSERT_TRUE(InstalouServico(abrir, u"Ory", u"Eventos 100%", u"\"/opt/a b/ory\" --porta 1 $x").Status);
    EXPECT_EQ(LerBytes(FPasta / "unidades/Ory.service"),
              "[Unit]\nDescription=Eventos 100%%\n\n[Service]\nExecStart=\"/opt/a b/ory\" \"--porta\" \"1\" \"$$x\"\n\n"
              "[Install]\nWantedBy=multi-user.target\n");
    EXPECT_EQ(BuscarStatusServico(abrir, u"", u"Ory.service"), sswServicoParado);
    EXPECT_TRUE(IniciarServico(abrir, u"", u"Ory"));
    Escrever("id", "MainPID=4242\n");
    EXPECT_EQ(BuscarIDProcessoServico(abrir, u"", u"Ory"), 4242U);
    EXPECT_TRUE(PararServico(abrir, u"", u"Ory", 10));
    EXPECT_TRUE(DesinstalouServico(abrir, u"Ory").Status);
    EXPECT_EQ(BuscarStatusServico(abrir, u"", u"Ory"), sswErro);
    const std::string chamadas = LerBytes(FPasta / "chamadas");
    for (const char* chamada : {"daemon-reload\n", "enable Ory.service\n", "start --no-block Ory.service\n",
                                "stop --no-block Ory.service\n", "disable Ory.service\n"})
        EXPECT_NE(chamadas.find(chamada), std::string::npos) << chamada;
}

TEST_F(ServicosLinux, EstadosDoSystemd) {
    Escrever("unidades/Ory.service", "");
    const std::tuple<std::string, std::string, TStatusServicoWindows> casos[] = {
        {"inactive", "running", sswServicoParado},
        {"failed", "running", sswServicoParado},
        {"activating", "running", sswServicoInicializacaoPendente},
        {"deactivating", "running", sswServicoParadaPendente},
        {"active", "running", sswServicoRodando},
        {"active", "thawing", sswServicoContinuaPendente},
        {"active", "freezing", sswServicoPausaPendente},
        {"active", "frozen", sswServicoPausado},
        {"unheard-of", "running", sswErro},
    };
    for (const auto& [ativo, congelado, esperado] : casos) {
        Escrever("estado", "ActiveState=" + ativo + "\n");
        Escrever("congelado", "FreezerState=" + congelado + "\n");
        EXPECT_EQ(BuscarStatusServico(Abrir(), u"", u"Ory"), esperado) << ativo << ' ' << congelado;
    }
}

TEST_F(ServicosLinux, SemSystemdRespondeErro) {
    for (const char* situacao : {"offline\n", "unknown\n", ""}) {
        Escrever("situacao", situacao);
        EXPECT_EQ(BuscarStatusServico(Abrir(), u"", u"Ory"), sswErro);
        EXPECT_FALSE(InstalouServico(Abrir(), u"Ory", u"", u"/bin/true").Status);
    }
    const Testes::TVariavel caminho("PATH", "/nao/existe");
    EXPECT_FALSE(DesinstalouServico(Abrir(), u"Ory").Status);
    const TResultStatus semSc = TOryUtilsSistema::ConfigurouDependenciaServico(u"Ory", u"Firebird");
    EXPECT_FALSE(semSc.Status);
    EXPECT_NE(semSc.Mensagem.find(u"o comando sc não foi encontrado"), std::u16string::npos);
    EXPECT_FALSE(TOryUtilsSistema::LiberouPortaFirewallWindows(tpTCP, 1, u"x").Status);
    EXPECT_EQ(TOryUtilsSistema::BuscarStatusServico(u"outra-maquina", u"Ory"), sswErro);
}

}  // namespace

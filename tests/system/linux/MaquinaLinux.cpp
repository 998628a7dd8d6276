// The machine's facts beside what the system itself says.
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/platform/Rede.hpp"
#include "oryutils/platform/linux/PastaDeDocumentos.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "system/ProgramasFalsos.hpp"
#include "text/Apoio.hpp"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <map>
#include <net/if.h>
#include <netdb.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace OryUtils;
using namespace OryUtils::Interno;
using Testes::TLista;
using Testes::TVariavel;

namespace {

using S = TOryUtilsSistema;

TEST(MaquinaLinux, UmComandoEhProcuradoNoPathESemShell) {
    Testes::TProgramasFalsos programas;
    programas.Por("arp", {"1"});
    EXPECT_EQ(S::ExecutarComandoComRetorno(u"  arp $HOME *;ls"), u"1");
    EXPECT_EQ(programas.LerChamadas(), "arp|$HOME|*;ls\n");
}

TEST(MaquinaLinux, Nomes) {
    char nome[256] = {};
    ASSERT_EQ(::gethostname(nome, sizeof nome), 0);
    EXPECT_EQ(ParaUtf8(S::BuscarNomeComputador()), nome);
    const passwd* conta = ::getpwuid(::geteuid());
    EXPECT_EQ(ParaUtf8(GetNomeUsuarioLogadoNoWindows()), conta ? conta->pw_name : "Desconhecido");
    EXPECT_EQ(GetWindowsVersion(), vwUnknown);
}

TEST(MaquinaLinux, Enderecos) {
    // Every own IPv4 address, and the interface that has it.
    std::map<std::string, std::string> enderecos;
    bool temRede = false;
    ifaddrs* lista = nullptr;
    ASSERT_EQ(::getifaddrs(&lista), 0);
    for (const ifaddrs* i = lista; i; i = i->ifa_next) {
        if (!i->ifa_addr || i->ifa_addr->sa_family != AF_INET) continue;
        char texto[NI_MAXHOST] = {};
        ::getnameinfo(i->ifa_addr, sizeof(sockaddr_in), texto, sizeof texto, nullptr, 0, NI_NUMERICHOST);
        enderecos[texto] = i->ifa_name;
        temRede |= (i->ifa_flags & (IFF_LOOPBACK | IFF_UP)) == IFF_UP;
    }
    ::freeifaddrs(lista);

    const std::string local = ParaUtf8(S::BuscarIPLocal());
    EXPECT_TRUE(enderecos.contains(local) || local.starts_with("127.")) << local;
    if (temRede) {
        EXPECT_FALSE(local.starts_with("127.")) << local;
        std::string mac;
        std::ifstream("/sys/class/net/" + enderecos[local] + "/address") >> mac;
        std::replace(mac.begin(), mac.end(), ':', '-');
        for (const std::u16string& nome : {DeUtf8(local), std::u16string(u"localhost"), std::u16string(u"127.0.0.1")}) {
            EXPECT_EQ(ParaUtf8(GetMacAddress2(nome)), mac) << ParaUtf8(nome);
            EXPECT_EQ(ParaUtf8(GetEnderecoMac(nome)), mac) << ParaUtf8(nome);
        }
    }
    EXPECT_TRUE(S::EhIPLocal(S::BuscarNomeComputador(), false));
    EXPECT_EQ(S::BuscarIPPeloNomeComputador(u"localhost"), u"127.0.0.1");
    EXPECT_EQ(S::BuscarIPPeloNomeComputador(std::u16string_view(u"localhost\0x", 11)), u"");
    sockaddr_in volta{};
    volta.sin_family = AF_INET;
    volta.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    char nome[NI_MAXHOST] = {};
    ::getnameinfo(reinterpret_cast<sockaddr*>(&volta), sizeof volta, nome, sizeof nome, nullptr, 0, NI_NAMEREQD);
    EXPECT_EQ(ParaUtf8(S::BuscarNomeComputadorPeloIP(u"127.0.0.1")), nome);
    EXPECT_EQ(S::BuscarNomeComputadorPeloIP(u"255.255.255.255"), u"");
    EXPECT_EQ(GetMacAddress2(u"255.255.255.255"), u"");
}

TEST(MaquinaLinux, Discos) {
    EXPECT_EQ(S::BuscarListaDrivesComputador().at(0), u"/") << "C";
    const auto total = S::BuscarInformacoesDiscoRigido(u"C", fbBytes)->EspacoTotal;
    for (const char16_t* pasta : {u"/", u"/etc"})
        EXPECT_EQ(S::BuscarInformacoesDiscoRigido(pasta, fbBytes)->EspacoTotal, total) << ParaUtf8(pasta);
    EXPECT_EQ(S::BuscarQuantidadeEspacoLivreEmDisco(u"A", fbBytes), 0) << "no letter before C";
    EXPECT_TRUE(S::ValidouEspacoLivreEmDisco(u"C", 0, fbTerabytes).Status);
}

TEST(MaquinaLinux, Pastas) {
    const std::string executavel = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
    EXPECT_EQ(ParaUtf8(GetApplicationPath()), executavel + "/");
    const std::string acima = std::filesystem::path(executavel).parent_path().string();
    EXPECT_EQ(ParaUtf8(OryUtils::BuscarPastaOryApps()), acima + "/OryApps");
    EXPECT_EQ(ParaUtf8(S::BuscarPastaOryAppsAjuda()), acima + "/OryApps_Ajuda/");
    EXPECT_EQ(ParaUtf8(S::BuscarPastaOryDados()), acima + "/OryDados");
    EXPECT_EQ(ParaUtf8(S::BuscarPastaOryEventosServer()), acima + "/OryEventosServer");
    EXPECT_EQ(GetWindowsDrive(), u"/");
    EXPECT_TRUE(ExistePasta(GetWindowsSystemDir()));

    for (const auto& [valor, pasta] :
         {std::pair{"/var/tmp//", "/var/tmp"}, {"", "/tmp"}, {"tmp", "/tmp"}, {"/", "/"}}) {
        const TVariavel temporaria("TMPDIR", valor);
        EXPECT_EQ(ParaUtf8(GetPastaTempWindows()), pasta);
    }
}

TEST(MaquinaLinux, PastaDeDocumentos) {
    const std::tuple<const char*, const char*, const char*> casos[] = {
        {"", "", "no file"},
        {"XDG_DESKTOP_DIR=\"$HOME/Mesa\"\n# XDG_DOCUMENTS_DIR=\"/x\"\n", "", "another folder, a remark"},
        {"  XDG_DOCUMENTS_DIR=\"$HOME/Meus Documentos\"\n", "/home/ana/Meus Documentos", "below the home folder"},
        {"XDG_DOCUMENTS_DIR=\"/dados/\\\"doc\\\"\"", "/dados/\"doc\"", "quotes in the name, no line end"},
        {"XDG_DOCUMENTS_DIR=\"$HOME\"\n", "/home/ana", "the home folder itself"},
        {"XDG_DOCUMENTS_DIR=\"$HOMEX/a\"\nXDG_DOCUMENTS_DIR=\"a\"\n", "", "no full path"},
        {"XDG_DOCUMENTS_DIR=\"/a\"\nXDG_DOCUMENTS_DIR=\"/b\"\n", "/b", "the last one holds"},
        {"XDG_DOCUMENTS_DIR=\"/a\\", "/a\\", "cut off"},
    };
    for (const auto& [texto, pasta, porque] : casos)
        EXPECT_EQ(LerPastaDeDocumentos(texto, "/home/ana"), pasta) << porque;

    const TVariavel configuracoes("XDG_CONFIG_HOME", "/nao/existe");
    const TVariavel inicio("HOME", "/home/ana/");
    EXPECT_EQ(GetPastaMeusDocumentos(), u"/home/ana/Documents");
}

TEST(MaquinaLinux, SemExibicaoNaoHaTeclado) {
    for (const char* nenhuma : {"", ":9797"}) {
        const TVariavel exibicao("DISPLAY", nenhuma);
        SimularPressionamentoTecla(0x41, {ssCtrl}, false);
        EXPECT_FALSE(S::TeclaEstahPressionada(0x41));
        EXPECT_EQ(S::BuscarTempoInatividadeSistema(), 0u);
    }
}

}  // namespace

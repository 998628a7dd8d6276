// The library's operations on a real service of the real service manager.
#include "oryutils/platform/Servicos.hpp"
#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include <gtest/gtest.h>

using namespace OryUtils;
using S = TOryUtilsSistema;

namespace {

constexpr char16_t CServico[] = u"OryServicoDeTeste";

std::u16string BuscarPrograma() {
    wchar_t nome[MAX_PATH];
    const DWORD tamanho = GetModuleFileNameW(nullptr, nome, MAX_PATH);
    const std::u16string caminho = Interno::DeWide({nome, tamanho});
    return caminho.substr(0, caminho.find_last_of(u'\\') + 1) + u"servico_de_teste.exe";
}

class ServicosWindows : public testing::Test {
protected:
    void SetUp() override { Remover(); }
    void TearDown() override { Remover(); }

    static void Remover() {
        if (S::BuscarStatusServico(u"", CServico) == sswErro) return;
        S::PararServico(u"", CServico, 0);
        S::DesinstalouServico(CServico);
    }
    static void Instalar(std::u16string_view AModo) {
        const std::u16string programa = u"\"" + BuscarPrograma() + u"\" " + std::u16string(AModo);
        ASSERT_TRUE(S::InstalouServico(CServico, u"Serviço de teste", programa).Status);
        ASSERT_EQ(S::BuscarStatusServico(u"", CServico), sswServicoParado);
    }
    /// Puts the running service into a state and waits until the system shows it.
    static TStatusServicoWindows Passar(int AEstado) {
        const std::wstring nome = L"Global\\OryServicoDeTeste." + std::to_wstring(AEstado);
        TStatusServicoWindows estado = sswErro;
        for (int vez = 0; vez < 500 && estado != AEstado; ++vez) {
            if (const HANDLE evento = OpenEventW(EVENT_MODIFY_STATE, FALSE, nome.c_str())) {
                SetEvent(evento);
                CloseHandle(evento);
            }
            TOryUtilsSistema::Dormir(10);
            estado = S::BuscarStatusServico(u"", CServico);
        }
        return estado;
    }
};

TEST_F(ServicosWindows, DaInstalacaoARemocao) {
    EXPECT_EQ(S::BuscarStatusServico(u"", CServico), sswErro);
    EXPECT_FALSE(S::IniciarServico(u"", CServico));
    Instalar(u"rapido");

    // What the system itself holds of it.
    const SC_HANDLE gerenciador = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT);
    const SC_HANDLE servico = OpenServiceW(gerenciador, Interno::ParaWide(CServico), SERVICE_QUERY_CONFIG);
    alignas(QUERY_SERVICE_CONFIGW) char memoria[8192];
    DWORD tamanho = 0;
    auto* configuracao = reinterpret_cast<QUERY_SERVICE_CONFIGW*>(memoria);
    ASSERT_TRUE(QueryServiceConfigW(servico, configuracao, sizeof memoria, &tamanho));
    EXPECT_EQ(configuracao->dwServiceType, DWORD{SERVICE_WIN32_OWN_PROCESS});
    EXPECT_EQ(configuracao->dwStartType, DWORD{SERVICE_AUTO_START});
    EXPECT_EQ(configuracao->dwErrorControl, DWORD{SERVICE_ERROR_IGNORE});
    EXPECT_STREQ(configuracao->lpDisplayName, L"Serviço de teste");
    CloseServiceHandle(servico);
    CloseServiceHandle(gerenciador);

    EXPECT_EQ(S::BuscarIDProcessoServico(u"", CServico), 0U);
    EXPECT_TRUE(S::IniciarServico(u"", CServico));
    EXPECT_EQ(S::BuscarStatusServico(u"", CServico), sswServicoRodando);
    EXPECT_NE(S::BuscarIDProcessoServico(u"", CServico), 0U);
    EXPECT_TRUE(S::IniciarServico(u"", CServico)) << "it runs already";
    // A second installation fails, and reports success all the same.
    EXPECT_TRUE(S::InstalouServico(CServico, u"Outro", u"C:\\outro.exe").Status);

    for (int estado = sswServicoInicializacaoPendente; estado <= sswServicoPausado; ++estado)
        EXPECT_EQ(Passar(estado), estado);
    EXPECT_EQ(Passar(sswServicoRodando), sswServicoRodando);
    EXPECT_TRUE(S::PararServico(u"", CServico, 30));
    EXPECT_EQ(S::BuscarStatusServico(u"", CServico), sswServicoParado);
    EXPECT_TRUE(S::DesinstalouServico(CServico).Status);
    EXPECT_EQ(S::BuscarStatusServico(u"", CServico), sswErro);
}

TEST_F(ServicosWindows, CaminhoLentoEhEsperado) {
    Instalar(u"lento");
    EXPECT_TRUE(ServiceStart(u"", CServico));
    EXPECT_TRUE(ServiceStop(u"", CServico, 30));
}

TEST_F(ServicosWindows, QuemNaoParaEhTerminado) {
    Instalar(u"teimoso");
    ASSERT_TRUE(S::IniciarServico(u"", CServico));
    const HANDLE processo = OpenProcess(SYNCHRONIZE, FALSE, S::BuscarIDProcessoServico(u"", CServico));
    ASSERT_NE(processo, nullptr);
    S::PararServico(u"\\\\" + S::BuscarNomeComputador(), CServico, 1);  // this machine by its name
    EXPECT_EQ(WaitForSingleObject(processo, 0), DWORD{WAIT_OBJECT_0}) << "its process has ended";
    CloseHandle(processo);
}

// Wine takes every name for this machine, which makes its process one that the name does not vouch for.
TEST_F(ServicosWindows, OProcessoDeOutraMaquinaFicaEmPaz) {
    constexpr char16_t COutra[] = u"\\\\ory-outra-maquina";
    Instalar(u"teimoso");
    ASSERT_TRUE(S::IniciarServico(u"", CServico));
    const HANDLE processo = OpenProcess(SYNCHRONIZE, FALSE, S::BuscarIDProcessoServico(u"", CServico));
    ASSERT_NE(processo, nullptr);
    EXPECT_FALSE(S::PararServico(COutra, CServico, 0));
    EXPECT_EQ(WaitForSingleObject(processo, 0), DWORD{WAIT_TIMEOUT}) << "it lives";
    // It has heard the stop already, and takes no other one.
    S::FinalizouProcessoPeloPID(S::BuscarIDProcessoServico(u"", CServico));
    EXPECT_EQ(WaitForSingleObject(processo, INFINITE), DWORD{WAIT_OBJECT_0});
    CloseHandle(processo);
}

TEST_F(ServicosWindows, SemNumeroDeProcessoNinguemMorreu) {
    Instalar(u"rapido");
    const auto gerenciador = Interno::AbrirGerenciadorServicos({}, Interno::agConectar);
    const auto situacao = gerenciador->AbrirServico(CServico, Interno::asConsultar)->Consultar();
    ASSERT_TRUE(situacao);
    EXPECT_TRUE(situacao->TemProcesso) << "it may wait for the services that it depends on";
}

TEST_F(ServicosWindows, QuemMorreNoInicioNaoPrendeOChamador) {
    Instalar(u"quebrado");
    EXPECT_FALSE(S::IniciarServico(u"", CServico));
}

}  // namespace

// The machine's facts beside what the system itself says, and keys seen by a real window.
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "text/Apoio.hpp"

#include <filesystem>
#include <shlobj.h>

using namespace OryUtils;
using namespace OryUtils::Interno;
using Testes::TLista;

namespace {

using S = TOryUtilsSistema;

TEST(MaquinaWindows, NomesEVersao) {
    wchar_t texto[512];
    DWORD tamanho = 512;
    ASSERT_TRUE(::GetComputerNameW(texto, &tamanho));
    EXPECT_EQ(S::BuscarNomeComputador(), DeWide(texto));
    tamanho = 512;
    ASSERT_TRUE(::GetUserNameW(texto, &tamanho));
    EXPECT_EQ(GetNomeUsuarioLogadoNoWindows(), DeWide(texto));
    OSVERSIONINFOW versao{};
    versao.dwOSVersionInfoSize = sizeof versao;
    ASSERT_TRUE(::GetVersionExW(&versao));
    ASSERT_GE(versao.dwMajorVersion, 6u) << "older than the compiler allows";
    EXPECT_EQ(GetWindowsVersion(), versao.dwMajorVersion == 6 ? vwWinVista : vwUnknown) << versao.dwMajorVersion;
}

TEST(MaquinaWindows, Enderecos) {
    EXPECT_NE(S::BuscarIPPeloNomeComputador(S::BuscarNomeComputador()), u"");
    EXPECT_EQ(S::BuscarIPPeloNomeComputador(std::u16string(1000, u'x')), u"");
    // Equal: two answers that differ would have been looked into further.
    EXPECT_EQ(GetEnderecoMac(u"127.0.0.1"), GetMacAddress2(u"localhost"));
}

TEST(MaquinaWindows, Discos) {
    wchar_t rotulo[MAX_PATH + 1] = {};
    ::GetVolumeInformationW(L"C:\\", rotulo, MAX_PATH, nullptr, nullptr, nullptr, nullptr, 0);
    const std::u16string nome(Aparar(DeWide(rotulo)));
    EXPECT_EQ(S::BuscarInformacoesDiscoRigido(u"C", fbBytes)->NomeVolume, nome.empty() ? u"Não identificado" : nome);
    const TLista unidades = S::BuscarListaDrivesComputador();
    const DWORD mapa = ::GetLogicalDrives();
    TLista esperadas;
    for (int i = 0; i < 26; ++i)
        if (mapa >> i & 1) esperadas.push_back(std::u16string(1, static_cast<char16_t>(u'A' + i)) + u":\\");
    EXPECT_EQ(unidades, esperadas);
}

TEST(MaquinaWindows, InstalacaoDe32Bits) {
    constexpr wchar_t CChave[] = L"Software\\Embarcadero\\BDS\\8.0";
    if (!GetPastaInstalacaoVelmar(VdVelmarXE).empty()) GTEST_SKIP() << "there is one on this machine";
    HKEY chave = nullptr;
    if (::RegCreateKeyExW(HKEY_LOCAL_MACHINE, CChave, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr, &chave,
                          nullptr) != ERROR_SUCCESS)
        GTEST_SKIP() << "only an administrator writes there";
    constexpr wchar_t CPasta[] = L"C:\\Velmar";
    ::RegSetValueExW(chave, L"RootDir", 0, REG_SZ, reinterpret_cast<const BYTE*>(CPasta), sizeof CPasta);
    EXPECT_EQ(GetInformacoesVelmar(VdVelmarXE).PastaBin, u"C:\\Velmar\\bin");
    ::RegDeleteValueW(chave, L"RootDir");
    ::RegCloseKey(chave);
    ::RegDeleteKeyExW(HKEY_LOCAL_MACHINE, CChave, KEY_WOW64_32KEY, 0);
}

TEST(MaquinaWindows, Pastas) {
    const auto doSistema = [](auto AFuncao) {
        wchar_t texto[MAX_PATH + 1];
        EXPECT_TRUE(AFuncao(texto) != 0);
        return DeWide(texto);
    };
    EXPECT_EQ(GetWindowsSystemDir(), doSistema([](auto t) { return ::GetSystemDirectoryW(t, MAX_PATH); }));
    EXPECT_EQ(GetWindowsDrive(), doSistema([](auto t) { return ::GetWindowsDirectoryW(t, MAX_PATH); }).substr(0, 2));
    EXPECT_EQ(GetPastaTempWindows() + u"\\", doSistema([](auto t) { return ::GetTempPathW(MAX_PATH, t); }));
    for (const auto& [nossa, numero] :
         {std::pair{GetPastaMeusDocumentos(), CSIDL_PERSONAL}, {GetPastaArquivoDeProgramas(), CSIDL_PROGRAM_FILES}})
        EXPECT_EQ(nossa, doSistema([&](auto t) { return ::SHGetSpecialFolderPathW(nullptr, t, numero, FALSE); }));

    const std::filesystem::path programa = doSistema([](auto t) { return ::GetModuleFileNameW(nullptr, t, MAX_PATH); });
    const std::filesystem::path pasta = programa.parent_path();
    EXPECT_EQ(GetApplicationPath(), pasta.u16string() + u"\\");
    EXPECT_EQ(OryUtils::BuscarPastaOryApps(), pasta.parent_path().u16string() + u"\\OryApps");
    EXPECT_EQ(S::BuscarPastaOryAppsAjuda(), pasta.parent_path().u16string() + u"\\OryApps_Ajuda\\");
}

/// What a window of the system sees of the keyboard: "+17/29 -65/30e": the key, its scan code, the extended flag.
std::string& Teclas() {
    static std::string teclas;
    return teclas;
}
LRESULT CALLBACK AnotarTecla(HWND AJanela, UINT AMensagem, WPARAM ATecla, LPARAM ADados) {
    const bool abaixou = AMensagem == WM_KEYDOWN || AMensagem == WM_SYSKEYDOWN;
    if (abaixou || AMensagem == WM_KEYUP || AMensagem == WM_SYSKEYUP) {
        Teclas() += (abaixou ? "+" : "-") + std::to_string(ATecla) + "/" + std::to_string(ADados >> 16 & 0xFF) +
                    (ADados & (1 << 24) ? "e " : " ");
        return 0;
    }
    return ::DefWindowProcW(AJanela, AMensagem, ATecla, ADados);
}

TEST(MaquinaWindows, UmaJanelaVeAsTeclasSimuladas) {
    WNDCLASSW classe{};
    classe.lpfnWndProc = AnotarTecla;
    classe.hInstance = ::GetModuleHandleW(nullptr);
    classe.lpszClassName = L"OryTeclas";
    ::RegisterClassW(&classe);
    const HWND janela = ::CreateWindowExW(WS_EX_TOPMOST, L"OryTeclas", L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                                          nullptr, nullptr, classe.hInstance, nullptr);
    if (!janela) GTEST_SKIP() << "no window can be created here: run under a display";
    ::SetForegroundWindow(janela);
    ::SetFocus(janela);
    const auto simular = [&](std::uint16_t ATecla, TShiftState AShift, bool AEstendida, int AEventos) {
        Teclas().clear();
        SimularPressionamentoTecla(ATecla, AShift, AEstendida);
        MSG mensagem{};
        for (int vez = 0; vez < 5000 && std::count(Teclas().begin(), Teclas().end(), ' ') < AEventos; ++vez) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
            while (::PeekMessageW(&mensagem, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&mensagem);
        }
        return Teclas();
    };
    EXPECT_EQ(simular(0x41, {}, false, 2), "+65/30 -65/30 ");
    EXPECT_EQ(simular(0x41, {ssAlt, ssShift, ssCtrl}, false, 8),
              "+17/29 +16/42 +18/56 +65/30 -65/30 -18/56 -16/42 -17/29 ");
    EXPECT_EQ(simular(VK_LEFT, {}, true, 2), "+37/75e -37/75e ");
    EXPECT_EQ(simular(VK_LEFT, {}, false, 2), "+37/75 -37/75 ");
    EXPECT_FALSE(S::TeclaEstahPressionada(VK_CONTROL));
    ::keybd_event(VK_CONTROL, 29, 0, 0);
    EXPECT_TRUE(S::TeclaEstahPressionada(VK_CONTROL));
    ::keybd_event(VK_CONTROL, 29, KEYEVENTF_KEYUP, 0);
    EXPECT_FALSE(S::TeclaEstahPressionada(VK_CONTROL));
    ::DestroyWindow(janela);
}

}  // namespace

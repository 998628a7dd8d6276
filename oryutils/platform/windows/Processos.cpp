#include "oryutils/platform/Processos.hpp"

#include "oryutils/platform/BibliotecaDinamica.hpp"
#include "oryutils/platform/ErroDoSistema.hpp"
#include "oryutils/platform/windows/Contas.hpp"
#include "oryutils/platform/windows/FotoDeProcessos.hpp"

#include <optional>
#include <psapi.h>
#include <tlhelp32.h>

namespace OryUtils::Interno {
namespace {

class TAlca {
public:
    explicit TAlca(HANDLE AAlca) noexcept : FAlca(AAlca) {}
    ~TAlca() {
        if (*this) ::CloseHandle(FAlca);
    }
    TAlca(const TAlca&) = delete;
    TAlca& operator=(const TAlca&) = delete;
    explicit operator bool() const noexcept { return FAlca != nullptr && FAlca != INVALID_HANDLE_VALUE; }
    HANDLE Get() const noexcept { return FAlca; }

private:
    HANDLE FAlca;
};

HANDLE AlcaDe(const TAlcaDeProcesso& AAlca) { return reinterpret_cast<HANDLE>(AAlca.Get()); }

TAlcaDeProcesso AbrirComTodosOsDireitos(DWORD AID) {
    return TAlcaDeProcesso(reinterpret_cast<std::intptr_t>(::OpenProcess(PROCESS_ALL_ACCESS, FALSE, AID)));
}

// AAcao answers whether to go on.
template <typename TAcao>
void PercorrerProcessos(DWORD AConteudo, TAcao AAcao) {
    const TAlca foto(Fotografar([&] { return ::CreateToolhelp32Snapshot(AConteudo, 0); }));
    if (!foto) return;
    PROCESSENTRY32W entrada{};
    entrada.dwSize = sizeof(entrada);
    for (BOOL ha = ::Process32FirstW(foto.Get(), &entrada); ha; ha = ::Process32NextW(foto.Get(), &entrada))
        if (!AAcao(entrada)) return;
}

TDonoDeProcesso BuscarDono(DWORD AID, TContas& AContas) {
    const TAlca processo(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, AID));
    HANDLE alca = nullptr;
    if (!processo || !::OpenProcessToken(processo.Get(), TOKEN_QUERY, &alca)) return {};
    const TAlca ficha(alca);
    DWORD tamanho = 0;
    ::GetTokenInformation(alca, TokenUser, nullptr, 0, &tamanho);
    std::vector<std::uint64_t> memoria(tamanho / sizeof(std::uint64_t) + 1);  // aligned for what it holds
    if (!::GetTokenInformation(alca, TokenUser, memoria.data(), tamanho, &tamanho)) return {};
    return AContas.Buscar(reinterpret_cast<const TOKEN_USER*>(memoria.data())->User.Sid);
}

std::u16string SemPasta(std::u16string ANome) { return ANome.substr(ANome.find_last_of(u"\\/:") + 1); }

}  // namespace

std::vector<TProcessoDoSistema> ListarProcessos(const std::function<bool(std::u16string_view)>& AQuer) {
    TContas contas;
    std::vector<TProcessoDoSistema> processos;
    PercorrerProcessos(TH32CS_SNAPALL, [&](const PROCESSENTRY32W& AEntrada) {
        TDonoDeProcesso dono = BuscarDono(AEntrada.th32ProcessID, contas);
        if (!AQuer(dono.Usuario)) return true;
        TProcessoDoSistema processo;
        processo.ID = AEntrada.th32ProcessID;
        processo.Nome = DeWide(AEntrada.szExeFile);
        processo.Usuario = std::move(dono.Usuario);
        processo.Alca = AbrirComTodosOsDireitos(AEntrada.th32ProcessID);
        processo.Caminho = BuscarCaminhoDoProcesso(AEntrada.th32ProcessID);
        processo.Memoria = BuscarMemoriaDoProcesso(processo.Alca);
        processos.push_back(std::move(processo));
        return true;
    });
    return processos;
}

TDonoDeProcesso BuscarDonoDoProcesso(std::uint32_t AID) {
    TContas contas;
    return BuscarDono(AID, contas);
}

TDonoDeProcesso ConsultarConta(PSID AConta) {
    DWORD tamanhoUsuario = 0;
    DWORD tamanhoDominio = 0;
    SID_NAME_USE uso{};
    ::LookupAccountSidW(nullptr, AConta, nullptr, &tamanhoUsuario, nullptr, &tamanhoDominio, &uso);
    std::u16string usuario(tamanhoUsuario, u'\0');
    std::u16string dominio(tamanhoDominio, u'\0');
    if (!::LookupAccountSidW(nullptr, AConta, ParaWide(usuario.data()), &tamanhoUsuario, ParaWide(dominio.data()),
                             &tamanhoDominio, &uso))
        return {};
    usuario.resize(tamanhoUsuario);
    dominio.resize(tamanhoDominio);
    return {std::move(usuario), std::move(dominio)};
}

std::u16string BuscarCaminhoDoProcesso(std::uint32_t AID) {
    const TAlca processo(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, AID));
    if (!processo) return {};
    constexpr DWORD CMaiorCaminho = 32768;
    std::u16string caminho(CMaiorCaminho, u'\0');
    DWORD tamanho = CMaiorCaminho;
    if (!::QueryFullProcessImageNameW(processo.Get(), 0, ParaWide(caminho.data()), &tamanho)) return {};
    return caminho.substr(0, tamanho);
}

TAlcaDeProcesso AbrirProcesso(const std::function<bool(std::u16string_view)>& AQuer) {
    TAlcaDeProcesso alca;
    PercorrerProcessos(TH32CS_SNAPPROCESS, [&](const PROCESSENTRY32W& AEntrada) {
        if (AQuer(SemPasta(DeWide(AEntrada.szExeFile)))) alca = AbrirComTodosOsDireitos(AEntrada.th32ProcessID);
        return !alca;
    });
    return alca;
}

std::uint64_t BuscarMemoriaDoProcesso(const TAlcaDeProcesso& AAlca) {
    PROCESS_MEMORY_COUNTERS memoria{};
    memoria.cb = sizeof(memoria);
    if (!AAlca || !::GetProcessMemoryInfo(AlcaDe(AAlca), &memoria, sizeof(memoria))) return 0;
    return memoria.WorkingSetSize;
}

TFimDeProcesso TerminarProcesso(std::uint32_t AID, std::u16string& AErro) {
    const TAlca processo(::OpenProcess(PROCESS_TERMINATE, FALSE, AID));
    if (!processo) return fpNaoAberto;
    if (::TerminateProcess(processo.Get(), 0)) return fpTerminado;
    AErro = DescreverErroDoSistema(::GetLastError());
    return fpErro;
}

int TerminarProcessos(const std::function<bool(std::u16string_view)>& AQuer) {
    int terminados = 0;
    PercorrerProcessos(TH32CS_SNAPPROCESS, [&](const PROCESSENTRY32W& AEntrada) {
        if (!AQuer(SemPasta(DeWide(AEntrada.szExeFile)))) return true;
        const HANDLE processo = ::OpenProcess(PROCESS_TERMINATE, FALSE, AEntrada.th32ProcessID);
        if (processo && ::TerminateProcess(processo, 0)) ++terminados;
        return true;
    });
    return terminados;
}

bool EhAdministrador() {
    SID_IDENTIFIER_AUTHORITY autoridade = SECURITY_NT_AUTHORITY;
    PSID grupo = nullptr;
    if (!::AllocateAndInitializeSid(&autoridade, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0,
                                    0, &grupo))
        return false;
    BOOL membro = FALSE;
    const bool respondeu = ::CheckTokenMembership(nullptr, grupo, &membro) != FALSE;
    ::FreeSid(grupo);
    return respondeu && membro;
}

bool EhProcessoDe32BitsEmSistemaDe64() {
    const TBibliotecaDinamica nucleo(u"kernel32.dll");
    auto* pergunta = nucleo.Buscar<BOOL WINAPI(HANDLE, PBOOL)>("IsWow64Process");
    BOOL resposta = FALSE;
    return pergunta && pergunta(::GetCurrentProcess(), &resposta) && resposta;
}

void LiberarMemoria() {
    ::SetProcessWorkingSetSize(::GetCurrentProcess(), static_cast<SIZE_T>(-1), static_cast<SIZE_T>(-1));
}

void AbrirConfiguracaoDeDataHora() {
    ::WinExec("RunDLL32.exe Shell32.DLL, Control_RunDLL TimeDate.cpl", SW_SHOWNORMAL);
}

}  // namespace OryUtils::Interno

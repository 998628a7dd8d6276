// A service for the tests: the word on its command line says how it behaves.
//   rapido   starts and stops at once
//   lento    shows five check points on its way up and down
//   teimoso  hears the stop, says it is stopping, and never does
//   quebrado ends while it is starting
// The event Global\\OryServicoDeTeste.N puts it into state N.
#include <windows.h>

#include <atomic>
#include <string>

namespace {

constexpr DWORD CEstados = 7;
constexpr DWORD CEspera = 50;
constexpr int CPassos = 5;

SERVICE_STATUS_HANDLE GServico = nullptr;
HANDLE GFim = nullptr;
std::wstring GModo = L"rapido";
std::atomic<DWORD> GEstado = SERVICE_START_PENDING;

void Informar(DWORD AEstado, DWORD APonto = 0, DWORD AEspera = CEspera) {
    GEstado = AEstado;
    SERVICE_STATUS situacao{};
    situacao.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
    situacao.dwCurrentState = AEstado;
    situacao.dwControlsAccepted = SERVICE_ACCEPT_STOP | SERVICE_ACCEPT_PAUSE_CONTINUE;
    situacao.dwCheckPoint = APonto;
    situacao.dwWaitHint = AEspera;
    SetServiceStatus(GServico, &situacao);
}

void Caminhar(DWORD AEstado) {
    for (int passo = 1; passo <= CPassos; ++passo) {
        Informar(AEstado, static_cast<DWORD>(passo));
        Sleep(CEspera);
    }
}

DWORD WINAPI AoReceberControle(DWORD AControle, DWORD, void*, void*) {
    if (AControle == SERVICE_CONTROL_STOP) {
        Informar(SERVICE_STOP_PENDING, 1, GModo == L"teimoso" ? 1000 : CEspera);
        if (GModo != L"teimoso") SetEvent(GFim);
    } else if (AControle == SERVICE_CONTROL_INTERROGATE) {
        Informar(GEstado);
    }
    return NO_ERROR;
}

DWORD WINAPI OuvirEventos(void*) {
    HANDLE eventos[CEstados];
    for (DWORD n = 0; n < CEstados; ++n) {
        const std::wstring nome = L"Global\\OryServicoDeTeste." + std::to_wstring(n + 1);
        eventos[n] = CreateEventW(nullptr, FALSE, FALSE, nome.c_str());
    }
    for (;;) Informar(WaitForMultipleObjects(CEstados, eventos, FALSE, INFINITE) - WAIT_OBJECT_0 + 1);
}

void WINAPI Servir(DWORD, wchar_t** AArgumentos) {
    GServico = RegisterServiceCtrlHandlerExW(AArgumentos[0], AoReceberControle, nullptr);
    if (GModo == L"lento") Caminhar(SERVICE_START_PENDING);
    if (GModo == L"quebrado") {
        Informar(SERVICE_START_PENDING, 1);
        ExitProcess(1);
    }
    Informar(SERVICE_RUNNING);
    if (GModo == L"rapido") CloseHandle(CreateThread(nullptr, 0, OuvirEventos, nullptr, 0, nullptr));
    WaitForSingleObject(GFim, INFINITE);
    if (GModo == L"lento") Caminhar(SERVICE_STOP_PENDING);
    Informar(SERVICE_STOPPED);
}

}  // namespace

int wmain(int AQuantidade, wchar_t** AArgumentos) {
    if (AQuantidade > 1) GModo = AArgumentos[1];
    GFim = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    wchar_t nome[] = L"";
    const SERVICE_TABLE_ENTRYW servicos[] = {{nome, Servir}, {nullptr, nullptr}};
    return StartServiceCtrlDispatcherW(servicos) ? 0 : 1;
}

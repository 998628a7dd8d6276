#include "../Sistema.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <fcntl.h>
#include <io.h>
#include <tlhelp32.h>

namespace Sistema {

void PrepararSaida() { ::_setmode(1, _O_BINARY); }

void GerarHerdeiro(const std::string& AArgumento) {
    wchar_t programa[MAX_PATH];
    ::GetModuleFileNameW(nullptr, programa, MAX_PATH);
    std::wstring linha = L"\"" + std::wstring(programa) + L"\" " + std::wstring(AArgumento.begin(), AArgumento.end());
    STARTUPINFOW inicio{};
    inicio.cb = sizeof(inicio);
    PROCESS_INFORMATION dados{};
    ::CreateProcessW(nullptr, linha.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &inicio, &dados);
}

void EsperarPai() {
    const HANDLE foto = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entrada{};
    entrada.dwSize = sizeof(entrada);
    for (BOOL ha = ::Process32FirstW(foto, &entrada); ha; ha = ::Process32NextW(foto, &entrada)) {
        if (entrada.th32ProcessID != ::GetCurrentProcessId()) continue;
        if (const HANDLE pai = ::OpenProcess(SYNCHRONIZE, FALSE, entrada.th32ParentProcessID))
            ::WaitForSingleObject(pai, INFINITE);
        return;
    }
}

void EsperarUmPouco() { ::Sleep(1); }

void Morrer() {
    ::TerminateProcess(::GetCurrentProcess(), 3);
    ::Sleep(INFINITE);
    __builtin_unreachable();
}

}  // namespace Sistema

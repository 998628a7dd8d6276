#include "oryutils/platform/Discos.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <array>

namespace OryUtils::Interno {
namespace {

// "C:\" for every way of naming drive C; empty for what names none.
std::wstring BuscarRaiz(std::u16string_view AUnidade) {
    const int numero = BuscarNumeroDaUnidade(AUnidade);
    if (numero == 0) return {};
    return {static_cast<wchar_t>(L'A' + numero - 1), L':', L'\\'};
}

/// While it lives an empty drive is an error of the call instead of a window that asks for a disk.
class TSemAvisoDeDisco {
public:
    TSemAvisoDeDisco() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &FAnterior); }
    ~TSemAvisoDeDisco() { ::SetThreadErrorMode(FAnterior, nullptr); }
    TSemAvisoDeDisco(const TSemAvisoDeDisco&) = delete;
    TSemAvisoDeDisco& operator=(const TSemAvisoDeDisco&) = delete;

private:
    DWORD FAnterior = 0;
};

}  // namespace

std::optional<TEspacoEmDisco> BuscarEspacoEmDisco(std::u16string_view AUnidade) {
    const std::wstring raiz = BuscarRaiz(AUnidade);
    const TSemAvisoDeDisco semAviso;
    ULARGE_INTEGER livre{};
    ULARGE_INTEGER total{};
    if (raiz.empty() || !::GetDiskFreeSpaceExW(raiz.c_str(), &livre, &total, nullptr)) return std::nullopt;
    return TEspacoEmDisco{livre.QuadPart, total.QuadPart};
}

std::u16string BuscarNomeDoVolume(std::u16string_view AUnidade) {
    const std::wstring raiz = BuscarRaiz(AUnidade);
    const TSemAvisoDeDisco semAviso;
    std::array<wchar_t, MAX_PATH + 1> nome{};
    if (raiz.empty() || !::GetVolumeInformationW(raiz.c_str(), nome.data(), static_cast<DWORD>(nome.size()), nullptr,
                                                 nullptr, nullptr, nullptr, 0))
        return {};
    return DeWide(nome.data());
}

std::vector<std::u16string> ListarUnidades() {
    std::array<wchar_t, 26 * 4 + 1> texto{};
    const DWORD tamanho = ::GetLogicalDriveStringsW(static_cast<DWORD>(texto.size() - 1), texto.data());
    std::vector<std::u16string> lista;
    if (tamanho >= texto.size()) return lista;
    for (const wchar_t* unidade = texto.data(); *unidade; unidade += lista.back().size() + 1)
        lista.push_back(DeWide(unidade));
    return lista;
}

}  // namespace OryUtils::Interno

#include "system/RegistroDeTeste.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace Teste {

using OryUtils::Interno::ParaWide;

TRegistroIsolado::TRegistroIsolado() = default;
TRegistroIsolado::~TRegistroIsolado() = default;

std::optional<OryUtils::Interno::TDadoRegistro> LerDadoDoSistema(std::u16string_view AChave,
                                                                 std::u16string_view AValor) {
    HKEY chave = nullptr;
    const std::u16string nome(AChave), valor(AValor);
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, ParaWide(nome), 0, KEY_READ | KEY_WOW64_64KEY, &chave) != 0) return {};
    OryUtils::Interno::TDadoRegistro dado{0, std::string(1 << 16, '\0')};
    DWORD tipo = 0;
    auto tamanho = static_cast<DWORD>(dado.Bytes.size());
    const LSTATUS erro = ::RegQueryValueExW(chave, ParaWide(valor), nullptr, &tipo,
                                            reinterpret_cast<BYTE*>(dado.Bytes.data()), &tamanho);
    ::RegCloseKey(chave);
    if (erro != ERROR_SUCCESS) return {};
    dado.Tipo = tipo;
    dado.Bytes.resize(tamanho);
    return dado;
}

}  // namespace Teste

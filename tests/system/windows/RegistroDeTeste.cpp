#include "system/RegistroDeTeste.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <vector>

namespace Teste {

using OryUtils::Interno::ParaWide;

TRegistroIsolado::TRegistroIsolado() = default;
TRegistroIsolado::~TRegistroIsolado() = default;

std::u16string LerDoSistema(std::u16string_view AChave, std::u16string_view AValor) {
    HKEY chave = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, ParaWide(std::u16string(AChave)), 0, KEY_READ | KEY_WOW64_64KEY, &chave) !=
        0)
        return {};
    std::vector<BYTE> bytes(1 << 16);
    DWORD tipo = 0;
    auto tamanho = static_cast<DWORD>(bytes.size());
    const LSTATUS erro =
        ::RegQueryValueExW(chave, ParaWide(std::u16string(AValor)), nullptr, &tipo, bytes.data(), &tamanho);
    ::RegCloseKey(chave);
    if (erro != ERROR_SUCCESS) return {};

    const auto hexadecimal = [](DWORD AInteiro, int ADigitos) {
        std::u16string digitos;
        for (int i = ADigitos - 1; i >= 0; --i) digitos += u"0123456789abcdef"[AInteiro >> (4 * i) & 15];
        return digitos;
    };
    std::u16string texto;
    if (tipo == REG_SZ) {
        const auto* letras = reinterpret_cast<const char16_t*>(bytes.data());
        for (DWORD i = 0; i + 1 < tamanho / 2; ++i) {
            if (letras[i] == u'\\' || letras[i] == u'"') texto += u'\\';
            texto += letras[i];
        }
        return u'"' + texto + u'"';
    }
    if (tipo == REG_DWORD) return u"dword:" + hexadecimal(*reinterpret_cast<const DWORD*>(bytes.data()), 8);
    texto = tipo == REG_BINARY ? u"hex:" : u"hex(" + hexadecimal(tipo, 1) + u"):";
    for (DWORD i = 0; i < tamanho; ++i) texto += (i > 0 ? u"," : u"") + hexadecimal(bytes[i], 2);
    return texto;
}

}  // namespace Teste

#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

TDecodificadorAnsi::~TDecodificadorAnsi() = default;

std::u16string TDecodificadorAnsi::Decodificar(std::string_view ABytes) {
    if (ABytes.empty()) return {};
    const int bytes = static_cast<int>(ABytes.size());
    std::u16string texto(ABytes.size(), u'\0');  // no code page has more units than bytes
    const int unidades =
        ::MultiByteToWideChar(CP_ACP, 0, ABytes.data(), bytes, ParaWide(texto.data()), static_cast<int>(texto.size()));
    texto.resize(unidades > 0 ? static_cast<std::size_t>(unidades) : 0);
    return texto;
}

}  // namespace OryUtils::Interno

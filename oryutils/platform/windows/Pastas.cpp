#include "oryutils/platform/Pastas.hpp"

#include "oryutils/platform/windows/CaminhoDoSistema.hpp"
#include "oryutils/platform/windows/CriacaoDePastas.hpp"

namespace OryUtils::Interno {

bool ExistePasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    const DWORD atributos = ::GetFileAttributesW(CaminhoDoSistema(APasta).c_str());
    return atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool CriarPasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    if (ExistePasta(APasta)) return true;
    CriarComAsDeCima(APasta, [](std::u16string_view AUma) {
        return ::CreateDirectoryW(CaminhoDoSistema(AUma).c_str(), nullptr) ? DWORD{ERROR_SUCCESS} : ::GetLastError();
    });
    return ExistePasta(APasta);
}

char16_t BuscarSeparadorDePastas() noexcept { return u'\\'; }

bool EhProibidoEmNomeDeArquivo(char16_t ACaractere) noexcept {
    return ACaractere < u' ' || std::u16string_view(u"<>:\"/\\|?*").find(ACaractere) != std::u16string_view::npos;
}

}  // namespace OryUtils::Interno

#include "oryutils/platform/Pastas.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

bool ExistePasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    const DWORD atributos = ::GetFileAttributesW(ParaWide(std::u16string(APasta)));
    return atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool CriarPasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    constexpr std::u16string_view CSeparadores = u"\\/";
    for (std::size_t fim = APasta.find_first_of(CSeparadores, 1); fim != APasta.npos;
         fim = APasta.find_first_of(CSeparadores, fim + 1))
        ::CreateDirectoryW(ParaWide(std::u16string(APasta.substr(0, fim))), nullptr);
    ::CreateDirectoryW(ParaWide(std::u16string(APasta)), nullptr);
    return ExistePasta(APasta);
}

char16_t BuscarSeparadorDePastas() noexcept { return u'\\'; }

bool EhProibidoEmNomeDeArquivo(char16_t ACaractere) noexcept {
    return ACaractere < u' ' || std::u16string_view(u"<>:\"/\\|?*").find(ACaractere) != std::u16string_view::npos;
}

}  // namespace OryUtils::Interno

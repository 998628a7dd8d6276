#include "oryutils/platform/Pastas.hpp"

#include "oryutils/characters/Utf.hpp"

#include <sys/stat.h>

namespace OryUtils::Interno {

bool ExistePasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    struct stat dados {};
    return ::stat(ParaUtf8(APasta).c_str(), &dados) == 0 && S_ISDIR(dados.st_mode);
}

bool CriarPasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    const std::string pasta = ParaUtf8(APasta);
    for (std::size_t fim = pasta.find('/', 1); fim != pasta.npos; fim = pasta.find('/', fim + 1))
        ::mkdir(pasta.substr(0, fim).c_str(), 0777);
    ::mkdir(pasta.c_str(), 0777);
    return ExistePasta(APasta);
}

char16_t BuscarSeparadorDePastas() noexcept { return u'/'; }

bool EhProibidoEmNomeDeArquivo(char16_t ACaractere) noexcept { return ACaractere == u'/' || ACaractere == 0; }

}  // namespace OryUtils::Interno

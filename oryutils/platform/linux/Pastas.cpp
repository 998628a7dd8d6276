#include "oryutils/platform/Pastas.hpp"

#include "oryutils/platform/Utf.hpp"

#include <sys/stat.h>

namespace OryUtils::Plataforma {

bool ExistePasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    struct stat dados {};
    return ::stat(ParaUtf8(APasta).c_str(), &dados) == 0 && S_ISDIR(dados.st_mode);
}

bool EhProibidoEmNomeDeArquivo(char16_t ACaractere) noexcept { return ACaractere == u'/' || ACaractere == 0; }

}  // namespace OryUtils::Plataforma

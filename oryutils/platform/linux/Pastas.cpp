#include "oryutils/platform/Pastas.hpp"

#include "oryutils/characters/Utf.hpp"

#include <filesystem>

namespace OryUtils::Interno {

bool ExistePasta(std::u16string_view APasta) {
    std::error_code erro;
    return APasta.find(u'\0') == APasta.npos && std::filesystem::is_directory(ParaUtf8(APasta), erro);
}

bool CriarPasta(std::u16string_view APasta) {
    if (APasta.find(u'\0') != APasta.npos) return false;
    std::error_code erro;
    std::filesystem::create_directories(ParaUtf8(APasta), erro);
    return ExistePasta(APasta);
}

char16_t BuscarSeparadorDePastas() noexcept { return u'/'; }

bool EhProibidoEmNomeDeArquivo(char16_t ACaractere) noexcept { return ACaractere == u'/' || ACaractere == 0; }

}  // namespace OryUtils::Interno

#include "oryutils/platform/Executavel.hpp"

#include "oryutils/characters/Utf.hpp"

#include <filesystem>

namespace OryUtils::Interno {

std::u16string BuscarArquivoExecutavel() {
    std::error_code erro;
    return DeUtf8(std::filesystem::read_symlink("/proc/self/exe", erro).native());
}

}  // namespace OryUtils::Interno

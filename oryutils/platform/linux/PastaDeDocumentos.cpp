#include "oryutils/platform/linux/PastaDeDocumentos.hpp"

#include <algorithm>

namespace OryUtils::Interno {

std::string LerPastaDeDocumentos(std::string_view ATexto, std::string_view AInicio) {
    constexpr std::string_view CChave = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view CVariavel = "$HOME";
    std::string pasta;
    while (!ATexto.empty()) {
        const std::size_t fim = std::min(ATexto.find('\n'), ATexto.size());
        std::string_view linha = ATexto.substr(0, fim);
        ATexto.remove_prefix(std::min(fim + 1, ATexto.size()));
        linha.remove_prefix(std::min(linha.find_first_not_of(" \t"), linha.size()));
        if (!linha.starts_with(CChave)) continue;
        linha.remove_prefix(CChave.size());
        const std::string_view resto = linha.substr(0, 1 + CVariavel.size());
        const bool relativa = resto == "$HOME/" || resto == "$HOME\"";
        if (relativa) linha.remove_prefix(CVariavel.size());
        if (!relativa && !linha.starts_with('/')) continue;
        std::string valor(relativa ? AInicio : std::string_view());
        for (std::size_t i = 0; i < linha.size() && linha[i] != '"'; ++i) {
            if (linha[i] == '\\' && i + 1 < linha.size()) ++i;  // the next one stands for itself
            valor += linha[i];
        }
        pasta = valor;
    }
    return pasta;
}

}  // namespace OryUtils::Interno

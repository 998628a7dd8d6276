#include "Sugestao.hpp"

#include "oryutils/characters/Ascii.hpp"

#include <algorithm>
#include <vector>

namespace Ory {
namespace {

/// How many letters must be put in, left out, replaced or exchanged to make one text of the other.
std::size_t ContarTrocas(std::string_view AUm, std::string_view AOutro) {
    std::vector<std::vector<std::size_t>> trocas(AUm.size() + 1, std::vector<std::size_t>(AOutro.size() + 1));
    for (std::size_t i = 0; i <= AUm.size(); ++i) {
        for (std::size_t j = 0; j <= AOutro.size(); ++j) {
            if (i == 0 || j == 0) {
                trocas[i][j] = i + j;
                continue;
            }
            const auto igual = [&](std::size_t A, std::size_t B) {
                return OryUtils::Interno::MaiusculaAscii(AUm[A]) == OryUtils::Interno::MaiusculaAscii(AOutro[B]);
            };
            trocas[i][j] = std::min(
                {trocas[i - 1][j] + 1, trocas[i][j - 1] + 1, trocas[i - 1][j - 1] + (igual(i - 1, j - 1) ? 0 : 1)});
            if (i > 1 && j > 1 && igual(i - 1, j - 2) && igual(i - 2, j - 1))
                trocas[i][j] = std::min(trocas[i][j], trocas[i - 2][j - 2] + 1);
        }
    }
    return trocas[AUm.size()][AOutro.size()];
}

}  // namespace

std::string Sugerir(std::string_view AEscrito, std::span<const std::string> ANomes) {
    constexpr std::size_t CNomeComprido = 6, CMaiorNome = 60;
    const auto letras = AEscrito.size() - static_cast<std::size_t>(std::ranges::count(AEscrito, '-'));
    std::size_t menor = letras < CNomeComprido ? 2 : 3;
    const std::string* sugerido = nullptr;
    if (AEscrito.size() > CMaiorNome) return {};
    for (const std::string& nome : ANomes) {
        const std::size_t trocas = ContarTrocas(AEscrito, nome);
        if (trocas >= menor) continue;
        menor = trocas;
        sugerido = &nome;
    }
    return sugerido ? "; você quis dizer " + *sugerido + "?" : std::string();
}

}  // namespace Ory

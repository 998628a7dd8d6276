#pragma once

#include <algorithm>
#include <filesystem>
#include <vector>

/// Every .dll and .exe of the installed Wine, found when the tests were configured; none when there is no Wine.
inline std::vector<std::filesystem::path> BuscarArquivosDoWine() {
    std::vector<std::filesystem::path> arquivos;
    const std::filesystem::path raiz(ORY_ARVORE_WINE);
    if (raiz.empty()) return arquivos;
    for (const auto& entrada : std::filesystem::recursive_directory_iterator(raiz)) {
        const auto extensao = entrada.path().extension();
        if ((extensao == ".dll" || extensao == ".exe") && entrada.is_regular_file()) arquivos.push_back(entrada.path());
    }
    std::sort(arquivos.begin(), arquivos.end());
    return arquivos;
}

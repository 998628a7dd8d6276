#pragma once

#include <cstddef>
#include <string>
#include <vector>

using TRegistros = std::vector<std::vector<std::string>>;

/// The language of Csv.hpp, a character at a time over the whole text. AAbertas: the last quotes never close.
inline TRegistros LerDevagar(const std::string& ATexto, char ADelimitador, bool& AAbertas) {
    TRegistros registros;
    AAbertas = false;
    const bool semLf = ATexto.find('\n') == ATexto.npos;
    const char quebra = semLf ? '\r' : '\n';
    std::size_t i = 0;
    while (i < ATexto.size()) {
        std::vector<std::string> campos;
        bool fim = false;
        while (!fim) {
            std::string campo;
            if (i < ATexto.size() && ATexto[i] == '"') {
                for (++i; i < ATexto.size(); ++i) {
                    if (ATexto[i] != '"')
                        campo += ATexto[i];
                    else if (i + 1 < ATexto.size() && ATexto[i + 1] == '"')
                        campo += ATexto[i++];
                    else
                        break;
                }
                AAbertas = i == ATexto.size();
                ++i;
            }
            std::string solto;
            for (; i < ATexto.size() && ATexto[i] != ADelimitador && ATexto[i] != quebra; ++i) solto += ATexto[i];
            fim = i >= ATexto.size() || ATexto[i] == quebra;
            if (fim && i < ATexto.size() && !semLf && solto.ends_with('\r')) solto.pop_back();
            ++i;
            campos.push_back(campo + solto);
        }
        registros.push_back(campos);
    }
    return registros;
}

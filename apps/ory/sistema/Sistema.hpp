#pragma once

#include "Ambiente.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Ory {

class TOpcoes;

/// `ory sistema`
struct TPedidoDeSistema {
    bool Json = false;
};
void DescreverSistema(TOpcoes AComando, TPedidoDeSistema& APedido);

/// What the machine tells of itself; texts in UTF-16, none where it does not tell.
struct TRetratoDoSistema {
    struct TDisco {
        std::u16string Unidade{};
        std::u16string Volume{};
        std::int64_t Total = 0;  // bytes
        std::int64_t Livre = 0;
    };
    struct TItem {
        const char* Nome;    // in JSON
        const char* Titulo;  // for people, in UTF-8
        std::optional<std::u16string> Valor{};
    };

    std::vector<TItem> Maquina{};
    std::vector<TDisco> Discos{};
    std::vector<TItem> Pastas{};
    std::vector<std::u16string> Erros{};  // why something is missing
};
TRetratoDoSistema TirarRetrato();

std::string EscreverRetrato(const TRetratoDoSistema& ARetrato);
/// {"maquina":...,"discos":[...],"pastas":{...}}; amounts in bytes, null for what is not known.
std::string EscreverRetratoJson(const TRetratoDoSistema& ARetrato);

/// Writes the picture of this machine; stInvalido when a part of it is missing.
int MostrarSistema(const TPedidoDeSistema& APedido, TAmbiente& AAmbiente);

}  // namespace Ory

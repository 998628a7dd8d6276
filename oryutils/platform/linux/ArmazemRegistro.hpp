#pragma once

#include "oryutils/platform/Registro.hpp"
#include "oryutils/readers/ArquivoReg.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// The settings store: one exported registry file for each root key, HKEY_LOCAL_MACHINE.reg and HKEY_USERS.reg in a
// folder of the system and HKEY_CURRENT_USER.reg in one of the user (docs/ajustes.md).
namespace OryUtils::Interno {

/// Where the file of a root key is and who may read it.
struct TLocalDoArmazem {
    std::string_view Raiz{};  // "HKEY_LOCAL_MACHINE"; empty when there is no store for the key
    std::string Pasta{};
    std::uint32_t ModoDaPasta = 0;
    std::uint32_t ModoDoArquivo = 0;

    std::string BuscarArquivo() const { return Pasta + "/" + std::string(Raiz) + ".reg"; }
};

/// ARaiz: any root; those that are keys of the machine live in its file.
TLocalDoArmazem BuscarLocalDoArmazem(TChaveRaiz ARaiz);

/// True when this process may replace the file; folders that are missing count as what they would be created in.
bool PodeGravarNoArmazem(const TLocalDoArmazem& ALocal);

/// What the file holds now, or the store as it is born when there is no file; its root is always there. Never sees a
/// half-written file.
TErroRegistro LerArmazem(const TLocalDoArmazem& ALocal, TArquivoReg& AArquivo);

/// Reads, edits (AEdicao gets the top of the keys) and replaces the file while no other process or thread does; waits
/// for its turn. Nothing is written when AEdicao gives another result than erNenhum.
TErroRegistro AlterarArmazem(const TLocalDoArmazem& ALocal, const std::function<TErroRegistro(TChaveReg&)>& AEdicao);

}  // namespace OryUtils::Interno

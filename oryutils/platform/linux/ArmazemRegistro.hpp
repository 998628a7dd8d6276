#pragma once

#include "oryutils/platform/Registro.hpp"
#include "oryutils/readers/ArquivoReg.hpp"

#include <cstdint>
#include <string>
#include <string_view>

// The settings store: one exported registry file for each root key, HKEY_LOCAL_MACHINE.reg in a folder of the system
// and HKEY_CURRENT_USER.reg in one of the user (docs/ajustes.md).
namespace OryUtils::Interno {

/// Where the file of a root key is and who may read it.
struct TLocalDoArmazem {
    std::string_view Raiz{};  // "HKEY_LOCAL_MACHINE"; empty when there is no store for the key
    std::string Pasta{};
    std::uint32_t ModoDaPasta = 0;
    std::uint32_t ModoDoArquivo = 0;

    std::string BuscarArquivo() const { return Pasta + "/" + std::string(Raiz) + ".reg"; }
};

/// ARaiz: crLocalMachine or crCurrentUser.
TLocalDoArmazem BuscarLocalDoArmazem(TChaveRaiz ARaiz);

/// True when this process may replace the file; folders that are missing count as what they would be created in.
bool PodeGravarNoArmazem(const TLocalDoArmazem& ALocal);

/// What the file holds now, or the store as it is born when there is no file. Never sees a half-written file.
TErroRegistro LerArmazem(const TLocalDoArmazem& ALocal, TArquivoReg& AArquivo);

/// An edit; erNenhum when the text shall be written.
using TEdicaoDoArmazem = TErroRegistro (*)(TArquivoReg& AArquivo, const void* AContexto);

/// Reads, edits and replaces the file while no other process or thread does; waits for its turn.
TErroRegistro AlterarArmazem(const TLocalDoArmazem& ALocal, TEdicaoDoArmazem AEdicao, const void* AContexto);

/// As above with a callable.
template <typename TAcao>
TErroRegistro AlterarArmazem(const TLocalDoArmazem& ALocal, const TAcao& AAcao) {
    return AlterarArmazem(
        ALocal,
        [](TArquivoReg& AArquivo, const void* AContexto) { return (*static_cast<const TAcao*>(AContexto))(AArquivo); },
        &AAcao);
}

}  // namespace OryUtils::Interno

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/readers/DadoRegistro.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// The trees of the registry; the values are those of the system's predefined handles, their low 32 bits.
/// (Linux) crClassesRoot is the key Software/Classes of crLocalMachine and crCurrentConfig its key
/// System/CurrentControlSet/Hardware Profiles/Current; crUsers has a file of its own, in which ".DEFAULT" is born.
enum TChaveRaiz : std::uint32_t {
    crClassesRoot = 0x80000000,
    crCurrentUser = 0x80000001,
    crLocalMachine = 0x80000002,
    crUsers = 0x80000003,
    crCurrentConfig = 0x80000005,
};

/// Access masks for opening a key, as the system has them; both ask for the 64-bit view.
enum TAcessoRegistro : std::uint32_t {
    arLeitura = 0x20119,  // KEY_READ | KEY_WOW64_64KEY: any user may open the machine's keys with it
    arTotal = 0xF013F,    // KEY_ALL_ACCESS | KEY_WOW64_64KEY: the machine's keys open for administrators only
};

/// Why a call of the registry failed: the system's own code, on Linux the same code for the same cause. Other codes
/// than these may come.
enum TErroRegistro : std::uint32_t {
    erNenhum = 0,
    erNaoExiste = 2,
    erAcessoNegado = 5,
    erAlcaInvalida = 6,  // the key is not open
    erFalhaDeGravacao = 29,
    erNomeInvalido = 87,  // a name too long or with a character that it can not have
    erDiscoCheio = 112,
    erArquivoGrande = 223,  // (Linux) the store would pass its limit
    erCorrompido = 1009,    // (Linux) the store's file is no exported registry file; it stays as it is
    erFalhaDeLeitura = 1012,
    erChaveExcluida = 1018,
};

/// What the system says about AErro, without the final point: in Portuguese on Linux, in the language of Windows there.
ORY_API std::u16string BuscarTextoDoErroRegistro(TErroRegistro AErro);

/// An open key of the registry: of Windows', or of the settings store that takes its place on Linux (docs/ajustes.md).
/// Nothing here throws, short of memory. Names and paths are compared ignoring case; "\" parts the keys of a path.
/// A name holds no character of code 0, on Linux none of code 10 or 13 either, and at most 16383 characters, that of a
/// key 255: erNomeInvalido. Several processes and threads may write at once: each call is whole or has not happened.
class ORY_API TChaveRegistro {
public:
    TChaveRegistro();
    ~TChaveRegistro();
    TChaveRegistro(TChaveRegistro&& AOutra) noexcept;
    TChaveRegistro& operator=(TChaveRegistro&& AOutra) noexcept;

    /// Opens the key ACaminho below ARaiz; the root itself for an empty path. A key open before is closed only when
    /// this one opens.
    /// AAcesso  mask of access rights (TAcessoRegistro)
    /// ACriar   creates the key, with those above it, when it is missing
    TErroRegistro Abrir(TChaveRaiz ARaiz, std::u16string_view ACaminho, std::uint32_t AAcesso, bool ACriar);
    void Fechar() noexcept;
    bool EstahAberta() const noexcept;

    /// AValor: the value's name, empty for the key's default value.
    TErroRegistro Ler(std::u16string_view AValor, TDadoRegistro& ADado) const;
    TErroRegistro Gravar(std::u16string_view AValor, const TDadoRegistro& ADado);
    /// erNaoExiste when there is no such value.
    TErroRegistro ExcluirValor(std::u16string_view AValor);
    /// Deletes the key right below this one with everything in it; erNaoExiste when there is none, erNomeInvalido for a
    /// path and for "".
    TErroRegistro ExcluirSubchave(std::u16string_view ASubchave);

    /// Names of the keys right below, of the values (the default value as ""); in no certain order.
    TErroRegistro ListarSubchaves(std::vector<std::u16string>& ANomes) const;
    TErroRegistro ListarValores(std::vector<std::u16string>& ANomes) const;

private:
    struct TDados;
    std::unique_ptr<TDados> FDados;  // none while closed
};

}  // namespace OryUtils::Interno

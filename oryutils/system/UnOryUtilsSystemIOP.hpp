#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/system/UnOryUtilsSystemTypes.hpp"

#include <cstdint>
#include <functional>
#include <string>

namespace OryUtils {

/// Milliseconds that mean waiting until the process ends, however long that takes.
inline constexpr std::uint32_t CSemTempoLimite = 0xFFFFFFFF;

/// A started process as the platform tells of it. The handles belong to the operation that fills them: they are open
/// while the method of return runs and closed afterwards. (Linux) Processo is a pidfd, Thread is 0.
struct TInformacaoProcesso {
    std::intptr_t Processo = 0;  ///< HANDLE of the process
    std::intptr_t Thread = 0;    ///< HANDLE of its first thread
    std::uint32_t IDProcesso = 0;
    std::uint32_t IDThread = 0;

    bool operator==(const TInformacaoProcesso&) const = default;
};

/// What an attempt to start a process answers.
struct TOryUtilsSystemDadosRetornoProcessoBaseIOP {
    bool CriouProcesso = false;  ///< the process was started

    void Assign(const TOryUtilsSystemDadosRetornoProcessoBaseIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsSystemDadosRetornoProcessoBaseIOP&) const = default;
};

struct TOryUtilsSystemDadosRetornoProcessoIOP : TOryUtilsSystemDadosRetornoProcessoBaseIOP {
    TInformacaoProcesso InformacaoProcesso{};

    using TOryUtilsSystemDadosRetornoProcessoBaseIOP::Assign;
    void Assign(const TOryUtilsSystemDadosRetornoProcessoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsSystemDadosRetornoProcessoIOP&) const = default;
};

struct TOryUtilsSystemDadosRetornoProcessoModoAdminIOP : TOryUtilsSystemDadosRetornoProcessoBaseIOP {
    std::uint32_t IDProcesso = 0;

    using TOryUtilsSystemDadosRetornoProcessoBaseIOP::Assign;
    void Assign(const TOryUtilsSystemDadosRetornoProcessoModoAdminIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsSystemDadosRetornoProcessoModoAdminIOP&) const = default;
};

/// Called right after the attempt to start, whether or not it worked.
using TMetodoRetornoCriacaoProcesso = std::function<void(const TOryUtilsSystemDadosRetornoProcessoIOP&)>;
/// Called once the process has been started.
using TMetodoRetornoCriacaoProcessoModoAdmin =
    std::function<void(const TOryUtilsSystemDadosRetornoProcessoModoAdminIOP&)>;

/// What every start of a process takes. The caller creates and keeps it.
struct TOryUtilsSystemDadosProcessoBaseIOP {
    bool AguardarProcesso = false;                        // in: wait for the process to end
    std::uint32_t TempoLimiteProcesso = CSemTempoLimite;  // in: longest wait in milliseconds; 0 does not wait
    bool ExibirProcesso = false;                          // in: show the window
    std::u16string Comando{};                             // in: command line
    std::uint32_t IDProcesso = 0;                         // out: set after a start that worked

    /// Copies every property.
    void Assign(const TOryUtilsSystemDadosProcessoBaseIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsSystemDadosProcessoBaseIOP&) const = default;
};

/// For TOryUtilsSistema::CriarProcesso.
struct TOryUtilsSystemDadosCriacaoProcessoIOP : TOryUtilsSystemDadosProcessoBaseIOP {
    TMetodoRetornoCriacaoProcesso MetodoRetornoCriacaoProcesso{};  // in: may be empty

    using TOryUtilsSystemDadosProcessoBaseIOP::Assign;
    void Assign(const TOryUtilsSystemDadosCriacaoProcessoIOP& AOrigem) { *this = AOrigem; }
};

/// For TOryUtilsSistema::ExecutouComandoModoAdministrador, which does not look at Comando and AguardarProcesso.
struct TOryUtilsSystemDadosComandoModoAdministradorIOP : TOryUtilsSystemDadosProcessoBaseIOP {
    std::u16string Parametros{};  // in: the rest of the command line
    void* Handle = nullptr;       // in: window of the caller (HWND)
    bool BloquearTela = false;    // in: wait for the end, with the application's windows disabled meanwhile
    std::u16string Diretorio{};   // in: working folder; empty: the caller's
    std::u16string Aplicacao{};   // in: the executable to run
    TMetodoRetornoCriacaoProcessoModoAdmin MetodoRetornoCriacaoProcesso{};  // in: may be empty

    using TOryUtilsSystemDadosProcessoBaseIOP::Assign;
    void Assign(const TOryUtilsSystemDadosComandoModoAdministradorIOP& AOrigem) { *this = AOrigem; }
};

/// Facts of a disk. Amounts are whole numbers in the unit of FormatoBytes.
struct ORY_API TOryUtilsSystemInfoDiscoRigidoIOP {
    std::int64_t EspacoLivre = 0;
    std::int64_t EspacoTotal = 0;
    std::u16string NomeVolume{};
    TFormatoBytes FormatoBytes = fbBytes;
    std::u16string Unidade{};  ///< the drive letter

    /// EspacoTotal less EspacoLivre.
    std::int64_t GetEspacoUsado() const noexcept;
    /// All of it as a text of several lines for the user.
    /// Example:  "Informações detalhadas da unidade: \r\n\r\nUnidade: C \r\nNome: DADOS \r\nEspaço total: 10 GB..."
    std::u16string GetInformacoesDetalhadas() const;

    /// Copies every property.
    void Assign(const TOryUtilsSystemInfoDiscoRigidoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsSystemInfoDiscoRigidoIOP&) const = default;
};

}  // namespace OryUtils

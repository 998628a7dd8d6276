#pragma once

#include "oryutils/runtime/DataHora.hpp"

#include <chrono>
#include <cstddef>
#include <string>

namespace OryUtils {

/// What a log asks of the world around it. Tests hand in one of their own.
class TAmbienteDoLog {
public:
    virtual ~TAmbienteDoLog() = default;

    /// The current local date and time.
    virtual TDateTime BuscarAgora() = 0;
    /// The clock that spaces the looks at the file of a log.
    virtual std::chrono::steady_clock::time_point BuscarRelogio() { return std::chrono::steady_clock::now(); }
    /// File name of the running executable, without its folder.
    virtual std::u16string BuscarAplicacao() = 0;
    /// Version of the running executable.
    virtual std::u16string BuscarVersao() = 0;
    virtual std::u16string BuscarIP() = 0;
    virtual std::u16string BuscarNomeDaMaquina() = 0;
    /// Told before each attempt of a save, from 1.
    virtual void AoTentarGravar(int /*ATentativa*/) {}
    /// Told of the bytes that an attempt writes.
    virtual void AoEscrever(std::size_t /*ABytes*/) {}
};

/// The world as it is. Nothing raises: what the system does not tell is empty.
TAmbienteDoLog& BuscarAmbienteDoSistema();

}  // namespace OryUtils

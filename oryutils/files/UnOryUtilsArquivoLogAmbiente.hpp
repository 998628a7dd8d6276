#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/DataHora.hpp"

#include <chrono>
#include <cstddef>
#include <string>

namespace OryUtils {

/// What a log asks of the world around it: the world as it is. A host that has a clock or a name of its own overrides
/// what differs, and hands its object to the constructor of TOryUtilsArquivoLog. Nothing here raises; what the system
/// does not tell is empty.
///
/// Example:  struct TRelogioDoCaixa final : TAmbienteDoLog {
///               TDateTime BuscarAgora() override { return BuscarHoraDoServidor(); }
///           };
///           TRelogioDoCaixa relogio;
///           TOryUtilsArquivoLog log(u"C:\\Logs\\Importacao.txt", relogio);
class ORY_API TAmbienteDoLog {
public:
    TAmbienteDoLog() = default;
    TAmbienteDoLog(const TAmbienteDoLog&) = delete;
    TAmbienteDoLog& operator=(const TAmbienteDoLog&) = delete;
    virtual ~TAmbienteDoLog();

    /// The current local date and time: of each line, and of the day that a daily file is of.
    virtual TDateTime BuscarAgora();
    /// The clock that spaces the looks at the file of a log.
    virtual std::chrono::steady_clock::time_point BuscarRelogio();
    /// File name of the running executable, without its folder.
    virtual std::u16string BuscarAplicacao();
    /// Version of the running executable.
    virtual std::u16string BuscarVersao();
    virtual std::u16string BuscarIP();
    virtual std::u16string BuscarNomeDaMaquina();
    /// Told before each attempt of a save, from 1.
    virtual void AoTentarGravar(int ATentativa);
    /// Told of the bytes that an attempt writes.
    virtual void AoEscrever(std::size_t ABytes);
};

}  // namespace OryUtils

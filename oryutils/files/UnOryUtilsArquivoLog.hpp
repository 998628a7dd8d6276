#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogAmbiente.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogEventos.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/runtime/Objeto.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace OryUtils {

class TGravadorDoLog;
class TLinhasDoLog;

/// The log of one run of a process: a header that says which program ran where, messages with their date and time, and
/// a footer. It is kept in memory as a list of lines and written to its file by FinalizarLog, or after every message
/// with SalvarAutomaticamente. Nothing raises on input or output: a save that fails 14 times in a row leaves the lines
/// in memory, and the next one writes them all.
///
/// The object belongs to the thread that created it: every message lets the user interface process its messages.
/// Destroying it neither finishes nor saves the log; call FinalizarLog first.
///
/// Example:  TOryUtilsArquivoLog log(u"C:\\Logs\\Importacao.txt");
///           log.SetTipoPeriodicidade(tplDiario);               // C:\Logs\Importacao_15_11_2026.log
///           log.Adicionar(u"Cliente 1520 importado", clBlue);  // the header comes first
///           log.FinalizarLog();                                // footer, and the file is written
class ORY_API TOryUtilsArquivoLog : public TObjeto {
public:
    /// Takes the name of the file and touches nothing on the disk. AArquivoLog may have a folder and an extension, in
    /// whose place ".log" comes. A blank name makes a log that lives in memory only. The process-wide formats
    /// (FormatSettings) of this moment, short date and long time, are those of every line of the log.
    explicit TOryUtilsArquivoLog(std::u16string_view AArquivoLog);
    /// The same in a world handed in, which must outlive the log: a host's own clock, for one.
    TOryUtilsArquivoLog(std::u16string_view AArquivoLog, TAmbienteDoLog& AAmbiente);
    ~TOryUtilsArquivoLog() override;
    TOryUtilsArquivoLog(const TOryUtilsArquivoLog&) = delete;
    TOryUtilsArquivoLog& operator=(const TOryUtilsArquivoLog&) = delete;

    /// Starts a run unless it has started: empties the list, or puts the file's lines in its place with
    /// UsarArquivoLogExistente (without a file the list stays as it is), and writes the header. A file that is there
    /// and cannot be read, as one without the right to or one that another program keeps for itself, is read again by
    /// each attempt of a save, and stands untouched until then: its lines then come before those of the run. Adicionar
    /// and InserirTexto call this operation.
    void IniciarLog();
    /// Adds AMensagem as a line of its own, behind the header when the run has not started. When the date has changed
    /// since the run began, that run is finished first and a new one begun, whatever the periodicity; a single file
    /// without UsarArquivoLogExistente is then written over by the new day's text. A blank message has no date and
    /// time. Costs the length of the line, and a save with SalvarAutomaticamente.
    /// ACor  handed to OnStatus; a screen may show the line in it
    void Adicionar(std::u16string_view AMensagem, TColor ACor);
    /// Adicionar of 78 asterisks, in the colour of window texts.
    void AdicionarSeparador();
    /// Appends so many empty lines (none for 0 or less) and does nothing else: no start, no event, no save.
    void AdicionarEspacoEmBranco(int AQuantidade);
    /// Starts the run and puts ATexto, as it stands, before line AIndice (0 the first; the number of lines appends).
    /// Nothing when ATexto is blank. No event, no save; ACor is not used. Raises EListError for another index. Anywhere
    /// but at the end it counts the lines before it and moves those behind it, and the next save writes the whole text.
    void InserirTexto(std::u16string_view ATexto, int AIndice, TColor ACor);
    /// Adds the footer, also without a start, and saves. A daily file gets midnight of the day it records as its
    /// last-write time, so that its date is right when it is finished after midnight. Then OnAposFinalizarLog.
    void FinalizarLog();
    /// Empties the list; the file is left alone.
    void Limpar();
    /// Opens the file with the system's program for it, or warns "Arquivo %s não encontrado.".
    void ExibirLog();

    /// The name that the file has or will have: folder, first name given, the date when daily, ".log".
    const std::u16string& GetArquivoLog() const noexcept { return FArquivoLog; }
    /// The first name that is not blank stays for ever; later ones bring their folder only.
    /// Example:  created with "C:\Logs\Importacao.txt", set to "D:\Outra\Nome.txt"  ->  "D:\Outra\Importacao.log"
    void SetArquivoLog(std::u16string_view AValor);
    /// The lines with the system's line break (CR LF on Windows, LF on Linux) between them.
    std::u16string GetTexto() const;
    bool GetUsarArquivoLogExistente() const noexcept { return FUsarArquivoLogExistente; }
    /// At the start of a run the lines of the file are loaded and continued; see IniciarLog. False at first.
    void SetUsarArquivoLogExistente(bool AValor) noexcept { FUsarArquivoLogExistente = AValor; }
    TTipoPeriodicidadeLog GetTipoPeriodicidade() const noexcept { return FTipoPeriodicidade; }
    /// Also renames the file to come: "_DD_MM_YYYY" comes or goes. tplUnico at first.
    void SetTipoPeriodicidade(TTipoPeriodicidadeLog AValor);
    TTipoFormatoMensagem GetFormatoMensagem() const noexcept { return FFormatoMensagem; }
    /// tfmComDataHora at first: "[21/11/2026 14:07:05]: message".
    void SetFormatoMensagem(TTipoFormatoMensagem AValor) noexcept { FFormatoMensagem = AValor; }
    bool GetSalvarAutomaticamente() const noexcept { return FSalvarAutomaticamente; }
    /// Saves after every message, those of header and footer included. False at first.
    void SetSalvarAutomaticamente(bool AValor) noexcept { FSalvarAutomaticamente = AValor; }
    TModoGravacao GetModoGravacao() const noexcept { return FModoGravacao; }
    /// mgReescrever, at first: each save writes the whole file anew (one open, one write, one close), so that saving
    /// after each of N messages writes N*N/2 lines. mgAcrescentar: the file stays open until FinalizarLog, and a save
    /// writes only what is new. Before a write, at most every 100 ms, and in FinalizarLog the log looks at the name of
    /// its file: where the name leads to another file, to none, or to one of another size than was written, the save
    /// writes the whole text anew, as it does after any fault. (Windows) While the file is open, another program that
    /// opens it must let others write, and cannot rename the folder.
    void SetModoGravacao(TModoGravacao AValor) noexcept { FModoGravacao = AValor; }
    TCodificacaoLog GetCodificacao() const noexcept;
    /// Encoding in which the file is written and loaded; clPadrao at first. A character that it lacks becomes "?" in
    /// the file (Texto keeps it).
    void SetCodificacao(TCodificacaoLog AValor);
    /// False when the last save failed: the file lacks what the memory holds. True before the first save. False, too,
    /// while an existing log that is to be continued could not be read.
    bool EstahSalvo() const noexcept { return FSalvo && !FPorCarregar; }
    const TEventoOnStatusLog& GetOnStatus() const noexcept { return FOnStatus; }
    /// Called for each line that Adicionar, IniciarLog and FinalizarLog add.
    void SetOnStatus(const TEventoOnStatusLog& AValor) noexcept { FOnStatus = AValor; }
    const TEventoAposFinalizarLog& GetOnAposFinalizarLog() const noexcept { return FOnAposFinalizarLog; }
    void SetOnAposFinalizarLog(const TEventoAposFinalizarLog& AValor) noexcept { FOnAposFinalizarLog = AValor; }

    /// The rule of the file's name. ANomeDado is the first name given (when blank, the name in AValor), AValor brings
    /// the folder, AData the day of a daily log. Empty when the name without its extension is blank.
    /// Example:  ("", "C:\Logs\Importacao.txt", tplDiario, 2026-11-15)  ->  "C:\Logs\Importacao_15_11_2026.log"
    static std::u16string FormatarNomeArquivoLog(std::u16string_view ANomeDado, std::u16string_view AValor,
                                                 TTipoPeriodicidadeLog ATipoPeriodicidade, TDateTime AData);

protected:
    /// Adds a line, without looking at the date or starting a run: messages of the user interface, OnStatus and, with
    /// SalvarAutomaticamente, a save follow.
    void AdicionarMensagem(std::u16string_view AMensagem, TColor ACor);
    /// Ends the run of a day that is over and makes ready for the next.
    void AtualizarArquivoLog();
    /// Puts the lines of the file in place of the list; leaves it alone when there is no file.
    void CarregarArquivo();
    /// Brings the file up to date, in up to 14 attempts; does nothing without a name of a file.
    void SalvarArquivoLog();
    /// The name of the file for a folder and day of its own; see the public form of it.
    std::u16string FormatarNomeArquivoLog(std::u16string_view ANome) const;
    /// Calls OnStatus where it is assigned.
    void ValidarEventoOnStatus(std::u16string_view AStatus, TColor ACor);
    /// Sets the last-write time of the file to AData.
    void AtualizarDataModificacaoLogFechamento(TDateTime AData);

private:
    void AdicionarMensagem(std::u16string_view AMensagem, TColor ACor, TDateTime AAgora);
    TDateTime ConferirData();
    const std::u16string& BuscarCarimbo(TDateTime AAgora);

    TAmbienteDoLog& FAmbiente;
    std::unique_ptr<TLinhasDoLog> FLog;
    std::unique_ptr<TGravadorDoLog> FGravador;
    std::u16string FArquivoLog{};
    bool FUsarArquivoLogExistente = false;
    bool FLogIniciado = false;
    TTipoPeriodicidadeLog FTipoPeriodicidade = tplUnico;
    std::u16string FNomeArquivoLogSemFormatacao{};
    TEventoOnStatusLog FOnStatus{};
    bool FSalvarAutomaticamente = false;
    TEventoAposFinalizarLog FOnAposFinalizarLog{};
    TDateTime FDataControleLog{};
    TTipoFormatoMensagem FFormatoMensagem = tfmComDataHora;
    TModoGravacao FModoGravacao = mgReescrever;
    bool FMudandoDeDia = false;
    bool FSalvo = true;
    bool FPorCarregar = false;  // the existing log could not be read yet
    TFormatSettings FFormatos;
    TDateTime FInstanteDoCarimbo{-1};
    std::u16string FCarimbo{};
    std::u16string FLinha{};
};

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"
#include "oryutils/runtime/Variante.hpp"
#include "oryutils/system/UnOryUtilsSystemDadosProcesso.hpp"
#include "oryutils/system/UnOryUtilsSystemIOP.hpp"
#include "oryutils/system/UnOryUtilsSystemTypes.hpp"
#include "oryutils/types/OryTypesSistema.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

using OryTypes::TResultStatus;

/// The machine that the program runs on: commands, processes, names and addresses, disks, folders, services, firewall.
///
/// Operations do not raise; they answer empty, false or an error member when the system refuses. The exceptions are
/// BuscarNomeComputador, BuscarIPLocal and BuscarPastaMeusDocumentos. All of them belong to the user-interface thread:
/// those that wait (commands, elevated calls with BloquearTela, Dormir, services) let the application process its
/// messages meanwhile, so the user may act during them. Texts with the character of code 0 are refused by the system's
/// calls: such a name is not found, such a command not started.
class ORY_API TOryUtilsSistema {
public:
    // Commands.

    /// Runs a console command hidden, without a shell, and appends what it prints to ASaida, standard error included;
    /// the command reads the caller's standard input and inherits nothing else. Returns when the command has ended and
    /// nobody, a program that it left behind included, can write any more. A command that cannot be started leaves
    /// ASaida as it is.
    ///
    /// The output is taken in chunks of 255 bytes, the last one before a pause or the end being shorter. Each chunk is
    /// cut at its first zero byte, turned into text by itself (the ANSI code page of Windows, the code set of the
    /// locale on Linux) and trimmed; the list's text (its lines with CR LF between them) is then that text followed by
    /// the chunk. Blanks and line breaks at the edge of a chunk are therefore lost, so that two lines may become one,
    /// and a character of several bytes that lies on an edge is two malformed ones: U+FFFD on both sides.
    ///
    /// ALinhaDeComando  program and arguments as on Windows; on Linux it is split by the same rules
    ///                  (see CommandLineToArgvW) and the program is looked up on the PATH
    /// Example:  std::vector<std::u16string> linhas; ExecutarComandoComRetorno(u"arp -a", linhas);
    static void ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando, std::vector<std::u16string>& ASaida);
    /// The same output as one text: the lines with CR LF between them. Empty when the command cannot be started.
    static std::u16string ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando);
    /// ExecutarComandoComRetorno that tells whether the command ran, and that reads its output by any code page.
    /// APagina  number of the code page: CPaginaAnsi, CPaginaOem, CPaginaUtf8 or another one that the system knows
    /// Result: false, with ASaida as it is, when the command cannot be started or the code page is not known; a command
    /// that prints nothing answers true.
    /// Example:  if (!ExecutouComandoComRetorno(u"ipconfig", linhas, CPaginaOem)) ...
    static bool ExecutouComandoComRetorno(std::u16string_view ALinhaDeComando, std::vector<std::u16string>& ASaida,
                                          std::uint32_t APagina = CPaginaAnsi);

    /// Starts a process in a console of its own (Linux: in a session of its own) and tells
    /// MetodoRetornoCriacaoProcesso. With AguardarProcesso waits for its end, at most TempoLimiteProcesso milliseconds
    /// and without processing messages. The handles are closed on return.
    /// AParametros  IDProcesso is set when the process was started
    static std::unique_ptr<TOryUtilsSystemDadosRetornoProcessoIOP> CriarProcesso(
        TOryUtilsSystemDadosCriacaoProcessoIOP& AParametros);
    /// CriarProcesso for a command line, without a limit of the wait. True when the process was started.
    static bool ExecutouComando(std::u16string_view AComando, bool AAguardar, bool AExibir);

    /// Starts Aplicacao through the system's shell, elevated (verb "runas") when
    /// AtivarExecucaoComandosModoAdministrador is true. After a start that worked tells MetodoRetornoCriacaoProcesso;
    /// with BloquearTela the application's windows are disabled until the process ends or TempoLimiteProcesso
    /// milliseconds have passed, while messages go on being processed. True when the process was started. (Linux)
    /// Elevated means pkexec, or else sudo -A, unless the user is root already; without both it fails. Who elevates
    /// asks the user after the start, so a refusal is not told by the result.
    bool ExecutouComandoModoAdministrador(TOryUtilsSystemDadosComandoModoAdministradorIOP& AParametros) const;
    /// The same with the window shown. AAguardar is BloquearTela, without a limit of the wait.
    bool ExecutouComandoModoAdministrador(void* AHandle, std::u16string_view AAplicacao,
                                          std::u16string_view AParametros, std::u16string_view ADiretorio,
                                          bool AAguardar) const;
    /// Whether ExecutouComandoModoAdministrador elevates; true at first.
    bool GetAtivarExecucaoComandosModoAdministrador() const noexcept {
        return FAtivarExecucaoComandosModoAdministrador;
    }
    void SetAtivarExecucaoComandosModoAdministrador(bool AValor) noexcept {
        FAtivarExecucaoComandosModoAdministrador = AValor;
    }
    /// True when the process runs with the rights of the Administrators group (Linux: effective user 0).
    static bool EstahRodandoComoAdministrador();
    /// What IsWow64Process says of this process: true for a 32-bit program on a 64-bit system. A 64-bit program gets
    /// false, as the system answers it. Linux answers alike.
    static bool EhSistemaOperacional64bits();

    // Processes.

    /// The processes of AUsuario, compared trimmed and ignoring case, without its domain; of all users when AUsuario is
    /// blank. What the system does not tell of a process stays empty.
    /// (Linux) Ended processes that wait for their parent are not listed, nor are threads of the kernel hidden. The
    /// handle is a pidfd; so many processes that the program would run out of file descriptors get no handle.
    static std::unique_ptr<TProcessoItems> BuscarListaDeProcessosWindows(std::u16string_view AUsuario);
    /// True when BuscarListaDeProcessosWindows of AUsuario holds that file name, trimmed and ignoring case.
    static bool ProcessoEstahRodando(std::u16string_view AProcesso, std::u16string_view AUsuario);
    /// True when AIDProcesso is not 0 and that list holds it.
    static bool ProcessoEstahRodando(std::uint32_t AIDProcesso, std::u16string_view AUsuario);
    /// Ends every process of that executable file name (ignoring case) at once, with exit code 0 (Linux: SIGKILL).
    /// True when at least one was ended. (Windows) The handles opened for it stay open.
    static bool FinalizouProcesso(std::u16string_view AExecutavel);
    /// Ends the process of that number at once. Never raises: a failure carries its message.
    static TResultStatus FinalizouProcessoPeloPID(std::uint32_t AIDProcesso);
    /// Account and domain that own the process; both empty when not told. (Linux) The domain is the name of the host.
    static void BuscarUsuarioEDominioDoProcesso(std::uint32_t AIDProcesso, std::u16string& AUsuario,
                                                std::u16string& ADominio);
    /// Full path of the executable; empty when not told.
    static std::u16string BuscarCaminhoArquivoPeloIDProcesso(std::uint32_t AIDProcesso);
    /// A handle of the first process of that executable file name (ignoring case); none when there is no such process.
    static TAlcaDeProcesso BuscarEnderecoMemoriaProcesso(std::u16string_view AProcesso);
    /// Bytes of memory in use (working set, resident set) of the process of that handle; 0 when not told.
    static std::uint64_t BuscarMemoriaUsadaEnderecoProcesso(const TAlcaDeProcesso& AEndereco);
    /// The same of the first process of that executable file name, as a text.
    /// Example:  "12.345 KB" under the Brazilian formats
    static std::u16string BuscarMemoriaUsadaProcesso(std::u16string_view AProcesso);
    /// Gives memory that this process does not need now back to the system.
    static void LiberarMemoriaResidualProcesso();
    /// Waits so many milliseconds while the application's messages flow.
    static void Dormir(std::uint32_t AMilissegundos);
    /// Opens the system's settings of date and time.
    static void AbrirPropriedadesDataHora();

    // Names and addresses of the machine.

    /// Name of this computer. Raises Exception "Erro ao retornar nome do computador..." with the system's text.
    static std::u16string BuscarNomeComputador();
    /// Name of the logged-on user; "Desconhecido" when the system does not tell.
    static std::u16string BuscarNomeUsuarioLogadoNoWindows();
    /// First address of this machine, "192.168.0.10". Raises Exception "Ocorreu um erro ao tentar executar o método de
    /// retorno do IP local <<GetIPLocal>>..." when it cannot be told.
    static std::u16string BuscarIPLocal();
    /// First address of that computer; empty when not found.
    static std::u16string BuscarIPPeloNomeComputador(std::u16string_view ANomeComputador);
    /// Name of the computer of that address; empty when not found.
    static std::u16string BuscarNomeComputadorPeloIP(std::u16string_view AIP);
    /// Addresses of this machine as the interface lines of "arp -a" tell them.
    static std::vector<std::u16string> BuscarListaIPLocalViaARP();
    /// The first of them, or empty.
    static std::u16string BuscarIPLocalViaARP();
    /// MAC address of the machine of that address, "00-1a-2b-3c-4d-5e"; empty when not told. Two equal answers of
    /// BuscarEnderecoMac2 stand, also when both are empty; otherwise the adapters and, for another machine,
    /// BuscarEnderecoMacViaARP are asked. Raises as BuscarIPLocal.
    static std::u16string BuscarEnderecoMac(std::u16string_view AIP);
    /// The same by one question to the network.
    static std::u16string BuscarEnderecoMac2(std::u16string_view AIP);
    /// The same by "arp -a", after a ping when the table has no entry; in upper case.
    static std::u16string BuscarEnderecoMacViaARP(std::u16string_view AIP);
    /// The MAC address in an answer of "arp -a", in upper case; empty without one.
    static std::u16string ExtrairEnderecoMACComandoARP(std::u16string_view ATexto);
    /// True for "127.0.0.1", "localhost", the computer's name and BuscarIPLocal; with AConsultarARP also for the
    /// addresses of BuscarListaIPLocalViaARP.
    static bool EhIPLocal(std::u16string_view AIP, bool AConsultarARP);
    /// Generation of the Windows that runs; vwUnknown for what came after the NT 6 line and on Linux.
    static TVersaoWindows BuscarVersaoWindows();

    // Disks.

    /// Facts of a drive, amounts in the unit AFormato; 0 and "Não identificado" for a drive that is missing or empty.
    /// AUnidade  its letter, with or without ":" and what follows. (Linux) "C" is "/", "D" and on the other entries of
    ///           BuscarListaDrivesComputador; a path that starts with "/" is accepted too
    static std::unique_ptr<TOryUtilsSystemInfoDiscoRigidoIOP> BuscarInformacoesDiscoRigido(std::u16string_view AUnidade,
                                                                                           TFormatoBytes AFormato);
    /// Free space of the drive in the unit AFormato.
    static std::int64_t BuscarQuantidadeEspacoLivreEmDisco(std::u16string_view AUnidade, TFormatoBytes AFormato);
    /// Success when the drive has at least AQuantidade free, in the unit AFormato.
    static TResultStatus ValidouEspacoLivreEmDisco(std::u16string_view AUnidade, std::int64_t AQuantidade,
                                                   TFormatoBytes AFormato);
    /// ABytes divided by 1024 once per step of AFormato above fbBytes; what is left is dropped.
    static std::int64_t FormatarBytes(std::int64_t ABytes, TFormatoBytes AFormato);
    /// Roots of the drives, "C:\". (Linux) Where disks and file servers are mounted, "/" first.
    static std::vector<std::u16string> BuscarListaDrivesComputador();
    /// Number of a drive: A is 1, B is 2; 0 for what is no letter.
    static int BuscarIndiceUnidadeDisco(std::u16string_view AUnidade);

    // Keyboard and idle time.

    /// Milliseconds since the user last touched keyboard or mouse. (Linux) As the X server tells; 0 without a display.
    static std::uint32_t BuscarTempoInatividadeSistema();
    /// Presses and releases a key with the modifiers of AShift held. (Linux) Through the X server's XTEST extension;
    /// nothing happens without a display.
    /// ATecla  virtual-key code as on Windows
    /// ATeclaEstendida  with the flag of the extended keys
    static void SimularPressionamentoTecla(std::uint16_t ATecla, TShiftState AShift, bool ATeclaEstendida);
    /// True when the key is down; the numbers of Shift, Ctrl and Alt mean the left and the right one. (Linux) False
    /// without a display.
    static bool TeclaEstahPressionada(std::uint16_t ATecla);

    /// The variant's text as an integer, or APadrao when it is none.
    static int VarToIntDef(const Variant& AValor, int APadrao);

    // Folders.

    /// Folder of the running executable, with the separator at its end.
    static std::u16string BuscarPastaAplicacao();
    /// BuscarPastaAplicacao + "ConfigsTemp" with a separator at its end; made when missing.
    static std::u16string BuscarPastaConfiguracaoFormularios();
    /// BuscarPastaAplicacao + "LogSistema"; made when missing.
    static std::u16string BuscarPastaPadraoLogSistema();
    /// Beside the application's folder: "OryApps", "OryDados", "OryApps_Ajuda" (with a separator at its end) and
    /// "OryEventosServer".
    static std::u16string BuscarPastaOryApps();
    static std::u16string BuscarPastaOryDados();
    static std::u16string BuscarPastaOryAppsAjuda();
    static std::u16string BuscarPastaOryEventosServer();
    static std::u16string BuscarPastaArquivoDeProgramas();
    /// The user's documents. Raises Exception "Não foi possível identificar o local da pasta Meus Documentos.".
    static std::u16string BuscarPastaMeusDocumentos();
    static std::u16string BuscarPastaSystemWindows();
    static std::u16string BuscarPastaTempWindows();
    static std::u16string BuscarUnidadeInstalacaoWindows();
    /// Root of the development environment's installation; empty for all versions but VdVelmarXE.
    static std::u16string BuscarPastaInstalacaoVelmar(TVersaoVelmar AVersao);
    static TInformacoesVelmar BuscarInformacoesVelmar(TVersaoVelmar AVersao);
    /// BuscarPastaConfiguracaoFormularios + "FP_<computer>_<user>.ini".
    static std::u16string BuscarCaminhoArquivoConfiguracaoForms();

    // Services. AMaquina names the computer, empty for this one. (Linux) The services are those of systemd.

    /// Installs a service that starts with the machine. A name refused by the system's manager may come back as
    /// success: confirm with BuscarStatusServico.
    /// AExecutavel  path of the program, arguments behind it. One with blanks belongs in quotes: the system starts
    ///              u"C:\Minha pasta\x.exe" as "C:\Minha.exe" where there is such a program.
    /// Example:  InstalouServico(u"Ory", u"Ory Eventos", u"\"C:\\Minha pasta\\x.exe\" -porta 80");
    static TResultStatus InstalouServico(std::u16string_view AServico, std::u16string_view ANomeExibicao,
                                         std::u16string_view AExecutavel);
    /// Stops and removes a service. Only a manager that cannot be opened is a failure.
    static TResultStatus DesinstalouServico(std::u16string_view AServico);
    /// Starts a service and waits, with messages flowing. True when it runs.
    static bool IniciarServico(std::u16string_view AMaquina, std::u16string_view AServico);
    /// Stops a service and waits, with messages flowing. True when it stopped.
    /// ATempoLimite  seconds of waiting hints after which the service's process is ended. That of another machine
    ///               cannot be: the wait for it ends then, after five seconds at the soonest.
    static bool PararServico(std::u16string_view AMaquina, std::u16string_view AServico, int ATempoLimite);
    /// State of a service; sswErro when it cannot be told. Texts: CVetorStatusServicoWindows.
    static TStatusServicoWindows BuscarStatusServico(std::u16string_view AMaquina, std::u16string_view AServico);
    /// Number of the service's process; 0 when unknown.
    static std::uint32_t BuscarIDProcessoServico(std::u16string_view AMaquina, std::u16string_view AServico);
    /// Restart at once after the first and the second failure; the count of failures starts anew after 240 seconds.
    static TResultStatus ConfigurouAcaoPadraoRecuperacaoServico(std::u16string_view AServico);
    /// AServico starts after ADependencia.
    static TResultStatus ConfigurouDependenciaServico(std::u16string_view AServico, std::u16string_view ADependencia);
    static TResultStatus ConfigurouUsuarioLogonServico(std::u16string_view AServico, std::u16string_view AUsuario,
                                                       std::u16string_view ASenha);
    /// Further settings, each as the "sc config" command takes it: u"start= delayed-auto".
    static TResultStatus ConfigurouDadosAdicionaisServico(std::u16string_view AServico,
                                                          const std::vector<std::u16string>& AConfiguracoes);

    // Firewall rules. A failure carries a message that quotes what the command printed.

    static TResultStatus LiberouPortaFirewallWindows(TTipoProtocoloPortaComunicacao AProtocolo, int APorta,
                                                     std::u16string_view ANomeRegra);
    static TResultStatus ExcluiuPortaFirewallWindows(TTipoProtocoloPortaComunicacao AProtocolo, int APorta);
    static TResultStatus LiberouProgramaFirewallWindows(std::u16string_view APrograma, std::u16string_view ANomeRegra);
    static TResultStatus ExcluiuProgramaFirewallWindows(std::u16string_view APrograma, std::u16string_view ANomeRegra);

private:
    bool FAtivarExecucaoComandosModoAdministrador = true;
};

extern ORY_API TInstanciaGlobal<TOryUtilsSistema> GOryUtilsSistema;

/// Free functions. Each forwards to the operation of the class that has the same name or, for the older names, the same
/// meaning.
inline void ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando, std::vector<std::u16string>& ASaida) {
    TOryUtilsSistema::ExecutarComandoComRetorno(ALinhaDeComando, ASaida);
}
inline std::u16string ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando) {
    return TOryUtilsSistema::ExecutarComandoComRetorno(ALinhaDeComando);
}
inline bool ExecutarComando(std::u16string_view AComando, bool AAguardar, bool AExibir) {
    return TOryUtilsSistema::ExecutouComando(AComando, AAguardar, AExibir);
}
inline std::unique_ptr<TProcessoItems> GetListaDeProcessosWindows(std::u16string_view AUsuario) {
    return TOryUtilsSistema::BuscarListaDeProcessosWindows(AUsuario);
}
inline bool ProcessIsRunning(std::u16string_view AProcesso, std::u16string_view AUsuario) {
    return TOryUtilsSistema::ProcessoEstahRodando(AProcesso, AUsuario);
}
inline bool ProcessIsRunning(std::uint32_t AIDProcesso, std::u16string_view AUsuario) {
    return TOryUtilsSistema::ProcessoEstahRodando(AIDProcesso, AUsuario);
}
inline bool KillProcess(std::u16string_view AExecutavel) { return TOryUtilsSistema::FinalizouProcesso(AExecutavel); }
inline TAlcaDeProcesso GetEnderecoMemoriaProcesso(std::u16string_view AProcesso) {
    return TOryUtilsSistema::BuscarEnderecoMemoriaProcesso(AProcesso);
}
inline std::u16string GetMemoriaUsadaProcesso(std::u16string_view AProcesso) {
    return TOryUtilsSistema::BuscarMemoriaUsadaProcesso(AProcesso);
}
inline void GetUsuarioEDominioDoProcesso(std::uint32_t AIDProcesso, std::u16string& AUsuario,
                                         std::u16string& ADominio) {
    TOryUtilsSistema::BuscarUsuarioEDominioDoProcesso(AIDProcesso, AUsuario, ADominio);
}
inline std::u16string GetNomeUsuarioLogadoNoWindows() { return TOryUtilsSistema::BuscarNomeUsuarioLogadoNoWindows(); }
inline std::u16string GetNomeComputador() { return TOryUtilsSistema::BuscarNomeComputador(); }
inline std::u16string GetIPLocal() { return TOryUtilsSistema::BuscarIPLocal(); }
inline std::u16string GetEnderecoMac(std::u16string_view AIP) { return TOryUtilsSistema::BuscarEnderecoMac(AIP); }
inline std::u16string GetMacAddress2(std::u16string_view AIP) { return TOryUtilsSistema::BuscarEnderecoMac2(AIP); }
inline std::u16string BuscarEnderecoMacViaARP(std::u16string_view AIP) {
    return TOryUtilsSistema::BuscarEnderecoMacViaARP(AIP);
}
inline TVersaoWindows GetWindowsVersion() { return TOryUtilsSistema::BuscarVersaoWindows(); }
inline std::u16string GetWindowsDrive() { return TOryUtilsSistema::BuscarUnidadeInstalacaoWindows(); }
inline std::u16string GetWindowsSystemDir() { return TOryUtilsSistema::BuscarPastaSystemWindows(); }
inline std::u16string GetPastaTempWindows() { return TOryUtilsSistema::BuscarPastaTempWindows(); }
inline std::u16string GetPastaArquivoDeProgramas() { return TOryUtilsSistema::BuscarPastaArquivoDeProgramas(); }
inline std::u16string GetPastaMeusDocumentos() { return TOryUtilsSistema::BuscarPastaMeusDocumentos(); }
inline std::u16string GetApplicationPath() { return TOryUtilsSistema::BuscarPastaAplicacao(); }
inline std::u16string BuscarPastaConfiguracaoFormularios() {
    return TOryUtilsSistema::BuscarPastaConfiguracaoFormularios();
}
inline std::u16string BuscarPastaOryApps() { return TOryUtilsSistema::BuscarPastaOryApps(); }
inline std::u16string GetPastaInstalacaoVelmar(TVersaoVelmar AVersao) {
    return TOryUtilsSistema::BuscarPastaInstalacaoVelmar(AVersao);
}
inline TInformacoesVelmar GetInformacoesVelmar(TVersaoVelmar AVersao) {
    return TOryUtilsSistema::BuscarInformacoesVelmar(AVersao);
}
inline void AbrirPropriedadesDataHora() { TOryUtilsSistema::AbrirPropriedadesDataHora(); }
inline void SimularPressionamentoTecla(std::uint16_t ATecla, TShiftState AShift, bool ATeclaEstendida) {
    TOryUtilsSistema::SimularPressionamentoTecla(ATecla, AShift, ATeclaEstendida);
}
inline bool EhSistemaOperacional64bits() { return TOryUtilsSistema::EhSistemaOperacional64bits(); }
inline int VarToIntDef(const Variant& AValor, int APadrao) { return TOryUtilsSistema::VarToIntDef(AValor, APadrao); }
inline bool ServiceStart(std::u16string_view AMaquina, std::u16string_view AServico) {
    return TOryUtilsSistema::IniciarServico(AMaquina, AServico);
}
inline bool ServiceStop(std::u16string_view AMaquina, std::u16string_view AServico, int ATempoLimite) {
    return TOryUtilsSistema::PararServico(AMaquina, AServico, ATempoLimite);
}

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// How the first of two versions stands to the second.
enum TFileStatus : int {
    fsMajor,  ///< greater
    fsMinor,  ///< smaller
    fsEqual,
    fsNone,  ///< never returned; for variables that hold no answer yet
};

/// How many leading components FormatarVersaoArquivo keeps; the ordinal is that number.
enum TTipoDivisaoVersaoArquivo : int {
    tdvNenhuma = 0,
    tdvMaior = 1,
    tdvMenor = 2,
    tdvRelease = 3,
    tdvBuild = 4,
};

/// What a file says about itself: the texts and the number of its version resource, its name, size and dates. A file
/// that does not exist, or that has no version resource, gives empty texts; nothing but SetArquivo raises. Copies are
/// independent.
/// Example:  TArquivoInfo info;
///           info.SetArquivo(u"C:\\Sistema\\Folha.exe");
///           info.GetVersao()        ->  "7.2.0.15"
///           info.GetNomeProduto()   ->  "Folha de Pagamento"
class ORY_API TArquivoInfo {
public:
    /// The file described, as it was given.
    const std::u16string& GetArquivo() const noexcept { return FArquivo; }
    /// Takes the file and loads its texts (CarregaDados). Raises EAbort, after the warning "Não foi possível obter as
    /// configurações do arquivo.", when AArquivo is blank; the blank name stays.
    void SetArquivo(std::u16string_view AArquivo);

    /// Reads the texts of the version resource, in the language of its first translation, in place of those loaded.
    void CarregaDados();
    void Clear() noexcept { FItems.clear(); }
    /// Appends the line "AChave=AValor".
    void Adiciona(std::u16string_view AChave, std::u16string_view AValor);
    /// What stands behind the "=" of the first line named AChave, whatever its letter case; empty when there is none.
    std::u16string Localiza(std::u16string_view AChave) const;
    /// The lines "Key=Value", in the order in which the keys are asked for.
    const std::vector<std::u16string>& GetItems() const noexcept { return FItems; }

    std::u16string GetNomeCompanhia() const;
    std::u16string GetDescricao() const;
    std::u16string GetNomeInterno() const;
    std::u16string GetLegalCopyright() const;
    std::u16string GetLegalTrademarks() const;
    std::u16string GetNomeOriginal() const;
    std::u16string GetNomeProduto() const;
    std::u16string GetVersaoProduto() const;
    std::u16string GetComentarios() const;
    /// Lowest version of the database that the package needs.
    std::u16string GetVersaoMinimaBanco() const;
    /// Highest version up to which a conversion applies.
    std::u16string GetVersaoMaximaConversao() const;
    /// True when the package is held back: only for the text "True" (blanks around it allowed, "true" is not it).
    bool GetNaoLiberarPacote() const;

    /// The version: of an .ini or .html file as BuscarVersaoArquivoIni gives it, of any other as BuscarVersaoArquivo.
    /// Read anew from the file at each call.
    std::u16string GetVersao() const;
    /// The number in the fixed part of the version resource, "7.2.0.15"; empty without one.
    std::u16string BuscarVersaoArquivo() const;
    /// Key "Numero" of section "VERSAO" of the file read as INI; empty when absent.
    std::u16string BuscarVersaoArquivoIni() const;

    /// The name as the file system stores it, without the folder; empty when there is no such file or folder.
    std::u16string GetNome() const;
    /// Size in bytes, in decimal; "0" when there is no such file, and for a folder.
    std::u16string GetTamanho() const;
    /// The size as TOryUtilsFiles::FormatarTamanhoArquivo writes it.
    std::u16string GetTamanhoFormatado() const;
    /// The extension with its dot, in lower case. Looks at the name only.
    std::u16string GetExtensao() const;
    /// Local date and time of the last writing, in the file system's packed form: the even second at or before it,
    /// years 1980 to 2107, and 0 beyond. GetData opens the file for reading and gives 0 when it cannot be opened;
    /// GetDataModificacao asks the folder and gives 0 when the file is not found. Both give 0 for a folder.
    TDateTime GetData() const;
    TDateTime GetDataModificacao() const;

private:
    std::vector<std::u16string> FItems;
    std::u16string FArquivo;
};

/// Versions of files and the little that other units need of files.
///
/// A version is a text of up to four numbers parted by points. The part behind the last point is the build, so a short
/// version fills the front and the back: "7" is 0.0.0.7 and "1.2" is 1.0.0.2. A number is kept in 16 bits: 65536 is 0.
/// Blanks around the text are allowed, and a blank text is 0.0.0.0. A part that is no whole number, an empty part
/// ("1..2") and a fifth one raise EConvertError.
class ORY_API TOryUtilsFiles {
public:
    /// The version of AArquivo by TArquivoInfo::GetVersao; empty for a blank name. Never raises.
    static std::u16string BuscarVersaoArquivo(std::u16string_view AArquivo);
    /// Compares number by number; "," counts as ".". Raises EConvertError.
    /// Example:  ("1.10.0.0", "1.9.0.0")  ->  fsMajor;  ("1.2", "1,0,0,2")  ->  fsEqual;  ("5", "4.0.0.0")  ->  fsMinor
    static TFileStatus CompararVersao(std::u16string_view AVersao1, std::u16string_view AVersao2);
    /// The four numbers of AVersao. Raises EConvertError; the parts before the bad one are then filled, the others 0.
    static void DividirVersao(std::u16string_view AVersao, std::uint16_t& AMaior, std::uint16_t& AMenor,
                              std::uint16_t& ARelease, std::uint16_t& ABuild);
    /// The leading components of AVersao as written; all of it when it has no more of them.
    /// Example:  ("1.2.3.4", tdvMenor)  ->  "1.2";  tdvNenhuma  ->  ""
    static std::u16string FormatarVersaoArquivo(std::u16string_view AVersao, TTipoDivisaoVersaoArquivo ATipoDivisao);
    /// Sorts the versions upwards, as CompararVersao compares them; equal ones keep their order. An empty entry stays
    /// where it is, and no version passes it: each stretch between empty entries is sorted by itself. Raises
    /// EConvertError for an entry that is no version, with the entries before it moved as one pass of a bubble sort
    /// moves them; only one that has nothing to be compared with (alone, or first and followed by an empty entry) is
    /// left in peace. Time grows as n log n.
    /// Example:  {"1.10.0.0", "1.9.0.0", "", "2", "1"}  ->  {"1.9.0.0", "1.10.0.0", "", "1", "2"}
    static void OrdenarListaDeVersoes(std::vector<std::u16string>& AListaVersoes);

    /// Kinds of files by extension, in any letter case. They look at the name only; the file need not exist.
    static bool EhArquivoEXE(std::u16string_view AArquivo);
    static bool EhArquivoBPL(std::u16string_view AArquivo);
    static bool EhArquivoDLL(std::u16string_view AArquivo);
    static bool EhArquivoDAT(std::u16string_view AArquivo);
    static bool EhArquivoINI(std::u16string_view AArquivo);
    /// .html, .css or .js.
    static bool EhArquivoHTML(std::u16string_view AArquivo);
    /// .exe, .bpl or .dll: the files that carry a version resource.
    static bool EhArquivoVersionado(std::u16string_view AArquivo);

    /// Opens AArquivo with the program that the system keeps for its kind, and does not wait for it. AParametros go to
    /// AArquivo where it is a program; a document's viewer gets none. True when the system took the order. Never
    /// raises. (Windows) The shell's "open". (Linux) A program that may be executed is run, with the parameters split
    /// at blanks outside double quotes; any other file goes to xdg-open, also a text that may be executed.
    static bool AbrirArquivo(std::u16string_view AArquivo, std::u16string_view AParametros = {});
    /// Sets the last-write time of a file to the local date and time ADataHora (milliseconds kept; of a time that
    /// happens twice, the first). False when it could not be done, as for a date outside years 1601 to 9999. Never
    /// raises.
    static bool AlterouDataHoraArquivo(std::u16string_view AArquivo, TDateTime ADataHora);
    /// True when ADiretorio is a folder that exists, with or without a delimiter behind it. Never raises.
    static bool ExisteDiretorio(std::u16string_view ADiretorio);
    /// The name without folder and without its last extension. "\" and "/" part folders on every system.
    /// Example:  "C:\Logs\Importacao.2026.txt"  ->  "Importacao.2026"
    static std::u16string ExtrairNomeDoArquivoSemExtensao(std::u16string_view AArquivo);
    /// A size with its unit, of 1024 the next: bytes, KB, MB and GB, with at most two decimals, rounded, in the
    /// process-wide number formats.
    /// Example:  1 -> "1 byte",  1023 -> "1.023 bytes",  1536 -> "1,5 KB",  1048575 -> "1 MB" (Brazilian formats)
    static std::u16string FormatarTamanhoArquivo(std::int64_t ATamanho);
};

extern ORY_API TInstanciaGlobal<TOryUtilsFiles> GOryUtilsFiles;

/// Free functions with the older names; each forwards to the operation of the class of the same meaning.
inline std::u16string GetVersaoArquivo(std::u16string_view AArquivo) {
    return TOryUtilsFiles::BuscarVersaoArquivo(AArquivo);
}
inline TFileStatus CompareVersion(std::u16string_view AVersao1, std::u16string_view AVersao2) {
    return TOryUtilsFiles::CompararVersao(AVersao1, AVersao2);
}
inline std::u16string FormatarVersaoArquivo(std::u16string_view AVersao, TTipoDivisaoVersaoArquivo ATipoDivisao) {
    return TOryUtilsFiles::FormatarVersaoArquivo(AVersao, ATipoDivisao);
}
inline bool IsAExe(std::u16string_view AArquivo) { return TOryUtilsFiles::EhArquivoEXE(AArquivo); }
inline bool IsABpl(std::u16string_view AArquivo) { return TOryUtilsFiles::EhArquivoBPL(AArquivo); }
inline bool isADll(std::u16string_view AArquivo) { return TOryUtilsFiles::EhArquivoDLL(AArquivo); }
inline bool isADAT(std::u16string_view AArquivo) { return TOryUtilsFiles::EhArquivoDAT(AArquivo); }
inline bool isAINI(std::u16string_view AArquivo) { return TOryUtilsFiles::EhArquivoINI(AArquivo); }
inline bool isAHTML(std::u16string_view AArquivo) { return TOryUtilsFiles::EhArquivoHTML(AArquivo); }

/// Key "Numero" of section "VERSAO" of the INI file AArquivo; empty when absent. Never raises.
ORY_API std::u16string GetVersionFromINI(std::u16string_view AArquivo);
/// The extension with its dot, in upper case (TArquivoInfo gives it in lower case). Looks at the name only.
/// Example:  "a.exe"  ->  ".EXE"
ORY_API std::u16string GetExtensionFromFile(std::u16string_view AArquivo);

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Instancia.hpp"
#include "oryutils/runtime/Registro.hpp"
#include "oryutils/runtime/Variante.hpp"
#include "oryutils/types/OryTypesSistema.hpp"

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace OryUtils {

using OryTypes::TResultStatus;

/// A value to be written, whose kind is known at run time. Numbers, texts, characters and variants become one by
/// themselves; so does an enumeration, which is of no kind that is written.
class TValorRegistro {
public:
    template <typename T>
    requires(std::is_enum_v<T> || std::is_arithmetic_v<T> || std::convertible_to<const T&, Variant>)
        TValorRegistro(const T& AValor)
        : FValor(Converter(AValor)) {}

    const Variant& GetValor() const noexcept { return FValor; }

private:
    template <typename T>
    static Variant Converter(const T& AValor) {
        if constexpr (std::is_enum_v<T>)
            return {};
        else if constexpr (std::same_as<T, char>)
            return TextoDoCaractere(static_cast<unsigned char>(AValor));
        else if constexpr (std::same_as<T, char8_t> || std::same_as<T, char16_t> || std::same_as<T, char32_t> ||
                           std::same_as<T, wchar_t>)
            return TextoDoCaractere(static_cast<char32_t>(AValor));
        else if constexpr (std::integral<T> && !std::same_as<T, bool>)
            return static_cast<std::int64_t>(AValor);
        else if constexpr (std::floating_point<T>)
            return Extended{AValor};
        else
            return AValor;
    }

    static std::u16string TextoDoCaractere(char32_t ACaractere) {
        if (ACaractere > 0x10FFFF) return u"\uFFFD";
        if (ACaractere <= 0xFFFF) return std::u16string(1, static_cast<char16_t>(ACaractere));
        const char32_t resto = ACaractere - 0x10000;
        return {static_cast<char16_t>(0xD800 + (resto >> 10)), static_cast<char16_t>(0xDC00 + (resto & 0x3FF))};
    }

    Variant FValor;
};

/// Settings of the registry: any value, programs started with Windows, lists in environment variables of the machine,
/// the quota of GDI handles, the start time-out of services. On Linux the same keys live in a settings store in files
/// (docs/ajustes.md): there the settings are kept for the programs that read them here, and nothing else acts on them.
///
/// A root is a TChaveRaiz (crLocalMachine, ...), a key a path below it ("Software\Empresa"). Keys are opened with all
/// access rights in the 64-bit view, so that those of the machine open for administrators only (Linux: for whoever may
/// write the system's store). A key that does not open is not created: its values and subkeys are missing and nothing
/// can be written. Every operation closes the key, except GetChave.
///
/// No operation raises, except the readers (GetValorRegistro, BuscarValor...) for a value of another kind. Those that
/// return a TResultStatus answer success with an empty message, or failure and the message they name;
/// BuscarMotivoDaFalha tells the system's reason also where that message has no place for it. One instance is not for
/// two threads at once.
class ORY_API TOryUtilsRegistro {
public:
    // Values and keys.

    /// Sets the root and opens the key, without creating it. Every other operation starts with it.
    void Inicializar(TChaveRaiz ARaiz, std::u16string_view AChave);
    /// Inicializar, then the accessor itself with the key left open. It belongs to this object, and the next operation
    /// moves it to another key.
    TRegistry& GetChave(TChaveRaiz ARaiz, std::u16string_view AChave);

    /// The system's words for why the last operation that failed did so: "Acesso negado".
    std::u16string BuscarMotivoDaFalha() const { return FRegistro.BuscarMotivoDaFalha(); }

    /// The text of a value; empty when the value or the key is missing. An expandable text comes unexpanded.
    /// Raises ERegistryException ("Tipo de dado inválido para '%s'") for a value that is no text.
    std::u16string GetValorRegistro(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor);
    bool ExisteChave(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view ASubchave);
    bool ExisteValor(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor);
    /// Creates ASubchave, with the keys between it and AChave. Says nothing when it can not: ask ExisteChave.
    void CriarChave(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view ASubchave);

    /// Writes AConteudo under the name AValor: an integer as a 32-bit one (of a longer one the low 32 bits), a number,
    /// an amount of money or a date as the eight bytes of a double, a text or character as a text that is never
    /// expandable. Of any other kind (Boolean, enumeration, null, array) nothing is written, and that is a success.
    /// Failure:  "Erro ao adicionar valor no registro do Windows.\r\nChave: %s\r\nValor: %s\r\n\r\nErro ocorrido:
    ///           \r\n\r\n%s" with the key, the content as a text (not its name) and the reason; so also below a
    ///           missing key.
    /// Example:  GOryUtilsRegistro->AdicionouValor(crLocalMachine, u"Software\\Empresa", 8080, u"Porta")
    TResultStatus AdicionouValor(TChaveRaiz ARaiz, std::u16string_view AChave, const TValorRegistro& AConteudo,
                                 std::u16string_view AValor);
    /// AdicionouValor without its result.
    void AdicionarValor(TChaveRaiz ARaiz, std::u16string_view AChave, const TValorRegistro& AConteudo,
                        std::u16string_view AValor);
    /// Failure, also for a missing value: "Erro ao excluir valor do registro do Windows.\r\nChave: %s\r\nValor: %s"
    /// with the key and the value's name.
    TResultStatus ExcluiuValor(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor);
    /// Both: ExcluiuValor without its result.
    void ExcluirValor(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor);
    void ExcluirRegistro(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor);
    /// Deletes ASubchave and all below it.
    /// Failure, also for a missing one: "Não foi possível excluir a chave/valor << %s >>.\r\nErro ocorrido: \r\n\r\n%s"
    /// with ASubchave and the system's reason.
    TResultStatus ExcluiuChave(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view ASubchave);

    // Programs started with Windows, for all users.

    /// ANome: the entry's name; AComando: the command line that is run.
    /// Failure:  "Não foi possível configurar aplicação para iniciar automaticamente com o Windows. ...", with ANome,
    ///           the reason and the advice to run as administrator.
    TResultStatus AdicionouProgramaInicializacaoWindows(std::u16string_view ANome, std::u16string_view AComando);
    /// Failure, also for a missing entry: "Não foi possível excluir a configuração de auto início da aplicação com o
    /// Windows. ..." around the message of ExcluiuValor, and the advice.
    TResultStatus ExcluiuProgramaInicializacaoWindows(std::u16string_view ANome);

    // Environment variables of the machine that hold lists parted by ";". Running programs are not told of a change.

    /// Empty when there is no such variable. Raises as GetValorRegistro does.
    std::u16string BuscarValorVariavelAmbiente(std::u16string_view AVariavel);
    /// Appends ";" and the item, as it is, for each of AItens that is not blank; also to an empty list, and also when
    /// the item is there already. The variable becomes a text that is not expandable: Windows then takes a
    /// "%SystemRoot%" in it as it stands, and its folders are no longer found.
    /// Failure:  that of AdicionouValor; for a variable that is no text with the items as the content.
    /// Example:  {u"C:\\x", u"  ", u"C:\\y"} makes "A;C:\x;C:\y" of "A".
    TResultStatus AdicionouValorVariavelAmbiente(std::u16string_view AVariavel,
                                                 const std::vector<std::u16string>& AItens);
    /// Removes every entry that is one of AItens, ignoring case and blanks at the ends; those that stay are written
    /// back trimmed, and a variable that is missing comes to be, empty. Failure as of AdicionouValorVariavelAmbiente.
    /// Runs the host's message loop while it splits the list.
    /// Example:  {u"c:\\X "} leaves "B" of "C:\x;B;c:\x".
    TResultStatus ExcluiuValorVariavelAmbiente(std::u16string_view AVariavel,
                                               const std::vector<std::u16string>& AItens);

    // Quota of GDI handles of a process.

    /// Success from 256 to 65536, on Windows 2000 to 16384.
    /// Failure:  "Valor cota objetos GDI inválido.\r\nValores permitidos entre %d e %d."
    static TResultStatus ValidouValorLimiteCotaObjetosGDI(int AValor);
    /// Writes a valid quota; Windows takes it at its next start.
    /// Failure:  that of the check, or of AdicionouValor.
    TResultStatus AlterouCotaLimiteObjetosGDI(int AValor);
    /// The quota in decimal digits. Raises ERegistryException ("Falha ao obter dados de 'GDIProcessHandleQuota':
    /// reason") when none is set.
    std::u16string BuscarValorCotaLimiteObjetosGDI();

    // Services.

    /// Sets how long Windows waits for a service to start, in milliseconds. Success means that the setting exists
    /// afterwards, not that it holds AMilissegundos.
    /// Failure:  "Não foi possível atualizar a configuração de timeout de inicialização de serviços
    ///           ServicesPipeTimeout. ...", with the advice to run as administrator.
    TResultStatus AtualizouTimeoutInicializacaoServico(int AMilissegundos);

private:
    TRegistry FRegistro{arTotal};
};

/// The unit's instance, alive while the library is started.
extern ORY_API TInstanciaGlobal<TOryUtilsRegistro> GOryUtilsRegistro;

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/platform/Registro.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

using Interno::TChaveRaiz;
using enum Interno::TChaveRaiz;
using Interno::arLeitura;
using Interno::arTotal;

/// A value or a key of the registry that could not be read or written.
class ORY_API ERegistryException : public Exception {
public:
    using Exception::Exception;
    const char* GetNomeDaClasse() const noexcept override { return "ERegistryException"; }
};

/// Reads and writes the registry through one current key. On Linux the same calls work on a settings store in files
/// (docs/ajustes.md). A path that starts with "\" counts from the root key, another one from the current key, or from
/// the root key while none is open. Not for use by two threads at once.
///
/// What fails answers false or raises ERegistryException, as each operation says; a message ends with ": " and the
/// system's reason, and so do GetUltimoErro and BuscarMotivoDaFalha tell it. While no key is open every value is
/// missing and nothing can be written.
/// Example:  TRegistry registro(arLeitura);
///           if (registro.OpenKey(u"Software\\Empresa", false)) pasta = registro.ReadString(u"Pasta");
class ORY_API TRegistry {
public:
    /// AAcesso: mask of the access rights with which keys are opened. The root key is crCurrentUser.
    explicit TRegistry(std::uint32_t AAcesso = arTotal) : FAcesso(AAcesso) {}

    TChaveRaiz GetRootKey() const noexcept { return FRaiz; }
    /// Another root closes the current key.
    void SetRootKey(TChaveRaiz ARaiz);
    std::uint32_t GetAccess() const noexcept { return FAcesso; }
    /// Path of the current key below the root, as it was opened; empty while none is open.
    const std::u16string& GetCurrentPath() const noexcept { return FCaminho; }
    bool EstahAberta() const noexcept { return FChave.EstahAberta(); }

    /// Makes the key the current one. False when it does not open; the current key then stays.
    /// ACriar: creates it, with the keys above it, when it is missing
    bool OpenKey(std::u16string_view AChave, bool ACriar);
    void CloseKey() noexcept;

    /// Creates the key, with the keys above it; one that is there is no error. The current key stays.
    /// Raises "Falha ao criar a chave %s: reason".
    void CreateKey(std::u16string_view AChave);
    bool KeyExists(std::u16string_view AChave) const;
    /// Deletes the key and all below it. False when it is missing or may not be deleted, and for the current key ("").
    bool DeleteKey(std::u16string_view AChave);
    bool ValueExists(std::u16string_view AValor) const;
    /// False when the value is missing or may not be deleted.
    bool DeleteValue(std::u16string_view AValor);
    /// Names of the keys right below the current one, and of its values; empty while none is open.
    std::vector<std::u16string> GetKeyNames() const;
    std::vector<std::u16string> GetValueNames() const;

    /// The text of a value, up to its first character of code 0; variables in an expandable one stay as they are.
    /// Empty when the value is missing. Raises "Tipo de dado inválido para '%s'" for a value that is no text.
    std::u16string ReadString(std::u16string_view AValor) const;
    /// The readers of numbers raise "Falha ao obter dados de '%s': reason" when the value is missing and "Tipo de dado
    /// inválido para '%s'" when it is of another kind.
    std::int32_t ReadInteger(std::u16string_view AValor) const;
    double ReadFloat(std::u16string_view AValor) const;

    /// The writers raise "Falha ao definir dados para '%s': reason".
    void WriteString(std::u16string_view AValor, std::u16string_view ATexto);
    /// As a 32-bit integer.
    void WriteInteger(std::u16string_view AValor, std::int32_t AInteiro);
    /// As the eight bytes of the number, a binary value.
    void WriteFloat(std::u16string_view AValor, double ANumero);

    /// Of the last operation that failed, until the next that fails; erNenhum before.
    Interno::TErroRegistro GetUltimoErro() const noexcept { return FUltimoErro; }
    /// The system's words for it; where no key was open, for why it did not open.
    std::u16string BuscarMotivoDaFalha() const;

private:
    bool Deu(Interno::TErroRegistro AErro) const noexcept;
    std::u16string BuscarCaminhoCompleto(std::u16string_view AChave) const;
    [[noreturn]] void Falhar(std::u16string_view AAntes, std::u16string_view ANome, std::u16string_view ADepois) const;
    bool LerDado(std::u16string_view AValor, Interno::TDadoRegistro& ADado) const;
    void Gravar(std::u16string_view AValor, const Interno::TDadoRegistro& ADado);

    TChaveRaiz FRaiz = crCurrentUser;
    std::uint32_t FAcesso;
    Interno::TChaveRegistro FChave{};
    std::u16string FCaminho{};
    Interno::TErroRegistro FErroAoAbrir = Interno::erNenhum;  // while no key is open
    mutable Interno::TErroRegistro FUltimoErro = Interno::erNenhum;
    mutable Interno::TErroRegistro FMotivo = Interno::erNenhum;
};

}  // namespace OryUtils

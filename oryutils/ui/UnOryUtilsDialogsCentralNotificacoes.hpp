#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Holds back the information, warning and error messages of a stretch of work and shows them together. Confirmations
/// and the other dialogs are not held back: they need their answer. Belongs to the thread of the user interface.
/// Example:
///   auto& central = GOryUtilsDialogs->GetCentralNotificacoes();
///   {
///       TAcumuloNotificacoes acumulo(central);
///       ImportarClientes();           // its warnings queue
///   }
///   central.Exibir();                 // one form with all of them
class ORY_API TOryUtilsDialogsCentralNotificacoes {
public:
    /// Starts accumulating. Calls nest: as many FinalizarAcumulo end it.
    void IniciarAcumulo() { ++FAcumulos; }
    /// Undoes one IniciarAcumulo; one too many does nothing. The messages stay until shown or emptied.
    void FinalizarAcumulo() {
        if (FAcumulos > 0) --FAcumulos;
    }
    bool EstahAcumulando() const noexcept { return FAcumulos > 0; }

    /// Keeps "ATitulo: ", a line break and AMensagem, a message of the kind ATipo.
    void Adicionar(std::u16string_view ATitulo, std::u16string_view AMensagem, TMsgDlgType ATipo = mtInformation);
    /// Oldest first.
    const std::vector<std::u16string>& GetMensagens() const noexcept { return FMensagens; }
    void Limpar();

    /// Shows what was kept as one detail form, the details open and the messages a blank line apart, under the icon of
    /// the gravest of them (an error, else a warning, else information), and then forgets it; also while accumulating.
    /// Returns the modal result; mrNone, and nothing is shown, when there are no messages. Raises Exception when called
    /// from a thread that does not own the user interface.
    int Exibir();

private:
    int FAcumulos = 0;
    std::vector<std::u16string> FMensagens;
    std::vector<TMsgDlgType> FTipos;  // of each message
};

/// Accumulates while it lives, exceptions included.
class TAcumuloNotificacoes {
public:
    explicit TAcumuloNotificacoes(TOryUtilsDialogsCentralNotificacoes& ACentral) : FCentral(ACentral) {
        FCentral.IniciarAcumulo();
    }
    ~TAcumuloNotificacoes() { FCentral.FinalizarAcumulo(); }
    TAcumuloNotificacoes(const TAcumuloNotificacoes&) = delete;
    TAcumuloNotificacoes& operator=(const TAcumuloNotificacoes&) = delete;

private:
    TOryUtilsDialogsCentralNotificacoes& FCentral;
};

}  // namespace OryUtils

#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/ui/UnOryUtilsDialogsIOP.hpp"

#include <memory>
#include <string_view>

namespace OryUtils {

class TFormularioAndamento;

/// A progress dialog on the screen, from TOryUtilsDialogs::MostrarAndamento until it goes. It shows a text and a bar,
/// and lets the user cancel. The work goes on meanwhile in a loop of the caller, on the thread of the user interface,
/// that calls Atualizar again and again.
/// Example:
///   const auto andamento = GOryUtilsDialogs->MostrarAndamento({.Titulo = u"Cópia", .Mensagem = u"Copiando..."});
///   for (std::size_t i = 0; i < arquivos.size(); ++i) {
///       if (!andamento->Atualizar(100.0 * i / arquivos.size(), arquivos[i])) break;
///       Copiar(arquivos[i]);
///   }
class ORY_API TOryUtilsDialogsAndamento {
public:
    /// Made by MostrarAndamento.
    explicit TOryUtilsDialogsAndamento(const TOryUtilsDialogsAndamentoIOP& AParametros);
    /// Takes the dialog away. Not within a call of Atualizar.
    ~TOryUtilsDialogsAndamento();
    TOryUtilsDialogsAndamento(const TOryUtilsDialogsAndamento&) = delete;
    TOryUtilsDialogsAndamento& operator=(const TOryUtilsDialogsAndamento&) = delete;

    /// Shows how far the work is, lets the messages of the windows through, and tells whether to go on: false once the
    /// user has cancelled. Draws and lets messages through some 25 times a second at most, so that it may stand in the
    /// tightest loop; what was not drawn yet is drawn by a later call. Other windows of the thread take no input.
    /// APercentual  0 to 100; below 0 nobody knows the share
    /// ATexto       what is done now; one that is left out stays
    /// Raises what the handlers of the host raise meanwhile, and Exception from another thread.
    bool Atualizar(double APercentual, std::u16string_view ATexto);
    bool Atualizar(double APercentual);
    bool Atualizar(std::u16string_view ATexto);
    /// Only lets messages through, for a step that has no news.
    bool Atualizar();
    bool FoiCancelado() const noexcept;

private:
    std::unique_ptr<TFormularioAndamento> FFormulario;
};

}  // namespace OryUtils

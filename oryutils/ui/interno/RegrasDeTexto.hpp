#pragma once

#include "oryutils/fields/Campos.hpp"
#include "oryutils/ui/UnOryUtilsDialogsEntradasIOP.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace OryUtils {

/// A text as the user left it, read: what it answers, or the sentence that refuses it.
struct TTextoConferido {
    std::u16string Valor{};
    std::u16string Recusa{};
};

/// The field that edits what AParametros ask for; null where the box is an ordinary one. Raises EConvertError for a
/// broken mask.
std::unique_ptr<TField> CriarCampoDoPedido(const TOryUtilsDialogsPedidoTextoIOP& AParametros);

/// By the kind, its mask and its rule alone; a blank text passes. ATexto may have its marks or not.
TTextoConferido ConferirTexto(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string_view ATexto);

}  // namespace OryUtils

#include "oryutils/ui/UnOryUtilsDialogsIOP.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Excecoes.hpp"

namespace OryUtils {

void TOryUtilsDialogsFormCustomizadoBaseIOP::ValidarPropriedades() const {
    // The class named is the customised one for the whole family, as hosts' texts expect.
    if (Botoes.empty()) throw Exception(u"TOryUtilsDialogsFormCustomizadoIOP.Botoes: preenchimento obrigatório.");
    if (CaptionBotoes.empty())
        throw Exception(u"TOryUtilsDialogsFormCustomizadoIOP.CaptionBotoes: preenchimento obrigatório.");
}

void TOryUtilsDialogsFormCustomizadoLembradaIOP::ValidarPropriedades() const {
    TOryUtilsDialogsFormCustomizadoBaseIOP::ValidarPropriedades();
    if (Aparar(Chave).empty())
        throw Exception(u"TOryUtilsDialogsFormCustomizadoLembradaIOP.Chave: preenchimento obrigatório.");
}

}  // namespace OryUtils

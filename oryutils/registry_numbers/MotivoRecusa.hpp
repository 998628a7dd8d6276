#pragma once

namespace OryUtils {

/// Why a registry number is refused.
enum TMotivoRecusa : int {
    mrNenhum,          // valid
    mrVazio,           // nothing to check
    mrTamanho,         // another number of characters
    mrCaractere,       // a character that has no place in it
    mrPrefixo,         // does not start, or go on, with one of the codes that exist
    mrDigito,          // wrong check digit
    mrRepetido,        // one character repeated, or nothing but zeros, where that is refused
    mrTipo,            // no rule for the kind
    mrUf,              // no such federative unit
    mrContexto,        // the rule needs a context, and none is given
    mrForaDoContexto,  // belongs to another federative unit than the context says
    mrData,            // a date inside it that does not exist
    mrForma,           // its parts are not where they must be
};

}  // namespace OryUtils

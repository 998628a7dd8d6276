#pragma once

namespace OryUtils {

/// Why a registry number is refused. The public verdict is "mrNenhum"; the tests tell a right refusal from a lucky one.
enum TMotivoRecusa : int {
    mrNenhum,     // valid
    mrVazio,      // nothing to check
    mrTamanho,    // another number of characters
    mrCaractere,  // a character that has no place in it
    mrPrefixo,    // does not start as it must
    mrDigito,     // wrong check digit
    mrRepetido,   // one digit repeated, or nothing but zeros, where that is refused
    mrTipo,       // no rule for the kind
    mrUf,         // no such federative unit
};

}  // namespace OryUtils

#pragma once

namespace OryUtils {

/// Why a registry number is refused. Callers see the verdict alone; the tests compare the reason too, so that a refusal
/// by the wrong rule shows.
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

#pragma once

#include "oryutils/OryExport.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// The lower-case letter of a letter, and any other character as it is. The same on every system and in every locale:
/// Latin with its Portuguese and European accents, Greek, Cyrillic and full-width letters. Only letters that have one
/// partner of one code unit take part: "ß", the dotless "ı" and the dotted "İ" stay as they are.
/// MinusculaDe(MaiusculaDe(c)) == MinusculaDe(c) for every c.
ORY_API char16_t MinusculaDe(char16_t ACaractere) noexcept;
/// The upper-case letter of a letter, and any other character as it is.
ORY_API char16_t MaiusculaDe(char16_t ACaractere) noexcept;

/// Each character of ATexto by the rule above; the length stays.
/// Example:  MaiusculaDe(u"São João") is "SÃO JOÃO".
ORY_API std::u16string MinusculaDe(std::u16string_view ATexto);
ORY_API std::u16string MaiusculaDe(std::u16string_view ATexto);

/// True when both texts are the same, ignoring case.
ORY_API bool IguaisIgnorandoCaixa(std::u16string_view AUm, std::u16string_view AOutro) noexcept;

}  // namespace OryUtils

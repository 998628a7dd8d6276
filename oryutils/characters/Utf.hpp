#pragma once

#include "oryutils/OryExport.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// UTF-8 to UTF-16. Each malformed sequence becomes U+FFFD (one for each maximal ill-formed part); never throws.
ORY_API std::u16string DeUtf8(std::string_view ATexto);

/// UTF-16 to UTF-8. A lone surrogate becomes U+FFFD; never throws.
ORY_API std::string ParaUtf8(std::u16string_view ATexto);

/// Windows-1252 to UTF-16. The five bytes that the code page leaves empty become the control of the same code.
ORY_API std::u16string DeWindows1252(std::string_view ATexto);

/// UTF-16 to Windows-1252, the reverse of DeWindows1252. A character that the code page lacks, and a lone surrogate,
/// becomes "?"; never throws.
ORY_API std::string ParaWindows1252(std::u16string_view ATexto);

/// True when ATexto is well-formed UTF-8.
ORY_API bool EhUtf8Valido(std::string_view ATexto) noexcept;

}  // namespace OryUtils

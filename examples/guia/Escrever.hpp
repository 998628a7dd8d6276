#pragma once

#include "oryutils/runtime/Utf.hpp"

#include <cstdio>
#include <string_view>

/// One line on the console, in UTF-8.
inline void Escrever(std::u16string_view ATexto) { std::puts(OryUtils::ParaUtf8(ATexto).c_str()); }

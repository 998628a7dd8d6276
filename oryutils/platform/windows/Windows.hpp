#pragma once

// The one place that includes the system's header: lean, and without the min and max macros.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <string>
#include <string_view>

namespace OryUtils::Interno {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// The same UTF-16 units under the system's character type.
inline const wchar_t* ParaWide(const char16_t* ATexto) noexcept { return reinterpret_cast<const wchar_t*>(ATexto); }
inline const wchar_t* ParaWide(const std::u16string& ATexto) noexcept { return ParaWide(ATexto.c_str()); }
inline wchar_t* ParaWide(char16_t* ATexto) noexcept { return reinterpret_cast<wchar_t*>(ATexto); }
inline std::u16string DeWide(std::wstring_view ATexto) {
    return {reinterpret_cast<const char16_t*>(ATexto.data()), ATexto.size()};
}

}  // namespace OryUtils::Interno

#pragma once

#include "oryutils/OryExport.hpp"

#include <initializer_list>
#include <string>
#include <string_view>

namespace OryUtils {

/// AModelo with AValores in the places of its "%s" and "%d", in order; "%%" is a per cent sign. A value is taken as it
/// is, so what it holds is never filled again. A place without a value stays as written.
/// Example: PreencherModelo(u"Arquivo %s não encontrado.", {u"a.log"}).
ORY_API std::u16string PreencherModelo(std::u16string_view AModelo,
                                       std::initializer_list<std::u16string_view> AValores);

}  // namespace OryUtils

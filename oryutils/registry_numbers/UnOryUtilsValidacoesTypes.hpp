#pragma once

#include <array>
#include <functional>
#include <string_view>

namespace OryUtils {

/// At which result a chain of validation callbacks stops.
enum TTipoValidacaoResultadoMetodoRetorno : int {
    tvrPrimeiroResultadoFalso = 0,
    tvrPrimeiroResultadoVerdadeiro = 1,
};

/// One validation supplied by the caller; true when it passes.
using TValidacaoMetodoRetorno = std::function<bool()>;

/// Characters forbidden in names and addresses. The empty entry keeps the positions of the others and matches nothing.
inline constexpr std::array<std::u16string_view, 40> CCarateresEspeciais{
    u"!", u"#", u"$", u"%", u"¨", u"&", u"*", u"(", u")", u"+", u"=", u"§", u"¬", u"¢",
    u"¹", u"²", u"³", u"£", u"´", u"`", u"ç", u"Ç", u",", u";", u":", u"<", u">", u"~",
    u"^", u"?", u"/", u"",  u"|", u"[", u"]", u"{", u"}", u"º", u"ª", u"°"};

}  // namespace OryUtils

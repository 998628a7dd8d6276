#pragma once

#include "oryutils/platform/windows/Windows.hpp"

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// ATexto as native controls take it: every line break (CR LF, LF, CR) becomes CR LF, a NUL becomes a blank.
std::u16string ParaNativo(std::u16string_view ATexto);
/// The same for a multi-line box, whose cost grows with the square of a paragraph: long ones are parted by soft breaks
/// (CR CR LF), which the box shows as its own wrapping.
std::u16string ParaMemorando(std::u16string_view ATexto);
/// ATexto as the model keeps it: without soft breaks, and its lines end with LF alone when those of AModelo, the text
/// before, did.
std::u16string DeNativo(std::u16string_view ATexto, std::u16string_view AModelo);

std::u16string LerTexto(HWND AJanela);
void EscreverTexto(HWND AJanela, std::u16string_view ATexto);

}  // namespace OryUtils::Interno

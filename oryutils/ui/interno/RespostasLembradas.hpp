#pragma once

#include <optional>
#include <string_view>

namespace OryUtils {

// Answers that the user asked to be remembered, in the user's settings (docs/ajustes.md): one value for each key of the
// caller, below a key of this program. What cannot be read counts as missing.

std::optional<int> BuscarRespostaLembrada(std::u16string_view AChave);
/// False when the settings cannot be written.
bool LembrarResposta(std::u16string_view AChave, int AResposta);
/// False when nothing was remembered under that key.
bool EsquecerRespostaLembrada(std::u16string_view AChave);
/// All answers of this program.
void EsquecerRespostasLembradas();

}  // namespace OryUtils

#include "oryutils/runtime/Excecoes.hpp"

#include "oryutils/runtime/Utf.hpp"

namespace OryUtils {

Exception::Exception(std::u16string_view AMensagem) : FMensagem(AMensagem), FWhat(ParaUtf8(AMensagem)) {}

void Abort() { throw EAbort(); }

}  // namespace OryUtils

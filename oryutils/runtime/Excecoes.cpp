#include "oryutils/runtime/Excecoes.hpp"

#include "oryutils/characters/Utf.hpp"

namespace OryUtils {

Exception::Exception(std::u16string_view AMensagem) : FMensagem(AMensagem), FWhat(ParaUtf8(AMensagem)) {}

std::u16string BuscarMensagemDaExcecaoAtual() {
    try {
        throw;
    } catch (const Exception& falha) {
        return falha.GetMensagem();
    } catch (const std::exception& falha) {
        return DeUtf8(falha.what());
    } catch (...) {
        return {};
    }
}

void Abort() { throw EAbort(); }

}  // namespace OryUtils

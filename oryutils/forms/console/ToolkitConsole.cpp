#include "oryutils/forms/console/ToolkitConsole.hpp"

#include "oryutils/runtime/Utf.hpp"

#include <cstdio>

namespace OryUtils {

int TToolkitConsole::ExecutarModal(TFormulario& AFormulario) {
    const TControleFormulario* mensagem = AFormulario.BuscarControle(u"Message");
    std::fprintf(stderr, "%s: %s\n", ParaUtf8(AFormulario.GetTitulo()).c_str(),
                 mensagem ? ParaUtf8(mensagem->GetTexto()).c_str() : "");
    return mrCancel;
}

TTamanho TToolkitConsole::MedirTexto(std::u16string_view ATexto, int) const {
    return {static_cast<int>(ATexto.size()) * 6, 13};
}

std::uintptr_t TToolkitConsole::LigarTemporizador(int, std::function<void()>) { return 1; }
void TToolkitConsole::DesligarTemporizador(std::uintptr_t) {}

std::optional<std::u16string> TToolkitConsole::EscolherArquivo(std::u16string_view,
                                                               const std::vector<TFiltroArquivo>&) {
    return std::nullopt;
}

std::optional<std::u16string> TToolkitConsole::EscolherPasta(std::u16string_view, std::u16string_view) {
    return std::nullopt;
}

}  // namespace OryUtils

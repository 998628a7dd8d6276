#include "oryutils/forms/win32/interno/Exibicao.hpp"

#include "oryutils/forms/win32/interno/LacoDeMensagens.hpp"

namespace OryUtils::Interno {

TExibicaoWin32::TExibicaoWin32(TFormulario& AFormulario, TLacoDeMensagens& ALaco, TTelas& ATelas)
    : FLaco(ALaco),
      FFocoAnterior(::GetFocus()),
      FJanela(AFormulario, ALaco, ATelas),
      FDesabilitadas(std::in_place, FJanela.GetHandle()) {
    FLaco.Janelas.push_back(&FJanela);
    FLaco.Exibidas.push_back(&FJanela);
    FJanela.Mostrar();
}

TExibicaoWin32::~TExibicaoWin32() {
    std::erase(FLaco.Janelas, &FJanela);
    std::erase(FLaco.Exibidas, &FJanela);
    // The windows below answer again first, so that the activation passes to one of them.
    FDesabilitadas.reset();
    FJanela.Destruir();
    if (::IsWindow(FFocoAnterior) && ::IsWindowEnabled(::GetAncestor(FFocoAnterior, GA_ROOT)))
        ::SetFocus(FFocoAnterior);
}

}  // namespace OryUtils::Interno

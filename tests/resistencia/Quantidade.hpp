#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

namespace OryUtils::Testes {

/// How often an endurance test repeats: ACurta with the other tests, ALonga when scripts/resistencia asks for it.
inline int Quantidade(int ACurta, int ALonga) {
    const char* forma = std::getenv("ORY_RESISTENCIA");
    return forma && std::string_view(forma) == "longa" ? ALonga : ACurta;
}

/// The same for dialogs that are shown, whose number scripts/resistencia --dialogos may tell.
inline int QuantidadeDeDialogos(int ACurta, int ALonga) {
    const char* quantos = std::getenv("ORY_RESISTENCIA_DIALOGOS");
    return quantos ? std::stoi(quantos) : Quantidade(ACurta, ALonga);
}

}  // namespace OryUtils::Testes

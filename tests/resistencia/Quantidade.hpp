#pragma once

#include <cstdlib>
#include <string_view>

namespace OryUtils::Testes {

/// How often an endurance test repeats: ACurta with the other tests, ALonga when scripts/resistencia asks for it.
inline int Quantidade(int ACurta, int ALonga) {
    const char* forma = std::getenv("ORY_RESISTENCIA");
    return forma && std::string_view(forma) == "longa" ? ALonga : ACurta;
}

}  // namespace OryUtils::Testes

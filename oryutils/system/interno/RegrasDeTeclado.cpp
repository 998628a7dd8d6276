#include "oryutils/system/interno/RegrasDeTeclado.hpp"

#include <array>

namespace OryUtils::Interno {
namespace {

struct TModificador {
    TTeclaModificadora Modificador;
    std::uint16_t Tecla;
};
// In the order in which they go down; they come up in the opposite one.
constexpr std::array CModificadores{TModificador{ssCtrl, 0x11}, TModificador{ssShift, 0x10}, TModificador{ssAlt, 0x12}};

}  // namespace

std::vector<Interno::TEventoDeTecla> MontarPressionamento(std::uint16_t ATecla, TShiftState AShift,
                                                          bool ATeclaEstendida) {
    std::vector<Interno::TEventoDeTecla> eventos;
    for (const TModificador& m : CModificadores)
        if (AShift.Contem(m.Modificador)) eventos.push_back({.Tecla = m.Tecla});
    eventos.push_back({.Tecla = ATecla, .Estendida = ATeclaEstendida});
    eventos.push_back({.Tecla = ATecla, .Soltar = true, .Estendida = ATeclaEstendida});
    for (auto m = CModificadores.rbegin(); m != CModificadores.rend(); ++m)
        if (AShift.Contem(m->Modificador)) eventos.push_back({.Tecla = m->Tecla, .Soltar = true});
    return eventos;
}

}  // namespace OryUtils::Interno

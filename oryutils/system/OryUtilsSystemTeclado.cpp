#include "oryutils/platform/Teclado.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDeTeclado.hpp"

namespace OryUtils {

std::uint32_t TOryUtilsSistema::BuscarTempoInatividadeSistema() { return Interno::BuscarTempoDeInatividade(); }

void TOryUtilsSistema::SimularPressionamentoTecla(std::uint16_t ATecla, TShiftState AShift, bool ATeclaEstendida) {
    Interno::EnviarEventosDeTecla(Interno::MontarPressionamento(ATecla, AShift, ATeclaEstendida));
}

bool TOryUtilsSistema::TeclaEstahPressionada(std::uint16_t ATecla) { return Interno::TeclaEstahAbaixada(ATecla); }

}  // namespace OryUtils

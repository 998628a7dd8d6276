#include "oryutils/platform/Teclado.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDeTeclado.hpp"

namespace OryUtils {

std::uint32_t TOryUtilsSistema::BuscarTempoInatividadeSistema() { return Plataforma::BuscarTempoDeInatividade(); }

void TOryUtilsSistema::SimularPressionamentoTecla(std::uint16_t ATecla, TShiftState AShift, bool ATeclaEstendida) {
    Plataforma::EnviarEventosDeTecla(Sistema::MontarPressionamento(ATecla, AShift, ATeclaEstendida));
}

bool TOryUtilsSistema::TeclaEstahPressionada(std::uint16_t ATecla) { return Plataforma::TeclaEstahAbaixada(ATecla); }

}  // namespace OryUtils

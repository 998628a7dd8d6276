#include "oryutils/platform/FusoHorario.hpp"

#include <gtest/gtest.h>

namespace {

using namespace OryUtils::Interno;

// Made-up rules: two hours behind UTC in the summer that ends on 2018-02-18 at 02:00 UTC (midnight of the wall) and in
// the one that starts on 2018-11-04 at 03:00 UTC (midnight again), three hours behind between them.
std::int32_t FusoComVerao(std::int64_t AInstante) {
    constexpr std::int64_t CFimDoVerao = 1518919200;
    constexpr std::int64_t CInicioDoVerao = 1541300400;
    return AInstante < CFimDoVerao || AInstante >= CInicioDoVerao ? -7200 : -10800;
}
std::int32_t FusoComSegundos(std::int64_t) { return -11188; }

TEST(DataHoraFuso, MudancasDoRelogio) {
    const std::tuple<TInstanteLocal, int, const char*> casos[] = {
        {{2018, 2, 17, 22, 59, 59, 0}, -120, "before the clocks go back"},
        {{2018, 2, 17, 23, 0, 0, 0}, -120, "happens twice: the first time counts"},
        {{2018, 2, 17, 23, 59, 59, 0}, -120, "last second that happens twice"},
        {{2018, 2, 18, 0, 0, 0, 0}, -180, "after the clocks went back"},
        {{2018, 7, 1, 12, 0, 0, 0}, -180, "far from any change"},
        {{2018, 11, 3, 23, 59, 59, 0}, -180, "before the clocks go forward"},
        {{2018, 11, 4, 0, 0, 0, 0}, -180, "never happens: as if they had not gone yet"},
        {{2018, 11, 4, 0, 59, 59, 0}, -180, "last second that never happens"},
        {{2018, 11, 4, 1, 0, 0, 0}, -120, "after they went forward"},
        {{1, 1, 1, 0, 0, 0, 0}, -120, "first day"},
        {{9999, 12, 31, 23, 59, 59, 0}, -120, "last day"},
    };
    for (const auto& [local, minutos, porque] : casos)
        EXPECT_EQ(BuscarDeslocamentoLocal(local, FusoComVerao), minutos) << porque;
    EXPECT_EQ(BuscarDeslocamentoLocal({1900, 1, 1, 0, 0, 0, 0}, FusoComSegundos), -186) << "-3:06:28 to the minute";
}

TEST(DataHoraFuso, SistemaRespondeDentroDoPossivel) {
    for (int ano = 1; ano <= 9999; ano += 7) {
        const int minutos = BuscarDeslocamentoLocal({ano, 7, 1, 12, 0, 0, 0});
        ASSERT_TRUE(minutos > -16 * 60 && minutos < 16 * 60) << ano << ": " << minutos;
    }
}

}  // namespace

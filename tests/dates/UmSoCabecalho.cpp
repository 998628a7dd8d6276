// A program that includes this header alone has the names that its operations take and the exceptions that they raise.
#include "oryutils/dates/OryUtilsDatas.hpp"

#include <gtest/gtest.h>

namespace {

using namespace OryUtils;

TEST(UmSoCabecalho, DasDatas) {
    const TDateTime data(45000.0);  // 15/03/2023
    EXPECT_EQ(TOryUtilsDatas::BuscarDataHoraMedidaTempo(data, tmtDia, 1), TDateTime(45001.0));
    EXPECT_EQ(TOryUtilsDatas::BuscarDescricaoDiaSemana(data), CVetorDiasSemanaCompleto[4]);
    EXPECT_THROW(TOryUtilsDatas::BuscarPrimeiroDiaMes(TDateTime(1E9)), Exception);
}

}  // namespace

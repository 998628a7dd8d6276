#include "oryutils/dates/OryUtilsDatas.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Utf.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include <iostream>

int main() {
    using namespace OryUtils;
    std::cout << (TOryUtilsValidacoes::ValidouCnpjCpf(tiCNPJ, u"11.222.333/0001-81") ? "válido\n" : "inválido\n");
    std::cout << ParaUtf8(TOryUtilsStrings::FormatarInscricaoFederal(tiCPF, u"52998224725")) << '\n';
    std::cout << TOryUtilsDatas::BuscarTrimestre(CodificarData(2026, 11, 21)) << "º trimestre\n";
}

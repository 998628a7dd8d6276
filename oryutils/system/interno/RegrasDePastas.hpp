#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The folder of a program's file, with the separator at its end.
std::u16string BuscarPastaDoPrograma(std::u16string_view AExecutavel, char16_t ASeparador);

/// ANome beside the application's folder: "C:\ory\bin\" and "OryApps" give "C:\ory\OryApps". Where the separator is
/// "/" the folder above "/app/" is the root: "/OryApps".
std::u16string MontarPastaVizinha(std::u16string_view APastaAplicacao, std::u16string_view ANome, char16_t ASeparador);

/// The name of the settings file of the forms: "FP_PC1_ana.ini".
std::u16string MontarNomeConfiguracaoForms(std::u16string_view AComputador, std::u16string_view AUsuario);

}  // namespace OryUtils::Interno

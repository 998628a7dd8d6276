#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "apps/cadastro/win32/JanelaCadastro.hpp"

#include <string_view>

// With --exemplo the boxes are filled.
int WINAPI WinMain(HINSTANCE AModulo, HINSTANCE, LPSTR AArgumentos, int) {
    // Without it the system draws the window for 96 pixels per inch and stretches it.
    ::SetProcessDPIAware();
    OryUtils::GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    OryUtils::Cadastro::TJanelaCadastro janela(AModulo);
    if (std::string_view(AArgumentos).find("--exemplo") != std::string_view::npos) janela.Exemplificar();
    return janela.Executar();
}

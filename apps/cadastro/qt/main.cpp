#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "apps/cadastro/qt/JanelaCadastro.hpp"
#include "toolkits/qt/ToolkitQt.hpp"

#include <QApplication>

// With --exemplo the boxes are filled.
int main(int argc, char** argv) {
    QApplication aplicacao(argc, argv);
    OryUtils::InstalarToolkitQt();
    OryUtils::GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    OryUtils::Cadastro::TJanelaCadastro janela;
    if (QApplication::arguments().contains("--exemplo")) janela.Exemplificar();
    janela.show();
    return QApplication::exec();
}

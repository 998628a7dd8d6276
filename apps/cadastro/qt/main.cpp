#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "apps/cadastro/qt/JanelaCadastro.hpp"
#include "toolkits/qt/ToolkitQt.hpp"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication aplicacao(argc, argv);
    OryUtils::InstalarToolkitQt();
    OryUtils::GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    OryUtils::Cadastro::TJanelaCadastro janela;
    janela.show();
    return QApplication::exec();
}

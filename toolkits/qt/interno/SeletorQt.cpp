#include "toolkits/qt/interno/SeletorQt.hpp"

#include "toolkits/qt/interno/DonaQt.hpp"
#include "toolkits/qt/interno/TextoQt.hpp"
#include "toolkits/qt/interno/TradutorQt.hpp"

#include <QApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QLocale>
#include <QTreeView>

namespace OryUtils {
namespace {

/// The folder as the picker lists it: Qt writes sizes, kinds and dates in the language of the machine.
class TPastaListada final : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex& AIndice, int APapel) const override {
        if (APapel == Qt::DisplayRole && AIndice.column() > 0)
            if (const auto* pasta = qobject_cast<const QFileSystemModel*>(sourceModel()))
                return Escrever(pasta->fileInfo(mapToSource(AIndice)), AIndice.column());
        return QIdentityProxyModel::data(AIndice, APapel);
    }

private:
    static QString Escrever(const QFileInfo& AInfo, int AColuna) {
        constexpr int CTamanho = 1, CTipo = 2;
        const QLocale brasil(QLocale::Portuguese, QLocale::Brazil);
        if (AColuna == CTamanho) return AInfo.isDir() ? QString() : brasil.formattedDataSize(AInfo.size());
        if (AColuna != CTipo) return brasil.toString(AInfo.lastModified(), QLocale::ShortFormat);
        if (AInfo.isDir()) return QStringLiteral("Pasta");
        return (QStringLiteral("Arquivo ") + AInfo.suffix().toUpper()).trimmed();
    }
};

// "*.*" means every file, also those without a point in the name.
QString ParaFiltroQt(const TFiltroArquivo& AFiltro) {
    QStringList mascaras = ParaQt(AFiltro.Mascara).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString& mascara : mascaras) mascara = mascara.trimmed() == QLatin1String("*.*") ? "*" : mascara.trimmed();
    return ParaQt(AFiltro.Descricao) + QLatin1String(" (") + mascaras.join(QLatin1Char(' ')) + QLatin1Char(')');
}

QString BuscarTitulo(const TPedidoDeCaminho& APedido) {
    if (!APedido.Titulo.empty() || APedido.Selecao == scPasta) return ParaQt(APedido.Titulo);
    return APedido.Selecao == scSalvar ? QStringLiteral("Salvar como") : QStringLiteral("Abrir");
}

constexpr int CColunaDaData = 3;

// In the order of TSelecaoDeCaminho.
constexpr QFileDialog::FileMode CModos[] = {QFileDialog::ExistingFile, QFileDialog::ExistingFiles, QFileDialog::AnyFile,
                                            QFileDialog::Directory};

}  // namespace

std::vector<std::u16string> EscolherCaminhosQt(const TPedidoDeCaminho& APedido) {
    TTradutorQt tradutor;
    QCoreApplication::installTranslator(&tradutor);
    QFileDialog dialogo(QApplication::activeWindow(), BuscarTitulo(APedido), ParaQt(APedido.PastaInicial));
    dialogo.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly);
    dialogo.setOption(QFileDialog::ShowDirsOnly, APedido.Selecao == scPasta);
    dialogo.setProxyModel(new TPastaListada(&dialogo));
    dialogo.setFileMode(CModos[APedido.Selecao]);
    QStringList filtros;
    for (const TFiltroArquivo& filtro : APedido.Filtros) filtros += ParaFiltroQt(filtro);
    if (!filtros.isEmpty()) dialogo.setNameFilters(filtros);
    if (APedido.Selecao == scSalvar) {
        dialogo.setAcceptMode(QFileDialog::AcceptSave);
        dialogo.setDefaultSuffix(ParaQt(APedido.ExtensaoPadrao));
        if (!APedido.NomeSugerido.empty()) dialogo.selectFile(ParaQt(APedido.NomeSugerido));
    }
    // Dates are told in full.
    for (const QTreeView* lista : dialogo.findChildren<QTreeView*>())
        lista->header()->setSectionResizeMode(CColunaDaData, QHeaderView::ResizeToContents);
    dialogo.setAttribute(Qt::WA_QuitOnClose, false);
    dialogo.setWindowFlag(Qt::WindowStaysOnTopHint, EstahNaFrenteQt());
    const auto dona = dialogo.parentWidget() ? std::nullopt : BuscarDonaQt();
    dialogo.winId();
    if (dona) dialogo.windowHandle()->setTransientParent(dona->Janela.get());
    std::vector<std::u16string> caminhos;
    if (dialogo.exec() != QDialog::Accepted) return caminhos;
    for (const QString& caminho : dialogo.selectedFiles()) caminhos.push_back(DeQt(caminho));
    return caminhos;
}

}  // namespace OryUtils

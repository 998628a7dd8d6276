#include "toolkits/qt/interno/SeletorQt.hpp"

#include "toolkits/qt/interno/TextoQt.hpp"
#include "toolkits/qt/interno/TradutorQt.hpp"

#include <QApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLocale>

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

// The chosen path; none when cancelled.
std::optional<std::u16string> Escolher(std::u16string_view ATitulo, std::u16string_view APastaInicial,
                                       QFileDialog::FileMode AModo, const QStringList& AFiltros) {
    TTradutorQt tradutor;
    QCoreApplication::installTranslator(&tradutor);
    QFileDialog dialogo(QApplication::activeWindow(), ParaQt(ATitulo), ParaQt(APastaInicial));
    dialogo.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly);
    dialogo.setOption(QFileDialog::ShowDirsOnly, AModo == QFileDialog::Directory);
    dialogo.setProxyModel(new TPastaListada(&dialogo));
    dialogo.setFileMode(AModo);
    if (!AFiltros.isEmpty()) dialogo.setNameFilters(AFiltros);
    dialogo.setAttribute(Qt::WA_QuitOnClose, false);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
    return DeQt(dialogo.selectedFiles().constFirst());
}

}  // namespace

std::optional<std::u16string> EscolherArquivoQt(std::u16string_view APastaInicial,
                                                const std::vector<TFiltroArquivo>& AFiltros) {
    QStringList filtros;
    for (const TFiltroArquivo& filtro : AFiltros) filtros += ParaFiltroQt(filtro);
    return Escolher(u"Abrir", APastaInicial, QFileDialog::ExistingFile, filtros);
}

std::optional<std::u16string> EscolherPastaQt(std::u16string_view ATitulo, std::u16string_view APastaInicial) {
    return Escolher(ATitulo, APastaInicial, QFileDialog::Directory, {});
}

}  // namespace OryUtils

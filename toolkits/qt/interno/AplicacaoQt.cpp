#include "toolkits/qt/interno/AplicacaoQt.hpp"

#include "oryutils/runtime/Excecoes.hpp"

#include "toolkits/qt/interno/DonaQt.hpp"
#include "toolkits/qt/interno/TradutorQt.hpp"

#include <QFileInfo>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <QScreen>
#include <QThread>
#include <QWidget>

#include <atomic>
#include <clocale>
#include <string>

namespace OryUtils {
namespace {

// The name that window managers show for the program.
std::string BuscarNomeDoPrograma() {
    const QString programa = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    return programa.isEmpty() ? "oryutils" : QFileInfo(programa).fileName().toStdString();
}

// The application stays until the system takes the process back: by the time a program ends, globals of Qt that it
// needs for going may have gone before it.
void CriarAplicacao() {
    // QApplication keeps references to both for as long as it lives.
    static std::string nome = BuscarNomeDoPrograma();
    static int quantidade = 1;
    static char* argumentos[] = {nome.data(), nullptr};

    // Qt switches the whole process to the user's locale. A program that only shows a message must go on reading and
    // writing its numbers as before; the character set may stay, input methods need it.
    const std::string anterior = std::setlocale(LC_ALL, nullptr);
    auto* aplicacao = new QApplication(quantidade, argumentos);
    const std::string caracteres = std::setlocale(LC_CTYPE, nullptr);
    std::setlocale(LC_ALL, anterior.c_str());
    std::setlocale(LC_CTYPE, caracteres.c_str());

    aplicacao->setQuitOnLastWindowClosed(false);
    QCoreApplication::installTranslator(new TTradutorQt(aplicacao));
}

bool Carrega(const char* APlugin) {
    const QString pasta = QLibraryInfo::path(QLibraryInfo::PluginsPath) + QLatin1String("/platforms/");
    return QPluginLoader(pasta + QLatin1String(APlugin)).load();
}

}  // namespace

QApplication& ExigirAplicacao() {
    if (!QCoreApplication::instance()) CriarAplicacao();
    auto* aplicacao = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!aplicacao) throw Exception(u"A aplicação não possui interface gráfica (QApplication).");
    return *aplicacao;
}

bool PodeCriarAplicacao() {
    if (const QCoreApplication* atual = QCoreApplication::instance()) return qobject_cast<const QApplication*>(atual);
    // A platform named by the user, or plug-ins kept elsewhere, are the user's word.
    for (const char* variavel : {"QT_QPA_PLATFORM", "QT_QPA_PLATFORM_PLUGIN_PATH", "QT_PLUGIN_PATH"})
        if (!qEnvironmentVariableIsEmpty(variavel)) return true;
    const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY") && Carrega("libqxcb.so");
    return x11 || (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && Carrega("libqwayland-generic.so"));
}

QScreen* BuscarTelaQt() {
    const QWidget* ativa = QApplication::activeWindow();
    // While another program is in front.
    if (!ativa) ativa = QApplication::activeModalWidget();
    if (ativa) return ativa->screen();
    const auto dona = BuscarDonaQt();
    QScreen* tela = dona ? QGuiApplication::screenAt(dona->Lugar.center()) : nullptr;
    return tela ? tela : QGuiApplication::primaryScreen();
}

bool EhThreadDaAplicacao() {
    const QCoreApplication* aplicacao = QCoreApplication::instance();
    if (aplicacao) return aplicacao->thread() == QThread::currentThread();
    static std::atomic<Qt::HANDLE> primeira = nullptr;
    const Qt::HANDLE atual = QThread::currentThreadId();
    Qt::HANDLE esperada = nullptr;
    return primeira.compare_exchange_strong(esperada, atual) || esperada == atual;
}

}  // namespace OryUtils

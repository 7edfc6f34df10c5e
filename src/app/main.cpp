#include "app/MainWindow.h"
#include "app/QuitOnSignals.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

void installTranslation(QTranslator& translator) {
    const QStringList languages = QLocale::system().uiLanguages();
    for (const QString& language : languages) {
        const QString baseName = "Tessarine_"_L1 + QLocale(language).name();
        if (translator.load(":/i18n/"_L1 + baseName)) {
            QCoreApplication::installTranslator(&translator);
            return;
        }
    }
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Tessarine"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSARINE_VERSION));
    const QuitOnSignals quitOnSignals;
    QTranslator translator;
    installTranslation(translator);
    MainWindow window;
    window.show();
    return QApplication::exec();
}

#include "app/MainWindow.h"
#include "app/QuitOnSignals.h"
#include "app/services/Translations.h"

#include <QApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Tessarine"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSARINE_VERSION));
    const QuitOnSignals quitOnSignals;
    Translations translations;
    translations.install(QLocale::system().uiLanguages());
    MainWindow window;
    window.show();
    return QApplication::exec();
}

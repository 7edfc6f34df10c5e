// Processor time from the start of the process to a usable window on an empty directory, with no server
// behind the prompt tab. Every run is a process of its own.

#include "Ratio.h"
#include "app/MainWindow.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QProcess>
#include <QStatusBar>
#include <QTemporaryDir>

namespace {

void showWindow(const QString& directory) {
    QFile::remove(QCoreApplication::applicationDirPath() + "/settings.data");
    MainWindow window;
    window.findChild<QLineEdit*>("lEWorkingPath")->setText(directory);
    window.show();
    while (!window.statusBar()->currentMessage().contains("Loaded"))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    std::printf("%f\n", Ratio::processorMs());
    std::fflush(stdout);
    std::_Exit(0);
}

void showBareWindow() {
    QMainWindow window;
    window.resize(1000, 700);
    window.show();
    QCoreApplication::processEvents();
    std::printf("%f\n", Ratio::processorMs());
}

double processorMsOf(const QStringList& arguments) {
    std::vector<double> times;
    for (int run = 0; run < Ratio::runs; ++run) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("a start failed");
        times.push_back(process.readAllStandardOutput().trimmed().toDouble());
    }
    return Ratio::median(times);
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName("Tessarine");
    silenceLog();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3)
        showWindow(arguments[2]);
    if (arguments.size() == 2) {
        showBareWindow();
        return 0;
    }
    const QTemporaryDir empty;
    Ratio::header();
    Ratio::print("start, processor time", processorMsOf({"ours", empty.path()}), processorMsOf({"bare"}));
    return 0;
}

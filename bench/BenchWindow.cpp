#include "BenchWindow.h"

#include "Ratio.h"
#include "catalogue/ImageLoaderThreaded.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace catalogue {

QString sidecarOf(int number) {
    QStringList tags;
    for (int tag = 0; tag < 29; ++tag)
        tags.append(QString("tag %1").arg((number * 29 + tag * 7919) % 20000));
    tags.append(number % 10 == 0 ? "needle in hay" : "plain last tag");
    return tags.join(", ");
}

QString pictureName(int number) {
    return QString("image_%1.png").arg(number, 5, 10, QChar('0'));
}

void makeFiles(const QString& directory, int first, int last) {
    QImage image(2, 250, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    image.setText("Comment", "made for measuring");
    const QString model = directory + "/model.tmp";
    if (!image.save(model, "png"))
        qFatal("cannot write");
    QFile source(model);
    if (!source.open(QIODevice::ReadOnly))
        qFatal("no source");
    const QByteArray bytes = source.readAll();
    source.remove();
    for (int number = first; number < last; ++number) {
        const QString name = directory + '/' + pictureName(number);
        QFile sidecar(name.chopped(4) + ".txt");
        QFile picture(name);
        if (!sidecar.open(QIODevice::WriteOnly) || !picture.open(QIODevice::WriteOnly))
            qFatal("cannot write");
        sidecar.write(sidecarOf(number).toUtf8());
        sidecar.close();
        picture.write(bytes);
    }
}

} // namespace catalogue

long residentKilobytes() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QString text = QString::fromLatin1(status.readAll());
    const qsizetype start = text.indexOf("VmRSS:") + 6;
    return text.mid(start, text.indexOf("kB", start) - start).trimmed().toLong();
}

void atEachSize(int argc, char* argv[], const std::function<void(int files)>& measure) {
    const int wanted = argc > 1 ? QString(argv[1]).toInt() : 0;
    for (const int files : {1000, 10000, 50000}) {
        if (wanted != 0 && wanted != files)
            continue;
        std::printf("\n### %d files\n\n", files);
        measure(files);
    }
}

BenchWindow::BenchWindow(int files) {
    // Repeated for each window: the destructor of the previous one has removed the message handler.
    silenceLog();
    catalogue::makeFiles(_directory.path(), 0, files);
    QFile::remove(QCoreApplication::applicationDirPath() + "/settings.data");
    _window = std::make_unique<MainWindow>();
    find<QLineEdit>("lEWorkingPath")->setText(_empty.path());
    // The tab whose lists are updated by most operations.
    find<QTabWidget>("tWTools")->setCurrentWidget(find<QWidget>("tabTags"));
    _window->resize(1600, 1000);
    _window->show();
    // The window opens the path of the line edit by itself a quarter of a second after its start.
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 500)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void BenchWindow::open() {
    openPath(path());
    while (_window->imageTags(_window->allFilePaths().value(0)).isEmpty())
        QCoreApplication::processEvents();
}

void BenchWindow::openPath(const QString& path) {
    find<QLineEdit>("lEWorkingPath")->setText(path);
    _window->openWorkingDirectory(path);
    QCoreApplication::processEvents();
}

void BenchWindow::openEmpty() {
    openPath(emptyPath());
    QCoreApplication::processEvents();
}

void BenchWindow::waitForPreviews() {
    QEventLoop loop;
    auto* loader = _window->findChild<ImageLoaderThreaded*>();
    QObject::connect(loader, &ImageLoaderThreaded::showMessage, &loop, &QEventLoop::quit);
    // Makes a load that has already ended send its message again.
    QMetaObject::invokeMethod(loader, &ImageLoaderThreaded::processQueue, Qt::QueuedConnection);
    loop.exec();
    QCoreApplication::processEvents();
}

void BenchWindow::stopPreviews() {
    if (auto* loader = _window->findChild<ImageLoaderThreaded*>())
        loader->stop();
}

void BenchWindow::lookLikeTagList(QListWidget& bound) const {
    const auto* list = find<QListWidget>("lwAllImagesTags");
    bound.setViewMode(list->viewMode());
    bound.setMovement(list->movement());
    bound.setResizeMode(list->resizeMode());
    bound.setSpacing(list->spacing());
    bound.resize(list->size());
    bound.show();
}

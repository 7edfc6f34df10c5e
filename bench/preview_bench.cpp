#include "Ratio.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "reference/PlainCatalogue.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>

namespace {

// A photograph's worth of detail: smooth shapes with a little noise.
QImage makePhoto(int number) {
    const double megapixels = 2.0 + (number % 11);
    const int width = static_cast<int>(std::sqrt(megapixels * 1.5e6));
    QImage image(width, width * 2 / 3, QImage::Format_RGB32);
    unsigned noise = static_cast<unsigned>(number) * 2654435761U;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int grain = static_cast<int>(noise >> 28);
            line[x] = qRgb((x >> 4) + grain, (y >> 4) + grain, ((x + y) >> 5) + grain);
        }
    }
    return image;
}

// Pictures whose decode takes less than what surrounds it.
QStringList makeTinyPictures(const QTemporaryDir& directory, int count) {
    QImage image(2, 250, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QStringList files;
    for (int number = 0; number < count; ++number) {
        files.append(directory.filePath(QString("tiny%1.png").arg(number)));
        if (number == 0 ? !image.save(files.first()) : !QFile::copy(files.first(), files.last()))
            qFatal("cannot write");
    }
    return files;
}

void loadWithCoordinator(const QStringList& files, const QSize& size, int threads) {
    ImageLoaderThreaded loader;
    loader.setImageThreadCount(threads);
    loader.setPreviewSize(size);
    for (const QString& file : files)
        loader.enqueue(file, false);
    QEventLoop loop;
    QObject::connect(&loader, &ImageLoaderThreaded::showMessage, &loop, &QEventLoop::quit);
    QMetaObject::invokeMethod(&loader, &ImageLoaderThreaded::start, Qt::QueuedConnection);
    loop.exec();
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    silenceLog();
    const QTemporaryDir directory;
    const int count = argc > 1 ? QString(argv[1]).toInt() : 60;
    QStringList files;
    for (int number = 0; number < count; ++number) {
        files.append(directory.filePath(QString("photo%1.jpg").arg(number)));
        makePhoto(number).save(files.last(), nullptr, 88);
    }
    const auto compare = [](const QString& what, const QStringList& pictures) {
        for (const int threads : {2, 4}) {
            Ratio::report(
                QString("previews of %1 %2, %3 workers").arg(pictures.size()).arg(what).arg(threads),
                [&] { loadWithCoordinator(pictures, {218, 218}, threads); },
                [&] {
                    if (reference::loadPreviews(pictures, {218, 218}, threads) != pictures.size())
                        qFatal("not all pictures came");
                });
        }
    };
    Ratio::header();
    compare("photos", files);
    compare("tiny pictures", makeTinyPictures(directory, argc > 2 ? QString(argv[2]).toInt() : 10000));
    return 0;
}

// Batch resize and a chain of all effects over photographs in the real window, against decoding, working and
// encoding in a plain loop.

#include "BenchWindow.h"
#include "Ratio.h"
#include "reference/PlainPixels.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include <cmath>

namespace {

constexpr int quality = 90;
constexpr QSize resizedTo(1600, 1200);

// Smooth shapes with a little noise, as a photograph has.
QImage makePhoto(int number, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    unsigned noise = static_cast<unsigned>(number) * 2654435761U;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int grain = static_cast<int>(noise >> 28);
            line[x] = qRgb((x >> 4) + grain, (y >> 4) + grain, ((x + y) >> 5) + grain);
        }
    }
    return image;
}

// Reads, works on and writes each file with one reader and one writer, as a batch does.
void plainBatch(const QString& source, const QString& target,
                const std::function<QImage(const QImage&)>& work) {
    QImageReader reader;
    QImageWriter writer;
    QDir().mkpath(target);
    const QStringList names = QDir(source).entryList({"*.jpg"}, QDir::Files);
    for (const QString& name : names) {
        reader.setFileName(source + '/' + name);
        writer.setFileName(target + '/' + name);
        writer.setCompression(1);
        writer.setQuality(quality);
        if (!writer.write(work(reader.read())))
            qFatal("cannot write");
    }
}

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void requireEqualFiles(const QString& ours, const QString& bound) {
    const QStringList names = QDir(ours).entryList(QDir::Files);
    if (names.isEmpty() || names != QDir(bound).entryList(QDir::Files))
        qFatal("different files");
    for (const QString& name : names) {
        if (content(ours + '/' + name) != content(bound + '/' + name))
            qFatal("different pictures: %s", qPrintable(name));
    }
}

class Bench {
public:
    Bench(int photos, QSize size)
        : _bench(0)
        , _photos(
              QString("%1 photos of %2 megapixels").arg(photos).arg(size.width() * size.height() / 1000000)) {
        for (int number = 0; number < photos; ++number)
            makePhoto(number, size).save(_bench.path() + QString("/photo%1.jpg").arg(number), nullptr, 92);
        _bench.openPath(_bench.path());
        QCoreApplication::processEvents();
        _bench.find<QListView>("listView")->selectAll();
        _bench.stopPreviews();
        QCoreApplication::processEvents();
    }

    void resize() {
        _bench.find<QSpinBox>("sBSpecificW")->setValue(resizedTo.width());
        _bench.find<QSpinBox>("sBSpecificH")->setValue(resizedTo.height());
        _bench.find<QLineEdit>("lEScaleDirOutput")->setText(output("ours"));
        _bench.find<QSlider>("hSResizeImgWriteQuality")->setValue(quality);
        auto* button = _bench.find<QPushButton>("pBProcessResize");
        measure(
            "resize of %1", [&] { button->click(); },
            [](const QImage& image) {
                return image.scaled(resizedTo, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            });
    }

    void effects() {
        auto* rows = _bench.find<QListWidget>("lWDspEffects");
        rows->clear();
        const std::pair<const char*, int> chain[] = {{"Brightness", 20},  {"Contrast", 11},   {"Blur", 5},
                                                     {"WhitePoint", 230}, {"BlackPoint", 20}, {"Sharpen", 0}};
        for (const auto& [name, value] : chain) {
            _bench.window().onAddDspEffectItem(name);
            auto* slider = rows->itemWidget(rows->item(rows->count() - 1))->findChild<QSlider*>();
            if (slider)
                slider->setValue(value);
        }
        _bench.find<QLineEdit>("lEDspDirOutput")->setText(output("ours"));
        _bench.find<QSlider>("hSDspWriteQuality")->setValue(quality);
        auto* button = _bench.find<QPushButton>("pBDspApply");
        measure(
            "six effects on %1", [&] { button->click(); },
            [](const QImage& image) {
                QImage work = reference::mapped(image, [](int c) { return c + 20; });
                work = reference::mapped(work, [](int c) { return static_cast<int>(c * (10.0 / 11) + 1); });
                work = reference::blurredByColumns(work, 5);
                work = reference::mapped(work, [](int c) { return c > 230 ? 255 : c; });
                work = reference::mapped(work, [](int c) { return c < 20 ? 0 : c; });
                return reference::convolved(work, {-1, -1, -1, -1, 9, -1, -1, -1, -1});
            });
    }

private:
    [[nodiscard]] QString output(const char* side) const { return _output.path() + '/' + side; }

    void measure(const char* what, const Ratio::Side& ours,
                 const std::function<QImage(const QImage&)>& work) {
        Ratio::report(QString(what).arg(_photos), ours,
                      [&] { plainBatch(_bench.path(), output("bound"), work); });
        requireEqualFiles(output("ours"), output("bound"));
        QDir(output("ours")).removeRecursively();
        QDir(output("bound")).removeRecursively();
    }

    BenchWindow _bench;
    QTemporaryDir _output;
    QString _photos; // what they are, in words
};

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName("Tessarine");
    Ratio::header();
    for (const auto& [photos, size] : {std::pair(6, QSize(4000, 3000)), std::pair(2, QSize(6000, 4000))}) {
        Bench bench(photos, size);
        bench.resize();
        bench.effects();
    }
    return 0;
}

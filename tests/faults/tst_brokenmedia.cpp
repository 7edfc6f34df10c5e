#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"
#include "support/Clips.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QListView>
#include <QSpinBox>
#include <QtEndian>

namespace {

constexpr int places = 32;

quint32 crc32(const QByteArray& bytes) {
    quint32 crc = ~0u;
    for (const char byte : bytes) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xedb88320u : crc >> 1;
    }
    return ~crc;
}

template <typename Number>
QByteArray bytesOf(Number number) {
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof(Number));
}

QImage picture() {
    QImage image(24, 16, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 10, y * 15, x * y));
    }
    image.setText("Comment", "a remark");
    return image;
}

QByteArray chunk(const QByteArray& typeAndData) {
    return bytesOf(qToBigEndian(quint32(typeAndData.size() - 4))) + typeAndData +
           bytesOf(qToBigEndian(crc32(typeAndData)));
}

QByteArray gzipped(const QByteArray& bytes) {
    const QByteArray zlib = qCompress(bytes).sliced(4);
    return QByteArray::fromHex("1f8b0800000000000003") + zlib.sliced(2).chopped(4) +
           bytesOf(qToLittleEndian(crc32(bytes))) + bytesOf(qToLittleEndian(quint32(bytes.size())));
}

// A sound file of a format, by its writer or by hand.
QByteArray soundFile(const QString& format) {
    static const QByteArray svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="24" height="16">)"
                                  R"(<rect width="9" height="9" fill="red"/></svg>)";
    if (format == "svg")
        return svg;
    if (format == "svgz")
        return gzipped(svg);
    if (format == "gif")
        return QByteArray::fromHex(
            "47494638396110001000800000ff00000000ff21f90401000000002c00000000100010000002"
            "0e848fa9cbed0fa39cb4da8bb3de05003b");
    if (format == "tga")
        return QByteArray::fromHex("000002000000000000000000180010001800") + QByteArray(24 * 16 * 3, 'p') +
               QByteArray(8, '\0') + QByteArray("TRUEVISION-XFILE.", 18);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const bool isMng = format == "mng";
    QImageWriter writer(&buffer, isMng ? "png" : format == "jfif" ? "jpeg" : format.toLatin1());
    if (!writer.write(picture()))
        return {};
    if (!isMng)
        return buffer.data();
    QByteArray header("MHDR");
    for (const quint32 number : {24, 16, 1, 0, 0, 0, 1})
        header += bytesOf(qToBigEndian(number));
    return QByteArray::fromHex("8a4d4e470d0a1a0a") + chunk(header) + buffer.data().sliced(8) + chunk("MEND");
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Writes a file cut at so many places, and with a byte flipped at so many.
void addBroken(const MediaFolder& folder, const QString& baseName, const QString& suffix,
               const QByteArray& sound, int count) {
    for (int place = 0; place < count; ++place) {
        const qsizetype position = sound.size() * place / count;
        folder.addFile(QString("%1-cut%2.%3").arg(baseName).arg(place).arg(suffix), sound.first(position));
        QByteArray flipped = sound;
        flipped[position] = static_cast<char>(~flipped[position]);
        folder.addFile(QString("%1-flip%2.%3").arg(baseName).arg(place).arg(suffix), flipped);
    }
}

QHash<QString, QByteArray> contents(const MediaFolder& folder) {
    QHash<QString, QByteArray> all;
    for (const QString& name : folder.names())
        all.insert(name, folder.content(name));
    return all;
}

} // namespace

// Files of every supported format, broken in every way, under the real window.
class TestBrokenMedia : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void imagesAreListedAndKept() {
        const MediaFolder folder;
        const QStringList formats = supportedImageFormats();
        for (const QString& format : formats) {
            const QByteArray sound = soundFile(format);
            QVERIFY2(!QImage::fromData(sound, qPrintable(format)).isNull(), qPrintable(format));
            folder.addFile(format + "." + format, sound);
            addBroken(folder, format, format, sound, places);
        }
        const QHash<QString, QByteArray> before = contents(folder);
        QCOMPARE(before.size(), formats.size() * (1 + 2 * places));
        WindowDriver driver(folder.path());
        QCOMPARE(driver.catalogue()->rowCount(), before.size());
        for (const QString& format : formats) {
            QVERIFY2(!driver.cell(format + "." + format, ColResolution).isEmpty(), qPrintable(format));
            driver.select({format + "-cut16." + format, format + "-flip3." + format});
        }
        driver.window().onAddDspEffectItem("Blur");
        driver.widget<QListView>("listView")->selectAll();
        driver.widget<QSpinBox>("sBSpecificW")->setValue(8);
        driver.widget<QSpinBox>("sBSpecificH")->setValue(8);
        driver.click("pBProcessResize");
        driver.click("pBDspApply");
        QVERIFY(driver.statusText().startsWith("Filters applied to:"));
        QCOMPARE(contents(folder), before);
    }

    void videosAreListedAndKept() {
        const MediaFolder folder;
        // Each clip goes through the media back end, so the quick run takes few.
        const bool isThorough = qEnvironmentVariableIsSet("TESSARINE_THOROUGH");
        for (const char* clip : {"h264.mp4", "vp9.webm", "mpeg4.avi", "mpeg2.mpg", "theora.ogv", "flash.flv",
                                 "no-duration.mkv"}) {
            const QFileInfo info(clipPath(clip));
            addBroken(folder, info.baseName(), info.suffix(), contentOf(info.filePath()),
                      isThorough ? places : 2);
        }
        const QHash<QString, QByteArray> before = contents(folder);
        WindowDriver driver(folder.path());
        QCOMPARE(driver.catalogue()->rowCount(), before.size());
        for (const QString& name : isThorough ? before.keys() : before.keys().first(6))
            driver.select({name});
        QCOMPARE(contents(folder), before);
    }
};

QTEST_MAIN(TestBrokenMedia)
#include "tst_brokenmedia.moc"

#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"
#include "support/Clips.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QBuffer>
#include <QImageWriter>
#include <QListView>
#include <QSpinBox>

namespace {

constexpr int places = 32;

QImage picture() {
    QImage image(24, 16, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 10, y * 15, x * y));
    }
    image.setText("Comment", "a remark");
    return image;
}

// A sound file of a format, by its writer or, where there is none, as it stands here.
QByteArray soundFile(const QString& format) {
    static const QHash<QString, QByteArray> unwritable{
        {"svg", R"(<svg xmlns="http://www.w3.org/2000/svg"><rect width="9" height="9" fill="red"/></svg>)"},
        {"svgz",
         QByteArray::fromHex(
             "1f8b0800000000000203458c5b0a80201000af227b80d62c8242bd4c9a0af64097b6e3571fd1dfc00ca3eb19c4"
             "b5e6ad1a8844c784c8cc0d77cd5e022a29253e05084e8ea201d583883e854806da01ac2e7ea64f8ebf7b704939"
             "1b28de015afd4eec0d413ae3766c000000")},
        {"gif",
         QByteArray::fromHex("47494638396110001000800000ff00000000ff21f90401000000002c00000000100010000002"
                             "0e848fa9cbed0fa39cb4da8bb3de05003b")},
        {"mng",
         QByteArray::fromHex(
             "8a4d4e470d0a1a0a0000001c4d4844520000000800000008000000010000000000000000000000000000000151"
             "60a1700000000d4948445200000008000000080800000000e164e157000000234944415478da63608001052860"
             "70800286042860688002860550c070000a181e40010076661c01ae1dc11b0000000049454e44ae426082000000"
             "004d454e442120f7d5")},
        {"tga", QByteArray::fromHex("000002000000000000000000180010001800") + QByteArray(24 * 16 * 3, 'p') +
                    QByteArray(8, '\0') + QByteArray("TRUEVISION-XFILE.", 18)},
    };
    if (unwritable.contains(format))
        return unwritable[format];
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format == "jfif" ? "jpeg" : format.toLatin1());
    return writer.write(picture()) ? buffer.data() : QByteArray();
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

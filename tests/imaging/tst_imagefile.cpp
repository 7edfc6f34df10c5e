#include "app/services/ImageFile.h"
#include "support/MediaFolder.h"

#include <QImageWriter>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {

// No format can compress it.
QImage noise() {
    QImage image(64, 48, QImage::Format_RGB32);
    quint32 word = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, word = word * 1664525 + 1013904223);
    }
    return image;
}

// Files end after 64 bytes, as on a full disk.
class FullDisk {
public:
    FullDisk() {
        getrlimit(RLIMIT_FSIZE, &_before);
        const rlimit limit{64, _before.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &_before); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit _before{};
};

} // namespace

// Pictures replaced whole or not at all.
class TestImageFile : public QObject {
    Q_OBJECT

private slots:
    void everyFormat_data() {
        QTest::addColumn<QByteArray>("format");
        for (const QByteArray& format : QImageWriter::supportedImageFormats() +
                                            QByteArrayList{"gif", "svg", "svgz", "tga", "mng", "PNG", ""})
            QTest::addRow("'%s'", format.constData()) << format;
    }
    void everyFormat() {
        QFETCH(QByteArray, format);
        const bool isWritable = QImageWriter::supportedImageFormats().contains(format.toLower());
        const QString name = QString("a." + format);
        const QString path = _folder.addFile(name, "old bytes");
        QString error;
        const auto refuses = [&](const QImage& image) {
            return !writeImageFile(image, path, {}, &error) && _folder.content(name) == "old bytes" &&
                   _folder.names() == QStringList(name);
        };
        QVERIFY(refuses({}));
        QCOMPARE(error, QString(isWritable ? "Image is empty" : "Unsupported image format"));
        if (format == "webp") {
            QVERIFY(refuses(QImage(20000, 1, QImage::Format_RGB32)));
            QCOMPARE(error, QString("Unknown error"));
        }
        {
            const FullDisk disk;
            QVERIFY(refuses(noise()));
            QCOMPARE(error, QString(isWritable ? "File too large" : "Unsupported image format"));
        }
        if (!isWritable)
            return;
        // The same bytes as from QImageWriter, written through a link, with unchanged permissions.
        QImageWriter plain(_folder.filePath("plain." + format));
        plain.setQuality(50);
        plain.setCompression(1);
        QVERIFY(plain.write(noise()));
        const QString link = _folder.filePath("link." + format);
        QVERIFY(QFile::link(path, link));
        const auto permissions = QFile::Permissions(0x6440);
        QVERIFY(QFile::setPermissions(path, permissions));
        QVERIFY2(writeImageFile(noise(), link, {.format = {}, .quality = 50, .compression = 1}, &error),
                 qPrintable(error));
        QCOMPARE(_folder.content(name), _folder.content("plain." + format));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(QFile::permissions(path) & ~QFile::Permissions(0x0770),
                 permissions & ~QFile::Permissions(0x0770));
    }
    void cleanup() {
        for (const QString& name : _folder.names())
            QFile::remove(_folder.filePath(name));
    }

private:
    MediaFolder _folder;
};

QTEST_GUILESS_MAIN(TestImageFile)
#include "tst_imagefile.moc"

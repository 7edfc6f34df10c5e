#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaModel.h"
#include "support/Clips.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QSignalSpy>
#include <QTransform>

namespace {

// The part of a row's canvas that shows the frame.
QImage shownFrame(const WindowDriver& driver, const QString& name, bool isRotated) {
    const auto canvas = driver.cellData(name, ColName, Qt::DecorationRole).value<QImage>();
    QRect frameArea(QPoint(), QSize(160, 64).scaled(canvas.size(), Qt::KeepAspectRatio));
    if (isRotated)
        frameArea.setSize(frameArea.size().transposed());
    frameArea.moveCenter(canvas.rect().center());
    return canvas.copy(frameArea).transformed(QTransform().rotate(isRotated ? 90 : 0));
}

} // namespace

// Clips as rows of the catalogue, and frames of clips as new rows.
class WindowVideoTest : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void everyClipGetsItsFrameAndColumns() {
        // Milliseconds, frames a second, codecs.
        const std::tuple<QString, qint64, double, QString, QString> readable[] = {
            {"flash.flv", 2000, 25, "Unspecified", ""}, {"fps60.mp4", 2000, 60, "H264", ""},
            {"h264.mp4", 10000, 25, "H264", ""},        {"mpeg2.mpg", 1768, 29.97, "MPEG2", ""},
            {"mpeg4.avi", 2000, 25, "MPEG4", ""},       {"odd #1 100%25 what? 😀.mp4", 10000, 25, "H264", ""},
            {"rotated.mp4", 1080, 25, "H264", ""},      {"sound.mp4", 2000, 29.97, "H264", "AAC"},
            {"truncated.mp4", 10000, 25, "H264", ""},   {"vp9.webm", 2002, 23.976, "VP9", ""},
        };
        const MediaFolder folder;
        const QStringList unreadable{"no-index.mp4", "no-picture.mp4", "sound-only.ogg", "text.mp4"};
        for (const QString& clip : unreadable)
            QVERIFY(QFile::copy(clipPath(clip), folder.filePath(clip)));
        for (const auto& clip : readable)
            QVERIFY(QFile::copy(clipPath(std::get<0>(clip)), folder.filePath(std::get<0>(clip))));
        folder.addImage("a.png");
        const WindowDriver driver(folder.path());
        for (const QString& clip : unreadable) {
            const auto canvas = driver.cellData(clip, ColName, Qt::DecorationRole).value<QImage>();
            QImage empty(canvas.size(), QImage::Format_ARGB32_Premultiplied);
            empty.fill(Qt::transparent);
            QVERIFY2(canvas == empty, qPrintable(clip));
            QCOMPARE(driver.cell(clip, ColResolution), "-1x-1");
        }
        for (const auto& [clip, duration, rate, videoCodec, audioCodec] : readable) {
            const auto value = [&](MediaColumn column) { return driver.cellData(clip, column, RoleValue); };
            QVERIFY2(frameNumber(shownFrame(driver, clip, clip == "rotated.mp4")) == 0, qPrintable(clip));
            QCOMPARE(driver.cell(clip, ColResolution), "160x64");
            QCOMPARE(value(ColResolution).toInt(), 160 * 64);
            QVERIFY2(qAbs(value(ColDuration).toLongLong() - duration) < 50, qPrintable(clip));
            QVERIFY2(qAbs(value(ColVideoFrameRate).toDouble() - rate) < 0.01, qPrintable(clip));
            QCOMPARE(driver.cell(clip, ColVideoCodec), videoCodec);
            QCOMPARE(driver.cell(clip, ColAudioCodec), audioCodec);
        }
        QCOMPARE(driver.cell("h264.mp4", ColComment), "Yes");
        QCOMPARE(driver.cell("fps60.mp4", ColComment), "No");
    }

    void leavingDuringAProbe() {
        const MediaFolder clips;
        const MediaFolder images;
        for (int number = 0; number < 30; ++number)
            QVERIFY(QFile::copy(clipPath("h264.mp4"), clips.filePath(QString("%1.mp4").arg(number))));
        images.addImage("a.png");
        WindowDriver driver(images.path());
        auto* loader = driver.window().findChild<ImageLoaderThreaded*>();
        QStringList after;
        // In the middle of the load: while a result is delivered.
        for (const int leaveAt : {1, 3}) {
            int delivered = 0;
            QObject scope;
            connect(loader, &ImageLoaderThreaded::loadedImage, &scope, [&](const QString& name) {
                if (++delivered == leaveAt)
                    driver.window().openWorkingDirectory(images.path());
                else if (delivered > leaveAt)
                    after.append(name);
            });
            driver.window().openWorkingDirectory(clips.path());
            QTRY_COMPARE(after, QStringList(images.filePath("a.png")));
            QVERIFY(driver.waitForLoad());
            after.clear();
        }
        QCOMPARE(driver.catalogueNames(), QStringList("a.png"));
        QCOMPARE(WindowDriver::logCount("Error, unable to find model item for:"), 0);
        QSignalSpy loaded(loader, &ImageLoaderThreaded::loadedImage);
        driver.window().openWorkingDirectory(clips.path());
        QTRY_VERIFY_WITH_TIMEOUT(!loaded.isEmpty(), 60000);
        driver.close();
    }
};

QTEST_MAIN(WindowVideoTest)
#include "tst_window_video.moc"

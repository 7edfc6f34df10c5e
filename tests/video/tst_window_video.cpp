#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaModel.h"
#include "support/Clips.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"
#include "video/VideoWidget.h"
#include "video/VideoWidgetFrameGrabber.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTransform>
#include <QVideoSink>
#include <QVideoWidget>

namespace {

// What another program tells of a clip, in the words of the catalogue.
struct ClipFacts {
    bool hasPicture = false;
    QSize resolution;
    bool isRotated = false;
    qint64 duration = 0;
    double frameRate = 0.0;
    QString videoCodec;
    QString audioCodec;
};

QString codecText(const QString& name) {
    static const QHash<QString, QString> texts{{"h264", "H264"},     {"vp9", "VP9"},
                                               {"mpeg4", "MPEG4"},   {"aac", "AAC"},
                                               {"theora", "Theora"}, {"mpeg2video", "MPEG2"}};
    return texts.value(name, "Unspecified");
}

ClipFacts probedByFfprobe(const QString& path) {
    QProcess probe;
    probe.start("ffprobe",
                {"-v", "quiet", "-count_frames", "-show_streams", "-show_format", "-of", "json", path});
    if (!probe.waitForFinished())
        qFatal("ffprobe did not end");
    const QJsonObject told = QJsonDocument::fromJson(probe.readAllStandardOutput()).object();
    ClipFacts facts;
    facts.duration = qRound64(told["format"]["duration"].toString().toDouble() * 1000);
    for (const QJsonValue& stream : told["streams"].toArray()) {
        const QString codec = codecText(stream["codec_name"].toString());
        if (stream["codec_type"].toString() == "audio") {
            facts.audioCodec = codec;
            continue;
        }
        facts.hasPicture = stream["nb_read_frames"].toString().toInt() > 0;
        facts.resolution = QSize(stream["width"].toInt(), stream["height"].toInt());
        facts.isRotated = !stream["side_data_list"].toArray().isEmpty() &&
                          qAbs(stream["side_data_list"][0]["rotation"].toInt()) == 90;
        const QStringList rate = stream["avg_frame_rate"].toString().split('/');
        if (rate.at(1) != "0")
            facts.frameRate = rate.at(0).toDouble() / rate.at(1).toDouble();
        facts.videoCodec = codec;
    }
    return facts;
}

// The part of a row's canvas that shows the frame.
QImage shownFrame(const WindowDriver& driver, const QString& name, const ClipFacts& facts) {
    const auto canvas = driver.cellData(name, ColName, Qt::DecorationRole).value<QImage>();
    const QSize frame = facts.isRotated ? facts.resolution.transposed() : facts.resolution;
    QRect place(QPoint(), frame.scaled(canvas.size(), Qt::KeepAspectRatio));
    place.moveCenter(canvas.rect().center());
    return canvas.copy(place).transformed(QTransform().rotate(facts.isRotated ? 90 : 0));
}

bool isTransparent(const QImage& canvas) {
    QImage empty(canvas.size(), QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::transparent);
    return canvas == empty;
}

} // namespace

// Clips as rows of the catalogue, and frames of clips as new rows.
class WindowVideoTest : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void everyClipGetsItsFrameAndColumns() {
        const MediaFolder folder;
        const QStringList clips = QDir(clipPath({})).entryList({"*.*"}, QDir::Files);
        for (const QString& clip : clips) {
            QVERIFY(QFile::copy(clipPath(clip), folder.filePath(clip)));
            folder.addImage(clip + ".png");
        }
        const WindowDriver driver(folder.path());
        QStringList unreadable;
        for (const QString& clip : clips) {
            const ClipFacts facts = probedByFfprobe(clipPath(clip));
            if (!facts.hasPicture) {
                unreadable.append(clip);
                QVERIFY2(isTransparent(driver.cellData(clip, ColName, Qt::DecorationRole).value<QImage>()),
                         qPrintable(clip));
                QCOMPARE(driver.cell(clip, ColResolution), "-1x-1");
                continue;
            }
            const QByteArray row = clip.toUtf8();
            const auto value = [&](MediaColumn column) { return driver.cellData(clip, column, RoleValue); };
            QVERIFY2(frameNumber(shownFrame(driver, clip, facts)) == 0, row.constData());
            QCOMPARE(driver.cell(clip, ColResolution), resolutionText(facts.resolution));
            QCOMPARE(value(ColResolution).toInt(), facts.resolution.width() * facts.resolution.height());
            QVERIFY2(qAbs(value(ColDuration).toLongLong() - facts.duration) < 50, row.constData());
            QVERIFY2(qAbs(value(ColVideoFrameRate).toDouble() - facts.frameRate) < 0.01, row.constData());
            QCOMPARE(driver.cell(clip, ColVideoCodec), facts.videoCodec);
            QCOMPARE(driver.cell(clip, ColAudioCodec), facts.audioCodec);
        }
        QCOMPARE(unreadable, (QStringList{"no-index.mp4", "no-picture.mp4", "sound-only.ogg", "text.mp4"}));
        QCOMPARE(driver.cell("h264.mp4", ColComment), "Yes");
        QCOMPARE(driver.cell("fps60.mp4", ColComment), "No");
    }

    void aSeriesBecomesRows() {
        const MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        VideoWidget* video = driver.window().showEditVideoWidget();
        video->openFile(clipPath("h264.mp4"));
        video->onVideoGrabSeries();
        auto* grabber = video->findChild<VideoWidgetFrameGrabber*>();
        grabber->findChild<QPushButton*>("pBGrabFrames")->click();
        QTRY_COMPARE(grabber->findChild<QListWidget*>()->count(), 10);
        grabber->findChild<QPushButton*>("pBAddAll")->click();

        const QStringList rows = driver.window().allFilePaths();
        QList<int> numbers;
        for (const QString& row : rows.mid(1)) {
            QVERIFY(QFileInfo(row).fileName().startsWith("h264_"));
            numbers.append(frameNumber(QImage(row)));
        }
        QList<int> expected{0};
        for (int k = 2; k <= 10; ++k)
            expected.append(999 * k / 40);
        QCOMPARE(numbers, expected);

        ClipFacts facts;
        facts.resolution = {160, 64};
        for (qsizetype number = 1; number < rows.size(); ++number) {
            const QString name = QFileInfo(rows.at(number)).fileName();
            QTRY_COMPARE(frameNumber(shownFrame(driver, name, facts)), expected.at(number - 1));
            driver.window().setImageTags(rows.at(number), {QString::number(number)});
        }
        // The watcher has met the new files too.
        QCOMPARE(driver.window().allFilePaths(), rows);
        driver.window().onSaveTags();
        driver.rescan();
        for (qsizetype number = 1; number < rows.size(); ++number)
            QCOMPARE(driver.window().imageTags(rows.at(number)), QStringList(QString::number(number)));
    }

    void aGrabbedFrameBecomesARow() {
        const MediaFolder folder;
        WindowDriver driver(folder.path());
        VideoWidget* video = driver.window().showEditVideoWidget();
        video->onGrabFrame();
        QCOMPARE(WindowDriver::logCount("Image is null..."), 1);
        video->openFile(clipPath("h264.mp4"));
        const auto* sink = video->findChild<QVideoWidget*>()->videoSink();
        QTRY_VERIFY(sink->videoFrame().isValid());
        QTest::keyClick(video, Qt::Key_7);
        QTRY_COMPARE(frameNumber(sink->videoFrame().toImage()), 175);
        video->onGrabFrame();
        QCOMPARE(driver.catalogue()->rowCount(), 1);
        const QString name = driver.catalogueNames().first();
        QCOMPARE(video->statusBar()->currentMessage(), "Saved frame to: " + folder.filePath(name));
        const QRegularExpression pattern("^h264_\\d\\d_\\d\\d_\\d{4}T\\d\\d_\\d\\d_\\d\\d_\\d{3}\\.png$");
        QVERIFY2(pattern.match(name).hasMatch(), qPrintable(name));
        QCOMPARE(frameNumber(QImage(folder.filePath(name))), 175);
        QCOMPARE(driver.cell(name, ColResolution), "160x64");

        auto* path = driver.widget<QLineEdit>("lEWorkingPath");
        path->setText(folder.filePath("gone"));
        video->onGrabFrame();
        const QString start = "Error, unable to save file to: " + folder.filePath("gone/h264_");
        QVERIFY2(driver.statusText().startsWith(start), qPrintable(driver.statusText()));
        QCOMPARE(video->statusBar()->currentMessage(), driver.statusText());
        path->clear();
        video->onGrabFrame();
        QCOMPARE(video->statusBar()->currentMessage(), "No working directory to save the frame to.");
        QCOMPARE(driver.catalogue()->rowCount(), 1);

        video->resize(700, 500);
        video->close();
        driver.close();
        WindowDriver later(folder.path());
        QCOMPARE(later.window().showEditVideoWidget()->size(), QSize(700, 500));
        QVERIFY(!Settings::instance()->data(keys::videoWidgetState.key).toByteArray().isEmpty());
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
        // In the midst of the load: while a result is handed over.
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
        QVERIFY(loaded.wait());
        driver.close();
    }
};

QTEST_MAIN(WindowVideoTest)
#include "tst_window_video.moc"

#include "catalogue/MediaUrl.h"
#include "video/VideoSteps.h"
#include "video/VideoTexts.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QTest>

class VideoStepsTest : public QObject {
    Q_OBJECT

private slots:
    void steps_data();
    void steps();
    void keys();
    void frameRates();
    void neighbours_data();
    void neighbours();
    void series_data();
    void series();
    void texts();
    void grabbedNames();
    void urls_data();
    void urls();
};

void VideoStepsTest::steps_data() {
    QTest::addColumn<double>("fps");
    QTest::addColumn<int>("modifier");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<double>("step");

    QTest::newRow("as many ms as frames") << 25.0 << 1 << false << 25.0;
    QTest::newRow("modifier") << 60.0 << 15 << false << 900.0;
    QTest::newRow("no modifier is a millisecond") << 60.0 << 0 << false << 1.0;
    QTest::newRow("shift takes no notice of the modifier") << 30.0 << 0 << true << 300.0;
    QTest::newRow("before a file is open") << -1.0 << 1 << false << -1.0;
}

void VideoStepsTest::steps() {
    QFETCH(double, fps);
    QFETCH(int, modifier);
    QFETCH(bool, shift);
    QTEST(frameStep(fps, modifier, shift), "step");
    QCOMPARE(steppedPosition(10, -10.5), 0);
    QCOMPARE(steppedPosition(10, 10.9), 20);
    QCOMPARE(wheelSpeedFactor(Qt::ShiftModifier | Qt::ControlModifier), 15);
    QCOMPARE(wheelSpeedFactor(Qt::ControlModifier), 25);
    QCOMPARE(wheelSpeedFactor(Qt::AltModifier), 1);
}

void VideoStepsTest::keys() {
    QCOMPARE(speedModifierOfKey(Qt::Key_Z), 0);
    QCOMPARE(speedModifierOfKey(Qt::Key_B), 15);
    QCOMPARE(speedModifierOfKey(Qt::Key_N), std::nullopt);
    QCOMPARE(positionOfKey(Qt::Key_0, 999), 0);
    QCOMPARE(positionOfKey(Qt::Key_5, 999), 495);
    QCOMPARE(positionOfKey(Qt::Key_9, 999), 891);
    QCOMPARE(positionOfKey(Qt::Key_Z, 999), std::nullopt);
}

void VideoStepsTest::frameRates() {
    QCOMPARE(wholeFrameRate(29.97), 29.0);
    QCOMPARE(wholeFrameRate("23.976"), 23.0);
    QCOMPARE(wholeFrameRate(qQNaN()), std::nullopt);
    QCOMPARE(wholeFrameRate("many"), std::nullopt);
}

void VideoStepsTest::neighbours_data() {
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("in the middle") << "b" << "a" << "c";
    QTest::newRow("first, in another case") << "A" << "c" << "b";
    QTest::newRow("last") << "c" << "b" << "a";
    QTest::newRow("not there") << "d" << "" << "";
}

void VideoStepsTest::neighbours() {
    QFETCH(QString, current);
    const QStringList files{"a", "b", "c"};
    QTEST(neighbourFile(files, current, true), "before");
    QTEST(neighbourFile(files, current, false), "after");
    QCOMPARE(neighbourFile({"x"}, "x", true), "x");
}

void VideoStepsTest::series_data() {
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("count");
    QTest::addColumn<QList<qint64>>("seeks");

    const auto row = [](const char* name, qint64 duration, qint64 start, qint64 count,
                        const QList<qint64>& seeks) {
        QTest::newRow(name) << duration << start << count << seeks;
    };
    row("small start", 10000, 1, 5, {3998, 5997, 7996, 9995});
    row("large start takes more frames", 1000, 500, 4, {250, 375, 500, 625, 750, 875, 1000});
    row("one frame", 1000, 1, 1, {});
    row("start at the end", 1000, 1000, 10, {});
    row("start behind the end", 1000, 5000, 10, {});
    row("fewer milliseconds than frames", 100, 1, 1000, {});
}

void VideoStepsTest::series() {
    QFETCH(qint64, duration);
    QFETCH(qint64, start);
    QFETCH(qint64, count);
    QList<qint64> seeks;
    SeriesStep step{SeriesStep::Seek};
    for (qint64 counter = 2; seeks.size() < 20; ++counter) {
        step = nextSeriesStep(duration, start, count, counter);
        if (step.kind != SeriesStep::Seek)
            break;
        seeks.append(step.position);
    }
    QTEST(seeks, "seeks");
    QCOMPARE(step.kind, SeriesStep::EndOfFile);
    QCOMPARE(nextSeriesStep(0, start, count, 2).kind, SeriesStep::Wait);
}

void VideoStepsTest::texts() {
    QCOMPARE(positionFormat(0, 0), "%p% [00:00:00.000 - 00:00:00.000]");
    QCOMPARE(positionFormat(61005, 3723004), "%p% [00:01:01.005 - 01:02:03.004]");
}

void VideoStepsTest::grabbedNames() {
    const QDateTime time(QDate(2026, 11, 17), QTime(22, 33, 15, 123));
    QCOMPARE(grabbedFrameBaseName("/x/clip.a.mp4", "/y", time), "clip.a_17_11_2026T22_33_15_123");
    QCOMPARE(grabbedFrameBaseName({}, "/y/clips", time), "clips__17_11_2026T22_33_15_123");
    QCOMPARE(grabbedFrameBaseName({}, QString(), time), "__17_11_2026T22_33_15_123");
    QCOMPARE(grabbedFrameBaseName({}, std::nullopt, time), "_17_11_2026T22_33_15_123");

    const QTemporaryDir directory;
    for (const char* expected : {"a %1.png", "a %1_1.png", "a %1_2.png"}) {
        QFile file(grabbedFrameFilePath(directory.path(), "a %1"));
        QCOMPARE(file.fileName(), directory.filePath(expected));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(grabbedFrameFilePath("/no such/", "b"), "/no such/b.png");
    QCOMPARE(grabbedFrameFilePath("C:\\clips\\", "b"), "C:\\clips\\b.png");
}

void VideoStepsTest::urls_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("goesAsItIs");

    QTest::newRow("plain") << "clip.mp4" << true;
    QTest::newRow("blanks and emoji") << "my clip 😀.mp4" << true;
    QTest::newRow("colon") << "a:b.mp4" << true;
    QTest::newRow("number sign") << "clip #1.mp4" << false;
    QTest::newRow("percent") << "a%20b.mp4" << false;
    QTest::newRow("question mark") << "what?.mp4" << false;
}

void VideoStepsTest::urls() {
    QFETCH(QString, name);
    QFETCH(bool, goesAsItIs);
    const QTemporaryDir directory;
    const QString path = directory.filePath(name);
    QCOMPARE(mediaUrl(path), QUrl(path)); // no such file
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QUrl url = mediaUrl(path);
    QCOMPARE(url == QUrl(path), goesAsItIs);
    QCOMPARE(mediaPath(url), path);
    QCOMPARE(mediaUrl(url.toString()), url); // the way through a text
    QCOMPARE(mediaUrl("https://host/a%20b.mp4?x=1#2"), QUrl("https://host/a%20b.mp4?x=1#2"));
}

QTEST_GUILESS_MAIN(VideoStepsTest)
#include "tst_videosteps.moc"

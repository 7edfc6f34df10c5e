#include "catalogue/MediaUrl.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"
#include "video/VideoSteps.h"
#include "video/VideoTexts.h"

#include <QDateTime>

class TestVideoSteps : public QObject {
    Q_OBJECT

private slots:
    void stepsFollowRateAndModifiers() {
        QCOMPARE(frameStep(60.0, 15, false), 900.0); // as many milliseconds as frames
        QCOMPARE(frameStep(60.0, 0, false), 1.0);
        QCOMPARE(frameStep(30.0, 0, true), 300.0);
        QCOMPARE(steppedPosition(10, -10.5), 0);
        QCOMPARE(steppedPosition(10, 10.9), 20);
        QCOMPARE(wheelSpeedFactor(Qt::ShiftModifier | Qt::ControlModifier), 15);
        const std::pair<Qt::Key, int> modifiers[] = {
            {Qt::Key_Z, 0}, {Qt::Key_X, 1}, {Qt::Key_C, 5}, {Qt::Key_V, 10}, {Qt::Key_B, 15}};
        for (const auto& [key, modifier] : modifiers)
            QCOMPARE(speedModifierOfKey(key), modifier);
        QCOMPARE(positionOfKey(Qt::Key_9, 999), 9 * 99);
        QCOMPARE(wholeFrameRate("23.976"), 23.0);
        QCOMPARE(wholeFrameRate(qQNaN()), std::nullopt);
    }

    void neighbours() {
        QCOMPARE(neighbourFile({"a", "b", "c"}, "B", true), "a");
        QCOMPARE(neighbourFile({"a", "b", "c"}, "a", true), "c");
        QCOMPARE(neighbourFile({"a", "b", "c"}, "c", false), "a");
        QCOMPARE(neighbourFile({"a", "b", "c"}, "d", false), "");
    }

    void series_data() {
        addRows<qint64, qint64, qint64, QList<qint64>>({
            {"small start", 10000, 1, 5, {3998, 5997, 7996, 9995}},
            {"large start takes more frames", 1000, 500, 4, {250, 375, 500, 625, 750, 875, 1000}},
            {"one frame", 1000, 1, 1, {}},
            {"start at the end", 1000, 1000, 10, {}},
            {"start behind the end", 1000, 5000, 10, {}},
            {"fewer milliseconds than frames", 100, 1, 1000, {}},
        });
    }
    void series() {
        const auto& [duration, start, count, expected] = row<qint64, qint64, qint64, QList<qint64>>();
        QList<qint64> seeks;
        SeriesStep step{SeriesStep::Seek};
        for (qint64 counter = 2; seeks.size() < 20; ++counter) {
            step = nextSeriesStep(duration, start, count, counter);
            if (step.kind != SeriesStep::Seek)
                break;
            seeks.append(step.position);
        }
        QCOMPARE(seeks, expected);
        QCOMPARE(step.kind, SeriesStep::EndOfFile);
        QCOMPARE(nextSeriesStep(0, start, count, 2).kind, SeriesStep::Wait);
    }

    void grabbedNames() {
        QCOMPARE(positionFormat(61005, 3723004), "%p% [00:01:01.005 - 01:02:03.004]");
        const QDateTime time(QDate(2026, 11, 17), QTime(22, 33, 15, 123));
        const QString stamp = "_17_11_2026T22_33_15_123";
        QCOMPARE(grabbedFrameBaseName("/x/clip.a.mp4", "/y", time), "clip.a" + stamp);
        QCOMPARE(grabbedFrameBaseName({}, "/y/clips", time), "clips_" + stamp);
        QCOMPARE(grabbedFrameBaseName({}, QString(), time), "_" + stamp);
        QCOMPARE(grabbedFrameBaseName({}, std::nullopt, time), stamp);
        const MediaFolder folder;
        for (const char* expected : {"a %1.png", "a %1_1.png", "a %1_2.png"}) {
            QCOMPARE(grabbedFrameFilePath(folder.path(), "a %1"), folder.filePath(expected));
            folder.addFile(expected);
        }
        QCOMPARE(grabbedFrameFilePath("/no such/", "b"), "/no such/b.png");
        QCOMPARE(grabbedFrameFilePath("C:\\clips\\", "b"), "C:\\clips\\b.png");
    }

    void urls() {
        const std::pair<QString, bool> names[] = {{"my clip 😀.mp4", true}, {"a:b.mp4", true},
                                                  {"clip #1.mp4", false},   {"a%20b.mp4", false},
                                                  {"100%.mp4", false},      {"what?.mp4", false},
                                                  {"clip {1}.mp4", false},  {"^|<>\"\\`.mp4", false}};
        const MediaFolder folder;
        for (const auto& [name, goesAsItIs] : names) {
            QCOMPARE(mediaUrl(folder.filePath(name)), QUrl(folder.filePath(name))); // no such file
            const QString path = folder.addFile(name);
            const QUrl url = mediaUrl(path);
            QCOMPARE(url == QUrl(path), goesAsItIs);
            QCOMPARE(mediaPath(url), path);
            QCOMPARE(mediaUrl(url.toString()), url); // converted to text and back
        }
        QCOMPARE(mediaUrl("https://host/a%20b.mp4?x=1#2"), QUrl("https://host/a%20b.mp4?x=1#2"));
    }
};

QTEST_GUILESS_MAIN(TestVideoSteps)
#include "tst_videosteps.moc"

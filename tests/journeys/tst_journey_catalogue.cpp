#include "journeys/CatalogueJourney.h"

#include <QRandomGenerator>

// An hour over one directory: looking, sorting, filtering and tagging, while other programs write there.
class CatalogueJourneyTest : public QObject {
    Q_OBJECT

private slots:
    void anHour() {
        CatalogueJourney journey;
        QVERIFY2(journey.difference().isEmpty(), qPrintable(journey.difference()));
        for (const char* step : {
                 "select: IMG_0001.JPG",
                 "add tags: harbour, two words\\nfog",
                 "select: IMG_0001.JPG|IMG_0002.JPG|naïve café.png|empty.png|no video.mp4",
                 "delete tag: fog",
                 "sort: &Name",
                 "sort: &Name",
                 "filter: :MISSINGtxt",
                 "save: ",
                 "filter: BRIDGE",
                 "check: cBBackupTxt",
                 "check: cBSaveTagsDuplicates",
                 "select: IMG_0002.JPG",
                 "add tags: bridge, bridge",
                 "save: ",
                 "type: raw ,text,, here",
                 "write outside: meanwhile.png|lime 60x61",
                 "save typed: ",
                 "filter: ",
                 "select: a&b <i>bold<.png",
                 "delete tag everywhere: <b>bold</b>",
                 "edit tag file: many.dots.in.it.png|dots, over_dots",
                 "split: _",
                 "replace: dots|points",
                 "replace: dots|",
                 "filter tags: POINT",
                 "filter tags: ",
                 "search tags: points|bridge",
                 "search tags: ",
                 "delete listed tags: points",
                 "write outside: later.png|cyan 90x33",
                 "write outside: later.txt|unread",
                 "rename outside: later.png|renamed.png",
                 "remove outside: renamed.png|1.png",
                 "select: 2.png",
                 "view: &Table",
                 "select: 10.png|IMG_0002.JPG",
                 "sort: &Resolution",
                 "select: [1].png|10.png|2.png|-dash.png",
                 "filter: 10.png",
                 "filter: ",
                 "select: [1].png|empty.png|-dash.png",
                 "delete file: ",
                 "refresh: No",
                 "refresh: Yes",
                 "select: 10.png",
                 "view: &List simple",
                 "select: truncated.png",
                 "sort: &Path",
                 "restart: ",
                 "select: quote'd \"name\".png|back\\slash.png",
                 "view: &List",
             }) {
            const QString differs = journey.perform(QString::fromUtf8(step));
            QVERIFY2(differs.isEmpty(), qPrintable(QString::fromUtf8(step) + '\n' + differs));
        }
    }

    // TESSARINE_SEED repeats a walk, TESSARINE_STEPS sets its length.
    void randomSteps() {
        constexpr quint32 usualSeed = 25;
        constexpr int usualSteps = 300;
        const QByteArray seed = qgetenv("TESSARINE_SEED");
        QRandomGenerator random(seed.isEmpty() ? usualSeed : seed.toUInt());
        const int count = qEnvironmentVariableIntegerValue("TESSARINE_STEPS").value_or(usualSteps);
        CatalogueJourney journey;
        QStringList steps;
        while (steps.size() < count) {
            steps.append(journey.randomStep(random));
            const QString differs = journey.perform(steps.last());
            if (!differs.isEmpty())
                fprintf(stderr, "The steps:\n%s\n", qPrintable(steps.join('\n')));
            QVERIFY2(differs.isEmpty(), qPrintable(differs));
        }
    }
};

QTEST_MAIN(CatalogueJourneyTest)
#include "tst_journey_catalogue.moc"

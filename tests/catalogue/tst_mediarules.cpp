#include "catalogue/FileNaming.h"
#include "catalogue/MediaFilter.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/MediaModel.h"
#include "catalogue/MediaQuery.h"
#include "catalogue/ReadInOrder.h"
#include "catalogue/ThumbnailStore.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

#include <QDir>
#include <QRegularExpression>
#include <QSemaphore>

#include <algorithm>

#include <sys/stat.h>

// Names, sizes, records and models of media files, without a window.
class TestMediaRules : public QObject {
    Q_OBJECT

private slots:
    void sizesAreFormatted() {
        QCOMPARE(formatSize(1023, 1), QString("1023 B"));
        QCOMPARE(formatSize(1024, 1), QString("1 KB"));
        QCOMPARE(formatSize((1 << 20) - 1, 1), QString("1023 KB"));
        QCOMPARE(formatSize(1572864, 1), QString("1.5 MB"));
        QCOMPARE(formatSize(3LL << 40, 1), QString("3.0 TB"));
        QCOMPARE(formatSize(std::numeric_limits<qint64>::max(), 1), QString("8.0 EB"));
    }

    void namesFollowTheFile() {
        QCOMPARE(imgFilePathToTxtFilePath("/d/a.b.png"), QString("/d/a.b.txt"));
        QCOMPARE(imgFilePathToTxtFilePath("/d/100% #1 %2.png"), QString("/d/100% #1 %2.txt"));
        QCOMPARE(destinationFilePath("/d/a%1.png", "/to"), QString("/to/a%1.png"));
        QCOMPARE(destinationFilePath("/d/a.png", "/to/"), QString("/to/a.png"));
        const MediaFolder folder;
        QCOMPARE(txtFilePathBackupFilePath(folder.filePath("cat.txt")), folder.filePath("cat_backup_0.txt"));
        folder.addFile("cat_backup_0.txt");
        folder.addFile("cat_backup_1.txt");
        QCOMPARE(txtFilePathBackupFilePath(folder.filePath("cat.txt")), folder.filePath("cat_backup_2.txt"));
        folder.addFile("a_0.png");
        QCOMPARE(numberedFilePath(folder.filePath("a.png")), folder.filePath("a_1.png"));
    }

    void aFileThatBlocksLetsOthersBeRead() {
        QSemaphore others;
        QList<qsizetype> taken;
        const auto read = [&](qsizetype index) {
            const bool isFree = index > 0 || others.tryAcquire(1000, 20000);
            others.release();
            return isFree ? index : -1;
        };
        readInOrder(5000, read, [&](qsizetype, qsizetype value) { taken.append(value); });
        QCOMPARE(taken.size(), 5000);
        QVERIFY(taken.first() == 0 && std::ranges::is_sorted(taken));
    }

    void thumbnailsAreCentred() {
        MediaItem item;
        const auto canvas = [&item] { return item.data(Qt::DecorationRole).value<QImage>(); };
        QImage small(4, 2, QImage::Format_ARGB32);
        small.fill(Qt::red);
        item.setThumbnail(small, {10, 8});
        QCOMPARE(canvas().pixelColor(2, 3).alpha(), 0);
        QCOMPARE(canvas().pixelColor(3, 3), QColor(Qt::red));
        QCOMPARE(canvas().pixelColor(6, 4), QColor(Qt::red));
        QCOMPARE(canvas().pixelColor(7, 5).alpha(), 0);
        small.setPixelColor(0, 0, QColor(0, 0, 255, 100));
        item.setThumbnail(small, {4, 2});
        QCOMPARE(canvas(), small.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        // Larger than its canvas, it is cut evenly at the edges.
        item.setThumbnail(small.scaled(8, 4), {2, 2});
        QCOMPARE(canvas().pixelColor(1, 1), QColor(Qt::red));
    }

    void thumbnailsBeyondTheBudgetLieInAFile() {
        const MediaFolder folder;
        folder.addFile("no directory");
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("^Error, unable to make a file for thumbnails"));
        for (const auto& [name, inMemory] : {std::pair("cache", 6080), std::pair("no directory", 18240)}) {
            ThumbnailStore store(10000, folder.filePath(name));
            QList<QImage> kept;
            for (const auto color : {Qt::red, Qt::green, Qt::blue}) {
                QImage image(50, 40, QImage::Format_RGB888);
                image.fill(color);
                kept.append(store.keep(image));
            }
            QCOMPARE(kept.at(1).pixelColor(49, 39), QColor(Qt::green));
            QCOMPARE(store.bytesInMemory(), inMemory);
            QVERIFY(QDir(folder.filePath(name)).isEmpty());
            kept.removeFirst();
            QCOMPARE(store.bytesInMemory(), inMemory - 6080);
        }
    }

    void queriesFindFiles_data() {
        // The found ones of: a picture of 1500x1000 with "sky" and "blue sky", one of 512x512 with "x" twice
        // that is not saved, a clip without tags or size. Without any: the word that is not part of the
        // language.
        addRows<QString, QString>({
            {"a tag, in any case", ":tag SKY", "1"},
            {"a tag with a blank", ":tag \"blue sky\"", "1"},
            {"quotes that are still open", ":tag \"blue sky", "1"},
            {"without a tag", ":-tag sky", "23"},
            {"no tags", ":tags=0", "3"},
            {"tags, twice counted", ":tags>1 :tags<3", "12"},
            {"width and height", ":w>512 :h=1000", "1"},
            {"a size that is unknown", ":w<9999", "12"},
            {"within one percent", ":ratio 1506:1000", "1"},
            {"kinds of files, words in any case", ":Video|:IMAGE :unsaved", "23"},
            {"a tag twice", ":dup", "2"},
            {"a bar in quotes", ":tag \"|\" | :video", "3"},
            {"a quote in quotes", ":tag \"a\"\"b c\"|:image", "12"},
            {"an empty word", ":video \"\"", "no "},
            {"a word with blanks that needs quotes", ":tag blue sky", "no sky"},
            {"an unfinished word", ":video :ta", "no :ta"},
            {"a missing value", ":video :tag", "no :tag"},
            {"no ratio", ":ratio 3", "no 3"},
            {"no number", ":w>wide", "no :w>wide"},
            {"a bar without alternatives", ":video||:image", "no |"},
            {"a bar at the end", ":video |", "no |"},
        });
    }
    void queriesFindFiles() {
        const auto& [text, result] = row<QString, QString>();
        const QList<MediaFacts> files{{{1500, 1000}, false, false, {" sky", "blue sky"}},
                                      {{512, 512}, false, true, {"x", "x "}},
                                      {{-1, -1}, true, false, {}}};
        const MediaQuery query(text, {" sky", "blue sky", "x", "x "});
        QString found = query.isValid() ? QString() : "no " + query.wrongWord();
        for (int number = 0; query.isValid() && number < files.size(); ++number) {
            MediaFacts facts = files[number];
            if (!query.asked().testFlag(MediaFact::Tags))
                facts.tags.clear();
            if (!query.asked().testFlag(MediaFact::Resolution))
                facts.resolution = {};
            facts.isVideo = facts.isVideo && query.asked().testFlag(MediaFact::Kind);
            facts.isUnsaved = facts.isUnsaved && query.asked().testFlag(MediaFact::Unsaved);
            if (query.matches(facts))
                found += QString::number(number + 1);
        }
        QCOMPARE(found, result);
        QVERIFY(MediaQuery(":tag " + MediaQuery::quoted(result + " \"|"), {}).isValid());
    }
};

QTEST_MAIN(TestMediaRules)
#include "tst_mediarules.moc"

#include "catalogue/FileNaming.h"
#include "catalogue/MediaFilter.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/MediaModel.h"
#include "catalogue/MediaQuery.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

// Names, sizes, records and models of media files, without a window.
class TestMediaRules : public QObject {
    Q_OBJECT

private slots:
    void sizesAreFormatted() {
        QCOMPARE(formatSize(0, 1), QString("0 B"));
        QCOMPARE(formatSize(1023, 1), QString("1023 B"));
        QCOMPARE(formatSize(1024, 1), QString("1 KB"));
        QCOMPARE(formatSize(1536, 1), QString("1 KB"));
        QCOMPARE(formatSize((1 << 20) - 1, 1), QString("1023 KB"));
        QCOMPARE(formatSize(1572864, 1), QString("1.5 MB"));
        QCOMPARE(formatSize(5LL << 30, 1), QString("5.0 GB"));
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

    void foldedCasesAreEqualWhereComparingSaysSo() {
        const QStringList paths{"a/B.png", "A/b.PNG", "straße", "STRASSE", "İ", "i", "Ǆ", "ǆ", "😀"};
        for (const QString& a : paths) {
            for (const QString& b : paths)
                QCOMPARE(foldedCase(a) == foldedCase(b), a.compare(b, Qt::CaseInsensitive) == 0);
        }
    }

    void filtersNameEveryFormat() {
        QVERIFY(mediaNameFilters().contains("*.webp"));
        QCOMPARE(mediaNameFilters().last(), QString("*.webm"));
        QCOMPARE(videoDialogFilter(),
                 QString("Video (*.avi *.mp4 *.mpv *.mpeg *.mpg *.ogg *.ogv *.flv *.mkv *.webm )"));
        QVERIFY(imageDialogFilter().startsWith("Images (*.bmp "));
        QVERIFY(imageDialogFilter().endsWith(")") && !imageDialogFilter().endsWith(" )"));
        QVERIFY(isVideoFile("/a/b.MP4"));
        QVERIFY(!isVideoFile("/a/mp4"));
    }

    void recordsTellOfAFile() {
        const MediaFolder folder;
        const QString path =
            folder.addImage("a b.PNG", {20, 10}, Qt::blue, {{"Description", "d"}, {"Comment", "c"}});
        folder.addTags("a b.PNG", "x");
        const MediaRecord record = readMediaRecord(path);
        QCOMPARE(record.filePath, path);
        QCOMPARE(record.fileName, QString("a b.PNG"));
        QCOMPARE(record.path, folder.path());
        QCOMPARE(record.suffix, QString("PNG"));
        QCOMPARE(record.resolution, QSize(20, 10));
        QCOMPARE(record.comment, QString("c")); // the first of the known texts
        QCOMPARE(record.size, folder.content("a b.PNG").size());
        QVERIFY(record.hasTxtFile);
        QCOMPARE(mediaToolTip(record.resolution, path), QString("20x10 PNG\na b.PNG\n") + folder.path());
        folder.addTags("empty.png", "");
        for (const QString& bad : {folder.addFile("empty.png"), folder.addFile("text.jpg", "no picture"),
                                   folder.filePath("vanished.png"), folder.path()}) {
            QCOMPARE(resolutionText(readMediaRecord(bad).resolution), QString("-1x-1"));
            QVERIFY(!readMediaRecord(bad).hasTxtFile);
        }
    }

    void thumbnailsAreCentredAndKeptSmall() {
        MediaItem item;
        const auto canvas = [&item] { return item.data(Qt::DecorationRole).value<QImage>(); };
        QVERIFY(canvas().isNull());
        item.setThumbnail({}, {10, 8});
        QCOMPARE(canvas().size(), QSize(10, 8));
        QCOMPARE(canvas().pixel(5, 4), 0U);
        MediaItem other;
        other.setThumbnail({}, {10, 8});
        QCOMPARE(other.data(Qt::DecorationRole).value<QImage>().constBits(), canvas().constBits());

        QImage small(4, 2, QImage::Format_ARGB32);
        small.fill(Qt::red);
        QCOMPARE(compactThumbnail(small).format(), QImage::Format_RGB888);
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

    void queriesFindFiles_data() {
        // The found ones of: a picture of 1500x1000 with "sky" and "blue sky", one of 512x512 with "x" twice
        // that is not saved, a clip without tags or size. Without any: the word that is not understood.
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
            {"a word with blanks that needs quotes", ":tag blue sky", "sky"},
            {"an unfinished word", ":video :ta", ":ta"},
            {"a missing value", ":video :tag", ":tag"},
            {"no ratio", ":ratio 3", "3"},
            {"no number", ":w>wide", ":w>wide"},
            {"a bar without alternatives", ":video||:image", "|"},
            {"a bar at the end", ":video |", "|"},
        });
    }
    void queriesFindFiles() {
        const auto& [text, result] = row<QString, QString>();
        const QList<MediaFacts> files{{{1500, 1000}, false, false, {" sky", "blue sky"}},
                                      {{512, 512}, false, true, {"x", "x "}},
                                      {{-1, -1}, true, false, {}}};
        MediaQuery query(text);
        QString found = query.wrongWord();
        for (int number = 0; query.isValid() && number < files.size(); ++number) {
            if (query.matches(files[number]))
                found += QString::number(number + 1);
        }
        QCOMPARE(found, result);
        QVERIFY(MediaQuery(":tag " + MediaQuery::quoted(result + " \"|")).isValid());
    }

    void queriesAreCompleted_data() {
        using enum MediaQuery::Typed::Kind;
        addRows<QString, int, qsizetype, QString>({
            {"a word", ":video :ta", Word, 7, ":ta"},
            {"an alternative", ":video|:", Word, 7, ":"},
            {"a tag", ":-TAG bl", Tag, 6, "bl"},
            {"a tag in open quotes", ":tag \"blue s", Tag, 5, "blue s"},
            {"a tag before its first character", ":tag ", Tag, 5, ""},
            {"nothing after a value", ":tag \"blue\"", Nothing, 0, ""},
            {"nothing after a blank", ":video ", Nothing, 0, ""},
            {"nothing in other text", "a :ta", Nothing, 0, ""},
        });
    }
    void queriesAreCompleted() {
        const auto& [text, kind, start, typed] = row<QString, int, qsizetype, QString>();
        const MediaQuery::Typed found = MediaQuery::typedAtEnd(text);
        QCOMPARE(std::tuple(int(found.kind), found.start, found.text), std::tuple(kind, start, typed));
    }

    void theFilterSearchesNamesColumnsAndTags_data() {
        addRows<QString, bool>({
            {"name in another case", "PHOTO", true},
            {"resolution of the tool tip", "30x", true},
            {"upper-case suffix of the tool tip", "png\nphoto", true},
            {"size", "123 B", true},
            {"date", "2020-02-03", true},
            {"last tag", "blue sk", true},
            {"comment is not searched", "secret", false},
        });
    }
    void theFilterSearchesNamesColumnsAndTags() {
        const auto& [text, matches] = row<QString, bool>();
        MediaRecord record;
        record.filePath = "/d/Photo.png";
        record.fileName = "Photo.png";
        record.path = "/d";
        record.size = 123;
        record.resolution = {30, 20};
        record.comment = "secret";
        record.lastModified = QDateTime(QDate(2020, 2, 3), QTime(4, 5));
        MediaItemModel model;
        model.appendRow(makeMediaRow(record, "Yes", "No"));
        QCOMPARE(MediaFilter(text).matches(model, 0, {"red", "Blue sky"}), matches);
        QVERIFY(isMissingTxtFilter(":MissingTxt"));
        QVERIFY(!isMissingTxtFilter("missingtxt"));
    }
};

QTEST_MAIN(TestMediaRules)
#include "tst_mediarules.moc"

#include "catalogue/FileNaming.h"
#include "catalogue/IconIdentityProxyModel.h"
#include "catalogue/MediaFilter.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/MediaModel.h"
#include "catalogue/SortFilterProxyModel.h"
#include "support/MediaFolder.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QPainter>
#include <QTest>

// Names, sizes, records and models of media files, without a window.
class TestMediaRules : public QObject {
    Q_OBJECT

private slots:
    void sizesAreFormatted_data() {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        const auto row = [](qint64 bytes, const char* text) {
            QTest::newRow(text) << bytes << QString(text);
        };
        row(0, "0 B");
        row(1023, "1023 B");
        row(1024, "1 KB");
        row(1536, "1 KB");
        row(1024 * 1024 - 1, "1023 KB");
        row(1572864, "1.5 MB");
        row(5LL << 30, "5.0 GB");
        row(3LL << 40, "3.0 TB");
        row(std::numeric_limits<qint64>::max(), "8.0 EB");
    }
    void sizesAreFormatted() {
        QFETCH(qint64, bytes);
        QTEST(formatSize(bytes, 1), "text");
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

    void foldedPathsAreEqualWhereComparingSaysSo() {
        const QStringList paths{"a/B.png", "A/b.PNG", "straße", "STRASSE", "İ", "i", "Ǆ", "ǆ", "😀"};
        for (const QString& a : paths) {
            for (const QString& b : paths)
                QCOMPARE(foldedPath(a) == foldedPath(b), a.compare(b, Qt::CaseInsensitive) == 0);
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
        const QString path = folder.addImage("a b.PNG", {20, 10}, Qt::blue, {{"parameters", "steps: 20"}});
        folder.addTags("a b.PNG", "x");
        const MediaRecord record = readMediaRecord(path);
        QCOMPARE(record.filePath, path);
        QCOMPARE(record.fileName, QString("a b.PNG"));
        QCOMPARE(record.path, folder.path());
        QCOMPARE(record.suffix, QString("PNG"));
        QCOMPARE(record.resolution, QSize(20, 10));
        QCOMPARE(record.comment, QString("steps: 20"));
        QCOMPARE(record.size, folder.content("a b.PNG").size());
        QVERIFY(record.hasTxtFile);
        QCOMPARE(mediaToolTip(record.resolution, path), QString("20x10 PNG\na b.PNG\n") + folder.path());
    }

    void theFirstCommentWins() {
        const MediaFolder folder;
        const QString both =
            folder.addImage("both.png", {2, 2}, Qt::red, {{"Description", "d"}, {"Comment", "c"}});
        QCOMPARE(readMediaRecord(both).comment, QString("c"));
        QCOMPARE(readMediaRecord(folder.addImage("none.png")).comment, QString());
    }

    void badFilesStillGiveRecords() {
        const MediaFolder folder;
        folder.addTags("empty.png", "");
        for (const QString& path : {folder.addFile("empty.png"), folder.addFile("text.jpg", "no picture"),
                                    folder.filePath("vanished.png"), folder.path()}) {
            const MediaRecord record = readMediaRecord(path);
            QCOMPARE(record.resolution, QSize());
            QCOMPARE(resolutionText(record.resolution), QString("-1x-1"));
            QVERIFY(!record.hasTxtFile);
        }
    }

    void thumbnailsAreCentredAndKeptSmall() {
        MediaItem item;
        QVERIFY(item.data(Qt::DecorationRole).isNull());
        item.setThumbnail({}, {10, 8});
        const auto empty = item.data(Qt::DecorationRole).value<QImage>();
        QCOMPARE(empty.size(), QSize(10, 8));
        QCOMPARE(empty.pixel(5, 4), 0U);
        MediaItem other;
        other.setThumbnail({}, {10, 8});
        QCOMPARE(other.data(Qt::DecorationRole).value<QImage>().constBits(), empty.constBits());

        QImage small(4, 2, QImage::Format_ARGB32);
        small.fill(Qt::red);
        QCOMPARE(compactThumbnail(small).format(), QImage::Format_RGB888);
        item.setThumbnail(small, {10, 8});
        const auto canvas = item.data(Qt::DecorationRole).value<QImage>();
        QCOMPARE(canvas.pixelColor(2, 3).alpha(), 0);
        QCOMPARE(canvas.pixelColor(3, 3), QColor(Qt::red));
        QCOMPARE(canvas.pixelColor(6, 4), QColor(Qt::red));
        QCOMPARE(canvas.pixelColor(7, 5).alpha(), 0);

        small.setPixelColor(0, 0, QColor(0, 0, 255, 100));
        item.setThumbnail(small, {4, 2});
        QCOMPARE(item.data(Qt::DecorationRole).value<QImage>(),
                 small.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        // Larger than its canvas, it is cut evenly at the edges.
        item.setThumbnail(small.scaled(8, 4), {2, 2});
        QCOMPARE(item.data(Qt::DecorationRole).value<QImage>().pixelColor(1, 1), QColor(Qt::red));
    }

    void proxiesHideAndShrink() {
        MediaItemModel model;
        const QAbstractItemModelTester modelTester(&model);
        const MediaFolder folder;
        for (const char* name : {"b.png", "a.png", "c.png"})
            model.appendRow(makeMediaRow(readMediaRecord(folder.addImage(name)), "Yes", "No"));
        SortFilterProxyModel sorted;
        sorted.setSourceModel(&model);
        sorted.setSortRole(RoleValue);
        const QAbstractItemModelTester sortedTester(&sorted);
        sorted.sort(ColName);
        QCOMPARE(sorted.index(0, 0).data().toString(), QString("a.png"));
        model.setData(model.index(1, 0), true, RoleHidden);
        QCOMPARE(sorted.rowCount(), 2);
        QCOMPARE(sorted.index(0, 0).data().toString(), QString("b.png"));

        IconIdentityProxyModel icons({32, 32});
        icons.setSourceModel(&sorted);
        const QAbstractItemModelTester iconTester(&icons);
        static_cast<MediaItem*>(model.item(0))->setThumbnail({}, {218, 218});
        QCOMPARE(icons.index(0, 0).data(Qt::DecorationRole).value<QImage>().size(), QSize(32, 32));
        QCOMPARE(icons.index(0, 0).data(Qt::SizeHintRole).toSize(), QSize(32, 32));
        QVERIFY(icons.index(0, 1).data(Qt::SizeHintRole).isNull());
    }

    void bulkRowsComeAsOneChange() {
        MediaItemModel model;
        const QAbstractItemModelTester tester(&model);
        {
            const MediaItemModel::BulkInsert bulk(model);
            for (int row = 0; row < 3; ++row)
                model.appendRow(makeMediaRow({}, "Yes", "No"));
        }
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.columnCount(), int(MediaColumnCount));
    }

    void theFilterSearchesNamesColumnsAndTags_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("matches");
        QTest::newRow("name in another case") << "PHOTO" << true;
        QTest::newRow("resolution of the tool tip") << "30x" << true;
        QTest::newRow("upper-case suffix of the tool tip") << "png\nphoto" << true;
        QTest::newRow("size") << "123 B" << true;
        QTest::newRow("date") << "2020-02-03" << true;
        QTest::newRow("last tag") << "blue sk" << true;
        QTest::newRow("comment is not searched") << "secret" << false;
        QTest::newRow("nothing") << "zebra" << false;
    }
    void theFilterSearchesNamesColumnsAndTags() {
        QFETCH(QString, text);
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
        QTEST(MediaFilter(text).matches(model, 0, {"red", "Blue sky"}), "matches");
        QVERIFY(isMissingTxtFilter(":MissingTxt"));
        QVERIFY(!isMissingTxtFilter("missingtxt"));
    }
};

QTEST_MAIN(TestMediaRules)
#include "tst_mediarules.moc"

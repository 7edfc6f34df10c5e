#include "catalogue/MediaModel.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDir>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTreeView>

#include <functional>

// A directory becomes rows, is sorted, filtered and previewed in the real window.
class TestWindowCatalogue : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { WindowDriver::forgetSettings(); }

    void everyFileHasItsRow() {
        const MediaFolder folder;
        folder.addImage("a.png", {30, 20}, Qt::red, {{"Comment", "hello"}});
        folder.addImage("UPPER.JPG", {64, 48});
        folder.addImage("spaces # 100% %1 😀.png");
        folder.addFile("empty.png");
        folder.addFile("mislabelled.jpg", folder.content("a.png"));
        folder.addFile("truncated.png", folder.content("a.png").first(60));
        folder.addFile("clip.mp4", "no video");
        folder.addFile("notes.txt", "not listed");
        QVERIFY(QDir(folder.path()).mkdir("folder.png"));
        folder.addImage("sub/b.png");
        folder.addTags("a.png", "red, cat\n");
        WindowDriver driver(folder.path());
        const QAbstractItemModelTester tester(driver.catalogue());

        QStringList names{"a.png",     "UPPER.JPG",     "spaces # 100% %1 😀.png",
                          "empty.png", "truncated.png", "mislabelled.jpg",
                          "clip.mp4",  "folder.png"};
        names.sort();
        QCOMPARE(driver.catalogueNames(), names);
        QCOMPARE(driver.cell("a.png", ColName, RoleValue), folder.filePath("a.png"));
        QCOMPARE(driver.cell("a.png", ColName, Qt::ToolTipRole), "30x20 PNG\na.png\n" + folder.path());
        QCOMPARE(driver.cell("a.png", ColPath, Qt::ToolTipRole), folder.path());
        QCOMPARE(driver.cellData("a.png", ColSize, RoleValue).toLongLong(), folder.content("a.png").size());
        QCOMPARE(driver.cell("a.png", ColResolution), QString("30x20"));
        QCOMPARE(driver.cellData("a.png", ColResolution, RoleValue), QVariant(600));
        QCOMPARE(driver.cell("a.png", ColComment), QString("Yes"));
        QCOMPARE(driver.cell("a.png", ColComment, RoleComment), QString("hello"));
        QCOMPARE(driver.cell("UPPER.JPG", ColSuffix), QString("JPG"));
        QCOMPARE(driver.cell("a.png", ColHasTxtFile), QString("Yes"));
        QCOMPARE(driver.cellData("a.png", ColHasTxtFile, RoleValue), QVariant(true));
        QCOMPARE(driver.cell("empty.png", ColHasTxtFile), QString("No"));
        QCOMPARE(driver.cell("empty.png", ColResolution), QString("-1x-1"));
        QCOMPARE(driver.cell("mislabelled.jpg", ColResolution), QString("30x20"));
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList({"red", "cat"}));
        const auto thumbnail = driver.cellData("a.png", ColName, Qt::DecorationRole).value<QImage>();
        QCOMPARE(thumbnail.size(), QSize(218, 218));
        QCOMPARE(thumbnail.pixelColor(109, 109), QColor(Qt::red));
        QCOMPARE(driver.cellData("empty.png", ColName, Qt::DecorationRole)
                     .value<QImage>()
                     .pixelColor(109, 109)
                     .alpha(),
                 0);
        QVERIFY(driver.log().contains("Found: 8 files"));

        driver.widget<QCheckBox>("cBWorkingDirScanRecursive")->setChecked(true);
        driver.rescan();
        QCOMPARE(driver.cell("b.png", ColName, RoleValue), folder.filePath("sub/b.png"));
        QCOMPARE(driver.cell("b.png", ColPath), folder.filePath("sub"));
        driver.widget<QCheckBox>("cBWorkingDirScanRecursive")->setChecked(false);
    }

    void rowsShowBeforeTheirTags() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addTags("a.png", "red");
        WindowDriver driver;
        struct Watcher : QObject {
            std::function<void()> onPaint;
            bool eventFilter(QObject*, QEvent* event) override {
                if (event->type() == QEvent::Paint)
                    onPaint();
                return false;
            }
        } watcher;
        auto* view = driver.widget<QListView>("listView");
        QList<bool> tagged;
        watcher.onPaint = [&] {
            if (view->model()->rowCount() == 1)
                tagged.append(!driver.window().imageTags(folder.filePath("a.png")).isEmpty());
        };
        view->viewport()->installEventFilter(&watcher);
        driver.window().openWorkingDirectory(folder.path());
        QVERIFY(driver.waitForLoad());
        QTRY_VERIFY(tagged.contains(true));
        QCOMPARE(tagged.first(), false);
    }

    void itemsAreSizedAsTheyAreDrawn() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("a name that is longer than the canvas of its thumbnail is wide.png");
        folder.addTags("a.png", "tag,a tag that is longer than the canvas of a thumbnail is wide, ,");
        WindowDriver driver(folder.path());
        const QStyledItemDelegate plain;
        for (const char* name : {"listView", "lwAllImagesTags"}) {
            const auto* view = driver.widget<QListView>(name);
            QStyleOptionViewItem option;
            option.initFrom(view);
            option.widget = view;
            option.rect = QRect(0, 0, 240, 240);
            for (const bool wraps : {true, false, true}) {
                option.decorationPosition = wraps ? QStyleOptionViewItem::Top : QStyleOptionViewItem::Left;
                option.features.setFlag(QStyleOptionViewItem::WrapText, wraps);
                for (int row = 0; row < view->model()->rowCount(); ++row) {
                    const QModelIndex index = view->model()->index(row, 0);
                    const QSize drawn = plain.sizeHint(option, index);
                    QCOMPARE(view->itemDelegate()->sizeHint(option, index), drawn);
                    QCOMPARE(view->itemDelegate()->sizeHint(option, index), drawn);
                }
            }
        }
    }

    void allViewsShareOneOrder() {
        const MediaFolder folder;
        folder.addImage("b.png", {10, 10});
        folder.addImage("a.png", {30, 10});
        folder.addImage("c.png", {20, 10});
        WindowDriver driver(folder.path());
        QVERIFY(!driver.chooseFromMediaMenu("&Sort/&Name"));
        driver.select({"a.png"});
        QVERIFY(driver.chooseFromMediaMenu("&Sort/&Name"));
        const QStringList first = driver.shownNames();
        QVERIFY(first == QStringList({"a.png", "b.png", "c.png"}) ||
                first == QStringList({"c.png", "b.png", "a.png"}));
        QVERIFY(driver.chooseFromMediaMenu("&Sort/&Name"));
        QCOMPARE(driver.shownNames(), QStringList(first.crbegin(), first.crend()));
        const QHeaderView* table = driver.widget<QTableView>("tableView")->horizontalHeader();
        const QHeaderView* tree = driver.widget<QTreeView>("treeView")->header();
        QCOMPARE(table->sortIndicatorSection(), int(ColName));
        QCOMPARE(table->sortIndicatorOrder(), tree->sortIndicatorOrder());
        driver.widget<QTableView>("tableView")->sortByColumn(ColResolution, Qt::DescendingOrder);
        QCOMPARE(driver.shownNames(), QStringList({"a.png", "c.png", "b.png"}));
    }

    void theFilterLineHidesRows() {
        const MediaFolder folder;
        folder.addImage("one.png", {10, 10});
        folder.addImage("two.png", {31, 10});
        folder.addImage("three.png", {10, 10});
        folder.addTags("one.png", "needle");
        folder.addTags("two.png", "");
        WindowDriver driver(folder.path());
        auto* filter = driver.widget<QLineEdit>("leFilterImages");
        const auto shown = [&](const QString& text) {
            filter->setText(text);
            QStringList names = driver.shownNames();
            names.sort();
            return names;
        };
        QCOMPARE(shown("NEEDLE"), QStringList("one.png"));
        QCOMPARE(shown("31x"), QStringList("two.png"));
        QCOMPARE(shown(":missingtxt"), QStringList({"three.png", "two.png"}));
        QCOMPARE(shown(":MISSINGtxt"), QStringList({"three.png", "two.png"}));
        QCOMPARE(shown("zzz"), QStringList());
        QCOMPARE(shown(""), QStringList({"one.png", "three.png", "two.png"}));
        QCOMPARE(shown("two.p"), QStringList("two.png"));
        driver.rescan();
        QCOMPARE(driver.shownNames(), QStringList("two.png"));
        driver.select({"two.png"});
        QCOMPARE(driver.window().selectedFilePaths(), QStringList(folder.filePath("two.png")));
        filter->clear();
    }

    void selectingShowsTheFile() {
        const MediaFolder folder;
        folder.addImage("a.png", {40, 30});
        folder.addImage("b.png", {50, 30});
        WindowDriver driver(folder.path());
        for (const char* entry : {"&View/&Table", "&View/&List", "&View/&List simple", "&View/&Icon"}) {
            driver.select({"a.png", "b.png"});
            QCOMPARE(driver.window().selectedFilePaths().size(), 2);
            QCOMPARE(driver.statusText(), QString("Selected: 2 items"));
            QVERIFY(driver.chooseFromMediaMenu(entry));
        }
        QCOMPARE(driver.widget<QStackedWidget>("stackedWidget")->currentIndex(), 0);
        QCOMPARE(driver.widget<QListView>("listView")->viewMode(), QListView::IconMode);
        driver.select({"a.png"});
        QVERIFY(driver.widget<QDockWidget>("dockWidget_ImgPreview")
                    ->windowTitle()
                    .startsWith("Image 40x30 preview [zoom: "));
        driver.select({});
        QCOMPARE(driver.widget<QLabel>("labelCurrentSelectionTags")->text(),
                 QString("Current selection [0] tags:"));
        QVERIFY(driver.window().selectedFilePaths().isEmpty());
    }

    void headersHideAllButOneColumn() {
        const MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        QHeaderView* header = driver.widget<QTreeView>("treeView")->header();
        const auto choose = [&](const QString& entry, int section) {
            const ModalAnswer answer(entry);
            emit header->customContextMenuRequested({header->sectionViewportPosition(section) + 1, 1});
            QVERIFY(answer.isUsed());
        };
        for (int section = 1; section < header->count(); ++section)
            choose("Hide", section);
        QCOMPARE(header->hiddenSectionCount(), header->count() - 1);
        choose("Hide", 0);
        QVERIFY(!header->isSectionHidden(0));
        choose("Show all", 0);
        QCOMPARE(header->hiddenSectionCount(), 0);
        // A scan reads the layout of the last shutdown back.
        choose("Hide", ColSize);
        driver.rescan();
        QVERIFY(!header->isSectionHidden(ColSize));
    }

    void aScanReplacesALoadUnderWay() {
        const MediaFolder first;
        const MediaFolder second;
        for (int number = 0; number < 60; ++number)
            first.addImage(QString("first%1.png").arg(number), {600, 400});
        second.addImage("second.png");
        WindowDriver driver(second.path());
        const qsizetype unknown = WindowDriver::logCount("unable to find model item");
        auto* path = driver.widget<QLineEdit>("lEWorkingPath");
        for (int round = 0; round < 3; ++round) {
            driver.window().openWorkingDirectory(first.path());
            QCoreApplication::processEvents();
            path->setText(second.path());
            driver.rescan();
            QCOMPARE(driver.catalogueNames(), QStringList("second.png"));
        }
        // Two scans in one turn: only the second fills the record of tags.
        driver.window().openWorkingDirectory(first.path());
        driver.rescan();
        QVERIFY(driver.window().imageTags(first.filePath("first0.png")).isEmpty());
        QCOMPARE(WindowDriver::logCount("unable to find model item"), unknown);
        // The window may go while a load runs.
        driver.window().openWorkingDirectory(first.path());
        QCoreApplication::processEvents();
        driver.close();
    }

    void placesThatGiveNothingLeaveTheWindowUsable() {
        const MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        // A file in the place of a directory exists and holds nothing.
        driver.widget<QLineEdit>("lEWorkingPath")->setText(folder.filePath("a.png"));
        driver.rescan();
        QCOMPARE(driver.catalogue()->rowCount(), 0);
        driver.widget<QLineEdit>("lEWorkingPath")->setText(folder.path());
        driver.rescan();
        // A missing one keeps the rows.
        const ModalAnswer answer(QMessageBox::Ok);
        driver.window().openWorkingDirectory(folder.filePath("gone"));
        QVERIFY(answer.isUsed());
        QCOMPARE(driver.statusText(), answer.text());
        QCOMPARE(driver.catalogueNames(), QStringList("a.png"));
    }

    void refreshAsksFirst() {
        const MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        driver.window().setImageTags(folder.filePath("a.png"), {"unsaved"});
        {
            const ModalAnswer answer(QMessageBox::No);
            driver.click("tBRefreshOpenFilePath");
            QCOMPARE(answer.text(), "Refresh " + folder.path() + " working directory?");
            QCOMPARE(answer.informativeText(), QString("All unsaved changes to tags will be discarded."));
        }
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList("unsaved"));
        const ModalAnswer answer(QMessageBox::Yes);
        driver.click("tBRefreshOpenFilePath");
        QVERIFY(driver.waitForLoad());
        QTRY_VERIFY(driver.window().imageTags(folder.filePath("a.png")).isEmpty());
    }
};

QTEST_MAIN(TestWindowCatalogue)
#include "tst_window_catalogue.moc"

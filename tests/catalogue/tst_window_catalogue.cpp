#include "catalogue/MediaModel.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include <QHeaderView>
#include <QListView>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTreeView>
#include <QTreeWidget>

#include <functional>

// A directory becomes rows, is sorted, filtered and previewed in the real window.
class TestWindowCatalogue : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { WindowDriver::forgetSettings(); }

    void itemsAreSizedAsTheyAreDrawn() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("a name that is longer than the canvas of its thumbnail is wide.png");
        folder.addTags("a.png", "tag,a tag that is longer than the canvas of a thumbnail is wide, ,");
        WindowDriver driver(folder.path());
        QVERIFY(driver.waitForLoad());
        // Thumbnails are announced together.
        const QSignalSpy changes(driver.currentView()->model(), &QAbstractItemModel::dataChanged);
        for (const QString& file : driver.window().allFilePaths())
            driver.window().onItemImageLoaded(file, QImage(8, 8, QImage::Format_RGB32));
        QTRY_COMPARE(changes.count(), 1);
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
        const auto* tags = driver.widget<QListView>("lwAllImagesTags");
        QSet<int> widths;
        for (int row = 0; row < tags->model()->rowCount(); ++row)
            widths.insert(tags->visualRect(tags->model()->index(row, 0)).width());
        QVERIFY(widths.size() > 1);
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
        // A third click brings the order of the scan back.
        for (const int sorted : {int(ColName), int(ColName), -1}) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              {header->sectionViewportPosition(ColName) + 20, 5});
            QCOMPARE(header->sortIndicatorSection(), sorted);
        }
        // A scan reads the layout of the last shutdown back.
        choose("Hide", ColSize);
        driver.rescan();
        QVERIFY(!header->isSectionHidden(ColSize));
    }

    void manyEmbeddedTextsAreReadWithTheirTab() {
        const MediaFolder folder;
        for (int number = 0; number < 150; ++number)
            folder.addImage(QString("%1.png").arg(number), {2, 2}, Qt::red, {{"Comment", "c"}});
        WindowDriver driver(folder.path());
        auto* tabs = driver.widget<QTabWidget>("tWTools");
        const auto* tree = driver.widget<QTreeWidget>("tWComments");
        QAbstractItemView* view = driver.currentView();
        for (const int files : {150, 1, 150}) {
            tabs->setCurrentWidget(driver.widget<QWidget>("tabTags"));
            view->selectAll();
            if (files == 1)
                view->setCurrentIndex(view->model()->index(7, ColName));
            tabs->setCurrentWidget(driver.widget<QWidget>("tabImageCOmment"));
            QCOMPARE(tree->topLevelItemCount(), files);
            QVERIFY(tree->topLevelItem(files - 1)->isExpanded());
            QCOMPARE(tree->topLevelItem(files - 1)->child(0)->text(1), QString("c"));
        }
    }
};

QTEST_MAIN(TestWindowCatalogue)
#include "tst_window_catalogue.moc"

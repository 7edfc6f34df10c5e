#include "catalogue/MediaModel.h"
#include "catalogue/SortFilterProxyModel.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTest>

// The catalogue sorts as Qt's proxy does by itself, whatever lies in a column.
class TestSortFilterProxyModel : public QObject {
    Q_OBJECT

private slots:
    void theOrderIsThatOfTheBaseClass_data() {
        using Values = QList<QVariant>;
        const QDateTime now = QDateTime::currentDateTime();
        QTest::addColumn<Values>("values");
        QTest::newRow("texts") << Values{"b", "B", "a10", "a2", "", "ä", "b"};
        QTest::newRow("sizes") << Values{qlonglong(1) << 40, qlonglong(-3), qlonglong(7), qlonglong(7)};
        QTest::newRow("pixels") << Values{12, -2, 300, 12};
        QTest::newRow("yes and no") << Values{true, false, true};
        QTest::newRow("times") << Values{now, now.addDays(-1), now.toUTC(), QDateTime()};
        QTest::newRow("rates") << Values{29.97, 25.0, 0.5};
        QTest::newRow("cells of images among those of videos") << Values{QVariant(), 40, QVariant(), 3};
        QTest::newRow("several types") << Values{"12", 5, qlonglong(9), QVariant(), 2.5, true, now};
    }
    void theOrderIsThatOfTheBaseClass() {
        QFETCH(QList<QVariant>, values);
        QStandardItemModel model(60, 2);
        QRandomGenerator random(1);
        for (int row = 0; row < model.rowCount(); ++row) {
            model.setItem(row, ColName, new QStandardItem);
            model.item(row, ColName)->setData(random.bounded(5) == 0, RoleHidden);
            model.setItem(row, 1, new QStandardItem);
            model.item(row, 1)->setData(values.at(random.bounded(values.size())), RoleValue);
        }
        SortFilterProxyModel ours;
        QSortFilterProxyModel bound;
        // Leaves out the same rows.
        QSortFilterProxyModel shown;
        shown.setSourceModel(&model);
        shown.setFilterRole(RoleHidden);
        shown.setFilterFixedString("false");
        for (QSortFilterProxyModel* proxy : {static_cast<QSortFilterProxyModel*>(&ours), &bound})
            proxy->setSortRole(RoleValue);
        ours.setSourceModel(&model);
        bound.setSourceModel(&shown);
        for (const Qt::SortOrder order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
            ours.sort(1, order);
            bound.sort(1, order);
            QCOMPARE(sourceRows(ours), sourceRows(bound, &shown));
        }
        // A value that changes finds its place without a new sort.
        for (int row = 0; row < model.rowCount(); row += 7)
            model.item(row, 1)->setData(values.first(), RoleValue);
        QCOMPARE(sourceRows(ours), sourceRows(bound, &shown));
    }

private:
    static QList<int> sourceRows(const QSortFilterProxyModel& proxy,
                                 const QSortFilterProxyModel* below = nullptr) {
        QList<int> rows;
        for (int row = 0; row < proxy.rowCount(); ++row) {
            const QModelIndex source = proxy.mapToSource(proxy.index(row, 0));
            rows.append((below ? below->mapToSource(source) : source).row());
        }
        return rows;
    }
};

QTEST_GUILESS_MAIN(TestSortFilterProxyModel)
#include "tst_sortfilterproxymodel.moc"

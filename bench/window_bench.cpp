// The real window on catalogues of growing size.

#include "BenchWindow.h"
#include "LoopGap.h"
#include "Ratio.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"
#include "reference/PlainCatalogue.h"
#include "tags/TagText.h"
#include "tags/TagsExport.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QSet>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>
#include <map>

namespace {

// Records whether the window had read tags and thumbnails when it painted rows for the first time.
class FirstPaint : public QObject {
public:
    FirstPaint(BenchWindow& bench, QAbstractItemView* view) : _bench(bench), _view(view) {
        view->viewport()->installEventFilter(this);
        _timer.start();
    }
    ~FirstPaint() override { _view->viewport()->removeEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        const QModelIndex first = _view->model()->index(0, 0);
        if (event->type() == QEvent::Paint && _ms < 0 && first.isValid()) {
            _ms = static_cast<double>(_timer.nsecsElapsed()) / 1e6;
            const auto canvas = first.data(Qt::DecorationRole).value<QImage>();
            _isEarly = _bench.window().imageTags(first.data(RoleValue).toString()).isEmpty() &&
                       (canvas.isNull() || qAlpha(canvas.pixel(canvas.rect().center())) == 0);
        }
        return false;
    }

    void print() const {
        std::printf("First rows painted after %.0f ms, %s tags and thumbnails.\n", _ms,
                    _isEarly ? "before" : "AFTER");
    }

private:
    BenchWindow& _bench;
    QAbstractItemView* _view;
    QElapsedTimer _timer;
    double _ms = -1;
    bool _isEarly = false;
};

class Bench {
public:
    explicit Bench(int files) : _bench(files), _files(files) {}

    // All topics, or the one of that name.
    void run(const QString& only) {
        loading();
        Ratio::header();
        opening();
        const std::pair<const char*, void (Bench::*)()> topics[] = {
            {"filter", &Bench::filtering},  {"sort", &Bench::sorting},    {"select", &Bench::selecting},
            {"tags", &Bench::tagPanel},     {"remove", &Bench::removing}, {"texts", &Bench::texts},
            {"effects", &Bench::effectsTab}};
        for (const auto& [name, measure] : topics) {
            if (only.isEmpty() || only == name)
                (this->*measure)();
        }
    }

private:
    [[nodiscard]] QString label(const QString& what) const {
        return QString("%1, %2 files").arg(what).arg(_files);
    }
    [[nodiscard]] QStandardItemModel* model() const {
        return _bench.window().findChild<QStandardItemModel*>(QString(), Qt::FindDirectChildrenOnly);
    }

    void loading() {
        const long before = residentKilobytes();
        {
            const FirstPaint firstPaint(_bench, _bench.find<QListView>("listView"));
            std::printf("Opened for the first time in %.0f ms.\n",
                        Ratio::milliseconds([&] { _bench.open(); }));
            firstPaint.print();
        }
        _bench.stopPreviews();
        std::printf("Memory after the load, without thumbnails: %.1f kB a row.\n",
                    static_cast<double>(residentKilobytes() - before) / _files);
        _bench.open();
        LoopGap gap;
        const double spent = Ratio::milliseconds([&] { _bench.waitForPreviews(); });
        std::printf("Thumbnails loaded in %.0f ms, longest turn of the event loop %.0f ms.\n\n", spent,
                    gap.longestMs());
    }

    void opening() {
        reference::OpenedDirectory bound;
        Ratio::report(
            label("open directory"), [&] { _bench.open(); },
            [&] { bound = reference::openDirectory(_bench.path(), mediaNameFilters()); },
            [&] {
                bound = {};
                _bench.openEmpty();
            });
        _bench.open();
        _bench.waitForPreviews();
        if (bound.model->rowCount() != model()->rowCount())
            qFatal("different rows");
        _tags = bound.tags;
    }

    // The texts that the file filter searches.
    [[nodiscard]] QList<QStringList> searchedStrings() const {
        QList<QStringList> strings;
        for (int row = 0; row < model()->rowCount(); ++row) {
            const auto text = [&](int column, int role) {
                return model()->index(row, column).data(role).toString();
            };
            const QString key = text(ColName, RoleValue);
            strings.append(QStringList{text(ColName, Qt::DisplayRole), text(ColName, Qt::ToolTipRole), key,
                                       text(ColPath, Qt::DisplayRole), text(ColSize, Qt::DisplayRole),
                                       text(ColResolution, Qt::DisplayRole),
                                       text(ColLastModified, Qt::DisplayRole)} +
                           _tags.value(key));
        }
        return strings;
    }

    void filtering() {
        auto* filter = _bench.find<QLineEdit>("leFilterImages");
        const auto* shown = _bench.find<QListView>("listView")->model();
        const QList<QStringList> strings = searchedStrings();
        int found = 0;
        Ratio::report(
            label("filter keystroke"),
            [&] {
                filter->setText("needle");
                QCoreApplication::processEvents();
                found = shown->rowCount();
            },
            [&] {
                if (reference::searchRows(strings, "needle") != _files / 10)
                    qFatal("different rows");
            },
            [&] {
                filter->clear();
                QCoreApplication::processEvents();
            });
        if (found != _files / 10)
            qFatal("the filter found %d", found);
        Ratio::report(
            label("query keystroke"),
            [&] {
                filter->setText(":tag \"needle in hay\" :tags>3 | :w>4000");
                QCoreApplication::processEvents();
                found = shown->rowCount();
            },
            [&] { (void)reference::searchRows(strings, "needle in hay"); },
            [&] {
                filter->clear();
                QCoreApplication::processEvents();
            });
        if (found != _files / 10)
            qFatal("the query found %d", found);
        filter->clear();
        auto* table = _bench.find<QTableView>("tableView");
        table->sortByColumn(ColLastModified, Qt::AscendingOrder);
        Ratio::report(
            label("filter keystroke, sorted by date"),
            [&] {
                filter->setText("needle");
                QCoreApplication::processEvents();
            },
            [&] {
                (void)reference::searchRows(strings, "needle");
                QSortFilterProxyModel bound;
                bound.setSortRole(RoleValue);
                bound.setSourceModel(model());
                bound.sort(ColLastModified, Qt::AscendingOrder);
            },
            [&] {
                filter->clear();
                QCoreApplication::processEvents();
            });
        filter->clear();
        table->sortByColumn(-1, Qt::AscendingOrder);
    }

    // Every second one of the first thousand rows, which are selected, is removed by moving its file to
    // another directory.
    void removing() {
        auto* view = _bench.find<QListView>("listView");
        const QString away = QDir(_bench.emptyPath()).filePath("away");
        QDir().mkpath(away);
        QStringList names;
        for (int number = 0; number < std::min(1000, _files); number += 2)
            names.append(catalogue::pictureName(number));
        const auto move = [&](const QString& from, const QString& to) {
            for (const QString& name : std::as_const(names))
                QFile::rename(QDir(from).filePath(name), QDir(to).filePath(name));
        };
        Ratio::report(
            label("500 selected rows removed"),
            [&] {
                move(_bench.path(), away);
                _bench.window().onWorkingDirectoryChanged(_bench.path());
                if (model()->rowCount() != _files - names.size())
                    qFatal("rows stayed");
                move(away, _bench.path());
            },
            [&] {
                move(_bench.path(), away);
                QStandardItemModel bound;
                for (const QString& file : _tags.keys()) {
                    if (QFile::exists(file))
                        bound.appendRow(new QStandardItem(file));
                }
                move(away, _bench.path());
            },
            [&] {
                _bench.open();
                _bench.waitForPreviews();
                view->selectAll();
            });
        _bench.open();
        _bench.waitForPreviews();
    }

    void sorting() {
        auto* table = _bench.find<QTableView>("tableView");
        for (int column = 0; column < MediaColumnCount; ++column) {
            const QString name = model()->headerData(column, Qt::Horizontal).toString();
            Ratio::report(
                label("sort by " + name),
                [&] {
                    table->sortByColumn(column, Qt::AscendingOrder);
                    QCoreApplication::processEvents();
                },
                [&] {
                    QSortFilterProxyModel bound;
                    bound.setSortRole(RoleValue);
                    bound.setSourceModel(model());
                    bound.sort(column, Qt::AscendingOrder);
                },
                [&] {
                    table->sortByColumn(column, Qt::DescendingOrder);
                    QCoreApplication::processEvents();
                });
        }
    }

    void selecting() {
        auto* view = _bench.find<QListView>("listView");
        double one = 0;
        for (int row = 0; row < 20; ++row) {
            const auto turns = turnsMs([&] { view->setCurrentIndex(view->model()->index(row, 0)); });
            one = std::max({one, turns.first, turns.second});
        }
        const QStringList all = flattenedTags(_tags);
        Ratio::report(
            label("select all"), [&] { view->selectAll(); },
            [&] {
                QListWidget bound;
                for (const QString& tag : all)
                    bound.addItem(tag);
            },
            [&] { view->clearSelection(); });
        view->clearSelection();
        QCoreApplication::processEvents();
        const double layout = turnsMs([&] { view->selectAll(); }).second;
        view->clearSelection();
        QCoreApplication::processEvents();
        std::printf(
            "\nSelecting one file took at most %.0f ms in 20 tries. After all rows have been selected, the "
            "layout of their tags takes %.0f ms in a turn of its own.\n\n",
            one, layout);
        Ratio::header();
    }

    // The times of an action and of the event loop iteration that follows it.
    static std::pair<double, double> turnsMs(const std::function<void()>& action) {
        const double first = Ratio::milliseconds(action);
        return {first, Ratio::milliseconds([] { QCoreApplication::processEvents(); })};
    }

    void tagPanel() {
        auto* list = _bench.find<QListWidget>("lwAllImagesTags");
        QListWidget bound;
        _bench.lookLikeTagList(bound);
        Ratio::report(
            label("tag refresh"),
            [&] { QMetaObject::invokeMethod(&_bench.window(), "refreshAllTags", Qt::DirectConnection); },
            [&] {
                if (reference::countAndList(_tags, bound) != list->count())
                    qFatal("different tags");
            });
        list->item(0)->setSelected(true);
        Ratio::report(
            label("tag search"), [&] { _bench.window().onAllImagesTagSelectedChanged(); },
            [&] {
                int hits = 0;
                for (const QStringList& tags : std::as_const(_tags))
                    hits += tags.contains(list->item(0)->text(), Qt::CaseInsensitive) ? 1 : 0;
                if (hits == 0)
                    qFatal("the tag is nowhere");
            });
        constexpr int searched = 2000;
        list->setUpdatesEnabled(false);
        QStringList wanted;
        {
            const QSignalBlocker blocker(list);
            for (int row = 0; row < std::min(searched, list->count()); ++row) {
                list->item(row)->setSelected(true);
                wanted.append(list->item(row)->text());
            }
        }
        list->setUpdatesEnabled(true);
        Ratio::report(
            label("tag search, 2 000 tags"), [&] { _bench.window().onAllImagesTagSelectedChanged(); },
            [&] {
                const QSet<QString> known(wanted.cbegin(), wanted.cend());
                int hits = 0;
                for (const QStringList& tags : std::as_const(_tags)) {
                    hits +=
                        std::ranges::any_of(tags, [&](const QString& tag) { return known.contains(tag); });
                }
                if (hits == 0)
                    qFatal("the tags are nowhere");
            });
        list->clearSelection();
    }

    void texts() {
        const QStringList all = flattenedTags(_tags);
        const QHash<QString, qsizetype> counts = tagCounts(all);
        Ratio::report(
            label("export text"), [&] { (void)exportedTagText(exportedTags(all, counts, {}), counts, {}); },
            [&] {
                QStringList bound = all;
                bound.removeDuplicates();
                bound.sort();
                (void)bound.join('\n');
            });
        Ratio::report(
            label("replace in all"), [&] { _bench.window().replaceTagText("tag 1", "tag 1"); },
            [&] {
                auto tags = _tags;
                for (QStringList& entry : tags)
                    entry.replaceInStrings("tag 1", "tag 1");
                QListWidget bound;
                (void)reference::countAndList(tags, bound);
            });
        Ratio::report(
            label("save all"), [&] { _bench.window().onSaveTags(); },
            [&] {
                for (const auto& [path, tags] : std::as_const(_tags).asKeyValueRange()) {
                    QFile file(path.chopped(4) + ".txt");
                    if (file.open(QIODevice::WriteOnly))
                        file.write(tags.join(',').toUtf8());
                }
            });
    }

    // Stepping from one photograph to the next while the Effects tab shows its preview.
    void effectsTab() {
        QImage photo(4000, 3000, QImage::Format_RGB32);
        photo.fill(Qt::darkCyan);
        for (int line = 0; line < photo.height(); line += 3)
            std::fill_n(reinterpret_cast<QRgb*>(photo.scanLine(line)), photo.width(), qRgb(line >> 4, 99, 7));
        QStringList photos;
        for (int number = 0; number < Ratio::runs; ++number) {
            photos.append(QDir(_bench.path()).filePath(QString("photo_%1.jpg").arg(number)));
            photo.save(photos.last(), "jpg", 90);
            QFile::copy(QDir(_bench.path()).filePath(catalogue::pictureName(0)).chopped(4) + ".txt",
                        photos.last().chopped(4) + ".txt");
        }
        _bench.open();
        _bench.waitForPreviews();
        _bench.find<QTabWidget>("tWTools")->setCurrentWidget(_bench.find<QWidget>("tabImgDSP"));
        auto* view = _bench.find<QListView>("listView");
        const auto* preview = _bench.find<QWidget>("imgWidget");
        QModelIndexList rows;
        for (const QString& path : std::as_const(photos))
            rows.append(view->model()->match(view->model()->index(0, 0), RoleValue, path).value(0));
        int calls = 0;
        int number = 0;
        Ratio::report(
            label("step to a photograph in the Effects tab"),
            [&] {
                view->setCurrentIndex(rows[number]);
                if (_bench.window().selectedFilePaths() != QStringList(photos[number]))
                    qFatal("another file is selected");
                QCoreApplication::processEvents();
            },
            [&] {
                const QImage bound = QImage(photos[number]).scaled(preview->size(), Qt::KeepAspectRatio);
                if (bound.isNull())
                    qFatal("no photograph");
            },
            // Each side of a run gets the same file, which nothing has shown before.
            [&] { number = calls++ / 2; });
    }

    mutable BenchWindow _bench;
    int _files;
    QHash<QString, QStringList> _tags;
};

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName("Tessarine");
    atEachSize(argc, argv, [&](int files) { Bench(files).run(argc > 2 ? argv[2] : ""); });
    return 0;
}

#include "Ratio.h"
#include "app/MainWindow.h"
#include "catalogue/MediaFilter.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"
#include "reference/PlainCatalogue.h"
#include "tags/TagText.h"
#include "tags/TagsExport.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

namespace {

// 30 tags a file; a fifteenth of all tags is unique, and one file in ten ends with a tag of its own kind.
QString sidecarOf(int number) {
    QStringList tags;
    for (int tag = 0; tag < 29; ++tag)
        tags.append(QString("tag %1").arg((number * 29 + tag * 7919) % 20000));
    tags.append(number % 10 == 0 ? "needle in hay" : "plain last tag");
    return tags.join(", ");
}

void makeCatalogue(const QString& path, int files) {
    QImage image(8, 6, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    image.setText("Comment", "made for measuring");
    const QString first = path + "/image_00000.png";
    image.save(first);
    QFile source(first);
    if (!source.open(QIODevice::ReadOnly))
        qFatal("no source");
    const QByteArray bytes = source.readAll();
    for (int number = 0; number < files; ++number) {
        const QString base = path + QString("/image_%1").arg(number, 5, 10, QChar('0'));
        QFile picture(base + ".png");
        QFile sidecar(base + ".txt");
        if (!picture.open(QIODevice::WriteOnly) || !sidecar.open(QIODevice::WriteOnly))
            qFatal("cannot write");
        picture.write(bytes);
        sidecar.write(sidecarOf(number).toUtf8());
    }
}

long residentKilobytes() {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QString text = QString::fromLatin1(status.readAll());
    const qsizetype start = text.indexOf("VmRSS:") + 6;
    return text.mid(start, text.indexOf("kB", start) - start).trimmed().toLong();
}

class Bench {
public:
    explicit Bench(int files) : _files(files) {
        makeCatalogue(_directory.path(), files);
        const long before = residentKilobytes();
        _window = std::make_unique<MainWindow>();
        _window->findChild<QLineEdit*>("lEWorkingPath")->setText(_directory.path());
        _window->resize(1600, 1000);
        _window->show();
        open();
        // Settled: no thumbnails are under way and nothing is selected.
        std::printf("\n%d files, memory after opening %.1f kB a row\n\n", files,
                    static_cast<double>(residentKilobytes() - before) / files);
        Ratio::header();
    }

    void run() {
        opening();
        filtering();
        sorting();
        tagPanel();
        texts();
    }

private:
    template <typename T>
    T* find(const char* name) {
        return _window->findChild<T*>(QLatin1StringView(name));
    }
    QString label(const char* what) const { return QString("%1, %2 files").arg(what).arg(_files); }

    // Rows and tags, without the previews that follow.
    void open() {
        _window->openWorkingDirectory(_directory.path());
        QCoreApplication::processEvents();
        while (_window->imageTags(_window->allFilePaths().value(0)).isEmpty())
            QCoreApplication::processEvents();
    }

    void opening() {
        reference::OpenedDirectory bound;
        Ratio::report(
            label("open directory"), [&] { open(); },
            [&] { bound = reference::openDirectory(_directory.path(), mediaNameFilters()); },
            [&] {
                bound = {};
                _window->openWorkingDirectory(_empty.path());
                QCoreApplication::processEvents();
            });
        open();
        if (bound.model->rowCount() != _window->allFilePaths().size())
            qFatal("different rows");
        _tags = bound.tags;
    }

    void filtering() {
        auto* filter = find<QLineEdit>("leFilterImages");
        auto* model = find<QListView>("listView")->model();
        auto* catalogue = _window->findChild<QStandardItemModel*>(QString(), Qt::FindDirectChildrenOnly);
        QList<QStringList> strings;
        for (int row = 0; row < catalogue->rowCount(); ++row) {
            const auto text = [&](int column, int role) {
                return catalogue->index(row, column).data(role).toString();
            };
            QStringList parts{text(ColName, Qt::DisplayRole),
                              text(ColName, Qt::ToolTipRole),
                              text(ColName, RoleValue),
                              text(ColPath, Qt::DisplayRole),
                              text(ColSize, Qt::DisplayRole),
                              text(ColResolution, Qt::DisplayRole),
                              text(ColLastModified, Qt::DisplayRole)};
            strings.append(parts + _tags.value(text(ColName, RoleValue)));
        }
        int found = 0;
        Ratio::report(
            label("filter keystroke"),
            [&] {
                filter->setText("needle");
                QCoreApplication::processEvents();
                found = model->rowCount();
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
        filter->clear();
    }

    void sorting() {
        auto* table = find<QTableView>("tableView");
        auto* catalogue = _window->findChild<QStandardItemModel*>(QString(), Qt::FindDirectChildrenOnly);
        for (const int column : {int(ColName), int(ColSize), int(ColLastModified), int(ColComment)}) {
            Ratio::report(
                label(qPrintable("sort by " + catalogue->headerData(column, Qt::Horizontal).toString())),
                [&] {
                    table->sortByColumn(column, Qt::AscendingOrder);
                    QCoreApplication::processEvents();
                },
                [&] {
                    QSortFilterProxyModel bound;
                    bound.setSortRole(RoleValue);
                    bound.setSourceModel(catalogue);
                    bound.sort(column, Qt::AscendingOrder);
                },
                [&] {
                    table->sortByColumn(column, Qt::DescendingOrder);
                    QCoreApplication::processEvents();
                });
        }
        auto* view = find<QListView>("listView");
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
    }

    void tagPanel() {
        auto* list = find<QListWidget>("lwAllImagesTags");
        QListWidget bound;
        bound.setViewMode(list->viewMode());
        bound.setMovement(list->movement());
        bound.setResizeMode(list->resizeMode());
        bound.setSpacing(8);
        bound.resize(list->size());
        bound.show();
        Ratio::report(
            label("tag refresh"),
            [&] { QMetaObject::invokeMethod(_window.get(), "refreshAllTags", Qt::DirectConnection); },
            [&] {
                if (reference::countAndList(_tags, bound) != list->count())
                    qFatal("different tags");
            });
        list->item(0)->setSelected(true);
        Ratio::report(
            label("tag search"), [&] { _window->onAllImagesTagSelectedChanged(); },
            [&] {
                int hits = 0;
                for (const QStringList& tags : std::as_const(_tags))
                    hits += tags.contains(list->item(0)->text(), Qt::CaseInsensitive) ? 1 : 0;
                if (hits == 0)
                    qFatal("the tag is nowhere");
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
            label("replace in all"), [&] { _window->replaceTagText("tag 1", "tag 1"); },
            [&] {
                auto tags = _tags;
                for (QStringList& entry : tags)
                    entry.replaceInStrings("tag 1", "tag 1");
                QListWidget bound;
                (void)reference::countAndList(tags, bound);
            });
        Ratio::report(
            label("save all"), [&] { _window->onSaveTags(); },
            [&] {
                for (const auto& [path, tags] : std::as_const(_tags).asKeyValueRange()) {
                    QFile file(path.chopped(4) + ".txt");
                    if (file.open(QIODevice::WriteOnly))
                        file.write(tags.join(',').toUtf8());
                }
            });
    }

    int _files;
    QTemporaryDir _directory;
    QTemporaryDir _empty;
    std::unique_ptr<MainWindow> _window;
    QHash<QString, QStringList> _tags;
};

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName("Tessarine");
    // The terminal is no part of what is measured.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    for (const int files : {1000, 10000, 50000}) {
        if (argc > 1 && QString(argv[1]).toInt() > 0 && QString(argv[1]).toInt() != files)
            continue;
        Bench(files).run();
    }
    return 0;
}

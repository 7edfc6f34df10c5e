// Following the disk: stray text files, single new files and a burst of them in directories of growing size.

#include "BenchWindow.h"
#include "LoopGap.h"
#include "Ratio.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"
#include "reference/PlainCatalogue.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QListWidget>
#include <QStandardItemModel>
#include <QThread>

namespace {

constexpr int burstSize = 500;

QStringList listing(const QString& path, const QStringList& nameFilters = {}) {
    QStringList names;
    QDirIterator entries(path, nameFilters, QDir::AllEntries | QDir::NoDotAndDotDot);
    while (entries.hasNext())
        names.append(entries.next());
    return names;
}

class Bench {
public:
    explicit Bench(int files) : _bench(files), _files(files), _next(files) {
        _bench.open();
        _bench.waitForPreviews();
        _model = _bench.window().findChild<QStandardItemModel*>(QString(), Qt::FindDirectChildrenOnly);
        _tags = reference::openDirectory(_bench.path(), mediaNameFilters()).tags;
    }

    void strayTexts() {
        Ratio::report(
            label("clearing stray text files"), [&] { _bench.window().deleteStrayTxtFiles(); },
            [&] {
                if (listing(_bench.path()).size() != 2 * _files)
                    qFatal("stray files went");
            });
    }

    void nothingNew() {
        Ratio::report(
            label("watcher, no new file"), [&] { _bench.window().onWorkingDirectoryChanged(_bench.path()); },
            [&] {
                if (existing(listing(_bench.path(), mediaNameFilters())) != _files)
                    qFatal("files went");
            });
    }

    // Both sides list, look whether each row's file is still there, and count and list all tags.
    void oneNewFile() {
        QListWidget bound;
        _bench.lookLikeTagList(bound);
        Ratio::report(
            label("watcher, one new file"),
            [&] {
                catalogue::makeFiles(_bench.path(), _next, _next + 1);
                ++_next;
                while (_model->rowCount() < _next || hasUntagged(_next - 1))
                    QCoreApplication::processEvents();
            },
            [&] {
                (void)existing(listing(_bench.path(), mediaNameFilters()));
                (void)reference::countAndList(_tags, bound);
            });
        _bench.waitForPreviews();
    }

    // Another thread writes the files; every one may fire the watcher. The bound writes, reads and decodes
    // them alone, lists the directory once and lists all tags once.
    void burst() {
        std::vector<double> gaps;
        QListWidget bound;
        _bench.lookLikeTagList(bound);
        const QTemporaryDir other;
        Ratio::report(
            label(QString("burst of %1 files").arg(burstSize)),
            [&] {
                LoopGap gap;
                const int first = _next;
                _next += burstSize;
                const std::unique_ptr<QThread> writer(
                    QThread::create([&] { catalogue::makeFiles(_bench.path(), first, _next); }));
                writer->start();
                while (_model->rowCount() < _next)
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                writer->wait();
                _bench.waitForPreviews();
                gaps.push_back(gap.longestMs());
            },
            [&] {
                catalogue::makeFiles(other.path(), 0, burstSize);
                (void)reference::openDirectory(other.path(), mediaNameFilters());
                (void)reference::loadPreviews(listing(other.path(), mediaNameFilters()), {218, 218}, 4);
                (void)existing(listing(_bench.path(), mediaNameFilters()));
                (void)reference::countAndList(_tags, bound);
            });
        requireEveryFileOnce();
        std::printf(
            "\nLongest turn of the event loop in a burst: %.0f ms. Every file is there once, with tags "
            "and thumbnail.\n",
            Ratio::median(gaps));
    }

private:
    [[nodiscard]] QString label(const QString& what) const {
        return QString("%1, %2 files").arg(what).arg(_files);
    }

    [[nodiscard]] int existing(const QStringList& files) const {
        return static_cast<int>(
            std::ranges::count_if(files, [](const QString& file) { return QFile::exists(file); }));
    }

    [[nodiscard]] bool hasUntagged(int number) {
        return _bench.window().imageTags(_bench.path() + '/' + catalogue::pictureName(number)).isEmpty();
    }

    void requireEveryFileOnce() {
        QStringList rows = _bench.window().allFilePaths();
        QStringList files = listing(_bench.path(), mediaNameFilters());
        rows.sort();
        files.sort();
        if (rows != files)
            qFatal("rows and files differ");
        for (int row = 0; row < _model->rowCount(); ++row) {
            const QModelIndex index = _model->index(row, ColName);
            const auto thumbnail = index.data(Qt::DecorationRole).value<QImage>();
            if (thumbnail.isNull() || qAlpha(thumbnail.pixel(thumbnail.rect().center())) == 0)
                qFatal("no thumbnail");
            if (_bench.window().imageTags(index.data(RoleValue).toString()).isEmpty())
                qFatal("no tags");
        }
    }

    BenchWindow _bench;
    int _files;
    int _next; // number of the next file
    QStandardItemModel* _model = nullptr;
    QHash<QString, QStringList> _tags;
};

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName("Tessarine");
    atEachSize(argc, argv, [](int files) {
        Bench bench(files);
        Ratio::header();
        bench.strayTexts();
        bench.nothingNew();
        bench.oneNewFile();
        bench.burst();
    });
    return 0;
}

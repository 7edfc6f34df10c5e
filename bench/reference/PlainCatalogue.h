#pragma once

#include <QHash>
#include <QImage>
#include <QSize>
#include <QStringList>

#include <memory>

class QListWidget;
class QStandardItemModel;

// What the catalogue's work costs with public Qt alone, in plain loops. The benchmarks compare against these.
namespace reference {

struct OpenedDirectory {
    std::unique_ptr<QStandardItemModel> model;
    QHash<QString, QStringList> tags;
};

// Lists the directory, reads each header and its texts once, stats each file, reads and splits each sidecar
// and fills a model of 16 columns.
[[nodiscard]] OpenedDirectory openDirectory(const QString& path, const QStringList& nameFilters);

// Decodes and scales every file on a bare thread pool; the number of images that came.
[[nodiscard]] int loadPreviews(const QStringList& files, const QSize& size, int threads);

// The rows in which the text is found, by a case-insensitive search through the given strings.
[[nodiscard]] int searchRows(const QList<QStringList>& rows, const QString& text);

// Counts the tags in a hash and fills and lays out a list widget with the unique ones.
[[nodiscard]] int countAndList(const QHash<QString, QStringList>& tags, QListWidget& list);

} // namespace reference

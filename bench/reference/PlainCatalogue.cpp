#include "reference/PlainCatalogue.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QListWidget>
#include <QStandardItemModel>
#include <QThreadPool>

#include <atomic>

namespace reference {

OpenedDirectory openDirectory(const QString& path, const QStringList& nameFilters) {
    OpenedDirectory opened;
    opened.model = std::make_unique<QStandardItemModel>(0, 16);
    QDirIterator entries(path, nameFilters, QDir::NoFilter);
    while (entries.hasNext()) {
        const QString file = entries.next();
        const QFileInfo info(file);
        const QImageReader reader(file);
        const QSize size = reader.size();
        const QString comment = reader.text("Comment");
        QList<QStandardItem*> row;
        const auto add = [&](const QVariant& display, const QVariant& value) {
            auto* item = new QStandardItem;
            item->setData(display, Qt::DisplayRole);
            item->setData(value, Qt::UserRole + 1);
            row.append(item);
        };
        add(info.fileName(), file);
        add(info.path(), info.path());
        add(QString::number(info.size()), info.size());
        add(QString("%1x%2").arg(size.width()).arg(size.height()), size.width() * size.height());
        add(info.lastModified(), info.lastModified());
        while (row.size() < 13)
            row.append(new QStandardItem);
        add(comment.isEmpty() ? "No" : "Yes", comment);
        add(info.suffix(), info.suffix());
        const QString sidecar = info.path() + '/' + info.completeBaseName() + ".txt";
        QFile text(sidecar);
        QStringList tags;
        if (text.open(QIODevice::ReadOnly)) {
            const QStringList lines = QString::fromUtf8(text.readAll()).split('\n', Qt::SkipEmptyParts);
            for (const QString& line : lines) {
                const QStringList pieces = line.split(',', Qt::SkipEmptyParts);
                for (const QString& piece : pieces)
                    tags.append(piece.trimmed());
            }
        }
        add(tags.isEmpty() ? "No" : "Yes", !tags.isEmpty());
        opened.model->appendRow(row);
        opened.tags.insert(file, tags);
    }
    return opened;
}

int loadPreviews(const QStringList& files, const QSize& size, int threads) {
    std::atomic<int> loaded = 0;
    QThreadPool pool;
    pool.setMaxThreadCount(threads);
    for (const QString& file : files) {
        pool.start([&loaded, file, size] {
            QImageReader reader(file);
            const QImage image = reader.read().scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
            loaded += image.isNull() ? 0 : 1;
        });
    }
    pool.waitForDone();
    return loaded;
}

int searchRows(const QList<QStringList>& rows, const QString& text) {
    int found = 0;
    for (const QStringList& row : rows) {
        for (const QString& string : row) {
            if (string.indexOf(text, 0, Qt::CaseInsensitive) >= 0) {
                ++found;
                break;
            }
        }
    }
    return found;
}

int countAndList(const QHash<QString, QStringList>& tags, QListWidget& list) {
    QHash<QString, int> counts;
    for (const QStringList& entry : tags) {
        for (const QString& tag : entry)
            ++counts[tag];
    }
    list.setUpdatesEnabled(false);
    list.clear();
    for (const auto& [tag, count] : counts.asKeyValueRange()) {
        auto* item = new QListWidgetItem(tag);
        item->setToolTip(QString("Count: %1").arg(count));
        item->setTextAlignment(Qt::AlignCenter);
        list.addItem(item);
    }
    list.setUpdatesEnabled(true);
    list.doItemsLayout();
    return static_cast<int>(counts.size());
}

} // namespace reference

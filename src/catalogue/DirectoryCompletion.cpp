#include "catalogue/DirectoryCompletion.h"

#include <QDir>
#include <QDirIterator>

namespace {

constexpr qsizetype offeredDirectories = 12;

} // namespace

DirectoryMatches matchingDirectories(const QString& line, qsizetype cursor) {
    const qsizetype start = QDir::fromNativeSeparators(line).lastIndexOf(u'/') + 1;
    if (cursor != line.size() || start == 0 || !QDir::isAbsolutePath(line))
        return {};
    const QString typed = line.sliced(start);
    QDir::Filters filters = QDir::Dirs | QDir::NoDotAndDotDot;
    filters.setFlag(QDir::Hidden, typed.startsWith(u'.'));
    QStringList names;
    QDirIterator entries(line.first(start), filters);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        if (name.startsWith(typed, Qt::CaseInsensitive) && name != typed)
            names.append(name);
    }
    names.sort(Qt::CaseInsensitive);
    return {start, names.first(qMin(names.size(), offeredDirectories))};
}

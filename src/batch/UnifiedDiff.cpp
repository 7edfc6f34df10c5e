#include "batch/UnifiedDiff.h"

#include "batch/Console.h"

#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

qsizetype lineCount(const QString& text) {
    return text.count(u'\n') + (text.isEmpty() || text.endsWith(u'\n') ? 0 : 1);
}

QString range(qsizetype lines) {
    if (lines == 1)
        return u"1"_s;
    // A range without lines starts at 0.
    return u"%1,%2"_s.arg(QString::number(lines == 0 ? 0 : 1), QString::number(lines));
}

QString signedLines(QChar sign, const QString& text) {
    if (text.isEmpty())
        return {};
    QStringList lines = text.split(u'\n');
    // Behind the last line end split() finds an empty piece, which is no line.
    const bool isClosed = lines.last().isEmpty();
    if (isClosed)
        lines.removeLast();
    QString marked;
    for (const QString& line : std::as_const(lines))
        marked += sign + line + u'\n';
    return isClosed ? marked : marked + "\\ No newline at end of file\n"_L1;
}

} // namespace

QString unifiedDiff(const QString& path, const QString& before, const QString& after) {
    // Where a name holds blanks, patch finds its end by a tab.
    const QString name = path.contains(u' ') ? shownPath(path) + u'\t' : shownPath(path);
    return u"--- %1\n+++ %2\n@@ -%3 +%4 @@\n"_s.arg(before.isNull() ? u"/dev/null"_s : name, name,
                                                    range(lineCount(before)), range(lineCount(after))) +
           signedLines(u'-', before) + signedLines(u'+', after);
}

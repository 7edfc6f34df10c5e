#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

struct TagsExportOptions {
    bool removesDuplicates = true;
    bool appendsCount = true;
    bool sortsByCount = true; // rarest first
    bool sortsByName = false; // replaces the order by count
    bool isReversed = false;  // of the order by name
    Qt::CaseSensitivity nameCase = Qt::CaseSensitive;
};

// The tags in the order of the options; the counts are those of the full list.
[[nodiscard]] QStringList exportedTags(const QStringList& tags, const QHash<QString, qsizetype>& counts,
                                       const TagsExportOptions& options);

// One line a tag, with its count in brackets if the options request it.
[[nodiscard]] QString exportedTagText(const QStringList& exported, const QHash<QString, qsizetype>& counts,
                                      const TagsExportOptions& options);

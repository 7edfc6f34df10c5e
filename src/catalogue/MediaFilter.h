#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringMatcher>

class MediaItemModel;

// Whether the filter text requests the files whose sidecar is missing or empty.
[[nodiscard]] bool isMissingTxtFilter(const QString& txt);
// Also while it is typed.
[[nodiscard]] bool beginsMissingTxtFilter(const QString& txt);

// The file filter's search through one row of the catalogue and the tags of its file, regardless of case.
class MediaFilter {
public:
    // All different tags of the files that will be searched: each is searched once, however many have it.
    MediaFilter(const QString& txt, const QStringList& differentTags);

    [[nodiscard]] bool matches(const MediaItemModel& model, int row, const QStringList& tags) const;

private:
    [[nodiscard]] bool isIn(const QString& text) const { return _matcher.indexIn(text) >= 0; }

    QStringMatcher _matcher;
    QSet<QString> _foundTags;
};

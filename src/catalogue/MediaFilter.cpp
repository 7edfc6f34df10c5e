#include "catalogue/MediaFilter.h"

#include "catalogue/MediaItemModel.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

bool isMissingTxtFilter(const QString& txt) {
    return txt.compare(":missingtxt"_L1, Qt::CaseInsensitive) == 0;
}

bool beginsMissingTxtFilter(const QString& txt) {
    return ":missingtxt"_L1.startsWith(txt, Qt::CaseInsensitive);
}

MediaFilter::MediaFilter(const QString& txt, const QStringList& differentTags)
    : _matcher(txt, Qt::CaseInsensitive) {
    for (const QString& tag : differentTags) {
        if (isIn(tag))
            _foundTags.insert(tag);
    }
}

bool MediaFilter::matches(const MediaItemModel& model, int row, const QStringList& tags) const {
    MediaItem* name = model.itemAt(row);
    // Name and path are parts of the whole path, and the tool tip has the resolution with both.
    for (const int role : {int(RoleValue), int(Qt::ToolTipRole)}) {
        if (isIn(name->data(role).toString()))
            return true;
    }
    for (const MediaColumn column : std::array{ColSize, ColResolution}) {
        if (isIn(model.item(row, column)->text()))
            return true;
    }
    // Cached, as formatting a date takes longer than all other tests of a row together.
    if (name->lastModifiedText().isNull())
        name->setLastModifiedText(model.item(row, ColLastModified)->text());
    if (isIn(name->lastModifiedText()))
        return true;
    return !_foundTags.isEmpty() &&
           std::ranges::any_of(tags, [this](const QString& tag) { return _foundTags.contains(tag); });
}

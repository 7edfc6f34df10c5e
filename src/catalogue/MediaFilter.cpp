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

MediaFilter::MediaFilter(const QString& txt) : _matcher(txt, Qt::CaseInsensitive) {}

bool MediaFilter::matches(const MediaItemModel& model, int row, const QStringList& tags) const {
    MediaItem* name = model.itemAt(row);
    for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole), int(RoleValue)}) {
        if (isIn(name->data(role).toString()))
            return true;
    }
    for (const MediaColumn column : std::array{ColPath, ColSize, ColResolution}) {
        if (isIn(model.item(row, column)->text()))
            return true;
    }
    // Cached, as formatting a date takes longer than all other tests of a row together.
    if (name->lastModifiedText().isNull())
        name->setLastModifiedText(model.item(row, ColLastModified)->text());
    if (isIn(name->lastModifiedText()))
        return true;
    return std::ranges::any_of(tags, [this](const QString& tag) { return isIn(tag); });
}

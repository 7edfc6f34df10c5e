#pragma once

#include "catalogue/MediaModel.h"

#include <QHash>
#include <QList>
#include <QSize>
#include <QString>
#include <QVariant>

// One cell of the catalogue, filled from the metadata of a clip.
struct VideoMetaCell {
    MediaColumn column = ColName;
    QVariant display;
    QVariant value;

    bool operator==(const VideoMetaCell&) const = default;
};

// The cells of resolution, duration, formats, bit rates, codecs and frame rate. Absent keys show as zero or
// empty.
[[nodiscard]] QList<VideoMetaCell> videoMetaCells(const QHash<QString, QVariant>& videoMeta);

[[nodiscard]] QSize videoResolution(const QHash<QString, QVariant>& videoMeta);

// A value of a metadata hash as one line of text.
[[nodiscard]] QString videoMetaText(const QVariant& value);

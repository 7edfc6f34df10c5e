#include "catalogue/VideoMeta.h"

#include "app/services/Utils.h"

using namespace Qt::StringLiterals;

QSize videoResolution(const QHash<QString, QVariant>& videoMeta) {
    return videoMeta.value(u"Resolution"_s).toSize();
}

QList<VideoMetaCell> videoMetaCells(const QHash<QString, QVariant>& videoMeta) {
    const Utils* utils = Utils::instance();
    const QSize resolution = videoResolution(videoMeta);
    const qint64 duration = videoMeta.value(u"Duration"_s).toLongLong();
    const auto asText = [&](MediaColumn column, const QString& key) {
        const QVariant value = videoMeta.value(key);
        return VideoMetaCell{column, value.toString(), value};
    };
    const auto asBitRate = [&](MediaColumn column, const QString& key) {
        const int bitsPerSecond = videoMeta.value(key).toInt();
        return VideoMetaCell{column, utils->formatBitRate(static_cast<quint64>(qMax(0, bitsPerSecond))),
                             bitsPerSecond};
    };
    const QVariant frameRate = videoMeta.value(u"VideoFrameRate"_s);
    return {
        {ColResolution, resolutionText(resolution),
         static_cast<int>(static_cast<qint64>(resolution.width()) * resolution.height())},
        {ColDuration, utils->formatDuration(static_cast<quint64>(qMax(0LL, duration)), true, 0, false),
         duration},
        asText(ColMediaType, u"MediaType"_s),
        asText(ColFileFormat, u"FileFormat"_s),
        asBitRate(ColAudioBitRate, u"AudioBitRate"_s),
        asText(ColAudioCodec, u"AudioCodec"_s),
        asBitRate(ColVideoBitRate, u"VideoBitRate"_s),
        asText(ColVideoCodec, u"VideoCodec"_s),
        {ColVideoFrameRate, frameRate.toDouble(), frameRate},
    };
}

QString videoMetaText(const QVariant& value) {
    return value.typeId() == QMetaType::QSize ? resolutionText(value.toSize()) : value.toString();
}

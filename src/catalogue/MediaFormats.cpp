#include "catalogue/MediaFormats.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>

#include <array>

using namespace Qt::StringLiterals;

namespace {

QStringList lowerCased(const QList<QByteArray>& formats) {
    QStringList suffixes;
    suffixes.reserve(formats.size());
    for (const QByteArray& format : formats)
        suffixes.append(QString::fromLatin1(format).toLower());
    return suffixes;
}

QStringList asNameFilters(const QStringList& suffixes) {
    QStringList filters;
    filters.reserve(suffixes.size());
    for (const QString& suffix : suffixes)
        filters.append(u"*.%1"_s.arg(suffix.toLower()));
    return filters;
}

} // namespace

// Both lists are queried once: a query loads all image plugins, which do not change while the program runs.
QStringList supportedImageFormats() {
    static const QStringList formats = lowerCased(QImageReader::supportedImageFormats());
    return formats;
}

QStringList supportedWriteFormats() {
    static const QStringList formats = lowerCased(QImageWriter::supportedImageFormats());
    return formats;
}

QStringList supportedVideoFormats() {
    static const QStringList formats{u"avi"_s, u"mp4"_s, u"mpv"_s, u"mpeg"_s, u"mpg"_s,
                                     u"ogg"_s, u"ogv"_s, u"flv"_s, u"mkv"_s,  u"webm"_s};
    return formats;
}

bool isVideoFile(const QString& filePath) {
    return supportedVideoFormats().contains(QFileInfo(filePath).suffix().toLower());
}

QStringList imageNameFilters() {
    return asNameFilters(supportedImageFormats());
}

QStringList videoNameFilters() {
    return asNameFilters(supportedVideoFormats());
}

QStringList mediaNameFilters() {
    return imageNameFilters() + asNameFilters(supportedVideoFormats());
}

SuffixMatcher::SuffixMatcher(const QStringList& nameFilters) {
    for (const QString& filter : nameFilters)
        _suffixes.insert(filter.sliced(2));
}

bool SuffixMatcher::matches(const QString& path) const {
    // Without a dot the whole path is looked up, which equals no suffix.
    return _suffixes.contains(path.sliced(path.lastIndexOf(u'.') + 1).toCaseFolded());
}

QString imageDialogFilter() {
    return QCoreApplication::translate("MediaFormats", "Images (") +
           asNameFilters(supportedWriteFormats()).join(u' ') + u')';
}

QString videoDialogFilter() {
    QString filter = QCoreApplication::translate("MediaFormats", "Video (");
    const QStringList videoFormats = supportedVideoFormats();
    for (const QString& suffix : videoFormats)
        filter += u"*."_s + suffix + u' ';
    return filter + u')';
}

QString formatSize(qint64 bytes, int precision) {
    if (bytes < 1024)
        return u"%1 B"_s.arg(QString::number(static_cast<double>(bytes), 'f', 0));
    if (const qint64 kilobytes = bytes / 1024; kilobytes < 1024)
        return u"%1 KB"_s.arg(QString::number(kilobytes));
    // An EB is the largest unit that 63 bits reach; the others complete the table.
    constexpr std::array units{"MB", "GB", "TB", "PB", "EB", "ZB", "YB"};
    constexpr double oneStep = 0.0009765625;
    double value = static_cast<double>(bytes) * oneStep * oneStep;
    std::size_t unit = 0;
    while (unit < units.size() && value >= 1024.0) {
        value *= oneStep;
        ++unit;
    }
    const QString name = unit < units.size() ? QString::fromLatin1(units.at(unit)) : QString();
    return u"%1 %2"_s.arg(QString::number(value, 'f', precision), name);
}

#include "video/VideoTexts.h"

#include "catalogue/FileNaming.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTime>

using namespace Qt::StringLiterals;

namespace {

QString timeOfDayText(qint64 milliseconds) {
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds)).toString(u"hh:mm:ss.zzz"_s);
}

} // namespace

QString positionFormat(qint64 position, qint64 duration) {
    return u"%p% [%1 - %2]"_s.arg(timeOfDayText(position), timeOfDayText(duration));
}

QString grabbedFrameBaseName(const QString& source, const std::optional<QString>& openedDirectory,
                             const QDateTime& time) {
    QString name;
    if (!source.isEmpty())
        name = QFileInfo(source).completeBaseName();
    else if (openedDirectory)
        // With the one below two underscores: the fixed form of a name taken from a directory.
        name = QFileInfo(*openedDirectory).completeBaseName() + u'_';
    return name + u'_' + time.toString(u"dd_MM_yyyyThh_mm_ss_zzz"_s);
}

QString grabbedFrameFilePath(const QString& directory, const QString& baseName) {
    return firstFreePath([&](int number) {
        const QString name = number == 0 ? baseName : u"%1_%2"_s.arg(baseName, QString::number(number));
        return pathInDirectory(directory, name + ".png"_L1);
    });
}

#include "tags/TagRecovery.h"

#include "catalogue/FileNaming.h"
#include "tags/TagRecord.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

constexpr int writeDelayMs = 2000;
// Each change restarts the delay, which a batch with a change every second would extend forever.
constexpr int longestDelayMs = 10000;
constexpr int keptDays = 30;
constexpr int keptFiles = 20;
constexpr int formatVersion = 1;

void noteSidecar(const QString& key, RecoveredFile& file) {
    const QFileInfo sidecar(imgFilePathToTxtFilePath(key));
    if (!sidecar.exists())
        return;
    file.sidecarSize = sidecar.size();
    file.sidecarTime = sidecar.lastModified(QTimeZone::UTC).toMSecsSinceEpoch();
}

bool isSidecarChanged(const QString& key, const RecoveredFile& recorded) {
    RecoveredFile now;
    noteSidecar(key, now);
    return now.sidecarSize != recorded.sidecarSize || now.sidecarTime != recorded.sidecarTime;
}

std::optional<RecoveredTags> readRecovery(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? recoveryFromText(file.readAll()) : std::nullopt;
}

// Logs the first failure only, as every further change would repeat it.
void logFailedWrite(const QString& path, const QString& error) {
    static std::atomic<bool> isLogged = false;
    if (!isLogged.exchange(true))
        qWarning() << "Error, unable to write unsaved tags to:" << path << "error:" << error;
}

// Runs in the writer's thread. Without files the old recovery is removed. Notes the sidecars of unsaved
// files; the others are of an earlier run and have the state that their sidecars had then.
void writeRecovery(const QString& path, RecoveredTags recovered, const QStringList& unsaved) {
    if (recovered.files.isEmpty()) {
        QFile::remove(path);
        return;
    }
    for (const QString& key : unsaved)
        noteSidecar(key, recovered.files[key]);
    QDir().mkpath(QFileInfo(path).path());
    // If the disk is full, QSaveFile leaves the old file whole.
    QSaveFile file(path);
    const QByteArray text = recoveryText(recovered);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        logFailedWrite(path, file.errorString());
}

} // namespace

QByteArray recoveryText(const RecoveredTags& recovered) {
    QJsonArray files;
    for (const auto& [key, file] : recovered.files.asKeyValueRange()) {
        files.append(QJsonObject{{u"file"_s, key},
                                 {u"tags"_s, QJsonArray::fromStringList(file.tags)},
                                 {u"sidecarSize"_s, file.sidecarSize},
                                 {u"sidecarTime"_s, file.sidecarTime}});
    }
    const QJsonObject root{{u"version"_s, formatVersion},
                           {u"directory"_s, recovered.directory},
                           {u"process"_s, QCoreApplication::applicationPid()},
                           {u"time"_s, recovered.time.toUTC().toString(Qt::ISODateWithMs)},
                           {u"files"_s, files}};
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

std::optional<RecoveredTags> recoveryFromText(const QByteArray& text) {
    const QJsonObject root = QJsonDocument::fromJson(text).object();
    // Text that is no JSON gives an empty object, without a version.
    if (root["version"_L1].toInt() != formatVersion || !root["files"_L1].isArray())
        return std::nullopt;
    RecoveredTags recovered;
    recovered.directory = root["directory"_L1].toString();
    recovered.time = QDateTime::fromString(root["time"_L1].toString(), Qt::ISODateWithMs);
    const QJsonArray files = root["files"_L1].toArray();
    for (const QJsonValueConstRef value : files) {
        RecoveredFile file;
        const QJsonArray tags = value["tags"_L1].toArray();
        for (const QJsonValueConstRef tag : tags)
            file.tags.append(tag.toString());
        file.sidecarSize = value["sidecarSize"_L1].toInteger(-1);
        file.sidecarTime = value["sidecarTime"_L1].toInteger();
        recovered.files.insert(value["file"_L1].toString(), file);
    }
    return recovered;
}

TagRecovery::TagRecovery(TagRecord& record, const QString& recoveryDirectory, QObject* parent)
    : QObject(parent), _record(record), _directory(recoveryDirectory) {
    _writer.setMaxThreadCount(1);
    _delay.setSingleShot(true);
    connect(&_delay, &QTimer::timeout, this, &TagRecovery::write);
    connect(&record, &TagRecord::changed, this, &TagRecovery::onRecordChanged);
}

TagRecovery::~TagRecovery() {
    _writer.waitForDone();
}

// The recovery file of a directory; `left` receives its content. A file that cannot be read is left as it is,
// and the next number is used.
QString TagRecovery::freePath(const QString& workingDirectory, RecoveredTags& left) const {
    // The hash only makes a file name of the path; the directory in the file is compared below.
    const QByteArray hash =
        QCryptographicHash::hash(workingDirectory.toUtf8(), QCryptographicHash::Sha1).toHex();
    for (int number = 0;; ++number) {
        const QString path =
            QDir(_directory).filePath(u"%1_%2.json"_s.arg(QLatin1StringView(hash)).arg(number));
        if (!QFileInfo::exists(path))
            return path;
        std::optional<RecoveredTags> found = readRecovery(path);
        if (found && found->directory == workingDirectory) {
            left = std::move(*found);
            return path;
        }
        qWarning() << "Error, unable to read unsaved tags from:" << path;
    }
}

void TagRecovery::open(const QString& workingDirectory) {
    close();
    dropOldFiles();
    _workingDirectory = workingDirectory;
    _path = freePath(workingDirectory, _offer);
    // Tags that equal those of the sidecars need no recovery.
    _offer.files.removeIf([this](const auto& file) {
        return _record.contains(file.key()) && _record.tags(file.key()) == file.value().tags;
    });
    emit offerChanged();
}

void TagRecovery::close() {
    if (_delay.isActive())
        write();
    // The file is whole before it can be read again, for this directory or at the next start.
    _writer.waitForDone();
    _path.clear();
    _offer = {};
}

void TagRecovery::onRecordChanged() {
    if (_path.isEmpty())
        return;
    if (_record.unsavedCount() == 0) {
        // Written without delay, so that after a crash no tags are offered that were just saved.
        write();
        return;
    }
    const QDateTime now = QDateTime::currentDateTimeUtc();
    // A first change starts the delay; further ones extend it up to the limit.
    if (!_delay.isActive())
        _pendingSince = now;
    else if (_pendingSince.msecsTo(now) > longestDelayMs)
        return;
    _delay.start(writeDelayMs);
}

void TagRecovery::write() {
    _delay.stop();
    // Offered tags stay in the file beside those that are unsaved now.
    RecoveredTags recovered = _offer;
    recovered.directory = _workingDirectory;
    if (!recovered.time.isValid())
        recovered.time = QDateTime::currentDateTimeUtc();
    const QStringList keys = _record.unsavedKeys();
    for (const QString& key : keys)
        recovered.files.insert(key, {_record.tags(key)});
    _writer.start([path = _path, recovered, keys] { writeRecovery(path, recovered, keys); });
}

qsizetype TagRecovery::offeredCount() const {
    const QList<QString> keys = _offer.files.keys();
    return std::ranges::count_if(keys, [this](const QString& key) { return _record.contains(key); });
}

TagRecovery::Restored TagRecovery::restore() {
    Restored restored;
    TagRecord::Tags tags;
    // What cannot be restored now stays offered for a scan that includes it.
    RecoveredTags kept{_offer.directory, _offer.time, {}};
    for (const auto& [key, file] : std::as_const(_offer.files).asKeyValueRange()) {
        if (_record.contains(key)) {
            tags.insert(key, file.tags);
            restored.changedSidecars += isSidecarChanged(key, file) ? 1 : 0;
        } else if (QFileInfo::exists(key)) {
            // Of a sub-directory that was not scanned this time.
            kept.files.insert(key, file);
        }
    }
    _offer = kept;
    restored.files = _record.restore(tags);
    // Without a change of the record no signal starts this write.
    write();
    emit offerChanged();
    return restored;
}

void TagRecovery::discard() {
    _offer = {};
    write();
    emit offerChanged();
}

void TagRecovery::dropOldFiles() const {
    const QFileInfoList files = QDir(_directory).entryInfoList({u"*.json"_s}, QDir::Files, QDir::Time);
    const QDateTime oldest = QDateTime::currentDateTimeUtc().addDays(-keptDays);
    for (qsizetype index = 0; index < files.size(); ++index) {
        const QFileInfo& file = files.at(index);
        const bool isOld = index >= keptFiles || file.lastModified(QTimeZone::UTC) < oldest;
        // Only what is recognised as a recovery is removed.
        if (isOld && readRecovery(file.filePath()))
            QFile::remove(file.filePath());
    }
}

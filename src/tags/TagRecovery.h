#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>

#include <optional>

class TagRecord;

// The unsaved tags of one file, with the state of its sidecar when they were recorded.
struct RecoveredFile {
    QStringList tags;
    qint64 sidecarSize = -1; // bytes; -1 without a sidecar
    qint64 sidecarTime = 0;  // milliseconds since 1970, UTC

    bool operator==(const RecoveredFile&) const = default;
};

// What was unsaved in a directory at some moment.
struct RecoveredTags {
    QString directory;
    QDateTime time;
    QHash<QString, RecoveredFile> files; // by file key

    bool operator==(const RecoveredTags&) const = default;
};

// One JSON document. Nothing for any other text.
[[nodiscard]] QByteArray recoveryText(const RecoveredTags& recovered);
[[nodiscard]] std::optional<RecoveredTags> recoveryFromText(const QByteArray& text);

// Keeps the unsaved tags of the directory that is open in a file of their own, outside of that directory,
// from two seconds after the last change until they are saved. What an earlier run left is offered and stays
// on the disk until it is restored or discarded. GUI thread only; a thread of its own writes.
class TagRecovery : public QObject {
    Q_OBJECT

public:
    // The record outlives every call.
    TagRecovery(TagRecord& record, const QString& recoveryDirectory, QObject* parent = nullptr);
    ~TagRecovery() override;

    // Offers the unsaved tags that an earlier run left of a directory whose files are in the record.
    void open(const QString& workingDirectory);
    // Writes what is unsaved and stops following the record.
    void close();

    // How many files of the record can be restored, and from when.
    [[nodiscard]] qsizetype offeredCount() const;
    [[nodiscard]] QDateTime offeredTime() const { return _offer.time; }

    struct Restored {
        qsizetype files = 0;           // that were changed
        qsizetype changedSidecars = 0; // of the offered files, since their tags were recorded
    };
    // One step of undo. Files that are not in the record are skipped; those that still exist stay recorded.
    Restored restore();
    void discard();

signals:
    void offerChanged();

private:
    void onRecordChanged();
    void write();
    void dropOldFiles() const;
    [[nodiscard]] QString freePath(const QString& workingDirectory, RecoveredTags& left) const;

    TagRecord& _record;
    QString _directory;
    QString _workingDirectory;
    QString _path; // empty while nothing is open
    RecoveredTags _offer;
    QTimer _delay;
    QDateTime _pendingSince;
    QThreadPool _writer; // one thread, so that writes keep their order
};

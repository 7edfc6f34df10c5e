#include "tags/SidecarFile.h"

#include "catalogue/FileNaming.h"

#include <QDebug>
#include <QFile>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace {

std::filesystem::file_type typeOf(const QFile& file) {
    std::error_code ignored;
    // A single system call, where QFileInfo needs several: the scan reads thousands of sidecars.
    return std::filesystem::status(file.filesystemFileName(), ignored).type();
}

} // namespace

SidecarRead readSidecarFile(const QString& txtFileName) {
    SidecarRead read;
    QFile file(txtFileName);
    // Opening a named pipe would block until a process writes to it, and some devices never end.
    if (const auto type = typeOf(file);
        type == std::filesystem::file_type::fifo || type == std::filesystem::file_type::character) {
        read.error = qt_error_string(ENXIO);
        return read;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        // A media file without a sidecar is no error.
        if (file.exists())
            read.error = file.errorString();
        return read;
    }
    const QByteArray bytes = file.readAll();
    read.isValid = QUtf8StringView(bytes).isValidUtf8();
    read.text = QString::fromUtf8(bytes);
    if (file.error() != QFileDevice::NoError)
        read.error = file.errorString();
    return read;
}

void logSidecarRead(const QString& txtFileName, const SidecarRead& read) {
    if (!read.error.isEmpty())
        qDebug() << "Error:" << read.error << "unable to open file:" << txtFileName;
    // The next save replaces the bytes that cannot be decoded, so the loss is logged.
    if (!read.isValid)
        qWarning() << "Warning, sidecar is not valid UTF-8:" << txtFileName;
}

std::optional<QString> sidecarText(const QString& txtFileName) {
    SidecarRead read = readSidecarFile(txtFileName);
    logSidecarRead(txtFileName, read);
    return std::move(read.text);
}

SidecarWrite writeSidecar(const QString& txtFileName, const QString& text, bool makesBackup) {
    SidecarWrite result;
    QString backupName;
    if (makesBackup && QFile::exists(txtFileName)) {
        backupName = txtFilePathBackupFilePath(txtFileName);
        if (backupName.isEmpty()) {
            result.outcome = SidecarWrite::NoBackupName;
            return result;
        }
        QFile sidecar(txtFileName);
        // The tags are written all the same, over the text that could not be renamed.
        if (!sidecar.rename(backupName))
            result.backupError = sidecar.errorString();
    }
    QFile file(txtFileName);
    // Opening a named pipe would block until a process reads from it.
    const bool isPipe = typeOf(file) == std::filesystem::file_type::fifo;
    // Unbuffered, so that write() itself reports what a full disk refuses.
    if (isPipe || !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        result.outcome = SidecarWrite::NotOpened;
        result.error = isPipe ? qt_error_string(ENXIO) : file.errorString();
        // The old text returns to its name. Where that fails as well, only the backup has it.
        if (!backupName.isEmpty() && result.backupError.isEmpty() && !QFile::rename(backupName, txtFileName))
            result.left = QString();
        return result;
    }
    const QByteArray bytes = text.toUtf8();
    result.written = file.write(bytes);
    if (result.written == -1 || file.error() != QFileDevice::NoError)
        result.outcome = SidecarWrite::NotWritten;
    else if (result.written < bytes.size()) // a full disk accepts the first part without an error
        result.outcome = SidecarWrite::CutShort;
    if (result.outcome != SidecarWrite::Written) {
        result.error = file.errorString();
        result.left = QString::fromUtf8(bytes.first(qMax(qint64{0}, result.written)));
    }
    return result;
}

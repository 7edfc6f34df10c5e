#include "batch/WholeFile.h"

#include "batch/Console.h"
#include "catalogue/FileNaming.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostOpenings = 100;
constexpr mode_t newFileMode = 0666;
constexpr mode_t permissionBits = 07777;

QString systemError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

// The hidden file under which the bytes arrive. It is removed unless it was kept.
class PartFile {
public:
    explicit PartFile(const QByteArray& path) : _path(path) { open(); }
    ~PartFile() {
        if (_handle < 0)
            return;
        if (!_isKept)
            ::unlink(_path.constData());
        ::close(_handle);
    }
    Q_DISABLE_COPY_MOVE(PartFile)

    [[nodiscard]] const QString& error() const { return _error; }

    void write(const QByteArray& bytes, const QByteArray& replaced) {
        if (!_error.isEmpty())
            return;
        struct stat old{};
        // A run that was killed may have left bytes.
        bool isWhole = ::ftruncate(_handle, 0) == 0;
        for (qsizetype written = 0; isWhole && written < bytes.size();) {
            const ssize_t count = ::write(_handle, bytes.constData() + written,
                                          static_cast<std::size_t>(bytes.size() - written));
            // A disk that becomes full takes a part; the next call gives the reason.
            isWhole = count > 0 || (count < 0 && errno == EINTR);
            written += count > 0 ? count : 0;
        }
        // A new file keeps the mode that the umask of the user gives it.
        if (isWhole && ::stat(replaced.constData(), &old) == 0)
            isWhole = ::fchmod(_handle, old.st_mode & permissionBits) == 0;
        // On the disk before the rename: a power cut must not leave an empty file under the name.
        if (!isWhole || ::fdatasync(_handle) != 0)
            _error = systemError();
    }

    void renameTo(const QByteArray& target, Existing existing) {
        if (!_error.isEmpty())
            return;
        if (existing == Existing::Keep) {
            // Unlike a plain rename this fails where something has appeared in the meantime.
            _isKept =
                ::renameat2(AT_FDCWD, _path.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0;
            // Some network file systems lack that call; the hidden name is then removed as a second one.
            if (_isKept || (errno == EINVAL && ::link(_path.constData(), target.constData()) == 0))
                return;
            // Without links either, as on FAT, only this check is left before the plain rename.
            if (errno == EEXIST || ::access(target.constData(), F_OK) == 0) {
                _error = QString::fromLocal8Bit(std::strerror(EEXIST));
                return;
            }
        }
        _isKept = std::rename(_path.constData(), target.constData()) == 0;
        if (!_isKept)
            _error = systemError();
    }

private:
    void open() {
        for (int i = 0; i < mostOpenings; ++i) {
            // The hidden name can be guessed, so a link under it is not followed.
            const int handle =
                ::open(_path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, newFileMode);
            if (handle < 0) {
                _error = systemError();
                return;
            }
            // Any other failure means a file system without locks, where nothing keeps two runs apart.
            if (::flock(handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
                _error = Batch::tr("another run is writing it");
                ::close(handle);
                return;
            }
            // Between opening and locking another run may have renamed the file to its place.
            struct stat opened{};
            struct stat named{};
            const bool isNamed = ::fstat(handle, &opened) == 0 && ::stat(_path.constData(), &named) == 0 &&
                                 opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
            if (isNamed && opened.st_nlink == 1) {
                _handle = handle;
                return;
            }
            // A run killed after link() has left a second name of a result, which writing would change.
            if (isNamed)
                ::unlink(_path.constData());
            ::close(handle);
        }
        _error = Batch::tr("another run is writing it");
    }

    QByteArray _path;
    QString _error;
    int _handle = -1;
    bool _isKept = false;
};

QByteArray partPath(const QString& filePath) {
    const QFileInfo info(filePath);
    // The name itself with a suffix might be too long for the file system.
    const QByteArray hash = QCryptographicHash::hash(info.fileName().toUtf8(), QCryptographicHash::Sha256);
    return QFile::encodeName(info.path() + "/."_L1 + QString::fromLatin1(hash.toHex().first(16)) +
                             ".tessarine-part"_L1);
}

// A second name for the file: replacing the first name leaves it alone.
QString makeBackup(const QString& filePath, const QString& backupPath) {
    // A second name of a link would lead to the new text. Without hard links the file is copied.
    if (!QFileInfo(filePath).isSymLink() &&
        ::link(QFile::encodeName(filePath).constData(), QFile::encodeName(backupPath).constData()) == 0)
        return {};
    QFile file(filePath);
    return file.copy(backupPath) ? QString() : file.errorString();
}

} // namespace

QString writeWholeFile(const QString& filePath, const QByteArray& bytes, Existing existing) {
    const QFileInfo info(filePath);
    // The end of a chain of links, or where a link to nothing points to.
    const QString linked = info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
    const QString path = info.isSymLink() ? linked : filePath;
    const QByteArray target = QFile::encodeName(path);
    PartFile part(partPath(path));
    part.write(bytes, target);
    part.renameTo(target, existing);
    return part.error();
}

QString writeWholeSidecar(const QString& txtFileName, const QString& text, bool makesBackup) {
    QString backup;
    if (makesBackup && QFile::exists(txtFileName)) {
        backup = txtFilePathBackupFilePath(txtFileName);
        const QString error =
            backup.isEmpty() ? Batch::tr("no backup name is left") : makeBackup(txtFileName, backup);
        if (!error.isEmpty())
            return Batch::tr("no backup was made: %1").arg(error);
    }
    const QString error = writeWholeFile(txtFileName, text.toUtf8(), Existing::Replace);
    // The old text is still in its place.
    if (!error.isEmpty() && !backup.isEmpty())
        QFile::remove(backup);
    return error;
}

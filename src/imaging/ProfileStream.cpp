#include "imaging/ProfileStream.h"

#include "imaging/EffectList.h"

#include <QIODevice>
#include <QMetaType>
#include <QtEndian>

namespace {

constexpr quint32 nullLength = 0xffffffff;
constexpr quint32 extendedLength = 0xfffffffe;

// No profile nests lists this deep; a hostile file may, to exhaust the stack.
constexpr int maximumDepth = 32;

// The encoded size of a value of a type whose values all have the same; -1 for other types.
int fixedEncodedSize(quint32 type) {
    switch (type) {
    case QMetaType::UnknownType:
        return 0;
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return 1;
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::QChar:
        return 2;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::QTime:
        return 4;
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float: // written as a double
    case QMetaType::QDate:
    case QMetaType::QSize:
    case QMetaType::QPoint:
        return 8;
    case QMetaType::QRect:
    case QMetaType::QSizeF:
    case QMetaType::QPointF:
        return 16;
    case QMetaType::QRectF:
        return 32;
    default:
        return -1;
    }
}

// Walks over encoded values without decoding them. After the first failure every step does nothing.
class ProfileStreamWalker {
public:
    explicit ProfileStreamWalker(const QByteArray& bytes) : _bytes(bytes) {}

    [[nodiscard]] qsizetype position() const { return _position; }
    [[nodiscard]] QDataStream::Status status() const { return _status; }
    [[nodiscard]] bool isOk() const { return _status == QDataStream::Ok; }

    // 0 if too few bytes are left.
    template <typename Number>
    Number number() {
        if (!take(sizeof(Number)))
            return 0;
        return qFromBigEndian<Number>(_bytes.constData() + _position - sizeof(Number));
    }

    // A count of elements, which must not be null or negative.
    qint64 count() {
        const qint64 size = length();
        if (size < 0)
            fail(QDataStream::SizeLimitExceeded);
        return isOk() ? size : 0;
    }

    void skipProfile() {
        skipString();
        skipOptions(0);
    }

    // Reading continues after a failure, as with QDataStream.
    void clearStatus() { _status = QDataStream::Ok; }

private:
    void fail(QDataStream::Status status) {
        if (isOk())
            _status = status;
    }

    bool take(qint64 size) {
        // Compared with a difference, as a sum with a hostile size could overflow.
        if (isOk() && size > _bytes.size() - _position)
            fail(QDataStream::ReadPastEnd);
        if (!isOk())
            return false;
        _position += size;
        return true;
    }

    // -1 for null.
    qint64 length() {
        const auto size = number<quint32>();
        if (size == nullLength)
            return -1;
        return size == extendedLength ? number<qint64>() : size;
    }

    qint64 skipBytes() {
        const qint64 size = length();
        if (size < -1)
            fail(QDataStream::SizeLimitExceeded);
        else if (size > 0)
            take(size);
        return size;
    }

    void skipString() {
        // UTF-16, two bytes a character; null has the length -1, which is odd but leaves the remainder -1.
        if (skipBytes() % 2 == 1)
            fail(QDataStream::ReadCorruptData);
    }

    // Every element consumes bytes, so the loop ends with them, however large the count is.
    template <typename Element>
    void skipElements(const Element& skipElement) {
        for (qint64 left = count(); left > 0 && isOk(); --left)
            skipElement();
    }

    void skipOptions(int depth) {
        skipElements([this, depth] {
            skipString();
            skipVariant(depth);
        });
    }

    void skipVariant(int depth) {
        const auto type = number<quint32>();
        number<qint8>(); // whether the value is null
        if (type == QMetaType::User)
            skipEffectList(depth + 1);
        else
            skipBuiltIn(type, depth + 1);
    }

    void skipBuiltIn(quint32 type, int depth) {
        if (depth > maximumDepth) {
            fail(QDataStream::ReadCorruptData);
            return;
        }
        switch (type) {
        case QMetaType::QString:
            return skipString();
        case QMetaType::QByteArray:
            return static_cast<void>(skipBytes());
        case QMetaType::QStringList:
            return skipElements([this] { skipString(); });
        case QMetaType::QVariantList:
            return skipElements([this, depth] { skipVariant(depth); });
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return skipOptions(depth);
        default:
            if (const int size = fixedEncodedSize(type); size >= 0)
                take(size);
            else
                fail(QDataStream::ReadCorruptData);
        }
    }

    // The only type of our own that a profile holds, under any name it is registered by.
    void skipEffectList(int depth) {
        const qint64 size = skipBytes();
        if (!isOk())
            return;
        // Null and empty names have no bytes.
        const QByteArray name(_bytes.constData() + _position - qMax(size, 0), qMax(size, 0));
        if (depth > maximumDepth ||
            QMetaType::fromName(name.constData()) != QMetaType::fromType<EffectList>()) {
            fail(QDataStream::ReadCorruptData);
            return;
        }
        skipElements([this, depth] {
            skipString();
            skipOptions(depth);
        });
    }

    const QByteArray& _bytes;
    qsizetype _position = 0;
    QDataStream::Status _status = QDataStream::Ok;
};

// Decodes bytes whose structure the walker has checked.
QDataStream::Status decodeProfile(const QByteArray& bytes, Profile* profile) {
    QDataStream stream(bytes);
    stream >> *profile;
    // The walker has measured more than Qt has read, so the two disagree about the structure.
    if (stream.status() == QDataStream::Ok && !stream.atEnd())
        return QDataStream::ReadCorruptData;
    return stream.status();
}

} // namespace

ProfileStreamContents readProfileStream(const QByteArray& bytes) {
    ProfileStreamContents contents;
    ProfileStreamWalker walker(bytes);
    for (qint64 left = walker.count(); left > 0 && contents.status == QDataStream::Ok; --left) {
        const qsizetype begin = walker.position();
        walker.skipProfile();
        Profile profile;
        contents.status = walker.status();
        if (contents.status == QDataStream::Ok)
            contents.status = decodeProfile(
                QByteArray::fromRawData(bytes.constData() + begin, walker.position() - begin), &profile);
        contents.profiles.append(profile);
    }
    if (contents.status != QDataStream::Ok)
        contents.profiles.clear();
    else
        contents.status = walker.status();
    // The index is read even after a failure.
    walker.clearStatus();
    contents.current = walker.number<qint32>();
    if (contents.status == QDataStream::Ok)
        contents.status = walker.status();
    return contents;
}

QByteArray writeProfileStream(const QList<Profile>& profiles, qint32 current, QDataStream::Status* status) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    // No version is set, neither here nor for reading: both use that of the Qt in use.
    stream << profiles << current;
    if (status)
        *status = stream.status();
    return bytes;
}

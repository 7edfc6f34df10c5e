#include "imaging/EffectList.h"
#include "imaging/ProfileStream.h"
#include "support/Rows.h"

#include <QBitArray>
#include <QDate>
#include <QLoggingCategory>
#include <QRectF>

namespace {

EffectList chain() {
    return {{"Blur", {{"bypassed", false}, {"sliderType", 0}, {"value", 7}}},
            {"Nonsense", {}},
            {"Contrast", {{"bypassed", true}, {"sliderType", 1}, {"valueD", 1.3}}}};
}

Profile profile(const QString& name, const QHash<QString, QVariant>& options = {}) {
    Profile made;
    made.setName(name);
    made.setAllowedOptionsKeys(options.keys());
    for (auto option = options.cbegin(); option != options.cend(); ++option)
        made.setOption(option.key(), option.value());
    return made;
}

QByteArray storedChains() {
    return writeProfileStream({profile("Portraits", {{"effectList", effectListToVariant(chain())}}),
                               profile({}), profile("Größe", {{"effectList", effectListToVariant({})}})},
                              1);
}

// A stream of one profile with one option of this value.
QByteArray valueStream(const QByteArray& hex) {
    return "00000001 ffffffff 00000001 00000000" + hex + "00000000";
}

} // namespace

class TestProfileStream : public QObject {
    Q_OBJECT

private slots:
    void effectListNeedsItsTypeRegistered() {
        const char* const name = "QList<std::pair<QString,QHash<QString,QVariant>>>";
        // By hand: to store such a value through a variant would register its type.
        QByteArray before;
        QDataStream stream(&before, QIODevice::WriteOnly);
        stream << quint32(1) << QString() << quint32(1) << QString() << quint32(65536) << quint8(0) << name
               << quint32(0) << qint32(0);
        QCOMPARE(readProfileStream(before).status, QDataStream::ReadCorruptData);
        registerEffectListType();
        QCOMPARE(readProfileStream(before).status, QDataStream::Ok);
        QCOMPARE(QMetaType::fromName("QList<std::pair<QString,QVariantHash>>"),
                 QMetaType::fromType<EffectList>());
        const QByteArray bytes = storedChains();
        QVERIFY(bytes.contains(name));
        const ProfileStreamContents contents = readProfileStream(bytes);
        QCOMPARE(contents.status, QDataStream::Ok);
        QCOMPARE(contents.current, 1);
        QCOMPARE(contents.profiles.size(), 3);
        QCOMPARE(effectListFromVariant(contents.profiles[0].option("effectList")), chain());
        QVERIFY(contents.profiles[1].name().isNull());
        QCOMPARE(contents.profiles[2].name(), QString("Größe"));
        QCOMPARE(writeProfileStream(contents.profiles, contents.current), bytes);
        QCOMPARE(effectListFromVariant(QVariantList{1, 2}), EffectList());
    }

    void valuesRoundTrip() {
        QVariantList values{QVariant(), 0.1, QString("text"), QByteArray("bytes"), QStringList{"a", {}, "b"}};
        values << QVariantList{1, "two", QVariantList{3.0}}
               << QVariantMap{{"a", 1}, {"b", QVariantMap{{"c", QString()}}}}
               << QVariantHash{{"a", QByteArray()}} << QSize(3, -4) << QSizeF(3.5, 4) << QPoint(3, -4)
               << QPointF(3.5, 4) << QRect(1, 2, 3, 4) << QRectF(1, 2, 3, 4) << QDate(2024, 2, 29)
               << QTime(23, 59, 1) << effectListToVariant(chain());
        using Type = QMetaType;
        for (const auto type : {Type::Bool, Type::Char, Type::SChar, Type::UChar, Type::Short, Type::UShort,
                                Type::Int, Type::UInt, Type::Long, Type::ULong, Type::LongLong,
                                Type::ULongLong, Type::Float, Type::QChar}) {
            QVariant number(-42);
            QVERIFY(number.convert(QMetaType(type)));
            values.append(number);
        }
        for (const QVariant& value : values) {
            const QList<Profile> stored{profile("p", {{"key", value}}), profile("q", {{"last", 1}})};
            const ProfileStreamContents contents = readProfileStream(writeProfileStream(stored, 0));
            QCOMPARE(contents.status, QDataStream::Ok);
            QCOMPARE(contents.profiles.size(), 2);
            QCOMPARE(contents.profiles[0].option("key"), value);
            QCOMPARE(contents.profiles[0].option("key").metaType(), value.metaType());
            QVERIFY(contents.profiles[1].hasSameContent(stored[1]));
        }
        const QByteArray odd = writeProfileStream({profile("p", {{"key", QBitArray(9)}})}, 0);
        QCOMPARE(readProfileStream(odd).status, QDataStream::ReadCorruptData);
    }

    void streamIsLaidOutAsQtWritesIt() {
        QByteArray expected;
        QDataStream stream(&expected, QIODevice::WriteOnly);
        stream << quint32(2) << QString("A") << quint32(1) << QString("k") << QVariant(5) << QString()
               << quint32(0) << qint32(-7);
        QCOMPARE(writeProfileStream({profile("A", {{"k", 5}}), profile({})}, -7), expected);
        const ProfileStreamContents contents = readProfileStream(expected + "trailing bytes");
        QCOMPARE(contents.status, QDataStream::Ok);
        QCOMPARE(contents.current, -7);
        QCOMPARE(contents.profiles.size(), 2);
    }

    void everyCutGivesAnEmptyOrWholeList() {
        const QByteArray bytes = storedChains();
        for (qsizetype size = 0; size < bytes.size(); ++size) {
            const ProfileStreamContents contents = readProfileStream(bytes.first(size));
            QCOMPARE(contents.status, QDataStream::ReadPastEnd);
            QCOMPARE(contents.profiles.size(), size >= bytes.size() - 4 ? 3 : 0);
            if (!contents.profiles.isEmpty())
                QCOMPARE(contents.current, 0);
        }
    }

    void everyChangedByteIsSurvived() {
        QLoggingCategory::setFilterRules("default.warning=false");
        const QByteArray bytes = storedChains();
        qsizetype whole = 0;
        for (qsizetype at = 0; at < bytes.size(); ++at) {
            for (const char value : {'\x00', '\x01', '\x7f', '\x80', '\xfe', '\xff'}) {
                QByteArray changed = bytes;
                changed[at] = value;
                const ProfileStreamContents contents = readProfileStream(changed);
                QVERIFY(contents.status == QDataStream::Ok || contents.profiles.isEmpty());
                whole += contents.status == QDataStream::Ok;
            }
        }
        // Letters of names and numbers may change; counts, lengths and types may not.
        QVERIFY(whole > bytes.size());
        QLoggingCategory::setFilterRules({});
    }

    void badBytesGiveTheirStatus_data() {
        using enum QDataStream::Status;
        const QByteArray effects =
            "00010000 00 00000032" + QByteArray(QMetaType::fromType<EffectList>().name()).toHex() + "00";
        const QByteArray list = "00000009 00 00000001 ";
        const QByteArray number = "00000002 00 00000007";
        addRows<QByteArray, QDataStream::Status>({
            {"no profiles", "00000000 00000000", Ok},
            {"a null count", "ffffffff 00000000", SizeLimitExceeded},
            {"a negative count", "fffffffe ffffffffffffff00 00000000", SizeLimitExceeded},
            {"the largest count", "fffffffe 7fffffffffffffff 00000000", ReadPastEnd},
            {"a huge name", "00000001 fffffff0 00000000", ReadPastEnd},
            {"the largest name", "00000001 fffffffe 7ffffffffffffffe 00000000", ReadPastEnd},
            {"an odd name", "00000001 00000001 41 00000000 00000000", ReadCorruptData},
            {"a huge option count", "00000001 ffffffff fffffffd 00000000", ReadPastEnd},
            {"a negative option count", "00000001 ffffffff ffffffff 00000000", SizeLimitExceeded},
            {"an unknown type", valueStream("00123456 00"), ReadCorruptData},
            {"a pointer", valueStream("00000027 00 0000000000000000"), ReadCorruptData},
            {"a user type by number", valueStream("00010001 00 00000000"), ReadCorruptData},
            {"a user type without a name", valueStream("00010000 00 ffffffff"), ReadCorruptData},
            {"an unknown user type", valueStream("00010000 00 00000003 466f6f"), ReadCorruptData},
            {"a known type as a user type", valueStream("00010000 00 00000004 696e7400 00000001"),
             ReadCorruptData},
            {"a huge text list", valueStream("0000000b 00 7fffffff"), ReadPastEnd},
            {"a huge list", valueStream("00000009 00 7fffffff"), ReadPastEnd},
            {"a huge map", valueStream("00000008 00 7fffffff"), ReadPastEnd},
            {"lists within lists without end", valueStream(list.repeated(100000)), ReadCorruptData},
            {"a value as deep as may be", valueStream(list.repeated(31) + number), Ok},
            {"a value too deep", valueStream(list.repeated(32) + number), ReadCorruptData},
            {"effects as deep as may be", valueStream(list.repeated(31) + effects + "00000000"), Ok},
            {"effects too deep", valueStream(list.repeated(32) + effects + "00000000"), ReadCorruptData},
            {"a huge effect list", valueStream(effects + "7fffffff"), ReadPastEnd},
            {"huge effect options", valueStream(effects + "00000001 ffffffff 7fffffff"), ReadPastEnd},
        });
    }
    void badBytesGiveTheirStatus() {
        const auto& [hex, status] = row<QByteArray, QDataStream::Status>();
        const ProfileStreamContents contents = readProfileStream(QByteArray::fromHex(hex));
        QCOMPARE(contents.status, status);
        QVERIFY(contents.profiles.size() <= 1);
    }

    void unusedNamesAreExact() {
        QList<Profile> profiles{profile("default"), profile("Default_1")};
        QCOMPARE(unusedProfileName("Default", profiles), QString("Default"));
        profiles.append(profile("Default"));
        QCOMPARE(unusedProfileName("Default", profiles), QString("Default_1_1"));
    }
};

QTEST_GUILESS_MAIN(TestProfileStream)
#include "tst_profilestream.moc"

#include "imaging/EffectList.h"
#include "imaging/ProfileStream.h"

#include <QBitArray>
#include <QDate>
#include <QLoggingCategory>
#include <QRectF>
#include <QtTest>

class TestProfileStream : public QObject {
    Q_OBJECT

private slots:
    void effectListNeedsItsTypeRegistered();
    void valuesRoundTrip_data();
    void valuesRoundTrip();
    void streamIsLaidOutAsQtWritesIt();
    void everyCutGivesAnEmptyOrWholeList();
    void everyChangedByteIsSurvived();
    void badBytesGiveTheirStatus_data();
    void badBytesGiveTheirStatus();
    void effectListsFromVariants();
    void unusedNamesAreExact();
};

static EffectList chain() {
    return {{"Blur", {{"bypassed", false}, {"sliderType", 0}, {"value", 7}}},
            {"Nonsense", {}},
            {"Contrast", {{"bypassed", true}, {"sliderType", 1}, {"valueD", 1.3}}}};
}

static Profile profile(const QString& name, const QHash<QString, QVariant>& options) {
    Profile made;
    made.setName(name);
    made.setAllowedOptionsKeys(options.keys());
    for (auto option = options.cbegin(); option != options.cend(); ++option)
        made.setOption(option.key(), option.value());
    return made;
}

static QByteArray storedChains() {
    return writeProfileStream({profile("Portraits", {{"effectList", effectListToVariant(chain())}}),
                               profile({}, {}), profile("Größe", {{"effectList", effectListToVariant({})}})},
                              1);
}

void TestProfileStream::effectListNeedsItsTypeRegistered() {
    const char* const name = "QList<std::pair<QString,QHash<QString,QVariant>>>";
    // By hand: to store such a value through a variant would register its type.
    QByteArray before;
    QDataStream stream(&before, QIODevice::WriteOnly);
    stream << quint32(1) << QString() << quint32(1) << QString() << quint32(65536) << quint8(0) << name
           << quint32(0) << qint32(0);
    QCOMPARE(readProfileStream(before).status, QDataStream::ReadCorruptData);
    registerEffectListType();
    QCOMPARE(readProfileStream(before).status, QDataStream::Ok);
    const QByteArray bytes = storedChains();
    QVERIFY(bytes.contains(name));
    QCOMPARE(QMetaType::fromName(name), QMetaType::fromType<EffectList>());
    QCOMPARE(
        QMetaType::fromName(QMetaObject::normalizedType("QList<QPair<QString, QHash<QString,QVariant>>>")),
        QMetaType::fromType<EffectList>());
    const ProfileStreamContents contents = readProfileStream(bytes);
    QCOMPARE(contents.status, QDataStream::Ok);
    QCOMPARE(contents.current, 1);
    QCOMPARE(contents.profiles.size(), 3);
    QCOMPARE(effectListFromVariant(contents.profiles[0].option("effectList")), chain());
    QVERIFY(contents.profiles[1].name().isNull());
    QCOMPARE(contents.profiles[2].name(), QString("Größe"));
    QCOMPARE(writeProfileStream(contents.profiles, contents.current), bytes);
}

void TestProfileStream::valuesRoundTrip_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("readable");
    const auto add = [](const QVariant& value, bool readable = true) {
        QTest::newRow(value.isValid() ? value.typeName() : "invalid") << value << readable;
    };
    add({});
    add(true);
    add(QVariant::fromValue('c'));
    add(QVariant::fromValue<signed char>(-3));
    add(QVariant::fromValue<uchar>(200));
    add(QVariant::fromValue<short>(-300));
    add(QVariant::fromValue<ushort>(60000));
    add(QChar('c'));
    add(-42);
    add(42U);
    add(QVariant::fromValue(-42L));
    add(QVariant::fromValue(42UL));
    add(Q_INT64_C(-1) << 40);
    add(Q_UINT64_C(1) << 63);
    add(0.1);
    add(0.5F);
    add(QString("text"));
    add(QByteArray("bytes"));
    add(QStringList{"a", {}, "b"});
    add(QVariantList{1, "two", QVariantList{3.0}});
    add(QVariantMap{{"a", 1}, {"b", QVariantMap{{"c", QString()}}}});
    add(QVariantHash{{"a", QByteArray()}});
    add(QSize(3, -4));
    add(QSizeF(3.5, 4));
    add(QPoint(3, -4));
    add(QPointF(3.5, 4));
    add(QRect(1, 2, 3, 4));
    add(QRectF(1, 2, 3, 4));
    add(QDate(2024, 2, 29));
    add(QTime(23, 59, 1));
    add(effectListToVariant(chain()));
    add(QBitArray(9), false);
}

void TestProfileStream::valuesRoundTrip() {
    QFETCH(QVariant, value);
    QFETCH(bool, readable);
    const QList<Profile> stored{profile("p", {{"key", value}}), profile("q", {{"last", 1}})};
    const ProfileStreamContents contents = readProfileStream(writeProfileStream(stored, 0));
    QCOMPARE(contents.status, readable ? QDataStream::Ok : QDataStream::ReadCorruptData);
    QCOMPARE(contents.profiles.size(), readable ? 2 : 0);
    if (readable) {
        QCOMPARE(contents.profiles[0].option("key"), value);
        QCOMPARE(contents.profiles[0].option("key").metaType(), value.metaType());
        QVERIFY(contents.profiles[1].hasSameContent(stored[1]));
    }
}

void TestProfileStream::streamIsLaidOutAsQtWritesIt() {
    QByteArray expected;
    QDataStream stream(&expected, QIODevice::WriteOnly);
    stream << quint32(2) << QString("A") << quint32(1) << QString("k") << QVariant(5) << QString()
           << quint32(0) << qint32(-7);
    QCOMPARE(writeProfileStream({profile("A", {{"k", 5}}), profile({}, {})}, -7), expected);
    const ProfileStreamContents contents = readProfileStream(expected + "trailing bytes");
    QCOMPARE(contents.status, QDataStream::Ok);
    QCOMPARE(contents.current, -7);
    QCOMPARE(contents.profiles.size(), 2);
}

void TestProfileStream::everyCutGivesAnEmptyOrWholeList() {
    const QByteArray bytes = storedChains();
    for (qsizetype size = 0; size < bytes.size(); ++size) {
        const ProfileStreamContents contents = readProfileStream(bytes.first(size));
        QCOMPARE(contents.status, QDataStream::ReadPastEnd);
        QCOMPARE(contents.profiles.size(), size >= bytes.size() - 4 ? 3 : 0);
        if (!contents.profiles.isEmpty())
            QCOMPARE(contents.current, 0);
    }
}

void TestProfileStream::everyChangedByteIsSurvived() {
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

void TestProfileStream::badBytesGiveTheirStatus_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QDataStream::Status>("status");
    const auto add = [](const char* name, const QByteArray& hex, QDataStream::Status status) {
        QTest::newRow(name) << QByteArray::fromHex(hex) << status;
    };
    const auto value = [add](const char* name, const QByteArray& hex, QDataStream::Status status) {
        add(name, "00000001 ffffffff 00000001 00000000" + hex + "00000000", status);
    };
    add("nothing", "", QDataStream::ReadPastEnd);
    add("no profiles", "00000000 00000000", QDataStream::Ok);
    add("a null count", "ffffffff 00000000", QDataStream::SizeLimitExceeded);
    add("a negative count", "fffffffe ffffffffffffff00 00000000", QDataStream::SizeLimitExceeded);
    add("a huge count", "fffffffd 00000000", QDataStream::ReadPastEnd);
    add("the largest count", "fffffffe 7fffffffffffffff 00000000", QDataStream::ReadPastEnd);
    add("a huge name", "00000001 fffffff0 00000000", QDataStream::ReadPastEnd);
    add("the largest name", "00000001 fffffffe 7ffffffffffffffe 00000000", QDataStream::ReadPastEnd);
    add("an odd name", "00000001 00000001 41 00000000 00000000", QDataStream::ReadCorruptData);
    add("a huge option count", "00000001 ffffffff fffffffd 00000000", QDataStream::ReadPastEnd);
    add("a negative option count", "00000001 ffffffff ffffffff 00000000", QDataStream::SizeLimitExceeded);
    value("an unknown type", "00123456 00", QDataStream::ReadCorruptData);
    value("a pointer", "00000027 00 0000000000000000", QDataStream::ReadCorruptData);
    value("a user type by number", "00010001 00 00000000", QDataStream::ReadCorruptData);
    value("a user type without a name", "00010000 00 ffffffff", QDataStream::ReadCorruptData);
    value("an unknown user type", "00010000 00 00000003 466f6f", QDataStream::ReadCorruptData);
    value("a known type as a user type", "00010000 00 00000004 696e7400 00000001",
          QDataStream::ReadCorruptData);
    value("a huge text list", "0000000b 00 7fffffff", QDataStream::ReadPastEnd);
    value("a huge list", "00000009 00 7fffffff", QDataStream::ReadPastEnd);
    value("a huge map", "00000008 00 7fffffff", QDataStream::ReadPastEnd);
    value("lists within lists without end", QByteArray("00000009 00 00000001 ").repeated(100000),
          QDataStream::ReadCorruptData);
    const QByteArray effects =
        "00010000 00 00000032" + QByteArray(QMetaType::fromType<EffectList>().name()).toHex() + "00";
    const QByteArray list = "00000009 00 00000001 ";
    value("a value as deep as may be", list.repeated(31) + "00000002 00 00000007", QDataStream::Ok);
    value("a value too deep", list.repeated(32) + "00000002 00 00000007", QDataStream::ReadCorruptData);
    value("effects as deep as may be", list.repeated(31) + effects + "00000000", QDataStream::Ok);
    value("effects too deep", list.repeated(32) + effects + "00000000", QDataStream::ReadCorruptData);
    value("a huge effect list", effects + "7fffffff", QDataStream::ReadPastEnd);
    value("huge effect options", effects + "00000001 ffffffff 7fffffff", QDataStream::ReadPastEnd);
    value("an empty effect list", effects + "00000000", QDataStream::Ok);
}

void TestProfileStream::badBytesGiveTheirStatus() {
    QFETCH(QByteArray, bytes);
    const ProfileStreamContents contents = readProfileStream(bytes);
    QTEST(contents.status, "status");
    QVERIFY(contents.profiles.size() <= 1);
}

void TestProfileStream::effectListsFromVariants() {
    QCOMPARE(effectListFromVariant(effectListToVariant(chain())), chain());
    QCOMPARE(effectListFromVariant({}), EffectList());
    QCOMPARE(effectListFromVariant(QVariantList{1, 2}), EffectList());
}

void TestProfileStream::unusedNamesAreExact() {
    QList<Profile> profiles;
    QCOMPARE(unusedProfileName("Default", profiles), QString("Default"));
    profiles = {profile("default", {}), profile("Default_1", {})};
    QCOMPARE(unusedProfileName("Default", profiles), QString("Default"));
    profiles.append(profile("Default", {}));
    QCOMPARE(unusedProfileName("Default", profiles), QString("Default_1_1"));
}

QTEST_GUILESS_MAIN(TestProfileStream)
#include "tst_profilestream.moc"

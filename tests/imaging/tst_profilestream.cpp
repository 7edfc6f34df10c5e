#include "imaging/EffectList.h"
#include "imaging/ProfileStream.h"

#include <QTest>

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

} // namespace

// The form in which profiles are stored; broken ones are left to the fuzz target.
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
};

QTEST_GUILESS_MAIN(TestProfileStream)
#include "tst_profilestream.moc"

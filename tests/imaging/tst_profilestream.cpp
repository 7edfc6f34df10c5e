#include "imaging/EffectList.h"
#include "imaging/ProfileStream.h"

#include <QTest>

// The stored form of profiles. Broken streams are covered by the fuzz target.
class TestProfileStream : public QObject {
    Q_OBJECT

private slots:
    void chainsAreLaidOutAsQtWritesThem() {
        // Bytes written out, as storing such a value through a variant would register its type.
        QByteArray stored;
        QDataStream stream(&stored, QIODevice::WriteOnly);
        stream << quint32(1) << QString("Größe") << quint32(1) << QString("effectList") << quint32(65536)
               << quint8(0) << "QList<std::pair<QString,QHash<QString,QVariant>>>" << quint32(1)
               << QString("Contrast") << QVariantHash{{"valueD", 1.3}} << qint32(-7);
        QCOMPARE(readProfileStream(stored).status, QDataStream::ReadCorruptData);
        registerEffectListType();
        const ProfileStreamContents contents = readProfileStream(stored + "trailing bytes");
        QCOMPARE(contents.status, QDataStream::Ok);
        QCOMPARE(contents.current, -7);
        QCOMPARE(contents.profiles.size(), 1);
        QCOMPARE(contents.profiles[0].name(), QString("Größe"));
        QCOMPARE(effectListFromVariant(contents.profiles[0].option("effectList")),
                 (EffectList{{"Contrast", {{"valueD", 1.3}}}}));
        QCOMPARE(writeProfileStream(contents.profiles, contents.current), stored);
    }
};

QTEST_GUILESS_MAIN(TestProfileStream)
#include "tst_profilestream.moc"

#include "app/services/Settings.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSize>
#include <QTest>

// The table of settings and the one file in which it is kept.
class TestSettings : public QObject {
    Q_OBJECT

private slots:
    void init() { removeFile(); }
    void cleanup() { removeFile(); }

    void valuesComeBackWithTheirTypes() {
        const QVariantHash values{
            {"size", QSize(3, 4)}, {"bytes", QByteArray("\0\xff", 2)}, {"flag", true},
            {"number", 7},         {"text", QString("ä \n\"")},        {"nothing", QVariant()}};
        Settings* settings = open();
        for (const auto& [key, value] : values.asKeyValueRange())
            QVERIFY(settings->setData(key, value));
        settings->setData("number", 8, false); // wins, and never reaches the disk
        QCOMPARE(settings->data("number"), QVariant(8));
        QCOMPARE(Settings::instance(nullptr, Settings::UserConfigLocation, "other.data", true), settings);
        Settings::destroyInstance();

        QCOMPARE(QSettings(filePath(), QSettings::IniFormat).allKeys(), QStringList("settingsData"));
        settings = open();
        for (const auto& [key, value] : values.asKeyValueRange())
            QCOMPARE(settings->data(key, "default"), value);
        QCOMPARE(settings->data("unknown", 5), QVariant(5));
        QCOMPARE(settings->data("unknown"), QVariant());
        Settings::destroyInstance();
    }

    void garbageIsAFirstStart() {
        QFile file(filePath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[General]\nsettingsData=\"@Variant(\\0\\0\\0\\x1c\\xff\\xff\xfe garbage");
        file.close();
        Settings* settings = open();
        QCOMPARE(settings->data("key", 9), QVariant(9));
        settings->setData("key", 10);
        Settings::destroyInstance();
        QCOMPARE(open()->data("key"), QVariant(10));
        Settings::destroyInstance();
    }

    void theUserLocationIsMade() {
        Settings* settings = Settings::instance(nullptr, Settings::UserConfigLocation, {}, false);
        QVERIFY(settings->filePath().endsWith(QCoreApplication::applicationName() + "/settings.data"));
        QVERIFY(QFileInfo(settings->filePath()).dir().exists());
        Settings::destroyInstance();
    }

private:
    static QString filePath() { return QCoreApplication::applicationDirPath() + "/settings.data"; }
    static Settings* open() { return Settings::instance(nullptr, Settings::AppDirLocation, {}, false); }
    static void removeFile() { QFile::remove(filePath()); }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"

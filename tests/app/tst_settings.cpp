#include "app/services/Settings.h"

#include <QFile>
#include <QTest>

// The table of settings and the one file in which it is kept.
class TestSettings : public QObject {
    Q_OBJECT

private slots:
    void init() { removeFile(); }
    void cleanup() { removeFile(); }

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

private:
    static QString filePath() { return QCoreApplication::applicationDirPath() + "/settings.data"; }
    static Settings* open() { return Settings::instance(nullptr, Settings::AppDirLocation, {}, false); }
    static void removeFile() { QFile::remove(filePath()); }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"

#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "imaging/ImageFilters.h"
#include "imaging/ProfilesEditWidget.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include "editor/EditImageWidget.h"

#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>

// Filter chains, profiles and batch resize as a user runs them.
class TestWindowImaging : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void aChainRunsOverTheSelection() {
        const MediaFolder folder;
        QStringList names;
        for (int number = 0; number < 6; ++number) {
            names.append(QString("p%1.png").arg(number));
            QImage image(37 + number, 29, number % 2 ? QImage::Format_RGB32 : QImage::Format_ARGB32);
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    image.setPixel(x, y, qRgba(x * 6, y * 8, x * y, 255));
            }
            folder.addImage(names.last(), image);
        }
        folder.addFile("broken.png", "no picture");
        WindowDriver driver(folder.path());
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(3);
        const QStringList filters = ImageFilters().filterNames();
        for (const QString& filter : filters)
            addEffect(driver, filter);
        slider(driver, "Blur")->setValue(4);
        slider(driver, "WhitePoint")->setValue(200);
        slider(driver, "BlackPoint")->setValue(30);
        driver.select(names + QStringList("broken.png"));
        driver.click("pBDspApply");
        QCOMPARE(driver.statusText(), QString("Filters applied to: 7 files"));
        QCOMPARE(WindowDriver::logCount("Applied filter to 6 of total: 7"), 1);
        QCOMPARE(WindowDriver::logCount("unable to create out path"), 0);

        const ImageFilters catalogue;
        auto* list = driver.widget<QListWidget>("lWDspEffects");
        for (const QString& name : std::as_const(names)) {
            QImage expected(folder.filePath(name));
            for (int row = 0; row < list->count(); ++row) {
                bool applied = false;
                expected = catalogue.applyFilter(expected, list->itemWidget(list->item(row)), &applied);
                QVERIFY(applied);
            }
            QCOMPARE(QImage(folder.filePath("processed/" + name)).convertToFormat(QImage::Format_ARGB32),
                     expected.convertToFormat(QImage::Format_ARGB32));
        }
        QVERIFY(!folder.exists("processed/broken.png"));
    }

    void previewsFollowEveryChange() {
        const MediaFolder folder;
        folder.addImage("grey.png", {20, 20}, QColor(100, 100, 100));
        folder.addImage("other.png", {20, 20}, QColor(10, 10, 10));
        WindowDriver driver(folder.path());
        QVERIFY(!folder.exists("processed"));
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(3);
        addEffect(driver, "Brightness");
        QCOMPARE(driver.statusText(), QString("Select image/s."));
        driver.select({"grey.png"});
        QCOMPARE(driver.statusText(), QString("Filters applied to: 1 files"));
        QVERIFY(folder.exists("processed"));
        QCOMPARE(shownGrey(driver), 110);
        slider(driver, "Brightness")->findChild<QSlider*>()->setValue(50);
        QCOMPARE(shownGrey(driver), 150);
        row(driver, "Brightness")->findChild<QAbstractButton*>("cBEnabled")->click();
        QCOMPARE(shownGrey(driver), 100);
        addEffect(driver, "WhitePoint");
        slider(driver, "WhitePoint")->findChild<QSlider*>()->setValue(90);
        QCOMPARE(shownGrey(driver), 255);
        // Switched on again below the white point, the brightness goes first.
        chooseEffectEntry(driver, "&Toggle bypass");
        QCOMPARE(shownGrey(driver), 150);
        row(driver, "WhitePoint")->findChild<QToolButton*>("tBMoveUp")->click();
        QCOMPARE(driver.widget<QListWidget>("lWDspEffects")->item(0)->data(Qt::UserRole + 1).toString(),
                 QString("WhitePoint"));
        row(driver, "WhitePoint")->findChild<QToolButton*>("tBMoveDown")->click();
        QCOMPARE(driver.widget<QListWidget>("lWDspEffects")->item(1)->data(Qt::UserRole + 1).toString(),
                 QString("WhitePoint"));
        row(driver, "WhitePoint")->findChild<QToolButton*>("tBDelete")->click();
        QCOMPARE(shownGrey(driver), 150);
        driver.click("pBDspReset");
        QCOMPARE(shownGrey(driver), 100);
        chooseEffectEntry(driver, "&Clear");
        QVERIFY(driver.widget<QListWidget>("lWDspEffects")->updatesEnabled());
        QCOMPARE(driver.widget<QListWidget>("lWDspEffects")->count(), 0);
        driver.select({"grey.png", "other.png"});
        driver.click("pBDspApply");
        QCOMPARE(driver.statusText(), QString("Filters applied to: 2 files"));
        QVERIFY(QDir(folder.filePath("processed")).isEmpty());
    }

    void batchesNeverWriteTheReducedCopy() {
        const MediaFolder folder;
        folder.addImage("large.png", {1500, 1200}, QColor(100, 100, 100));
        WindowDriver driver(folder.path());
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(3);
        addEffect(driver, "Brightness");
        driver.select({"large.png"});
        QVERIFY(driver.widget<EditImageWidget>("imgWidget")->imageSize().width() < 1500);
        driver.click("pBDspApply");
        QCOMPARE(QImage(folder.filePath("processed/large.png")).size(), QSize(1500, 1200));
    }

    void outputsThatCannotBeWritten_data() {
        QTest::addColumn<QString>("output");
        QTest::newRow("a file in the directory's place") << "taken";
        QTest::newRow("below a file") << "taken/deep";
        QTest::newRow("absolute") << "/proc/nowhere";
    }
    void outputsThatCannotBeWritten() {
        QFETCH(QString, output);
        const MediaFolder folder;
        folder.addImage("a.png", {8, 8});
        const QByteArray before = folder.content("a.png");
        folder.addFile("taken", "a file");
        WindowDriver driver(folder.path());
        addEffect(driver, "Brightness");
        driver.widget<QLineEdit>("lEDspDirOutput")->setText(output);
        driver.widget<QLineEdit>("lEScaleDirOutput")->setText(output);
        driver.select({"a.png"});
        driver.click("pBDspApply");
        QCOMPARE(driver.statusText(), QString("Filters applied to: 1 files"));
        driver.click("pBProcessResize");
        QVERIFY(driver.statusText().startsWith("Resize completed, resized: 1 in "));
        QCOMPARE(WindowDriver::logCount("a.png error: "), 2);
        QCOMPARE(WindowDriver::logCount("Error, unable to create out path ") > 0, output != "taken");
        QCOMPARE(WindowDriver::logCount("Applied filter to"), 0);
        QCOMPARE(folder.content("taken"), QByteArray("a file"));
        QCOMPARE(folder.content("a.png"), before);
    }

    void resizingByEachGroup() {
        const MediaFolder folder;
        folder.addImage("wide.png", {100, 80});
        folder.addImage("odd.png", {3, 3});
        folder.addFile("broken.png", "x");
        WindowDriver driver(folder.path());
        driver.select({"wide.png", "odd.png", "broken.png"});
        auto* specific = driver.widget<QGroupBox>("gBResizeSpecificSize");
        auto* scale = driver.widget<QGroupBox>("gBResizeScale");
        auto* aspect = driver.widget<QGroupBox>("gBResizeByAspectRatio");
        QVERIFY(specific->isChecked() && !scale->isChecked() && !aspect->isChecked());
        driver.widget<QSpinBox>("sBSpecificW")->setValue(50);
        driver.widget<QSpinBox>("sBSpecificH")->setValue(-1);
        driver.click("pBProcessResize");
        QCOMPARE(QImage(folder.filePath("scaled/wide.png")).size(), QSize(50, 40));
        QVERIFY(driver.statusText().startsWith("Resize completed, resized: 3 in "));
        for (const int count : {0, 1, 2})
            QCOMPARE(WindowDriver::logCount(QString("Resized %1 of total: 3").arg(count)), 1);

        scale->setChecked(true);
        QVERIFY(!specific->isChecked() && !aspect->isChecked());
        driver.widget<QLineEdit>("lEScaleDirOutput")->setText(folder.filePath("absolute"));
        driver.click("pBProcessResize");
        QCOMPARE(QImage(folder.filePath("absolute/odd.png")).size(), QSize(5, 5));

        aspect->setChecked(true);
        QVERIFY(!specific->isChecked() && !scale->isChecked());
        driver.click("pBProcessResize");
        QCOMPARE(QImage(folder.filePath("absolute/wide.png")).size(), QSize(100, 120));
        aspect->setChecked(false);
        QVERIFY(scale->isChecked() && !specific->isChecked());

        specific->setChecked(true);
        driver.widget<QSpinBox>("sBSpecificW")->setValue(-1);
        driver.widget<QLineEdit>("lEScaleDirOutput")->setText("none");
        driver.click("pBProcessResize");
        QVERIFY(folder.exists("none") && QDir(folder.filePath("none")).isEmpty());
        // An empty output directory overwrites the sources.
        driver.widget<QSpinBox>("sBSpecificW")->setValue(10);
        driver.widget<QLineEdit>("lEScaleDirOutput")->clear();
        driver.select({"wide.png"});
        driver.click("pBProcessResize");
        QCOMPARE(QImage(folder.filePath("wide.png")).size(), QSize(10, 8));
    }

    void profilesSurviveARestart() {
        const MediaFolder folder;
        folder.addImage("a.png");
        {
            WindowDriver driver(folder.path());
            auto* chooser = driver.widget<QComboBox>("cBProfilesName_HL");
            QCOMPARE(chooser->currentText(), QString("Default"));
            addEffect(driver, "Blur");
            slider(driver, "Blur")->setValue(7);
            driver.click("tbProfileNew_HL");
            auto* edit = driver.window().findChild<ProfilesEditWidget*>();
            QVERIFY(edit && edit->isVisible());
            QCOMPARE(driver.widget<QListWidget>("lWDspEffects")->count(), 0);
            edit->findChild<QLineEdit*>()->setText("Sharp");
            edit->findChild<QPushButton*>("pBApply")->click();
            QCOMPARE(chooser->currentText(), QString("Sharp"));
            addEffect(driver, "Sharpen");
            row(driver, "Sharpen")->findChild<QAbstractButton*>("cBEnabled")->click();
        }
        WindowDriver driver(folder.path());
        auto* chooser = driver.widget<QComboBox>("cBProfilesName_HL");
        QCOMPARE(chooser->currentText(), QString("Sharp"));
        QVERIFY(!row(driver, "Sharpen")->isFilterEnabled());
        chooser->setCurrentIndex(0);
        QCOMPARE(slider(driver, "Blur")->value(), 7);
        driver.click("tbProfileRemove_HL");
        driver.click("tbProfileRemove_HL");
        // The list is never empty.
        QCOMPARE(chooser->count(), 1);
        QCOMPARE(chooser->currentText(), QString("Default"));
    }

private:
    static void addEffect(WindowDriver& driver, const QString& name) {
        driver.widget<QComboBox>("cBDspEffectsList")->setCurrentText(name);
        driver.click("tBAddEffect");
    }
    static ImageFilterWidgetBase* row(WindowDriver& driver, const QString& name) {
        auto* list = driver.widget<QListWidget>("lWDspEffects");
        for (int place = 0; place < list->count(); ++place) {
            if (list->item(place)->data(Qt::UserRole + 1).toString() == name)
                return qobject_cast<ImageFilterWidgetBase*>(list->itemWidget(list->item(place)));
        }
        qFatal("no row %s", qPrintable(name));
    }
    static ImageFilterWidgetSlider* slider(WindowDriver& driver, const QString& name) {
        return qobject_cast<ImageFilterWidgetSlider*>(row(driver, name)->optionWidget());
    }
    // The brightness of the middle of the preview.
    static int shownGrey(WindowDriver& driver) {
        auto* view = driver.widget<EditImageWidget>("imgWidget");
        const QImage shown = view->grab().toImage();
        return qRed(shown.pixel(shown.width() / 2, shown.height() / 2));
    }
    static void chooseEffectEntry(WindowDriver& driver, const QString& entry) {
        const ModalAnswer answer(entry);
        driver.window().onDspEffectsCustomContextMenu();
        QVERIFY(answer.isUsed());
    }
};

QTEST_MAIN(TestWindowImaging)
#include "tst_window_imaging.moc"

#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "imaging/ImageFilters.h"
#include "imaging/ProfilesEditWidget.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/Rows.h"
#include "support/WindowDriver.h"

#include "editor/EditImageWidget.h"

#include <QComboBox>
#include <QDir>
#include <QGroupBox>
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
        const QStringList names{"a.png", "b.png"};
        for (const QString& name : names) {
            QImage image(37, 29, QImage::Format_ARGB32);
            for (int pixel = 0; pixel < 37 * 29; ++pixel)
                image.setPixel(pixel % 37, pixel / 37, 0xff000000 | pixel * 15000);
            folder.addImage(name, image);
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
        QCOMPARE(driver.statusText(), QString("Filters applied to: 3 files"));
        QCOMPARE(WindowDriver::logCount("Applied filter to 2 of total: 3"), 1);
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
        effect(driver, "Brightness")->findChild<QAbstractButton*>("cBEnabled")->click();
        QCOMPARE(shownGrey(driver), 100);
        addEffect(driver, "WhitePoint");
        slider(driver, "WhitePoint")->findChild<QSlider*>()->setValue(90);
        QCOMPARE(shownGrey(driver), 255);
        // Switched on again below the white point, the brightness goes first.
        chooseEffectEntry(driver, "&Toggle bypass");
        QCOMPARE(shownGrey(driver), 150);
        effect(driver, "WhitePoint")->findChild<QToolButton*>("tBMoveUp")->click();
        QCOMPARE(driver.widget<QListWidget>("lWDspEffects")->item(0)->data(Qt::UserRole + 1).toString(),
                 QString("WhitePoint"));
        effect(driver, "WhitePoint")->findChild<QToolButton*>("tBMoveDown")->click();
        QCOMPARE(driver.widget<QListWidget>("lWDspEffects")->item(1)->data(Qt::UserRole + 1).toString(),
                 QString("WhitePoint"));
        effect(driver, "WhitePoint")->findChild<QToolButton*>("tBDelete")->click();
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

    void nothingWritesThePreview() {
        const MediaFolder folder;
        folder.addImage("large.png", {1500, 1200}, QColor(100, 100, 100));
        folder.addImage("small.png", {20, 20}, QColor(100, 100, 100));
        const QByteArray large = folder.content("large.png");
        const QByteArray small = folder.content("small.png");
        WindowDriver driver(folder.path());
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(3);
        auto* view = driver.widget<EditImageWidget>("imgWidget");
        const auto saved = [&](const QString& name) {
            QTest::keyClick(view, Qt::Key_S, Qt::ControlModifier);
            return driver.statusText() == "Save image: " + folder.filePath(name);
        };
        const QString refusal = "Preview of effects is not saved, use Apply.";
        // Reduced; then filtered; then the file itself, cut.
        driver.select({"large.png"});
        QVERIFY(view->imageSize().width() < 1500 && !saved("large.png"));
        QCOMPARE(driver.statusText(), refusal);
        addEffect(driver, "Brightness");
        driver.select({"small.png"});
        QVERIFY(!saved("small.png"));
        QCOMPARE(driver.statusText(), refusal);
        QCOMPARE(folder.content("small.png"), small);
        driver.click("pBDspReset");
        view->setTool(EditImageWidget::ToolCut);
        view->onCutRectSet({0, 0, 10, 5});
        QTest::keyClick(view, Qt::Key_Return);
        QVERIFY(saved("small.png"));
        QCOMPARE(QImage(folder.filePath("small.png")).size(), QSize(10, 5));

        driver.select({"large.png"});
        driver.click("pBDspApply");
        QCOMPARE(QImage(folder.filePath("processed/large.png")).size(), QSize(1500, 1200));
        QCOMPARE(folder.content("large.png"), large);
    }

    void aSelectionDecodesOnce() {
        const MediaFolder folder;
        folder.addImage("cut.jpg", {200, 200});
        folder.addFile("cut.jpg", folder.content("cut.jpg").chopped(100));
        WindowDriver driver(folder.path());
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(3);
        // The decoder tells each time that the end is missing.
        const auto decodings = [] { return WindowDriver::logCount("premature end"); };
        const qsizetype before = decodings();
        driver.select({"cut.jpg"});
        QCOMPARE(decodings(), before + 1);
        QVERIFY(!driver.widget<EditImageWidget>("imgWidget")->imageSize().isEmpty());
    }

    void outputsThatCannotBeWritten_data() {
        addRows<QString, QString, QString>({
            {"a file in the directory's place", "a.png", "taken", "Device not writable"},
            {"below a file", "a.png", "taken/deep", "Device not writable"},
            {"absolute", "a.png", "/proc/nowhere", "Device not writable"},
            {"in place, without a writer of the format", "a.svg", "", "Unsupported image format"},
        });
    }
    void outputsThatCannotBeWritten() {
        const auto& [name, output, error] = row<QString, QString, QString>();
        const MediaFolder folder;
        folder.addImage("a.png", {8, 8});
        folder.addFile("a.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>");
        folder.addFile("taken", "a file");
        const QByteArray before = folder.content(name);
        WindowDriver driver(folder.path());
        addEffect(driver, "Brightness");
        driver.widget<QLineEdit>("lEDspDirOutput")->setText(output);
        driver.widget<QLineEdit>("lEScaleDirOutput")->setText(output);
        driver.select({name});
        driver.click("pBDspApply");
        QCOMPARE(driver.statusText(), QString("Filters applied to: 1 files"));
        driver.click("pBProcessResize");
        QVERIFY(driver.statusText().startsWith("Resize completed, resized: 1 in "));
        QCOMPARE(WindowDriver::logCount(name + " error: " + error), 2);
        QCOMPARE(WindowDriver::logCount("Error, unable to create out path ") > 0, output.contains('/'));
        QCOMPARE(WindowDriver::logCount("Applied filter to"), 0);
        QCOMPARE(folder.content("taken"), QByteArray("a file"));
        QCOMPARE(folder.content(name), before);
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
        // An empty output directory overwrites the sources, but with no empty image.
        driver.widget<QLineEdit>("lEScaleDirOutput")->clear();
        driver.select({"wide.png"});
        driver.widget<QSpinBox>("sBSpecificW")->setValue(0);
        driver.click("pBProcessResize");
        QCOMPARE(QImage(folder.filePath("wide.png")).size(), QSize(100, 80));
        QCOMPARE(WindowDriver::logCount("wide.png error: Image is empty"), 1);
        driver.widget<QSpinBox>("sBSpecificW")->setValue(10);
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
            effect(driver, "Sharpen")->findChild<QAbstractButton*>("cBEnabled")->click();
        }
        WindowDriver driver(folder.path());
        auto* chooser = driver.widget<QComboBox>("cBProfilesName_HL");
        QCOMPARE(chooser->currentText(), QString("Sharp"));
        QVERIFY(!effect(driver, "Sharpen")->isFilterEnabled());
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
    static ImageFilterWidgetBase* effect(WindowDriver& driver, const QString& name) {
        auto* list = driver.widget<QListWidget>("lWDspEffects");
        for (int place = 0; place < list->count(); ++place) {
            if (list->item(place)->data(Qt::UserRole + 1).toString() == name)
                return qobject_cast<ImageFilterWidgetBase*>(list->itemWidget(list->item(place)));
        }
        qFatal("no row %s", qPrintable(name));
    }
    static ImageFilterWidgetSlider* slider(WindowDriver& driver, const QString& name) {
        return qobject_cast<ImageFilterWidgetSlider*>(effect(driver, name)->optionWidget());
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

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
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

// Filter chains, profiles and batch resize as a user runs them.
class TestWindowImaging : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

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
};

QTEST_MAIN(TestWindowImaging)
#include "tst_window_imaging.moc"

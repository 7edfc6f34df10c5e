#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include "editor/EditImageWidget.h"

#include <QComboBox>
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
        // The reduced picture; the filtered one; the file itself, cut.
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

private:
    static void addEffect(WindowDriver& driver, const QString& name) {
        driver.widget<QComboBox>("cBDspEffectsList")->setCurrentText(name);
        driver.click("tBAddEffect");
    }
};

QTEST_MAIN(TestWindowImaging)
#include "tst_window_imaging.moc"

#include "batch/BatchRun.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/Profiles.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QDir>
#include <QGroupBox>
#include <QListWidget>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

// The window and the command line make the same files of the same pictures.
class TestBatchWindow : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void bothWriteTheSameBytes() {
        const MediaFolder folder;
        addTwentyPictures(folder);
        WindowDriver driver(folder.path());
        QStringList names = driver.shownNames();
        QCOMPARE(names.size(), 20);
        driver.select(names);
        driver.widget<QSpinBox>("sBSpecificW")->setValue(160);
        driver.widget<QSpinBox>("sBSpecificH")->setValue(-1);
        driver.widget<QSlider>("hSResizeImgWriteQuality")->setValue(71);
        driver.click("pBProcessResize");
        compare(folder, "resize . --size 160x-1 --quality 71 --jobs 2 --output batch", "scaled");

        driver.widget<QGroupBox>("gBResizeByAspectRatio")->setChecked(true);
        driver.click("pBProcessResize");
        compare(folder, "resize . --ratio 1.5 --quality 71 --output batch --overwrite", "scaled");

        // A chain as the window keeps it, one filter of it bypassed.
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(3);
        auto* list = driver.widget<QListWidget>("lWDspEffects");
        for (const auto& [name, value] : {std::pair("Contrast", 12), std::pair("Blur", 3),
                                          std::pair("Brightness", -20), std::pair("Sharpen", 0)}) {
            driver.window().onAddDspEffectItem(name);
            auto* effect =
                qobject_cast<ImageFilterWidgetBase*>(list->itemWidget(list->item(list->count() - 1)));
            effect->setOptions({{"bypassed", value < 0}, {"sliderType", 0}, {"value", value}});
        }
        driver.widget<QSlider>("hSDspWriteQuality")->setValue(83);
        driver.click("pBDspApply");
        const QString profile = Profiles::instance()->currentProfile().name();
        driver.close();
        const QString settings = QCoreApplication::applicationDirPath() + "/settings.data";
        const QString effects = "effects . --quality 83 --output batch --overwrite ";
        compare(folder, effects + QString("--profile '%1' --settings '%2'").arg(profile, settings),
                "processed");
        compare(folder, effects + "--filter contrast=12 --filter Blur=3 --filter Sharpen", "processed");
    }

private:
    // Pictures of the program in formats with and without alpha, losses and palettes.
    static void addTwentyPictures(const MediaFolder& folder) {
        const QDir pictures(QString(TESSARINE_SOURCE) + "/docs/images");
        const QStringList names = pictures.entryList({"*.png"});
        const QStringList suffixes{"png", "jpg", "bmp", "webp"};
        for (int i = 0; i < 20; ++i) {
            QImage picture(pictures.filePath(names.at(i % names.size())));
            if (i % 3 != 0)
                picture = picture.scaled(picture.size() / (1 + i % 3)).convertToFormat(QImage::Format_ARGB32);
            folder.addImage(QString("%1.%2").arg(i).arg(suffixes.at(i % suffixes.size())), picture);
        }
    }

    static void compare(const MediaFolder& folder, const QString& words, const QString& windowsDirectory) {
        const BatchRun run = runBatch(folder.path(), words);
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        QVERIFY(treeText(folder.filePath("batch"), true) ==
                treeText(folder.filePath(windowsDirectory), true));
        QCOMPARE(QDir(folder.filePath("batch")).entryList(QDir::Files).size(), 20);
    }
};

QTEST_MAIN(TestBatchWindow)
#include "tst_batch_window.moc"

#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/Rows.h"
#include "support/WindowDriver.h"

#include <QCheckBox>
#include <QDialog>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>

// The options as a user changes them, and their effect on the main window.
class TestOptions : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    // Each setting of the dialog, found by walking it, changes what the program does, at once and after a
    // restart.
    void everySettingHasItsEffect_data() {
        using Leave = ModalAnswer::DialogAnswer;
        addRows<Leave>({
            {"the button",
             Leave([](QDialog* dialog) { dialog->findChild<QPushButton*>("pBClose")->click(); })},
            {"the frame", Leave([](QDialog* dialog) { dialog->close(); })},
            {"Escape", Leave([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); })},
        });
    }
    void everySettingHasItsEffect() {
        const auto& [leave] = row<ModalAnswer::DialogAnswer>();
        const MediaFolder folder;
        const MediaFolder source;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        QStringList settings;
        const QMap<QString, int> numbers{
            {"sBGridSizeW", 100}, {"sBGridSizeH", 80}, {"sBPreviewThreadCount", 9}};
        const ModalAnswer options(ModalAnswer::DialogAnswer([&, &leave = leave](QDialog* dialog) {
            for (QSpinBox* box : dialog->findChildren<QSpinBox*>()) {
                box->setValue(numbers[box->objectName()]);
                settings.append(box->objectName());
            }
            for (QCheckBox* box : dialog->findChildren<QCheckBox*>()) {
                box->toggle();
                settings.append(box->objectName());
            }
            leave(dialog);
        }));
        driver.trigger("action_Options");
        QVERIFY(options.isUsed());
        QVERIFY(driver.waitForLoad());
        for (const bool isRestarted : {false, true}) {
            if (isRestarted)
                driver.restart();
            else
                driver.rescan();
            QMap<QString, QString> effects;
            const QSize grid = driver.widget<QListView>("listView")->gridSize();
            effects["sBGridSizeW"] = QString::number(grid.width());
            effects["sBGridSizeH"] = QString::number(grid.height());
            const QStringList threads = driver.freshLog().filter("Created image threads:");
            effects["sBPreviewThreadCount"] = threads.isEmpty() ? QString() : threads.last().section(' ', -1);
            source.addImage("a.png");
            const ModalAnswer files(chooseFiles({source.filePath("a.png")}));
            driver.trigger("action_Import_files");
            const QString name = isRestarted ? "a_1.png" : "a_0.png";
            effects["cBImportFilesAutoRename"] = folder.exists(name) ? "renamed" : "refused";
            effects["cBImportFilesDeleteSrc"] = source.exists("a.png") ? "kept" : "deleted";
            source.addFile("model.safetensors", QByteArray("\x02\0\0\0\0\0\0\0{}", 10));
            const ModalAnswer models(chooseFiles({source.filePath("model.safetensors")}));
            driver.trigger("action_InspectSafetensor");
            const QWidget* inspector = driver.toolWindow("SafetensorsDialog");
            const auto isOn = [&](const char* box) {
                return inspector->findChild<QCheckBox*>(box)->isChecked();
            };
            effects["cBSafetensorsIncMeta"] = isOn("cBMetainfo") ? "shown" : "left out";
            effects["cBSafetensorsIncTensors"] = isOn("cBTensor") ? "shown" : "left out";
            settings.sort();
            QCOMPARE(effects.keys(), settings);
            QCOMPARE(effects.values(),
                     (QStringList{"renamed", "deleted", "left out", "shown", "80", "100", "9"}));
            QTRY_VERIFY(driver.shownNames().contains(name));
        }
    }
};

QTEST_MAIN(TestOptions)
#include "tst_options.moc"

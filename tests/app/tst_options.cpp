#include "app/OptionsDialog.h"
#include "app/SettingsWidgetDebugDialog.h"
#include "app/services/SettingsKeys.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/Rows.h"
#include "support/WindowDriver.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTreeWidget>

namespace {

constexpr auto scanLog = "Checking directory: ";

void set(const QWidget* dialog, int width, int height, int threads) {
    dialog->findChild<QSpinBox*>("sBGridSizeW")->setValue(width);
    dialog->findChild<QSpinBox*>("sBGridSizeH")->setValue(height);
    dialog->findChild<QSpinBox*>("sBPreviewThreadCount")->setValue(threads);
}

// Width, height and threads, then the boxes that are checked.
QString shown(const QWidget* dialog) {
    QStringList texts;
    for (const char* name : {"sBGridSizeW", "sBGridSizeH", "sBPreviewThreadCount"})
        texts << QString::number(dialog->findChild<QSpinBox*>(name)->value());
    for (const QCheckBox* box : dialog->findChildren<QCheckBox*>())
        if (box->isChecked())
            texts << box->objectName();
    return texts.join(' ');
}

void close(QWidget* dialog) {
    dialog->findChild<QPushButton*>("pBClose")->click();
}

} // namespace

// The options as a user changes them, and what the main window makes of that.
class TestOptions : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void aFirstStartShowsTheDefaults() {
        const WindowDriver driver;
        QVERIFY(answerOptions(driver, [](QDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QString("Settings"));
            QCOMPARE(dialog->size(), QSize(425, 621));
            QCOMPARE(shown(dialog), QString("240 240 4 cBSafetensorsIncMeta"));
            close(dialog);
        }));
    }

    void onlyAnotherGridSizeScansAgain_data() {
        addRows<QSize, bool>({
            {"only the threads", {240, 240}, false},
            {"the width", {100, 240}, true},
            {"the height, too small for thumbnails", {240, 16}, true},
        });
    }
    void onlyAnotherGridSizeScansAgain() {
        const auto& [gridSize, isScanned] = row<QSize, bool>();
        const MediaFolder folder;
        const QString file = folder.addImage("a.png");
        WindowDriver driver(folder.path());
        driver.window().setImageTags(file, {"unsaved"});
        const auto* view = driver.widget<QListView>("listView");
        const QSize iconSize = view->iconSize();
        const qsizetype scans = WindowDriver::logCount(scanLog);
        QVERIFY(answerOptions(driver, [&](QDialog* dialog) {
            set(dialog, gridSize.width(), gridSize.height(), 9);
            close(dialog);
        }));
        QCOMPARE(WindowDriver::logCount("MainWindow::onOptionsClosed"), 1);
        QCOMPARE(WindowDriver::logCount(scanLog), scans + (isScanned ? 1 : 0));
        QVERIFY(driver.waitForLoad());
        QCOMPARE(driver.window().imageTags(file), isScanned ? QStringList() : QStringList("unsaved"));
        QCOMPARE(view->gridSize(), gridSize);
        QCOMPARE(view->iconSize(), iconSize);
    }

    // Each setting of the dialog, found by walking it, changes what the program does, at once and after a
    // restart.
    void everySettingHasItsEffect_data() {
        using Leave = ModalAnswer::DialogAnswer;
        addRows<Leave>({
            {"the button", Leave(close)},
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
        QVERIFY(answerOptions(driver, [&settings, &leave = leave](QDialog* dialog) {
            set(dialog, 100, 80, 9);
            for (QCheckBox* box : dialog->findChildren<QCheckBox*>())
                box->toggle();
            for (const QSpinBox* box : dialog->findChildren<QSpinBox*>())
                settings.append(box->objectName());
            for (const QCheckBox* box : dialog->findChildren<QCheckBox*>())
                settings.append(box->objectName());
            leave(dialog);
        }));
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

    void badStoredSizesDoNoHarm_data() {
        addRows<QVariant>({{"below zero", QSize(-5, -5)}, {"text", "large"}});
    }
    void badStoredSizesDoNoHarm() {
        const auto& [gridSize] = row<QVariant>();
        QSettings(settingsPath(), QSettings::IniFormat)
            .setValue("settingsData", QVariantHash{{keys::gridSizeListView.key, gridSize},
                                                   {keys::gridSizeTreeView.key, gridSize},
                                                   {keys::gridSizeTableView.key, gridSize},
                                                   {keys::optionDialogGeometry.key, "nonsense"},
                                                   {keys::imagePreviewThreadCount.key, -3}});
        const MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        QVERIFY(answerOptions(driver, [](QDialog* dialog) {
            QCOMPARE(shown(dialog), QString("16 16 1 cBSafetensorsIncMeta"));
            set(dialog, 100, 80, 1);
            close(dialog);
        }));
        QVERIFY(driver.waitForLoad());
        QCOMPARE(driver.widget<QListView>("listView")->gridSize(), QSize(100, 80));
        QCOMPARE(driver.catalogueNames(), QStringList("a.png"));
    }

    void aWindowThatGoesUnderItsDialogScansNoMore() {
        WindowDriver driver;
        const qsizetype scans = WindowDriver::logCount(scanLog);
        QVERIFY(answerOptions(driver, [&driver](QDialog* dialog) {
            set(dialog, 99, 240, 4);
            driver.close();
        }));
        QCOMPARE(WindowDriver::logCount("MainWindow::onOptionsClosed"), 0);
        QCOMPARE(WindowDriver::logCount(scanLog), scans);
        QCOMPARE(readSettings().value(keys::gridSizeListView.key), QVariant(QSize(99, 240)));
    }

    void theSettingsEditorRemovesRows() {
        SettingsWidgetDebugDialog dialog;
        auto* tree = dialog.findChild<QTreeWidget*>("treeWidget");
        for (const char* key : {"a", "b", "c"})
            tree->addTopLevelItem(new QTreeWidgetItem({key, "1"}));
        tree->topLevelItem(0)->setSelected(true);
        tree->topLevelItem(2)->setSelected(true);
        dialog.findChild<QPushButton*>("pBRemoveSelected")->click();
        QCOMPARE(tree->topLevelItemCount(), 1);
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("b"));
        const QSignalSpy spy(&dialog, &SettingsWidgetDebugDialog::replaceSettings);
        dialog.show();
        dialog.findChild<QPushButton*>("pBApply")->click();
        QCOMPARE(spy.size(), 1);
        QVERIFY(!dialog.isVisible());
    }

private:
    static bool answerOptions(const WindowDriver& driver, ModalAnswer::DialogAnswer answer) {
        const ModalAnswer options(std::move(answer));
        driver.widget<QAction>("action_Options")->trigger();
        return options.isUsed();
    }
    static QString settingsPath() { return QCoreApplication::applicationDirPath() + "/settings.data"; }
    static QVariantHash readSettings() {
        return QSettings(settingsPath(), QSettings::IniFormat).value("settingsData").toHash();
    }
};

QTEST_MAIN(TestOptions)
#include "tst_options.moc"

#include "app/OptionsDialog.h"
#include "app/SettingsWidgetDebugDialog.h"
#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
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

QSpinBox* spinBox(const QWidget* dialog, const char* name) {
    auto* box = dialog->findChild<QSpinBox*>(name);
    if (!box)
        qFatal("no spin box %s", name);
    return box;
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
        WindowDriver driver;
        const bool isUsed = answerOptions(driver, [](QDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QString("Settings"));
            QCOMPARE(dialog->size(), QSize(425, 621));
            QCOMPARE(spinBox(dialog, "sBGridSizeW")->value(), 240);
            QCOMPARE(spinBox(dialog, "sBGridSizeH")->value(), 240);
            QCOMPARE(spinBox(dialog, "sBPreviewThreadCount")->value(), 4);
            QVERIFY(!dialog->findChild<QCheckBox*>("cBImportFilesDeleteSrc")->isChecked());
            QVERIFY(!dialog->findChild<QCheckBox*>("cBImportFilesAutoRename")->isChecked());
            QVERIFY(dialog->findChild<QCheckBox*>("cBSafetensorsIncMeta")->isChecked());
            QVERIFY(!dialog->findChild<QCheckBox*>("cBSafetensorsIncTensors")->isChecked());
            close(dialog);
        });
        QVERIFY(isUsed);
        QVERIFY(!driver.window().findChild<OptionsDialog*>());
    }

    void onlyAnotherGridSizeScansAgain_data() {
        QTest::addColumn<QSize>("gridSize");
        QTest::addColumn<int>("threads");
        QTest::addColumn<bool>("isScanned");
        QTest::addRow("nothing changed") << QSize(240, 240) << 4 << false;
        QTest::addRow("only the threads") << QSize(240, 240) << 9 << false;
        QTest::addRow("the width") << QSize(100, 240) << 4 << true;
        QTest::addRow("the height") << QSize(240, 241) << 4 << true;
        QTest::addRow("too small for thumbnails") << QSize(16, 16) << 4 << true;
    }

    void onlyAnotherGridSizeScansAgain() {
        QFETCH(QSize, gridSize);
        QFETCH(int, threads);
        QFETCH(bool, isScanned);
        const MediaFolder folder;
        const QString file = folder.addImage("a.png");
        WindowDriver driver(folder.path());
        driver.window().setImageTags(file, {"unsaved"});
        const QSize iconSize = driver.widget<QListView>("listView")->iconSize();
        const qsizetype scans = WindowDriver::logCount(scanLog);
        QVERIFY(answerOptions(driver, [&](QDialog* dialog) {
            spinBox(dialog, "sBGridSizeW")->setValue(gridSize.width());
            spinBox(dialog, "sBGridSizeH")->setValue(gridSize.height());
            spinBox(dialog, "sBPreviewThreadCount")->setValue(threads);
            close(dialog);
        }));
        QCOMPARE(WindowDriver::logCount("MainWindow::onOptionsClosed"), 1);
        QCOMPARE(WindowDriver::logCount(scanLog), scans + (isScanned ? 1 : 0));
        QVERIFY(driver.waitForLoad());
        QCOMPARE(driver.window().imageTags(file), isScanned ? QStringList() : QStringList("unsaved"));
        QCOMPARE(driver.widget<QListView>("listView")->gridSize(), gridSize);
        QCOMPARE(driver.widget<QListView>("listView")->iconSize(), iconSize);
        QCOMPARE(driver.catalogueNames(), QStringList("a.png"));
    }

    void everyWayOfClosingStores_data() {
        QTest::addColumn<ModalAnswer::DialogAnswer>("leave");
        QTest::addRow("the button") << ModalAnswer::DialogAnswer(close);
        QTest::addRow("the frame") << ModalAnswer::DialogAnswer([](QDialog* dialog) { dialog->close(); });
        QTest::addRow("Escape") << ModalAnswer::DialogAnswer(
            [](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    }

    void everyWayOfClosingStores() {
        QFETCH(ModalAnswer::DialogAnswer, leave);
        {
            const WindowDriver driver;
            QVERIFY(answerOptions(driver, [&leave](QDialog* dialog) {
                spinBox(dialog, "sBGridSizeW")->setValue(9999);
                spinBox(dialog, "sBGridSizeH")->setValue(16);
                spinBox(dialog, "sBPreviewThreadCount")->setValue(128);
                for (QCheckBox* box : dialog->findChildren<QCheckBox*>())
                    box->toggle();
                leave(dialog);
            }));
        }
        const QVariantHash stored = readSettings();
        QCOMPARE(stored.value(keys::gridSizeListView), QVariant(QSize(9999, 16)));
        QCOMPARE(stored.value(keys::imagePreviewThreadCount), QVariant(128));
        QCOMPARE(stored.value(keys::importFilesDeleteSrc), QVariant(true));
        QCOMPARE(stored.value(keys::importFilesAutoRename), QVariant(true));
        QCOMPARE(stored.value(keys::includeMetaInfo), QVariant(false));
        QCOMPARE(stored.value(keys::includeTensorInfo), QVariant(true));
        QVERIFY(!stored.value(keys::optionDialogGeometry).toByteArray().isEmpty());
    }

    void theDialogComesBackInItsSize() {
        const WindowDriver driver;
        QVERIFY(answerOptions(driver, [](QDialog* dialog) {
            dialog->resize(500, 650);
            dialog->close();
        }));
        QVERIFY(answerOptions(driver, [](QDialog* dialog) {
            QCOMPARE(dialog->size(), QSize(500, 650));
            dialog->close();
        }));
    }

    void badStoredSizesDoNoHarm_data() {
        QTest::addColumn<QVariant>("gridSize");
        QTest::addRow("zero") << QVariant(QSize(0, 0));
        QTest::addRow("below zero") << QVariant(QSize(-5, -5));
        QTest::addRow("text") << QVariant("large");
    }

    void badStoredSizesDoNoHarm() {
        QFETCH(QVariant, gridSize);
        QSettings(settingsPath(), QSettings::IniFormat)
            .setValue("settingsData", QVariantHash{{keys::gridSizeListView, gridSize},
                                                   {keys::gridSizeTreeView, gridSize},
                                                   {keys::gridSizeTableView, gridSize},
                                                   {keys::optionDialogGeometry, "nonsense"},
                                                   {keys::imagePreviewThreadCount, -3}});
        const MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        QVERIFY(answerOptions(driver, [](QDialog* dialog) {
            QCOMPARE(spinBox(dialog, "sBGridSizeW")->value(), 16);
            QCOMPARE(spinBox(dialog, "sBPreviewThreadCount")->value(), 1);
            spinBox(dialog, "sBGridSizeW")->setValue(100);
            spinBox(dialog, "sBGridSizeH")->setValue(80);
            close(dialog);
        }));
        QVERIFY(driver.waitForLoad());
        QCOMPARE(driver.widget<QListView>("listView")->gridSize(), QSize(100, 80));
        QCOMPARE(driver.catalogueNames(), QStringList("a.png"));
    }

    void aWindowThatGoesUnderItsDialogScansNoMore() {
        const MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        const qsizetype scans = WindowDriver::logCount(scanLog);
        QVERIFY(answerOptions(driver, [&driver](QDialog* dialog) {
            spinBox(dialog, "sBGridSizeW")->setValue(99);
            driver.close();
        }));
        QCOMPARE(WindowDriver::logCount("MainWindow::onOptionsClosed"), 0);
        QCOMPARE(WindowDriver::logCount(scanLog), scans);
        QCOMPARE(readSettings().value(keys::gridSizeListView), QVariant(QSize(99, 240)));
    }

    void theSettingsEditorRemovesRows() {
        SettingsWidgetDebugDialog dialog;
        auto* tree = dialog.findChild<QTreeWidget*>("treeWidget");
        QStringList titles;
        for (int column = 0; column < tree->columnCount(); ++column)
            titles.append(tree->headerItem()->text(column));
        QCOMPARE(titles, QStringList({"Key", "Value", "Type", "Size"}));
        QVERIFY(tree->isSortingEnabled());
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

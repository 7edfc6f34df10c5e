#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "catalogue/MediaModel.h"
#include "editor/EditImageWidget.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QTreeView>

// What the window looks like at a first start, and that it comes back as it was left.
class TestWindowState : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void aFirstStartAsksForADirectory() {
        const ModalAnswer answer(QMessageBox::Ok);
        MainWindow window;
        window.show();
        QTRY_VERIFY(answer.isUsed());
        QCOMPARE(answer.text(), QString("Provide correct working directory path. Path is empty."));
        QCOMPARE(window.findChild<QStackedWidget*>("stackedWidget")->currentIndex(), 0);
        QCOMPARE(window.findChild<QTabWidget*>("tWTools")->currentIndex(), 0);
        QVERIFY(window.windowTitle().contains(" - "));
    }

    void aDirectoryThatHasGoneIsNamed() {
        const ModalAnswer answer(QMessageBox::Ok);
        MainWindow window;
        window.findChild<QLineEdit*>("lEWorkingPath")->setText("/no/such/place");
        window.show();
        QTRY_VERIFY(answer.isUsed());
        QCOMPARE(answer.text(),
                 QString("Provide correct working directory. Directory dont exists at: /no/such/place"));
    }

    void theFormHoldsWhatItPromises() {
        const WindowDriver driver;
        QStringList tabs;
        const auto* tools = driver.widget<QTabWidget>("tWTools");
        for (int tab = 0; tab < tools->count(); ++tab)
            tabs.append(tools->tabText(tab));
        QCOMPARE(tabs, QStringList({"Resize", "Tags", "Ollama", "Effects", "Metadata"}));
        QStringList entries;
        for (const QAction* action : driver.widget<QMenu>("menu_File")->actions())
            entries.append(action->isSeparator() ? QString("-") : action->text());
        QCOMPARE(entries, QStringList({"Select w&orking directory", "&Import files", "&Save tags",
                                       "&Inspect safetensor", "-", "E&xit"}));
        QStringList buttons;
        for (const QAction* action : driver.widget<QToolBar>("toolBar")->actions())
            buttons.append(action->data().toString());
        QCOMPARE(buttons, QStringList({"editVideo", "editImage", "addTag"}));
        QCOMPARE(driver.widget<QPlainTextEdit>("pTEPromptSystem")->toPlainText(),
                 QString("You are an image artist."));
        QCOMPARE(driver.widget<QComboBox>("cBResizeSrcScaleAlignment")->count(), 9);
    }

    void aFirstStartSetsItsWidgets() {
        const WindowDriver driver;
        const std::tuple<const char*, const char*, QVariant> expected[] = {
            {"listView", "spacing", 8},
            {"listView", "uniformItemSizes", false},
            {"listView", "gridSize", QSize(240, 240)},
            {"treeView", "iconSize", QSize(32, 32)},
            {"treeView", "rootIsDecorated", true},
            {"treeView", "sortingEnabled", true},
            {"tableView", "iconSize", QSize(32, 32)},
            {"tableView", "showGrid", true},
            {"tableView", "sortingEnabled", true},
            {"tableView", "wordWrap", true},
            {"lwImageTags", "spacing", 8},
            {"lwImageTags", "sortingEnabled", false},
            {"lwAllImagesTags", "sortingEnabled", false},
            {"lWDspEffects", "spacing", 8},
            {"lWDspEffects", "sortingEnabled", false},
            {"sBOllamaScaleResW", "value", -1},
            {"sBOllamaScaleResH", "value", -1},
            {"cBOllamaAddTags", "checked", true},
            {"hSResizeImgWriteQuality", "value", 100},
            {"cBResizeSrcAspectRatio", "currentIndex", 1},
            {"cBResizeSrcTransformationType", "currentIndex", 1},
            {"cBProfilesName_HL", "currentText", "Default"},
        };
        for (const auto& [name, property, value] : expected)
            QVERIFY2(driver.widget<QWidget>(name)->property(property) == value, name);
        for (const QHeaderView* header : {driver.widget<QTreeView>("treeView")->header(),
                                          driver.widget<QTableView>("tableView")->horizontalHeader()}) {
            QVERIFY(header->sectionsClickable() && header->sectionsMovable() &&
                    header->isSortIndicatorClearable());
        }
        QVERIFY(driver.widget<QTableView>("tableView")->horizontalHeader()->stretchLastSection());
        QVERIFY(driver.widget<EditImageWidget>("imgWidget")->autoCenter());
        QCOMPARE(driver.widget<EditImageWidget>("imgWidget")->cutOutlineWidth(), 8);
    }

    void theWindowComesBackAsItWasLeft() {
        {
            WindowDriver driver;
            driver.widget<QStackedWidget>("stackedWidget")->setCurrentIndex(2);
            driver.widget<QTabWidget>("tWTools")->setCurrentIndex(3);
            driver.widget<QSpinBox>("sBOllamaScaleResW")->setValue(320);
            driver.widget<QCheckBox>("cBWorkingDirScanRecursive")->setChecked(true);
            driver.widget<QSlider>("hSResizeImgWriteQuality")->setValue(40);
            driver.widget<QLineEdit>("lEScaleDirOutput")->setText("out");
            driver.widget<QPlainTextEdit>("pTEPromptUser")->clear();
            driver.widget<QPlainTextEdit>("pTEPromptSystem")->setPlainText("other");
            driver.widget<QTableView>("tableView")->horizontalHeader()->setSectionHidden(ColSize, true);
            driver.widget<QTreeView>("treeView")->header()->moveSection(0, 3);
            driver.widget<QListView>("listView")->setViewMode(QListView::ListMode);
            driver.widget<QMenu>("menu_Themes")->actions().at(1)->trigger();
        }
        WindowDriver driver;
        QCOMPARE(driver.widget<QLineEdit>("lEWorkingPath")->text(), WindowDriver::emptyDirectory());
        QCOMPARE(driver.widget<QStackedWidget>("stackedWidget")->currentIndex(), 2);
        QCOMPARE(driver.widget<QTabWidget>("tWTools")->currentIndex(), 3);
        QCOMPARE(driver.widget<QSpinBox>("sBOllamaScaleResW")->value(), 320);
        QVERIFY(driver.widget<QCheckBox>("cBWorkingDirScanRecursive")->isChecked());
        QCOMPARE(driver.widget<QLineEdit>("lEScaleDirOutput")->text(), QString("out"));
        QCOMPARE(driver.widget<QPlainTextEdit>("pTEPromptSystem")->toPlainText(), QString("other"));
        QVERIFY(driver.widget<QPlainTextEdit>("pTEPromptUser")->toPlainText().startsWith("Describe image"));
        QVERIFY(driver.widget<QTableView>("tableView")->horizontalHeader()->isSectionHidden(ColSize));
        QCOMPARE(driver.widget<QTreeView>("treeView")->header()->visualIndex(0), 3);
        QCOMPARE(driver.widget<QListView>("listView")->viewMode(), QListView::ListMode);
        QVERIFY(driver.widget<QMenu>("menu_Themes")->actions().at(1)->isChecked());
        driver.widget<QMenu>("menu_Themes")->actions().at(0)->trigger();
        // The quality alone never survives.
        QCOMPARE(driver.widget<QSlider>("hSResizeImgWriteQuality")->value(), 100);
        QCOMPARE(driver.widget<QLabel>("label_Quality")->text(), QString("Quality [100]:"));
    }

    void valuesOutOfRangeDoNoHarm() {
        writeSettings({{keys::viewIdx.key, 99},
                       {keys::currentToolsTabIndex.key, -7},
                       {keys::listViewViewMode.key, 55},
                       {keys::appGeometry.key, QByteArray("nonsense")},
                       {keys::appTheme.key, 99},
                       {keys::resizeSrcAspectRatio.key, QString("text")},
                       {keys::gridSizeListView.key, QString("text")},
                       {keys::imagePreviewThreadCount.key, -1}});
        MediaFolder folder;
        folder.addImage("a.png");
        WindowDriver driver(folder.path());
        QCOMPARE(driver.catalogueNames(), QStringList("a.png"));
        QCOMPARE(driver.widget<QListView>("listView")->viewMode(), QListView::IconMode);
    }

    void everyKeyReachesTheDisk() {
        {
            const WindowDriver driver;
        }
        const QVariantHash stored =
            QSettings(QCoreApplication::applicationDirPath() + "/settings.data", QSettings::IniFormat)
                .value("settingsData")
                .toHash();
        for (const QLatin1StringView key :
             {keys::appGeometry.key, keys::appState.key, keys::ollamaScaleResW.key, keys::workingPath.key,
              keys::promptSystem.key, keys::ollamaIp.key, keys::toolCutOutlineWidth.key,
              keys::scaleDirOutput.key, keys::viewIdx.key, keys::treeViewHeaderState.key,
              keys::tableViewHorizontalHeaderState.key, keys::listViewViewMode.key})
            QVERIFY2(stored.contains(key), key.data());
        QVERIFY(!stored.contains(keys::gridSizeTreeView.key));
        QCOMPARE(stored.value(keys::ollamaIp.key).toString(), QString("http://127.0.0.1:11434/"));
    }

private:
    static void writeSettings(const QVariantHash& values) {
        QSettings file(QCoreApplication::applicationDirPath() + "/settings.data", QSettings::IniFormat);
        file.setValue("settingsData", values);
    }
};

QTEST_MAIN(TestWindowState)
#include "tst_window_state.moc"

#include "app/MainWindow.h"

#include "app/services/ImageFile.h"
#include "app/services/LogService.h"
#include "app/services/Settings.h"
#include "app/services/StatusTipFilter.h"
#include "app/services/Themes.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaFormats.h"
#include "imaging/EffectList.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilters.h"
#include "imaging/Profiles.h"
#include "tags/TagRecord.h"
#include "tags/TagRecovery.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QDebug>
#include <QDir>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Lets the window paint itself before the first scan blocks it.
constexpr int firstScanDelayMs = 250;

QAction* makeWindowAction(QObject* parent, const QString& text, const QString& iconText, const QString& data,
                          const QString& icon) {
    auto* action = new QAction(QIcon(icon), text, parent);
    action->setIconText(iconText);
    // The context menu identifies an action by this text, not by its translated caption.
    action->setData(data);
    return action;
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::MainWindow>())
    , _supportedFormats(supportedImageFormats() + supportedVideoFormats()) {
    // readSettings restores the profiles, whose stream holds values of this type.
    registerEffectListType();
    raiseImageAllocationLimit();
    ui->setupUi(this);
    keepMessages(this);
    // The header of the log names the settings file, so the settings are read first.
    Settings::instance(this, Settings::usualLocation(), {}, false);
    LogService::instance()->setApplicationInfo(Settings::instance()->filePath());
    // Without arguments, as the program does not read its command line: the log has its default level.
    LogService::instance()->init({});
    Profiles::instance(this)->setAllowedOptionsKeys({u"effectList"_s});
    initUi();
    // After initUi, where restoring widgets emits signals whose slots need the Ollama client made below.
    initConnections();
    // Every run starts with the best quality, although readSettings has just restored the last one.
    ui->hSResizeImgWriteQuality->setValue(100);
    // The form checks this box before any slot is connected. The signal emitted by hand makes the slot
    // uncheck the other two.
    emit ui->gBResizeSpecificSize->toggled(true);
    // Waits up to half a second for a server that does not answer.
    initOllama();
    // The profiles were restored before their signals were connected, so the rows of the chain are made here.
    onFilterProfilesHasChanged();
    QTimer::singleShot(firstScanDelayMs, this, [this] { openWorkingDirectory(ui->lEWorkingPath->text()); });
}

MainWindow::~MainWindow() {
    closeOptions();
    closeToolWindows();
    // Closing asks no question: the tags that are unsaved now are offered when the directory is next opened.
    _recovery->close();
    // No window is left that could create another loader. Its threads write to the log, so they end before
    // it.
    delete std::exchange(_imageLoader, nullptr);
    writeSettings();
    Settings::destroyInstance();
    Themes::destroyInstance();
    Profiles::destroyInstance();
    // The base class destroys the widgets. A path edit that loses its focus meanwhile would call a slot of
    // this half-destroyed window, so nothing stays connected to it.
    const QList<QObject*> children = findChildren<QObject*>();
    for (const QObject* child : children)
        child->disconnect(this);
    // The form alone; its widgets are children of the window.
    ui.reset();
    LogService::destroy();
}

// Tool windows store their geometry when they close, so they are closed while the settings still exist.
void MainWindow::closeToolWindows() {
    const QList<QWidget*> children = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (child->isWindow() && child->testAttribute(Qt::WA_DeleteOnClose)) {
            // close() puts the deletion off to an event loop that no longer runs.
            child->close();
            delete child;
        }
    }
}

void MainWindow::onShowMessage(const QString& msg) {
    ui->statusbar->showMessage(msg);
    qDebug().noquote() << msg;
}

void MainWindow::initUi() {
    initActions();
    _imageTags = new TagRecord(this);
    initViews();
    initModels();
    initStatusPanel();
    ui->toolBar->addActions(actions());
    _imageFilters = new ImageFilters(this);
    const QStringList filterNames = _imageFilters->filterNames();
    for (const QString& name : filterNames)
        ui->cBDspEffectsList->addItem(ImageFilters::filterCaption(ImageFilters::filterType(name)), name);
    readSettings();
    initThemes();
}

void MainWindow::initActions() {
    QAction* editImageAction = makeWindowAction(this, tr("&Edit image"), tr("Edit image"), u"editImage"_s,
                                                u":/resources/icons/editImage.svg"_s);
    QAction* addTagAction =
        makeWindowAction(this, tr("&Add tag"), tr("Add tag"), u"addTag"_s, u":/resources/icons/tags.svg"_s);
    QAction* editVideoAction = makeWindowAction(this, tr("&Edit video"), tr("Edit video"), u"editVideo"_s,
                                                u":/resources/icons/editVideo.svg"_s);
    connect(editImageAction, &QAction::triggered, this, &MainWindow::editImage);
    connect(editVideoAction, &QAction::triggered, this, &MainWindow::showEditVideoWidget);
    connect(addTagAction, &QAction::triggered, this, &MainWindow::addTagToSelected);
    addActions({editImageAction, addTagAction});
    // In the tool bar only: the context menu lists the window's actions and has its own entry for videos.
    ui->toolBar->addAction(editVideoAction);
}

void MainWindow::initThemes() {
    Themes* themes = Themes::instance(this);
    connect(themes, &Themes::themeChanged, this,
            [](Themes::Theme theme) { Settings::instance()->set(keys::appTheme, int(theme)); });
    connect(themes, &Themes::themeAccentChanged, this, &MainWindow::updateThemeIcons);
    const auto theme = static_cast<Themes::Theme>(Settings::instance()->get(keys::appTheme));
    ui->menu_Themes->addActions(themes->themeActions(theme));
    // Applying the stored theme emitted no signal.
    updateThemeIcons(themes->isDarkTheme());
}

void MainWindow::updateThemeIcons(bool isDarkTheme) {
    Themes* themes = Themes::instance();
    themes->tintActions(isDarkTheme, actions());
    themes->tintActions(isDarkTheme, ui->toolBar->actions());
    themes->tintButtons(isDarkTheme, {ui->tBSrcSelectPath, ui->pBProcessResize, ui->tBRefreshOpenFilePath,
                                      ui->tBOllamaReconect, ui->tBSaveTagTxtFile, ui->tBSendOllamaPrompt,
                                      ui->pBOllamaGo, ui->tBAddEffect, ui->tBSaveTags, ui->tBExportTags});
    themes->tintButtons(isDarkTheme, Profiles::instance()->toolButtons());
    forEachEffectRow([isDarkTheme](ImageFilterWidgetBase* row) { row->updateIcons(isDarkTheme); });
}

void MainWindow::initConnections() {
    connect(ui->actionExit, &QAction::triggered, this, &QWidget::close);
    initStatusPanelConnections();
    initOptionsConnections();
    initViewConnections();
    initContextMenuConnections();
    initWatcherConnections();
    initFileOperationConnections();
    initSidecarConnections();
    initTagPanelConnections();
    initTagEntryConnections();
    initOllamaConnections();
    initEffectConnections();
    initProfileConnections();
    initResizeConnections();
    initEditorConnections();
    initSafetensorsConnections();
}

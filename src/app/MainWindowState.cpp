#include "app/MainWindow.h"

#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "catalogue/ViewSetup.h"
#include "imaging/Profiles.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QScreen>
#include <QStyleOption>
#include <QTabBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto defaultOllamaUrl = "http://127.0.0.1:11434/"_L1;

// An empty stored prompt leaves the text of the form.
void restorePrompt(QPlainTextEdit* edit, const QString& prompt) {
    if (!prompt.isEmpty())
        edit->setPlainText(prompt);
}

} // namespace

void MainWindow::readSettings() {
    const Settings* settings = Settings::instance();
    const bool hasGeometry = restoreGeometry(settings->data(keys::appGeometry).toByteArray());
    if (!restoreState(settings->data(keys::appState).toByteArray()))
        makeRoomForTools(!hasGeometry);
    ui->sBOllamaScaleResW->setValue(settings->data(keys::ollamaScaleResW, -1).toInt());
    ui->sBOllamaScaleResH->setValue(settings->data(keys::ollamaScaleResH, -1).toInt());
    ui->cBOllamaScaleKeepAspectRatio->setChecked(
        settings->data(keys::ollamaScaleKeepAspectRatio, true).toBool());
    ui->lEWorkingPath->setText(settings->data(keys::workingPath, QString()).toString());
    ui->cBWorkingDirScanRecursive->setChecked(settings->data(keys::workingDirScanRecursive, false).toBool());
    ui->tWTools->setCurrentIndex(settings->data(keys::currentToolsTabIndex, 0).toInt());
    ui->cBResizeSrcAspectRatio->setCurrentIndex(settings->data(keys::resizeSrcAspectRatio, 1).toInt());
    ui->hSResizeImgWriteQuality->setValue(settings->data(keys::resizeImgWriteQuality, 100).toInt());
    ui->cBResizeSrcTransformationType->setCurrentIndex(
        settings->data(keys::resizeSrcTransformationType, 1).toInt());
    restorePrompt(ui->pTEPromptSystem, settings->data(keys::promptSystem).toString());
    restorePrompt(ui->pTEPromptUser, settings->data(keys::promptUser).toString());
    ui->splitterTagsUpper->restoreState(settings->data(keys::splitterTagsUpperState).toByteArray());
    ui->splitterTagsLower->restoreState(settings->data(keys::splitterTagsLowerState).toByteArray());
    ui->splitterOllamaUpper->restoreState(settings->data(keys::splitterOllamaUpper).toByteArray());
    ui->splitterOllamaLower->restoreState(settings->data(keys::splitterOllamaLower).toByteArray());
    ui->lEOllamaIp->setText(
        QString::fromUtf8(settings->data(keys::ollamaIp, QString(defaultOllamaUrl)).toByteArray()));
    _lastOpenPathSafetensors = settings->data(keys::lastOpenPathSafetensors).toString();
    ui->cBOllamaAddTags->setChecked(settings->data(keys::ollamaAddTags, true).toBool());
    ui->lETagsSplitTag->setText(settings->data(keys::ollamaTagsSplitTag, u","_s).toString());
    ui->imgWidget->setCutOutlineWidth(settings->data(keys::toolCutOutlineWidth, 8).toInt());
    ui->lEScaleDirOutput->setText(settings->data(keys::scaleDirOutput, u"./scaled"_s).toString());
    Profiles* profiles = Profiles::instance();
    profiles->restore(settings->data(keys::filterProfiles).toByteArray());
    if (profiles->isEmpty())
        profiles->addProfile(profiles->uniqueProfile(u"Default"_s));
    ui->stackedWidget->setCurrentIndex(settings->data(keys::viewIdx, 0).toInt());
    if (!restoreHeader(ui->treeView->header(), settings->data(keys::treeViewHeaderState).toByteArray()))
        qDebug() << "Error, unable to restore tree view header state";
    restoreHeader(ui->tableView->horizontalHeader(),
                  settings->data(keys::tableViewHorizontalHeaderState).toByteArray());
    const int viewMode = settings->data(keys::listViewViewMode, int(QListView::IconMode)).toInt();
    setStaticViewMode(ui->listView,
                      viewMode == QListView::ListMode ? QListView::ListMode : QListView::IconMode);
}

// A first start shows all tabs and the largest page whole, as far as the screen has room. Tab widget and
// scroll area ask for less than they hold.
void MainWindow::makeRoomForTools(bool mayResize) {
    const QWidget* page = ui->scrollAreaResizeContents;
    page->layout()->activate();
    const QSize tabs = ui->tWTools->tabBar()->sizeHint();
    const QSize pages = page->sizeHint();
    const QStyleOptionTabWidgetFrame frame;
    const QSize tools = style()->sizeFromContents(
        QStyle::CT_TabWidget, &frame,
        QSize(std::max(tabs.width(), pages.width()), tabs.height() + pages.height()), ui->tWTools);
    if (mayResize)
        resize((sizeHint() + tools - ui->tWTools->sizeHint()).boundedTo(screen()->availableSize()));
    resizeDocks({ui->dockWidget_Tools}, {tools.width()}, Qt::Horizontal);
}

void MainWindow::writeSettings() {
    onFilterProfilesCurrentAboutToChange();
    Settings* settings = Settings::instance();
    settings->setData(keys::appGeometry, saveGeometry());
    settings->setData(keys::appState, saveState());
    settings->setData(keys::ollamaScaleResW, ui->sBOllamaScaleResW->value());
    settings->setData(keys::ollamaScaleResH, ui->sBOllamaScaleResH->value());
    settings->setData(keys::ollamaScaleKeepAspectRatio, ui->cBOllamaScaleKeepAspectRatio->isChecked());
    settings->setData(keys::workingPath, ui->lEWorkingPath->text());
    settings->setData(keys::workingDirScanRecursive, ui->cBWorkingDirScanRecursive->isChecked());
    settings->setData(keys::currentToolsTabIndex, ui->tWTools->currentIndex());
    settings->setData(keys::resizeSrcAspectRatio, ui->cBResizeSrcAspectRatio->currentIndex());
    settings->setData(keys::resizeImgWriteQuality, ui->hSResizeImgWriteQuality->value());
    settings->setData(keys::resizeSrcTransformationType, ui->cBResizeSrcTransformationType->currentIndex());
    settings->setData(keys::promptSystem, ui->pTEPromptSystem->toPlainText());
    settings->setData(keys::promptUser, ui->pTEPromptUser->toPlainText());
    settings->setData(keys::splitterTagsUpperState, ui->splitterTagsUpper->saveState());
    settings->setData(keys::splitterTagsLowerState, ui->splitterTagsLower->saveState());
    settings->setData(keys::splitterOllamaUpper, ui->splitterOllamaUpper->saveState());
    settings->setData(keys::splitterOllamaLower, ui->splitterOllamaLower->saveState());
    settings->setData(keys::ollamaIp, ui->lEOllamaIp->text());
    settings->setData(keys::lastOpenPathSafetensors, _lastOpenPathSafetensors);
    settings->setData(keys::ollamaAddTags, ui->cBOllamaAddTags->isChecked());
    settings->setData(keys::ollamaTagsSplitTag, ui->lETagsSplitTag->text());
    settings->setData(keys::toolCutOutlineWidth, ui->imgWidget->cutOutlineWidth());
    settings->setData(keys::scaleDirOutput, ui->lEScaleDirOutput->text());
    settings->setData(keys::filterProfiles, Profiles::instance()->save());
    settings->setData(keys::viewIdx, ui->stackedWidget->currentIndex());
    settings->setData(keys::treeViewHeaderState, ui->treeView->header()->saveState());
    settings->setData(keys::tableViewHorizontalHeaderState, ui->tableView->horizontalHeader()->saveState());
    settings->setData(keys::listViewViewMode, int(ui->listView->viewMode()));
}

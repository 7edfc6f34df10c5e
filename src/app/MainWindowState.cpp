#include "app/MainWindow.h"

#include "app/services/Settings.h"
#include "catalogue/ViewSetup.h"
#include "imaging/Profiles.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QScreen>
#include <QStyleOption>
#include <QTabBar>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstPreviewWidth = 280;

// A value that is kept between runs: how it is restored and how it is stored.
struct KeptValue {
    std::function<void(const Settings&)> read;
    std::function<void(Settings&)> write;
};

template <typename T, typename Restore, typename Current>
KeptValue kept(const Setting<T>& setting, Restore restore, Current current) {
    return {[=](const Settings& settings) { restore(settings.get(setting)); },
            [=](Settings& settings) { settings.set(setting, current()); }};
}

// A spin box or a slider.
template <typename Box>
KeptValue keptNumber(const Setting<int>& setting, Box* box) {
    return kept(setting, [box](int value) { box->setValue(value); }, [box] { return box->value(); });
}

// The current entry of a combo box, tab widget or stack.
template <typename Widget>
KeptValue keptIndex(const Setting<int>& setting, Widget* widget) {
    return kept(
        setting, [widget](int index) { widget->setCurrentIndex(index); },
        [widget] { return widget->currentIndex(); });
}

KeptValue kept(const Setting<bool>& setting, QCheckBox* box) {
    return kept(setting, [box](bool on) { box->setChecked(on); }, [box] { return box->isChecked(); });
}

KeptValue kept(const Setting<QString>& setting, QLineEdit* edit) {
    return kept(
        setting, [edit](const QString& text) { edit->setText(text); }, [edit] { return edit->text(); });
}

// An empty stored prompt leaves the text of the form.
KeptValue keptPrompt(const Setting<QString>& setting, QPlainTextEdit* edit) {
    return kept(
        setting,
        [edit](const QString& prompt) {
            if (!prompt.isEmpty())
                edit->setPlainText(prompt);
        },
        [edit] { return edit->toPlainText(); });
}

KeptValue kept(const Setting<QByteArray>& setting, QSplitter* splitter) {
    return kept(
        setting, [splitter](const QByteArray& state) { splitter->restoreState(state); },
        [splitter] { return splitter->saveState(); });
}

KeptValue kept(const Setting<QByteArray>& setting, QHeaderView* header, const char* failure = nullptr) {
    return kept(
        setting,
        [=](const QByteArray& state) {
            if (!restoreHeader(header, state) && failure)
                qDebug() << failure;
        },
        [header] { return header->saveState(); });
}

void restoreProfiles(const QByteArray& stream) {
    Profiles* profiles = Profiles::instance();
    profiles->restore(stream);
    if (profiles->isEmpty())
        profiles->addProfile(profiles->uniqueProfile(u"Default"_s));
}

// The widgets' values in the order in which they are restored and stored.
QList<KeptValue> keptWidgetValues(const Ui::MainWindow& ui, QString& lastOpenPathSafetensors) {
    EditImageWidget* view = ui.imgWidget;
    QListView* list = ui.listView;
    return {
        keptNumber(keys::ollamaScaleResW, ui.sBOllamaScaleResW),
        keptNumber(keys::ollamaScaleResH, ui.sBOllamaScaleResH),
        kept(keys::ollamaScaleKeepAspectRatio, ui.cBOllamaScaleKeepAspectRatio),
        kept(keys::workingPath, ui.lEWorkingPath),
        kept(keys::workingDirScanRecursive, ui.cBWorkingDirScanRecursive),
        keptIndex(keys::currentToolsTabIndex, ui.tWTools),
        keptIndex(keys::resizeSrcAspectRatio, ui.cBResizeSrcAspectRatio),
        keptNumber(keys::resizeImgWriteQuality, ui.hSResizeImgWriteQuality),
        keptIndex(keys::resizeSrcTransformationType, ui.cBResizeSrcTransformationType),
        keptPrompt(keys::promptSystem, ui.pTEPromptSystem),
        keptPrompt(keys::promptUser, ui.pTEPromptUser),
        kept(keys::splitterTagsUpperState, ui.splitterTagsUpper),
        kept(keys::splitterTagsLowerState, ui.splitterTagsLower),
        kept(keys::splitterOllamaUpper, ui.splitterOllamaUpper),
        kept(keys::splitterOllamaLower, ui.splitterOllamaLower),
        kept(keys::ollamaIp, ui.lEOllamaIp),
        kept(
            keys::lastOpenPathSafetensors,
            [&lastOpenPathSafetensors](const QString& path) { lastOpenPathSafetensors = path; },
            [&lastOpenPathSafetensors] { return lastOpenPathSafetensors; }),
        kept(keys::ollamaAddTags, ui.cBOllamaAddTags),
        kept(keys::ollamaTagsSplitTag, ui.lETagsSplitTag),
        kept(
            keys::toolCutOutlineWidth, [view](int width) { view->setCutOutlineWidth(width); },
            [view] { return view->cutOutlineWidth(); }),
        kept(keys::scaleDirOutput, ui.lEScaleDirOutput),
        kept(keys::filterProfiles, restoreProfiles, [] { return Profiles::instance()->save(); }),
        keptIndex(keys::viewIdx, ui.stackedWidget),
        kept(keys::treeViewHeaderState, ui.treeView->header(),
             "Error, unable to restore tree view header state"),
        kept(keys::tableViewHorizontalHeaderState, ui.tableView->horizontalHeader()),
        kept(
            keys::listViewViewMode,
            [list](int mode) {
                // Any other number, which a damaged settings file may hold, means icons.
                setStaticViewMode(list,
                                  mode == QListView::ListMode ? QListView::ListMode : QListView::IconMode);
            },
            [list] { return int(list->viewMode()); }),
    };
}

} // namespace

void MainWindow::readSettings() {
    const Settings& settings = *Settings::instance();
    // Both calls fail at a first start, when nothing is stored.
    const bool hasGeometry = restoreGeometry(settings.get(keys::appGeometry));
    if (!restoreState(settings.get(keys::appState)))
        makeRoomForTools(!hasGeometry);
    const auto values = keptWidgetValues(*ui, _lastOpenPathSafetensors);
    for (const KeptValue& value : values)
        value.read(settings);
}

// A first start shows all tabs and the largest page whole, as far as the screen has room. The size hints of
// tab widgets and scroll areas are smaller than their contents, so the contents are measured.
void MainWindow::makeRoomForTools(bool mayResize) {
    const QWidget* page = ui->scrollAreaResizeContents;
    // The page was not shown yet, so its layout has not computed its size hint.
    page->layout()->activate();
    const QSize tabs = ui->tWTools->tabBar()->sizeHint();
    const QSize pages = page->sizeHint();
    const QStyleOptionTabWidgetFrame frame;
    const QSize tools = style()->sizeFromContents(
        QStyle::CT_TabWidget, &frame,
        QSize(std::max(tabs.width(), pages.width()), tabs.height() + pages.height()), ui->tWTools);
    if (mayResize) {
        // The window's own hint includes those of the docks, so only the differences are added to it.
        const QSize preview(firstPreviewWidth - ui->dockWidget_ImgPreview->sizeHint().width(), 0);
        resize((sizeHint() + tools - ui->tWTools->sizeHint() + preview).boundedTo(screen()->availableSize()));
    }
    resizeDocks({ui->dockWidget_ImgPreview, ui->dockWidget_Tools}, {firstPreviewWidth, tools.width()},
                Qt::Horizontal);
}

void MainWindow::writeSettings() {
    // Copies the chain of filters that is shown into the current profile, which is stored below.
    onFilterProfilesCurrentAboutToChange();
    Settings& settings = *Settings::instance();
    settings.set(keys::appGeometry, saveGeometry());
    settings.set(keys::appState, saveState());
    const auto values = keptWidgetValues(*ui, _lastOpenPathSafetensors);
    for (const KeptValue& value : values)
        value.write(settings);
}

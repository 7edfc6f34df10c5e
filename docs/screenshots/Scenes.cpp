#include "Scenes.h"

#include "editor/EditImageDialog.h"
#include "editor/EditImageWidget.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "ollama/OllamaPeer.h"
#include "safetensors/SafetensorsDialog.h"
#include "support/ModalAnswer.h"
#include "tags/TagsExportDialog.h"
#include "video/VideoWidget.h"
#include "video/VideoWidgetFrameGrabber.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMediaPlayer>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolButton>

namespace {

constexpr QSize mainWindowSize(1240, 740);
constexpr int stillMs = 400;
constexpr int sheetWidth = 2000;
constexpr int themeColumns = 4;

template <typename T>
T* child(const QWidget* parent, const char* name) {
    auto* found = parent->findChild<T*>(QLatin1StringView(name));
    if (!found)
        qFatal("no widget %s", name);
    return found;
}

template <typename Condition>
void waitFor(const char* what, Condition condition) {
    if (!QTest::qWaitFor(condition, 30000))
        qFatal("%s did not come", what);
}

// The newest tool window of a kind; its parent is the main window or another tool window.
template <typename T>
T* toolWindow(const QWidget* parent) {
    const auto found = parent->findChildren<T*>();
    if (found.isEmpty())
        qFatal("no window of class %s", T::staticMetaObject.className());
    found.last()->move(40, 20);
    return found.last();
}

} // namespace

Scenes::Scenes(const QString& dataDirectory, const QString& pictureDirectory, OllamaPeer& peer)
    : _data(dataDirectory), _pictures(pictureDirectory), _driver(dataDirectory) {
    _driver.widget<QLineEdit>("lEOllamaIp")->setText(peer.url());
    _driver.click("tBOllamaReconect");
    window()->move(0, 0);
    window()->resize(mainWindowSize);
    _driver.window().onImagesSortByFileName();
    QTest::qWait(stillMs);
}

void Scenes::takeAll() {
    views();
    tagTabs();
    captions();
    effects();
    editor();
    video();
    model();
    exportAndOptions();
    themes();
}

void Scenes::showView(int page) {
    _driver.widget<QStackedWidget>("stackedWidget")->setCurrentIndex(page);
}

void Scenes::select(const QStringList& fileNames) {
    _driver.select(fileNames);
    auto* view =
        _driver.widget<QStackedWidget>("stackedWidget")->currentWidget()->findChild<QAbstractItemView*>();
    const QModelIndex first = view->selectionModel()->selectedIndexes().first();
    view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    view->scrollTo(first);
}

void Scenes::showTab(const char* tab) {
    _driver.widget<QTabWidget>("tWTools")->setCurrentWidget(_driver.widget<QWidget>(tab));
}

// The window as the screen shows it, video pictures included.
QImage Scenes::seen(QWidget* widget) const {
    QWidget* top = widget->window();
    top->raise();
    top->activateWindow();
    QTest::qWait(stillMs);
    const QRect place(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    return top->screen()->grabWindow(0, place.x(), place.y(), place.width(), place.height()).toImage();
}

void Scenes::save(const QString& name, QWidget* widget) const {
    const QString path = _pictures + '/' + name + ".png";
    if (!seen(widget).save(path))
        qFatal("cannot write %s", qPrintable(path));
}

void Scenes::views() {
    showTab("tabTags");
    select({"alpine_lake.png"});
    save("main-window", window());
    showView(1);
    select({"pan_noon.mp4"});
    QTest::qWait(1500);
    save("view-tree", window());
    showView(2);
    showTab("tabImageCOmment");
    select({"alpine_lake.png", "evening_fjord.png"});
    save("view-table", window());
    showView(0);
}

void Scenes::tagTabs() {
    QWidget* tools = _driver.widget<QDockWidget>("dockWidget_Tools");
    showTab("tabTags");
    select({"alpine_lake.png", "evening_fjord.png"});
    _driver.widget<QListWidget>("lwAllImagesTags")->setFocus();
    save("tags", tools);
    showTab("tabResize");
    save("resize", tools);
    // Every button of the panel but the progress of a batch, which a picture cannot hold still.
    _driver.window().onSaveTags();
    _driver.window().onAddTagsAccepted("water");
    auto* filter = _driver.widget<QLineEdit>("leFilterImages");
    filter->setText("water");
    save("status", _driver.widget<QStatusBar>("statusbar"));
    filter->clear();
    _driver.window().onUndoTags();
}

void Scenes::captions() {
    showTab("tabOllama");
    _driver.widget<QSpinBox>("sBOllamaScaleResW")->setValue(512);
    select({"first_light.jpg"});
    _driver.click("pBOllamaGo");
    save("ollama", _driver.widget<QDockWidget>("dockWidget_Tools"));
}

void Scenes::effects() {
    showTab("tabImgDSP");
    select({"quiet_water.jpg"});
    auto* list = _driver.widget<QListWidget>("lWDspEffects");
    const QList<std::pair<const char*, int>> chain{{"Brightness", 35}, {"BlackPoint", 30}, {"Blur", 3}};
    for (const auto& [filter, value] : chain) {
        _driver.widget<QComboBox>("cBDspEffectsList")->setCurrentText(filter);
        _driver.click("tBAddEffect");
        auto* row = qobject_cast<ImageFilterWidgetBase*>(list->itemWidget(list->item(list->count() - 1)));
        row->findChild<QAbstractSlider*>()->setValue(value);
    }
    save("effects", window());
    showTab("tabTags");
}

void Scenes::editor() {
    select({"evening_fjord.png"});
    _driver.window().editImage();
    auto* dialog = toolWindow<EditImageDialog>(window());
    dialog->resize(860, 580);
    child<QToolButton>(dialog, "tBAutoCenter")->click();
    child<QToolButton>(dialog, "tBAutoFit")->click();
    child<QToolButton>(dialog, "tBToolCut")->click();
    const QList<std::pair<const char*, double>> place{
        {"dSBCutWidth", 900}, {"dSBCutHeight", 900}, {"dSBCutX", 420}, {"dSBCutY", 90}};
    for (const auto& [box, value] : place)
        child<QDoubleSpinBox>(dialog, box)->setValue(value);
    save("editor", dialog);
    dialog->close();
}

void Scenes::video() {
    VideoWidget* player = _driver.window().showEditVideoWidget();
    player->move(40, 20);
    player->resize(800, 540);
    player->openFile(_data + "/pan_evening.mp4");
    auto* media = player->findChild<QMediaPlayer*>();
    waitFor("the clip", [media] { return media->duration() > 0; });
    media->setPosition(media->duration() / 2);
    QTest::qWait(1500);
    save("video", player);
    child<QToolButton>(player, "tBGrabSeries")->click();
    auto* grabber = toolWindow<VideoWidgetFrameGrabber>(player);
    grabber->resize(780, 560);
    child<QSpinBox>(grabber, "sBFrameNum")->setValue(6);
    child<QPushButton>(grabber, "pBGrabFrames")->click();
    const auto* frames = child<QListWidget>(grabber, "listWidget");
    waitFor("the frames", [frames] { return frames->count() >= 6; });
    save("grabber", grabber);
    grabber->close();
    player->close();
}

void Scenes::model() {
    const ModalAnswer answer(chooseFiles({_data + "/models/painted_landscapes.safetensors"}));
    _driver.window().onInspectSafetensor();
    auto* dialog = toolWindow<SafetensorsDialog>(window());
    dialog->resize(900, 460);
    child<QAbstractButton>(dialog, "cBTensor")->click();
    save("inspector", dialog);
    dialog->close();
}

void Scenes::exportAndOptions() {
    _driver.click("tBExportTags");
    auto* dialog = toolWindow<TagsExportDialog>(window());
    dialog->resize(560, 420);
    save("export", dialog);
    dialog->close();
    const ModalAnswer answer([this](QDialog* options) {
        options->move(40, 20);
        save("options", options);
        options->close();
    });
    _driver.window().onOptions();
}

// All themes of the menu in one picture.
void Scenes::themes() {
    const QSize size(1100, 640);
    window()->resize(size);
    select({"midnight.png"});
    const QList<QAction*> actions = _driver.widget<QMenu>("menu_Themes")->actions();
    const int rows = int(actions.size() + themeColumns - 1) / themeColumns;
    const QSize tile = size.scaled(sheetWidth / themeColumns, size.height(), Qt::KeepAspectRatio);
    QImage sheet(sheetWidth, rows * tile.height(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    for (qsizetype place = 0; place < actions.size(); ++place) {
        actions.at(place)->trigger();
        const QPoint corner(int(place) % themeColumns * tile.width(),
                            int(place) / themeColumns * tile.height());
        painter.drawImage(corner,
                          seen(window()).scaled(tile, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    painter.end();
    if (!sheet.save(_pictures + "/themes.png"))
        qFatal("cannot write the themes");
}

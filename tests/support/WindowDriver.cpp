#include "support/WindowDriver.h"

#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaModel.h"
#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QItemSelectionModel>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QStatusBar>

void WindowDriver::forgetSettings() {
    for (const char* name : {"/settings.data", "/app-current.log", "/app-previous.log"})
        QFile::remove(QCoreApplication::applicationDirPath() + name);
}

QString WindowDriver::emptyDirectory() {
    const QString path = QCoreApplication::applicationDirPath() + "/empty";
    QDir().mkpath(path);
    return path;
}

void WindowDriver::useScreen(QSize size) {
    QFile file("screen.json");
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write screen.json");
    const QJsonObject screen{
        {"name", "desk"}, {"width", size.width()}, {"height", size.height()}, {"logicalDpi", 96}, {"dpr", 1}};
    file.write(QJsonDocument(QJsonObject{{"screens", QJsonArray{screen}}}).toJson());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screen.json");
}

WindowDriver::WindowDriver(const QString& workingPath) : _window(std::make_unique<MainWindow>()) {
    // The scan of the start runs a moment later and reads this text.
    widget<QLineEdit>("lEWorkingPath")->setText(workingPath.isEmpty() ? emptyDirectory() : workingPath);
    _window->show();
    if (!waitForLoad())
        qFatal("the directory did not load");
}

WindowDriver::~WindowDriver() = default;

void WindowDriver::restart() {
    _window.reset();
    _readLog = 0;
    _window = std::make_unique<MainWindow>();
    _window->show();
    if (!waitForLoad())
        qFatal("the directory did not load after a restart");
}

bool WindowDriver::waitForLoad() {
    return QTest::qWaitFor(
        [this] {
            const QString text = log();
            // Messages are logged as they are shown, in the language of the window.
            const auto lastOf = [&](const QString& message) {
                return text.lastIndexOf(message.section("%1", 0, 0));
            };
            const qsizetype begin = lastOf(MainWindow::tr("Checking directory: %1"));
            return text.count("\n") > 0 && lastOf(MainWindow::tr("Found: %1 files")) > begin &&
                   (catalogue()->rowCount() == 0 ||
                    lastOf(ImageLoaderThreaded::tr("Loaded all media previews in: %1 s")) > begin);
        },
        60000);
}

void WindowDriver::rescan() {
    _window->openWorkingDirectory(widget<QLineEdit>("lEWorkingPath")->text());
    if (!waitForLoad())
        qFatal("the directory did not load again");
}

void WindowDriver::click(const char* buttonName) const {
    auto* button = widget<QAbstractButton>(buttonName);
    if (!button->isEnabled())
        qFatal("%s is disabled", buttonName);
    button->click();
}

void WindowDriver::trigger(const char* name) const {
    const QList<QAction*> actions = _window->findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->objectName() == QLatin1StringView(name) ||
            action->data().toString() == QLatin1StringView(name))
            return action->trigger();
    }
    qFatal("no action %s", name);
}

bool WindowDriver::choose(const char* widgetName, const QString& entry) const {
    const ModalAnswer answer(entry);
    emit widget<QWidget>(widgetName)->customContextMenuRequested({});
    return answer.isUsed();
}

QWidget* WindowDriver::toolWindow(const char* name) const {
    const QList<QWidget*> windows = _window->findChildren<QWidget*>(QLatin1StringView(name));
    for (qsizetype number = windows.size() - 1; number >= 0; --number) {
        if (windows[number]->isVisible())
            return windows[number];
    }
    qFatal("no window %s", name);
}

QString WindowDriver::text(const char* name) const {
    const auto* shown = widget<QWidget>(name);
    const QVariant plain = shown->property("plainText");
    return (plain.isValid() ? plain : shown->property("text")).toString();
}

void WindowDriver::settle() {
    constexpr int patience = 10'000;
    for (int round = 0; round < patience; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            return;
    }
}

QString WindowDriver::statusText() const {
    return _window->statusBar()->currentMessage();
}

QString WindowDriver::log() {
    QFile file(QCoreApplication::applicationDirPath() + "/app-current.log");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

qsizetype WindowDriver::logCount(const QString& text) {
    return log().count(text);
}

QStringList WindowDriver::freshLog() {
    QFile file(QCoreApplication::applicationDirPath() + "/app-current.log");
    if (!file.open(QIODevice::ReadOnly) || !file.seek(_readLog))
        return {};
    const QByteArray fresh = file.readAll();
    _readLog += fresh.size();
    QStringList lines = QString::fromUtf8(fresh).split('\n', Qt::SkipEmptyParts);
    for (QString& line : lines)
        line.remove(0, line.indexOf("] ") + 2);
    return lines;
}

bool WindowDriver::isLoadOver() {
    const QString text = log();
    return text.lastIndexOf("ImageLoaderThreaded::processQueue") <=
           text.lastIndexOf("Loaded all media previews in");
}

QAbstractItemModel* WindowDriver::catalogue() const {
    auto* model = _window->findChild<QStandardItemModel*>(QString(), Qt::FindDirectChildrenOnly);
    if (!model)
        qFatal("no catalogue");
    return model;
}

QVariant WindowDriver::cellData(const QString& fileName, int column, int role) const {
    const QModelIndexList rows = catalogue()->match(catalogue()->index(0, ColName), Qt::DisplayRole, fileName,
                                                    1, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (rows.isEmpty())
        qFatal("no row of %s", qPrintable(fileName));
    return rows.first().siblingAtColumn(column).data(role);
}

QString WindowDriver::cell(const QString& fileName, int column, int role) const {
    return cellData(fileName, column, role).toString();
}

QStringList WindowDriver::catalogueNames() const {
    QStringList names;
    for (int row = 0; row < catalogue()->rowCount(); ++row)
        names.append(catalogue()->index(row, ColName).data().toString());
    names.sort();
    return names;
}

QStringList WindowDriver::shownNames(const char* viewName) const {
    QStringList names;
    const QAbstractItemModel* model = widget<QAbstractItemView>(viewName)->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names.append(model->index(row, ColName).data().toString());
    return names;
}

QAbstractItemView* WindowDriver::currentView() const {
    return widget<QStackedWidget>("stackedWidget")->currentWidget()->findChild<QAbstractItemView*>();
}

QStringList WindowDriver::selectedNames() const {
    QStringList names;
    const QModelIndexList cells = currentView()->selectionModel()->selectedIndexes();
    for (const QModelIndex& cell : cells) {
        if (cell.column() == ColName)
            names.append(cell.data().toString());
    }
    names.sort();
    return names;
}

void WindowDriver::select(const QStringList& fileNames) const {
    const QAbstractItemView* view = currentView();
    const QAbstractItemModel* model = view->model();
    QItemSelection selection;
    for (const QString& name : fileNames) {
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row, ColName).data().toString() == name)
                selection.select(model->index(row, 0), model->index(row, model->columnCount() - 1));
        }
    }
    view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QStringList WindowDriver::tagTexts(const char* listName, bool onlySelected) const {
    QStringList texts;
    const auto* list = widget<QListWidget>(listName);
    for (int row = 0; row < list->count(); ++row) {
        if (!onlySelected || list->item(row)->isSelected())
            texts.append(list->item(row)->text());
    }
    return texts;
}

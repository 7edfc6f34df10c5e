#include "support/WindowDriver.h"

#include "catalogue/MediaModel.h"
#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
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

WindowDriver::WindowDriver(const QString& workingPath) : _window(std::make_unique<MainWindow>()) {
    // The scan of the start comes a moment later and reads this text.
    widget<QLineEdit>("lEWorkingPath")->setText(workingPath.isEmpty() ? emptyDirectory() : workingPath);
    _window->show();
    if (!waitForLoad())
        qFatal("the directory did not load");
}

WindowDriver::~WindowDriver() = default;

bool WindowDriver::waitForLoad() {
    return QTest::qWaitFor(
        [this] {
            const QString text = log();
            return text.count("\n") > 0 &&
                   text.lastIndexOf("Found: ") > text.lastIndexOf("Checking directory: ") &&
                   (catalogue()->rowCount() == 0 || text.lastIndexOf("Loaded all media previews in: ") >
                                                        text.lastIndexOf("Checking directory: "));
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

QStringList WindowDriver::shownNames() const {
    QStringList names;
    const QAbstractItemModel* model = widget<QListView>("listView")->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names.append(model->index(row, ColName).data().toString());
    return names;
}

void WindowDriver::select(const QStringList& fileNames) const {
    auto* stack = widget<QStackedWidget>("stackedWidget");
    auto* view = stack->currentWidget()->findChild<QAbstractItemView*>();
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

QStringList WindowDriver::tagTexts(const char* listName) const {
    QStringList texts;
    const auto* list = widget<QListWidget>(listName);
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

bool WindowDriver::chooseFromMediaMenu(const QString& entry) const {
    const ModalAnswer answer(entry);
    _window->onImagesCustomContextMenu();
    return answer.isUsed();
}

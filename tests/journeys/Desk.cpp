#include "journeys/Desk.h"

#include "catalogue/MediaModel.h"
#include "support/Clips.h"
#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QDirIterator>
#include <QDockWidget>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMediaPlayer>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>
#include <QVideoWidget>

using namespace Qt::StringLiterals;

namespace {

// Answers each modal window that is opened with the next answer, and records its question.
class Answers : public QObject {
public:
    Answers(const QStringList& answers, QStringList& asked) : _answers(answers), _asked(asked) {
        startTimer(2);
    }

protected:
    void timerEvent(QTimerEvent*) override {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog == _last || dialog->objectName() == "AddTagsDialog")
            return;
        _last = dialog;
        const QString answer = _answers.isEmpty() ? QString() : _answers.takeFirst();
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        auto* input = qobject_cast<QInputDialog*>(dialog);
        _asked.append(box ? box->text() : input ? input->labelText() : dialog->windowTitle());
        if (box) {
            for (QAbstractButton* button : box->buttons()) {
                if (button->text().remove('&') == answer)
                    return button->click();
            }
        } else if (qobject_cast<QFileDialog*>(dialog) && !answer.isEmpty()) {
            return chooseFiles(answer.split('|'))(dialog);
        } else if (input && !answer.isEmpty()) {
            input->setTextValue(answer);
            return input->accept();
        } else if (dialog->findChild<QLineEdit*>("lESrcText") && !answer.isEmpty()) {
            dialog->findChild<QLineEdit*>("lESrcText")->setText(answer.section('|', 0, 0));
            dialog->findChild<QLineEdit*>("lEDstText")->setText(answer.section('|', 1));
            return dialog->findChild<QAbstractButton*>("pBOk")->click();
        }
        dialog->reject();
    }

private:
    QStringList _answers;
    QStringList& _asked;
    const QDialog* _last = nullptr;
};

const char* const menuOwners[] = {"listView",     "lwImageTags",           "lwAllImagesTags",
                                  "lWDspEffects", "dockWidget_ImgPreview", "imgWidget",
                                  "listWidget"};

QString joined(const QAbstractItemModel* model, int column = 0) {
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, column).data().toString());
    return texts.join('|');
}

// The order of a directory and of the tag record is arbitrary.
QString sorted(const QString& texts) {
    QStringList all = texts.split('|');
    all.sort();
    return all.join('|');
}

// What a widget shows that a user can read or change.
QString shownBy(const QWidget* widget) {
    if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
        QStringList rows;
        for (int row = 0; row < list->count(); ++row) {
            if (list->isRowHidden(row))
                continue;
            QWidget* rowWidget = list->itemWidget(list->item(row));
            const auto* label = rowWidget ? rowWidget->findChild<QLabel*>("labelFiltername") : nullptr;
            const auto* bypass = rowWidget ? rowWidget->findChild<QAbstractButton*>("cBEnabled") : nullptr;
            const auto* value = rowWidget ? rowWidget->findChild<QAbstractSlider*>() : nullptr;
            rows.append((label ? label->text() : list->item(row)->text()) +
                        (bypass && bypass->isChecked() ? " off" : "") +
                        (value ? QString(" %1").arg(value->value()) : QString()));
        }
        if (list->objectName() == "lwAllImagesTags")
            rows.sort();
        return rows.join('|') + (list->viewMode() == QListView::ListMode ? " (list)" : "") +
               (list->updatesEnabled() ? "" : " (frozen)");
    }
    if (const auto* tree = qobject_cast<const QTreeWidget*>(widget)) {
        QStringList rows;
        for (int top = 0; top < tree->topLevelItemCount(); ++top) {
            QStringList texts;
            for (int row = 0; row < tree->topLevelItem(top)->childCount(); ++row) {
                const QTreeWidgetItem* item = tree->topLevelItem(top)->child(row);
                // The other metadata of a clip depends on the program that made it.
                if (item->text(0)[0].isLower() ||
                    QStringList{"Comment", "Duration", "Resolution"}.contains(item->text(0)))
                    texts.append(item->text(0) + ": " + item->text(1));
            }
            texts.sort();
            rows.append(tree->topLevelItem(top)->text(0));
            rows += texts;
        }
        return rows.join('|');
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(widget))
        return combo->currentText() + " of " + joined(combo->model());
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return button->text() + (button->isChecked() ? " on" : "") + (button->isEnabled() ? "" : " disabled");
    }
    if (const auto* dock = qobject_cast<const QDockWidget*>(widget))
        return dock->windowTitle();
    // A player reports its state at an unpredictable time.
    if (const auto* bar = qobject_cast<const QStatusBar*>(widget))
        return bar->currentMessage().startsWith("Status: ") ? QString() : bar->currentMessage();
    if (qobject_cast<const QStackedWidget*>(widget) || qobject_cast<const QTabWidget*>(widget))
        return (widget->isVisible() ? "page " : "hidden, page ") +
               widget->property("currentIndex").toString();
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(widget))
        return edit->toPlainText();
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget))
        return sorted(joined(view->model())) + (widget->property("viewMode").toInt() == 0 ? " (list)" : "");
    for (const char* property : {"value", "text"}) {
        if (widget->property(property).isValid())
            return widget->property(property).toString();
    }
    return {};
}

} // namespace

Desk::Desk(const Fill& fill)
    : driver([&] {
        WindowDriver::forgetSettings();
        fill(folder);
        return folder.path();
    }()) {
    words["FOLDER"] = folder.path();
    words["CLIPS"] = TESSARINE_CLIPS;
    QDesktopServices::setUrlHandler("file", this, "open");
}

Desk::~Desk() {
    QDesktopServices::unsetUrlHandler("file");
}

void Desk::open(const QUrl& url) {
    _opened.append(url.toLocalFile());
}

QString Desk::perform(const QList<Step>& steps) {
    static_cast<void>(world());
    for (const Step& step : steps) {
        const QString differs = perform(step);
        if (!differs.isEmpty())
            return QString::fromUtf8(step.what) + '\n' + differs;
    }
    return {};
}

QString Desk::perform(const Step& step) {
    const QStringList parts = QString::fromUtf8(step.what).split(" -> ");
    _asked.clear();
    _sorts = _sortsTags = false;
    _opened.clear();
    static_cast<void>(driver.freshLog());
    _log.clear();
    const Facts before = world();
    _sorts = parts.first().contains("&Sort/");
    _sortsTags = parts.first() == "lwAllImagesTags > &Sort";
    {
        const Answers answers(meant(parts.value(1)).split(", ", Qt::SkipEmptyParts), _asked);
        act(meant(parts.first()));
        WindowDriver::settle();
    }
    Facts expected = before;
    if (parts.first().startsWith("select ") && !parts.first().contains(" in "))
        expected.insert(selectionFacts(parts.first().section(' ', 1).split('|')));
    QStringList chosenByWindow;
    for (const QString& change : QString::fromUtf8(step.changes).split(" ; ", Qt::SkipEmptyParts)) {
        const QString value = change.section('=', 1);
        if (value == "*")
            chosenByWindow.append(change.section('=', 0, 0));
        else if (value == "(nothing)")
            expected.remove(change.section('=', 0, 0));
        else
            expected[change.section('=', 0, 0)] = value;
    }
    expected.removeIf([](const Facts::iterator& fact) { return fact.value().isEmpty(); });
    QString differs;
    const bool isSame = QTest::qWaitFor(
        [&] {
            WindowDriver::settle();
            const Facts now = world();
            for (const QString& name : std::as_const(chosenByWindow))
                now.contains(name) ? void(expected[name] = now[name]) : void(expected.remove(name));
            differs = difference(withWindows(expected, before, now), now);
            return differs.isEmpty() && WindowDriver::isLoadOver();
        },
        qEnvironmentVariableIsSet("TESSARINE_RECORD") ? 900 : 10'000);
    if (!isSame && qEnvironmentVariableIsSet("TESSARINE_RECORD")) {
        QStringList changes;
        Facts all = before;
        const Facts now = world();
        all.insert(now);
        for (auto fact = all.cbegin(); fact != all.cend(); ++fact) {
            const QString window = fact.key().section('.', 0, 0);
            const bool comesWithWindow = window != fact.key() && window[0].isUpper() &&
                                         before.contains(window) != now.contains(window);
            if (!comesWithWindow &&
                before.value(fact.key(), "(nothing)") != now.value(fact.key(), "(nothing)"))
                changes.append(fact.key() + "=" + now.value(fact.key(), "(nothing)"));
        }
        fprintf(stderr, "RECORD {R\"(%s)\", R\"(%s)\"},\n", step.what, qPrintable(changes.join(" ; ")));
        return {};
    }
    return isSame ? QString() : differs;
}

// What a selection shows of the files. The tags of the record and the metadata of clips are left to the step.
Facts Desk::selectionFacts(QStringList names) const {
    Facts facts;
    facts["labelCurrentSelectionTags"] = QString("Current selection [%1] tags:").arg(names.size());
    facts["statusbar"] = QString("Selected: %1 items").arg(names.size());
    facts["selected"] = names.join('|');
    const QString txtName = names[0].section('.', 0, -2) + ".txt";
    facts["labelTagsFromFile"] =
        (folder.exists(txtName) ? "File: FOLDER/" : "File tag, txt, missing for: FOLDER/") + txtName;
    facts["pTETagsFromFile"] = plain(folder.content(txtName));
    if (const QImage image(folder.filePath(names[0])); !image.isNull()) {
        facts["dockWidget_ImgPreview"] =
            QString("Image %1x%2 preview").arg(image.width()).arg(image.height());
        facts["imgWidget"] = middleColour(image);
        facts["stackedWidgetMediaPreview"] = "page 0";
        for (QString& name : names) {
            const QImage selected(folder.filePath(name));
            for (const QString& key : selected.textKeys())
                name += '|' + key + ": " + selected.text(key);
        }
        facts["tWComments"] = names.join('|');
    }
    return facts;
}

// The facts of a tool window appear and disappear with it, unless the step lists them.
Facts Desk::withWindows(Facts expected, const Facts& before, const Facts& now) {
    for (const auto& [name, value] : now.asKeyValueRange()) {
        const QString window = name.section('.', 0, 0);
        if (window != name && !before.contains(window) && expected.contains(window) &&
            !expected.contains(name))
            expected[name] = value;
    }
    expected.removeIf([&](const Facts::iterator& fact) {
        const QString window = fact.key().section('.', 0, 0);
        return window != fact.key() && window[0].isUpper() && before.contains(window) &&
               !expected.contains(window);
    });
    return expected;
}

void Desk::act(const QString& what) {
    QString used = what;
    _used.insert(used.replace("treeView >", "listView >").replace("tableView >", "listView >"));
    const QStringList parts = what.split(' ');
    if (what == "restart") {
        driver.restart();
    } else if (parts[0] == "select" && what.contains(" in ")) {
        auto* list = qobject_cast<QListWidget*>(widget(what.section(" in ", 1)));
        list->clearSelection();
        const QStringList texts = what.section(' ', 1).section(" in ", 0, 0).split('|');
        for (int row = 0; row < list->count(); ++row)
            list->item(row)->setSelected(texts.contains(list->item(row)->text()) ||
                                         texts.contains(QString::number(row)));
    } else if (parts[0] == "select") {
        driver.select(what.section(' ', 1).split('|', Qt::SkipEmptyParts));
    } else if (parts[0] == "press") {
        const QKeySequence keys(parts[1]);
        QWidget* target = widget(parts[3]);
        target->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(target->window()));
        target->setFocus();
        QTest::keyClick(target, keys[0].key(), keys[0].keyboardModifiers());
    } else if (parts[0] == "write") {
        const QStringList size = parts[3].split('x');
        folder.addImage(parts[1], QSize(size[0].toInt(), size[1].toInt()), QColor(parts[2]));
    } else if (parts[0] == "remove") {
        QFile::remove(folder.filePath(parts[1]));
    } else if (what.contains(" = ")) {
        QWidget* target = widget(what.section(" = ", 0, 0));
        const QString value = what.section(" = ", 1);
        if (auto* combo = qobject_cast<QComboBox*>(target))
            combo->setCurrentText(value);
        else if (auto* edit = qobject_cast<QPlainTextEdit*>(target))
            edit->setPlainText(value);
        else if (auto* tabs = qobject_cast<QTabWidget*>(target))
            tabs->setCurrentIndex(value.toInt());
        else
            target->setProperty(target->property("value").isValid()  ? "value"
                                : target->property("text").isValid() ? "text"
                                                                     : "checked",
                                value);
    } else if (auto* tool = qobject_cast<QToolButton*>(
                   what.contains(" > ") ? widget(what.section(" > ", 0, 0)) : nullptr)) {
        _used.insert(tool->objectName());
        for (QAction* action : tool->menu()->actions()) {
            if (action->text() == what.section(" > ", 1))
                return action->trigger();
        }
    } else if (what.contains(" > ")) {
        const ModalAnswer answer(what.section(" > ", 1));
        emit widget(what.section(" > ", 0, 0))->customContextMenuRequested({});
        if (!QTest::qWaitFor([&answer] { return answer.isUsed(); }, 1000))
            _asked.append("no menu");
    } else {
        const QString windowName =
            what.startsWith('&') || !what.contains('.') ? QString() : what.section('.', 0, 0);
        const QString name = windowName.isEmpty() ? what : what.section('.', 1);
        QWidget* window = windowName.isEmpty() ? &driver.window() : widget(windowName);
        for (auto* button : window->findChildren<QAbstractButton*>(name)) {
            if (button->isEnabled())
                return button->click();
        }
        for (QAction* action : window->findChildren<QAction*>()) {
            if (QStringList{action->objectName(), action->data().toString(), action->text()}.contains(name))
                return action->trigger();
        }
        qFatal("nothing to click: %s", qPrintable(what));
    }
}

// --- what can be seen ----------------------------------------------------------------------------

QList<QWidget*> Desk::windows() {
    QList<QWidget*> open;
    for (QWidget* window : driver.window().findChildren<QWidget*>()) {
        if (window->isWindow() && window->isVisible() && window->objectName()[0].isUpper() &&
            !qobject_cast<QMenu*>(window))
            open.append(window);
    }
    return open;
}

QWidget* Desk::widget(const QString& name) {
    const QString last = name.section('.', -1);
    if (const QList<QWidget*> open = windows(); name.contains('.') || last[0].isUpper()) {
        for (qsizetype number = open.size() - 1; number >= 0; --number) {
            if (open[number]->objectName() == name.section('.', 0, 0))
                return name.contains('.') ? open[number]->findChild<QWidget*>(last) : open[number];
        }
    }
    return driver.widget<QWidget>(name.toUtf8().constData());
}

QString Desk::meant(QString text) const {
    for (const auto& [word, value] : words.asKeyValueRange())
        text.replace(word, value);
    return text;
}

// The text without the parts that differ from run to run.
QString Desk::plain(QString text) const {
    static const QRegularExpression varying(R"( \[zoom: [^]]*\]|zoom level: \S+)");
    static const QRegularExpression fileIndex(R"(\[\d+ - )");
    static const QRegularExpression seconds(R"(in:? [\d.e-]+ s\b)");
    static const QRegularExpression stamp(
        R"(\d\d_\d\d_\d{4}T\d\d_\d\d_\d\d_\d{3}(_\d+)?(?=\.)|\d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d\.\d+)");
    for (const auto& [word, value] : words.asKeyValueRange())
        text.replace(value, word);
    // The watcher and the preview load end in either order.
    static const QRegularExpression background(
        "^(Loaded all media previews in: \\S+ s|Removed 0 missing items\\.)$");
    text.replace(background, "(background)");
    return text.remove(varying)
        .replace(fileIndex, "[N - ")
        .replace(seconds, "in T s")
        .replace(stamp, "TIME")
        .replace('\n', "\\n");
}

// What a picture shows, or a text, and how often the file has been written anew.
QString Desk::fileFact(const QString& name, const QByteArray& content) {
    QList<QByteArray>& versions = _versions[name];
    if (!versions.contains(content))
        versions.append(content);
    const QImage image = QImage::fromData(content);
    const QString shown =
        !image.isNull() && frameNumber(image) >= 0 ? QString("frame %1").arg(frameNumber(image))
        : image.isNull()
            ? contentFact(content)
            : QString("%1x%2 %3").arg(image.width()).arg(image.height()).arg(middleColour(image));
    const qsizetype version = versions.indexOf(content) + 1;
    return version == 1 ? shown : shown + QString(" v%1").arg(version);
}

namespace {

bool isInsideList(const QWidget* widget) {
    const QWidget* parent = widget->parentWidget();
    return parent && (qobject_cast<const QListWidget*>(parent) || parent->objectName() == "ProfilesWidget" ||
                      isInsideList(parent));
}

} // namespace

Facts Desk::world() {
    static const QStringList restless{"progressBar", "pBMediaPosition", "labelStatus", "qt_spinbox_lineedit"};
    Facts facts;
    facts["window"] = driver.window().isVisible() ? "open" : "closed";
    // Names with a time in them are one name.
    QMap<QString, QStringList> contents;
    QDirIterator entries(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        const QString name = plain(entries.filePath().mid(folder.path().size() + 1));
        if (file.open(QIODevice::ReadOnly))
            contents[name].append(plain(fileFact(entries.filePath(), file.readAll())));
    }
    for (QStringList& versions : contents)
        versions.sort();
    for (const auto& [name, versions] : std::as_const(contents).asKeyValueRange())
        facts["disk " + name] = versions.join('|');
    for (QWidget* window : QList<QWidget*>{&driver.window()} + windows()) {
        const QString owner = window == &driver.window() ? QString() : window->objectName() + '.';
        if (!owner.isEmpty())
            facts[window->objectName()] = plain(window->windowTitle());
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            const bool isOwn =
                widget->window() == window && !name.isEmpty() && name[0].isLower() && !name.startsWith("qt_");
            if (!isOwn)
                continue;
            const bool isSameList = name == "treeView" || name == "tableView";
            const bool isHiddenButton = widget->isHidden() && qobject_cast<const QAbstractButton*>(widget);
            if (!restless.contains(name) && !isInsideList(widget) && !isSameList && !isHiddenButton)
                facts[owner + name] = plain(shownBy(widget));
            const auto* play = window->findChild<QAbstractButton*>("tBPlayPause");
            const auto* video = qobject_cast<const QVideoWidget*>(widget);
            if (!video || !play || play->window() != window)
                continue;
            facts[owner + "length"] = QString::number(window->findChild<QMediaPlayer*>()->duration());
            if (play->text() == ">")
                facts[owner + "frame"] =
                    QString::number(frameNumber(video->videoSink()->videoFrame().toImage()));
        }
        if (QWidget* view = window->findChild<QWidget*>("imgWidget"); view && view->isVisible()) {
            for (const char* flag : {"autoFit", "autoCenter", "tool"})
                facts[owner + "imgWidget " + flag] = view->property(flag).toString();
            facts[owner + "imgWidget"] = middleColour(view->grab().toImage());
        }
    }
    for (const char* view : {"treeView", "tableView"}) {
        if (driver.shownNames(view) != driver.shownNames())
            facts[view] = driver.shownNames(view).join('|');
    }
    const QAbstractItemModel* rows = driver.widget<QAbstractItemView>("listView")->model();
    for (int row = 0; row < rows->rowCount(); ++row) {
        const QModelIndex name = rows->index(row, ColName);
        facts["row " + plain(name.data(RoleValue).toString().mid(folder.path().size() + 1))] =
            name.siblingAtColumn(ColResolution).data().toString() + ' ' +
            middleColour(name.data(Qt::DecorationRole).value<QImage>());
    }
    if (_sorts) {
        const auto* header = driver.widget<QTableView>("tableView")->horizontalHeader();
        facts["order of rows"] = plain(joined(rows, header->sortIndicatorSection()));
    }
    if (_sortsTags)
        facts["order of tags"] = driver.tagTexts("lwAllImagesTags").join('|');
    static const QRegularExpression complaint(
        "^(?!.*(get reply error|not JSON|header state))(Error|Failed|Unable|Warning)");
    _log += driver.freshLog();
    QStringList complaints = _log.filter(complaint);
    complaints.removeDuplicates();
    facts["complaints"] = plain(complaints.join('|'));
    facts["opened"] = plain(_opened.join('|'));
    facts["selected"] = driver.selectedNames().join('|');
    facts["clipboard"] = plain(QGuiApplication::clipboard()->text());
    facts["asked"] = plain(_asked.join('|'));
    facts.removeIf([](const Facts::iterator& fact) { return fact.value().isEmpty(); });
    return facts;
}

// --- what can be done ----------------------------------------------------------------------------

void Desk::walk() {
    for (QWidget* window : QList<QWidget*>{&driver.window()} + windows()) {
        const QString owner = window == &driver.window() ? QString() : window->objectName() + '.';
        for (const auto* button : window->findChildren<QAbstractButton*>()) {
            if (button->window() == window && !button->isHidden() &&
                !button->objectName().startsWith("qt_") && !button->objectName().isEmpty() &&
                button->objectName()[0].isLower())
                _found.insert(owner + button->objectName());
        }
        for (const QAction* action : window->findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
            const QString data = action->data().toString();
            const QString name = action->objectName().isEmpty() ? (data.isEmpty() ? action->text() : data)
                                                                : action->objectName();
            if (!name.isEmpty() && !action->menu())
                _found.insert(owner + name);
        }
        for (const char* name : menuOwners) {
            auto* view = window->findChild<QWidget*>(name);
            if (!view || view->window() != window)
                continue;
            const ModalAnswer answer(ModalAnswer::MenuAnswer([&](QMenu* menu) {
                for (const QAction* action : menu->actions()) {
                    const QList<QAction*> inner =
                        action->menu() ? action->menu()->actions() : QList<QAction*>();
                    for (const QAction* entry : inner)
                        _found.insert(owner + name + " > " + action->text() + '/' + entry->text());
                    if (!action->isSeparator() && inner.isEmpty())
                        _found.insert((name == "imgWidget"_L1 ? QString() : owner) + name + " > " +
                                      action->text());
                }
                menu->close();
            }));
            emit view->customContextMenuRequested({});
            // A popup menu opens later, and only with a selection.
            static_cast<void>(QTest::qWaitFor([&answer] { return answer.isUsed(); }, 50));
        }
    }
}

QStringList Desk::neverUsed() {
    QStringList names;
    for (const QString& name : std::as_const(_found)) {
        if (!_used.contains(name))
            names.append(name);
    }
    names.sort();
    return names;
}

#include "editor/EditImageWidget.h"
#include "support/Facts.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/Rows.h"
#include "support/WindowDriver.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDialog>
#include <QDockWidget>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>

#include <functional>

namespace {

// The widgets of the main window whose state is not stored; all others are restored.
const QStringList startAnew{
    "cBBackupTxt",           "cBDspEffectsList",        "cBResizeSrcScaleAlignment",
    "cBSaveTagsDuplicates",  "dSPResizeAspectRatio",    "dSPResizeScaleMulti",
    "gBResizeByAspectRatio", "gBResizeScale",           "gBResizeSpecificSize",
    "hSDspWriteQuality",     "hSResizeImgWriteQuality", "lEDspDirOutput",
    "leFilterAllTags",       "leFilterImages",          "leFilterTag",
    "pTEResponse",           "pTETagsFromFile",         "sBSpecificH",
    "sBSpecificW",
};

// Our own widgets; the inner parts of Qt's have names of another kind.
QList<QWidget*> namedWidgets(const QWidget* window) {
    static const QRegularExpression ownName("^(?!qt_)[a-z]");
    return window->findChildren<QWidget*>(ownName);
}

// What the user can see and change of a widget; nothing for one that only shows.
QString stateOf(const QWidget* widget) {
    if (const auto* splitter = qobject_cast<const QSplitter*>(widget)) {
        QStringList sizes;
        for (const int size : splitter->sizes())
            sizes.append(QString::number(size));
        return sizes.join(' ');
    }
    if (const auto* dock = qobject_cast<const QDockWidget*>(widget)) {
        const auto* window = qobject_cast<QMainWindow*>(dock->window());
        return QString("area %1, %2")
            .arg(window ? window->dockWidgetArea(const_cast<QDockWidget*>(dock)) : 0)
            .arg(dock->isHidden() ? "hidden" : "shown");
    }
    if (qobject_cast<const QToolBar*>(widget))
        return widget->isHidden() ? "hidden" : "shown";
    if (const auto* list = qobject_cast<const QListView*>(widget); list && list->objectName() == "listView")
        return QString::number(list->viewMode());
    const auto* tabs = qobject_cast<const QTabWidget*>(widget);
    if (tabs || widget->objectName() == "stackedWidget")
        return widget->property("currentIndex").toString();
    if (const auto* combo = qobject_cast<const QComboBox*>(widget))
        return combo->count() > 1 ? combo->currentText() : QString();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget); button && !button->isCheckable())
        return {};
    for (const char* property : {"plainText", "value", "checked", "text"}) {
        const QVariant value = widget->property(property);
        const bool isInput = QByteArray(property) != "text" || qobject_cast<const QLineEdit*>(widget);
        if (value.isValid() && isInput && !widget->inherits("QProgressBar"))
            return value.toString();
    }
    return {};
}

QString headerState(const QHeaderView* header) {
    return QString("hides %1, first at %2, width %3")
        .arg(header->isSectionHidden(2) ? "size" : "none")
        .arg(header->visualIndex(0))
        .arg(header->sectionSize(1));
}

void changeSplitter(QSplitter* splitter) {
    QList<int> sizes = splitter->sizes();
    sizes.first() += sizes.last() / 2;
    sizes.last() /= 2;
    splitter->setSizes(sizes);
}

void changeDock(QDockWidget* dock) {
    auto* window = qobject_cast<QMainWindow*>(dock->window());
    const bool isLeft = window->dockWidgetArea(dock) == Qt::LeftDockWidgetArea;
    window->addDockWidget(isLeft ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea, dock);
}

// Neighbours of one kind differ afterwards.
void changeValue(QWidget* widget) {
    const double step = 3.0 + widget->objectName().back().unicode() % 7;
    const double sign = widget->inherits("QSlider") ? -1.0 : 1.0;
    widget->setProperty("value", widget->property("value").toDouble() + sign * step);
}

void change(QWidget* widget) {
    if (auto* splitter = qobject_cast<QSplitter*>(widget))
        changeSplitter(splitter);
    else if (auto* dock = qobject_cast<QDockWidget*>(widget))
        changeDock(dock);
    else if (qobject_cast<QToolBar*>(widget))
        widget->hide();
    else if (auto* list = qobject_cast<QListView*>(widget); list && list->objectName() == "listView")
        list->setViewMode(QListView::ListMode);
    else if (auto* tabs = qobject_cast<QTabWidget*>(widget))
        tabs->setCurrentIndex(3);
    else if (auto* pages = qobject_cast<QStackedWidget*>(widget);
             pages && pages->objectName() == "stackedWidget")
        pages->setCurrentIndex(2);
    else if (auto* combo = qobject_cast<QComboBox*>(widget); combo && combo->count() > 1)
        combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
    else if (auto* edit = qobject_cast<QPlainTextEdit*>(widget))
        edit->setPlainText("text of " + widget->objectName());
    else if (auto* line = qobject_cast<QLineEdit*>(widget); line && line->objectName() != "lEWorkingPath")
        line->setText("text of " + widget->objectName());
    else if (widget->property("value").isValid() && !widget->inherits("QProgressBar"))
        changeValue(widget);
    else if (widget->property("checked").isValid())
        widget->setProperty("checked", !widget->property("checked").toBool());
}

} // namespace

// The state of the windows at a first start, and that a changed state is restored.
class TestWindowState : public QObject {
    Q_OBJECT

public:
    static void initMain() { WindowDriver::useScreen({1600, 1200}); }

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void aStartWithoutADirectoryAsks_data() {
        addRows<QString, QString>({
            {"a first start", "", "Provide correct working directory path. Path is empty."},
            {"a directory that has gone", "/no/such/place",
             "Provide correct working directory. Directory dont exists at: /no/such/place"},
        });
    }
    void aStartWithoutADirectoryAsks() {
        const auto& [path, question] = row<QString, QString>();
        const ModalAnswer answer(QMessageBox::Ok);
        MainWindow window;
        window.findChild<QLineEdit*>("lEWorkingPath")->setText(path);
        window.show();
        QTRY_VERIFY(answer.isUsed());
        QCOMPARE(answer.text(), question);
        QVERIFY(window.windowTitle().contains(" - "));
    }

    // Settings that cannot be read make a first start, too.
    void aFirstStartSetsItsWidgets() {
        QFile settings(QCoreApplication::applicationDirPath() + "/settings.data");
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[General]\nsettingsData=\"@Variant(\\0\\0\\0\\x1c\\xff\\xff\xfe garbage");
        settings.close();
        WindowDriver driver;
        Facts state = windowState(driver);
        state.removeIf([](const Facts::iterator& fact) {
            return fact.key().startsWith("splitter") || fact.key() == "size" ||
                   fact.key() == "lEWorkingPath" || fact.value().isEmpty();
        });
        QStringList lines;
        for (const auto& [name, value] : std::as_const(state).asKeyValueRange())
            lines.append(name + '=' + value);
        // All texts, numbers and check marks of a first start; the message has the differences.
        const QByteArray all = lines.join('\n').toUtf8();
        QVERIFY2(QCryptographicHash::hash(all, QCryptographicHash::Md5).toHex() ==
                     "60981f740ad8401184b831b8995b0693",
                 all.constData());
    }

    void everythingComesBack() {
        const MediaFolder folder;
        const MediaFolder other;
        folder.addImage("a.png", {40, 30});
        other.addImage("a.png", {40, 30});
        other.addFile("model.safetensors");
        WindowDriver driver(folder.path());
        driver.widget<QComboBox>("cBDspEffectsList")->setCurrentText("Blur");
        driver.click("tBAddEffect");
        driver.widget<QComboBox>("cBDspEffectsList")->setCurrentIndex(0);
        const Facts before = windowState(driver);
        _changes = true;
        static_cast<void>(windowState(driver));
        _changes = false;
        // An active filter shows a button in the status bar, which may move the splitters by a few pixels.
        driver.widget<QLineEdit>("leFilterImages")->clear();
        Facts left = windowState(driver);
        left.insert(toolWindowStates(driver, other, true));
        driver.widget<QLineEdit>("lEWorkingPath")->setText(other.path());
        left["lEWorkingPath"] = other.path();
        for (const QString& name : startAnew) {
            QVERIFY2(left.value(name) != before.value(name) || name.startsWith("gB") ||
                         name == "leFilterImages",
                     qPrintable(name));
            left[name] = before.value(name);
        }
        for (const auto& [name, value] : std::as_const(left).asKeyValueRange())
            QVERIFY2(value.isEmpty() || value != before.value(name) || startAnew.contains(name),
                     qPrintable(name));
        driver.restart();
        Facts back = windowState(driver);
        back.insert(toolWindowStates(driver, other, false));
        const QString differs = difference(left, back);
        driver.widget<QMenu>("menu_Themes")->actions().first()->trigger();
        QVERIFY2(differs.isEmpty(), qPrintable(differs));
    }

private:
    // The state of all widgets of the main window, after showing each tab. Changes each widget first if
    // _changes is set.
    Facts windowState(WindowDriver& driver) const {
        MainWindow& window = driver.window();
        Facts state;
        if (_changes) {
            window.resize(window.size() + QSize(200, 300));
            driver.widget<QMenu>("menu_Themes")->actions().at(2)->trigger();
            driver.widget<EditImageWidget>("imgWidget")->setCutOutlineWidth(21);
        }
        auto* tabs = driver.widget<QTabWidget>("tWTools");
        const int current = tabs->currentIndex();
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            WindowDriver::settle();
            QList<QWidget*> widgets = namedWidgets(tabs->widget(page));
            // The profiles have pages of that name too.
            widgets.removeIf([](const QWidget* widget) { return widget->objectName() == "stackedWidget"; });
            for (QWidget* widget : widgets) {
                if (_changes)
                    change(widget);
            }
            WindowDriver::settle();
            for (const QWidget* widget : widgets)
                state[widget->objectName()] = stateOf(widget);
        }
        tabs->setCurrentIndex(current);
        for (QWidget* widget : namedWidgets(&window)) {
            if (state.contains(widget->objectName()))
                continue;
            if (_changes)
                change(widget);
            state[widget->objectName()] = stateOf(widget);
        }
        for (const char* view : {"treeView", "tableView"}) {
            for (QHeaderView* header : driver.widget<QWidget>(view)->findChildren<QHeaderView*>()) {
                if (header->orientation() != Qt::Horizontal)
                    continue;
                if (_changes) {
                    header->setSectionHidden(2, true);
                    header->moveSection(0, 3);
                    header->resizeSection(1, 123);
                }
                state[QString("header of ") + view] = headerState(header);
            }
        }
        for (const QAction* theme : driver.widget<QMenu>("menu_Themes")->actions()) {
            if (theme->isChecked())
                state["theme"] = theme->text();
        }
        state["size"] = QString("%1x%2").arg(window.width()).arg(window.height());
        state["outline"] = QString::number(driver.widget<EditImageWidget>("imgWidget")->cutOutlineWidth());
        return state;
    }

    // The same for the tool windows whose state is stored, opened one after the other.
    static Facts toolWindowStates(WindowDriver& driver, const MediaFolder& folder, bool changes) {
        Facts state;
        const auto look = [&](QWidget* window) {
            const QString name = window->objectName();
            WindowDriver::settle();
            if (changes) {
                window->resize(window->size() + QSize(33, 22));
                for (QDockWidget* dock : window->findChildren<QDockWidget*>())
                    dock->hide();
                for (QSplitter* splitter : window->findChildren<QSplitter*>())
                    changeSplitter(splitter);
            }
            WindowDriver::settle();
            state[name + " size"] = QString("%1x%2").arg(window->width()).arg(window->height());
            for (const QWidget* part : window->findChildren<QDockWidget*>())
                state[name + " dock"] = part->isHidden() ? "hidden" : "shown";
            for (const QSplitter* splitter : window->findChildren<QSplitter*>())
                state[name + " splitter"] = stateOf(splitter);
            window->close();
            WindowDriver::settle();
        };
        driver.select({"a.png"});
        for (const auto& [action, window] :
             {std::pair("editImage", "EditImageDialog"), std::pair("editVideo", "VideoWidget"),
              std::pair("addTag", "AddTagsDialog")}) {
            driver.trigger(action);
            look(driver.toolWindow(window));
        }
        const ModalAnswer options(ModalAnswer::DialogAnswer([&](QDialog* dialog) { look(dialog); }));
        driver.trigger("action_Options");
        // The dialog starts where the last file was chosen.
        const ModalAnswer models(ModalAnswer::DialogAnswer([&](QDialog* dialog) {
            if (!changes)
                state["models in"] = static_cast<QFileDialog*>(dialog)->directory().path();
            chooseFiles({folder.filePath("model.safetensors")})(dialog);
        }));
        driver.trigger("action_InspectSafetensor");
        look(driver.toolWindow("SafetensorsDialog"));
        if (changes)
            state["models in"] = folder.path();
        return state;
    }

    bool _changes = false;
};

QTEST_MAIN(TestWindowState)
#include "tst_window_state.moc"

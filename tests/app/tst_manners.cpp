#include "app/OptionsDialog.h"
#include "app/SettingsWidgetDebugDialog.h"
#include "app/services/Translations.h"
#include "editor/EditImageDialog.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilters.h"
#include "imaging/ProfilesEditWidget.h"
#include "imaging/ProfilesWidget.h"
#include "safetensors/SafetensorsDialog.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"
#include "tags/AddTagsDialog.h"
#include "tags/ReplaceTextDialog.h"
#include "tags/TagsExportDialog.h"
#include "video/VideoWidget.h"
#include "video/VideoWidgetFrameGrabber.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include <functional>
#include <optional>

namespace {

constexpr QSize smallScreen(1366, 768);
// Title bar, window frame and the desktop's panel.
constexpr QSize desktopRoom(10, 70);

using Texts = QMap<QString, QString>;
using MakeWindow = std::function<std::unique_ptr<QWidget>()>;

template <typename T>
std::unique_ptr<QWidget> plain() {
    return std::make_unique<T>();
}

// All windows; the main window is made by the driver.
const QList<std::pair<QString, MakeWindow>> windows{
    {"main window", {}},
    {"options", plain<OptionsDialog>},
    {"settings", plain<SettingsWidgetDebugDialog>},
    {"add tags", plain<AddTagsDialog>},
    {"replace text", plain<ReplaceTextDialog>},
    {"export", plain<TagsExportDialog>},
    {"profile name", plain<ProfilesEditWidget>},
    {"profiles", [] { return std::make_unique<ProfilesWidget>(nullptr, false); }},
    {"filter row", [] { return std::unique_ptr<QWidget>(ImageFilters().createFilterWidget("Blur")); }},
    {"image editor", plain<EditImageDialog>},
    {"video", plain<VideoWidget>},
    {"frame grabber", plain<VideoWidgetFrameGrabber>},
    {"model file", plain<SafetensorsDialog>},
};

// Proper names, words that a language has taken over, and the name that the first profile is given.
const QSet<QString> sameWords{"Tags",   "Prompt:", "Tags:", "Name", "Name:", "&Name",     "Dialog",
                              "Ollama", "x",       "X:",    "Y:",   "H:",    "Plastique", "Default"};

// Widgets of our forms; the inner parts of Qt's own widgets have names of another kind, or none.
QList<QWidget*> namedWidgets(const QWidget* window) {
    static const QRegularExpression ownName("^(?!qt_)[a-z]");
    return window->findChildren<QWidget*>(ownName);
}

QString accessibleNameOf(QWidget* widget) {
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

bool hasLetter(const QString& text) {
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); });
}

QString captionOf(const QWidget* widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(widget))
        return box->title();
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label && label->buddy() ? label->text() : QString();
}

// A widget of a hidden tab has no valid geometry, so each tab is shown and checked by itself.
void eachTab(QWidget* window, const std::function<void()>& look) {
    auto* tabs = window->findChild<QTabWidget*>("tWTools");
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        QCoreApplication::processEvents();
        look();
    }
}

} // namespace

// Rules that hold for each window: what a screen reader says, mnemonics, sizes.
class MannersTest : public QObject {
    Q_OBJECT

public:
    static void initMain() { WindowDriver::useScreen(smallScreen); }

private slots:
    void initTestCase() {
        _media.addImage("a.png");
        _media.addTags("a.png", "sky");
        switchTo("en");
        for (int number = 0; number < windows.size(); ++number) {
            const std::unique_ptr<QWidget> made = windowOf(number);
            _english.append(textsOf(made ? made.get() : &_driver->window()));
        }
    }

    void windowsKeepTheRules_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("number");
        for (const char* language : {"en", "de", "ja", "zh-CN"}) {
            for (int number = 0; number < windows.size(); ++number)
                QTest::addRow("%s: %s", language, qPrintable(windows[number].first)) << language << number;
        }
    }

    void windowsKeepTheRules() {
        QFETCH(QString, language);
        QFETCH(int, number);
        switchTo(language);
        const std::unique_ptr<QWidget> made = windowOf(number);
        QWidget* window = made ? made.get() : &_driver->window();
        window->show();
        everyControlHasAName(window);
        mnemonicsAreUnique(window);
        fitsASmallScreen(window);
        eachTab(window, [window] { tabGoesRightAndDown(window); });
        eachTab(window, [window] {
            textsAreWhole(window);
            nothingIsScrolledAway(window);
        });
        if (language != "en") {
            isTranslated(textsOf(window), _english.at(number));
            QCOMPARE(_menuClashes.join(" | "), QString());
        }
        const QFont font = QApplication::font();
        QFont large = font;
        large.setPointSizeF(font.pointSizeF() * 2);
        QApplication::setFont(large);
        QCoreApplication::processEvents();
        window->resize(window->sizeHint().expandedTo(window->size()));
        eachTab(window, [window] { textsAreWhole(window); });
        QApplication::setFont(font);
    }

private:
    [[nodiscard]] static std::unique_ptr<QWidget> windowOf(int number) {
        const MakeWindow& make = windows.at(number).second;
        return make ? make() : nullptr;
    }

    // Starts the main window in a language.
    void switchTo(const QString& language) {
        if (_language == language)
            return;
        _language = language;
        _driver.reset();
        WindowDriver::forgetSettings();
        _translations.emplace().install({language});
        _driver.emplace(_media.path());
        _driver->select({"a.png"});
    }

    // What a window shows, or a screen reader says, by where it does so: the order of children changes with
    // the tabs.
    Texts textsOf(QWidget* window) {
        _menuClashes.clear();
        Texts texts{{"title", window->windowTitle()}};
        for (QWidget* widget : namedWidgets(window)) {
            const QString place = widget->parent()->objectName() + "/" + widget->objectName() + "/";
            for (const char* name :
                 {"text", "title", "windowTitle", "placeholderText", "toolTip", "accessibleName"}) {
                if (!qobject_cast<QLineEdit*>(widget) || name != QByteArray("text"))
                    texts[place + name] = widget->property(name).toString();
            }
            const auto* combo = qobject_cast<QComboBox*>(widget);
            for (int row = 0; combo && row < combo->count(); ++row)
                texts[place + QString::number(row)] = combo->itemText(row);
            const auto* tabs = qobject_cast<QTabWidget*>(widget);
            for (int page = 0; tabs && page < tabs->count(); ++page)
                texts[place + QString::number(page)] = tabs->tabText(page);
            const auto* view = qobject_cast<QAbstractItemView*>(widget);
            for (int column = 0; view && view->model() && column < view->model()->columnCount(); ++column)
                texts[place + QString::number(column)] =
                    view->model()->headerData(column, Qt::Horizontal).toString();
            if (const auto* menu = qobject_cast<QMenu*>(widget))
                readMenu(menu, place, texts);
            if (qobject_cast<QToolBar*>(widget)) {
                for (int number = 0; number < widget->actions().size(); ++number)
                    texts[place + QString::number(number)] = widget->actions().at(number)->iconText();
            }
            if (widget->contextMenuPolicy() != Qt::CustomContextMenu)
                continue;
            const ModalAnswer answer([&](QMenu* menu) {
                readMenu(menu, place + "menu/", texts);
                menu->close();
            });
            emit widget->customContextMenuRequested({});
            if (!QTest::qWaitFor([] { return !QApplication::activePopupWidget(); }))
                qFatal("the menu of %s stays open", qPrintable(place));
        }
        return texts;
    }

    void readMenu(const QMenu* menu, const QString& place, Texts& texts) {
        QSet<QKeySequence> keys;
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            const QString entry = place + QString::number(actions.indexOf(action));
            texts[entry] = action->text();
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            if (!key.isEmpty() && keys.contains(key))
                _menuClashes.append(action->text());
            keys.insert(key);
            if (action->menu())
                readMenu(action->menu(), entry + "/", texts);
        }
    }

    static void isTranslated(const Texts& texts, const Texts& english) {
        QCOMPARE(texts.keys(), english.keys());
        QStringList same;
        for (const auto& [place, text] : texts.asKeyValueRange()) {
            const bool isName =
                text.startsWith(QCoreApplication::applicationName()) || sameWords.contains(text);
            if (hasLetter(text) && text == english.value(place) && !isName)
                same.append(place + ": " + text);
        }
        QCOMPARE(same.join(" | "), QString());
    }

    static void everyControlHasAName(const QWidget* window) {
        QStringList nameless;
        for (QWidget* widget : namedWidgets(window)) {
            if (widget->focusPolicy() != Qt::NoFocus && !hasLetter(accessibleNameOf(widget)))
                nameless.append(widget->objectName());
        }
        QCOMPARE(nameless.join(" "), QString());
    }

    // Among the controls and the menu titles no letter is used twice, nor among the entries of a menu, where
    // those of the English ones are fixed.
    static void mnemonicsAreUnique(const QWidget* window) {
        QHash<QKeySequence, QString> owners;
        const auto claim = [&owners](const QString& text) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (!key.isEmpty() && owners.contains(key))
                QFAIL(qPrintable(text + " clashes with " + owners.value(key)));
            owners.insert(key, text);
        };
        for (const QWidget* widget : namedWidgets(window)) {
            const auto* menu = qobject_cast<const QMenu*>(widget);
            claim(menu ? menu->title() : captionOf(widget));
        }
    }

    // Within one parent; widgets of different parents share no rows.
    static void tabGoesRightAndDown(const QWidget* window) {
        const QList<QWidget*> named = namedWidgets(window);
        for (const QWidget* widget : named)
            QVERIFY2(!widget->property("tabKeyNavigation").toBool(), qPrintable(widget->objectName()));
        const QWidget* before = nullptr;
        for (QWidget* at = window->nextInFocusChain(); at != window; at = at->nextInFocusChain()) {
            if (!(at->focusPolicy() & Qt::TabFocus) || !at->isVisible() || !named.contains(at))
                continue;
            if (before && before->parentWidget() == at->parentWidget()) {
                const QRect from = before->geometry();
                const QRect to = at->geometry();
                const bool isBelow = to.top() > from.bottom();
                QVERIFY2(to.bottom() >= from.top() && (isBelow || to.left() >= from.left()),
                         qPrintable(before->objectName() + " is followed by " + at->objectName()));
            }
            before = at;
        }
    }

    static void fitsASmallScreen(const QWidget* window) {
        const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
        const QSize room = smallScreen - QSize(desktopRoom);
        QVERIFY2(least.width() <= room.width() && least.height() <= room.height(),
                 qPrintable(QString("%1x%2").arg(least.width()).arg(least.height())));
    }

    // The first layout shows all tabs, and the page below them in its whole width.
    static void nothingIsScrolledAway(const QWidget* window) {
        const auto* tabs = window->findChild<QTabWidget*>("tWTools");
        const auto* page = tabs ? tabs->currentWidget()->findChild<QScrollArea*>() : nullptr;
        QVERIFY(!tabs || tabs->tabBar()->width() >= tabs->tabBar()->sizeHint().width());
        QVERIFY(!page || page->widget()->width() <= page->viewport()->width());
    }

    static void textsAreWhole(const QWidget* window) {
        for (const QWidget* widget : namedWidgets(window)) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            const bool hasText =
                (label && !label->wordWrap()) || qobject_cast<const QAbstractButton*>(widget);
            if (!hasText || !widget->isVisible())
                continue;
            const QSize needed = widget->minimumSizeHint();
            QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(),
                     qPrintable(QString("%1 is %2x%3 of %4x%5")
                                    .arg(widget->objectName())
                                    .arg(widget->width())
                                    .arg(widget->height())
                                    .arg(needed.width())
                                    .arg(needed.height())));
        }
    }

    MediaFolder _media;
    QString _language;
    QList<Texts> _english;
    QStringList _menuClashes;
    std::optional<Translations> _translations;
    std::optional<WindowDriver> _driver;
};

QTEST_MAIN(MannersTest)
#include "tst_manners.moc"

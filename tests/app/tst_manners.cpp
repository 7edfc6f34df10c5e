#include "app/OptionsDialog.h"
#include "app/SettingsWidgetDebugDialog.h"
#include "editor/EditImageDialog.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilters.h"
#include "imaging/ProfilesEditWidget.h"
#include "imaging/ProfilesWidget.h"
#include "safetensors/SafetensorsDialog.h"
#include "support/WindowDriver.h"
#include "tags/AddTagsDialog.h"
#include "tags/ReplaceTextDialog.h"
#include "tags/TagsExportDialog.h"
#include "video/VideoWidget.h"
#include "video/VideoWidgetFrameGrabber.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QTabWidget>

#include <functional>
#include <optional>

namespace {

constexpr QSize smallScreen(1366, 768);
// Title bar, window frame and the desktop's panel.
constexpr QSize desktopRoom(10, 70);

using MakeWindow = std::function<std::unique_ptr<QWidget>()>;

template <typename T>
MakeWindow plain() {
    return [] { return std::make_unique<T>(); };
}

// Widgets of our forms; the inner parts of Qt's own widgets have names of another kind, or none.
QList<QWidget*> namedWidgets(const QWidget* window) {
    static const QRegularExpression ownName("^(?!qt_)[a-z]");
    return window->findChildren<QWidget*>(ownName);
}

QString spokenName(QWidget* widget) {
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
        WindowDriver::forgetSettings();
        _driver.emplace();
    }

    void windowsKeepTheRules_data() {
        QTest::addColumn<MakeWindow>("makeWindow");
        QTest::newRow("main window") << MakeWindow();
        QTest::newRow("options") << plain<OptionsDialog>();
        QTest::newRow("settings") << plain<SettingsWidgetDebugDialog>();
        QTest::newRow("add tags") << plain<AddTagsDialog>();
        QTest::newRow("replace text") << plain<ReplaceTextDialog>();
        QTest::newRow("export") << plain<TagsExportDialog>();
        QTest::newRow("profile name") << plain<ProfilesEditWidget>();
        QTest::newRow("profiles") << MakeWindow(
            [] { return std::make_unique<ProfilesWidget>(nullptr, false); });
        QTest::newRow("filter row") << MakeWindow(
            [] { return std::unique_ptr<QWidget>(ImageFilters().createFilterWidget("Blur")); });
        QTest::newRow("image editor") << plain<EditImageDialog>();
        QTest::newRow("video") << plain<VideoWidget>();
        QTest::newRow("frame grabber") << plain<VideoWidgetFrameGrabber>();
        QTest::newRow("model file") << plain<SafetensorsDialog>();
    }

    void windowsKeepTheRules() {
        QFETCH(MakeWindow, makeWindow);
        const std::unique_ptr<QWidget> made = makeWindow ? makeWindow() : nullptr;
        QWidget* window = made ? made.get() : &_driver->window();
        window->show();
        everyControlHasAName(window);
        mnemonicsAreUnique(window);
        fitsASmallScreen(window);
        eachTab(window, [window] { tabGoesRightAndDown(window); });
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
    static void everyControlHasAName(const QWidget* window) {
        QStringList nameless;
        for (QWidget* widget : namedWidgets(window)) {
            if (widget->focusPolicy() != Qt::NoFocus && !hasLetter(spokenName(widget)))
                nameless.append(widget->objectName());
        }
        QCOMPARE(nameless.join(" "), QString());
    }

    // The texts of menus' entries are fixed; among the controls and the menu titles no letter is used twice.
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

    std::optional<WindowDriver> _driver;
};

QTEST_MAIN(MannersTest)
#include "tst_manners.moc"

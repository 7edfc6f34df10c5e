#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "app/services/Themes.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleHints>
#include <QToolBar>
#include <QToolButton>

#include <memory>

namespace {

struct ExpectedPalette {
    Themes::Theme theme;
    // "Role colour" for a colour of all groups, or "Role active/inactive/disabled"; "-" is left to the style.
    const char* brushes;
};

// One of each kind: derived colours, resolved outside of Qt; three groups; a placeholder; few roles.
constexpr ExpectedPalette expectedPalettes[] = {
    {Themes::DARK, "Window 353535, WindowText ffffff/ffffff/808080, Base 191919, AlternateBase 353535, "
                   "ToolTipBase 2a82da, ToolTipText ffffff, Text ffffff/ffffff/808080, Button "
                   "404040/353535/353535, ButtonText ffffff/ffffff/808080, Link 2a82da, Highlight 2a82da, "
                   "HighlightedText 000000, Light 353535"},
    {Themes::VIOLETANGELPURPLE,
     "Window 321946, WindowText ffffff/ffffff/872d9d, Base 6e1e7d, AlternateBase 321946, "
     "ToolTipBase 6e1e7d, ToolTipText ffffff, Text ffffff/ffffff/2d0f34, Button 370f3e, "
     "ButtonText ffffff/ffffff/872d9d, Link 872d9d, Highlight 872d9d, HighlightedText ffffff, "
     "Light -/-/6e1e7d"},
    {Themes::GREYMATTER,
     "Window 2e3440, WindowText ffffff/ffffff/a6a6a6, Base 3b4252, AlternateBase 2e3440, "
     "ToolTipBase 2e3440, ToolTipText ffffff, Text ffffff/ffffff/a6a6a6, Button 3b4252, "
     "ButtonText ffffff/ffffff/a6a6a6, Link c6eeff, Highlight 58637b, HighlightedText ffffff, "
     "PlaceholderText 7f7f7f, Light -/-/2e3440"},
    {Themes::PLASTIQUE,
     "HighlightedText ffffff, BrightText 000000, Base ffffff, Highlight 000064, Button f0f0f0,"
     " Mid 4b4b4b, Text 000000, WindowText 000000, ButtonText 000000, Window ffffff"},
};

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

// The colours of each role in the order of the groups.
QHash<QPalette::ColorRole, QStringList> parseBrushes(const char* text) {
    QHash<QPalette::ColorRole, QStringList> brushes;
    for (const QString& entry : QString(text).split(", ")) {
        const QStringList words = entry.split(' ');
        QStringList colors = words.value(1).split('/');
        while (colors.size() < 3)
            colors.append(colors.first());
        bool isRole = false;
        const int role =
            QMetaEnum::fromType<QPalette::ColorRole>().keyToValue(qPrintable(words.first()), &isRole);
        if (!isRole)
            qFatal("no role %s", qPrintable(words.first()));
        brushes.insert(static_cast<QPalette::ColorRole>(role), colors);
    }
    return brushes;
}

// A look that no theme has.
QPalette foreignLook() {
    QApplication::setStyle(QStyleFactory::create("Windows"));
    QApplication::setPalette(QPalette(Qt::magenta));
    return QApplication::palette();
}

QIcon diamondIcon() {
    QPixmap pixmap(40, 30);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setBrush(QColor(1, 2, 3));
    painter.drawPolygon(QPolygon({{20, 2}, {38, 15}, {20, 28}, {2, 15}}));
    return {pixmap};
}

QImage imageOf(const QIcon& icon) {
    return icon.pixmap(64, 64).toImage().convertToFormat(QImage::Format_ARGB32);
}

// The one colour of an icon's opaque pixels; invalid if there are several.
QColor flatColor(const QIcon& icon) {
    const QImage image = imageOf(icon);
    QColor found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() < 255)
                continue;
            if (found.isValid() && found != color)
                return {};
            found = color;
        }
    }
    return found;
}

} // namespace

// How the themes look, what the menu offers, and that a choice is kept.
class TestThemes : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { _systemPalette = QApplication::palette(); }

    void init() {
        WindowDriver::forgetSettings();
        foreignLook();
    }

    void cleanup() { Themes::destroyInstance(); }

    void brushesHaveTheirColors_data() {
        QTest::addColumn<int>("place");
        for (int place = 0; place < int(std::size(expectedPalettes)); ++place)
            QTest::addRow("%s",
                          QMetaEnum::fromType<Themes::Theme>().valueToKey(expectedPalettes[place].theme))
                << place;
    }

    void brushesHaveTheirColors() {
        QFETCH(int, place);
        const auto expected = parseBrushes(expectedPalettes[place].brushes);
        Themes::instance()->setTheme(expectedPalettes[place].theme);
        const QPalette palette = QApplication::palette();
        QApplication::setPalette(QPalette());
        const QPalette ofStyle = QApplication::palette();
        for (int number = 0; number < QPalette::NColorRoles; ++number) {
            const auto role = static_cast<QPalette::ColorRole>(number);
            for (int group = 0; group < 3; ++group) {
                const QString color = expected.value(role, {"-", "-", "-"}).at(group);
                const QBrush brush =
                    color == "-" ? ofStyle.brush(groups[group], role) : QBrush(QColor('#' + color));
                const QBrush found = palette.brush(groups[group], role);
                const bool isSame =
                    found.style() == brush.style() && found.color().rgba() == brush.color().rgba();
                QVERIFY2(isSame,
                         qPrintable(QString("%1 of group %2: %3 instead of %4")
                                        .arg(QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(number))
                                        .arg(group)
                                        .arg(found.color().name(), brush.color().name())));
            }
        }
    }

    void themesOfTheStyleTakeItsColors_data() {
        QTest::addColumn<Themes::Theme>("theme");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QPalette>("palette");
        const auto paletteOf = [](const char* style) {
            return std::unique_ptr<QStyle>(QStyleFactory::create(style))->standardPalette();
        };
        QTest::addRow("the system's") << Themes::NONE << "fusion" << _systemPalette;
        QTest::addRow("a style that is missing") << Themes::LIGHT_Windows << "windows" << _systemPalette;
        QTest::addRow("Windows 11 elsewhere") << Themes::Windows11 << "windows" << _systemPalette;
        QTest::addRow("Windows 95") << Themes::LIGHT_Window95 << "windows" << paletteOf("Windows");
        QTest::addRow("light Fusion") << Themes::LIGHT_Fusion << "fusion" << paletteOf("Fusion");
    }

    void themesOfTheStyleTakeItsColors() {
        QFETCH(Themes::Theme, theme);
        QFETCH(QString, style);
        QFETCH(QPalette, palette);
        Themes::instance()->setTheme(theme);
        QCOMPARE(QApplication::style()->name(), style);
        for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Dark})
            QCOMPARE(QApplication::palette().color(role), palette.color(role));
        QVERIFY(!Themes::instance()->isDarkTheme());
    }

    void aMissingStyleLeavesThePreviousOne() {
        Themes::instance()->setTheme(Themes::DARK);
        QCOMPARE(QApplication::style()->name(), QString("fusion"));
        foreignLook();
        Themes::instance()->setTheme(Themes::PLASTIQUE);
        QCOMPARE(QApplication::style()->name(), QString("windows"));
        QCOMPARE(QApplication::palette().color(QPalette::Mid), QColor(0x4b4b4b));
    }

    void theMenuListsTheThemes() {
        const QList<QAction*> actions = Themes::instance()->themeActions(Themes::RUBY);
        QStringList entries;
        for (const QAction* action : actions) {
            QVERIFY(action->isCheckable());
            const int id = action->property("themeId").toInt();
            QCOMPARE(action->isChecked(), id == Themes::RUBY);
            entries.append(QString("%1 %2%3").arg(id).arg(
                action->text(), action->property("isDarkTheme").toBool() ? " dark" : ""));
        }
        QCOMPARE(entries,
                 QStringList({"0 Os theme", "2 Light", "3 Dark dark", "4 Light Win95", "5 Light Fusion",
                              "6 Emerald dark", "7 Sapphire dark", "8 Ruby dark", "9 CobaltSky dark",
                              "10 VioletAngelPurple dark", "11 ScarletDevilRed", "12 Blue", "13 Pizza Brown",
                              "14 Baby Pastel", "15 Untouched Lagoon", "16 Grey Matter",
                              "17 Dark Fusion Blue dark", "18 Dark Fusion dark", "19 Plastique"}));
    }

    void choosingTellsTheThemeBeforeTheAccent() {
        Themes* themes = Themes::instance();
        QStringList told;
        const auto tell = [&told](const QString& what) {
            told.append(what + ' ' + QApplication::palette().color(QPalette::Highlight).name());
        };
        connect(themes, &Themes::themeChanged, this,
                [&](Themes::Theme theme) { tell(QString::number(theme)); });
        connect(themes, &Themes::themeAccentChanged, this,
                [&](bool isDark) { tell(isDark ? "dark" : "light"); });
        const QList<QAction*> actions = themes->themeActions(Themes::DARK);
        QVERIFY(told.isEmpty());
        QVERIFY(themes->isDarkTheme());
        entry(actions, Themes::EMERALD)->trigger();
        entry(actions, Themes::GREYMATTER)->trigger();
        QCOMPARE(told, QStringList({"6 #0f513b", "dark #0f513b", "16 #58637b", "light #58637b"}));
        QVERIFY(entry(actions, Themes::GREYMATTER)->isChecked());
        QVERIFY(!entry(actions, Themes::DARK)->isChecked());
        QVERIFY(!themes->isDarkTheme());
    }

    void aNumberThatIsNoThemeChangesNothing_data() {
        QTest::addColumn<int>("number");
        for (const int number : {-1, 20, 99, -2147483647})
            QTest::addRow("%d", number) << number;
    }

    void aNumberThatIsNoThemeChangesNothing() {
        QFETCH(int, number);
        const QPalette look = foreignLook();
        const QStyle* style = QApplication::style();
        const auto actions = Themes::instance()->themeActions(static_cast<Themes::Theme>(number));
        QCOMPARE(QApplication::style(), style);
        QCOMPARE(QApplication::palette(), look);
        QVERIFY(!Themes::instance()->isDarkTheme());
        for (const QAction* action : actions)
            QVERIFY(!action->isChecked());
    }

    void iconsTakeTheTintOfTheTheme_data() {
        QTest::addColumn<Themes::Theme>("theme");
        QTest::addColumn<bool>("isDark");
        QTest::addColumn<QColor>("tint");
        QTest::addRow("emerald") << Themes::EMERALD << true << QColor(100, 200, 100);
        QTest::addRow("sapphire, even as a light one") << Themes::SAPPHIRE << false << QColor(100, 100, 200);
        QTest::addRow("ruby") << Themes::RUBY << true << QColor(200, 100, 100);
        QTest::addRow("cobalt") << Themes::COBALTSKY << true << QColor(50, 50, 250);
        QTest::addRow("any dark one") << Themes::DARKFUSION << true << QColor(Qt::white);
        QTest::addRow("any light one") << Themes::PIZZABROWN << false << QColor(Qt::black);
        QTest::addRow("no theme") << static_cast<Themes::Theme>(99) << false << QColor(Qt::black);
    }

    void iconsTakeTheTintOfTheTheme() {
        QFETCH(Themes::Theme, theme);
        QFETCH(bool, isDark);
        QFETCH(QColor, tint);
        QAction action(diamondIcon(), "diamond");
        const QAction bare("no icon");
        QToolButton button;
        button.setIcon(diamondIcon());
        Themes* themes = Themes::instance();
        themes->setTheme(theme);
        for (int round = 0; round < 2; ++round)
            themes->tintActions(isDark, {&action, const_cast<QAction*>(&bare)});
        themes->tintButtons(isDark, {&button});
        QCOMPARE(flatColor(button.icon()), tint);
        QCOMPARE(flatColor(action.icon()), tint);
        QVERIFY(bare.icon().isNull());
        const auto alpha = [](const QIcon& icon) {
            return imageOf(icon).convertToFormat(QImage::Format_Alpha8);
        };
        QCOMPARE(alpha(action.icon()), alpha(diamondIcon()));
    }

    void aChoiceSurvivesARestartInAllWindows() {
        const MediaFolder folder;
        folder.addImage("a.png");
        {
            const WindowDriver driver(folder.path());
            const auto* menu = driver.widget<QMenu>("menu_Themes");
            entry(menu->actions(), Themes::EMERALD)->trigger();
            const QAction* tool = driver.widget<QToolBar>("toolBar")->actions().first();
            QCOMPARE(flatColor(tool->icon()), QColor(100, 200, 100));
            entry(menu->actions(), Themes::RUBY)->trigger();
            QCOMPARE(flatColor(tool->icon()), QColor(200, 100, 100));
        }
        foreignLook();
        const WindowDriver driver(folder.path());
        QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(0xac151f));
        QCOMPARE(QApplication::style()->name(), QString("fusion"));
        QVERIFY(entry(driver.widget<QMenu>("menu_Themes")->actions(), Themes::RUBY)->isChecked());
        for (const char* name : {"tBSaveTags", "pBOllamaGo", "tBAddEffect"})
            QCOMPARE(flatColor(driver.widget<QAbstractButton>(name)->icon()), QColor(200, 100, 100));
    }

    void aStoredNumberThatIsNoThemeIsKept_data() { aNumberThatIsNoThemeChangesNothing_data(); }

    void aStoredNumberThatIsNoThemeIsKept() {
        QFETCH(int, number);
        QSettings(QCoreApplication::applicationDirPath() + "/settings.data", QSettings::IniFormat)
            .setValue("settingsData", QVariantHash{{keys::appTheme, number}});
        const QPalette look = foreignLook();
        const WindowDriver driver;
        QCOMPARE(QApplication::palette(), look);
        QCOMPARE(Settings::instance()->data(keys::appTheme).toInt(), number);
        for (const QAction* action : driver.widget<QMenu>("menu_Themes")->actions())
            QVERIFY(!action->isChecked());
    }

private:
    QPalette _systemPalette;

    static QAction* entry(const QList<QAction*>& actions, Themes::Theme theme) {
        for (QAction* action : actions) {
            if (action->property("themeId").toInt() == theme)
                return action;
        }
        qFatal("no entry of theme %d", theme);
    }
};

QTEST_MAIN(TestThemes)
#include "tst_themes.moc"

#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "app/services/Themes.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"
#include "support/WindowDriver.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QToolBar>
#include <QToolButton>

namespace {

// The colours of the roles of a text like "Window 353535, Text ffffff/ffffff/808080" (active, inactive,
// disabled).
QString colorsOf(const QPalette& palette, const QString& roles) {
    QStringList entries;
    for (const QString& entry : roles.split(", ")) {
        const QString role = entry.section(' ', 0, 0);
        QStringList colors;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const int number = QMetaEnum::fromType<QPalette::ColorRole>().keyToValue(qPrintable(role));
            colors << palette.color(group, static_cast<QPalette::ColorRole>(number)).name().sliced(1);
        }
        entries << role + ' ' + (colors.count(colors.first()) == 3 ? colors.first() : colors.join('/'));
    }
    return entries.join(", ");
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

// The one colour of an icon's opaque pixels; invalid if there are several.
QColor flatColor(const QIcon& icon) {
    const QImage image = icon.pixmap(64, 64).toImage().convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) == 255)
                found.insert(image.pixel(x, y));
    return found.size() == 1 ? QColor(*found.begin()) : QColor();
}

QAction* entry(const QList<QAction*>& actions, Themes::Theme theme) {
    for (QAction* action : actions)
        if (action->property("themeId").toInt() == theme)
            return action;
    qFatal("no entry of theme %d", theme);
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

    // Derived colours that are resolved outside of Qt, three groups, few roles.
    void palettesHaveTheirColors_data() {
        addRows<Themes::Theme, QString>({
            {"dark", Themes::DARK,
             "Window 353535, WindowText ffffff/ffffff/808080, Base 191919, AlternateBase 353535, ToolTipBase "
             "2a82da, Button 404040/353535/353535, Highlight 2a82da, HighlightedText 000000, Light 353535"},
            {"grey matter", Themes::GREYMATTER,
             "Window 2e3440, WindowText ffffff/ffffff/a6a6a6, Base 3b4252, Text ffffff/ffffff/a6a6a6, Link "
             "c6eeff, Highlight 58637b, PlaceholderText 7f7f7f"},
            {"plastique", Themes::PLASTIQUE,
             "HighlightedText ffffff, BrightText 000000, Base ffffff, Highlight 000064, Mid 4b4b4b, Window "
             "ffffff"},
        });
    }
    void palettesHaveTheirColors() {
        const auto& [theme, colors] = row<Themes::Theme, QString>();
        Themes::instance()->setTheme(theme);
        QCOMPARE(colorsOf(QApplication::palette(), colors), colors);
        // The style of Plastique is missing and leaves the one before.
        QCOMPARE(QApplication::style()->name(), QString(theme == Themes::PLASTIQUE ? "windows" : "fusion"));
    }

    void themesOfTheStyleTakeItsColors_data() {
        const auto paletteOf = [](const char* style) {
            return std::unique_ptr<QStyle>(QStyleFactory::create(style))->standardPalette();
        };
        addRows<Themes::Theme, QString, QPalette>({
            {"the system's", Themes::NONE, "fusion", _systemPalette},
            {"a style that is missing", Themes::LIGHT_Windows, "windows", _systemPalette},
            {"Windows 11 elsewhere", Themes::Windows11, "windows", _systemPalette},
            {"Windows 95", Themes::LIGHT_Window95, "windows", paletteOf("Windows")},
            {"light Fusion", Themes::LIGHT_Fusion, "fusion", paletteOf("Fusion")},
        });
    }
    void themesOfTheStyleTakeItsColors() {
        const auto& [theme, style, palette] = row<Themes::Theme, QString, QPalette>();
        Themes::instance()->setTheme(theme);
        QCOMPARE(QApplication::style()->name(), style);
        const QString roles = "Window, Button, Dark";
        QCOMPARE(colorsOf(QApplication::palette(), roles), colorsOf(palette, roles));
        QVERIFY(!Themes::instance()->isDarkTheme());
    }

    void theMenuListsTheThemes() {
        QStringList entries;
        for (const QAction* action : Themes::instance()->themeActions(Themes::RUBY)) {
            const int id = action->property("themeId").toInt();
            QVERIFY(action->isCheckable());
            QCOMPARE(action->isChecked(), id == Themes::RUBY);
            entries << QString("%1 %2%3").arg(id).arg(
                action->text(), action->property("isDarkTheme").toBool() ? " dark" : "");
        }
        QCOMPARE(
            entries.join(", "),
            "0 Os theme, 2 Light, 3 Dark dark, 4 Light Win95, 5 Light Fusion, 6 Emerald dark, 7 Sapphire "
            "dark, 8 Ruby dark, 9 CobaltSky dark, 10 VioletAngelPurple dark, 11 ScarletDevilRed, 12 Blue, "
            "13 Pizza Brown, 14 Baby Pastel, 15 Untouched Lagoon, 16 Grey Matter, 17 Dark Fusion Blue "
            "dark, 18 Dark Fusion dark, 19 Plastique");
    }

    void choosingTellsTheThemeBeforeTheAccent() {
        Themes* themes = Themes::instance();
        QStringList told;
        const auto tell = [&told](const QString& what) {
            told << what + ' ' + QApplication::palette().color(QPalette::Highlight).name();
        };
        connect(themes, &Themes::themeChanged, this,
                [&](Themes::Theme theme) { tell(QString::number(theme)); });
        connect(themes, &Themes::themeAccentChanged, this,
                [&](bool isDark) { tell(isDark ? "dark" : "light"); });
        const QList<QAction*> actions = themes->themeActions(Themes::DARK);
        QVERIFY(told.isEmpty() && themes->isDarkTheme());
        entry(actions, Themes::EMERALD)->trigger();
        entry(actions, Themes::GREYMATTER)->trigger();
        QCOMPARE(told, QStringList({"6 #0f513b", "dark #0f513b", "16 #58637b", "light #58637b"}));
        QVERIFY(entry(actions, Themes::GREYMATTER)->isChecked() &&
                !entry(actions, Themes::DARK)->isChecked());
        QVERIFY(!themes->isDarkTheme());
    }

    void iconsTakeTheTintOfTheTheme_data() {
        addRows<Themes::Theme, bool, QColor>({
            {"emerald", Themes::EMERALD, true, QColor(100, 200, 100)},
            {"sapphire, even as a light one", Themes::SAPPHIRE, false, QColor(100, 100, 200)},
            {"ruby", Themes::RUBY, true, QColor(200, 100, 100)},
            {"cobalt", Themes::COBALTSKY, true, QColor(50, 50, 250)},
            {"any dark one", Themes::DARKFUSION, true, Qt::white},
            {"any light one", Themes::PIZZABROWN, false, Qt::black},
            {"no theme", static_cast<Themes::Theme>(99), false, Qt::black},
        });
    }
    void iconsTakeTheTintOfTheTheme() {
        const auto& [theme, isDark, tint] = row<Themes::Theme, bool, QColor>();
        QAction action(diamondIcon(), "diamond");
        QAction bare("no icon");
        QToolButton button;
        button.setIcon(diamondIcon());
        Themes::instance()->setTheme(theme);
        for (int round = 0; round < 2; ++round)
            Themes::instance()->tintActions(isDark, {&action, &bare});
        Themes::instance()->tintButtons(isDark, {&button});
        QCOMPARE(flatColor(button.icon()), tint);
        QCOMPARE(flatColor(action.icon()), tint);
        QVERIFY(bare.icon().isNull());
        const auto alpha = [](const QIcon& icon) {
            return icon.pixmap(64, 64).toImage().convertToFormat(QImage::Format_Alpha8);
        };
        QCOMPARE(alpha(action.icon()), alpha(diamondIcon()));
    }

    void aChoiceSurvivesARestartInAllWindows() {
        const MediaFolder folder;
        folder.addImage("a.png");
        {
            const WindowDriver driver(folder.path());
            const auto actions = driver.widget<QMenu>("menu_Themes")->actions();
            entry(actions, Themes::EMERALD)->trigger();
            const QAction* tool = driver.widget<QToolBar>("toolBar")->actions().first();
            QCOMPARE(flatColor(tool->icon()), QColor(100, 200, 100));
            entry(actions, Themes::RUBY)->trigger();
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

    void aStoredNumberThatIsNoThemeIsKept_data() {
        addRows<int>({{"-1", -1}, {"20", 20}, {"-2147483647", -2147483647}});
    }
    void aStoredNumberThatIsNoThemeIsKept() {
        const auto& [number] = row<int>();
        QSettings(QCoreApplication::applicationDirPath() + "/settings.data", QSettings::IniFormat)
            .setValue("settingsData", QVariantHash{{keys::appTheme.key, number}});
        const QPalette look = foreignLook();
        const WindowDriver driver;
        QCOMPARE(QApplication::palette(), look);
        QCOMPARE(QApplication::style()->name(), QString("windows"));
        QVERIFY(!Themes::instance()->isDarkTheme());
        QCOMPARE(Settings::instance()->data(keys::appTheme.key).toInt(), number);
        for (const QAction* action : driver.widget<QMenu>("menu_Themes")->actions())
            QVERIFY(!action->isChecked());
    }

private:
    QPalette _systemPalette;
};

QTEST_MAIN(TestThemes)
#include "tst_themes.moc"

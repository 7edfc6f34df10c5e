#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "app/services/Themes.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"
#include "support/WindowDriver.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QToolBar>

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

    void themesOfTheStyleTakeItsColors_data() {
        const auto paletteOf = [](const char* style) {
            return std::unique_ptr<QStyle>(QStyleFactory::create(style))->standardPalette();
        };
        addRows<Themes::Theme, QString, QPalette>({
            {"the system's", Themes::NONE, "fusion", _systemPalette},
            {"Windows 11 elsewhere", Themes::Windows11, "windows", _systemPalette},
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

    void aChoiceSurvivesARestartInAllWindows() {
        const MediaFolder folder;
        folder.addImage("a.png");
        {
            const WindowDriver driver(folder.path());
            const auto actions = driver.widget<QMenu>("menu_Themes")->actions();
            entry(actions, Themes::EMERALD)->trigger();
            const QAction* tool = driver.widget<QToolBar>("toolBar")->actions().first();
            QCOMPARE(flatColor(tool->icon()), QColor(100, 200, 100));
            entry(actions, Themes::PIZZABROWN)->trigger();
            QCOMPARE(flatColor(tool->icon()), QColor(Qt::black));
            entry(actions, Themes::DARKFUSION)->trigger();
            QCOMPARE(flatColor(tool->icon()), QColor(Qt::white));
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

    void aStoredNumberThatIsNoThemeIsKept() {
        constexpr int number = 20;
        QSettings(QCoreApplication::applicationDirPath() + "/settings.data", QSettings::IniFormat)
            .setValue("settingsData", QVariantHash{{keys::appTheme.key, number}});
        const QPalette look = foreignLook();
        const WindowDriver driver;
        QCOMPARE(QApplication::palette(), look);
        QCOMPARE(Settings::instance()->data(keys::appTheme.key).toInt(), number);
    }

private:
    QPalette _systemPalette;
};

QTEST_MAIN(TestThemes)
#include "tst_themes.moc"

#include "app/services/ThemePalettes.h"
#include "app/services/Themes.h"
#include "support/Rows.h"
#include "support/WindowDriver.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCryptographicHash>
#include <QMenu>
#include <QStyle>
#include <QToolBar>

namespace {

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

} // namespace

// Each theme chosen from the menu: its look, its icons, and that it is restored at the next start.
class TestThemes : public QObject {
    Q_OBJECT

private slots:
    void palettesHaveTheirColours() {
        QCryptographicHash colours(QCryptographicHash::Md5);
        for (int theme = Themes::NONE; theme <= Themes::PLASTIQUE; ++theme) {
            const QPalette palette = themePalette(static_cast<Themes::Theme>(theme));
            for (int number = 0; number < QPalette::NColorRoles; ++number) {
                const auto role = static_cast<QPalette::ColorRole>(number);
                for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                    if (palette.isBrushSet(group, role))
                        colours.addData(palette.color(group, role).name(QColor::HexArgb).toLatin1());
                }
            }
        }
        QCOMPARE(colours.result().toHex(), QByteArray("3782ff9ef92987ce3a025212eaa6442f"));
    }

    void choicesComeBack_data() {
        addRows<Themes::Theme, QString, QColor, QColor>({
            {"green", Themes::EMERALD, "fusion", QColor(0x0f513b), QColor(100, 200, 100)},
            {"light", Themes::PIZZABROWN, "fusion", QColor(0xbc643c), Qt::black},
            {"dark", Themes::DARKFUSION, "fusion", QColor(0x4b4b4b), Qt::white},
            {"red", Themes::RUBY, "fusion", QColor(0xac151f), QColor(200, 100, 100)},
        });
    }
    void choicesComeBack() {
        const auto& [theme, style, highlight, icons] = row<Themes::Theme, QString, QColor, QColor>();
        WindowDriver::forgetSettings();
        WindowDriver driver;
        for (QAction* action : driver.widget<QMenu>("menu_Themes")->actions()) {
            if (action->property("themeId").toInt() == theme)
                action->trigger();
        }
        for (const bool isRestarted : {false, true}) {
            if (isRestarted)
                driver.restart();
            QCOMPARE(QApplication::style()->name(), style);
            QCOMPARE(QApplication::palette().color(QPalette::Highlight), highlight);
            QCOMPARE(flatColor(driver.widget<QToolBar>("toolBar")->actions().first()->icon()), icons);
            QCOMPARE(flatColor(driver.widget<QAbstractButton>("tBSaveTags")->icon()), icons);
        }
    }
};

QTEST_MAIN(TestThemes)
#include "tst_themes.moc"

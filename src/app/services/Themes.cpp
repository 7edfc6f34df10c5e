#include "app/services/Themes.h"

#include "app/services/ThemePalettes.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDebug>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleHints>
#include <QSysInfo>

#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto themeIdProperty = "themeId";
constexpr auto isDarkThemeProperty = "isDarkTheme";
constexpr QSize tintedIconSize(64, 64);

enum class ThemeDarkness { AsSystem, Light, Dark };
enum class ThemePaletteSource { SystemBeforeStyle, System, Style, Own };

struct ThemeInfo {
    Themes::Theme theme;
    const char* text;
    ThemeDarkness darkness;
    QLatin1StringView style;
    ThemePaletteSource palette;
};

// In the order of the menu, which is that of the numbers.
std::span<const ThemeInfo> themeInfos() {
    using enum ThemeDarkness;
    using enum ThemePaletteSource;
    static constexpr ThemeInfo infos[] = {
        {Themes::NONE, QT_TRANSLATE_NOOP("Themes", "Os theme"), AsSystem, "Fusion"_L1, SystemBeforeStyle},
        {Themes::Windows11, QT_TRANSLATE_NOOP("Themes", "Windows11"), AsSystem, "windows11"_L1, System},
        {Themes::LIGHT_Windows, QT_TRANSLATE_NOOP("Themes", "Light"), Light, "windowsvista"_L1, System},
        {Themes::DARK, QT_TRANSLATE_NOOP("Themes", "Dark"), Dark, "Fusion"_L1, Own},
        {Themes::LIGHT_Window95, QT_TRANSLATE_NOOP("Themes", "Light Win95"), Light, "Windows"_L1, Style},
        {Themes::LIGHT_Fusion, QT_TRANSLATE_NOOP("Themes", "Light Fusion"), Light, "Fusion"_L1, Style},
        {Themes::EMERALD, QT_TRANSLATE_NOOP("Themes", "Emerald"), Dark, "Fusion"_L1, Own},
        {Themes::SAPPHIRE, QT_TRANSLATE_NOOP("Themes", "Sapphire"), Dark, "Fusion"_L1, Own},
        {Themes::RUBY, QT_TRANSLATE_NOOP("Themes", "Ruby"), Dark, "Fusion"_L1, Own},
        {Themes::COBALTSKY, QT_TRANSLATE_NOOP("Themes", "CobaltSky"), Dark, "Fusion"_L1, Own},
        {Themes::VIOLETANGELPURPLE, QT_TRANSLATE_NOOP("Themes", "VioletAngelPurple"), Dark, "Fusion"_L1, Own},
        {Themes::SCARLETDEVILRED, QT_TRANSLATE_NOOP("Themes", "ScarletDevilRed"), Light, "Fusion"_L1, Own},
        {Themes::PRUKLESBLUEPALETTE, QT_TRANSLATE_NOOP("Themes", "Blue"), Light, "Fusion"_L1, Own},
        {Themes::PIZZABROWN, QT_TRANSLATE_NOOP("Themes", "Pizza Brown"), Light, "Fusion"_L1, Own},
        {Themes::BABYPASTEL, QT_TRANSLATE_NOOP("Themes", "Baby Pastel"), Light, "Fusion"_L1, Own},
        {Themes::UNTOUCHEDLAGOON, QT_TRANSLATE_NOOP("Themes", "Untouched Lagoon"), Light, "Fusion"_L1, Own},
        {Themes::GREYMATTER, QT_TRANSLATE_NOOP("Themes", "Grey Matter"), Light, "Fusion"_L1, Own},
        {Themes::DARKFUSIONBLUE, QT_TRANSLATE_NOOP("Themes", "Dark Fusion Blue"), Dark, "Fusion"_L1, Own},
        {Themes::DARKFUSION, QT_TRANSLATE_NOOP("Themes", "Dark Fusion"), Dark, "Fusion"_L1, Own},
        // Qt no longer has this style, so the theme only changes the palette.
        {Themes::PLASTIQUE, QT_TRANSLATE_NOOP("Themes", "Plastique"), Light, "plastique"_L1, Own},
    };
    return infos;
}

const ThemeInfo* findThemeInfo(int theme) {
    for (const ThemeInfo& info : themeInfos()) {
        if (info.theme == theme)
            return &info;
    }
    return nullptr;
}

bool isSystemDark() {
    return QGuiApplication::styleHints()->colorScheme() == Qt::ColorScheme::Dark;
}

bool isThemeDark(const ThemeInfo& info) {
    return info.darkness == ThemeDarkness::AsSystem ? isSystemDark() : info.darkness == ThemeDarkness::Dark;
}

bool isThemeOffered(const ThemeInfo& info) {
    // Compares only the number, so other systems of a version 11 offer the theme too.
    return info.theme != Themes::Windows11 || QSysInfo::productVersion().toLower() == "11"_L1;
}

// For a style that this platform lacks, create returns null, which setStyle ignores.
void applyThemeStyle(QLatin1StringView name) {
    QApplication::setStyle(QStyleFactory::create(name));
}

void applyThemeInfo(const ThemeInfo& info) {
    // An empty palette drops the colours of the theme before; those of the desktop are left.
    if (info.palette == ThemePaletteSource::SystemBeforeStyle)
        QApplication::setPalette(QPalette());
    applyThemeStyle(info.style);
    switch (info.palette) {
    case ThemePaletteSource::SystemBeforeStyle:
        break;
    case ThemePaletteSource::System:
        QApplication::setPalette(QPalette());
        break;
    case ThemePaletteSource::Style:
        QApplication::setPalette(QApplication::style()->standardPalette());
        break;
    case ThemePaletteSource::Own:
        QApplication::setPalette(themePalette(info.theme));
        break;
    }
}

template <typename Target>
void tintIcon(Target* target, const QColor& tint) {
    const QIcon icon = target->icon();
    if (icon.isNull())
        return;
    QPixmap pixmap =
        icon.pixmap(icon.actualSize(tintedIconSize, QIcon::Normal, QIcon::Off), QIcon::Normal, QIcon::Off);
    // The file of the icon is missing.
    if (pixmap.isNull())
        return;
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.setBrush(tint);
    painter.setPen(tint);
    painter.drawRect(pixmap.rect());
    painter.end();
    target->setIcon(QIcon(pixmap));
}

} // namespace

Themes* Themes::_instance = nullptr;

Themes* Themes::instance(QObject* parent) {
    if (!_instance)
        _instance = new Themes(parent);
    return _instance;
}

void Themes::destroyInstance() {
    delete std::exchange(_instance, nullptr);
}

Themes::Themes(QObject* parent) : QObject(parent) {}

QList<QAction*> Themes::themeActions(Theme current) {
    QList<QAction*> actions;
    for (const ThemeInfo& info : themeInfos()) {
        if (isThemeOffered(info))
            // The entry of the desktop keeps the darkness that the desktop has now.
            actions.append(makeAction(info.theme, tr(info.text), isThemeDark(info)));
    }
    setTheme(current);
    auto* group = new QActionGroup(this);
    for (QAction* action : std::as_const(actions)) {
        action->setCheckable(true);
        group->addAction(action);
        // setChecked() emits no triggered(), so a start reports no change.
        if (action->property(themeIdProperty).toInt() == current)
            action->setChecked(true);
    }
    return actions;
}

QAction* Themes::makeAction(Theme theme, const QString& text, bool isDark) {
    auto* action = new QAction(text, this);
    action->setProperty(themeIdProperty, int(theme));
    action->setProperty(isDarkThemeProperty, isDark);
    _themeDarkness.insert(theme, isDark);
    connect(action, &QAction::triggered, this, [this, action] { chooseTheme(action); });
    return action;
}

void Themes::chooseTheme(const QAction* action) {
    const auto theme = static_cast<Theme>(action->property(themeIdProperty).toInt());
    setTheme(theme);
    emit themeChanged(theme);
    emit themeAccentChanged(action->property(isDarkThemeProperty).toBool());
}

void Themes::setTheme(Theme theme) {
    _theme = theme;
    qDebug() << "setTheme to:" << theme;
    qDebug() << "Styles:" << QStyleFactory::keys();
    if (const ThemeInfo* info = findThemeInfo(theme))
        applyThemeInfo(*info);
}

bool Themes::isDarkTheme() const {
    const bool isDark = _themeDarkness.value(_theme, false);
    qDebug() << "Themes::isDarkTheme" << static_cast<Theme>(_theme) << isDark;
    // The desktop may have changed since the entries were made.
    return _theme == NONE ? isSystemDark() : isDark;
}

QColor Themes::iconTint(bool isDarkTheme) {
    switch (_instance ? _instance->_theme : NONE) {
    case EMERALD:
        return {100, 200, 100};
    case SAPPHIRE:
        return {100, 100, 200};
    case RUBY:
        return {200, 100, 100};
    case COBALTSKY:
        return {50, 50, 250};
    default:
        return isDarkTheme ? Qt::white : Qt::black;
    }
}

void Themes::tintActions(bool isDarkTheme, const QList<QAction*>& actions) const {
    for (QAction* action : actions)
        tintIcon(action, iconTint(isDarkTheme));
}

void Themes::tintButtons(bool isDarkTheme, const QList<QAbstractButton*>& buttons) const {
    for (QAbstractButton* button : buttons)
        tintIcon(button, iconTint(isDarkTheme));
}

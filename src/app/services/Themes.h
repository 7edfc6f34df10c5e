#pragma once

#include <QColor>
#include <QList>
#include <QMap>
#include <QObject>

class QAbstractButton;
class QAction;

// The visual themes. Nothing else sets a style or a palette, or tints icons.
class Themes : public QObject {
    Q_OBJECT

public:
    // The numbers are stored in the settings, which may hold any other number as well.
    enum Theme : int {
        NONE = 0,
        Windows11 = 1,
        LIGHT_Windows = 2,
        DARK = 3,
        LIGHT_Window95 = 4,
        LIGHT_Fusion = 5,
        EMERALD = 6,
        SAPPHIRE = 7,
        RUBY = 8,
        COBALTSKY = 9,
        VIOLETANGELPURPLE = 10,
        SCARLETDEVILRED = 11,
        PRUKLESBLUEPALETTE = 12,
        PIZZABROWN = 13,
        BABYPASTEL = 14,
        UNTOUCHEDLAGOON = 15,
        GREYMATTER = 16,
        DARKFUSIONBLUE = 17,
        DARKFUSION = 18,
        PLASTIQUE = 19
    };
    Q_ENUM(Theme)

    static Themes* instance(QObject* parent = nullptr);
    static void destroyInstance();

    // Makes the menu entries, owned by this object, and applies the current theme without a signal. Each
    // carries the properties "themeId" (int) and "isDarkTheme" (bool).
    QList<QAction*> themeActions(Theme current);
    // Sets style and palette of the application. A number that is no theme is kept and changes neither.
    void setTheme(Theme theme);
    // False for all themes but NONE until the entries are made.
    [[nodiscard]] bool isDarkTheme() const;
    // The colour of icons under the current theme.
    [[nodiscard]] static QColor iconTint(bool isDarkTheme);
    // Repaint each icon in one flat colour that shows on the theme's background.
    void tintActions(bool isDarkTheme, const QList<QAction*>& actions) const;
    void tintButtons(bool isDarkTheme, const QList<QAbstractButton*>& buttons) const;

signals:
    // The user has chosen a theme, which is already applied; themeAccentChanged follows.
    void themeChanged(Themes::Theme theme);
    void themeAccentChanged(bool isDarkTheme);

private:
    explicit Themes(QObject* parent);

    QAction* makeAction(Theme theme, const QString& text, bool isDark);
    void chooseTheme(const QAction* action);

    static Themes* _instance;

    int _theme = NONE;
    QMap<int, bool> _themeDarkness;
};

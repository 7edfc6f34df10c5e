#include "app/services/Themes.h"

#include <QAbstractButton>
#include <QAction>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleHints>

#include <utility>

namespace {

template <typename Target>
void tintIcon(Target* target, const QColor& tint) {
    const QIcon icon = target->icon();
    if (icon.isNull())
        return;
    QPixmap pixmap =
        icon.pixmap(icon.actualSize(QSize(64, 64), QIcon::Normal, QIcon::Off), QIcon::Normal, QIcon::Off);
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
    setTheme(current);
    return {};
}

void Themes::setTheme(Theme theme) {
    _theme = theme;
}

bool Themes::isDarkTheme() const {
    if (_theme == NONE)
        return QGuiApplication::styleHints()->colorScheme() == Qt::ColorScheme::Dark;
    return _themeDarkness.value(_theme, false);
}

QColor Themes::iconTint(bool isDarkTheme) const {
    return isDarkTheme ? Qt::white : Qt::black;
}

void Themes::tintActions(bool isDarkTheme, const QList<QAction*>& actions) const {
    for (QAction* action : actions)
        tintIcon(action, iconTint(isDarkTheme));
}

void Themes::tintButtons(bool isDarkTheme, const QList<QAbstractButton*>& buttons) const {
    for (QAbstractButton* button : buttons)
        tintIcon(button, iconTint(isDarkTheme));
}

#pragma once

#include "app/services/Settings.h"

#include <QDebug>
#include <QMainWindow>

// Restores the geometry that the last window of this kind had.
inline void restoreWindow(QWidget* window, const Setting<QByteArray>& geometryKey) {
    const QByteArray geometry = Settings::instance()->get(geometryKey);
    if (!geometry.isEmpty() && !window->restoreGeometry(geometry))
        qDebug() << "Error, unable to restore geometry for:" << window;
}

// The same with its docks and tool bars.
inline void restoreWindow(QMainWindow* window, const Setting<QByteArray>& geometryKey,
                          const Setting<QByteArray>& stateKey) {
    restoreWindow(window, geometryKey);
    const QByteArray state = Settings::instance()->get(stateKey);
    if (!state.isEmpty() && !window->restoreState(state))
        qDebug() << "Error, unable to restore state for:" << window;
}

// The same, and stores geometry and state when the window reports them on closing.
template <typename Window>
void keepWindowPlace(Window* window, const Setting<QByteArray>& geometryKey,
                     const Setting<QByteArray>& stateKey) {
    restoreWindow(window, geometryKey, stateKey);
    const auto store = [](const Setting<QByteArray>& setting) {
        return [setting](const QByteArray& saved) { Settings::instance()->set(setting, saved); };
    };
    QObject::connect(window, &Window::widgetGeometry, window, store(geometryKey));
    QObject::connect(window, &Window::widgetState, window, store(stateKey));
}

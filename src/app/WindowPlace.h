#pragma once

#include "app/services/Settings.h"

#include <QDebug>
#include <QMainWindow>

// Gives a window the place that the last one of its kind had.
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

// The same, and stores the place that the window reports when it closes.
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

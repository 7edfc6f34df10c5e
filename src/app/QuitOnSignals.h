#pragma once

#include <QObject>

// Lets an interrupt or a request to terminate end the event loop, so that the program stores its settings.
class QuitOnSignals : public QObject {
    Q_OBJECT

public:
    explicit QuitOnSignals(QObject* parent = nullptr);
};

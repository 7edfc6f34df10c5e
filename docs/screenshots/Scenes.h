#pragma once

#include "support/WindowDriver.h"

#include <QSize>
#include <QString>

class OllamaPeer;

// Brings the program into the states that the guide tells of and saves a picture of each.
class Scenes {
public:
    Scenes(const QString& dataDirectory, const QString& pictureDirectory, OllamaPeer& peer);

    void takeAll();

private:
    void views();
    void tagTabs();
    void captions();
    void effects();
    void editor();
    void video();
    void model();
    void exportAndOptions();
    void themes();

    void showView(int page);
    void select(const QStringList& fileNames);
    void showTab(const char* tab);
    [[nodiscard]] QImage seen(QWidget* widget) const;
    void save(const QString& name, QWidget* widget) const;
    [[nodiscard]] QWidget* window() { return &_driver.window(); }

    QString _data;
    QString _pictures;
    WindowDriver _driver;
};

#include "SampleData.h"
#include "Scenes.h"
#include "ollama/OllamaPeer.h"

#include <QApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

// usage: tessarine_screenshots PICTURE_DIRECTORY
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    if (argc != 2)
        qFatal("usage: tessarine_screenshots PICTURE_DIRECTORY");
    QCoreApplication::setApplicationName("Tessarine");
    QCoreApplication::setApplicationVersion(TESSARINE_VERSION);
    WindowDriver::forgetSettings();
    const QString data = QDir::tempPath() + "/landscapes";
    QDir(data).removeRecursively();
    makeSampleData(data);

    OllamaPeer peer;
    peer.setAnswers("/api/version", {{R"({"version":"0.5.7"})"}});
    peer.setAnswers("/api/tags", {{R"({"models":[{"model":"llava:13b"},{"model":"gemma3:12b"}]})"}});
    const QJsonObject answer{
        {"response", "mountains, sunrise, warm light, haze, pine ridge, portrait format, quiet mood"},
        {"done", true}};
    peer.setAnswers("/api/generate", {{QJsonDocument(answer).toJson()}});

    Scenes(data, QString::fromLocal8Bit(argv[1]), peer).takeAll();
    QDir(data).removeRecursively();
    return 0;
}

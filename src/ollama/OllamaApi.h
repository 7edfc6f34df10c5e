#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

class QNetworkAccessManager;
class QNetworkReply;

// Client of an Ollama server. Each request blocks its caller in a nested event loop, during which any event
// may be processed and even this object be deleted. GUI thread only.
class OllamaApi : public QObject {
    Q_OBJECT

public:
    explicit OllamaApi(QObject* parent = nullptr);

    // The base URL, with or without a closing slash.
    void setUrl(const QString& url);
    void setModel(const QString& model);

    // False after a failed GET. Only getVersion() then still sends a request, which can set it again.
    [[nodiscard]] bool isOnline() const { return _online; }
    // Whether the last request was abandoned without a reply because the program quits.
    [[nodiscard]] bool isInterrupted() const { return _interrupted; }

    // Both are empty on any failure.
    QString getVersion();
    [[nodiscard]] QStringList getModelList();
    // The image is base64 text; the path is passed on to the signals. An interrupted request emits none.
    void getPrompt(const QString& prompt, const QByteArray& image, const QString& imgFilePath);

    [[nodiscard]] QByteArray getData(const QString& url);
    [[nodiscard]] QByteArray postData(const QString& url, const QByteArray& data);

signals:
    void ollamaConnectionStatus(bool connected);
    void ollamaResponse(QString data);
    void ollamaResponseImg(QString data, QString imgFilePath);
    void ollamaError(QString data, QString imgFilePath);

private:
    // False if this object was deleted meanwhile.
    [[nodiscard]] bool waitFor(const QNetworkAccessManager& manager, const QNetworkReply& reply);

    QString _url;
    QString _model;
    bool _online = true;
    bool _interrupted = false;
};

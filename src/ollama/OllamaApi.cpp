#include "ollama/OllamaApi.h"

#include "ollama/OllamaMessages.h"

#include <QDebug>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int getTransferTimeoutMs = 500;

} // namespace

OllamaApi::OllamaApi(QObject* parent) : QObject(parent) {}

void OllamaApi::setUrl(const QString& url) {
    _url = url;
}

void OllamaApi::setModel(const QString& model) {
    _model = model;
}

QString OllamaApi::getVersion() {
    const QPointer<OllamaApi> self(this);
    // Lets getData send the request, whose failure clears the flag again.
    _online = true;
    const QByteArray data = getData(ollamaUrl(_url, u"/api/version"_s));
    if (!self)
        return {};
    emit ollamaConnectionStatus(_online);
    if (data.isEmpty()) {
        qDebug() << "Network data is empty.";
        return {};
    }
    const VersionReply reply = readVersionReply(data);
    if (!reply.parseError.isEmpty())
        qDebug() << "Error, provided data is not JSON:" << reply.parseError;
    return reply.version;
}

QStringList OllamaApi::getModelList() {
    const QPointer<OllamaApi> self(this);
    const QByteArray data = getData(ollamaUrl(_url, u"/api/tags"_s));
    if (!self)
        return {};
    const ModelsReply reply = readModelsReply(data);
    if (!reply.parseError.isEmpty())
        qDebug() << "Error, provided data is not JSON:" << reply.parseError;
    return reply.models;
}

void OllamaApi::getPrompt(const QString& prompt, const QByteArray& image, const QString& imgFilePath) {
    const QPointer<OllamaApi> self(this);
    const QByteArray data =
        postData(ollamaUrl(_url, u"/api/generate"_s), generateRequest(_model, prompt, image));
    if (!self || _interrupted)
        return;
    qDebug() << "ollama response data:" << data;
    const GenerateReply reply = readGenerateReply(data);
    if (!reply.isGood) {
        qDebug() << "Error, provided data is not JSON:" << reply.parserText;
        emit ollamaError(u"%1 - %2"_s.arg(reply.parserText, QString::fromUtf8(data)), imgFilePath);
        return;
    }
    emit ollamaResponseImg(answerText(reply), imgFilePath);
}

QByteArray OllamaApi::getData(const QString& url) {
    qDebug() << "OllamaApi::getData" << url << "is online:" << _online;
    if (!_online)
        return {};
    QNetworkAccessManager manager;
    manager.setTransferTimeout(getTransferTimeoutMs);
    // A child of the manager, with which it is deleted at the end of this call.
    QNetworkReply* reply = manager.get(QNetworkRequest(QUrl(url, QUrl::TolerantMode)));
    if (!waitFor(manager, *reply))
        return {};
    if (reply->error() != QNetworkReply::NoError) {
        qDebug() << "Error, get reply error:" << reply->error() << "error string:" << reply->errorString();
        _online = false;
    }
    // A reply that was aborted by the time-out is closed, and reading it would log a warning.
    return reply->isOpen() ? reply->readAll() : QByteArray();
}

QByteArray OllamaApi::postData(const QString& url, const QByteArray& data) {
    qDebug() << "OllamaApi::postData" << url << data.size();
    QNetworkAccessManager manager;
    QNetworkRequest request(QUrl(url, QUrl::TolerantMode));
    // Not the type of JSON, but the server parses the body as JSON whatever its type. There is no time-out,
    // as a model may take minutes.
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    QNetworkReply* reply = manager.post(request, data);
    if (!waitFor(manager, *reply))
        return {};
    if (reply->error() != QNetworkReply::NoError)
        qDebug() << "Error, post reply error:" << reply->error() << "error string:" << reply->errorString();
    return reply->readAll();
}

bool OllamaApi::waitFor(const QNetworkAccessManager& manager, const QNetworkReply& reply) {
    const QPointer<OllamaApi> self(this);
    QEventLoop loop;
    connect(&manager, &QNetworkAccessManager::finished, &loop, &QEventLoop::quit);
    // What runs in the loop may destroy the window, and this object with it.
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    // When the program quits, all event loops of the thread end, and exec() of a further one returns at once.
    loop.exec();
    if (self)
        _interrupted = !reply.isFinished();
    return !self.isNull();
}

#include "ollama/OllamaMessages.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestAnswerTokens = 500;

struct OllamaJson {
    QJsonObject object;
    QString parseError;
};

OllamaJson parseOllamaJson(const QByteArray& data) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(data, &error);
    if (error.error != QJsonParseError::NoError)
        return {.object = {}, .parseError = error.errorString()};
    return {.object = document.object(), .parseError = {}};
}

} // namespace

QString ollamaUrl(const QString& base, const QString& path) {
    const bool isClosed = base.endsWith(u'/') || base.endsWith(u'\\');
    return (isClosed ? base.chopped(1) : base) + path;
}

QByteArray generateRequest(const QString& model, const QString& prompt, const QByteArray& image,
                           const QString& system) {
    QJsonObject body{
        {u"model"_s, model},
        {u"prompt"_s, prompt},
        {u"stream"_s, false},
        {u"options"_s, QJsonObject{{u"num_predict"_s, longestAnswerTokens}}},
        {u"images"_s, QJsonArray{QString::fromLatin1(image)}},
    };
    if (!system.isEmpty())
        body.insert(u"system"_s, system);
    return QJsonDocument(body).toJson(QJsonDocument::Indented);
}

VersionReply readVersionReply(const QByteArray& data) {
    const OllamaJson json = parseOllamaJson(data);
    return {.version = json.object.value("version"_L1).toString(), .parseError = json.parseError};
}

ModelsReply readModelsReply(const QByteArray& data) {
    const OllamaJson json = parseOllamaJson(data);
    ModelsReply reply{.models = {}, .parseError = json.parseError};
    const QJsonArray models = json.object.value("models"_L1).toArray();
    for (const auto& model : models)
        reply.models.append(model.toObject().value("model"_L1).toString());
    return reply;
}

GenerateReply readGenerateReply(const QByteArray& data) {
    const OllamaJson json = parseOllamaJson(data);
    const bool isJson = json.parseError.isEmpty();
    // The whole reply is searched, so an answer that contains the word "error" is discarded too.
    return {.isGood = isJson && !data.contains("error"),
            .response = json.object.value("response"_L1).toString(),
            .thinking = json.object.value("thinking"_L1).toString(),
            .parserText = isJson ? QJsonParseError().errorString() : json.parseError};
}

QString answerText(const GenerateReply& reply) {
    QString text = reply.response;
    // Appended without a separator: the thinking is split into tags with the rest.
    if (!reply.thinking.isEmpty())
        text += QCoreApplication::translate("OllamaApi", "Thinking:") + reply.thinking;
    return text;
}

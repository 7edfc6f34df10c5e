#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Writes requests to an Ollama server and reads its replies.

// Joins the base URL and a path that starts with a slash; one closing slash or backslash of the base is
// dropped.
[[nodiscard]] QString ollamaUrl(const QString& base, const QString& path);

// The JSON body of a generate request. The image is base64 text. An empty system prompt leaves the model's
// own.
[[nodiscard]] QByteArray generateRequest(const QString& model, const QString& prompt, const QByteArray& image,
                                         const QString& system = {});

struct VersionReply {
    QString version;
    QString parseError; // empty for JSON of any shape

    bool operator==(const VersionReply&) const = default;
};
[[nodiscard]] VersionReply readVersionReply(const QByteArray& data);

struct ModelsReply {
    QStringList models; // in reply order, an empty name for an element without one
    QString parseError;

    bool operator==(const ModelsReply&) const = default;
};
[[nodiscard]] ModelsReply readModelsReply(const QByteArray& data);

struct GenerateReply {
    bool isGood = false;
    QString response;
    QString thinking;
    QString parserText; // the parser's error text; for valid JSON its text for no error

    bool operator==(const GenerateReply&) const = default;
};
// A reply that holds the word "error" anywhere is bad: the server has no other mark for a failure.
[[nodiscard]] GenerateReply readGenerateReply(const QByteArray& data);
// The text of a good reply: its response, then the model's thinking.
[[nodiscard]] QString answerText(const GenerateReply& reply);

#include "ollama/OllamaApi.h"
#include "ollama/OllamaPeer.h"
#include "ollama/PromptImage.h"
#include "ollama/PromptProgress.h"
#include "support/Rows.h"

#include <QSignalSpy>
#include <QTimer>

using Answer = OllamaPeer::Answer;

// The client against a server that behaves well, badly, or not at all.
class TestOllamaApi : public QObject {
    Q_OBJECT

private slots:
    void requestsAreExact() {
        OllamaPeer peer;
        OllamaApi api;
        api.setUrl(peer.url());
        const QSignalSpy responses(&api, &OllamaApi::ollamaResponseImg);
        peer.setAnswers("/api/version", {{R"({"version":"0.5.1"})"}});
        peer.setAnswers("/api/tags",
                        {{R"({"models":[{"model":"b","name":"x"},{"model":7},{"model":"a"}]})"}});
        const QByteArray text(5'000'000, 'x');
        peer.setAnswers("/api/generate",
                        {{"{\"thinking\":\"hm\",\"response\":\"" + text + "\"}", OllamaPeer::Held}});
        // Later than the time-out of a GET.
        connect(&peer, &OllamaPeer::requested, &api,
                [&] { QTimer::singleShot(700, &peer, &OllamaPeer::release); });
        api.setModel("x/\"y\"");
        QCOMPARE(api.getVersion(), QString("0.5.1"));
        QCOMPARE(api.getModelList(), QStringList({"b", "", "a"}));
        api.getPrompt("two\nlines \\ \u00e9", "QUJD", "/some/file.png");
        QCOMPARE(responses.value(0),
                 QVariantList({QString::fromLatin1(text) + "Thinking:hm", "/some/file.png"}));

        const PeerRequest request = peer.requests("/api/generate").value(0);
        QCOMPARE(request.line, QByteArray("POST /api/generate HTTP/1.1"));
        QCOMPARE(request.headers.value("content-type"), QByteArray("application/x-www-form-urlencoded"));
        QCOMPARE(request.body, QByteArray("{\n"
                                          "    \"images\": [\n"
                                          "        \"QUJD\"\n"
                                          "    ],\n"
                                          "    \"model\": \"x/\\\"y\\\"\",\n"
                                          "    \"options\": {\n"
                                          "        \"num_predict\": 500\n"
                                          "    },\n"
                                          "    \"prompt\": \"two\\nlines \\\\ \u00e9\",\n"
                                          "    \"stream\": false\n"
                                          "}\n"));
    }

    void badServers_data() {
        addRows<Answer, QString, bool, QString>({
            {"no JSON", {"hello"}, "", true, "illegal number - hello"},
            {"an error status",
             {R"({"version":"1","error":""})", OllamaPeer::Whole, "500 Oops"},
             "1",
             false,
             R"(no error occurred - {"version":"1","error":""})"},
            {"half a reply",
             {R"({"version":"1"})", OllamaPeer::Half},
             "",
             false,
             "unterminated string - {\"versi"},
        });
    }
    void badServers() {
        const auto& [answer, version, online, error] = row<Answer, QString, bool, QString>();
        OllamaPeer peer;
        OllamaApi api;
        api.setUrl(peer.url());
        const QSignalSpy errors(&api, &OllamaApi::ollamaError);
        peer.setAnswers("/api/version", {answer, {R"({"version":"2"})"}});
        peer.setAnswers("/api/tags", {{R"({"models":[{"model":"m"}]})"}});
        peer.setAnswers("/api/generate", {answer});
        QCOMPARE(api.getVersion(), version);
        QCOMPARE(api.isOnline(), online);
        // While offline, no request is sent until the next version request.
        QCOMPARE(api.getModelList(), online ? QStringList("m") : QStringList());
        QCOMPARE(api.getVersion(), QString("2"));
        QCOMPARE(api.getModelList(), QStringList("m"));
        api.getPrompt("p", {}, "f.png");
        QCOMPARE(errors.value(0).value(0).toString(), error);
    }

    void imagesAreScaled_data() {
        addRows<QSize, bool, QSize>({
            {"as it is", {-1, -1}, true, {64, 32}},
            {"the height follows", {320, -1}, false, {320, 160}},
            {"the width follows", {-1, 16}, false, {32, 16}},
            {"fitted inside", {32, 32}, true, {32, 16}},
            {"stretched", {10, 20}, false, {10, 20}},
        });
    }
    void imagesAreScaled() {
        const auto& [size, keep, scaled] = row<QSize, bool, QSize>();
        QCOMPARE(scaledPromptImage(QImage(64, 32, QImage::Format_RGB32), size, keep).size(), scaled);
    }

    void progressNamesTheTimeLeft() {
        QCOMPARE(promptProgressText(0, 40, {}), QString("captions 0/40"));
        QCOMPARE(promptProgressText(3, 40, {900000, 1000, 2000}), QString("captions 3/40, 3 h left"));
        // The mean is that of the last ten.
        QCOMPARE(promptProgressText(11, 41, QList<qint64>{900000} + QList<qint64>(10, 4000)),
                 QString("captions 11/41, 2 min left"));
        QCOMPARE(promptProgressText(39, 40, {1500}), QString("captions 39/40, 2 s left"));
        QCOMPARE(promptProgressText(40, 40, {1500}), QString("captions 40/40"));
    }
};

QTEST_GUILESS_MAIN(TestOllamaApi)
#include "tst_ollamaapi.moc"

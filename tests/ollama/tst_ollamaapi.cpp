#include "ollama/OllamaApi.h"
#include "ollama/OllamaPeer.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>
#include <QTimer>

#include <memory>

using Answer = OllamaPeer::Answer;

namespace {

QString refusingUrl() {
    QTcpServer server;
    if (!server.listen(QHostAddress::LocalHost))
        qFatal("no port");
    return QString("http://127.0.0.1:%1").arg(server.serverPort());
}

} // namespace

// The client against a server that behaves well, badly, or not at all.
class TestOllamaApi : public QObject {
    Q_OBJECT

private slots:
    void requestsAreExact() {
        OllamaPeer peer;
        peer.setAnswers("/api/version", {{R"({"version":"0.5.1"})"}});
        peer.setAnswers("/api/tags", {{R"({"models":[{"model":"llava:7b"},{}]})"}});
        peer.setAnswers("/api/generate", {{R"({"response":"a, b","thinking":"hm"})"}});
        OllamaApi api;
        const QSignalSpy status(&api, &OllamaApi::ollamaConnectionStatus);
        const QSignalSpy responses(&api, &OllamaApi::ollamaResponseImg);
        api.setUrl(peer.url());
        api.setModel("x/\"y\"");
        QCOMPARE(api.getVersion(), QString("0.5.1"));
        QCOMPARE(status.value(0), QVariantList({true}));
        QCOMPARE(api.getModelList(), QStringList({"llava:7b", ""}));
        const QString prompt(100'000, QChar('p'));
        api.getPrompt(prompt, "QUJD", "/some/file.png");
        QCOMPARE(responses.value(0), QVariantList({"a, bThinking:hm", "/some/file.png"}));

        QCOMPARE(peer.requests("/api/version").value(0).line, QByteArray("GET /api/version HTTP/1.1"));
        QCOMPARE(peer.requests("/api/tags").value(0).line, QByteArray("GET /api/tags HTTP/1.1"));
        const PeerRequest request = peer.requests("/api/generate").value(0);
        QCOMPARE(request.line, QByteArray("POST /api/generate HTTP/1.1"));
        QCOMPARE(request.headers.value("content-type"), QByteArray("application/x-www-form-urlencoded"));
        const QJsonObject body{{"model", "x/\"y\""},
                               {"prompt", prompt},
                               {"stream", false},
                               {"options", QJsonObject{{"num_predict", 500}}},
                               {"images", QJsonArray{"QUJD"}}};
        QCOMPARE(request.body, QJsonDocument(body).toJson(QJsonDocument::Indented));
    }

    void versions_data() {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("version");
        QTest::addColumn<bool>("online");
        const auto row = [](const char* name, const Answer& answer, const QString& version, bool online) {
            QTest::newRow(name) << answer << version << online;
        };
        row("no such field", {"{}"}, "", true);
        row("another type", {R"({"version":5})"}, "", true);
        row("no JSON", {"hello"}, "", true);
        row("nothing in it", {""}, "", true);
        row("byte by byte, slower than the timeout in all", {"  {} ", OllamaPeer::Dripping}, "", true);
        row("an error status", {R"({"version":"1"})", OllamaPeer::Whole, "500 Oops"}, "1", false);
        row("half a reply", {R"({"version":"1"})", OllamaPeer::Half}, "", false);
        row("hanging up", {{}, OllamaPeer::Closing}, "", false);
        row("no answer", {{}, OllamaPeer::Silent}, "", false);
    }
    void versions() {
        QFETCH(const Answer, answer);
        QFETCH(const bool, online);
        OllamaPeer peer;
        peer.setAnswers("/api/version", {answer});
        peer.setAnswers("/api/tags", {{R"({"models":[{"model":"m"}]})"}});
        OllamaApi api;
        api.setUrl(peer.url());
        const QSignalSpy status(&api, &OllamaApi::ollamaConnectionStatus);
        QTEST(api.getVersion(), "version");
        QCOMPARE(api.isOnline(), online);
        QCOMPARE(status.value(0), QVariantList({online}));
        // Offline, nothing is asked until the next version request.
        QCOMPARE(api.getModelList(), online ? QStringList("m") : QStringList());
        QCOMPARE(peer.requests("/api/tags").size(), online ? 1 : 0);
        peer.setAnswers("/api/version", {{R"({"version":"2"})"}});
        QCOMPARE(api.getVersion(), QString("2"));
        QCOMPARE(api.getModelList(), QStringList("m"));
    }

    void addressesWithoutAServer_data() {
        QTest::addColumn<QString>("url");
        QTest::newRow("refused") << refusingUrl();
        QTest::newRow("nothing") << "";
        QTest::newRow("no address") << "what is this?";
        QTest::newRow("another scheme") << "ftp://127.0.0.1/";
    }
    void addressesWithoutAServer() {
        QFETCH(const QString, url);
        OllamaApi api;
        api.setUrl(url);
        const QSignalSpy errors(&api, &OllamaApi::ollamaError);
        QCOMPARE(api.getVersion(), QString());
        QVERIFY(!api.isOnline());
        api.getPrompt("p", {}, "f.png");
        QCOMPARE(errors.value(0), QVariantList({"illegal value - ", "f.png"}));
    }

    void badAnswers_data() {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const Answer& answer, const QString& text) {
            QTest::newRow(name) << answer << text;
        };
        row("a refusal with its status", {R"({"error":"no model"})", OllamaPeer::Whole, "404 Not Found"},
            R"(no error occurred - {"error":"no model"})");
        row("a marker in the text", {R"({"response":"%1 error %2"})"},
            R"(no error occurred - {"response":"%1 error %2"})");
        row("no JSON", {"<html>"}, "illegal number - <html>");
        row("half a reply", {R"({"response":"abcdef"})", OllamaPeer::Half},
            "unterminated string - {\"response");
        row("hanging up", {{}, OllamaPeer::Closing}, "illegal value - ");
    }
    void badAnswers() {
        QFETCH(const Answer, answer);
        OllamaPeer peer;
        peer.setAnswers("/api/generate", {answer});
        OllamaApi api;
        api.setUrl(peer.url());
        const QSignalSpy errors(&api, &OllamaApi::ollamaError);
        const QSignalSpy responses(&api, &OllamaApi::ollamaResponseImg);
        api.getPrompt("p", "QUJD", "f.png");
        QCOMPARE(errors.size(), 1);
        QTEST(errors.first().first().toString(), "text");
        QVERIFY(responses.isEmpty());
        QVERIFY(api.isOnline());
    }

    void aLargeAnswerArrivesWhole() {
        OllamaPeer peer;
        const QByteArray text(5'000'000, 'x');
        peer.setAnswers("/api/generate", {{"{\"response\":\"" + text + "\"}"}});
        OllamaApi api;
        api.setUrl(peer.url());
        const QSignalSpy responses(&api, &OllamaApi::ollamaResponseImg);
        api.getPrompt("p", {}, "f.png");
        QVERIFY(responses.value(0).value(0).toByteArray() == text);
    }

    void aPromptWaitsLongerThanAGetWould() {
        OllamaPeer peer;
        peer.setAnswers("/api/generate", {{R"({"response":"late"})", OllamaPeer::Held}});
        OllamaApi api;
        api.setUrl(peer.url());
        const QSignalSpy responses(&api, &OllamaApi::ollamaResponseImg);
        connect(&peer, &OllamaPeer::requested, this,
                [&] { QTimer::singleShot(700, &peer, &OllamaPeer::release); });
        api.getPrompt("p", {}, "f.png");
        QCOMPARE(responses.value(0), QVariantList({"late", "f.png"}));
    }

    void aQuitEndsARequest_data() {
        QTest::addColumn<bool>("isPost");
        QTest::newRow("POST") << true;
        QTest::newRow("GET that drips") << false;
    }
    void aQuitEndsARequest() {
        QFETCH(const bool, isPost);
        OllamaPeer peer;
        peer.setAnswers("/api/generate", {{{}, OllamaPeer::Silent}});
        peer.setAnswers("/api/version", {{QByteArray(1000, ' '), OllamaPeer::Dripping}});
        OllamaApi api;
        api.setUrl(peer.url());
        const QSignalSpy errors(&api, &OllamaApi::ollamaError);
        connect(&peer, &OllamaPeer::requested, QCoreApplication::instance(), &QCoreApplication::quit);
        QTimer::singleShot(0, this, [&] {
            if (isPost)
                api.getPrompt("p", {}, "f.png");
            else
                api.getVersion();
        });
        QCoreApplication::exec();
        QVERIFY(api.isInterrupted());
        QVERIFY(errors.isEmpty());
    }

    void theClientMayGoWhileItWaits_data() { aQuitEndsARequest_data(); }
    void theClientMayGoWhileItWaits() {
        QFETCH(const bool, isPost);
        OllamaPeer peer;
        peer.setAnswers("/api/generate", {{{}, OllamaPeer::Silent}});
        peer.setAnswers("/api/version", {{QByteArray(1000, ' '), OllamaPeer::Dripping}});
        auto api = std::make_unique<OllamaApi>();
        api->setUrl(peer.url());
        connect(&peer, &OllamaPeer::requested, this, [&] { api.reset(); });
        if (isPost)
            api->getPrompt("p", {}, "f.png");
        else
            QCOMPARE(api->getVersion(), QString());
        QVERIFY(!api);
    }
};

QTEST_GUILESS_MAIN(TestOllamaApi)
#include "tst_ollamaapi.moc"

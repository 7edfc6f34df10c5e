#include "ollama/OllamaApi.h"
#include "ollama/OllamaMessages.h"
#include "ollama/OllamaPeer.h"
#include "support/Rows.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTcpServer>
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
    void init() {
        _peer = std::make_unique<OllamaPeer>();
        _api = std::make_unique<OllamaApi>();
        _api->setUrl(_peer->url());
        _responses = std::make_unique<QSignalSpy>(_api.get(), &OllamaApi::ollamaResponseImg);
        _errors = std::make_unique<QSignalSpy>(_api.get(), &OllamaApi::ollamaError);
    }
    void cleanup() {
        _api.reset();
        _peer.reset();
    }

    void requestsAreExact() {
        _peer->setAnswers("/api/version", {{R"({"version":"0.5.1"})"}});
        _peer->setAnswers("/api/tags", {{R"({"models":[{"model":"llava:7b"},{}]})"}});
        _peer->setAnswers("/api/generate", {{R"({"response":"a, b","thinking":"hm"})"}});
        _api->setModel("x/\"y\"");
        QCOMPARE(_api->getVersion(), QString("0.5.1"));
        QCOMPARE(_api->getModelList(), QStringList({"llava:7b", ""}));
        const QString prompt(100'000, QChar('p'));
        _api->getPrompt(prompt, "QUJD", "/some/file.png");
        QCOMPARE(_responses->value(0), QVariantList({"a, bThinking:hm", "/some/file.png"}));

        QCOMPARE(_peer->requests("/api/version").value(0).line, QByteArray("GET /api/version HTTP/1.1"));
        QCOMPARE(_peer->requests("/api/tags").value(0).line, QByteArray("GET /api/tags HTTP/1.1"));
        const PeerRequest request = _peer->requests("/api/generate").value(0);
        QCOMPARE(request.line, QByteArray("POST /api/generate HTTP/1.1"));
        QCOMPARE(request.headers.value("content-type"), QByteArray("application/x-www-form-urlencoded"));
        QCOMPARE(request.body, generateRequest("x/\"y\"", prompt, "QUJD"));
    }

    void versions_data() {
        addRows<Answer, QString, bool>({
            {"no such field", {"{}"}, "", true},
            {"no JSON", {"hello"}, "", true},
            {"byte by byte, slower than the timeout in all", {"  {} ", OllamaPeer::Dripping}, "", true},
            {"an error status", {R"({"version":"1"})", OllamaPeer::Whole, "500 Oops"}, "1", false},
            {"half a reply", {R"({"version":"1"})", OllamaPeer::Half}, "", false},
            {"no answer", {{}, OllamaPeer::Silent}, "", false},
        });
    }
    void versions() {
        const auto& [answer, version, online] = row<Answer, QString, bool>();
        _peer->setAnswers("/api/version", {answer, {R"({"version":"2"})"}});
        _peer->setAnswers("/api/tags", {{R"({"models":[{"model":"m"}]})"}});
        const QSignalSpy status(_api.get(), &OllamaApi::ollamaConnectionStatus);
        QCOMPARE(_api->getVersion(), version);
        QCOMPARE(_api->isOnline(), online);
        QCOMPARE(status.value(0), QVariantList({online}));
        // Offline, nothing is asked until the next version request.
        QCOMPARE(_api->getModelList(), online ? QStringList("m") : QStringList());
        QCOMPARE(_peer->requests("/api/tags").size(), online ? 1 : 0);
        QCOMPARE(_api->getVersion(), QString("2"));
        QCOMPARE(_api->getModelList(), QStringList("m"));
    }

    void addressesWithoutAServer() {
        for (const QString& url :
             {refusingUrl(), QString(), QString("what is this?"), QString("ftp://127.0.0.1/")}) {
            _api->setUrl(url);
            QCOMPARE(_api->getVersion(), QString());
            QVERIFY(!_api->isOnline());
            _api->getPrompt("p", {}, "f.png");
            QCOMPARE(_errors->takeFirst(), QVariantList({"illegal value - ", "f.png"}));
        }
    }

    void badAnswers_data() {
        addRows<Answer, QString>({
            {"a refusal with its status",
             {R"({"error":"no model"})", OllamaPeer::Whole, "404 Not Found"},
             R"(no error occurred - {"error":"no model"})"},
            {"a marker in the text",
             {R"({"response":"%1 error %2"})"},
             R"(no error occurred - {"response":"%1 error %2"})"},
            {"no JSON", {"<html>"}, "illegal number - <html>"},
            {"half a reply",
             {R"({"response":"abcdef"})", OllamaPeer::Half},
             "unterminated string - {\"response"},
        });
    }
    void badAnswers() {
        const auto& [answer, text] = row<Answer, QString>();
        _peer->setAnswers("/api/generate", {answer});
        _api->getPrompt("p", "QUJD", "f.png");
        QCOMPARE(_errors->size(), 1);
        QCOMPARE(_errors->first().first().toString(), text);
        QVERIFY(_responses->isEmpty() && _api->isOnline());
    }

    void aLateAndLargeAnswerArrivesWhole() {
        const QByteArray text(5'000'000, 'x');
        _peer->setAnswers("/api/generate", {{"{\"response\":\"" + text + "\"}", OllamaPeer::Held}});
        // Later than a GET would wait.
        connect(_peer.get(), &OllamaPeer::requested, this,
                [this] { QTimer::singleShot(700, _peer.get(), &OllamaPeer::release); });
        _api->getPrompt("p", {}, "f.png");
        QVERIFY(_responses->value(0).value(0).toByteArray() == text);
    }

    void aRequestIsCutShort_data() {
        addRows<bool, bool>({
            {"a quit during a POST", true, true},
            {"a quit during a GET that drips", true, false},
            {"the client goes during a POST", false, true},
            {"the client goes during a GET that drips", false, false},
        });
    }
    void aRequestIsCutShort() {
        const auto& [isQuit, isPost] = row<bool, bool>();
        _peer->setAnswers("/api/generate", {{{}, OllamaPeer::Silent}});
        _peer->setAnswers("/api/version", {{QByteArray(1000, ' '), OllamaPeer::Dripping}});
        connect(_peer.get(), &OllamaPeer::requested, this, [this, isQuit = isQuit] {
            if (isQuit)
                QCoreApplication::quit();
            else
                _api.reset();
        });
        QTimer::singleShot(0, this, [this, isPost = isPost] {
            if (isPost)
                _api->getPrompt("p", {}, "f.png");
            else
                _api->getVersion();
            QCoreApplication::quit();
        });
        QCoreApplication::exec();
        QCOMPARE(_api != nullptr, isQuit);
        QVERIFY(!_api || _api->isInterrupted());
        QVERIFY(_errors->isEmpty());
    }

private:
    std::unique_ptr<OllamaPeer> _peer;
    std::unique_ptr<OllamaApi> _api;
    std::unique_ptr<QSignalSpy> _responses;
    std::unique_ptr<QSignalSpy> _errors;
};

QTEST_GUILESS_MAIN(TestOllamaApi)
#include "tst_ollamaapi.moc"

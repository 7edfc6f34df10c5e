#include "ollama/OllamaMessages.h"
#include "ollama/PromptImage.h"

#include <QTest>

class TestOllamaMessages : public QObject {
    Q_OBJECT

private slots:
    void urls_data() {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("url");
        QTest::newRow("without a closing slash") << "http://h:1" << "http://h:1/api/tags";
        QTest::newRow("with one") << "http://h:1/" << "http://h:1/api/tags";
        QTest::newRow("of two one stays") << "http://h:1//" << "http://h:1//api/tags";
        QTest::newRow("a backslash is one too") << "http://h:1\\" << "http://h:1/api/tags";
        QTest::newRow("nothing at all") << "" << "/api/tags";
    }
    void urls() {
        QFETCH(const QString, base);
        QTEST(ollamaUrl(base, "/api/tags"), "url");
    }

    void theGenerateRequestIsExact() {
        QCOMPARE(generateRequest("a/b:\"c\"", "two\nlines \\ \u00e9", "QUJD"),
                 QByteArray("{\n"
                            "    \"images\": [\n"
                            "        \"QUJD\"\n"
                            "    ],\n"
                            "    \"model\": \"a/b:\\\"c\\\"\",\n"
                            "    \"options\": {\n"
                            "        \"num_predict\": 500\n"
                            "    },\n"
                            "    \"prompt\": \"two\\nlines \\\\ \u00e9\",\n"
                            "    \"stream\": false\n"
                            "}\n"));
        QVERIFY(generateRequest({}, {}, {}).contains("\"images\": [\n        \"\"\n    ]"));
    }

    void modelReplies_data() {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QStringList>("models");
        QTest::addColumn<bool>("isJson");
        const auto row = [](const char* name, const QByteArray& data, const QStringList& models,
                            bool isJson = true) { QTest::newRow(name) << data << models << isJson; };
        row("reply order, other fields ignored", R"({"models":[{"model":"b","name":"x"},{"model":"a"}]})",
            {"b", "a"});
        row("a missing or odd name is empty", R"({"models":[{"name":"x"},{"model":7},5]})", {"", "", ""});
        row("no list", R"({"model":"a"})", {});
        row("a list of another kind", R"({"models":"a"})", {});
        row("an array", R"([{"model":"a"}])", {});
        row("no JSON", "models", {}, false);
        row("nothing", "", {}, false);
    }
    void modelReplies() {
        QFETCH(const QByteArray, data);
        const ModelsReply reply = readModelsReply(data);
        QTEST(reply.models, "models");
        QTEST(reply.parseError.isEmpty(), "isJson");
    }

    void generateReplies_data() {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<GenerateReply>("reply");
        const auto row = [](const char* name, const QByteArray& data, const GenerateReply& reply) {
            QTest::newRow(name) << data << reply;
        };
        const QString fine = "no error occurred";
        row("an answer", R"({"response":" a, b\n"})", {true, " a, b\n", "", fine});
        row("with thinking", R"({"thinking":"hm","response":"a"})", {true, "a", "hm", fine});
        row("the word in the text", R"({"response":"an error"})", {false, "an error", "", fine});
        row("a refusal", R"({"error":"no model"})", {false, "", "", fine});
        row("other kinds", R"({"response":5,"thinking":[]})", {true, "", "", fine});
        row("an array", "[]", {true, "", "", fine});
        row("invalid UTF-8", "{\"response\":\"\xff\xfe\"}", {false, "", "", "invalid UTF8 string"});
        row("half a reply", "{\"response\":\"a", {false, "", "", "unterminated string"});
        row("nothing", "", {false, "", "", "illegal value"});
    }
    void generateReplies() {
        QFETCH(const QByteArray, data);
        QTEST(readGenerateReply(data), "reply");
    }

    void scaling_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("keep");
        QTest::addColumn<QSize>("scaled");
        QTest::newRow("as it is") << QSize(-1, -1) << true << QSize(64, 32);
        QTest::newRow("the height follows") << QSize(320, -1) << false << QSize(320, 160);
        QTest::newRow("the width follows") << QSize(-1, 16) << false << QSize(32, 16);
        QTest::newRow("fitted inside") << QSize(32, 32) << true << QSize(32, 16);
        QTest::newRow("stretched") << QSize(10, 20) << false << QSize(10, 20);
        QTest::newRow("no width") << QSize(0, -1) << true << QSize(0, 0);
    }
    void scaling() {
        QFETCH(const QSize, size);
        QFETCH(const bool, keep);
        const QImage image(64, 32, QImage::Format_RGB32);
        QTEST(scaledPromptImage(image, size, keep).size(), "scaled");
        QVERIFY(scaledPromptImage({}, size, keep).isNull());
    }
};

QTEST_GUILESS_MAIN(TestOllamaMessages)
#include "tst_ollamamessages.moc"

#include "ollama/OllamaMessages.h"
#include "ollama/PromptImage.h"
#include "ollama/PromptProgress.h"
#include "support/Rows.h"

class TestOllamaMessages : public QObject {
    Q_OBJECT

private slots:
    void urlsLoseOneSlash() {
        for (const char* base : {"http://h:1", "http://h:1/", "http://h:1\\"})
            QCOMPARE(ollamaUrl(base, "/api/tags"), QString("http://h:1/api/tags"));
        QCOMPARE(ollamaUrl("http://h:1//", "/api/tags"), QString("http://h:1//api/tags"));
        QCOMPARE(ollamaUrl("", "/api/tags"), QString("/api/tags"));
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
        addRows<QByteArray, QStringList, bool>({
            {"reply order, other fields ignored",
             R"({"models":[{"model":"b","name":"x"},{"model":"a"}]})",
             {"b", "a"},
             true},
            {"a missing or odd name is empty",
             R"({"models":[{"name":"x"},{"model":7},5]})",
             {"", "", ""},
             true},
            {"a list of another kind", R"({"models":"a"})", {}, true},
            {"an array", R"([{"model":"a"}])", {}, true},
            {"nothing", "", {}, false},
        });
    }
    void modelReplies() {
        const auto& [data, models, isJson] = row<QByteArray, QStringList, bool>();
        QCOMPARE(readModelsReply(data).models, models);
        QCOMPARE(readModelsReply(data).parseError.isEmpty(), isJson);
    }

    void generateReplies_data() {
        const QString fine = "no error occurred";
        addRows<QByteArray, GenerateReply>({
            {"an answer", R"({"response":" a, b\n"})", {true, " a, b\n", "", fine}},
            {"with thinking", R"({"thinking":"hm","response":"a"})", {true, "a", "hm", fine}},
            {"the word in the text", R"({"response":"an error"})", {false, "an error", "", fine}},
            {"other kinds", R"({"response":5,"thinking":[]})", {true, "", "", fine}},
            {"an array", "[]", {true, "", "", fine}},
            {"invalid UTF-8", "{\"response\":\"\xff\xfe\"}", {false, "", "", "invalid UTF8 string"}},
            {"nothing", "", {false, "", "", "illegal value"}},
        });
    }
    void generateReplies() {
        const auto& [data, reply] = row<QByteArray, GenerateReply>();
        QCOMPARE(readGenerateReply(data), reply);
    }

    void scaling_data() {
        addRows<QSize, bool, QSize>({
            {"as it is", {-1, -1}, true, {64, 32}},
            {"the height follows", {320, -1}, false, {320, 160}},
            {"the width follows", {-1, 16}, false, {32, 16}},
            {"fitted inside", {32, 32}, true, {32, 16}},
            {"stretched", {10, 20}, false, {10, 20}},
            {"no width", {0, -1}, true, {0, 0}},
        });
    }
    void scaling() {
        const auto& [size, keep, scaled] = row<QSize, bool, QSize>();
        QCOMPARE(scaledPromptImage(QImage(64, 32, QImage::Format_RGB32), size, keep).size(), scaled);
        QVERIFY(scaledPromptImage({}, size, keep).isNull());
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

QTEST_GUILESS_MAIN(TestOllamaMessages)
#include "tst_ollamamessages.moc"

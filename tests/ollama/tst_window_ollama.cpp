#include "ollama/OllamaPeer.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTimer>

#include <functional>
#include <optional>

using Answer = OllamaPeer::Answer;

namespace {

constexpr auto generatePath = "/api/generate";

Answer answered(const QString& text, OllamaPeer::Manner manner = OllamaPeer::Whole) {
    return {QJsonDocument(QJsonObject{{"response", text}}).toJson(), manner};
}

QImage sentImage(const PeerRequest& request) {
    const QJsonArray images = QJsonDocument::fromJson(request.body)["images"].toArray();
    return QImage::fromData(QByteArray::fromBase64(images.first().toString().toLatin1()), "PNG");
}

} // namespace

// Batches as a user runs them, against a server that answers on demand.
class TestWindowOllama : public QObject {
    Q_OBJECT

private slots:
    void init() {
        WindowDriver::forgetSettings();
        _folder.emplace();
        _peer.emplace();
        _peer->setAnswers("/api/version", {{R"({"version":"0.5"})"}});
        _peer->setAnswers("/api/tags",
                          {{"{\"models\":[{\"model\":\"first\"},{\"model\":\"a/\\\"b\\\"\"}]}"}});
    }

    void cleanup() {
        _driver.reset();
        _peer.reset();
        _folder.reset();
    }

    void aMixedBatchLeavesWhatIsTold() {
        _folder->addImage("a.png", {64, 32}, Qt::green);
        _folder->addTags("a.png", "old");
        _folder->addFile("b.png", "no image at all");
        _folder->addFile("c.mp4", "no video either");
        _folder->addImage("d.jpg", {1, 1});
        _folder->addImage("e.png");
        _folder->addImage("f.png");
        _folder->addFile("g.png");
        openWithPeer();
        _driver->widget<QComboBox>("cBOllamaModels")->setCurrentIndex(1);
        _driver->widget<QSpinBox>("sBOllamaScaleResW")->setValue(32);
        _peer->setAnswers(generatePath, {answered("one, two,,three", OllamaPeer::Held), answered("an error"),
                                         answered("last\n")});
        QCOMPARE(_driver->statusText(), QString("Ollama status is online: true"));
        _driver->select({"a.png", "b.png", "c.mp4", "d.jpg", "e.png", "f.png", "g.png"});
        duringRequest(1, [this] {
            // The window lives: what the user does now is kept.
            QCOMPARE(_driver->widget<QPushButton>("pBOllamaGo")->text(), QString("Abort prompt"));
            QVERIFY(QFile::remove(path("e.png")));
            _driver->window().setImageTags(path("a.png"), {"old", "edited"});
            _driver->widget<QPlainTextEdit>("pTEPromptUser")->setPlainText("Anew");
            _peer->setAnswers("/api/version", {{{}, OllamaPeer::Closing}});
            _driver->click("tBOllamaReconect");
            QCOMPARE(_driver->statusText(), QString("Ollama status is online: false"));
            QCOMPARE(_driver->widget<QComboBox>("cBOllamaModels")->count(), 0);
            QVERIFY(_driver->widget<QPushButton>("pBOllamaGo")->isEnabled());
            _driver->select({"f.png"});
            _peer->release();
        });
        _driver->click("pBOllamaGo");

        QCOMPARE(_driver->statusText(), QString("Ollama processing done for 7"));
        QCOMPARE(WindowDriver::logCount("Ollama processing: 3 total 7"), 1);
        QCOMPARE(WindowDriver::logCount("Ollama processing: 4 total 7"), 0);
        QCOMPARE(WindowDriver::logCount("Error, unable to open file:"), 1);
        QCOMPARE(WindowDriver::logCount("Error, image is null for:"), 3);
        QCOMPARE(_driver->widget<QPushButton>("pBOllamaGo")->text(), QString("Send prompt"));
        QVERIFY(!_driver->widget<QPushButton>("pBOllamaGo")->isEnabled());
        QCOMPARE(responses(), QStringList({"<time>",
                                           "one, two,,three",
                                           "<time>",
                                           "Error processing: " + path("b.png"),
                                           "Error, image is null.",
                                           "<time>",
                                           "Error processing: " + path("c.mp4"),
                                           "Error, image is null.",
                                           "<time>",
                                           "Error processing: " + path("d.jpg"),
                                           "no error occurred - {",
                                           "    \"response\": \"an error\"",
                                           "}",
                                           "",
                                           "<time>",
                                           "last",
                                           "",
                                           "<time>",
                                           "Error processing: " + path("g.png"),
                                           "Error, image is null."}));
        QCOMPARE(tags("a.png"), QStringList({"old", "edited", "one", " two", "three"}));
        QCOMPARE(tags("d.jpg"), QStringList());
        QCOMPARE(tags("f.png"), QStringList("last\n"));
        QCOMPARE(_driver->tagTexts("lwImageTags"), QStringList("last\n"));
        QVERIFY(_driver->tagTexts("lwAllImagesTags").contains(" two"));
        QCOMPARE(_folder->content("a.txt"), QByteArray("old"));

        const QList<PeerRequest> sent = _peer->requests(generatePath);
        QCOMPARE(sent.size(), 3);
        QCOMPARE(sentImage(sent[0]).size(), QSize(32, 16));
        QCOMPARE(sentImage(sent[0]).pixelColor(5, 5), QColor(Qt::green));
        QCOMPARE(sentImage(sent[1]).size(), QSize(32, 32));
        QCOMPARE(QJsonDocument::fromJson(sent[2].body)["model"].toString(), QString("a/\"b\""));
        QVERIFY(QJsonDocument::fromJson(sent[0].body)["prompt"].toString().startsWith("Describe image"));
        QCOMPARE(QJsonDocument::fromJson(sent[2].body)["prompt"].toString(), QString("Anew"));
    }

    void anAbortDropsWhatWaits() {
        for (const char* name : {"a.png", "b.png", "c.png"})
            _folder->addImage(name, {4, 4});
        openWithPeer();
        _peer->setAnswers(generatePath, {answered("x", OllamaPeer::Held)});
        _driver->select({"a.png", "b.png", "c.png"});
        duringRequest(1, [this] {
            _driver->click("pBOllamaGo");
            QCOMPARE(_driver->statusText(), QString("Ollama aborting for 2"));
            // Nothing is left to abort, and nothing starts.
            _driver->click("tBSendOllamaPrompt");
            QCOMPARE(_driver->statusText(), QString("Ollama aborting for 0"));
            _peer->release();
        });
        _driver->click("tBSendOllamaPrompt");
        QCOMPARE(_driver->statusText(), QString("Ollama processing done for 1"));
        QCOMPARE(_peer->requests(generatePath).size(), 1);
        QCOMPARE(tags("a.png"), QStringList("x"));
        QCOMPARE(tags("b.png"), QStringList());
        _driver->widget<QCheckBox>("cBOllamaAddTags")->setChecked(false);
        duringRequest(2, [this] { _peer->release(); });
        _driver->select({"b.png"});
        _driver->click("pBOllamaGo");
        QCOMPARE(tags("b.png"), QStringList());
    }

    void anAnswerForALeftDirectoryJoinsItsSidecar() {
        _folder->addImage("a.png");
        _folder->addTags("a.png", "mine");
        const MediaFolder other;
        other.addImage("o.png");
        openWithPeer();
        _peer->setAnswers(generatePath, {answered("new", OllamaPeer::Held)});
        _driver->select({"a.png"});
        duringRequest(1, [&] {
            _driver->window().openWorkingDirectory(other.path());
            QVERIFY(_driver->waitForLoad());
            _peer->release();
        });
        _driver->click("pBOllamaGo");
        QCOMPARE(responses(), QStringList({"<time>", "new"}));
        _driver->click("tBSaveTags");
        QCOMPARE(_folder->content("a.txt"), QByteArray("mine,new"));
    }

    void aQuitEndsTheBatch() {
        _folder->addImage("a.png");
        _folder->addImage("b.png");
        openWithPeer();
        _peer->setAnswers(generatePath, {{{}, OllamaPeer::Silent}});
        _driver->select({"a.png", "b.png"});
        duringRequest(1, [this] { _driver->window().close(); });
        QTimer::singleShot(0, this, [this] { _driver->click("pBOllamaGo"); });
        QApplication::exec();
        QCOMPARE(_peer->requests(generatePath).size(), 1);
    }

private:
    void openWithPeer() {
        _driver.emplace(_folder->path());
        _driver->widget<QLineEdit>("lEOllamaIp")->setText(_peer->url());
        _driver->click("tBOllamaReconect");
    }

    // Acts when the numbered generate request of the test has reached the server.
    void duringRequest(int count, const std::function<void()>& act) {
        connect(&*_peer, &OllamaPeer::requested, &_driver->window(),
                [this, count, act, isDone = false]() mutable {
                    if (!isDone && _peer->requests(generatePath).size() == count) {
                        isDone = true;
                        act();
                    }
                });
    }

    [[nodiscard]] QString path(const QString& name) const { return _folder->filePath(name); }
    [[nodiscard]] QStringList tags(const QString& name) const {
        return _driver->window().imageTags(path(name));
    }

    [[nodiscard]] QStringList responses() const {
        static const QRegularExpression stamp(R"(^\d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d\.\d{1,3}$)");
        QStringList lines = _driver->widget<QPlainTextEdit>("pTEResponse")->toPlainText().split('\n');
        for (QString& line : lines)
            line.replace(stamp, "<time>");
        return lines;
    }

    std::optional<MediaFolder> _folder;
    std::optional<OllamaPeer> _peer;
    mutable std::optional<WindowDriver> _driver;
};

QTEST_MAIN(TestWindowOllama)
#include "tst_window_ollama.moc"

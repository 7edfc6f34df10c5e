#include "ollama/OllamaPeer.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <QToolButton>

#include <functional>
#include <optional>

using Answer = OllamaPeer::Answer;

namespace {

constexpr auto generatePath = "/api/generate";

Answer answered(const QString& text, OllamaPeer::Manner manner = OllamaPeer::Whole) {
    return {QJsonDocument(QJsonObject{{"response", text}}).toJson(), manner};
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

    void anAbortDropsWhatWaits() {
        for (const char* name : {"a.png", "b.png", "c.png"})
            _folder->addImage(name, {4, 4});
        openWithPeer();
        _peer->setAnswers(generatePath, {answered("x", OllamaPeer::Held)});
        _driver->select({"a.png", "b.png", "c.png"});
        duringRequest(1, [this] {
            QCOMPARE(_driver->widget<QToolButton>("tBBatchProgress")->text(), QString("captions 0/3"));
            // A server that answers no more leaves the button that aborts.
            _peer->setAnswers("/api/version", {{{}, OllamaPeer::Closing}});
            _driver->click("tBOllamaReconect");
            QCOMPARE(_driver->statusText(), QString("Ollama status is online: false"));
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
        _peer->setAnswers("/api/version", {{R"({"version":"0.5"})"}});
        _driver->click("tBOllamaReconect");
        _driver->widget<QCheckBox>("cBOllamaAddTags")->setChecked(false);
        duringRequest(2, [this] { _peer->release(); });
        _driver->select({"b.png"});
        _driver->click("pBOllamaGo");
        QCOMPARE(tags("b.png"), QStringList());
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

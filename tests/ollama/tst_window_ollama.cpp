#include "ollama/OllamaPeer.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QToolButton>

// A batch that its user ends, against a server that answers on demand.
class TestWindowOllama : public QObject {
    Q_OBJECT

private slots:
    void anAbortDropsWhatWaits() {
        constexpr auto generatePath = "/api/generate";
        const QList<OllamaPeer::Answer> version{{R"({"version":"0.5"})"}};
        OllamaPeer peer;
        peer.setAnswers("/api/version", version);
        peer.setAnswers("/api/tags", {{R"({"models":[{"model":"first"}]})"}});
        peer.setAnswers(generatePath, {{R"({"response":"x"})", OllamaPeer::Held}});
        const MediaFolder folder;
        for (const char* name : {"a.png", "b.png", "c.png"})
            folder.addImage(name, {4, 4});
        WindowDriver::forgetSettings();
        WindowDriver driver(folder.path());
        driver.widget<QLineEdit>("lEOllamaIp")->setText(peer.url());
        driver.click("tBOllamaReconect");
        const auto tags = [&](const char* name) { return driver.window().imageTags(folder.filePath(name)); };
        qsizetype begun = 0;
        connect(&peer, &OllamaPeer::requested, &driver.window(), [&] {
            const qsizetype requests = peer.requests(generatePath).size();
            if (std::exchange(begun, requests) == requests)
                return;
            if (requests == 1) {
                QCOMPARE(driver.widget<QToolButton>("tBBatchProgress")->text(), QString("captions 0/3"));
                QCOMPARE(driver.statusText(), QString("Ollama processing: 0 total 3"));
                // The button stays enabled although the server no longer answers, since it aborts the batch.
                peer.setAnswers("/api/version", {{{}, OllamaPeer::Closing}});
                driver.click("tBOllamaReconect");
                QCOMPARE(driver.statusText(), QString("Ollama status is online: false"));
                driver.click("pBOllamaGo");
                QCOMPARE(driver.statusText(), QString("Ollama aborting for 2"));
                // Nothing is left to abort, and nothing starts.
                driver.click("tBSendOllamaPrompt");
                QCOMPARE(driver.statusText(), QString("Ollama aborting for 0"));
            }
            peer.release();
        });
        driver.select({"a.png", "b.png", "c.png"});
        driver.click("tBSendOllamaPrompt");
        QCOMPARE(driver.statusText(), QString("Ollama processing done for 1"));
        QCOMPARE(peer.requests(generatePath).size(), 1);
        QCOMPARE(tags("a.png"), QStringList("x"));
        QCOMPARE(tags("b.png"), QStringList());
        // The next batch starts from the beginning.
        peer.setAnswers("/api/version", version);
        driver.click("tBOllamaReconect");
        driver.widget<QCheckBox>("cBOllamaAddTags")->setChecked(false);
        driver.select({"b.png"});
        driver.click("pBOllamaGo");
        QCOMPARE(peer.requests(generatePath).size(), 2);
        QCOMPARE(tags("b.png"), QStringList());
    }
};

QTEST_MAIN(TestWindowOllama)
#include "tst_window_ollama.moc"

#include "ollama/OllamaPeer.h"
#include "support/Clips.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"
#include "video/VideoWidget.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMediaPlayer>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTimer>

namespace {

using Begin = std::function<void(MainWindow&)>;

// What the window is doing when it is closed, in a process of its own.
struct Scene {
    const char* name;
    Begin begin;
    // Without a condition, right after begin().
    std::function<bool(const MainWindow&)> isUnderWay = nullptr;
    // Under a modal window the user cannot close the main window, so the program is ended by
    // QCoreApplication::quit().
    bool isModal = false;
};

template <typename Window>
bool hasModal(const MainWindow&) {
    return qobject_cast<Window*>(QApplication::activeModalWidget());
}

bool hasPopup(const MainWindow&) {
    return QApplication::activePopupWidget() != nullptr;
}

bool sendsPrompts(const MainWindow& window) {
    return window.findChild<QPushButton*>("pBOllamaGo")->text() == "Abort prompt";
}

bool hasVideo(const MainWindow& window) {
    const auto* player = window.findChild<VideoWidget*>()->findChild<QMediaPlayer*>();
    return player && player->mediaStatus() >= QMediaPlayer::LoadedMedia;
}

void scanAgain(MainWindow& window) {
    window.openWorkingDirectory(window.findChild<QLineEdit*>("lEWorkingPath")->text());
}

void addEffect(MainWindow& window) {
    window.onAddDspEffectItem("Blur");
    window.findChild<QPushButton*>("pBDspApply")->click();
}

void openVideo(MainWindow& window) {
    window.showEditVideoWidget()->openFile(clipPath("h264.mp4"));
}

const QList<Scene>& scenes() {
    static const QList<Scene> all{
        {"a scan and its previews", [](MainWindow&) {}},
        {"a second scan", scanAgain},
        {"a file dialog", &MainWindow::importFiles, hasModal<QFileDialog>, true},
        {"a question", &MainWindow::deleteFile, hasModal<QMessageBox>, true},
        {"a context menu", [](MainWindow& window) { window.onImagesCustomContextMenu(); }, hasPopup, true},
        {"a request for the models", &MainWindow::checkOllamaServer},
        {"a batch of prompts", &MainWindow::onOllamaSendPrompt, sendsPrompts},
        {"a resize batch", &MainWindow::onProcessResize},
        {"an effects batch", addEffect},
        {"an export", &MainWindow::onTagsExport},
        {"an editor", &MainWindow::editImage},
        {"a video window", openVideo, hasVideo},
    };
    return all;
}

// The other process: opens the window on a directory, begins the scene and ends it in the middle.
int play(const QString& name, const QString& directory, const QString& server) {
    MainWindow window;
    window.findChild<QLineEdit*>("lEWorkingPath")->setText(directory);
    window.findChild<QLineEdit*>("lEOllamaIp")->setText(server);
    window.show();
    const auto* rows = window.findChild<QStandardItemModel*>(QString(), Qt::FindDirectChildrenOnly);
    const auto scene = std::ranges::find_if(scenes(), [&](const Scene& s) { return name == s.name; });
    bool hasBegun = false;
    bool isInside = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (!hasBegun && rows->rowCount() > 0) {
            hasBegun = true;
            window.findChild<QListView*>("listView")->selectAll();
            // From another timer: this one does not fire again while its slot is running.
            QTimer::singleShot(0, &window, [&] {
                isInside = true;
                scene->begin(window);
            });
        } else if (isInside && (!scene->isUnderWay || scene->isUnderWay(window))) {
            poll.stop();
            if (scene->isModal)
                QCoreApplication::quit();
            else
                window.close();
        }
    });
    poll.start(1);
    return QApplication::exec();
}

} // namespace

// The program ends at a bad moment.
class TestEndings : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void theWindowClosesDuring_data() {
        QTest::addColumn<QString>("scene");
        for (const Scene& scene : scenes())
            QTest::newRow(scene.name) << QString(scene.name);
    }
    void theWindowClosesDuring() {
        QFETCH(QString, scene);
        const MediaFolder folder;
        for (int number = 0; number < 20; ++number)
            folder.addImage(QString("%1.png").arg(number), {400, 300});
        QVERIFY(QFile::copy(clipPath("h264.mp4"), folder.filePath("clip.mp4")));
        const QStringList before = folder.names();
        OllamaPeer peer;
        for (const char* path : {"/api/version", "/api/tags", "/api/generate"})
            peer.setAnswers(path, {{{}, OllamaPeer::Silent}});
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QCoreApplication::applicationFilePath(), {"--play", scene, folder.path(), peer.url()});
        QVERIFY(program.waitForFinished(120000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(QFileInfo(QCoreApplication::applicationDirPath() + "/settings.data").size() > 0);
        QCOMPARE(folder.names(), before);
    }
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--play")
        return play(arguments.value(2), arguments.value(3), arguments.value(4));
    TestEndings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_endings.moc"

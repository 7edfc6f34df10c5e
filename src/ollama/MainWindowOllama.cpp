#include "app/MainWindow.h"

#include "app/StatusPanel.h"
#include "ollama/OllamaApi.h"
#include "ollama/PromptImage.h"
#include "ollama/PromptProgress.h"
#include "tags/TagRecord.h"
#include "ui_MainWindow.h"

#include <QDateTime>
#include <QDebug>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

constexpr auto usualToolTip = "usualToolTip";

} // namespace

void MainWindow::initOllamaConnections() {
    connect(ui->lEOllamaIp, &QLineEdit::textChanged, this, &MainWindow::onOllamaIpChanged);
    connect(ui->tBOllamaReconect, &QToolButton::clicked, this, &MainWindow::checkOllamaServer);
    connect(ui->tBSendOllamaPrompt, &QToolButton::clicked, this, &MainWindow::onOllamaSendPrompt);
    connect(ui->lEOllamaIp, &QLineEdit::returnPressed, this, &MainWindow::checkOllamaServer);
    // Kept for the time when a server answers again: until then the tool tip says why the button is disabled.
    ui->pBOllamaGo->setProperty(usualToolTip, ui->pBOllamaGo->toolTip());
}

void MainWindow::initOllama() {
    _ollamaApi = new OllamaApi(this);
    _ollamaApi->setUrl(ui->lEOllamaIp->text());
    connect(_ollamaApi, &OllamaApi::ollamaConnectionStatus, this, &MainWindow::ollamaConnectionStatus);
    connect(_ollamaApi, &OllamaApi::ollamaResponse, this, &MainWindow::onOllamaResponse);
    connect(_ollamaApi, &OllamaApi::ollamaResponseImg, this, &MainWindow::onOllamaResponseImg);
    connect(_ollamaApi, &OllamaApi::ollamaError, this, &MainWindow::onOllamaError);
    connect(ui->pBOllamaGo, &QPushButton::clicked, this, &MainWindow::onOllamaSendPrompt);
    checkOllamaServer();
}

void MainWindow::checkOllamaServer() {
    const QPointer<MainWindow> self(this);
    // Each request runs a nested event loop, in which the window may be destroyed.
    const QString version = _ollamaApi->getVersion();
    if (!self)
        return;
    qDebug() << "Ollama version:" << version;
    const QStringList models = _ollamaApi->getModelList();
    if (!self)
        return;
    ui->statusbar->showMessage(
        tr("Ollama status is online: %1").arg(_ollamaApi->isOnline() ? "true"_L1 : "false"_L1));
    ui->cBOllamaModels->clear();
    ui->cBOllamaModels->insertItems(0, models);
}

void MainWindow::onOllamaIpChanged(const QString& txt) {
    _ollamaApi->setUrl(txt);
}

void MainWindow::ollamaConnectionStatus(bool connected) {
    // A busy server may reply too late to count as online. During a batch the button stays enabled, as it
    // aborts the batch.
    const bool isUsable = connected || _ollamaBatch != 0;
    ui->pBOllamaGo->setEnabled(isUsable);
    ui->pBOllamaGo->setToolTip(isUsable ? ui->pBOllamaGo->property(usualToolTip).toString()
                                        : tr("No Ollama server answers at this address."));
}

void MainWindow::onOllamaSendPrompt() {
    if (_ollamaBatch != 0) {
        // During the last request the queue is empty, so a click has no effect.
        onShowMessage(tr("Ollama aborting for %1").arg(ollamaQueue.size()));
        dropOllamaQueue();
        return;
    }
    // The model is that of the start, while each file is sent with the prompt of its moment.
    _ollamaApi->setModel(ui->cBOllamaModels->currentText());
    ollamaQueue = selectedFilePaths();
    _ollamaTotal = static_cast<int>(ollamaQueue.size());
    _ollamaBatch = TagRecord::newBatch();
    ui->pBOllamaGo->setText(tr("Abort prompt"));
    ollamaSendPrompts();
}

void MainWindow::dropOllamaQueue() {
    _ollamaTotal -= static_cast<int>(ollamaQueue.size());
    ollamaQueue.clear();
}

void MainWindow::ollamaSendPrompts() {
    const QPointer<MainWindow> self(this);
    int processed = 0;
    QList<qint64> answerTimes;
    const auto showInPanel = [&](qsizetype underWay) {
        // The file under way has left the queue and has no answer yet.
        const qsizetype done = _ollamaTotal - ollamaQueue.size() - underWay;
        _statusPanel->showProgress(promptProgressText(done, _ollamaTotal, answerTimes));
    };
    showOllamaProgress(processed);
    while (!ollamaQueue.isEmpty()) {
        const QString imgFilePath = ollamaQueue.takeFirst();
        showInPanel(1);
        QElapsedTimer timer;
        timer.start();
        qDebug() << "in for loop ollamaQueue size:" << ollamaQueue.size() << "imgFilePath:" << imgFilePath;
        const bool isSent = ollamaSendPrompt(imgFilePath);
        if (!self)
            return;
        if (isSent) {
            answerTimes.append(timer.elapsed());
            showOllamaProgress(++processed);
        }
        showInPanel(0);
    }
    _statusPanel->showProgress({});
    onShowMessage(tr("Ollama processing done for %1").arg(_ollamaTotal));
    ui->pBOllamaGo->setText(tr("Send prompt"));
    _ollamaBatch = 0;
    // A reconnect during the batch that found no server disables the button from here on.
    ollamaConnectionStatus(_ollamaApi->isOnline());
}

void MainWindow::showOllamaProgress(int processed) {
    onShowMessage(tr("Ollama processing: %1 total %2").arg(processed).arg(_ollamaTotal));
}

bool MainWindow::ollamaSendPrompt(const QString& imgFilePath) {
    QFile file(imgFilePath);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "Error, unable to open file:" << file.errorString();
        return false;
    }
    // Opened only to report an unreadable file by itself; QImage opens it again.
    file.close();
    const QImage image = scaleOllamaImage(QImage(imgFilePath));
    if (image.isNull()) {
        qDebug() << "Error, image is null for:" << imgFilePath;
        onOllamaError(tr("Error, image is null."), imgFilePath);
        return false;
    }
    const QPointer<MainWindow> self(this);
    _ollamaApi->getPrompt(ui->pTEPromptUser->toPlainText(), pngBytes(image).toBase64(), imgFilePath);
    if (!self)
        return false;
    // The program quits, so the remaining files are neither decoded nor sent.
    if (_ollamaApi->isInterrupted())
        dropOllamaQueue();
    return !_ollamaApi->isInterrupted();
}

QImage MainWindow::scaleOllamaImage(const QImage& image) const {
    const QSize size(ui->sBOllamaScaleResW->value(), ui->sBOllamaScaleResH->value());
    return scaledPromptImage(image, size, ui->cBOllamaScaleKeepAspectRatio->isChecked());
}

void MainWindow::logOllamaAnswer(const QStringList& lines) {
    ui->pTEResponse->appendPlainText(QDateTime::currentDateTime().toString(u"dd.MM.yyyy hh:mm:ss.z"_s));
    for (const QString& line : lines)
        ui->pTEResponse->appendPlainText(line);
}

void MainWindow::onOllamaResponse(const QString& text) {
    logOllamaAnswer({text});
}

void MainWindow::onOllamaError(const QString& text, const QString& imgFilePath) {
    logOllamaAnswer({tr("Error processing: %1").arg(imgFilePath), text});
}

void MainWindow::onOllamaResponseImg(const QString& text, const QString& imgFilePath) {
    logOllamaAnswer({text});
    if (!ui->cBOllamaAddTags->isChecked()) {
        qDebug() << "Skipping adding tags, not enabled.";
        return;
    }
    const QString separator = ui->lETagsSplitTag->text();
    if (separator.isEmpty())
        qDebug() << "Split tag is empty.";
    const QStringList tags = tagsFromAnswer(text, separator);
    qDebug() << "ollamaTags:" << tags.size() << tags;
    checkMediaKey(imgFilePath);
    _imageTags->appendAnswer(imgFilePath, tags, _ollamaBatch);
    if (selectedFilePaths().contains(imgFilePath, Qt::CaseInsensitive))
        refreshImageTags(imgFilePath);
}

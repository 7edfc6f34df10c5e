#include "app/MainWindow.h"

#include "app/Questions.h"
#include "app/WaitCursor.h"
#include "imaging/BatchOutput.h"
#include "imaging/ResizeGeometry.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QImageReader>
#include <QMimeDatabase>
#include <QSignalBlocker>

namespace {

void logSpecificSize(const QSize& size) {
    switch (specificSizeOperation(size)) {
    case SpecificSizeOperation::Nothing:
        qDebug() << "Error, both with and height -1";
        break;
    case SpecificSizeOperation::ScaleToHeight:
        qDebug() << "Scale to height:" << size.width() << size.height();
        break;
    case SpecificSizeOperation::ScaleToWidth:
        qDebug() << "Scale to width:" << size.width() << size.height();
        break;
    case SpecificSizeOperation::ScaleToSize:
        qDebug() << "Scale to specific size:" << size.width() << size.height();
        break;
    }
}

} // namespace

void MainWindow::initResizeConnections() {
    connect(ui->pBProcessResize, &QPushButton::clicked, this, &MainWindow::onProcessResize);
    const auto boxes = resizeGroupBoxes();
    for (const QGroupBox* box : boxes)
        connect(box, &QGroupBox::toggled, this, [this, box](bool on) { onResizeGroupToggled(box, on); });
    connect(ui->hSResizeImgWriteQuality, &QSlider::valueChanged, this,
            [this](int value) { ui->label_Quality->setText(tr("Quality [%1]:").arg(value)); });
}

QList<QGroupBox*> MainWindow::resizeGroupBoxes() const {
    return {ui->gBResizeScale, ui->gBResizeSpecificSize, ui->gBResizeByAspectRatio};
}

QGroupBox* MainWindow::resizeGroupBox(ResizeMode mode) const {
    switch (mode) {
    case ResizeMode::Scale:
        return ui->gBResizeScale;
    case ResizeMode::SpecificSize:
        return ui->gBResizeSpecificSize;
    case ResizeMode::AspectRatio:
        return ui->gBResizeByAspectRatio;
    case ResizeMode::None:
        break;
    }
    return nullptr;
}

ResizeMode MainWindow::resizeModeOf(const QGroupBox* box) const {
    for (const ResizeMode mode : {ResizeMode::Scale, ResizeMode::SpecificSize, ResizeMode::AspectRatio}) {
        if (resizeGroupBox(mode) == box)
            return mode;
    }
    return ResizeMode::None;
}

void MainWindow::onResizeGroupToggled(const QGroupBox* box, bool on) {
    // The boxes exclude one another like radio buttons; switching one off switches another on.
    const QGroupBox* chosen = resizeGroupBox(resizeModeAfterToggle(resizeModeOf(box), on));
    const auto boxes = resizeGroupBoxes();
    for (QGroupBox* other : boxes) {
        if (other != box) {
            // Blocked, as each box that changes would switch the others in turn.
            const QSignalBlocker blocker(other);
            other->setChecked(other == chosen);
        }
    }
}

ResizeOptions MainWindow::resizeOptions() const {
    ResizeOptions options;
    options.mode = ResizeMode::None;
    const auto boxes = resizeGroupBoxes();
    for (const QGroupBox* box : boxes) {
        if (box->isChecked()) {
            options.mode = resizeModeOf(box);
            break;
        }
    }
    options.specificSize = {ui->sBSpecificW->value(), ui->sBSpecificH->value()};
    options.scale = ui->dSPResizeScaleMulti->value();
    options.aspectRatio = ui->dSPResizeAspectRatio->value();
    // The entries of both boxes are in the order of the enumerators; without a choice the first one counts.
    options.aspectRatioMode =
        static_cast<Qt::AspectRatioMode>(qMax(0, ui->cBResizeSrcAspectRatio->currentIndex()));
    options.transformationMode =
        static_cast<Qt::TransformationMode>(qMax(0, ui->cBResizeSrcTransformationType->currentIndex()));
    return options;
}

void MainWindow::onProcessResize() {
    const QStringList files = selectedFilePaths();
    qDebug() << "Files:" << files;
    const ResizeOptions options = resizeOptions();
    if (options.mode == ResizeMode::None) {
        showNotice(this, tr("No resize options specified."));
        return;
    }
    const WaitCursor waitCursor;
    QElapsedTimer timer;
    timer.start();
    QImageReader reader;
    BatchWriter writer(ui->hSResizeImgWriteQuality->value());
    const QMimeDatabase mimeDatabase;
    onShowMessage(tr("Resized %1 of total: %2").arg(0).arg(files.size()));
    const QString directory = prepareOutputDirectory(ui->lEScaleDirOutput->text());
    for (const QString& path : files) {
        // Only logged: the reader below decides whether the file is an image.
        if (!mimeDatabase.mimeTypeForFile(path).isValid())
            qDebug() << "Error, unable to determine mime file:" << path;
        reader.setFileName(path);
        const QImage image = reader.read();
        if (image.isNull()) {
            qDebug() << "Unable to read image, error:" << reader.errorString();
            writer.noteFailure(path, reader.errorString());
            continue;
        }
        if (options.mode == ResizeMode::SpecificSize)
            logSpecificSize(options.specificSize);
        const std::optional<QImage> resized = resizedImage(image, options);
        // Width and height are both -1: nothing was asked for, so nothing has failed.
        if (!resized)
            continue;
        if (options.mode == ResizeMode::AspectRatio)
            qDebug() << "iSize b4:" << image.size() << image << "iSize after:" << resized->size() << *resized;
        // The message is painted at once, as no event is handled until all files are done.
        if (writeBatchImage(writer, *resized, path, directory))
            showBlockingMessage(tr("Resized %1 of total: %2").arg(writer.writtenCount()).arg(files.size()));
    }
    // The status bar reports the selected files, the panel those that were really written.
    showResult(tr("resized"), writer.writtenCount(), files.size(), writer.failures());
    const double seconds = static_cast<double>(timer.elapsed()) / 1000.0;
    onShowMessage(tr("Resize completed, resized: %1 in %2 s").arg(files.size()).arg(seconds));
}

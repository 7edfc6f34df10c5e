#include "catalogue/MediaUrl.h"
#include "ui_VideoWidget.h"
#include "video/VideoWidget.h"
#include "video/VideoWidgetFrameGrabber.h"

#include <QVideoFrame>
#include <QVideoSink>

void VideoWidget::onGrabFrame() {
    const QImage image = _ui->videoWidget->videoSink()->videoFrame().toImage();
    if (image.isNull())
        showStatus(tr("No frame to grab."));
    // Emitted without an image, too; the receiver logs that.
    emit imagePic(image, mediaPath(_mediaPlayer->source()));
}

VideoWidgetFrameGrabber* VideoWidget::makeFrameGrabber() {
    auto* grabber = new VideoWidgetFrameGrabber(this);
    connect(grabber, &VideoWidgetFrameGrabber::addFrames, this, &VideoWidget::onAddFrames);
    grabber->setAttribute(Qt::WA_DeleteOnClose);
    return grabber;
}

void VideoWidget::onVideoGrabSeries() {
    const QUrl source = _mediaPlayer->source();
    if (source.isEmpty() || !source.isValid()) {
        showStatus(tr("Source either empty or invalid: %1. Set correct media.").arg(source.toString()));
        return;
    }
    VideoWidgetFrameGrabber* grabber = makeFrameGrabber();
    grabber->setSourceUrl(source);
    grabber->show();
}

void VideoWidget::onVideoGrabFilesFrame() {
    ensureLastOpenPath();
    VideoWidgetFrameGrabber* grabber = makeFrameGrabber();
    grabber->show();
    grabber->grabFramesFromFiles(_lastOpenPath);
}

void VideoWidget::onAddFrames(QList<QImage> frames, QString fileName) {
    for (const QImage& frame : std::as_const(frames))
        emit imagePic(frame, fileName);
}

#pragma once

#include <QDialog>
#include <QImage>
#include <QList>
#include <QMediaPlayer>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVideoFrame>

#include <memory>

class QListWidgetItem;
class QVideoSink;

namespace Ui {
class VideoWidgetFrameGrabber;
}

// Takes evenly spaced frames from one video or from many, with a player of its own, and lets the user choose
// among them. Each frame that arrives requests the next by a seek, so only one is pending at a time.
class VideoWidgetFrameGrabber : public QDialog {
    Q_OBJECT

public:
    explicit VideoWidgetFrameGrabber(QWidget* parent = nullptr);
    ~VideoWidgetFrameGrabber() override;

    // The video that "Grab frames" works on.
    void setSourceUrl(const QUrl& url);
    // Takes frames from each file that the user chooses in a dialog, which starts in the directory.
    void grabFramesFromFiles(const QString& directory);

public slots:
    void onGrabFrames();
    void grabFramesFromFile(QString fileName);
    void onAddAll();
    void onAddSelected();
    void getItemsImage(QList<QListWidgetItem*> items);
    void onRemoveAll();
    void onRemoveSelected();
    void onImagesCustomContextMenu();
    void addImageItem(QImage image);
    void videoFrameChanged(QVideoFrame frame);

signals:
    // Frames to keep, all of one path or URL.
    void addFrames(QList<QImage> frames, QString fileName);

private:
    void initList();
    void initPlayer();
    void followFramesOfThisRun();
    void startAt(qint64 position);
    [[nodiscard]] bool isLoaded() const;
    void seekToStartWhenLoaded();
    void onMediaStatusChanged(QMediaPlayer::MediaStatus status);
    void endOfFile();

    std::unique_ptr<Ui::VideoWidgetFrameGrabber> _ui;
    // Files still to be processed.
    QStringList _videoFiles;
    QString _filesPath;
    QMediaPlayer* _mediaPlayer = nullptr;
    QVideoSink* _videoSink = nullptr;
    QUrl _sourceUrl;
    qint64 _frameCounter = 1;
    // A run is the work on one file. Its number identifies frames that were queued in an earlier one.
    quint64 _run = 0;
    bool _runIsOn = false;
    // Where the run starts, and whether the player still has to seek there.
    qint64 _startPosition = 0;
    bool _startIsPending = false;
    QMetaObject::Connection _frames;
};

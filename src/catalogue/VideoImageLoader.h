#pragma once

#include <QHash>
#include <QImage>
#include <QMediaMetaData>
#include <QMediaPlayer>
#include <QObject>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QVariant>
#include <QVideoFrame>

// Grabs the first frame and the metadata of one video after another. Lives on the GUI thread; a job ends with
// imageFrame or with failed, neither of which is emitted inside grabFrame.
class VideoImageLoader : public QObject {
    Q_OBJECT

public:
    explicit VideoImageLoader(QObject* parent = nullptr);

    // Position in milliseconds. A job that still runs is dropped.
    void grabFrame(const QString& filePath, qint64 position);
    // The busy flag belongs to the caller.
    [[nodiscard]] bool isRunning() const { return _isRunning; }
    void setRunning(bool running) { _isRunning = running; }
    // Frames are scaled to fit this size; an invalid size leaves them as they are.
    void setSize(const QSize& size) { _size = size; }
    // Metadata of the last job, under the display names and the fixed names of the keys.
    [[nodiscard]] QHash<QString, QVariant> videoMeta() const { return _videoMeta; }
    // Ends the job without a signal.
    void stopPlayer();

signals:
    void imageFrame(QString videoFilePath, QImage frame);
    void failed(QString videoFilePath);

public slots:
    void videoFrameChanged(QVideoFrame frame);
    void mediaStatusChanged(QMediaPlayer::MediaStatus status);
    void errorOccurred(QMediaPlayer::Error error, QString errorString);

private:
    void initVideoPlayer();
    void followFramesOfThisJob();
    void endFailedJob();
    void endJob();

    bool _isRunning = false;
    QSize _size;
    QMediaPlayer* _player = nullptr;
    QString _videoFilePath;
    QImage _image;
    QHash<QString, QVariant> _videoMeta;
    QMetaObject::Connection _frames;
    // Incremented at the start and at the end of each job, so that a frame of an earlier one is recognised.
    quint64 _job = 0;
    bool _jobIsOn = false;
    bool _jobHasFailed = false;
    // Ends a failed job, and one whose status has not changed for some seconds.
    QTimer _timeout;
};

// The metadata under the names that metaDataKeyToString gives and under the fixed names that the columns
// read.
[[nodiscard]] QHash<QString, QVariant> videoMetaHash(QMediaMetaData metaData);

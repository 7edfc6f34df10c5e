#include "video/VideoWidgetFrameGrabber.h"

#include "support/Clips.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"

#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

// Position in milliseconds and frame number.
using Frames = QList<std::pair<int, int>>;

// The list of frames. Its window is tested with the catalogue, to which the frames are added.
class TestFrameGrabber : public QObject {
    Q_OBJECT

private slots:
    void init() { _grabber = std::make_unique<VideoWidgetFrameGrabber>(); }
    void cleanup() { _grabber.reset(); }

    void runsAppend() {
        set(1, 3);
        const Frames run{{1, 0}, {6666, 166}, {9999, 249}};
        grab("h264.mp4");
        QTRY_COMPARE(items(), run);
        QCOMPARE(list()->item(1)->data(Qt::DecorationRole).value<QImage>().size(), QSize(218, 218));
        // The second run is restarted while it is running.
        grab("h264.mp4");
        QTRY_VERIFY(items().size() > 3);
        _grabber->onRemoveAll();
        grab("h264.mp4");
        QTRY_COMPARE(items(), run);
        set(9990, 100); // less than a millisecond for each
        grab("h264.mp4");
        QTRY_COMPARE(items(), run + Frames({{9990, 249}}));
    }

    void runsOverManyFiles() {
        set(1, 2);
        chooseClips({"h264.mp4", "truncated.mp4", "sound-only.ogg", "no-duration.mkv", "theora.ogv"});
        // The first file starts at one second; the second has no frame after a quarter of its length.
        const Frames expected{{1000, 25}, {9998, 249}, {1, 0}, {0, 0}, {1, 0}, {1998, 49}};
        QTRY_COMPARE(items(), expected);
        // A file that is not media ends the list.
        chooseClips({"text.mp4", "h264.mp4"});
        const auto* player = _grabber->findChild<QMediaPlayer*>();
        QTRY_COMPARE(player->mediaStatus(), QMediaPlayer::InvalidMedia);
        QCoreApplication::processEvents();
        QCOMPARE(items(), expected);
    }

private:
    QListWidget* list() { return _grabber->findChild<QListWidget*>("listWidget"); }
    void set(int start, int count) {
        _grabber->findChild<QSpinBox*>("sBFrameStart")->setValue(start);
        _grabber->findChild<QSpinBox*>("sBFrameNum")->setValue(count);
    }
    void grab(const QString& name) {
        _grabber->setSourceUrl(QUrl(clipPath(name)));
        _grabber->findChild<QPushButton*>("pBGrabFrames")->click();
    }
    Frames items() {
        Frames found;
        for (int row = 0; row < list()->count(); ++row) {
            const QListWidgetItem* item = list()->item(row);
            found.append({item->text().toInt(), frameNumber(item->data(Qt::UserRole).value<QImage>())});
        }
        return found;
    }
    void chooseClips(QStringList names) {
        // The dialog offers few suffixes.
        for (QString& name : names)
            name = linkedClip(name, QString(name).replace(".ogg", ".mkv"));
        const ModalAnswer answer(chooseFiles(names));
        _grabber->grabFramesFromFiles(_folder.path());
    }

    QString linkedClip(const QString& name, const QString& link) const {
        QFile::link(clipPath(name), _folder.filePath(link));
        return _folder.filePath(link);
    }

    const MediaFolder _folder;
    std::unique_ptr<VideoWidgetFrameGrabber> _grabber;
};

QTEST_MAIN(TestFrameGrabber)
#include "tst_framegrabber.moc"

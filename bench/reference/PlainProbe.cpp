#include "reference/PlainProbe.h"

#include <QEventLoop>
#include <QMediaMetaData>
#include <QMediaPlayer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

#include <memory>
#include <vector>

namespace reference {

void probeClips(const QStringList& clips, const QSize& size, int players,
                const std::function<void(const QString&, const QImage&, const QSize&)>& take) {
    struct Slot {
        QMediaPlayer player;
        QVideoSink sink;
        QString clip;
        bool isOn = false;
    };
    std::vector<std::unique_ptr<Slot>> pool;
    QEventLoop loop;
    qsizetype next = 0;
    qsizetype left = clips.size();
    const auto feed = [&](Slot& slot) {
        slot.isOn = next < clips.size();
        if (!slot.isOn)
            return;
        slot.clip = clips[next++];
        slot.player.setSource(QUrl::fromLocalFile(slot.clip));
        slot.player.pause();
    };
    for (int i = 0; i < players; ++i) {
        Slot& slot = *pool.emplace_back(std::make_unique<Slot>());
        slot.player.setVideoSink(&slot.sink);
        QObject::connect(
            &slot.sink, &QVideoSink::videoFrameChanged, &slot.player, [&](const QVideoFrame& frame) {
                if (!slot.isOn || !frame.isValid())
                    return;
                slot.isOn = false;
                slot.player.stop();
                const QImage image =
                    frame.toImage().scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
                take(slot.clip, image, slot.player.metaData().value(QMediaMetaData::Resolution).toSize());
                feed(slot);
                if (--left == 0)
                    loop.quit();
            });
        feed(slot);
    }
    loop.exec();
}

} // namespace reference

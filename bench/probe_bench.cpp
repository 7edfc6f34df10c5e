// The first frames of forty clips through the preview load, against a bare pool of players.

#include "LoopGap.h"
#include "Ratio.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "reference/PlainProbe.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr QSize previewSize(218, 218);
constexpr int clipCount = 40;
constexpr int poolSize = 4;

struct ClipKind {
    const char* suffix;
    const char* options;
};

constexpr ClipKind clipKinds[] = {
    {"mp4", "-c:v libx264 -preset veryfast -pix_fmt yuv420p"},
    {"webm", "-c:v libvpx-vp9 -deadline realtime -cpu-used 8"},
    {"avi", "-c:v mpeg4 -q:v 4"},
    {"mpg", "-c:v mpeg2video -q:v 4"},
    {"mkv", "-f lavfi -i sine=d=2 -c:v libx264 -preset veryfast -pix_fmt yuv420p -c:a aac -shortest"},
};

// Two seconds of a moving picture in 1280 by 720 in each kind, copied until there are enough.
QStringList makeClips(const QString& directory) {
    QStringList clips;
    int number = 0;
    while (clips.size() < clipCount) {
        for (const ClipKind& kind : clipKinds) {
            const QString clip = QString("%1/clip%2.%3").arg(directory).arg(number).arg(kind.suffix);
            if (number == 0) {
                QStringList arguments{
                    "-v", "error", "-nostdin", "-f", "lavfi", "-i", "testsrc=s=1280x720:r=25:d=2"};
                arguments += QString(kind.options).split(' ') + QStringList{clip};
                if (QProcess::execute("ffmpeg", arguments) != 0)
                    qFatal("ffmpeg cannot make %s", qPrintable(clip));
            } else if (!QFile::copy(QString(clip).replace("clip" + QString::number(number), "clip0"), clip)) {
                qFatal("cannot copy a clip");
            }
            clips.append(clip);
        }
        ++number;
    }
    return clips;
}

// The outcome for each clip, which must be equal on both sides.
struct Probed {
    QHash<QString, QImage> frames;
    QHash<QString, QSize> resolutions;

    bool operator==(const Probed&) const = default;
};

Probed probeWithCoordinator(const QStringList& clips) {
    Probed probed;
    ImageLoaderThreaded loader;
    loader.setPreviewSize(previewSize);
    for (const QString& clip : clips)
        loader.enqueue(clip, false);
    QEventLoop loop;
    QObject::connect(&loader, &ImageLoaderThreaded::showMessage, &loop, &QEventLoop::quit);
    QObject::connect(&loader, &ImageLoaderThreaded::loadedImage, &loop,
                     [&](const QString& clip, const QImage& frame) { probed.frames.insert(clip, frame); });
    QObject::connect(&loader, &ImageLoaderThreaded::loadedVideoImageMeta, &loop,
                     [&](const QString& clip, const QHash<QString, QVariant>& meta) {
                         probed.resolutions.insert(clip, meta.value("Resolution").toSize());
                     });
    QMetaObject::invokeMethod(&loader, &ImageLoaderThreaded::start, Qt::QueuedConnection);
    loop.exec();
    return probed;
}

Probed probeWithPlayers(const QStringList& clips) {
    Probed probed;
    reference::probeClips(clips, previewSize, poolSize,
                          [&](const QString& clip, const QImage& frame, const QSize& resolution) {
                              probed.frames.insert(clip, frame);
                              probed.resolutions.insert(clip, resolution);
                          });
    return probed;
}

void measureProbe(const QStringList& clips) {
    Probed ours;
    Probed bound;
    LoopGap gap;
    std::vector<double> ourGaps;
    std::vector<double> boundGaps;
    const auto withGap = [&](std::vector<double>& gaps, const auto& side) {
        gap.restart();
        side();
        gaps.push_back(gap.longestMs());
    };
    Ratio::report(
        QString("probe of %1 clips").arg(clips.size()),
        [&] { withGap(ourGaps, [&] { ours = probeWithCoordinator(clips); }); },
        [&] { withGap(boundGaps, [&] { bound = probeWithPlayers(clips); }); });
    if (ours.frames.size() != clips.size() || ours != bound)
        qFatal("different frames");
    Ratio::print("longest gap of the event loop in a probe", Ratio::median(ourGaps),
                 Ratio::median(boundGaps));
}

// Stops a load after a different time in each try; its players are deleted in the following event loop
// iteration.
void measureStop(const QStringList& clips) {
    double longest = 0;
    for (int delay = 0; delay <= 300; delay += 20) {
        ImageLoaderThreaded loader;
        loader.setPreviewSize(previewSize);
        for (const QString& clip : clips)
            loader.enqueue(clip, false);
        loader.start();
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < delay)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        longest = std::max(longest, Ratio::milliseconds([&] {
                               loader.stop();
                               QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                           }));
    }
    std::printf("\nStopping in the middle of a probe took at most %.0f ms in 16 tries.\n", longest);
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    silenceLog();
    // Decoders report on stderr what the machine does not accelerate, once for each clip.
    if (!std::freopen("/dev/null", "w", stderr))
        qFatal("no /dev/null");
    const QTemporaryDir directory;
    const QStringList clips = makeClips(directory.path());
    (void)probeWithPlayers(clips.first(4)); // loads the back end
    Ratio::header();
    measureProbe(clips);
    measureStop(clips);
    return 0;
}

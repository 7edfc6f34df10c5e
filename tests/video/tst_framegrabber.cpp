#include "video/VideoWidget.h"
#include "video/VideoWidgetFrameGrabber.h"

#include "support/Clips.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QVideoSink>

// Position in milliseconds and frame number.
using Frames = QList<std::pair<int, int>>;

class FrameGrabberTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tenFramesOfTenSeconds();
    void seriesOfMany_data();
    void seriesOfMany();
    void secondRunAppends();
    void runsOverManyFiles();
    void fileWithoutPictureEndsRun();
    void addsSelectedInListOrder();
    void removesAndClears();
    void windowHandsFramesOn();

private:
    QListWidget* list() { return _grabber->findChild<QListWidget*>("listWidget"); }
    void set(int start, int count);
    void grab(const QString& name);
    Frames items();
    void chooseFiles(const QStringList& names);

    std::unique_ptr<VideoWidgetFrameGrabber> _grabber;
};

void FrameGrabberTest::init() {
    _grabber = std::make_unique<VideoWidgetFrameGrabber>();
}

void FrameGrabberTest::cleanup() {
    _grabber.reset();
}

void FrameGrabberTest::set(int start, int count) {
    _grabber->findChild<QSpinBox*>("sBFrameStart")->setValue(start);
    _grabber->findChild<QSpinBox*>("sBFrameNum")->setValue(count);
}

void FrameGrabberTest::grab(const QString& name) {
    _grabber->setSourceUrl(QUrl(clipPath(name)));
    _grabber->findChild<QPushButton*>("pBGrabFrames")->click();
}

Frames FrameGrabberTest::items() {
    Frames found;
    for (int row = 0; row < list()->count(); ++row) {
        const QListWidgetItem* item = list()->item(row);
        found.append({item->text().toInt(), frameNumber(item->data(Qt::UserRole).value<QImage>())});
    }
    return found;
}

void FrameGrabberTest::chooseFiles(const QStringList& names) {
    auto* answer = new QTimer(_grabber.get());
    connect(answer, &QTimer::timeout, this, [answer, names] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        answer->deleteLater();
        QStringList quoted;
        for (const QString& name : names)
            quoted << '"' + name + '"';
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(quoted.join(' '));
        static_cast<QDialog*>(dialog)->accept();
    });
    answer->start(0);
    _grabber->grabFramesFromFiles(clipPath({}));
}

void FrameGrabberTest::tenFramesOfTenSeconds() {
    grab("h264.mp4");
    Frames expected{{1, 0}};
    for (int k = 2; k <= 10; ++k)
        expected.append({999 * k, 999 * k / 40});
    QTRY_COMPARE(items().size(), 10);
    QCOMPARE(items(), expected);
    const QListWidgetItem* item = list()->item(3);
    QCOMPARE(item->data(Qt::DecorationRole).value<QImage>().size(), QSize(218, 218));
    QCOMPARE(item->data(Qt::UserRole + 1).toUrl(), QUrl(clipPath("h264.mp4")));
    QCOMPARE(item->textAlignment(), Qt::AlignCenter);
}

void FrameGrabberTest::seriesOfMany_data() {
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<Frames>("expected");

    Frames backAndForth{{5000, 125}};
    for (int k = 2; k <= 20; ++k)
        backAndForth.append({500 * k, std::min(500 * k / 40, 249)});
    QTest::newRow("a large start goes back on the second frame") << 5000 << 10 << backAndForth;
    QTest::newRow("one frame") << 1 << 1 << Frames{{1, 0}};
    QTest::newRow("no interval ends after a frame") << 9990 << 100 << Frames{{9990, 249}};
}

void FrameGrabberTest::seriesOfMany() {
    QFETCH(int, start);
    QFETCH(int, count);
    QFETCH(Frames, expected);
    set(start, count);
    grab("h264.mp4");
    QTRY_COMPARE(items().size(), expected.size());
    QCOMPARE(items(), expected);
}

void FrameGrabberTest::secondRunAppends() {
    set(1, 3);
    const Frames run{{1, 0}, {6666, 166}, {9999, 249}};
    grab("h264.mp4");
    QTRY_COMPARE(items(), run);
    // The second is begun anew while it is under way.
    grab("h264.mp4");
    QTRY_VERIFY(items().size() > 3);
    _grabber->onRemoveAll();
    grab("h264.mp4");
    QTRY_COMPARE(items(), run);
    set(1, 1);
    grab("h264.mp4");
    QTRY_COMPARE(items(), run + Frames({{1, 0}}));
}

void FrameGrabberTest::runsOverManyFiles() {
    set(1, 2);
    chooseFiles({"h264.mp4", "truncated.mp4", "theora.ogv"});
    // The first file starts at one second; the second has no picture behind a quarter of its length.
    const Frames expected{{1000, 25}, {9998, 249}, {1, 0}, {1, 0}, {1998, 49}};
    QTRY_COMPARE(items(), expected);
}

void FrameGrabberTest::fileWithoutPictureEndsRun() {
    chooseFiles({"text.mp4", "h264.mp4"});
    auto* player = _grabber->findChild<QMediaPlayer*>();
    QTRY_COMPARE(player->mediaStatus(), QMediaPlayer::InvalidMedia);
    grab("no-duration.mkv");
    QTRY_VERIFY(player->videoSink()->videoFrame().isValid());
    QCoreApplication::processEvents();
    QCOMPARE(list()->count(), 0);
}

void FrameGrabberTest::addsSelectedInListOrder() {
    QSignalSpy frames(_grabber.get(), &VideoWidgetFrameGrabber::addFrames);
    _grabber->onAddAll();
    QVERIFY(frames.isEmpty());
    set(1, 3);
    grab("h264.mp4");
    QTRY_COMPARE(list()->count(), 3);
    set(1, 1);
    chooseFiles({"theora.ogv"});
    QTRY_COMPARE(list()->count(), 4);
    list()->item(3)->setSelected(true);
    list()->item(1)->setSelected(true);
    _grabber->onAddSelected();
    QStringList added;
    for (const QVariantList& signal : std::as_const(frames))
        for (const QImage& frame : signal.at(0).value<QList<QImage>>())
            added << QString::number(frameNumber(frame)) + ' ' + signal.at(1).toString();
    QCOMPARE(added, (QStringList{"166 " + clipPath("h264.mp4"), "24 " + clipPath("theora.ogv")}));
}

void FrameGrabberTest::removesAndClears() {
    set(1, 5);
    grab("h264.mp4");
    QTRY_COMPARE(list()->count(), 5);
    list()->item(0)->setSelected(true);
    list()->item(3)->setSelected(true);
    emit list() -> customContextMenuRequested({});
    const auto entries = _grabber->findChild<QMenu*>()->actions();
    QStringList texts;
    for (const QAction* entry : entries)
        texts << entry->text();
    QCOMPARE(texts, (QStringList{"Add &selected", "Add &all", "", "&Remove selected", "&Clear"}));
    entries.at(3)->trigger();
    QCOMPARE(items(), (Frames{{3998, 99}, {5997, 149}, {9995, 249}}));
    entries.at(4)->trigger();
    QCOMPARE(list()->count(), 0);
    QVERIFY(list()->updatesEnabled());
}

void FrameGrabberTest::windowHandsFramesOn() {
    VideoWidget window;
    QSignalSpy pictures(&window, &VideoWidget::imagePic);
    window.openFile(clipPath("odd #1 100%25 what? 😀.mp4"));
    window.onVideoGrabSeries();
    auto* grabber = window.findChild<VideoWidgetFrameGrabber*>();
    QVERIFY(grabber && grabber->isVisible());
    grabber->findChild<QSpinBox*>("sBFrameNum")->setValue(2);
    grabber->findChild<QPushButton*>("pBGrabFrames")->click();
    QTRY_COMPARE(grabber->findChild<QListWidget*>()->count(), 2);
    grabber->findChild<QPushButton*>("pBAddAll")->click();
    QCOMPARE(pictures.count(), 2);
    QCOMPARE(frameNumber(pictures.last().at(0).value<QImage>()), 249);
    QCOMPARE(pictures.last().at(1).toString(), clipPath("odd #1 100%25 what? 😀.mp4"));
    const QPointer<VideoWidgetFrameGrabber> guard(grabber);
    grabber->close();
    QTRY_VERIFY(!guard);
}

QTEST_MAIN(FrameGrabberTest)
#include "tst_framegrabber.moc"

#include "imaging/ParallelLoop.h"

#include <QMutex>
#include <QThreadPool>
#include <QtTest>

#include <algorithm>

using Chunk = std::pair<qsizetype, qsizetype>;

class TestParallelLoop : public QObject {
    Q_OBJECT

private slots:
    void chunksCoverTheRangeOnce_data();
    void chunksCoverTheRangeOnce();
    void endsOnAPoolWithOneThread();
};

static QList<Chunk> chunksOf(qsizetype count, int threads) {
    QMutex mutex;
    QList<Chunk> chunks;
    parallelLoop(count, threads, [&](qsizetype begin, qsizetype end) {
        const QMutexLocker lock(&mutex);
        chunks.append({begin, end});
    });
    std::ranges::sort(chunks);
    return chunks;
}

void TestParallelLoop::chunksCoverTheRangeOnce_data() {
    QTest::addColumn<qsizetype>("count");
    QTest::addColumn<int>("threads");
    QTest::addColumn<qsizetype>("chunks");
    const auto add = [](const char* name, qsizetype count, int threads, qsizetype chunks) {
        QTest::newRow(name) << count << threads << chunks;
    };
    add("nothing to do", 0, 4, 0);
    add("one element is one chunk", 1, 4, 1);
    add("two elements are two chunks", 2, 4, 2);
    add("one thread takes all at once", 1000, 1, 1);
    add("fewer elements than chunks", 63, 2, 63);
    add("as many elements as chunks", 64, 2, 64);
    add("one element over", 65, 2, 64);
    add("an uneven range", 10007, 3, 96);
    add("many threads", 100003, 64, 2048);
}

void TestParallelLoop::chunksCoverTheRangeOnce() {
    QFETCH(qsizetype, count);
    QFETCH(int, threads);
    QFETCH(qsizetype, chunks);
    const QList<Chunk> done = chunksOf(count, threads);
    QCOMPARE(done.size(), chunks);
    qsizetype next = 0;
    for (qsizetype i = 0; i < chunks; ++i) {
        const auto [begin, end] = done[i];
        QCOMPARE(begin, next);
        QCOMPARE(end - begin, count / chunks + (i < count % chunks ? 1 : 0));
        next = end;
    }
    QCOMPARE(next, count);
}

void TestParallelLoop::endsOnAPoolWithOneThread() {
    QThreadPool* const pool = QThreadPool::globalInstance();
    const int before = pool->maxThreadCount();
    pool->setMaxThreadCount(1);
    QCOMPARE(chunksOf(500, 8).size(), 256);
    pool->setMaxThreadCount(before);
}

QTEST_GUILESS_MAIN(TestParallelLoop)
#include "tst_parallelloop.moc"

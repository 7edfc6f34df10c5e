#include "imaging/ParallelLoop.h"
#include "support/Rows.h"

#include <QMutex>
#include <QThreadPool>

#include <algorithm>

class TestParallelLoop : public QObject {
    Q_OBJECT

private slots:
    void chunksCoverTheRangeOnce_data() {
        addRows<qsizetype, int, qsizetype>({
            {"nothing to do", 0, 4, 0},
            {"one element is one chunk", 1, 4, 1},
            {"two elements are two chunks", 2, 4, 2},
            {"one thread takes all at once", 1000, 1, 1},
            {"as many elements as chunks", 64, 2, 64},
            {"one element over", 65, 2, 64},
            {"many threads", 100003, 64, 2048},
        });
    }
    void chunksCoverTheRangeOnce() {
        const auto& [count, threads, chunks] = row<qsizetype, int, qsizetype>();
        QThreadPool* const pool = QThreadPool::globalInstance();
        const int before = pool->maxThreadCount();
        for (const int pooled : {before, 1}) {
            pool->setMaxThreadCount(pooled);
            QMutex mutex;
            QList<std::pair<qsizetype, qsizetype>> done;
            parallelLoop(count, threads, [&](qsizetype begin, qsizetype end) {
                const QMutexLocker lock(&mutex);
                done.append({begin, end});
            });
            std::ranges::sort(done);
            QCOMPARE(done.size(), chunks);
            qsizetype next = 0;
            for (qsizetype i = 0; i < chunks; ++i) {
                QCOMPARE(done[i].first, next);
                next += count / chunks + (i < count % chunks ? 1 : 0);
                QCOMPARE(done[i].second, next);
            }
            QCOMPARE(next, count);
        }
        pool->setMaxThreadCount(before);
    }
};

QTEST_GUILESS_MAIN(TestParallelLoop)
#include "tst_parallelloop.moc"

#include "imaging/ParallelLoop.h"

#include <QRunnable>
#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <memory>
#include <new>

namespace {

constexpr qsizetype chunksPerThread = 32;
constexpr qsizetype workItemsPerThread = 4;

// Distributes the chunks of one loop to the threads, which share only its counter.
class ChunkQueue {
public:
    ChunkQueue(qsizetype count, qsizetype chunks, const ChunkStep& step)
        : _chunkSize(count / chunks), _longerChunks(count % chunks), _chunks(chunks), _step(step) {}

    void work() {
        const qsizetype chunks = _chunks;
        for (qsizetype chunk = _next.fetch_add(1); chunk < chunks; chunk = _next.fetch_add(1))
            _step(begin(chunk), begin(chunk + 1));
    }

    // Makes the results of all threads visible to the calling one. The semaphore does that as well, but
    // inside Qt, which is not instrumented, so that ThreadSanitizer would report a data race.
    void acquireResults() const { (void)_next.load(); }

private:
    [[nodiscard]] qsizetype begin(qsizetype chunk) const {
        return chunk * _chunkSize + std::min(chunk, _longerChunks);
    }

    qsizetype _chunkSize;
    qsizetype _longerChunks;
    qsizetype _chunks;
    const ChunkStep& _step;
    std::atomic<qsizetype> _next = 0;
};

class ChunkWorker : public QRunnable {
public:
    ChunkWorker() { setAutoDelete(false); }
    void attach(ChunkQueue* queue, QSemaphore* finished) {
        _finished = finished;
        _queue = queue;
    }
    void run() override {
        // In this order: reading the atomic pointer makes the other one visible.
        ChunkQueue* const queue = _queue;
        QSemaphore* const finished = _finished;
        queue->work();
        finished->release();
    }

private:
    std::atomic<ChunkQueue*> _queue = nullptr; // its store publishes what was written before
    QSemaphore* _finished = nullptr;
};

} // namespace

void parallelLoop(qsizetype count, int threads, const ChunkStep& step) {
    if (count <= 0)
        return;
    if (threads <= 1 || count < 2) {
        step(0, count);
        return;
    }
    const qsizetype chunks = std::min(count, chunksPerThread * threads);
    const qsizetype items = std::min(chunks, workItemsPerThread * threads);
    const std::unique_ptr<ChunkWorker[]> workers(new (std::nothrow) ChunkWorker[static_cast<size_t>(items)]);
    // Short of memory, the calling thread does all the work.
    if (!workers) {
        step(0, count);
        return;
    }
    ChunkQueue queue(count, chunks, step);
    QSemaphore finished;
    QThreadPool* const pool = QThreadPool::globalInstance();
    for (qsizetype i = 0; i < items; ++i) {
        workers[static_cast<size_t>(i)].attach(&queue, &finished);
        pool->start(&workers[static_cast<size_t>(i)]);
    }
    queue.work();
    // Every item must have ended: they use the queue and the semaphore on this stack.
    finished.acquire(static_cast<int>(items));
    queue.acquireResults();
}

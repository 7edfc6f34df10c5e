#pragma once

#include <QtTypes>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <type_traits>
#include <vector>

// A ring of blocks that reader threads fill and one consumer empties. Readers are at most blocksAhead blocks
// ahead of the consumer, which bounds the memory.
template <typename Value>
class ReadAhead {
public:
    using Block = std::vector<Value>;

    explicit ReadAhead(qsizetype count)
        : _count(count)
        , _valuesInBlock(std::clamp<qsizetype>(count / blocksAhead, 4, 64))
        , _blocks(blocksAhead)
        , _isRead(blocksAhead) {}

    // Reads one block after the other until none is left.
    template <typename Read>
    void readAll(Read& read) {
        std::unique_lock lock(_mutex);
        for (;;) {
            _emptied.wait(lock, [this] { return isOver() || _started < _taken + blocksAhead; });
            if (isOver())
                return;
            const qsizetype number = _started++;
            lock.unlock();
            Block block;
            block.reserve(_valuesInBlock);
            const qsizetype end = std::min(_count, (number + 1) * _valuesInBlock);
            for (qsizetype index = number * _valuesInBlock; index < end; ++index)
                block.push_back(read(index));
            lock.lock();
            // The slot is free: a block is started only after the one blocksAhead before it was taken.
            _blocks[slot(number)] = std::move(block);
            _isRead[slot(number)] = true;
            // The consumer waits for this block alone; each needless wake-up costs it a task switch.
            if (number == _taken)
                _filled.notify_one();
        }
    }

    // The next block. Calls addReader whenever its reader takes longer than a disk in memory would.
    template <typename AddReader>
    [[nodiscard]] Block take(const AddReader& addReader) {
        constexpr std::chrono::milliseconds fast(6);
        std::unique_lock lock(_mutex);
        while (!_filled.wait_for(lock, fast, [this] { return _isRead[slot(_taken)]; }))
            addReader();
        _isRead[slot(_taken)] = false;
        Block block = std::move(_blocks[slot(_taken)]);
        ++_taken;
        _emptied.notify_one();
        return block;
    }

    void stop() {
        const std::scoped_lock lock(_mutex);
        _isStopped = true;
        _emptied.notify_all();
    }

private:
    static constexpr qsizetype blocksAhead = 32;

    [[nodiscard]] bool isOver() const { return _isStopped || _started * _valuesInBlock >= _count; }
    [[nodiscard]] static size_t slot(qsizetype number) { return static_cast<size_t>(number % blocksAhead); }

    const qsizetype _count;
    const qsizetype _valuesInBlock;
    std::mutex _mutex; // guards all that follows
    std::condition_variable _filled;
    std::condition_variable _emptied;
    std::vector<Block> _blocks;
    std::vector<bool> _isRead;
    qsizetype _started = 0;
    qsizetype _taken = 0;
    bool _isStopped = false;
};

// Calls read(index) for each of count values, in threads of its own and several at once, and take(index,
// value) on the calling thread in the order of the indexes. Returns after the last take. Each thread has a
// copy of read, so what that holds by value needs no lock. A read that blocks delays its own thread and all
// values behind it.
template <typename Read, typename Take>
void readInOrder(qsizetype count, Read read, const Take& take) {
    using Values = ReadAhead<std::invoke_result_t<Read&, qsizetype>>;
    // Starting threads takes longer than reading a few files.
    if (count <= 16) {
        for (qsizetype index = 0; index < count; ++index)
            take(index, read(index));
        return;
    }
    Values values(count);
    // Joins the threads also if take() throws.
    struct Readers {
        Values& values;
        std::vector<std::thread> threads = {};
        ~Readers() {
            values.stop();
            for (std::thread& thread : threads)
                thread.join();
        }
    } readers{values};
    const auto addReader = [&] {
        constexpr size_t most = 16;
        if (readers.threads.size() < most)
            readers.threads.emplace_back([&values, read]() mutable { values.readAll(read); });
    };
    // Few readers are enough for files in the memory of the system, where a switch between threads costs as
    // much as reading one; where they wait for a disk or a server, more are added.
    for (unsigned reader = 0; reader < std::clamp(std::thread::hardware_concurrency(), 2U, 4U); ++reader)
        addReader();
    for (qsizetype index = 0; index < count;) {
        for (auto& value : values.take(addReader))
            take(index++, std::move(value));
    }
}

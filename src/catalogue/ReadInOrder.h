#pragma once

#include <QtTypes>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <type_traits>
#include <vector>

// The number of threads that read the files of a directory ahead: more than cores, as most of them wait for
// the disk.
[[nodiscard]] inline int readerCount() {
    constexpr unsigned fewest = 4;
    constexpr unsigned most = 16;
    return static_cast<int>(std::clamp(2 * std::thread::hardware_concurrency(), fewest, most));
}

// A ring of blocks that reader threads fill and one consumer empties. Readers are at most blocksAhead blocks
// ahead of the consumer, which bounds the memory.
template <typename Value>
class ReadAhead {
public:
    using Block = std::vector<Value>;
    static constexpr qsizetype valuesInBlock = 16;

    explicit ReadAhead(qsizetype count) : _count(count), _blocks(blocksAhead), _isRead(blocksAhead) {}

    // Reads one block after the other until none is left.
    template <typename Read>
    void readAll(const Read& read) {
        std::unique_lock lock(_mutex);
        for (;;) {
            _changed.wait(lock, [this] { return isOver() || _started < _taken + blocksAhead; });
            if (isOver())
                return;
            const qsizetype number = _started++;
            lock.unlock();
            Block block;
            const qsizetype end = std::min(_count, (number + 1) * valuesInBlock);
            for (qsizetype index = number * valuesInBlock; index < end; ++index)
                block.push_back(read(index));
            lock.lock();
            _blocks[slot(number)] = std::move(block);
            _isRead[slot(number)] = true;
            _changed.notify_all();
        }
    }

    // The next block; waits for its reader.
    [[nodiscard]] Block take() {
        std::unique_lock lock(_mutex);
        _changed.wait(lock, [this] { return _isRead[slot(_taken)]; });
        _isRead[slot(_taken)] = false;
        Block block = std::move(_blocks[slot(_taken)]);
        ++_taken;
        _changed.notify_all();
        return block;
    }

    void stop() {
        const std::scoped_lock lock(_mutex);
        _isStopped = true;
        _changed.notify_all();
    }

private:
    static constexpr qsizetype blocksAhead = 128;

    [[nodiscard]] bool isOver() const { return _isStopped || _started * valuesInBlock >= _count; }
    [[nodiscard]] static size_t slot(qsizetype number) { return static_cast<size_t>(number % blocksAhead); }

    const qsizetype _count;
    std::mutex _mutex; // guards all that follows
    std::condition_variable _changed;
    std::vector<Block> _blocks;
    std::vector<bool> _isRead;
    qsizetype _started = 0;
    qsizetype _taken = 0;
    bool _isStopped = false;
};

// Calls read(index) for each of count values, in threads of its own and several at once, and take(index,
// value) on the calling thread in the order of the indexes. Returns after the last take. A read that blocks
// delays its own thread and all values behind it.
template <typename Read, typename Take>
void readInOrder(qsizetype count, const Read& read, const Take& take) {
    using Values = ReadAhead<std::invoke_result_t<const Read&, qsizetype>>;
    // Starting threads takes longer than reading a few files.
    if (count <= Values::valuesInBlock) {
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
    const int wanted = readerCount();
    for (int reader = 0; reader < wanted; ++reader)
        readers.threads.emplace_back([&] { values.readAll(read); });
    for (qsizetype index = 0; index < count;) {
        for (auto& value : values.take())
            take(index++, std::move(value));
    }
}

#pragma once

#include <QtTypes>

#include <functional>

// Handles the part [begin, end) of a range; called from several threads at once.
using ChunkStep = std::function<void(qsizetype begin, qsizetype end)>;

// Cuts [0, count) into contiguous chunks, up to 32 a thread, and runs them on the process's thread pool and
// on the calling thread. Returns when all are done.
void parallelLoop(qsizetype count, int threads, const ChunkStep& step);

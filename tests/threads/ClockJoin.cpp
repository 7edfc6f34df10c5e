#include <pthread.h>

#include <ctime>

// Qt joins its threads by a call that ThreadSanitizer does not support, so it takes them for living and gives
// up when the system uses their identity again. This one uses a call that it supports.
extern "C" int pthread_clockjoin_np(pthread_t thread, void** result, clockid_t clock,
                                    const timespec* deadline) {
    if (!deadline)
        return pthread_join(thread, result);
    timespec now{};
    timespec today{};
    clock_gettime(clock, &now);
    clock_gettime(CLOCK_REALTIME, &today);
    today.tv_sec += deadline->tv_sec - now.tv_sec;
    today.tv_nsec += deadline->tv_nsec - now.tv_nsec;
    constexpr long second = 1'000'000'000;
    while (today.tv_nsec < 0) {
        today.tv_nsec += second;
        --today.tv_sec;
    }
    while (today.tv_nsec >= second) {
        today.tv_nsec -= second;
        ++today.tv_sec;
    }
    return pthread_timedjoin_np(thread, result, &today);
}

#include "app/QuitOnSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>

namespace {

// A signal handler may only make async-signal-safe calls, so it writes a byte that the event loop reads.
int quitSockets[2] = {-1, -1};

void onQuitSignal(int) {
    const char byte = 1;
    // A failed write means that the buffer is full, so a byte is there to be read.
    [[maybe_unused]] const ssize_t written = write(quitSockets[0], &byte, 1);
}

} // namespace

QuitOnSignals::QuitOnSignals(QObject* parent) : QObject(parent) {
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, quitSockets) != 0)
        return;
    const auto* notifier = new QSocketNotifier(quitSockets[1], QSocketNotifier::Read, this);
    // The byte stays unread: before exec() quit() is ignored, and the notifier fires again when that runs.
    connect(notifier, &QSocketNotifier::activated, this, &QCoreApplication::quit);
    struct sigaction action = {};
    action.sa_handler = onQuitSignal;
    // Reset after the first signal, so that a second one ends a program whose event loop hangs.
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}
#else
QuitOnSignals::QuitOnSignals(QObject* parent) : QObject(parent) {}
#endif

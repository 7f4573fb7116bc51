#include "core/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

namespace velmora {

namespace {

// The reading and the writing end of a pipe from the handler, which may do next to nothing, to the
// event loop. Both stay open: a signal may come while the program already ends.
std::array<int, 2> ends = {-1, -1};

void tellEventLoop(int) {
    const int before = errno;
    // A full pipe tells already.
    [[maybe_unused]] const ssize_t written = ::write(ends[1], "", 1);
    errno = before;
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction action{};
    if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

}  // namespace

void endAtSignals(QCoreApplication& application) {
    if (::pipe(ends.data()) != 0)
        return;
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    auto* told = new QSocketNotifier(ends[0], QSocketNotifier::Read, &application);
    QObject::connect(told, &QSocketNotifier::activated, &application, [told] {
        told->setEnabled(false);
        QCoreApplication::exit();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        handle(signal, tellEventLoop);
    // A write that fails says so itself; it must not end the program in the middle of a run.
    for (const int signal : {SIGPIPE, SIGXFSZ})
        handle(signal, SIG_IGN);
}

}  // namespace velmora

#include "system/TerminationSignals.h"

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace
{

// Static, because a signal handler can reach nothing else.
std::array<int, 2> signalPipe{-1, -1};

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};
std::array<struct sigaction, endingSignals.size()> previousActions{};

void passOn(int)
{
    // The interrupted code may be about to read errno.
    const int error = errno;
    const char byte = 1;
    // The pipe does not block; if it is full, a request is pending already.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = error;
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent)
{
    if (::pipe(signalPipe.data()) != 0) {
        return;
    }
    for (const int end : signalPipe) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(signalPipe[0], &byte, 1) == 1) { }
        emit terminationRequested();
    });
    struct sigaction action = {};
    action.sa_handler = passOn;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < endingSignals.size(); ++i) {
        sigaction(endingSignals[i], nullptr, &previousActions[i]);
        // An ignored SIGHUP means that the program is to outlive its terminal (nohup).
        if (endingSignals[i] != SIGHUP || previousActions[i].sa_handler != SIG_IGN) {
            sigaction(endingSignals[i], &action, nullptr);
        }
    }
}

TerminationSignals::~TerminationSignals()
{
    if (signalPipe[0] < 0) {
        return;
    }
    for (std::size_t i = 0; i < endingSignals.size(); ++i) {
        sigaction(endingSignals[i], &previousActions[i], nullptr);
    }
    ::close(signalPipe[0]);
    ::close(signalPipe[1]);
    signalPipe = {-1, -1};
}

#include "platform/foundation/system/EndingSignals.h"

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int endingSignals[] = {SIGTERM, SIGINT, SIGHUP};
int pipeEnds[2] = {-1, -1};

void writeToPipe(int)
{
    const int savedError = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
    errno = savedError;
}

void setHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : endingSignals)
        sigaction(number, &action, nullptr);
}

} // namespace

EndingSignals::EndingSignals()
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (read(pipeEnds[0], bytes, sizeof bytes) > 0) { }
        Q_EMIT received();
    });
    setHandler(writeToPipe);
}

EndingSignals::~EndingSignals()
{
    setHandler(SIG_DFL);
    for (int &end : pipeEnds)
        close(std::exchange(end, -1));
}

#include "EndingSignals.hpp"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace ordwise {
namespace {

constexpr int endingSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A handler may call next to nothing; writing to a pipe is allowed.
volatile std::sig_atomic_t writingEnd = -1;

void passOn(int) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(writingEnd, &byte, 1);
    errno = before;
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction action {};
    // A signal that is ignored from outside stays so, as SIGHUP under nohup.
    if (::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) return;
    action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    ::sigemptyset(&action.sa_mask);
    (void)::sigaction(signal, &action, nullptr);
}

}  // namespace

EndingSignals::EndingSignals() {
    if (::pipe2(pipe_, O_CLOEXEC | O_NONBLOCK) != 0) return;
    writingEnd = pipe_[1];
    notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { takeSignal(); });
    for (const int signal : endingSignals) handle(signal, passOn);
}

EndingSignals::~EndingSignals() {
    if (notifier_ == nullptr) return;
    for (const int signal : endingSignals) handle(signal, SIG_DFL);
    notifier_.reset();
    writingEnd = -1;
    (void)::close(pipe_[0]);
    (void)::close(pipe_[1]);
}

void EndingSignals::takeSignal() {
    char byte = 0;
    while (::read(pipe_[0], &byte, 1) > 0) asked_ = true;
    if (asked_ && whenAsked) whenAsked();
}

}  // namespace ordwise

// The signals by which a session or a terminal ends a program: SIGTERM, SIGHUP and SIGINT.
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace ordwise {

// Tells of the first of these signals from the event loop, where everything may be done, instead of
// from within the signal. The second of a kind ends the program the hard way: who asks twice means
// it. One of these lives at a time.
class EndingSignals {
public:
    EndingSignals();
    ~EndingSignals();
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;

    std::function<void()> whenAsked;
    // A signal came, be it before there was an event loop to tell of it.
    [[nodiscard]] bool asked() const { return asked_; }

private:
    void takeSignal();

    int pipe_[2] = {-1, -1};
    bool asked_ = false;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace ordwise

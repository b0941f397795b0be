// Standard input and output of a process as streams that lose nothing silently.
//
//     InputChannel from(STDIN_FILENO);      std::istream in(&from);
//     OutputChannel to(STDOUT_FILENO);      std::ostream out(&to);
//     from.beforeWaiting = [&] { out.flush(); };
//
// A read or write that fails throws ChannelFailure; a stream hands it on if its exceptions(badbit) are on.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <stdexcept>
#include <streambuf>

namespace ordwise {

// One sentence. e.g. The output could not be written: No space left on device.
class ChannelFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

inline constexpr std::size_t bufferSize = 65536;

class InputChannel : public std::streambuf {
public:
    explicit InputChannel(int descriptor) : descriptor_(descriptor) {}

    // Called whenever all that has come was read, so before every read that may have to wait.
    std::function<void()> beforeWaiting = [] {};

protected:
    int_type underflow() override;

private:
    int descriptor_;
    std::unique_ptr<char[]> buffer_{new char[bufferSize]};
};

class OutputChannel : public std::streambuf {
public:
    // Nothing is written by the end of its life; whoever writes flushes.
    explicit OutputChannel(int descriptor) : descriptor_(descriptor) { forget(); }

protected:
    int_type overflow(int_type character) override;
    int sync() override;

private:
    void forget() { setp(buffer_.get(), buffer_.get() + bufferSize); }

    int descriptor_;
    std::unique_ptr<char[]> buffer_{new char[bufferSize]};
};

}  // namespace ordwise

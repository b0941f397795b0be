#include "Channels.hpp"

#include <cerrno>
#include <cstring>
#include <string>

#include <poll.h>
#include <unistd.h>

namespace ordwise {
namespace {

// True if the call is to be made again: it was interrupted, or somebody who shares the stream has made
// it one that does not wait, and it has become ready.
bool again(int descriptor, short event) {
    if (errno == EINTR) return true;
    if (errno != EAGAIN) return false;
    pollfd waited{descriptor, event, 0};
    return ::poll(&waited, 1, -1) >= 0 || errno == EINTR;
}

[[noreturn]] void fail(const char* what) {
    throw ChannelFailure(std::string(what) + ": " + std::strerror(errno) + ".");
}

}  // namespace

InputChannel::int_type InputChannel::underflow() {
    beforeWaiting();
    ssize_t count = 0;
    do {
        count = ::read(descriptor_, buffer_.get(), bufferSize);
    } while (count < 0 && again(descriptor_, POLLIN));
    if (count < 0) fail("The input could not be read");
    setg(buffer_.get(), buffer_.get(), buffer_.get() + count);
    return count == 0 ? traits_type::eof() : traits_type::to_int_type(*gptr());
}

OutputChannel::int_type OutputChannel::overflow(int_type character) {
    (void)sync();
    if (!traits_type::eq_int_type(character, traits_type::eof())) sputc(traits_type::to_char_type(character));
    return traits_type::not_eof(character);
}

int OutputChannel::sync() {
    const char* rest = pbase();
    const char* const end = pptr();
    forget();  // what cannot be written is not tried again
    while (rest < end) {
        const ssize_t written = ::write(descriptor_, rest, static_cast<std::size_t>(end - rest));
        if (written >= 0) {
            rest += written;
        } else if (!again(descriptor_, POLLOUT)) {
            fail("The output could not be written");
        }
    }
    return 0;
}

}  // namespace ordwise

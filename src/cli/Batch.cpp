#include "Batch.hpp"

#include "CommandLine.hpp"
#include "Requests.hpp"

#include <unistd.h>

#include <istream>
#include <limits>
#include <memory>
#include <ostream>
#include <string_view>

namespace ordwise {
namespace {

// The input, a line at a time, in memory that does not grow with it.
class RequestLines {
public:
    explicit RequestLines(std::istream& in) : in_(in) {}

    // False at the end of the input.
    bool next() {
        in_.getline(buffer_.get(), static_cast<std::streamsize>(longestRequest + 1));
        const auto read = static_cast<std::size_t>(in_.gcount());
        tooLong_ = in_.fail() && read == longestRequest;
        const bool ended = in_.eof();  // by the end of the input and not by the end of a line
        line_ = {buffer_.get(), ended || tooLong_ || read == 0 ? read : read - 1};
        if (tooLong_) {
            in_.clear();
            in_.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        }
        return read > 0;
    }
    [[nodiscard]] std::string_view line() const { return line_; }
    [[nodiscard]] bool tooLong() const { return tooLong_; }

private:
    std::istream& in_;
    std::unique_ptr<char[]> buffer_{new char[longestRequest + 1]};  // only what is used of it takes memory
    std::string_view line_;
    bool tooLong_ = false;
};

}  // namespace

int runBatch(std::istream& in, std::ostream& out, std::ostream& err) {
    constexpr long progressEvery = 1000;
    const bool progress = isatty(STDERR_FILENO) == 1;
    long answered = 0;
    for (RequestLines requests(in); requests.next();) {
        if (requests.line().empty()) continue;
        out << (requests.tooLong() ? answerTextOfLongLine() : answerTextOfLine(requests.line())) << '\n';
        if (progress && ++answered % progressEvery == 0) err << '\r' << answered << " requests answered" << std::flush;
    }
    if (progress && answered >= progressEvery) err << '\n';
    return exitDone;
}

}  // namespace ordwise

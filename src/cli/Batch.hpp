// Many requests through one process.
#pragma once

#include <cstddef>
#include <iosfwd>

namespace ordwise {

// A longer line is none that anybody means, and is not kept.
inline constexpr std::size_t longestRequest = std::size_t{1} << 20U;

// Answers each line of the input, in order, until its end; empty lines have none. Whether an answer is an
// error or not, the batch goes on, and the status is exitDone. The streams throw ChannelFailure where
// they fail. Shows its progress on `err` when that is a terminal.
int runBatch(std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace ordwise

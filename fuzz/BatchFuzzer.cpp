// Any bytes as a line of a batch: always answered, never thrown out of.
#include "FuzzedTopic.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ordwise::fuzz::write(ordwise::answerLine(std::string(data, data + size)));
    return 0;
}

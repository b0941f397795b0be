// Any bytes as keys, backspaces among them.
#include "FuzzedTopic.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto [topic, text] = ordwise::fuzz::topicAndText(data, size);
    ordwise::fuzz::write(ordwise::answerKeys({topic, text}));
    return 0;
}

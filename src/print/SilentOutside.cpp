#include "SilentOutside.hpp"

#include "NumberText.hpp"
#include "RandomDraws.hpp"

namespace ordwise {

SilentOutside::SilentOutside() : before_(platform) {
    platform.dialogs = this;
    platform.windows = this;
}

SilentOutside::~SilentOutside() {
    platform = before_;
}

MessageAnswer SilentOutside::messageBox(std::string_view, std::string_view, MessageButtons) {
    return MessageAnswer::Ok;
}

std::string SilentOutside::inputBox(std::string_view, std::string_view caption) {
    std::string answer = textOf(RandInt2to9());
    answered.emplace_back(caption, answer);
    return answer;
}

void SilentOutside::show(std::string_view) {}

void SilentOutside::unload(std::string_view) {}

}  // namespace ordwise

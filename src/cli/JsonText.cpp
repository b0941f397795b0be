#include "JsonText.hpp"

#include <nlohmann/json.hpp>

namespace ordwise {
namespace {

// Stands in a JSON text as it is. No early end: so the compiler looks at many characters at a time.
bool isPlain(std::string_view value) {
    bool plain = true;
    for (const char c : value) plain &= (c >= ' ') & (c <= '~') & (c != '"') & (c != '\\');
    return plain;
}

}  // namespace

JsonText& JsonText::member(std::string_view name) {
    separate();
    text_.append(1, '"').append(name).append("\":");
    behindValue_ = false;
    return *this;
}

void JsonText::string(std::string_view value) {
    if (!isPlain(value)) {
        raw(nlohmann::json(value).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
        return;
    }
    separate();
    text_.append(1, '"').append(value).append(1, '"');
}

void JsonText::number(int value) {
    raw(std::to_string(value));
}

void JsonText::number(double value) {
    raw(nlohmann::json(value).dump());
}

void JsonText::open(char bracket) {
    separate();
    text_ += bracket;
    behindValue_ = false;
}

void JsonText::close(char bracket) {
    text_ += bracket;
    behindValue_ = true;
}

void JsonText::separate() {
    if (behindValue_) text_ += ',';
    behindValue_ = true;
}

void JsonText::raw(std::string_view value) {
    separate();
    text_ += value;
}

}  // namespace ordwise

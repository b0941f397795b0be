// The text of an answer is what a JSON library would have written.
#include "JsonText.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace ordwise::test {
namespace {

TEST(JsonText, EscapesWhatTextMayNotHold) {
    for (const std::string text :
         {"2+3", "", "say \"x\"", "a\\b", "line\nend\t", "\x01", "\x7F", "30\xC2\xB0", "\xFFx"}) {
        JsonText json;
        json.string(text);
        const nlohmann::json wanted = text;
        EXPECT_EQ(std::move(json).take(), wanted.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
    }
}

TEST(JsonText, SetsCommasBetweenMembersAndElementsOnly) {
    JsonText json;
    json.object([&] {
        json.member("empty").array([] {});
        json.member("steps").array([&] {
            json.object([&] { json.member("index").number(1); });
            json.object([] {});
            json.null();
        });
        json.member("x").number(2.5);
        json.member("y").number(2.0);
        json.member("done").flag(true);
    });
    EXPECT_EQ(std::move(json).take(), R"({"empty":[],"steps":[{"index":1},{},null],"x":2.5,"y":2.0,"done":true})");
}

}  // namespace
}  // namespace ordwise::test

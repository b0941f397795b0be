// Input that no student types: random bytes as keys, as box texts, as lines of a batch.
//
// Nothing may crash, hang or be answered with anything but an answer, and the next plain problem is
// solved as if nothing had happened.
#include "Draws.hpp"
#include "Requests.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace ordwise::test {
namespace {

using nlohmann::json;

std::vector<std::string> allTopics() {
    std::vector<std::string> names;
    for (const auto& topic : answerTopics()) names.push_back(topic["name"].get<std::string>());
    return names;
}

std::string bytes(Draws& draws, int most) {
    std::string text;
    for (int i = draws.below(most + 1); i > 0; --i) text += static_cast<char>(draws.below(256));
    return text;
}

// The keys that some topic takes, and backspaces, far more often legal than bytes are.
std::string keys(Draws& draws, int most) {
    std::string text;
    for (int i = draws.below(most + 1); i > 0; --i) text += draws.charOf("0123456789+-*/^()=xyz~|.,:%\b\b");
    return text;
}

void expectSound(const json& answer, const json& request) {
    ASSERT_TRUE(answer.is_object());
    // Whatever came in, the answer can be written.
    EXPECT_NO_THROW((void)answer.dump(-1, ' ', false, json::error_handler_t::replace));
    const bool answered = answer.contains("error") || answer.contains("steps") || answer.contains("keys");
    EXPECT_TRUE(answered) << request.dump(-1, ' ', false, json::error_handler_t::replace);
}

void expectStillRight() {
    const json answer = answerRequest({{"op", "solve"}, {"topic", "Arithmetic"}, {"problem", "2+3*4-5"}});
    ASSERT_EQ(answer["steps"].size(), 4U) << answer;
    EXPECT_EQ(answer["steps"][3]["line"], "9");
}

TEST(HostileInput, RandomBytesAreNoKeys) {
    Draws draws(seedOfRun());
    for (const auto& topic : allTopics()) {
        for (int i = 0; i < 10; ++i) {
            const json request{{"op", "keys"}, {"topic", topic}, {"text", bytes(draws, 60)}};
            expectSound(answerRequest(request), request);
        }
    }
    expectStillRight();
}

TEST(HostileInput, LeaningOnTheKeyboardIsSurvivedAndSolved) {
    Draws draws(seedOfRun());
    for (const auto& topic : allTopics()) {
        for (int i = 0; i < 25; ++i) {
            const json request{{"op", "solve"},
                               {"topic", topic},
                               {"problem", keys(draws, 80)},
                               {"dropRefused", true},
                               {"answers", {"2", "-1", "x", "3"}}};
            expectSound(answerRequest(request), request);
        }
    }
    expectStillRight();
}

TEST(HostileInput, BoxesTakeWhatTheyTakeAndNoMore) {
    Draws draws(seedOfRun());
    for (const auto& topic : allTopics()) {
        for (int i = 0; i < 15; ++i) {
            json request{{"op", "solve"}, {"topic", topic}};
            for (int box = 0; box < 4; ++box) {
                const std::string text = draws.chance(30) ? bytes(draws, 12) : draws.number(10);
                request["boxes"][std::to_string(draws.between(0, 7))] = draws.chance(20) ? "-" + text : text;
            }
            if (draws.chance(50)) request["combos"][std::to_string(draws.between(0, 4))] = draws.below(9);
            expectSound(answerRequest(request), request);
        }
    }
    expectStillRight();
}

TEST(HostileInput, LinesOfABatchMayBeAnything) {
    Draws draws(seedOfRun());
    const std::string plain =
        R"({"op":"solve","topic":"Arithmetic","problem":"2+3","boxes":{"1":"3"},"answers":["2"]})";
    for (int i = 0; i < 2000; ++i) {
        std::string line = draws.chance(20) ? bytes(draws, 200) : plain;
        for (int change = draws.below(5); change > 0 && !line.empty(); --change) {
            const auto at = static_cast<std::size_t>(draws.below(static_cast<int>(line.size())));
            draws.chance(50) ? void(line.erase(at, 1)) : void(line[at] = static_cast<char>(draws.below(256)));
        }
        const json answer = answerLine(line);
        EXPECT_TRUE(answer.contains("error") || answer.contains("steps")) << i;
    }
    expectStillRight();
}

TEST(HostileInput, FieldsOfTheWrongKindAreNamed) {
    const std::vector<json> wrong = {
        {{"op", 1}},
        {{"op", "solve"}},
        {{"op", "solve"}, {"topic", nullptr}},
        {{"op", "solve"}, {"topic", "Arithmetic"}, {"problem", 5}},
        {{"op", "solve"}, {"topic", "Arithmetic"}, {"boxes", "1"}},
        {{"op", "solve"}, {"topic", "Arithmetic"}, {"boxes", {{"one", "3"}}}},
        {{"op", "solve"}, {"topic", "Arithmetic"}, {"combos", {{"3", "two"}}}},
        {{"op", "solve"}, {"topic", "Arithmetic"}, {"answers", "2"}},
        {{"op", "solve"}, {"topic", "Arithmetic"}, {"settings", {{"RoundVar", "many"}}}},
        {{"op", "solve"}, {"topic", "Arithmetic"}, {"settings", {{"NoSuchKey", 1}}}},
        {{"op", "keys"}, {"topic", "Arithmetic"}},
        json::array(),
        nullptr,
    };
    for (const auto& request : wrong) EXPECT_TRUE(answerRequest(request).contains("error")) << request;
    expectStillRight();
}

}  // namespace
}  // namespace ordwise::test

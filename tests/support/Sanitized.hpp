// What changes in a test when the program is built with the sanitizers: its figures, not its rules.
#pragma once

namespace ordwise::test {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool sanitized = true;
#elif defined(__has_feature)
inline constexpr bool sanitized = __has_feature(address_sanitizer);
#else
inline constexpr bool sanitized = false;
#endif

// A limit of time: the sanitizers look at every step, and the machine of the tests may be busy.
constexpr double allowed(double time) {
    return sanitized ? 30 * time : time;
}

// How many problems a random test draws: with the sanitizers fewer, since each takes ten times as long.
constexpr int rounds(int count) {
    return sanitized ? (count + 7) / 8 : count;
}

}  // namespace ordwise::test

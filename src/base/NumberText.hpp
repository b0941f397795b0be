// The only conversions between numbers and text.
//
// A number is written as a person writes it: shortest decimal, no leading blank, a "-" in front
// when negative, "0.5" and not ".5", minus zero as "0". Doubles carry up to 15 significant digits
// and singles up to 7. A value whose whole part has more digits than that goes to the E form with
// at least two digits of exponent ("1E+15", "9.998E+07"). Small values stay plain decimals, since a
// student reads 0.00001 and not 1E-05: doubles down to 1E-15, and singles, which the engine reads
// again, all of them; below 1.2E-38, where a single loses its digits, they are 0.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ordwise {

[[nodiscard]] std::string textOf(double value);  // e.g. 0.5 -> "0.5", 1e15 -> "1E+15"
[[nodiscard]] std::string textOf(float value);   // e.g. 1.0F / 3 -> "0.3333333"
[[nodiscard]] std::string textOf(int value);     // e.g. -7 -> "-7"
[[nodiscard]] std::string textOf(std::int64_t value);
[[nodiscard]] std::string textOf(std::uint64_t value);

// A number the way messages of the input check write it: a blank stands where a "-" would.
// e.g. 4 -> " 4", -4 -> "-4"
[[nodiscard]] std::string signedTextOf(int value);

// True for text that spells one number and nothing else: an optional sign, digits with at most one
// point and at least one digit, an optional exponent ("1E+15"). Blanks around it are allowed.
// e.g. "-.5", "7." are numeric; "", ".", "1/2", "|5|" are not
[[nodiscard]] bool IsNumeric(std::string_view text);

// *value of*: the double that the text spells. Fault 13 for text that is not numeric, fault 6 for a
// number beyond the range of a double.
[[nodiscard]] double valueOf(std::string_view text);

// *long of*: the same rounded to a 32-bit integer, an exact half to the even neighbour. Fault 6
// when it does not fit.
[[nodiscard]] std::int32_t longOf(std::string_view text);
[[nodiscard]] std::int32_t longOf(double value);

// The engine's lenient reader: the longest beginning of the text that spells a number; the rest is
// ignored and text that begins with no number is 0. e.g. "3x" -> 3, "x" -> 0, "1.2.3" -> 1.2
[[nodiscard]] double lenientValueOf(std::string_view text);

// Rounded to `places` decimals (0 to 15), an exact half going to the even digit. What counts as a
// half is judged on the number as it prints, so 0.35 * 0.1 is the half 0.035 and gives 0.04 to two
// places, and 0.125 gives 0.12.
[[nodiscard]] double Round(double value, int places);
[[nodiscard]] float Round(float value, int places);

}  // namespace ordwise

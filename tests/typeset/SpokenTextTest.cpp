#include "SpokenText.hpp"

#include <gtest/gtest.h>

namespace ordwise {
namespace {

TEST(SpokenText, reads_signs_powers_and_fractions) {
    EXPECT_EQ(spoken("x^2^+#1/2#"), "x squared plus 1 over 2");
    EXPECT_EQ(spoken("x+3-3=12-3"), "x plus 3 minus 3 equals 12 minus 3");
    EXPECT_EQ(spoken("3x=-12"), "3 x equals minus 12");
    EXPECT_EQ(spoken("2^3^*y^-1^"), "2 cubed times y to the power minus 1");
    EXPECT_EQ(spoken("8{2>3"), "8 divided by 2 is greater than 3");
    EXPECT_EQ(spoken("3$8"), "3 is not equal to 8");
    EXPECT_EQ(spoken("|-5|+3"), "bar minus 5 bar plus 3");
}

TEST(SpokenText, says_where_a_longer_part_ends) {
    EXPECT_EQ(spoken("#-1/2#"), "minus 1 over 2");
    EXPECT_EQ(spoken("#x+1/2#=3"), "fraction, x plus 1 over 2, end of fraction equals 3");
    EXPECT_EQ(spoken("~9~+1"), "the square root of 9 plus 1");
    EXPECT_EQ(spoken("~b^2^-4~"), "the square root of b squared minus 4, end of root");
    EXPECT_EQ(spoken("#~4~/2#"), "the square root of 4 over 2");
    EXPECT_EQ(spoken("(x+1)(x-2)"),
              "open parenthesis x plus 1 close parenthesis open parenthesis x minus 2 close parenthesis");
}

TEST(SpokenText, leaves_prose_as_it_is) {
    EXPECT_EQ(spoken("Subtract 3 from 12 to form the new term (9)."),
              "Subtract 3 from 12 to form the new term open parenthesis 9 close parenthesis.");
    EXPECT_EQ(spoken("180^o^ (degrees) forms a STRAIGHT angle."), "180 degrees (degrees) forms a STRAIGHT angle.");
    EXPECT_EQ(spoken("Volume of a Box/Cube, step-by-step"), "Volume of a Box/Cube, step-by-step");
    EXPECT_EQ(spoken("Use the formula: C = #5/9# * (F - 32)"),
              "Use the formula: C equals 5 over 9 times open parenthesis F minus 32 close parenthesis");
    EXPECT_EQ(spoken("Circumference = 2 ` * radius"), "Circumference equals 2 pi times radius");
    EXPECT_EQ(spoken("The ratio 1:2"), "The ratio 1 to 2");
}

TEST(SpokenText, does_not_speak_the_highlight) {
    EXPECT_EQ(spoken("x+3[-3]=12[-3]"), "x plus 3 minus 3 equals 12 minus 3");
    EXPECT_EQ(spoken("#[4]*x/[4]#"), "fraction, 4 times x over 4, end of fraction");
}

TEST(SpokenText, reads_broken_markup_as_far_as_it_goes) {
    EXPECT_EQ(spoken(""), "");
    EXPECT_EQ(spoken("x^2"), "x squared");
    EXPECT_EQ(spoken("#1"), "");
    EXPECT_EQ(spoken("~"), "the square root of");
    EXPECT_EQ(spoken("]["), "");
}

}  // namespace
}  // namespace ordwise

#include "SpokenForm.hpp"

#include <gtest/gtest.h>

namespace ordwise {
namespace {

TEST(SpokenForm, CanBeTakenDownAgain) {
    const struct {
        const char* markup;
        const char* words;
    } cases[] = {
        {"x^2^+#1/2#", "x squared plus 1 over 2"},
        {"x+3[-3]=-12[-3]", "x plus 3 minus 3 equals minus 12 minus 3"},
        {"2^3^*y^-14^", "2 cubed times y to the power of minus 14"},
        {"8{2>3$8/2", "8 divided by 2 is greater than 3 is not equal to 8 slash 2"},
        {"|-5|+|x", "the absolute value of minus 5, end absolute value, plus bar x"},
        {"|3-|8-x||",
         "the absolute value of 3 minus the absolute value of 8 minus x, end absolute value, end absolute "
         "value"},
        {"#-1/2#", "the fraction minus 1 over 2, end fraction"},
        {"-#1/2#", "minus 1 over 2"},
        {"#3x/4#-2^2^", "the fraction 3 x over 4, end fraction, minus 2 squared"},
        {"#1/2#^2^", "the fraction 1 over 2, end fraction, squared"},
        {"2#1/3#", "2 and the fraction 1 over 3, end fraction"},
        {"~9~x", "the square root of 9 x"},
        {"~9x~", "the square root of 9 x, end root"},
        {"x=#-b\\~b^2^-4ac~/2a#",
         "x equals the fraction minus b plus or minus the square root of b squared minus 4 a c, "
         "end root, over 2 a, end fraction"},
        {"24,76,15.5", "24 comma 76 comma 15.5"},
        {"1E+15*.5", "1 E plus 15 times point 5"},
        {"x^2", "x caret 2"},
        {"", ""},
    };
    for (const auto& each : cases) EXPECT_EQ(spokenLine(each.markup, Letters::Variables), each.words) << each.markup;
}

TEST(SpokenForm, LeavesWordsAsTheyAre) {
    const struct {
        const char* markup;
        const char* words;
    } lines[] = {
        {"180^o^ (degrees) forms a STRAIGHT angle.",
         "180 degrees open parenthesis degrees close parenthesis forms a STRAIGHT angle."},
        {"Use the formula: C = #5/9# * F", "Use the formula, C equals 5 over 9 times F"},
        {"Circumference = 2 ` * radius", "Circumference equals 2 pi times radius"},
        {"a1 = 37, b1 = , c = ?", "a1 equals 37, b1 equals, c equals ?"},
        {"54:59", "54 to 59"},
        {"Multiply by 4 and add a % symbol:", "Multiply by 4 and add a % symbol"},
    };
    for (const auto& each : lines) EXPECT_EQ(spokenLine(each.markup, Letters::Words), each.words) << each.markup;

    const struct {
        const char* note;
        const char* words;
    } notes[] = {
        {"Subtract a from 12a to form the new term (-11a).",
         "Subtract a from 12 a to form the new term open parenthesis minus 11 a close parenthesis."},
        {"Replace all the [x]'s on the left-hand side.", "Replace all the x's on the left hand side."},
        {"It's #3/6#.  ( #3/6# = 0.5 )", "It's 3 over 6. open parenthesis 3 over 6 equals 0.5 close parenthesis"},
    };
    for (const auto& each : notes) EXPECT_EQ(spokenNote(each.note, Letters::Variables), each.words) << each.note;
}

}  // namespace
}  // namespace ordwise

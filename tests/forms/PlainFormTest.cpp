// Markup as a terminal shows it: what is written must mean what the paper shows.
#include "PlainForm.hpp"

#include <gtest/gtest.h>

namespace ordwise {
namespace {

TEST(PlainForm, MeansWhatThePaperShows) {
    const struct {
        const char* markup;
        const char* shown;
    } cases[] = {
        {"#3/4#+x^2^", "3/4+x^2"},
        {"#(1+6)/2#", "(1+6)/2"},
        {"#5+x/2#", "(5+x)/2"},
        {"#19/2x^2^#", "19/(2x^2)"},
        {"#x^2^/3#", "(x^2)/3"},
        {"#1/xy#", "1/(xy)"},
        {"#3/4#x", "(3/4)x"},
        {"2#1/3#", "2 1/3"},
        {"-#2x/[3]#=#6/[3]#", "-2x/3=6/3"},
        {"#-4/6#", "-4/6"},
        {"#a1/a2# = #b1/b2#", "a1/a2 = b1/b2"},
        {"#1/2#{#3/4#", "1/2÷3/4"},
        {"2~9~+~#1/2#~", "2√9+√(1/2)"},
        {"45^o^ (degrees)", "45° (degrees)"},
        {"10^-3^", "10^-3"},
        {"10^number of times decimal moved^:", "10^(number of times decimal moved):"},
        {"2 ` * radius", "2 π * radius"},
        {"3$8", "3≠8"},
        {"x^?^", "x^?"},
        {"~2", "~2"},  // no construct without its end
    };
    for (const auto& each : cases) EXPECT_EQ(plainText(each.markup), each.shown) << each.markup;
}

}  // namespace
}  // namespace ordwise

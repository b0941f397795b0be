// LaTeX and MathML of what is special; that every line can be read back is an invariant of its own.
#include "LatexForm.hpp"
#include "MathMLForm.hpp"

#include <gtest/gtest.h>

namespace ordwise {
namespace {

TEST(LatexForm, IsWhatAnAuthorWouldWrite) {
    const struct {
        Letters letters;
        const char* markup;
        const char* latex;
    } cases[] = {
        {Letters::Variables, "#3x^2^/[-4]#*~y~", R"(\frac{3x^{2}}{\textcolor{red}{-4}}\cdot \sqrt{y})"},
        {Letters::Variables, "x+3[-3]", R"(x+3\textcolor{red}{{}-3})"},
        {Letters::Variables, "[#1/2#]", R"(\textcolor{red}{\frac{1}{2}})"},
        {Letters::Variables, "[|x]|", R"(\left|\textcolor{red}{x}\right|)"},
        {Letters::Variables, "(x+#1/2#)^2^", R"(\left(x+\frac{1}{2}\right)^{2})"},
        {Letters::Variables, "3$8{2", R"(3\ne 8\div 2)"},
        {Letters::Words, "Area = ` * radius^2^", R"(\text{Area}=\pi \cdot {\text{radius}}^{2})"},
        {Letters::Words, "100% of 90^o^, 13 #2/7#", R"(100\%\text{ of }90^{\circ},\ 13\ \frac{2}{7})"},
        {Letters::Words, "xy = a1", R"(\text{xy}=\mathrm{a1})"},
    };
    for (const auto& each : cases) EXPECT_EQ(latexOf(readMarkup(each.markup, each.letters)), each.latex) << each.markup;
}

TEST(LatexForm, FindsTheMathematicsInNotes) {
    const struct {
        Letters letters;
        const char* note;
        const char* latex;
    } cases[] = {
        {Letters::Variables, "Add ab and a to form a new term (-2ab).",
         R"(Add \(ab\) and \(a\) to form a new term (\(-2ab\)).)"},
        {Letters::Variables, "Add 5 and 6 to form (11).", "Add 5 and 6 to form (11)."},
        {Letters::Words, "6#2/3# is the same as writing 6 + #2/3#.",
         R"(\(6\frac{2}{3}\) is the same as writing \(6+\frac{2}{3}\).)"},
        {Letters::Words, "A number * 10^power^, the (*) sign",
         R"(A \(\text{number}\cdot 10^{\text{power}}\), the (\(\cdot \)) sign)"},
        {Letters::Words, "12 inches = 1 foot, a cube/box of 5%", R"(12 inches = 1 foot, a cube/box of 5\%)"},
    };
    for (const auto& each : cases) EXPECT_EQ(latexOf(readNote(each.note, each.letters)), each.latex) << each.note;
}

TEST(MathMLForm, NamesWhatIsThere) {
    const std::string begin = "<math xmlns=\"http://www.w3.org/1998/Math/MathML\" alttext=\"";
    EXPECT_EQ(
        mathmlOf(readMarkup("3[x^2^]<2(y)", Letters::Variables)),
        begin +
            "3 x squared is less than 2 open parenthesis y close parenthesis\"><mn>3</mn><mo>&#x2062;</mo>"
            "<msup mathcolor=\"red\"><mi>x</mi><mn>2</mn></msup><mo>&lt;</mo><mn>2</mn><mo>&#x2062;</mo><mo>(</mo>"
            "<mi>y</mi><mo>)</mo></math>");
    EXPECT_EQ(mathmlOf(readMarkup("13 #2/7# m", Letters::Words)),
              begin +
                  "13 and the fraction 2 over 7, end fraction, m\"><mn>13</mn><mtext>&#xA0;</mtext><mfrac><mn>2</mn>"
                  "<mn>7</mn></mfrac><mtext>&#xA0;</mtext><mi>m</mi></math>");
    EXPECT_EQ(mathmlOf(readNote("Since 3 > 2 & x", Letters::Variables)),
              "Since <math xmlns=\"http://www.w3.org/1998/Math/MathML\"><mn>3</mn><mo>&gt;</mo><mn>2</mn></math> &amp; "
              "<math xmlns=\"http://www.w3.org/1998/Math/MathML\"><mi>x</mi></math>");
}

}  // namespace
}  // namespace ordwise

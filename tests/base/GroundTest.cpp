// Counters, arrays and faults: a limit must be felt exactly where it stands, not one before or after.
#include "BoundedArray.hpp"
#include "Fault.hpp"
#include "FaultOf.hpp"
#include "Int16.hpp"
#include "SlotArray.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace ordwise {
namespace {

TEST(Int16, HoldsItsEndsAndFaultsBeyondThem) {
    Int16 counter = 32766;
    ++counter;
    EXPECT_EQ(counter, 32767);
    EXPECT_EQ(faultOf([&] { ++counter; }), 6);
    EXPECT_EQ(faultOf([&] { counter++; }), 6);
    EXPECT_EQ(faultOf([&] { counter += 1; }), 6);
    EXPECT_EQ(faultOf([&] { counter = counter + 1; }), 6);
    EXPECT_EQ(counter, 32767) << "a faulted store leaves the value";

    counter = -32768;
    EXPECT_EQ(faultOf([&] { --counter; }), 6);
    EXPECT_EQ(faultOf([&] { counter = -counter; }), 6);
    EXPECT_EQ(counter, -32768);
}

TEST(Int16, ComputesBetweenStoresInFullWidth) {
    const Int16 a = 30000;
    const Int16 b = 30000;
    EXPECT_EQ(a + b - b, 30000);
    Int16 c = 5;
    EXPECT_EQ(c++, 5);
    EXPECT_EQ(c--, 6);
    EXPECT_EQ(c, 5);
}

TEST(BoundedArray, HasBothItsBounds) {
    BoundedArray<std::string, 200> lines;
    lines[0] = "first";
    lines[200] = "last";
    EXPECT_EQ(lines[0] + lines[200], "firstlast");
    EXPECT_EQ(faultOf([&] { lines[201] = "x"; }), 9);
    EXPECT_EQ(faultOf([&] { lines[-1] = "x"; }), 9);
    const auto& fixed = lines;
    EXPECT_EQ(faultOf([&] { (void)fixed[201]; }), 9);
    lines.fill("");
    EXPECT_EQ(lines[200], "");
}

TEST(SlotArray, IsEmptyWhereNothingWasWrittenAndFaultsOutside) {
    SlotArray<std::string, 2000> tokens;
    EXPECT_EQ(tokens[2000], "");
    EXPECT_EQ(tokens.used(), 0) << "reading makes no slot";
    tokens.set(2000, "x");
    EXPECT_EQ(tokens[2000], "x");
    EXPECT_EQ(tokens[1999], "");
    EXPECT_EQ(faultOf([&] { (void)tokens[2001]; }), 9);
    EXPECT_EQ(faultOf([&] { (void)tokens[-1]; }), 9);
    EXPECT_EQ(faultOf([&] { tokens.set(2001, "y"); }), 9);
}

TEST(SlotArray, ClearsARangeAndEverything) {
    SlotArray<std::string, 20> tokens;
    for (int i = 0; i <= 10; ++i) tokens.set(i, std::to_string(i));
    tokens.clear(3, 5);
    EXPECT_EQ(tokens[2] + tokens[3] + tokens[5] + tokens[6], "26");
    tokens.clear(9, 20);
    EXPECT_EQ(tokens[8] + tokens[9] + tokens[10], "8");
    tokens.clear(7, 6);
    EXPECT_EQ(tokens[7], "7") << "from above to below is no range";
    EXPECT_EQ(faultOf([&] { tokens.clear(9, 21); }), 9);

    const SlotArray<std::string, 20> copy = tokens;
    tokens.clear();
    EXPECT_EQ(tokens.used(), 0);
    EXPECT_EQ(copy[8], "8");
}

TEST(SlotArray, GivesARangeAsFarAsItWasMade) {
    SlotArray<std::string, 20> tokens;
    EXPECT_TRUE(tokens.slots(0, 20).empty());
    for (int i = 0; i <= 10; ++i) tokens.set(i, std::to_string(i));
    EXPECT_EQ(tokens.slots(9, 20).size(), 2U);
    EXPECT_EQ(tokens.slots(9, 20).back(), "10");
    EXPECT_TRUE(tokens.slots(11, 20).empty() && tokens.slots(5, 4).empty());
    EXPECT_EQ(faultOf([&] { (void)tokens.slots(-1, 3); }), 9);
    EXPECT_EQ(faultOf([&] { (void)tokens.slots(3, 21); }), 9);
}

// A clear leaves the old texts in their memory; nothing of them may come back.
TEST(SlotArray, MakesClearedSlotsAnewAndEmpty) {
    SlotArray<std::string, 20> tokens;
    SlotArray<SlotArray<std::string, 5>, 5> rows;
    for (int i = 0; i <= 10; ++i) tokens.set(i, std::to_string(i));
    rows.slot(2).set(3, "old");
    tokens.clear();
    rows.clear();
    EXPECT_EQ(tokens[4], "");
    tokens.set(6, "new");
    rows.slot(4).set(0, "new");
    EXPECT_EQ(tokens[4] + tokens[5] + tokens[6] + tokens[7], "new");
    EXPECT_EQ(rows[2][3], "");

    SlotArray<std::string, 20> other;
    other.set(6, "new");
    EXPECT_TRUE(tokens == other) << "what lies behind the slots in use is no part of the array";
    other.set(6, "net");
    EXPECT_FALSE(tokens == other);
    other = tokens;
    const SlotArray<std::string, 20> moved = std::move(tokens);
    EXPECT_TRUE(moved == other);
    EXPECT_EQ(tokens.used(), 0);  // NOLINT(bugprone-use-after-move): a moved array is an empty one
}

TEST(Fault, TakesThePlaceOfInfinities) {
    EXPECT_EQ(divided(1, 4), 0.25);
    EXPECT_EQ(faultOf([] { (void)divided(5, 0); }), 11);
    EXPECT_EQ(faultOf([] { (void)divided(0, -0.0); }), 11);
    EXPECT_EQ(faultOf([] { (void)divided(1e300, 1e-300); }), 6);
    EXPECT_EQ(faultOf([] { (void)inRange(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

}  // namespace
}  // namespace ordwise

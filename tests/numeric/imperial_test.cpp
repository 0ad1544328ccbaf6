// Imperial measures: normalisation (with its intended sign loss and power-0 asymmetry),
// arithmetic, text and messages, with values worked by hand.
#include "QORKITExceptions.h"
#include "QORKITImperial.h"
#include "QORKITResource.h"
#include "QorkitTestSupport.h"

#include <string>

namespace qorkit {
namespace {

void ExpectMeasure(const TQORImperial& imp, std::int32_t major, double minor, std::int32_t power)
{
    EXPECT_EQ(imp.Major, major);
    EXPECT_NEAR(imp.Minor, minor, 1e-9);
    EXPECT_EQ(imp.Power, power);
}

template<typename F> std::string MessageOf(F&& f)
{
    try {
        f();
    } catch (const EMathError& e) {
        return e.what();
    }
    return "no exception";
}

class Imperial : public test::GlobalStateTest { };

TEST_F(Imperial, NormalisationAndItsIntendedQuirks)
{
    ExpectMeasure(MakeFeetInches(1, 14, 1), 2, 2, 1);
    EXPECT_DOUBLE_EQ(static_cast<double>(Imperial2Float(MakeFeetInches(-1, 6, 1))), -1.5);
    ExpectMeasure(MakePoundsOunces(0, 40, 1), 2, 8, 1);
    // Square feet: 144 square inches to the square foot.
    const TQORImperial area = MakeFeetInches(1, 72, 2);
    EXPECT_DOUBLE_EQ(static_cast<double>(Imperial2Float(area)), 1.5);
    ExpectMeasure(MakeFeetInches(0, 1728 * 2.5, 3), 2, 864, 3);

    // Half a foot below zero keeps no sign: 0 feet 6 inches, read back as +0.5.
    TQORImperial imp = MakeFeetInches(0, 0, 1);
    Float2Imperial(imp, -0.5L);
    ExpectMeasure(imp, 0, 6, 1);
    EXPECT_DOUBLE_EQ(static_cast<double>(Imperial2Float(imp)), 0.5);

    // Power 0 reads the minor count once divided by the ratio but writes it undivided.
    const TQORImperial pure = MakeFeetInches(1, 6, 0);
    ExpectMeasure(pure, 1, 0.5, 0);
    EXPECT_NEAR(static_cast<double>(Imperial2Float(pure)), 1 + 0.5 / 12, 1e-15);
}

TEST_F(Imperial, Arithmetic)
{
    const TQORImperial a = MakeFeetInches(1, 6, 1);
    const TQORImperial b = MakeFeetInches(2, 9, 1);
    ExpectMeasure(AddImperial(a, b), 4, 3, 1);
    ExpectMeasure(SubtractImperial(a, b), -1, 3, 1);
    ExpectMeasure(MultiplyImperial(a, b), 4, 0.125 * 144, 2);
    ExpectMeasure(DivideImperial(b, a), 1, 5.0 / 6, 0); // power 0: minor not scaled
    ExpectMeasure(MultiplyImperialByConst(a, 3), 4, 6, 1);
    ExpectMeasure(DivideImperialByConst(b, 2), 1, 4.5, 1);
    ExpectMeasure(SqrImperial(a), 2, 0.25 * 144, 2);
    ExpectMeasure(SqrtImperial(MakeFeetInches(6, 36, 2)), 2, 6, 1);
    ExpectMeasure(SqrtImperial(MakeFeetInches(0, 36, -2)), 0, 6, -1); // 1/4 per sq ft
    ExpectMeasure(InvImperial(MakeFeetInches(2, 0, 1)), 0, 6, -1);
    ExpectMeasure(NegativeImperial(a), -1, 6, 1);

    TQORImperial c = a;
    AddToImperial(c, b);
    ExpectMeasure(c, 4, 3, 1);
    SubtractFromImperial(c, b);
    ExpectMeasure(c, 1, 6, 1);
    MultiplyImperialByConst2(c, 2);
    ExpectMeasure(c, 3, 0, 1);
    DivideImperialByConst2(c, 4);
    ExpectMeasure(c, 0, 9, 1);
    NegativeImperial2(c);
    ExpectMeasure(c, 0, 9, 1); // only Major changes, and it is 0
    c = b;
    NegativeImperial2(c);
    ExpectMeasure(c, -2, 9, 1);
}

TEST_F(Imperial, MessagesInTheirOrder)
{
    const TQORImperial feet = MakeFeetInches(1, 0, 1);
    const TQORImperial sqFeet = MakeFeetInches(1, 0, 2);
    const TQORImperial pounds = MakePoundsOunces(1, 0, 1);
    TQORImperial broken = feet;
    broken.Ratio = 0;
    EXPECT_EQ(MessageOf([&] { AddImperial(feet, pounds); }), "Cannot have different Units");
    EXPECT_EQ(MessageOf([&] { AddImperial(sqFeet, pounds); }), "Cannot have different Powers");
    EXPECT_EQ(MessageOf([&] { AddImperial(broken, sqFeet); }), "Ratio cannot be 0");
    EXPECT_EQ(MessageOf([&] { MultiplyImperial(feet, pounds); }), "Cannot have different Units");
    EXPECT_EQ(MultiplyImperial(sqFeet, feet).Power, 3);
    EXPECT_EQ(MessageOf([&] { SqrtImperial(MakeFeetInches(1, 0, 3)); }),
              "Cannot Find Square Root with an odd Power");
    EXPECT_EQ(MessageOf([&] { SqrImperial(broken); }), "Ratio cannot be 0");
    EXPECT_EQ(MessageOf([&] { InvImperial(broken); }), "Ratio cannot be 0");
    EXPECT_EQ(MessageOf([] { MakeImperial(1, 0, "A", "B", "a", "b", 0, 1); }), "Ratio cannot be 0");
    EXPECT_EQ(MessageOf([&] { DivideImperial(feet, MakeFeetInches(0, 0, 1)); }), rsDivideByZero());
    TQORImperial unchanged = feet;
    EXPECT_EQ(MessageOf([&] { DivideImperialByConst2(unchanged, 0); }), rsDivideByZero());
    EXPECT_EQ(unchanged, feet);
    EXPECT_THROW(SqrtImperial(MakeFeetInches(-4, 0, 2)), EMathError);
    EXPECT_EQ(ImperialTexts().size(), 6u);
}

// A result whose minor count leaves the range of a double raises in the operation itself, as
// one whose major count leaves the range of an int32 does; in-place forms keep their argument.
TEST_F(Imperial, MinorOverflowRaisesInTheOperation)
{
    const TQORImperial high = MakeFeetInches(1000, 1e19, 300); // 12^300 minor units per foot
    EXPECT_THROW(InvImperial(high), EOverflow);
    EXPECT_THROW(DivideImperial(MakeFeetInches(1, 0, 0), high), EOverflow);
    TQORImperial in = MakeFeetInches(0, 1, -300);
    const TQORImperial before = in;
    EXPECT_THROW(Float2Imperial(in, 0.5L), EOverflow); // half a foot is 6 * 12^299 "inches"
    EXPECT_EQ(in, before);
    EXPECT_THROW(MakeFeetInches(1000, 1e19, 1), EOverflow); // the major count overflows
}

TEST_F(Imperial, TextByPower)
{
    EXPECT_EQ(Imperial2Str(MakeFeetInches(2, 2, 1), 2), "2 Feet 2.00 Inches");
    EXPECT_EQ(Imperial2Str(MakeFeetInches(1, 72, 2), 1), "1 sq Feet 72.0 sq Inches");
    EXPECT_EQ(Imperial2Str(MakePoundsOunces(-3, 4, 3), 0), "-3 cu Pounds 4 cu Ounces");
    EXPECT_EQ(Imperial2Str(MakeFeetInches(1, 6, 0), 2), "1 0.50 (const)");
    EXPECT_EQ(Imperial2Str(MakeFeetInches(0, 6, -1), 1), "0 Feet 6.0 Inches (Power = -1)");
    SetTranslationHook([](std::string_view, std::string_view source) {
        return source == "const" ? std::string("konst") : std::string(source);
    });
    EXPECT_EQ(Imperial2Str(MakeFeetInches(1, 6, 0), 2), "1 0.50 (konst)");
}

} // namespace
} // namespace qorkit

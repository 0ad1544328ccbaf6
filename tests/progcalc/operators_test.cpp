// Two-operand operators, precedence and brackets, the width rules of results, one-operand
// keys per word size, and the error state.
#include "ProgCase.h"

#include <limits>

namespace qorkit::test {
namespace {

constexpr std::int64_t kMin64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax64 = std::numeric_limits<std::int64_t>::max();

const ProgCase kOperatorRows[] = {
    // Width rules: 8 and 16 bits compute in 32 bits and keep the result uncut.
    {"Hex8CarryIntoSignBit", bdHexadecimal, bs8Bits, "7F+1=", "80", 128},
    {"Hex8SumAboveByteKept", bdHexadecimal, bs8Bits, "64+64=", "C8", 200},
    {"Hex8OperandReadSigned", bdHexadecimal, bs8Bits, "C8+1=", "C9", -55},
    {"Hex16CarryIntoSignBit", bdHexadecimal, bs16Bits, "7FFF+1=", "8000", 32768},
    {"Hex16MinusOneSquared", bdHexadecimal, bs16Bits, "FFFF*FFFF=", "0001", 1},
    {"Hex16SmallestByMinusOne", bdHexadecimal, bs16Bits, "8000/FFFF=", "8000", 32768},
    {"Hex32Wraps", bdHexadecimal, bs32Bits, "7FFFFFFF+1=", "80000000", -2147483648LL},
    {"Hex32ProductWraps", bdHexadecimal, bs32Bits, "10000*10000=", "00000000", 0},
    {"Dec64LargestPlusOne", bdDecimal, bs64Bits, "9223372036854775807+1=", "-9223372036854775808",
     kMin64},
    {"Dec64SmallestMinusOne", bdDecimal, bs64Bits, "-9223372036854775808-1=", "9223372036854775807",
     kMax64},
    {"Hex64SmallestByMinusOne", bdHexadecimal, bs64Bits,
     "8000000000000000/FFFFFFFFFFFFFFFF=", "8000000000000000", kMin64},
    {"Hex64SmallestModMinusOne", bdHexadecimal, bs64Bits,
     "8000000000000000%FFFFFFFFFFFFFFFF=", "0000000000000000", 0},
    // Division truncates toward zero; the remainder takes the dividend's sign.
    {"DecNegativeQuotient", bdDecimal, bs64Bits, "-7/2=", "-3", -3},
    {"DecNegativeRemainder", bdDecimal, bs64Bits, "-7%2=", "-1", -1},
    {"DecRemainderNegativeDivisor", bdDecimal, bs64Bits, "10%-3=", "1", 1},
    {"Hex8RemainderSigned", bdHexadecimal, bs8Bits, "81%10=", "F1", -15},
    {"DecSignAfterOperator", bdDecimal, bs64Bits, "5*-3=", "-15", -15},
    {"HexMinusIsAlwaysOperator", bdHexadecimal, bs8Bits, "-5=", "FB", -5},
    // Bitwise operators (12 = 1100, 10 = 1010).
    {"DecAnd", bdDecimal, bs64Bits, "12&10=", "8", 8},
    {"DecOr", bdDecimal, bs64Bits, "12|10=", "14", 14},
    {"DecXor", bdDecimal, bs64Bits, "12^10=", "6", 6},
    {"DecNand", bdDecimal, bs64Bits, "12#10=", "-9", -9},
    {"DecNor", bdDecimal, bs64Bits, "12?10=", "-15", -15},
    {"DecXnor", bdDecimal, bs64Bits, "12!10=", "-7", -7},
    {"Hex8AndMasks", bdHexadecimal, bs8Bits, "F0&3C=", "30", 0x30},
    {"Hex8OrSignExtended", bdHexadecimal, bs8Bits, "F0|0F=", "FF", -1},
    {"Hex8XorOfNegatives", bdHexadecimal, bs8Bits, "F0^FF=", "0F", 15},
    {"Hex8Nand", bdHexadecimal, bs8Bits, "F0#FF=", "0F", 15},
    {"Hex8Nor", bdHexadecimal, bs8Bits, "F0?0F=", "00", 0},
    {"Hex16Xnor", bdHexadecimal, bs16Bits, "00FF!0F0F=", "F00F", -4081},
    // Precedence: MOD and XOR above * and /, above + and -; AND/OR/NAND/NOR/XNOR left to right.
    {"MulBeforeAdd", bdDecimal, bs64Bits, "2+3*4=", "14", 14},
    {"MulBeforeAddOff", bdDecimal, bs64Bits, "2+3*4=", "20", 20, "noprec"},
    {"XorAboveMul", bdDecimal, bs64Bits, "2*3^1=", "4", 4},
    {"XorAboveMulOff", bdDecimal, bs64Bits, "2*3^1=", "7", 7, "noprec"},
    {"ModAboveMul", bdDecimal, bs64Bits, "2*7%4=", "6", 6},
    {"AndNotAboveMul", bdDecimal, bs64Bits, "3&5*2=", "2", 2},
    {"AndAfterMul", bdDecimal, bs64Bits, "2*3&5=", "4", 4},
    {"OrAfterAdd", bdDecimal, bs64Bits, "1+2|4=", "7", 7},
    {"ThreeLevels", bdDecimal, bs64Bits, "1+2*3^1=", "5", 5},
    {"ThreeLevelsOff", bdDecimal, bs64Bits, "1+2*3^1=", "8", 8, "noprec"},
    {"ChainLeftToRight", bdDecimal, bs64Bits, "2*3+4*5-6=", "20", 20},
    // Brackets.
    {"Brackets", bdDecimal, bs64Bits, "2*(3+4)=", "14", 14},
    {"NestedBrackets", bdDecimal, bs64Bits, "((1+2)*(3+4))-1=", "20", 20},
    {"UnclosedBracketsDiscarded", bdDecimal, bs64Bits, "2*(3+4=", "14", 14},
    {"ExtraRightBracketHarmless", bdDecimal, bs64Bits, "(2+3))*2=", "10", 10},
    {"MinusBeforeBracket", bdDecimal, bs64Bits, "-(2+3)=", "-5", -5},
    {"RightBracketShowsInner", bdDecimal, bs64Bits, "10-(2+3)", "5", 5},
    {"DigitsBeforeBracketDropped", bdDecimal, bs64Bits, "7(2)=", "2", 2},
    // A two-operand key with a single operand works on 0 and that operand.
    {"LoneOperandAdd", bdDecimal, bs64Bits, "5+=", "5", 5},
    {"LoneOperandSubtract", bdDecimal, bs64Bits, "5-=", "-5", -5},
    {"OperatorOnEmptyStack", bdHexadecimal, bs8Bits, "+=", "00", 0},
    {"OperatorReplacedDisplay", bdDecimal, bs64Bits, "6+2*", "2", 2},
    {"LowerOperatorEvaluates", bdDecimal, bs64Bits, "6*2+", "12", 12},
};

class OperatorsKeys : public ProgKeysTest { };
TEST_P(OperatorsKeys, Row) { RunRow(); }
INSTANTIATE_TEST_SUITE_P(Prog, OperatorsKeys, ::testing::ValuesIn(kOperatorRows), ProgCaseName);

const ProgCase kOneOperandRows[] = {
    {"Shl8", bdHexadecimal, bs8Bits, "81<", "02", -254},
    {"Shr8CopiesSign", bdHexadecimal, bs8Bits, "81>", "C0", 0x7FFFFFC0},
    {"Rol8", bdHexadecimal, bs8Bits, "81{", "03", 3},
    {"Ror8", bdHexadecimal, bs8Bits, "81}", "C0", -64},
    {"Shl16", bdHexadecimal, bs16Bits, "8001<", "0002", -65534},
    {"Shr16CopiesSign", bdHexadecimal, bs16Bits, "8000>", "C000", 0x7FFFC000},
    {"Shr32ZerosEnter", bdHexadecimal, bs32Bits, "80000000>", "40000000", 0x40000000},
    {"Shl32DropsTopBit", bdHexadecimal, bs32Bits, "C0000001<", "80000002", -2147483646LL},
    {"Shr64ZerosEnter", bdHexadecimal, bs64Bits, "8000000000000000>", "4000000000000000",
     0x4000000000000000},
    {"Rol64", bdHexadecimal, bs64Bits, "8000000000000001{", "0000000000000003", 3},
    {"Ror32", bdHexadecimal, bs32Bits, "1}", "80000000", -2147483648LL},
    {"ShlCountZeroIsOne", bdHexadecimal, bs8Bits, "1[SHL 0]", "02", 2},
    {"ShlSevenAt8", bdHexadecimal, bs8Bits, "1[SHL 7]", "80", 128},
    {"ShlWordWidthIsZero", bdHexadecimal, bs8Bits, "FF[SHL 8]", "00", 0},
    {"ShrCountAbove64", bdHexadecimal, bs64Bits, "FFFFFFFFFFFFFFFF[SHR 100]", "0000000000000000",
     0},
    {"Shl63", bdHexadecimal, bs64Bits, "1[SHL 63]", "8000000000000000", kMin64},
    {"RolCountModuloWidth", bdHexadecimal, bs8Bits, "81[ROL 9]", "03", 3},
    {"Ror16ByFour", bdHexadecimal, bs16Bits, "1234[ROR 4]", "4123", 0x4123},
    {"ShiftUsesTopOperand", bdHexadecimal, bs8Bits, "3+1=<", "08", 8},
    {"ShiftOfNothingIsZero", bdHexadecimal, bs8Bits, "<", "00", 0},
    {"NotPrefix8", bdHexadecimal, bs8Bits, "~0F=", "F0", -16},
    {"NotPrefix64", bdHexadecimal, bs64Bits, "~0=", "FFFFFFFFFFFFFFFF", -1},
    {"NotPrefixInExpression", bdHexadecimal, bs8Bits, "F0&~3C=", "C0", -64},
    {"NotPostfix8", bdHexadecimal, bs8Bits, "0F~", "F0", -16, "postfix"},
    {"NotPostfixEmpty", bdHexadecimal, bs8Bits, "~", "00", 0, "postfix"},
    {"Neg8", bdHexadecimal, bs8Bits, "01_", "FF", -1},
    {"NegSmallest64", bdHexadecimal, bs64Bits, "8000000000000000_", "8000000000000000", kMin64},
    {"NegDecimal", bdDecimal, bs64Bits, "5_", "-5", -5},
    {"NegStacksOnOperand", bdDecimal, bs64Bits, "5+_=", "0", 0},
    {"NegResultKeptByEquals", bdDecimal, bs64Bits, "5_=", "-5", -5},
};

class OneOperandKeys : public ProgKeysTest { };
TEST_P(OneOperandKeys, Row) { RunRow(); }
INSTANTIATE_TEST_SUITE_P(Prog, OneOperandKeys, ::testing::ValuesIn(kOneOperandRows), ProgCaseName);

// ---- Errors ----

class ProgErrorTest : public GlobalStateTest {
protected:
    void ExpectError(const std::string& message)
    {
        EXPECT_EQ(d.Display(), "Error!");
        EXPECT_EQ(d.Engine().GetLastError(), message);
        EXPECT_EQ(d.Count("Error"), 1);
        EXPECT_EQ(d.Value(), 0);
    }
    ProgKeyDriver d;
};

TEST_F(ProgErrorTest, DivisionByZeroClearsAndKeepsMemory)
{
    d.Setup(bdHexadecimal, bs64Bits);
    d.Engine().SetMemory(5);
    d.Press("3+7/0=");
    ExpectError(rsDivideByZero());
    EXPECT_EQ(d.History(), (std::vector<std::string> {"- - - - ERROR - - - -", "=", "Error!"}));
    EXPECT_EQ(d.Engine().GetMemoryValue(), 5);
    d.Press("2+2="); // the engine works on after an error
    EXPECT_EQ(d.Display(), "0000000000000004");
}

TEST_F(ProgErrorTest, ErrorInsideOperatorStillWritesOperator)
{
    d.Setup(bdDecimal, bs64Bits);
    d.Press("8%0*");
    ExpectError(rsDivideByZero());
    EXPECT_EQ(d.History(), (std::vector<std::string> {"- - - - ERROR - - - -", "*"}));
    d.Press("5="); // nothing was left pending
    EXPECT_EQ(d.Display(), "5");
}

TEST_F(ProgErrorTest, DivisorWithZeroWordPartFaults)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("7/");
    d.Engine().InputValue(0x100);
    d.Press("=");
    ExpectError(rsDivideByZero());
}

TEST_F(ProgErrorTest, SmallestInt32ByMinusOneFaults)
{
    d.Setup(bdHexadecimal, bs32Bits);
    d.Press("80000000/FFFFFFFF=");
    ExpectError(rsDivideByZero());
}

TEST_F(ProgErrorTest, DivisionByZeroInsideBrackets)
{
    d.Setup(bdDecimal, bs64Bits);
    d.Press("(8/0)");
    ExpectError(rsDivideByZero());
}

TEST_F(ProgErrorTest, UnreadableStringIsAnError)
{
    d.Setup(bdHexadecimal, bs16Bits);
    d.Engine().InputString("12G4");
    EXPECT_EQ(d.Display(), "Error!");
    EXPECT_FALSE(d.Engine().GetLastError().empty());
    EXPECT_EQ(d.Count("Error"), 1);
}

TEST_F(ProgErrorTest, BaseChangeAfterErrorShowsZero)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("1/0=[BIN]");
    EXPECT_EQ(d.Display(), "00000000");
    d.Press("1+1=");
    EXPECT_EQ(d.Display(), "00000010");
}

} // namespace
} // namespace qorkit::test

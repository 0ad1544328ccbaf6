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
    {.name = "Hex8CarryIntoSignBit",
     .size = bs8Bits,
     .keys = "7F+1=",
     .display = "80",
     .value = 128},
    {.name = "Hex8SumAboveByteKept",
     .size = bs8Bits,
     .keys = "64+64=",
     .display = "C8",
     .value = 200},
    {.name = "Hex8OperandReadSigned",
     .size = bs8Bits,
     .keys = "C8+1=",
     .display = "C9",
     .value = -55},
    {.name = "Hex16CarryIntoSignBit",
     .size = bs16Bits,
     .keys = "7FFF+1=",
     .display = "8000",
     .value = 32768},
    {.name = "Hex16MinusOneSquared",
     .size = bs16Bits,
     .keys = "FFFF*FFFF=",
     .display = "0001",
     .value = 1},
    {.name = "Hex16SmallestByMinusOne",
     .size = bs16Bits,
     .keys = "8000/FFFF=",
     .display = "8000",
     .value = 32768},
    {.name = "Hex32Wraps",
     .size = bs32Bits,
     .keys = "7FFFFFFF+1=",
     .display = "80000000",
     .value = -2147483648LL},
    {.name = "Hex32ProductWraps",
     .size = bs32Bits,
     .keys = "10000*10000=",
     .display = "00000000",
     .value = 0},
    {.name = "Dec64LargestPlusOne",
     .base = bdDecimal,
     .keys = "9223372036854775807+1=",
     .display = "-9223372036854775808",
     .value = kMin64},
    {.name = "Dec64SmallestMinusOne",
     .base = bdDecimal,
     .keys = "-9223372036854775808-1=",
     .display = "9223372036854775807",
     .value = kMax64},
    {.name = "Hex64SmallestByMinusOne",
     .keys = "8000000000000000/FFFFFFFFFFFFFFFF=",
     .display = "8000000000000000",
     .value = kMin64},
    {.name = "Hex64SmallestModMinusOne",
     .keys = "8000000000000000%FFFFFFFFFFFFFFFF=",
     .display = "0000000000000000",
     .value = 0},
    // Division truncates toward zero; the remainder takes the dividend's sign.
    {.name = "DecNegativeQuotient",
     .base = bdDecimal,
     .keys = "-7/2=",
     .display = "-3",
     .value = -3},
    {.name = "DecNegativeRemainder",
     .base = bdDecimal,
     .keys = "-7%2=",
     .display = "-1",
     .value = -1},
    {.name = "DecRemainderNegativeDivisor",
     .base = bdDecimal,
     .keys = "10%-3=",
     .display = "1",
     .value = 1},
    {.name = "Hex8RemainderSigned",
     .size = bs8Bits,
     .keys = "81%10=",
     .display = "F1",
     .value = -15},
    {.name = "DecSignAfterOperator",
     .base = bdDecimal,
     .keys = "5*-3=",
     .display = "-15",
     .value = -15},
    {.name = "HexMinusIsAlwaysOperator",
     .size = bs8Bits,
     .keys = "-5=",
     .display = "FB",
     .value = -5},
    // Bitwise operators (12 = 1100, 10 = 1010).
    {.name = "DecAnd", .base = bdDecimal, .keys = "12&10=", .display = "8", .value = 8},
    {.name = "DecOr", .base = bdDecimal, .keys = "12|10=", .display = "14", .value = 14},
    {.name = "DecXor", .base = bdDecimal, .keys = "12^10=", .display = "6", .value = 6},
    {.name = "DecNand", .base = bdDecimal, .keys = "12#10=", .display = "-9", .value = -9},
    {.name = "DecNor", .base = bdDecimal, .keys = "12?10=", .display = "-15", .value = -15},
    {.name = "DecXnor", .base = bdDecimal, .keys = "12!10=", .display = "-7", .value = -7},
    {.name = "Hex8AndMasks", .size = bs8Bits, .keys = "F0&3C=", .display = "30", .value = 0x30},
    {.name = "Hex8OrSignExtended", .size = bs8Bits, .keys = "F0|0F=", .display = "FF", .value = -1},
    {.name = "Hex8XorOfNegatives", .size = bs8Bits, .keys = "F0^FF=", .display = "0F", .value = 15},
    {.name = "Hex8Nand", .size = bs8Bits, .keys = "F0#FF=", .display = "0F", .value = 15},
    {.name = "Hex8Nor", .size = bs8Bits, .keys = "F0?0F=", .display = "00", .value = 0},
    {.name = "Hex16Xnor",
     .size = bs16Bits,
     .keys = "00FF!0F0F=",
     .display = "F00F",
     .value = -4081},
    // Precedence: MOD and XOR above * and /, above + and -; AND/OR/NAND/NOR/XNOR left to right.
    {.name = "MulBeforeAdd", .base = bdDecimal, .keys = "2+3*4=", .display = "14", .value = 14},
    {.name = "MulBeforeAddOff",
     .base = bdDecimal,
     .keys = "2+3*4=",
     .display = "20",
     .value = 20,
     .precedence = false},
    {.name = "XorAboveMul", .base = bdDecimal, .keys = "2*3^1=", .display = "4", .value = 4},
    {.name = "XorAboveMulOff",
     .base = bdDecimal,
     .keys = "2*3^1=",
     .display = "7",
     .value = 7,
     .precedence = false},
    {.name = "ModAboveMul", .base = bdDecimal, .keys = "2*7%4=", .display = "6", .value = 6},
    {.name = "AndNotAboveMul", .base = bdDecimal, .keys = "3&5*2=", .display = "2", .value = 2},
    {.name = "AndAfterMul", .base = bdDecimal, .keys = "2*3&5=", .display = "4", .value = 4},
    {.name = "OrAfterAdd", .base = bdDecimal, .keys = "1+2|4=", .display = "7", .value = 7},
    {.name = "ThreeLevels", .base = bdDecimal, .keys = "1+2*3^1=", .display = "5", .value = 5},
    {.name = "ThreeLevelsOff",
     .base = bdDecimal,
     .keys = "1+2*3^1=",
     .display = "8",
     .value = 8,
     .precedence = false},
    {.name = "ChainLeftToRight",
     .base = bdDecimal,
     .keys = "2*3+4*5-6=",
     .display = "20",
     .value = 20},
    // Brackets.
    {.name = "Brackets", .base = bdDecimal, .keys = "2*(3+4)=", .display = "14", .value = 14},
    {.name = "NestedBrackets",
     .base = bdDecimal,
     .keys = "((1+2)*(3+4))-1=",
     .display = "20",
     .value = 20},
    {.name = "UnclosedBracketsDiscarded",
     .base = bdDecimal,
     .keys = "2*(3+4=",
     .display = "14",
     .value = 14},
    {.name = "ExtraRightBracketHarmless",
     .base = bdDecimal,
     .keys = "(2+3))*2=",
     .display = "10",
     .value = 10},
    {.name = "MinusBeforeBracket",
     .base = bdDecimal,
     .keys = "-(2+3)=",
     .display = "-5",
     .value = -5},
    {.name = "RightBracketShowsInner",
     .base = bdDecimal,
     .keys = "10-(2+3)",
     .display = "5",
     .value = 5},
    {.name = "DigitsBeforeBracketDropped",
     .base = bdDecimal,
     .keys = "7(2)=",
     .display = "2",
     .value = 2},
    // A two-operand key with a single operand works on 0 and that operand.
    {.name = "LoneOperandAdd", .base = bdDecimal, .keys = "5+=", .display = "5", .value = 5},
    {.name = "LoneOperandSubtract", .base = bdDecimal, .keys = "5-=", .display = "-5", .value = -5},
    {.name = "OperatorOnEmptyStack", .size = bs8Bits, .keys = "+=", .display = "00", .value = 0},
    {.name = "OperatorReplacedDisplay",
     .base = bdDecimal,
     .keys = "6+2*",
     .display = "2",
     .value = 2},
    {.name = "LowerOperatorEvaluates",
     .base = bdDecimal,
     .keys = "6*2+",
     .display = "12",
     .value = 12},
};

class OperatorsKeys : public ProgKeysTest { };
TEST_P(OperatorsKeys, Row) { RunRow(); }
INSTANTIATE_TEST_SUITE_P(Prog, OperatorsKeys, ::testing::ValuesIn(kOperatorRows), ProgCaseName);

const ProgCase kOneOperandRows[] = {
    {.name = "Shl8", .size = bs8Bits, .keys = "81<", .display = "02", .value = -254},
    {.name = "Shr8CopiesSign",
     .size = bs8Bits,
     .keys = "81>",
     .display = "C0",
     .value = 0x7FFFFFC0},
    {.name = "Rol8", .size = bs8Bits, .keys = "81{", .display = "03", .value = 3},
    {.name = "Ror8", .size = bs8Bits, .keys = "81}", .display = "C0", .value = -64},
    {.name = "Shl16", .size = bs16Bits, .keys = "8001<", .display = "0002", .value = -65534},
    {.name = "Shr16CopiesSign",
     .size = bs16Bits,
     .keys = "8000>",
     .display = "C000",
     .value = 0x7FFFC000},
    {.name = "Shr32ZerosEnter",
     .size = bs32Bits,
     .keys = "80000000>",
     .display = "40000000",
     .value = 0x40000000},
    {.name = "Shl32DropsTopBit",
     .size = bs32Bits,
     .keys = "C0000001<",
     .display = "80000002",
     .value = -2147483646LL},
    {.name = "Shr64ZerosEnter",
     .keys = "8000000000000000>",
     .display = "4000000000000000",
     .value = 0x4000000000000000},
    {.name = "Rol64", .keys = "8000000000000001{", .display = "0000000000000003", .value = 3},
    {.name = "Ror32",
     .size = bs32Bits,
     .keys = "1}",
     .display = "80000000",
     .value = -2147483648LL},
    {.name = "ShlCountZeroIsOne", .size = bs8Bits, .keys = "1[SHL 0]", .display = "02", .value = 2},
    {.name = "ShlSevenAt8", .size = bs8Bits, .keys = "1[SHL 7]", .display = "80", .value = 128},
    {.name = "ShlWordWidthIsZero",
     .size = bs8Bits,
     .keys = "FF[SHL 8]",
     .display = "00",
     .value = 0},
    {.name = "ShrCountAbove64",
     .keys = "FFFFFFFFFFFFFFFF[SHR 100]",
     .display = "0000000000000000",
     .value = 0},
    {.name = "Shl63", .keys = "1[SHL 63]", .display = "8000000000000000", .value = kMin64},
    {.name = "RolCountModuloWidth",
     .size = bs8Bits,
     .keys = "81[ROL 9]",
     .display = "03",
     .value = 3},
    {.name = "Ror16ByFour",
     .size = bs16Bits,
     .keys = "1234[ROR 4]",
     .display = "4123",
     .value = 0x4123},
    {.name = "ShiftUsesTopOperand", .size = bs8Bits, .keys = "3+1=<", .display = "08", .value = 8},
    {.name = "ShiftOfNothingIsZero", .size = bs8Bits, .keys = "<", .display = "00", .value = 0},
    {.name = "NotPrefix8", .size = bs8Bits, .keys = "~0F=", .display = "F0", .value = -16},
    {.name = "NotPrefix64", .keys = "~0=", .display = "FFFFFFFFFFFFFFFF", .value = -1},
    {.name = "NotPrefixInExpression",
     .size = bs8Bits,
     .keys = "F0&~3C=",
     .display = "C0",
     .value = -64},
    {.name = "NotPostfix8",
     .size = bs8Bits,
     .keys = "0F~",
     .display = "F0",
     .value = -16,
     .prefix = false},
    {.name = "NotPostfixEmpty",
     .size = bs8Bits,
     .keys = "~",
     .display = "00",
     .value = 0,
     .prefix = false},
    {.name = "Neg8", .size = bs8Bits, .keys = "01_", .display = "FF", .value = -1},
    {.name = "NegSmallest64",
     .keys = "8000000000000000_",
     .display = "8000000000000000",
     .value = kMin64},
    {.name = "NegDecimal", .base = bdDecimal, .keys = "5_", .display = "-5", .value = -5},
    {.name = "NegStacksOnOperand", .base = bdDecimal, .keys = "5+_=", .display = "0", .value = 0},
    {.name = "NegResultKeptByEquals",
     .base = bdDecimal,
     .keys = "5_=",
     .display = "-5",
     .value = -5},
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

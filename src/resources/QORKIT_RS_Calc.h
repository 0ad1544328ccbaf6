// Texts of the calculators: key captions (...Key), key hints (...Hint), paper-tape labels
// (...Paper), list items and messages. Each rs... function returns the current translation.
#pragma once

#include "QORKITResource.h"
#include "qorkit_core_export.h"

#include <span>
#include <string>

namespace qorkit {

// The table is kept in areas; inside the dialog area all captions come before all hints so a
// translator sees each kind together. Messages shared with the base library (division by zero,
// invalid equation, the memory-history prefix ...) live in QORKITResource.h, unit names in
// QORKIT_RS_UC.h.
#define QORKIT_RS_CALC_TEXTS(X)                                                                    \
    /* Entry, operators and errors of the keystroke engines */                                     \
    X(rsErrorMsg, "Error!")                                                                        \
    X(rsPaperErrLine, "- - - - ERROR - - - -")                                                     \
    X(rsXpwrYPaper, "x ^ y")                                                                       \
    X(rsXpwrInvYPaper, "x ^ 1/y")                                                                  \
    X(rsFPModPaper, "mod")                                                                         \
    X(rsFPRemPaper, "rem")                                                                         \
    X(rsFPDivPaper, "div")                                                                         \
    X(rsFPIntDivPaper, "intdiv")                                                                   \
    /* Scientific functions and angle modes */                                                     \
    X(rsSinPaper, "sin")                                                                           \
    X(rsArcsinPaper, "arcsin")                                                                     \
    X(rsSinhPaper, "sinh")                                                                         \
    X(rsArsinhPaper, "arsinh")                                                                     \
    X(rsCosPaper, "cos")                                                                           \
    X(rsArccosPaper, "arccos")                                                                     \
    X(rsCoshPaper, "cosh")                                                                         \
    X(rsArcoshPaper, "arcosh")                                                                     \
    X(rsTanPaper, "tan")                                                                           \
    X(rsArctanPaper, "arctan")                                                                     \
    X(rsTanhPaper, "tanh")                                                                         \
    X(rsArtanhPaper, "artanh")                                                                     \
    X(rsLogPaper, "log")                                                                           \
    X(rs10toXPaper, "10^x")                                                                        \
    X(rsLnPaper, "ln")                                                                             \
    X(rsEtoXPaper, "e^x")                                                                          \
    X(rsLog2Paper, "log2")                                                                         \
    X(rsInvLog2Paper, "2^x")                                                                       \
    X(rsSqrtPaper, "sqrt")                                                                         \
    X(rsSquarePaper, "x^2")                                                                        \
    X(rsAbsPaper, "abs")                                                                           \
    X(rsFloorPaper, "floor")                                                                       \
    X(rsCeilingPaper, "ceiling")                                                                   \
    X(rsSignPaper, "sign")                                                                         \
    X(rsGammaPaper, "gamma")                                                                       \
    X(rsLnGammaPaper, "ln gamma")                                                                  \
    X(rsInvertPaper, "1/x")                                                                        \
    X(rsRoundPaper, "round")                                                                       \
    X(rsDegAbbrev, "deg")                                                                          \
    X(rsRadAbbrev, "rad")                                                                          \
    X(rsGraAbbrev, "gra")                                                                          \
    /* Memory and paper tape */                                                                    \
    X(rsMemAddPaper, "M+")                                                                         \
    X(rsMemSubPaper, "M-")                                                                         \
    X(rsMemClrPaper, "MC")                                                                         \
    X(rsMemRecPaper, "MR")                                                                         \
    X(rsPaperLine, "- - - - - - - - - - -")                                                        \
    /* Expression strings */                                                                       \
    X(rsUnknownFunction, "Unknown Function")                                                       \
    /* Programmer's calculator: operators, one-operand keys, bases, sizes, spacing */              \
    X(rsMODPaper, "MOD")                                                                           \
    X(rsANDPaper, "AND")                                                                           \
    X(rsORPaper, "OR")                                                                             \
    X(rsXORPaper, "XOR")                                                                           \
    X(rsNANDPaper, "NAND")                                                                         \
    X(rsNORPaper, "NOR")                                                                           \
    X(rsXNORPaper, "XNOR")                                                                         \
    X(rsNOTPaper, "NOT")                                                                           \
    X(rsNEGPaper, "NEG")                                                                           \
    X(rsSHLPaper, "SHL")                                                                           \
    X(rsSHRPaper, "SHR")                                                                           \
    X(rsROLPaper, "ROL")                                                                           \
    X(rsRORPaper, "ROR")                                                                           \
    X(rsComboBin, "Bin")                                                                           \
    X(rsComboDec, "Dec")                                                                           \
    X(rsComboHex, "Hex")                                                                           \
    X(rsComboOct, "Oct")                                                                           \
    X(rsCombo8Bits, "8 bits")                                                                      \
    X(rsCombo16Bits, "16 bits")                                                                    \
    X(rsCombo32Bits, "32 bits")                                                                    \
    X(rsCombo64Bits, "64 bits")                                                                    \
    X(rsSpacingNone, "No Spacing")                                                                 \
    X(rsSpacingByte, "Byte Spacing")                                                               \
    X(rsSpacingWord, "Word Spacing")                                                               \
    X(rsSpacingDWord, "DWord Spacing")                                                             \
    X(rsChangeClear, "Clear")                                                                      \
    X(rsChangeTruncate, "Truncate")                                                                \
    X(rsChangeExtend, "Extend")                                                                    \
    /* Calculator dialogs: caption, key captions, then key hints */                                \
    X(rsCalculator, "Calculator")                                                                  \
    X(rsSinKey, "sin")                                                                             \
    X(rsCosKey, "cos")                                                                             \
    X(rsTanKey, "tan")                                                                             \
    X(rsInvAbbrev, "inv")                                                                          \
    X(rsHypAbbrev, "hyp")                                                                          \
    X(rsLogKey, "log")                                                                             \
    X(rsLnKey, "ln")                                                                               \
    X(rsLg2Key, "lg2")                                                                             \
    X(rsExpKey, "exp")                                                                             \
    X(rsACKey, "AC")                                                                               \
    X(rsCKey, "C")                                                                                 \
    X(rsClKey, "Cl")                                                                               \
    X(rsMCKey, "MC")                                                                               \
    X(rsMAddKey, "M+")                                                                             \
    X(rsMSubtractKey, "M-")                                                                        \
    X(rsMRKey, "MR")                                                                               \
    X(rsMODKey, "mod")                                                                             \
    X(rsANDKey, "and")                                                                             \
    X(rsORKey, "or")                                                                               \
    X(rsXORKey, "xor")                                                                             \
    X(rsNANDKey, "nand")                                                                           \
    X(rsNORKey, "nor")                                                                             \
    X(rsXNORKey, "xnor")                                                                           \
    X(rsNOTKey, "not")                                                                             \
    X(rsNEGKey, "neg")                                                                             \
    X(rsSHLKey, "shl")                                                                             \
    X(rsSHRKey, "shr")                                                                             \
    X(rsROLKey, "rol")                                                                             \
    X(rsRORKey, "ror")                                                                             \
    X(rsChangeSignHint, "Change Sign")                                                             \
    X(rsAddHint, "Add")                                                                            \
    X(rsSubtractHint, "Subtract")                                                                  \
    X(rsMultiplyHint, "Multiply")                                                                  \
    X(rsDivideHint, "Divide")                                                                      \
    X(rsBackSpaceHint, "BackSpace")                                                                \
    X(rsACHint, "All Clear")                                                                       \
    X(rsCHint, "Clear")                                                                            \
    X(rsMCHint, "Clear Memory")                                                                    \
    X(rsMAddHint, "Add To Memory")                                                                 \
    X(rsMSubtractHint, "Subtract From Memory")                                                     \
    X(rsMRHint, "Memory Recall")                                                                   \
    X(rsPowerHint, "Raised to the Power of")                                                       \
    X(rsPiHint, "Pi (Constant)")                                                                   \
    X(rsEHint, "Natural Constant")                                                                 \
    X(rsSquareHint, "Squares the Value")                                                           \
    X(rsSqRootHint, "Square Roots the Value")                                                      \
    X(rsInvertHint, "Inverts the Value")                                                           \
    X(rsLogHint, "Logarithm to Base 10")                                                           \
    X(rsLnHint, "Natural Logarithm")                                                               \
    X(rsLg2Hint, "Logarithm to Base 2")                                                            \
    X(rsSinHint, "Sine of Value")                                                                  \
    X(rsCosHint, "Cosine of Value")                                                                \
    X(rsTanHint, "Tangent of Value")                                                               \
    X(rsInvHint, "Inverse Operation")                                                              \
    X(rsHypHint, "Hyperbolic Function")                                                            \
    X(rsPercentHint, "x Percent of y")                                                             \
    X(rsRadHint, "Radians or Degrees")                                                             \
    X(rsMODHint, "mod")                                                                            \
    X(rsANDHint, "and")                                                                            \
    X(rsORHint, "or")                                                                              \
    X(rsXORHint, "exclusive or")                                                                   \
    X(rsNANDHint, "not and")                                                                       \
    X(rsNORHint, "not or")                                                                         \
    X(rsXNORHint, "not exclusive or")                                                              \
    X(rsNOTHint, "not")                                                                            \
    X(rsNEGHint, "negate")                                                                         \
    X(rsSHLHint, "shift left")                                                                     \
    X(rsSHRHint, "shift right")                                                                    \
    X(rsROLHint, "rotate left")                                                                    \
    X(rsRORHint, "rotate right")                                                                   \
    X(rsBaseHint, "choose desired base")                                                           \
    X(rsBitsHint, "choose desired bit length")                                                     \
    X(rsExitHint, "Exit and Transfer Result")                                                      \
    X(rsCancelHint, "Exit and Do Not Transfer Result")                                             \
    X(rsCopyHint, "Copy Value to ClipBoard")                                                       \
    X(rsPasteHint, "Paste Value from Clipboard")                                                   \
    X(rsValueHint, "Value")                                                                        \
    X(rsMemoryHint, "Memory")                                                                      \
    X(rsDecimalsHint, "Decimal Places")                                                            \
    /* Edit controls: refused currency settings; rsCannot + maximum + rsDecimalPlaces */           \
    X(rsCurrencyFormat1,                                                                           \
      "The currency symbol can only be changed when the edit uses its own currency format")        \
    X(rsCurrencyFormat2,                                                                           \
      "The currency format can only be changed when the edit uses its own currency format")        \
    X(rsCurrencyFormat3,                                                                           \
      "The negative currency format can only be changed when the edit uses its own currency "      \
      "format")                                                                                    \
    X(rsCannot, "Cannot show more than ")                                                          \
    X(rsDecimalPlaces, " decimal places")

QORKIT_RS_CALC_TEXTS(QORKIT_CORE_DECLARE_TEXT)

// Every text of this module, in table order.
QORKIT_CORE_EXPORT std::span<const TResourceText> CalcTexts();

} // namespace qorkit

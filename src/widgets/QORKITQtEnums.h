// The library's enumerations as Qt meta-enums: QVariant, QMetaProperty, Qt Designer, .ui files
// and QML see their member names ("amRadians", "bd16Bits"...) instead of integers.
//
// The namespace qorkit has one meta-object, declared here. Enumerations of the standard-library
// targets (angle modes, programmer's bases, the unit enumerations...) stay declared where they
// are; moc is shown their member names in the Q_MOC_RUN block below, while the compiler sees the
// real declarations, so the values can never drift apart (a misspelled name fails to compile).
// Enumerations that only the Qt layer uses are declared in full in this header.
//
// A property of one of these types names it with its namespace, so that moc links the property
// to this meta-object:
//     Q_PROPERTY(qorkit::TQORAngleMode AngleMode READ GetAngleMode WRITE SetAngleMode
//                NOTIFY angleModeChanged)
#pragma once

#include "QORKITConversion.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QObject>

#include <cstdint>

namespace qorkit {
Q_NAMESPACE_EXPORT(QORKIT_WIDGETS_EXPORT)

// ---- Enumerations declared by the standard-library targets ------------------------------------

#ifdef Q_MOC_RUN
enum TQORAngleMode { amDegrees, amRadians, amGradians };
enum TQORBaseDisplay { bdBinary, bdDecimal, bdHexadecimal, bdOctal };
enum TQORBitSize { bs8Bits, bs16Bits, bs32Bits, bs64Bits };
enum TQORProgSpacing { psNoSpacing, psByte, psWord, psDWord };
enum TQORProgSizeChange { pscClear, pscTruncate, pscExtend };
enum TQORRegIniType { ritNone, ritRegistry, ritIniFile };
enum TQORTimeTypes { ttUniversal, ttGreenwichSidereal, ttLocalSidereal };
enum TQORCalcGlyphType { cgtCalculator, cgtSmallCalculator, cgtEllipsis };
enum TQORDMSType { dmsDegrees, dmsDegreesMinutes, dmsDegreesMinutesSeconds };
enum TQORConvType { QORKIT_UC_CONV_NAMES(QORKIT_UC_ENUM_MEMBER) };
#define QORKIT_QT_UNIT_ENUM(quantity, stem, names, table, family, array)                           \
    enum TQOR##stem##Type {names(QORKIT_UC_ENUM_MEMBER)};                                          \
    Q_ENUM_NS(TQOR##stem##Type)
QORKIT_QUANTITY_LIST(QORKIT_QT_UNIT_ENUM)
#undef QORKIT_QT_UNIT_ENUM
#else
#define QORKIT_QT_UNIT_ENUM(quantity, stem, names, table, family, array) Q_ENUM_NS(TQOR##stem##Type)
QORKIT_QUANTITY_LIST(QORKIT_QT_UNIT_ENUM)
#undef QORKIT_QT_UNIT_ENUM
#endif
Q_ENUM_NS(TQORAngleMode)
Q_ENUM_NS(TQORBaseDisplay)
Q_ENUM_NS(TQORBitSize)
Q_ENUM_NS(TQORProgSpacing)
Q_ENUM_NS(TQORProgSizeChange)
Q_ENUM_NS(TQORRegIniType)
Q_ENUM_NS(TQORTimeTypes)
Q_ENUM_NS(TQORCalcGlyphType)
Q_ENUM_NS(TQORDMSType)
Q_ENUM_NS(TQORConvType)

// ---- Enumerations of the Qt layer --------------------------------------------------------------
// (Declared here in full: a header with properties of these types includes this one.)

// Grouping character of a float edit when CustomSeparators is off.
enum TQORThousandSeparators : std::uint8_t {
    tsLocale = 0, // the locale's thousands separator
    tsSpace = 1, // a blank: 1 234 567
    tsApostrophe = 2, // 1'234'567
};
Q_ENUM_NS(TQORThousandSeparators)

// The states an edit can show. An invalid colour means "the style's own colour".
enum TQOREditState : std::uint8_t {
    esNormal = 0,
    esFocused = 1,
    esReadOnly = 2,
    esDisabled = 3,
    esNull = 4,
    esNegative = 5, // a negative value; only its text colour is used
    esError = 6, // the last text could not be taken over
};
Q_ENUM_NS(TQOREditState)

// Which of a TQORUICtrl's settings a control takes.
enum TQORUIUsage : std::uint8_t {
    uiOwn = 0, // none: the control's own colour set and switches
    uiColors = 1, // the colour set
    uiAll = 2, // the colour set, the flat look and auto-selection
};
Q_ENUM_NS(TQORUIUsage)

// Where a spin edit's arrows sit.
enum TQORSpinArrows : std::uint8_t {
    saUpDown = 0, // stacked at the right edge
    saLeftRight = 1, // side by side at the right edge, "down" on the left
    saNone = 2, // hidden: the keyboard still steps
};
Q_ENUM_NS(TQORSpinArrows)

enum TQORComboStyle : std::uint8_t {
    csDropDown = 0, // the text can be typed
    csDropDownList = 1, // only the list's items can be chosen
};
Q_ENUM_NS(TQORComboStyle)

// What a union-currency combo box lists and shows.
enum TQOREMUFormatType : std::uint8_t {
    efNumber = 0, // the currency numbers 1 to 12
    efCode = 1, // the currency codes
    efCountry = 2, // the country texts
};
Q_ENUM_NS(TQOREMUFormatType)

enum TQORBevel : std::uint8_t { bvNone = 0, bvLowered = 1, bvRaised = 2 };
Q_ENUM_NS(TQORBevel)

// Where a dialog opens when it is not placed explicitly.
enum TQORFormPosition : std::uint8_t {
    poDesigned = 0, // where the form was laid out (its present left and top)
    poDefault = 1, // where the window system puts new windows
    poScreenCenter = 2, // centred on the screen
    poMainFormCenter = 3, // centred on the window that opened it (else the active window)
};
Q_ENUM_NS(TQORFormPosition)

// Where a currency edit takes its currency symbol and symbol positions from.
enum TQORCurrencyFormatType : std::uint8_t {
    cftRegional = 0, // the process-wide format settings (symbol and positions)
    cftLocale = 1, // the symbol of the edit's QLocale, the positions of the format settings
    cftCustom = 2, // the edit's own CurrencyStr, CurrencyFormat and NegativeFormat
};
Q_ENUM_NS(TQORCurrencyFormatType)

// Position of the currency symbol in a positive amount ("$" stands for the symbol).
enum TCurrencyFormatType : std::uint8_t {
    cfSymbolNumber = 0, // $1
    cfNumberSymbol = 1, // 1$
    cfSymbolSpaceNumber = 2, // $ 1
    cfNumberSpaceSymbol = 3, // 1 $
};
Q_ENUM_NS(TCurrencyFormatType)

// Position of the symbol and the sign in a negative amount.
enum TNegativeFormatType : std::uint8_t {
    nfParenSymbolNumber = 0, // ($1)
    nfMinusSymbolNumber = 1, // -$1
    nfSymbolMinusNumber = 2, // $-1
    nfSymbolNumberMinus = 3, // $1-
    nfParenNumberSymbol = 4, // (1$)
    nfMinusNumberSymbol = 5, // -1$
    nfNumberMinusSymbol = 6, // 1-$
    nfNumberSymbolMinus = 7, // 1$-
    nfMinusNumberSpaceSymbol = 8, // -1 $
    nfMinusSymbolSpaceNumber = 9, // -$ 1
    nfNumberSpaceSymbolMinus = 10, // 1 $-
    nfSymbolSpaceNumberMinus = 11, // $ 1-
    nfSymbolSpaceMinusNumber = 12, // $ -1
    nfNumberMinusSpaceSymbol = 13, // 1- $
    nfParenSymbolSpaceNumber = 14, // ($ 1)
    nfParenNumberSpaceSymbol = 15, // (1 $)
};
Q_ENUM_NS(TNegativeFormatType)

// How an expression edit evaluates its text: digits, operators and "pi" only, or the full
// expression language with named functions, memory words and the exponent.
enum TQORExpressionType : std::uint8_t { etSimple = 0, etFull = 1 };
Q_ENUM_NS(TQORExpressionType)

// What an expression edit shows: while the user edits it and when it is left.
enum TQORExpressionDisplay : std::uint8_t {
    edExpressionWhileEditing = 0, // the expression while editing, the formatted value otherwise
    edValue = 1, // the value always (typing replaces the expression)
    edExpression = 2, // the expression always
};
Q_ENUM_NS(TQORExpressionDisplay)

// The two numbers a complex edit shows.
enum TQORComplexType : std::uint8_t {
    ctRealImaginary = 0, // the real and the imaginary part
    ctPolar = 1, // the modulus and the amplitude (radians)
};
Q_ENUM_NS(TQORComplexType)

} // namespace qorkit

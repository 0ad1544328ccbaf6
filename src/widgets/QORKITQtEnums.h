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

} // namespace qorkit

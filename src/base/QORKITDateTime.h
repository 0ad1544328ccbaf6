// Date-time values: a double counting days since 1899-12-30, the fraction is the time of day.
// Gregorian calendar throughout (proleptic before 1582).
//
// Before 1899-12-30 the classic rule applies: the day is the integer part truncated toward
// zero and the time of day is the fraction's absolute value, counted from the day's start.
// So -1.25 is 1899-12-29 06:00 and -0.5 is 1899-12-30 12:00; such a value is built as
// EncodeDate(...) - EncodeTime(...). A non-finite date-time raises EConvertError.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_base_export.h"

#include <cstdint>

namespace qorkit {

// Raises EConvertError (rsInvalidDate) for an impossible date (year 1..9999).
QORKIT_BASE_EXPORT TDateTime EncodeDate(int year, int month, int day);
// Raises EConvertError for hours > 23, minutes or seconds > 59, milliseconds > 999, or a
// negative part.
QORKIT_BASE_EXPORT TDateTime EncodeTime(int hour, int minute, int second, int millisecond);
// Raises EConvertError (rsInvalidDate) outside 0001-01-01 .. 9999-12-31.
QORKIT_BASE_EXPORT void DecodeDate(TDateTime dateTime, int& year, int& month, int& day);
// The time is rounded to the millisecond; one that would round up to midnight is given as
// 23:59:59.999, so that it stays on the day DecodeDate gives.
QORKIT_BASE_EXPORT void DecodeTime(TDateTime dateTime, int& hour, int& minute, int& second,
                                   int& millisecond);
// Year, month and day of a date-time as 32-bit integers (no range check of the result: years
// before 1 are astronomical, 0 is 1 BC). Only values whose year does not fit 32 bits raise.
QORKIT_BASE_EXPORT void OptDecodeDateI(TDateTime dateTime, std::int32_t& year, std::int32_t& month,
                                       std::int32_t& day);
// 1 for Sunday ... 7 for Saturday.
QORKIT_BASE_EXPORT int DayOfWeek(TDateTime dateTime);
// Day of week 1 = Sunday .. 7 = Saturday to ISO 1 = Monday .. 7 = Sunday; no range check.
QORKIT_BASE_EXPORT int DOW2ISODOWFast(int dayOfWeek) noexcept;
QORKIT_BASE_EXPORT bool IsLeapYear(int year) noexcept;
// The current local date and time.
QORKIT_BASE_EXPORT TDateTime Now();

} // namespace qorkit

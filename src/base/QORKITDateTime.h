// Date-time values: a double counting days since 1899-12-30, the fraction is the time of day.
// Gregorian calendar throughout (proleptic before 1582).
#pragma once

#include <cstdint>

#include "QORKITTypes.h"

namespace qorkit {

// Raises EConvertError (rsInvalidDate) for an impossible date (year 1..9999).
TDateTime EncodeDate(int year, int month, int day);
// Raises EConvertError for hours > 23, minutes or seconds > 59, milliseconds > 999.
TDateTime EncodeTime(int hour, int minute, int second, int millisecond);
void DecodeDate(TDateTime dateTime, int& year, int& month, int& day);
void DecodeTime(TDateTime dateTime, int& hour, int& minute, int& second, int& millisecond);
// Year, month and day of a date-time as 32-bit integers (no range check of the result).
void OptDecodeDateI(TDateTime dateTime, std::int32_t& year, std::int32_t& month,
                    std::int32_t& day);
// 1 for Sunday ... 7 for Saturday.
int DayOfWeek(TDateTime dateTime);
// Day of week 1 = Sunday .. 7 = Saturday to ISO 1 = Monday .. 7 = Sunday.
int DOW2ISODOWFast(int dayOfWeek) noexcept;
bool IsLeapYear(int year) noexcept;
// The current local date and time.
TDateTime Now();

} // namespace qorkit

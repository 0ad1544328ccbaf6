#include "QORKITDateTime.h"

#include "QORKITExceptions.h"
#include "QORKITResource.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace qorkit {

namespace {

constexpr std::int64_t MSecsPerDay = 86400000;

// Day 0 of a date-time, 1899-12-30, counted from 1970-01-01.
constexpr std::int64_t DateTimeEpoch = -25569;

// Dates that DecodeDate accepts: 0001-01-01 up to 9999-12-31.
constexpr std::int64_t FirstDay = -693593;
constexpr std::int64_t LastDay = 2958465;

// OptDecodeDateI works on any day whose year fits 32 bits (about +-2 * 10^9 years).
constexpr double OptDayLimit = 7.0e11;

[[noreturn]] void RaiseInvalidDate() { throw EConvertError(rsInvalidDate()); }

// Proleptic Gregorian calendar on 400-year eras of 146097 days; exact for every int64 year
// the callers pass. Days are counted from 1970-01-01.
std::int64_t DaysFromCivil(std::int64_t year, unsigned month, unsigned day)
{
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const auto yearOfEra = static_cast<unsigned>(year - era * 400);
    const unsigned dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const unsigned dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + static_cast<std::int64_t>(dayOfEra) - 719468;
}

struct CivilDate {
    std::int64_t Year;
    unsigned Month;
    unsigned Day;
};

CivilDate CivilFromDays(std::int64_t days)
{
    days += 719468;
    const std::int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const auto dayOfEra = static_cast<unsigned>(days - era * 146097);
    const unsigned yearOfEra
        = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const unsigned mp = (5 * dayOfYear + 2) / 153;
    const unsigned day = dayOfYear - (153 * mp + 2) / 5 + 1;
    const unsigned month = mp < 10 ? mp + 3 : mp - 9;
    const std::int64_t year = static_cast<std::int64_t>(yearOfEra) + era * 400;
    return {year + (month <= 2 ? 1 : 0), month, day};
}

int DaysInMonth(int year, int month)
{
    static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : days[month - 1];
}

// The day of a date-time is its integer part, truncated toward zero: -1.25 is day -1
// (1899-12-29) at 06:00, and -0.5 is day 0 (1899-12-30) at 12:00. See DecodeTime.
std::int64_t DayOf(TDateTime dateTime, double limit)
{
    if (!std::isfinite(dateTime) || std::fabs(dateTime) >= limit)
        RaiseInvalidDate();
    return static_cast<std::int64_t>(std::trunc(dateTime));
}

std::int64_t CheckedDay(TDateTime dateTime)
{
    const std::int64_t day = DayOf(dateTime, OptDayLimit);
    if (day < FirstDay || day > LastDay)
        RaiseInvalidDate();
    return day;
}

} // namespace

bool IsLeapYear(int year) noexcept { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

TDateTime EncodeDate(int year, int month, int day)
{
    if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1
        || day > DaysInMonth(year, month))
        RaiseInvalidDate();
    return static_cast<TDateTime>(
        DaysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day))
        - DateTimeEpoch);
}

TDateTime EncodeTime(int hour, int minute, int second, int millisecond)
{
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59
        || millisecond < 0 || millisecond > 999)
        throw EConvertError(rsOutOfDomain());
    const std::int64_t ms
        = ((static_cast<std::int64_t>(hour) * 60 + minute) * 60 + second) * 1000 + millisecond;
    return static_cast<TDateTime>(ms) / static_cast<TDateTime>(MSecsPerDay);
}

void DecodeDate(TDateTime dateTime, int& year, int& month, int& day)
{
    const CivilDate date = CivilFromDays(CheckedDay(dateTime) + DateTimeEpoch);
    year = static_cast<int>(date.Year);
    month = static_cast<int>(date.Month);
    day = static_cast<int>(date.Day);
}

// The time of day is the fraction's absolute value, so a negative date-time counts its time
// from the start of its day, like a positive one: -1.25 is 06:00, not 18:00. (A date-time
// before 1899-12-30 with a time is therefore built as EncodeDate(...) - EncodeTime(...).)
// The fraction is rounded to the millisecond; a time that would round up to midnight is given
// as 23:59:59.999, so that it stays on the day DecodeDate gives.
void DecodeTime(TDateTime dateTime, int& hour, int& minute, int& second, int& millisecond)
{
    const std::int64_t day = DayOf(dateTime, OptDayLimit);
    const double fraction = std::fabs(dateTime - static_cast<double>(day));
    std::int64_t ms = std::llround(fraction * static_cast<double>(MSecsPerDay));
    if (ms >= MSecsPerDay)
        ms = MSecsPerDay - 1;
    millisecond = static_cast<int>(ms % 1000);
    second = static_cast<int>(ms / 1000 % 60);
    minute = static_cast<int>(ms / 60000 % 60);
    hour = static_cast<int>(ms / 3600000);
}

void OptDecodeDateI(TDateTime dateTime, std::int32_t& year, std::int32_t& month, std::int32_t& day)
{
    // Any finite date-time, also before year 1 (astronomical years: 0 is 1 BC).
    const CivilDate date = CivilFromDays(DayOf(dateTime, OptDayLimit) + DateTimeEpoch);
    year = static_cast<std::int32_t>(date.Year);
    month = static_cast<std::int32_t>(date.Month);
    day = static_cast<std::int32_t>(date.Day);
}

int DayOfWeek(TDateTime dateTime)
{
    // Day 0, 1899-12-30, was a Saturday (7).
    const std::int64_t day = DayOf(dateTime, OptDayLimit);
    return static_cast<int>(((day + 6) % 7 + 7) % 7) + 1;
}

// No range check, as the name says: 1 (Sunday) becomes 7, every other value goes down by one.
int DOW2ISODOWFast(int dayOfWeek) noexcept { return dayOfWeek == 1 ? 7 : dayOfWeek - 1; }

TDateTime Now()
{
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    std::tm local {};
#ifdef _WIN32
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    const auto ms = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
    return EncodeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday)
        + EncodeTime(local.tm_hour, local.tm_min, local.tm_sec > 59 ? 59 : local.tm_sec,
                     static_cast<int>(ms < 0 ? ms + 1000 : ms));
}

} // namespace qorkit

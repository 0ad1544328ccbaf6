#include "QORKITDateTime.h"
#include "QORKITExceptions.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

namespace qorkit {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Serials and weekdays from an independent calendar (proleptic Gregorian ordinal day counts,
// shifted so that 1899-12-30 is 0).
struct DateRow {
    const char* Name;
    int Year, Month, Day;
    double Serial;
    int Weekday; // 1 Sunday .. 7 Saturday
};

class DateTimeCalendar : public ::testing::TestWithParam<DateRow> { };

TEST_P(DateTimeCalendar, EncodesDecodesAndNamesTheWeekday)
{
    const DateRow& r = GetParam();
    EXPECT_EQ(EncodeDate(r.Year, r.Month, r.Day), r.Serial);
    // 18:00 of the day; before day 0 the time is counted away from zero.
    const TDateTime evening = r.Serial < 0 ? r.Serial - 0.75 : r.Serial + 0.75;
    int y = 0, m = 0, d = 0;
    DecodeDate(evening, y, m, d);
    EXPECT_EQ((std::array {y, m, d}), (std::array {r.Year, r.Month, r.Day}));
    std::int32_t oy = 0, om = 0, od = 0;
    OptDecodeDateI(evening, oy, om, od);
    EXPECT_EQ((std::array {oy, om, od}), (std::array {r.Year, r.Month, r.Day}));
    EXPECT_EQ(DayOfWeek(evening), r.Weekday);
}

INSTANTIATE_TEST_SUITE_P(KnownDays, DateTimeCalendar,
                         ::testing::Values(DateRow {"DayZero", 1899, 12, 30, 0, 7},
                                           DateRow {"NoLeapDayIn1900", 1900, 3, 1, 61, 5},
                                           DateRow {"Millennium", 2000, 1, 1, 36526, 7},
                                           DateRow {"LeapDay2024", 2024, 2, 29, 45351, 5},
                                           DateRow {"GregorianStart", 1582, 10, 15, -115858, 6},
                                           DateRow {"NegativeWeek", 1899, 12, 24, -6, 1},
                                           DateRow {"FirstDay", 1, 1, 1, -693593, 2},
                                           DateRow {"LastDay", 9999, 12, 31, 2958465, 6}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(DateTimeCalendarRange, EveryDayRoundTripsAndFollowsTheLastOne)
{
    int prevYear = 0, prevMonth = 12, prevDay = 31;
    for (double serial = -693593; serial <= 2958465; ++serial) {
        int y = 0, m = 0, d = 0;
        DecodeDate(serial, y, m, d);
        const bool nextDay = y == prevYear && m == prevMonth && d == prevDay + 1;
        const bool nextMonth = y == prevYear && m == prevMonth + 1 && d == 1;
        const bool nextYear = y == prevYear + 1 && m == 1 && d == 1 && prevMonth == 12;
        ASSERT_TRUE(nextDay || nextMonth || nextYear) << serial;
        ASSERT_EQ(EncodeDate(y, m, d), serial);
        ASSERT_EQ(IsLeapYear(y), EncodeDate(y, 12, 31) - EncodeDate(y, 1, 1) == 365);
        prevYear = y;
        prevMonth = m;
        prevDay = d;
    }
}

TEST(DateTimeCalendarRange, ImpossibleDatesAreRejected)
{
    const int bad[][3] = {{0, 12, 31},   {10000, 1, 1}, {2023, 2, 29}, {1900, 2, 29},
                          {2024, 4, 31}, {2024, 13, 1}, {2024, 1, 0}};
    for (const auto& date : bad)
        EXPECT_THROW(EncodeDate(date[0], date[1], date[2]), EConvertError) << date[0];
    int y = 0, m = 0, d = 0;
    EXPECT_THROW(DecodeDate(-693594, y, m, d), EConvertError);
    EXPECT_THROW(DecodeDate(2958466, y, m, d), EConvertError);
    EXPECT_THROW(DecodeDate(kNaN, y, m, d), EConvertError);
    EXPECT_THROW(DayOfWeek(std::numeric_limits<double>::infinity()), EConvertError);
}

TEST(DateTimeOptDecode, DatesBeforeYearOne)
{
    std::int32_t y = 0, m = 0, d = 0;
    // Julian day 0.5 is 25 November 4714 BC (astronomical year -4713) at midnight.
    OptDecodeDateI(0.5 - 2415018.5, y, m, d);
    EXPECT_EQ((std::array {y, m, d}), (std::array {-4713, 11, 25}));
    OptDecodeDateI(-693594, y, m, d); // the day before 0001-01-01
    EXPECT_EQ((std::array {y, m, d}), (std::array {0, 12, 31}));
    EXPECT_THROW(OptDecodeDateI(kNaN, y, m, d), EConvertError);
    EXPECT_THROW(OptDecodeDateI(1e300, y, m, d), EConvertError);
}

// ---- Times -------------------------------------------------------------------------------------

struct TimeRow {
    const char* Name;
    double DateTime;
    std::array<int, 4> Time; // hours, minutes, seconds, milliseconds
};

class DateTimeTimeOfDay : public ::testing::TestWithParam<TimeRow> { };

TEST_P(DateTimeTimeOfDay, DecodesTheFraction)
{
    std::array<int, 4> t {-1, -1, -1, -1};
    DecodeTime(GetParam().DateTime, t[0], t[1], t[2], t[3]);
    EXPECT_EQ(t, GetParam().Time);
}

INSTANTIATE_TEST_SUITE_P(
    Fractions, DateTimeTimeOfDay,
    ::testing::Values(TimeRow {"Noon", 36526.5, {12, 0, 0, 0}},
                      TimeRow {"ThirdOfADay", 1.0 / 3, {8, 0, 0, 0}},
                      TimeRow {"OneMillisecond", 1.0 / 86400000, {0, 0, 0, 1}},
                      TimeRow {"NegativeCountsFromDayStart", -1.25, {6, 0, 0, 0}},
                      TimeRow {"NegativeUnderOneDay", -0.5, {12, 0, 0, 0}},
                      TimeRow {"JustBeforeMidnightStays", 10.9999999999, {23, 59, 59, 999}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(DateTimeTimes, EncodeTimeAndNegativeDateTimes)
{
    EXPECT_EQ(EncodeTime(6, 0, 0, 0), 0.25);
    for (const auto& bad : {std::array {24, 0, 0, 0}, std::array {0, 60, 0, 0},
                            std::array {0, 0, 0, 1000}, std::array {-1, 0, 0, 0}})
        EXPECT_THROW(EncodeTime(bad[0], bad[1], bad[2], bad[3]), EConvertError);
    // Before day 0 the time is subtracted: 1899-12-29 06:00 is -1.25.
    EXPECT_EQ(EncodeDate(1899, 12, 29) - EncodeTime(6, 0, 0, 0), -1.25);
    int y = 0, m = 0, d = 0;
    DecodeDate(-0.5, y, m, d); // -0.5 lies on day 0 itself
    EXPECT_EQ(d, 30);
}

TEST(DateTimeWeekdays, IsoNumbering)
{
    const int iso[] = {0, 7, 1, 2, 3, 4, 5, 6}; // index: 1 Sunday .. 7 Saturday
    for (int dow = 1; dow <= 7; ++dow)
        EXPECT_EQ(DOW2ISODOWFast(dow), iso[dow]) << dow;
}

} // namespace
} // namespace qorkit

// The arithmetic of dates, durations and decimals, without Python.
#include "args/datetime_arg_builder.h"
#include "args/decimal_arg_in_builder.h"
#include "args/decimal_arg_out_builder.h"
#include "args/ten_pow.h"
#include "args/timespan_arg_builder.h"

#include <gtest/gtest.h>
#include <string>

namespace {

DateTimeArgBuilder date(int year, int month, int day) {
    DateTimeArgBuilder builder;
    builder.year = year;
    builder.month = month;
    builder.day = day;
    return builder;
}

struct DecimalWords {
    std::uint32_t words[4];
    bool fits;
};

// Feeds digits nine at a time, as the converter does.
DecimalWords build(const std::string& digits, long exponent, int sign = 0, int stop_digit = -1) {
    DecimalWords built{};
    DecimalArgOutBuilder builder(built.words);
    builder.begin_accept_decimal(sign, exponent, stop_digit);
    for (size_t i = 0; i < digits.size(); i += 9) {
        const std::string group = digits.substr(i, 9);
        builder.accept_decimal_mantissa(std::stoul(group), static_cast<int>(group.size()));
    }
    built.fits = builder.end_accept_decimal();
    return built;
}

std::string digits_of(DecimalWords built) {
    const DecimalArgInBuilder builder(built.words);
    std::string text = builder.sign() != 0 ? "-" : "";
    for (int i = 0; i < builder.mantissa_length(); ++i) {
        text += static_cast<char>('0' + builder.mantissa_cbegin()[i]);
    }
    return text + "e-" + std::to_string(builder.exponent());
}

} // namespace

TEST(Dates, EveryDayOfTheCalendarComesBack) {
    long expected = 0;
    for (int year = 1; year <= 9999; ++year) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= 31; ++day) {
                long value = -1;
                const DateTimeArgBuilder in = date(year, month, day);
                if (!in.to_ticks(value)) {
                    ASSERT_GT(day, 28);
                    continue;
                }
                ASSERT_EQ(value, expected) << year << "-" << month << "-" << day;
                const DateTimeArgBuilder out(value);
                ASSERT_TRUE(out.year == year && out.month == month && out.day == day)
                    << year << "-" << month << "-" << day;
                expected += ticks::per_day;
            }
        }
    }
    EXPECT_EQ(expected - 1, ticks::max_datetime);
}

TEST(Dates, RefuseWhatIsNoDate) {
    long value = 0;
    for (const DateTimeArgBuilder& bad :
         {date(0, 1, 1), date(10000, 1, 1), date(2000, 13, 1), date(2000, 0, 1), date(1900, 2, 29),
          date(2001, 4, 31), date(2000, 1, 0)}) {
        EXPECT_FALSE(bad.to_ticks(value)) << bad.year << "-" << bad.month << "-" << bad.day;
    }
    EXPECT_TRUE(date(2000, 2, 29).to_ticks(value));
}

TEST(Dates, ZonesShiftDatesAndWrapTimes) {
    long value = 0;
    EXPECT_FALSE(date(1, 1, 1).to_utc_ticks(ticks::per_hour, value)) << "before the first tick";
    DateTimeArgBuilder last = date(9999, 12, 31);
    last.hour = 23;
    EXPECT_FALSE(last.to_utc_ticks(-2 * ticks::per_hour, value)) << "behind the last";
    DateTimeArgBuilder early;
    early.kind = static_cast<int>(DateTimeKind::utc);
    early.minute = 30;
    early.to_time_ticks(ticks::per_hour, value);
    const DateTimeArgBuilder wrapped(value);
    EXPECT_TRUE(wrapped.kind == 1 && wrapped.hour == 23 && wrapped.minute == 30);
    DateTimeArgBuilder leap = date(2016, 12, 31);
    leap.second = 60;
    EXPECT_TRUE(leap.to_ticks(value));
    EXPECT_EQ(DateTimeArgBuilder(value).second, 59) << "a leap second stays in its minute";
}

TEST(Durations, CrossWithTheirSignAndStopAtTheirEnds) {
    const struct {
        int days, seconds, microseconds;
        bool fits;
        long ticks;
    } rows[] = {
        {0, 0, 1, true, 10},
        {-1, 1, 0, true, -863990000000},
        {10675199, 10085, 477580, true, 9223372036854775800},
        {10675199, 10085, 477581, false, 0},
        {-10675200, 76314, 522420, true, -9223372036854775800},
        {-10675200, 76314, 522419, false, 0},
        {999999999, 86399, 999999, false, 0},
    };
    for (const auto& row : rows) {
        TimeSpanArgBuilder span;
        span.days = row.days;
        span.seconds = row.seconds;
        span.microseconds = row.microseconds;
        long value = 0;
        ASSERT_EQ(span.to_ticks(value), row.fits) << row.days;
        EXPECT_EQ(value, row.ticks) << row.days;
    }
    const TimeSpanArgBuilder back(-863990000000);
    EXPECT_TRUE(back.days == 0 && back.seconds == -86399 && back.microseconds == 0);
}

TEST(Decimals, KeepDigitsScaleAndSign) {
    EXPECT_EQ(digits_of(build("110", -2)), "110e-2");
    EXPECT_EQ(digits_of(build("5", 0, 1)), "-5e-0");
    EXPECT_EQ(digits_of(build("1", 3)), "1000e-0");
    EXPECT_EQ(digits_of(build("0", -2, 1)), "0e-0") << "zero keeps neither sign nor scale";
    EXPECT_EQ(digits_of(build("79228162514264337593543950335", 0)),
              "79228162514264337593543950335e-0");
    EXPECT_FALSE(build("79228162514264337593543950336", 0).fits);
    EXPECT_FALSE(build("1", 100).fits);
    EXPECT_TRUE(build("0", 1000000000).fits);
}

TEST(Decimals, GiveUpAFractionDigitWhereTheMantissaWouldNotFit) {
    EXPECT_EQ(digits_of(build("79228162514264337593543950336", -28)),
              "7922816251426433759354395034e-27");
    EXPECT_EQ(digits_of(build("79228162514264337593543950335", -28)),
              "79228162514264337593543950335e-28");
    EXPECT_EQ(digits_of(build("99999999999999999999999999999", -28)),
              "10000000000000000000000000000e-27")
        << "the rounding carries through all digits";
}

TEST(Decimals, RoundTheDigitBehindTheLastHalfToEven) {
    const struct {
        const char* digits;
        const char* result;
    } rows[] = {{"05", "0e-0"}, {"15", "2e-28"}, {"25", "2e-28"}, {"09", "1e-28"}, {"06", "1e-28"}};
    for (const auto& row : rows) {
        EXPECT_EQ(digits_of(build(row.digits, -28, 0, 2)), row.result) << row.digits;
    }
}

TEST(Powers, OfTenAreExactInSixtyFourBits) {
    unsigned long expected = 1;
    for (unsigned long n = 0; n <= 19; ++n) {
        EXPECT_EQ(TenPow::pow(n), expected);
        expected *= 10;
    }
}

// args/datetime_arg_builder.h: calendar fields to ticks of 100 nanoseconds since 0001-01-01, and
// back. Days are counted in the proleptic Gregorian calendar, as both sides count them.
#ifndef KORVAN_ARGS_DATETIME_ARG_BUILDER_H
#define KORVAN_ARGS_DATETIME_ARG_BUILDER_H

#include <cstdint>

namespace ticks {
constexpr long per_microsecond = 10;
constexpr long per_second = 10000000;
constexpr long per_minute = 600000000;
constexpr long per_hour = 36000000000;
constexpr long per_day = 864000000000;
constexpr long max_datetime = 3155378975999999999;
} // namespace ticks

enum class DateTimeKind : std::int32_t { unspecified = 0, utc = 1, local = 2 };

struct DateTimeArgBuilder {
    std::int32_t kind = 0;
    std::int32_t year = 1;
    std::int32_t month = 1;
    std::int32_t day = 1;
    std::int32_t hour = 0;
    std::int32_t minute = 0;
    std::int32_t second = 0;
    std::int32_t microsecond = 0;

    DateTimeArgBuilder() = default;
    explicit DateTimeArgBuilder(long value) { from_ticks(value); }

    bool is_leap_year() const;
    // False for fields that are no date, or beyond the largest.
    bool to_ticks_non_kind(long& out) const;
    bool to_ticks(long& out) const;
    // Less the offset; false when the result leaves the range.
    bool to_utc_ticks(long offset, long& out) const;
    // A time of day less the offset, kept within one day.
    void to_time_ticks(long offset, long& out) const;
    // The kind goes into the two top bits.
    void add_shift(long& value) const;
    // What lies below a microsecond is dropped.
    void from_ticks(long value);
};

#endif

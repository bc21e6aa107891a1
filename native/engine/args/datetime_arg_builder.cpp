#include "args/datetime_arg_builder.h"

namespace {

constexpr int m_days_to_month365[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
constexpr int m_days_to_month366[] = {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335, 366};
constexpr long days_in_400_years = 146097;
constexpr long days_in_100_years = 36524;
constexpr long days_in_4_years = 1461;
constexpr long days_in_year = 365;
constexpr unsigned long tick_mask = 0x3FFFFFFFFFFFFFFF;

// A leap second stays inside its minute.
long second_ticks(int second) { return (second == 60 ? 59 : second) * ticks::per_second; }

// The fourth of four equal years, and of four centuries, is a day longer than its division says.
long at_most_3(long value) { return value == 4 ? 3 : value; }

} // namespace

bool DateTimeArgBuilder::is_leap_year() const {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

bool DateTimeArgBuilder::to_ticks_non_kind(long& out) const {
    if (year < 1 || year > 9999 || month < 1 || month > 12) {
        return false;
    }
    const int* table = is_leap_year() ? m_days_to_month366 : m_days_to_month365;
    if (day < 1 || day > table[month] - table[month - 1]) {
        return false;
    }
    const long y = year - 1;
    const long days = y * 365 + y / 4 - y / 100 + y / 400 + table[month - 1] + day - 1;
    out = days * ticks::per_day + hour * ticks::per_hour + minute * ticks::per_minute +
          second_ticks(second) + microsecond * ticks::per_microsecond;
    return out <= ticks::max_datetime;
}

void DateTimeArgBuilder::add_shift(long& value) const {
    value = static_cast<long>(static_cast<unsigned long>(value) |
                              (static_cast<unsigned long>(kind) << 62));
}

bool DateTimeArgBuilder::to_ticks(long& out) const {
    if (!to_ticks_non_kind(out)) {
        return false;
    }
    add_shift(out);
    return true;
}

bool DateTimeArgBuilder::to_utc_ticks(long offset, long& out) const {
    long local = 0;
    if (!to_ticks_non_kind(local) || local < offset || offset < local - ticks::max_datetime) {
        return false;
    }
    out = local - offset;
    add_shift(out);
    return true;
}

void DateTimeArgBuilder::to_time_ticks(long offset, long& out) const {
    long local = 0;
    to_ticks_non_kind(local);
    out = (ticks::per_day + local - offset % ticks::per_day) % ticks::per_day;
    add_shift(out);
}

void DateTimeArgBuilder::from_ticks(long value) {
    const auto bits = static_cast<unsigned long>(value);
    kind = static_cast<std::int32_t>(bits >> 62);
    const long count = static_cast<long>(bits & tick_mask);
    long n = count / ticks::per_day;
    const long y400 = n / days_in_400_years;
    n %= days_in_400_years;
    const long y100 = at_most_3(n / days_in_100_years);
    n -= y100 * days_in_100_years;
    const long y4 = n / days_in_4_years;
    n %= days_in_4_years;
    const long y1 = at_most_3(n / days_in_year);
    n -= y1 * days_in_year;
    year = static_cast<std::int32_t>(y400 * 400 + y100 * 100 + y4 * 4 + y1 + 1);

    const bool is_leap = y1 == 3 && (y4 != 24 || y100 == 3);
    const int* table = is_leap ? m_days_to_month366 : m_days_to_month365;
    month = static_cast<std::int32_t>((n >> 5) + 1); // never too late: no month has over 32 days
    while (n >= table[month]) {
        ++month;
    }
    day = static_cast<std::int32_t>(n - table[month - 1] + 1);
    hour = static_cast<std::int32_t>(count / ticks::per_hour % 24);
    minute = static_cast<std::int32_t>(count / ticks::per_minute % 60);
    second = static_cast<std::int32_t>(count / ticks::per_second % 60);
    microsecond = static_cast<std::int32_t>(count / ticks::per_microsecond % 1000000);
}

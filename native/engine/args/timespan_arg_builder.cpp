#include "args/timespan_arg_builder.h"

#include "args/datetime_arg_builder.h"

namespace {
constexpr long microseconds_per_second = 1000000;
constexpr long microseconds_per_day = 86400000000;
constexpr long seconds_per_day = 86400;
// The largest duration is 922337203685.477580 seconds and five ticks or so beyond.
constexpr long max_seconds = 922337203685;
constexpr long max_microseconds = 477580;
} // namespace

void TimeSpanArgBuilder::normalize() {
    days += 1;
    const long rest = seconds * microseconds_per_second + microseconds - microseconds_per_day;
    seconds = static_cast<std::int32_t>(rest / microseconds_per_second);
    microseconds = static_cast<std::int32_t>(rest % microseconds_per_second);
}

bool TimeSpanArgBuilder::is_overflow(long seconds, long microseconds) {
    if (seconds < -max_seconds || seconds > max_seconds) {
        return true;
    }
    if (seconds > -max_seconds && seconds < max_seconds) {
        return false;
    }
    return microseconds < -max_microseconds || microseconds > max_microseconds;
}

bool TimeSpanArgBuilder::to_ticks(long& out) {
    if (days < 0) {
        normalize();
    }
    const long total = days * seconds_per_day + seconds;
    if (is_overflow(total, microseconds)) {
        return false;
    }
    out = (total * microseconds_per_second + microseconds) * ticks::per_microsecond;
    return true;
}

void TimeSpanArgBuilder::from_ticks(long value) {
    days = static_cast<std::int32_t>(value / ticks::per_day);
    seconds = static_cast<std::int32_t>(value / ticks::per_second % seconds_per_day);
    microseconds =
        static_cast<std::int32_t>(value / ticks::per_microsecond % microseconds_per_second);
}

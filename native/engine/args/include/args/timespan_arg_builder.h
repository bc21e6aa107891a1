// args/timespan_arg_builder.h: durations in days, seconds and microseconds to ticks, and back.
#ifndef KORVAN_ARGS_TIMESPAN_ARG_BUILDER_H
#define KORVAN_ARGS_TIMESPAN_ARG_BUILDER_H

#include <cstdint>

struct TimeSpanArgBuilder {
    std::int32_t days = 0;
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;

    TimeSpanArgBuilder() = default;
    explicit TimeSpanArgBuilder(long value) { from_ticks(value); }

    // False when the duration is beyond 64 bits of ticks.
    bool to_ticks(long& out);
    void from_ticks(long value);
    static bool is_overflow(long seconds, long microseconds);
    // Gives all fields the sign of the whole; for negative days only.
    void normalize();
};

#endif

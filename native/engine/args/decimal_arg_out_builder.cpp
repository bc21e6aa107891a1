#include "args/decimal_arg_out_builder.h"

#include "args/ten_pow.h"

#include <bit>
#include <cmath>

namespace {

// The largest mantissa as its last two digits and, divided by 100, its words low to high.
constexpr std::uint32_t est_max_value[] = {35, 0x28F5C28F, 0xF5C28F5C, 0x028F5C28};
constexpr unsigned int billion = 1000000000;
constexpr int max_digits = 29;

} // namespace

DecimalArgOutBuilder::DecimalArgOutBuilder(std::uint32_t* words) : target(words) {
    target[0] = target[1] = target[2] = target[3] = 0;
}

void DecimalArgOutBuilder::begin_accept_decimal(int sign_bit, long long decimal_exponent,
                                                int last_digit) {
    sign = sign_bit;
    exponent = decimal_exponent;
    stop_digit = last_digit;
}

unsigned int DecimalArgOutBuilder::imul_and_add(unsigned int multiplier, unsigned int addend) {
    std::uint64_t carry = addend;
    for (int i = 0; i < 3; ++i) {
        carry += static_cast<std::uint64_t>(target[i]) * multiplier;
        target[i] = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
    overflow = overflow || carry != 0;
    return static_cast<unsigned int>(carry);
}

void DecimalArgOutBuilder::round_last(unsigned long& group, unsigned long limit) {
    const unsigned long dropped = group % 10;
    group /= 10;
    if (dropped > 5 || (dropped == 5 && (group & 1) != 0)) {
        group += 1;
    }
    if (group == limit) { // the carry leaves the group
        imul_and_add(1, 1);
        group = 0;
    }
}

bool DecimalArgOutBuilder::is_overflow_estimated(unsigned long group) const {
    for (int word = 3; word > 0; --word) {
        if (target[word - 1] != est_max_value[word]) {
            return target[word - 1] > est_max_value[word];
        }
    }
    return group > est_max_value[0];
}

void DecimalArgOutBuilder::accept_decimal_mantissa(unsigned long group, int digits) {
    unsigned long multiplier = TenPow::pow(static_cast<unsigned long>(digits));
    int count = digit_count + digits;
    if (count == stop_digit) {
        round_last(group, multiplier);
        count -= 1;
        multiplier /= 10;
    }
    digit_count = count;
    if (count == max_digits && exponent < 0 && is_overflow_estimated(group)) {
        // 29 digits would pass 96 bits, but a digit of the fraction can be given up.
        exponent += 1;
        round_last(group, 10);
        multiplier = 10;
    }
    imul_and_add(static_cast<unsigned int>(multiplier), static_cast<unsigned int>(group));
}

bool DecimalArgOutBuilder::is_zero() const {
    return target[0] == 0 && target[1] == 0 && target[2] == 0;
}

void DecimalArgOutBuilder::move_exponent_to_mantissa() {
    for (std::int64_t i = 0; i < exponent / 9 && !overflow; ++i) {
        imul_and_add(billion, 0);
    }
    if (exponent % 9 != 0) {
        imul_and_add(static_cast<unsigned int>(TenPow::pow(exponent % 9)), 0);
    }
}

bool DecimalArgOutBuilder::end_accept_decimal() {
    if (overflow) {
        return false;
    }
    if (is_zero()) { // zero keeps neither sign nor scale
        sign = 0;
        exponent = 0;
    } else if (exponent > 0) {
        move_exponent_to_mantissa();
        if (overflow) {
            return false;
        }
        exponent = 0;
    }
    target[3] =
        (static_cast<std::uint32_t>(sign) << 31) | (static_cast<std::uint32_t>(-exponent) << 16);
    return true;
}

int DecimalArgOutBuilder::accept_long(unsigned long long value, int sign_bit) {
    target[0] = static_cast<std::uint32_t>(value);
    target[1] = static_cast<std::uint32_t>(value >> 32);
    target[3] = static_cast<std::uint32_t>(sign_bit) << 31;
    return 1;
}

int DecimalArgOutBuilder::accept_double(double value) {
    if (std::isnan(value)) {
        return -1;
    }
    const auto bits = std::bit_cast<std::uint64_t>(value);
    target[0] = static_cast<std::uint32_t>(bits);
    target[1] = static_cast<std::uint32_t>(bits >> 32);
    if (static_cast<int>(bits >> 52 & 0x7FF) - 1022 > 96) {
        return 1;
    }
    target[3] = 1;
    return 0;
}

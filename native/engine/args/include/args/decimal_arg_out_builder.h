// args/decimal_arg_out_builder.h: decimal digits to the managed form of four words: 96 bits of
// mantissa, low word first, then the flags (scale in bits 16 to 23, sign in bit 31).
#ifndef KORVAN_ARGS_DECIMAL_ARG_OUT_BUILDER_H
#define KORVAN_ARGS_DECIMAL_ARG_OUT_BUILDER_H

#include <cstdint>

class DecimalArgOutBuilder {
public:
    explicit DecimalArgOutBuilder(std::uint32_t* words);

    // `last_digit` is the count of digits at which the last one is rounded away; -1 for none.
    void begin_accept_decimal(int sign_bit, long long decimal_exponent, int last_digit);
    // The next digits, most significant first, as one number.
    void accept_decimal_mantissa(unsigned long group, int digits);
    // False when the value does not fit.
    bool end_accept_decimal();

    bool is_overflow_estimated(unsigned long group) const;
    bool is_zero() const;
    // mantissa = mantissa * multiplier + addend; returns the carry out of the top word.
    unsigned int imul_and_add(unsigned int multiplier, unsigned int addend);
    // Rounds away the last digit of `group`, half to even. Digits behind it were never looked at,
    // and managed values made by earlier versions depend on that.
    void round_last(unsigned long& group, unsigned long limit);
    void move_exponent_to_mantissa();
    int accept_long(unsigned long long value, int sign_bit);
    int accept_double(double value);

private:
    std::uint32_t* target;
    bool overflow = false;
    std::int32_t stop_digit = -1;
    std::int64_t exponent = 0;
    std::int32_t sign = 0;
    std::int32_t digit_count = 0;
};

#endif

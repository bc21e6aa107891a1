// args/decimal_arg_in_builder.h: the managed form of a decimal to its digits.
#ifndef KORVAN_ARGS_DECIMAL_ARG_IN_BUILDER_H
#define KORVAN_ARGS_DECIMAL_ARG_IN_BUILDER_H

#include <cstdint>

class DecimalArgInBuilder {
public:
    // Consumes the mantissa: its three words read as zero afterwards.
    explicit DecimalArgInBuilder(std::uint32_t* words) : source(words) { assign(); }

    void assign();
    const unsigned char* mantissa_cbegin() const { return digits; }
    int mantissa_length() const { return length; }
    int exponent() const { return scale; }
    int sign() const { return sign_bit; }

private:
    std::uint32_t* source;
    unsigned char digits[32]; // one a byte, most significant first
    std::int32_t length = 0;
    std::int32_t scale = 0;
    std::int32_t sign_bit = 0;
};

#endif

#include "args/decimal_arg_in_builder.h"

#include <algorithm>

// Divides the mantissa by ten in place and returns the remainder.
static unsigned int divide_by_ten(std::uint32_t* words) {
    std::uint64_t remainder = 0;
    for (int i = 2; i >= 0; --i) {
        const std::uint64_t part = remainder << 32 | words[i];
        words[i] = static_cast<std::uint32_t>(part / 10);
        remainder = part % 10;
    }
    return static_cast<unsigned int>(remainder);
}

void DecimalArgInBuilder::assign() {
    length = 0;
    do {
        digits[length++] = static_cast<unsigned char>(divide_by_ten(source));
    } while ((source[0] | source[1] | source[2]) != 0);
    std::reverse(digits, digits + length);
    scale = static_cast<std::int32_t>(source[3] >> 16 & 0xFF);
    sign_bit = static_cast<std::int32_t>(source[3]) < 0 ? 1 : 0;
}

// args/ten_pow.h: powers of ten in 64 bits.
#ifndef KORVAN_ARGS_TEN_POW_H
#define KORVAN_ARGS_TEN_POW_H

struct TenPow {
    // By repeated squaring, with no check of overflow: n is at most 19.
    static constexpr unsigned long pow(unsigned long n) {
        unsigned long result = 1;
        for (unsigned long base = 10; n != 0; n >>= 1, base *= base) {
            if ((n & 1) != 0) {
                result *= base;
            }
        }
        return result;
    }
};

#endif

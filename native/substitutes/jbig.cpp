// Stands in the wheel for the library of JBIG images, whose licence would apply to all of the
// wheel. The TIFF library can't be loaded without it, and takes each call's failure for that of the
// strip that it reads.

#include <cstddef>

namespace {

constexpr int not_implemented = 7 << 4;

} // namespace

#define KORVAN_EXPORT extern "C" __attribute__((visibility("default")))

KORVAN_EXPORT void jbg_newlen(unsigned char*, std::size_t) {}
KORVAN_EXPORT void jbg_dec_init(void*) {}
KORVAN_EXPORT int jbg_dec_in(void*, unsigned char*, std::size_t, std::size_t*) {
    return not_implemented;
}
KORVAN_EXPORT unsigned long jbg_dec_getsize(const void*) { return 0; }
KORVAN_EXPORT unsigned char* jbg_dec_getimage(const void*, int) { return nullptr; }
KORVAN_EXPORT void jbg_dec_free(void*) {}
KORVAN_EXPORT const char* jbg_strerror(int) {
    return "images compressed by JBIG are not supported";
}
KORVAN_EXPORT void jbg_enc_init(void*, unsigned long, unsigned long, int, unsigned char**,
                                void (*)(unsigned char*, std::size_t, void*), void*) {}
KORVAN_EXPORT void jbg_enc_out(void*) {}
KORVAN_EXPORT void jbg_enc_free(void*) {}

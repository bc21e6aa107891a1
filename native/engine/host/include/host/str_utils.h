// host/str_utils.h: string helpers of the host layer.
#ifndef KORVAN_HOST_STR_UTILS_H
#define KORVAN_HOST_STR_UTILS_H

#include <string>

// At most `count` characters from `start`, which must not lie behind the end; the result ends at
// the first NUL of that stretch.
std::string cxxaw_substr(const std::string& text, size_t start, size_t count);
// Not empty, and only the characters 0 to 9.
bool cxxaw_isdigitstr(const std::string& text);

#endif

#include "host/str_utils.h"

#include <algorithm>
#include <cstring>

std::string cxxaw_substr(const std::string& text, size_t start, size_t count) {
    const size_t taken = std::min(count, text.length() - start);
    return std::string(text.data() + start, strnlen(text.data() + start, taken));
}

bool cxxaw_isdigitstr(const std::string& text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

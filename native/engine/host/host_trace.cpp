#include "host/host_trace.h"

#include "host/pal.h"

#include <cstdarg>

namespace trace {

static bool g_enabled = false;

void initialize() {
    if (g_enabled) {
        return;
    }
    std::string value;
    if (!pal::getenv("COREHOST_TRACE", value)) {
        return;
    }
    const int n = pal::to_int(value);
    g_enabled = n >= 1;
    if (n > 0) {
        trace::info("%s", "CLR host tracing enabled");
    }
}

void enable() { g_enabled = true; }
void disable() { g_enabled = false; }
bool is_enabled() { return g_enabled; }

void error(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    pal::err_vprintf(format, arguments);
    va_end(arguments);
}

void warning(const char* format, ...) {
    if (g_enabled) {
        va_list arguments;
        va_start(arguments, format);
        pal::out_vprintf(format, arguments);
        va_end(arguments);
    }
}

void info(const char* format, ...) {
    if (g_enabled) {
        va_list arguments;
        va_start(arguments, format);
        pal::out_vprintf(format, arguments);
        va_end(arguments);
    }
}

void verbose(const char* format, ...) {
    if (g_enabled) {
        va_list arguments;
        va_start(arguments, format);
        pal::out_vprintf(format, arguments);
        va_end(arguments);
    }
}

} // namespace trace

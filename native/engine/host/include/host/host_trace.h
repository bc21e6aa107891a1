// host/host_trace.h: the console trace that COREHOST_TRACE switches on.
#ifndef KORVAN_HOST_HOST_TRACE_H
#define KORVAN_HOST_HOST_TRACE_H

namespace trace {

// Reads COREHOST_TRACE. An earlier enable() stands.
void initialize();
void enable();
void disable();
bool is_enabled();

__attribute__((format(printf, 1, 2))) void error(const char* format, ...);
__attribute__((format(printf, 1, 2))) void warning(const char* format, ...);
__attribute__((format(printf, 1, 2))) void info(const char* format, ...);
__attribute__((format(printf, 1, 2))) void verbose(const char* format, ...);

} // namespace trace

#endif

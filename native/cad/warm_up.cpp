#include "warm_up.h"

#include "host/host_record.h"
#include "runtime/py_base.h"

namespace {

enum Slot : std::uint16_t { start, stop, slot_count };
void* slots[slot_count];
HostRecord host = {"Korvan.WrpGen.Interop.WarmUpHost", "call_Start\0call_Stop\0", slots,
                   slot_count};

// After the interpreter's end nothing of Python is called here.
void stop_warm_up() { host_slot<void()>(host, stop)(); }

} // namespace

void start_warm_up() {
    // Without a place in the list of what ends with the interpreter it could run into the end of
    // the process.
    if (!host_is_not_valid(host) && Py_AtExit(stop_warm_up) == 0) {
        host_slot<void()>(host, start)();
    }
}

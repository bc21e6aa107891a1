#include "wrap/fork_guard.h"

#include "wrap/thread_stacks.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <pthread.h>
#include <unistd.h>

namespace korvan {

namespace {

// Where stacks can't be taken from glibc: it reuses one for any request from a quarter of its size
// up to all of it. A child asks for a little less than a quarter; each further generation for a
// page more than its parent's threads have: too much for the stacks of those, still too little for
// the oldest.
constexpr std::size_t below_quarter = std::size_t{64} * 1024;
constexpr std::size_t least_stack = std::size_t{256} * 1024;
constexpr std::size_t page = 4096;

std::size_t first_stack = 0; // the default of the process that started the runtime
std::size_t generation = 0;

std::size_t default_stack() {
    pthread_attr_t attributes;
    std::size_t size = 0;
    if (pthread_getattr_default_np(&attributes) == 0) {
        pthread_attr_getstacksize(&attributes, &size);
        pthread_attr_destroy(&attributes);
    }
    return size;
}

void set_default_stack(std::size_t size) {
    pthread_attr_t attributes;
    if (pthread_getattr_default_np(&attributes) == 0) {
        pthread_attr_setstacksize(&attributes, size);
        pthread_setattr_default_np(&attributes);
        pthread_attr_destroy(&attributes);
    }
}

void avoid_cached_stacks() {
    const std::size_t base = first_stack / 4 - below_quarter;
    const std::size_t size = base + page * (generation - 1);
    if (first_stack / 4 > below_quarter && base >= least_stack && size < first_stack / 4) {
        set_default_stack(size);
    }
}

void after_fork_in_child() {
    ++generation;
    if (!abandon_cached_stacks()) {
        avoid_cached_stacks();
    }
}

// ---- the threads that are waited for ----------------------------------------------------------

struct DirectoryCloser {
    void operator()(DIR* directory) const { closedir(directory); }
};

bool begins_with(const char* text, const char* start) {
    return std::strncmp(text, start, std::strlen(start)) == 0;
}

// The runtime's threads, and those by which pango looks for fonts: they hold locks of glib's. The
// one for signals never runs managed code, and is busy for ever when a program closed its pipe.
bool is_waited_for(const char* name) {
    return begins_with(name, "([pango]") ||
           (begins_with(name, "(.NET ") && !begins_with(name, "(.NET SigHandler)"));
}

// Whether a thread of this process is one of them and not asleep: "12 (.NET Finalizer) S ...". The
// one that runs at the start of a program ends by itself, and may sleep with a lock of the runtime
// in hand.
bool is_busy(const char* thread) {
    char path[64];
    std::snprintf(path, sizeof(path), "/proc/self/task/%.20s/stat", thread);
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    char line[64] = {};
    const ssize_t length = read(file, line, sizeof(line) - 1);
    close(file);
    const char* name = length > 0 ? std::strchr(line, '(') : nullptr;
    const char* name_end = name != nullptr ? std::strrchr(name, ')') : nullptr;
    return name_end != nullptr && name_end[1] == ' ' && is_waited_for(name) &&
           (name_end[2] != 'S' || begins_with(name, "(.NET Warm-up)"));
}

bool any_is_busy() {
    const std::unique_ptr<DIR, DirectoryCloser> threads(opendir("/proc/self/task"));
    if (!threads) {
        return false;
    }
    while (const dirent* entry = readdir(threads.get())) {
        if (entry->d_name[0] != '.' && is_busy(entry->d_name)) {
            return true;
        }
    }
    return false;
}

// They compile in the background, or end a piece of work: a matter of milliseconds, or of seconds
// on a machine that is busy itself. Twice asleep, since one may just go from one piece to the next.
void before_fork() {
    constexpr timespec pause = {0, 500'000};
    constexpr int longest_wait = 20'000; // pauses
    for (int waited = 0, quiet = 0; waited < longest_wait && quiet < 2; ++waited) {
        quiet = any_is_busy() ? 0 : quiet + 1;
        if (quiet < 2) {
            nanosleep(&pause, nullptr);
        }
    }
}

} // namespace

void guard_forks() {
    if (first_stack == 0) {
        first_stack = default_stack();
        pthread_atfork(before_fork, nullptr, after_fork_in_child);
    }
}

} // namespace korvan

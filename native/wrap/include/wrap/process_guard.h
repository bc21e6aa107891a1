// wrap/process_guard.h: keeps the start of the runtime from changing its host process.
#ifndef KORVAN_WRAP_PROCESS_GUARD_H
#define KORVAN_WRAP_PROCESS_GUARD_H

#include <csignal>

namespace korvan {

// Environment variables that the runtime reads while it starts. What the user set stands; what is
// set here is taken back afterwards, so that child processes don't inherit it.
class ScopedRuntimeVariables {
public:
    ScopedRuntimeVariables();
    ~ScopedRuntimeVariables();
    ScopedRuntimeVariables(const ScopedRuntimeVariables&) = delete;
    ScopedRuntimeVariables& operator=(const ScopedRuntimeVariables&) = delete;

private:
    static constexpr int count = 3;
    bool m_was_set_here[count] = {};
};

// The dispositions that the interpreter gave these signals; the runtime replaces them while it
// starts. SIGSEGV and its kin stay the runtime's: it turns faults of managed code into exceptions
// and passes all others on to the handler that was there before. So does SIGRTMIN, by which it
// stops its threads: no handler of Python's can stand there.
class ScopedSignalDispositions {
public:
    ScopedSignalDispositions();
    ~ScopedSignalDispositions();
    ScopedSignalDispositions(const ScopedSignalDispositions&) = delete;
    ScopedSignalDispositions& operator=(const ScopedSignalDispositions&) = delete;

private:
    static constexpr int signals[] = {SIGINT,  SIGQUIT, SIGTERM, SIGCHLD, SIGCONT,  SIGPIPE,
                                      SIGTSTP, SIGTTIN, SIGTTOU, SIGHUP,  SIGWINCH, SIGTRAP};
    struct sigaction m_before[sizeof(signals) / sizeof(signals[0])];
};

} // namespace korvan

#endif

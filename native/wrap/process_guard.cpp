#include "wrap/process_guard.h"

#include <cstdlib>
#include <iterator>

namespace korvan {

namespace {

struct Variable {
    const char* name;
    const char* value;
};

constexpr Variable variables[] = {
    // With double mapping of code pages on, a forked child that compiles a method writes into
    // memory it shares with its parent and brings the parent down.
    {"DOTNET_EnableWriteXorExecute", "0"},
    // No debugger pipes in the temp folder, and no thread that serves them.
    {"DOTNET_EnableDiagnostics", "0"},
    // Compiled code that uses the upper halves of vector registers leaves them in use when it calls
    // back into Python. All code there that was built for plain x86-64 then pays for a switch of
    // states at each instruction on a float, ten times what the crossing costs.
    {"DOTNET_PreferredVectorBitWidth", "128"},
};

} // namespace

ScopedRuntimeVariables::ScopedRuntimeVariables() {
    static_assert(sizeof(variables) / sizeof(variables[0]) == count);
    for (int i = 0; i < count; ++i) {
        if (std::getenv(variables[i].name) == nullptr) {
            m_was_set_here[i] = setenv(variables[i].name, variables[i].value, 0) == 0;
        }
    }
}

ScopedRuntimeVariables::~ScopedRuntimeVariables() {
    for (int i = 0; i < count; ++i) {
        if (m_was_set_here[i]) {
            unsetenv(variables[i].name);
        }
    }
}

ScopedSignalDispositions::ScopedSignalDispositions() {
    for (std::size_t i = 0; i < std::size(signals); ++i) {
        sigaction(signals[i], nullptr, &m_before[i]);
    }
}

ScopedSignalDispositions::~ScopedSignalDispositions() {
    for (std::size_t i = 0; i < std::size(signals); ++i) {
        sigaction(signals[i], &m_before[i], nullptr);
    }
}

} // namespace korvan

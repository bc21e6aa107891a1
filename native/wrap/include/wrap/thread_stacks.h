// wrap/thread_stacks.h: what the C library does with the stacks of threads that a fork left behind.
#ifndef KORVAN_WRAP_THREAD_STACKS_H
#define KORVAN_WRAP_THREAD_STACKS_H

namespace korvan {

// Takes the stacks that glibc would give to new threads, or unmap, out of its hands for good. For a
// forked child, where nobody else uses the list. False, and nothing done, where the list is not
// found beyond doubt.
bool abandon_cached_stacks();

} // namespace korvan

#endif

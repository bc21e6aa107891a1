// wrap/fork_guard.h: lets a forked child go on with a runtime whose threads stayed in the parent.
#ifndef KORVAN_WRAP_FORK_GUARD_H
#define KORVAN_WRAP_FORK_GUARD_H

namespace korvan {

// Registers what a fork does before it and in the child; once, when the runtime is up.
//
// Before: waits until the runtime's own threads sleep, and those of the libraries that draw. A
// thread that is copied in the middle of managed code never comes to where the child's collector
// waits for it, and what it has locked stays locked.
//
// In the child: keeps the stacks of the threads that stayed behind as they are. glibc gives such
// stacks to new threads, or unmaps them, and frees the thread-local blocks that belong to them; but
// the runtime keeps those threads' allocation contexts there, and the next collection walks them.
void guard_forks();

} // namespace korvan

#endif

#include "wrap/thread_stacks.h"

#include <cstddef>
#include <cstdint>
#include <dlfcn.h>
#include <pthread.h>

namespace korvan {

namespace {

// A node of glibc's lists of stacks; it lies in the control block at the end of each stack.
struct Node {
    Node* next;
    Node* prev;
};

// The beginning of a control block, which compiled code relies on (x86-64 ELF TLS ABI).
struct ControlBlock {
    void* self;
    void* vector;
    void* also_self;
};

// Where a field lies, as glibc tells debuggers: its size in bits, how many there are, the offset.
struct Field {
    std::uint32_t bits;
    std::uint32_t count;
    std::uint32_t offset;
};

constexpr int max_threads = 100'000;

template <class Type> const Type* find(const char* name) {
    return static_cast<const Type*>(dlsym(RTLD_DEFAULT, name));
}

template <class Visit> bool is_ring(const Node* head, Visit visit) {
    int count = 0;
    for (const Node* node = head; count < max_threads; ++count) {
        const Node* next = node->next;
        if (next == nullptr || next->prev != node || (next != head && !visit(next))) {
            return false;
        }
        if (next == head) {
            return true;
        }
        node = next;
    }
    return false;
}

// The heads of three lists follow each other: stacks in use, stacks that programs brought, stacks
// for reuse. Debuggers are told of the first two.
struct StackLists {
    Node heads[3];
};

StackLists* find_lists() {
    const auto* globals = find<char>("_rtld_global");
    const auto* used = find<Field>("_thread_db_rtld_global__dl_stack_used");
    const auto* brought = find<Field>("_thread_db_rtld_global__dl_stack_user");
    if (globals == nullptr || used == nullptr || brought == nullptr ||
        used->bits != sizeof(Node) * 8 || brought->offset != used->offset + sizeof(Node)) {
        return nullptr;
    }
    return reinterpret_cast<StackLists*>(const_cast<char*>(globals + used->offset));
}

} // namespace

bool abandon_cached_stacks() {
    StackLists* lists = find_lists();
    const auto* node_field = find<Field>("_thread_db_pthread_list");
    if (lists == nullptr || node_field == nullptr) {
        return false;
    }
    const std::size_t offset = node_field->offset;
    const auto is_thread = [offset](const Node* node) {
        const auto* block =
            reinterpret_cast<const ControlBlock*>(reinterpret_cast<const char*>(node) - offset);
        return block->self == block && block->also_self == block;
    };
    const auto* own = reinterpret_cast<const Node*>(reinterpret_cast<const char*>(pthread_self()) +
                                                    offset); // NOLINT(performance-no-int-to-ptr)
    int found = 0;
    for (const Node& head : lists->heads) {
        const bool whole = is_ring(&head, [&](const Node* node) {
            found += node == own ? 1 : 0;
            return is_thread(node);
        });
        if (!whole) {
            return false;
        }
    }
    Node& cached = lists->heads[2];
    if (found != 1) {
        return false;
    }
    // The others stay a ring: a program may yet join one of these threads, which unlinks it.
    cached.prev->next = cached.next;
    cached.next->prev = cached.prev;
    cached.next = cached.prev = &cached;
    return true;
}

} // namespace korvan

// module/family.h: the sibling modules that every bound module needs, and what it takes from them.
#ifndef KORVAN_MODULE_FAMILY_H
#define KORVAN_MODULE_FAMILY_H

#include "runtime/py_base.h"

// The versions that the engine's modules refer to.
extern const int RefVer_pygc_E169B802[4];
extern const int RefVer_pydrawin_BDCFE46E[4];
extern const int RefVer_pyreflec_D2D13F94[4];

// One function pointer of a capsule's table, and where it is kept.
struct CapsuleSlot {
    int index;
    void** target;
};
template <class Function> CapsuleSlot capsule_slot(int index, Function& target) {
    return {index, reinterpret_cast<void**>(&target)};
}

bool read_capsule(const char* name, const CapsuleSlot* slots, int count);
template <int N> bool read_capsule(const char* name, const CapsuleSlot (&slots)[N]) {
    return read_capsule(name, slots, N);
}

// Each passes the version gate and reads the capsules. False with an exception.
bool import_pydrawing(const char* self_name);
bool import_pyreflection(const char* self_name);
bool import_pygc(const char* self_name);

#endif

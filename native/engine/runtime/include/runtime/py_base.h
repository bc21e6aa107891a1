// runtime/py_base.h: what every file of the runtime and above stands on.
#ifndef KORVAN_RUNTIME_PY_BASE_H
#define KORVAN_RUNTIME_PY_BASE_H

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include "contract/records.h"
#include "contract/status.h"

#include <cstddef>
#include <cstdint>
#include <utility>

// The one shape of every bound instance, reference object or struct. The wrapper owns the handle
// alone and gives it back when it is deallocated.
struct PyClrObject {
    PyObject_HEAD
    void* handle; // null from tp_new until a value is stored
};

// Modules of other builds read it.
static_assert(sizeof(PyClrObject) == 24 && offsetof(PyClrObject, handle) == 16);

inline void* clr_handle(PyObject* object) { return reinterpret_cast<PyClrObject*>(object)->handle; }

// Every wrapper's type is static. A class made in Python may carry the marker of one, but holds no
// handle.
inline bool is_static_type_of(PyObject* object) {
    return (Py_TYPE(object)->tp_flags & Py_TPFLAGS_HEAPTYPE) == 0;
}

// An owned reference. A bare PyObject* borrows.
class Ref {
public:
    Ref() = default;
    Ref(Ref&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    Ref& operator=(Ref&& other) noexcept {
        if (this != &other) {
            Py_XSETREF(m_object, std::exchange(other.m_object, nullptr));
        }
        return *this;
    }
    ~Ref() { Py_XDECREF(m_object); }

    // Takes over a new reference, or null.
    static Ref steal(PyObject* object) {
        Ref ref;
        ref.m_object = object;
        return ref;
    }
    // Takes a reference of its own.
    static Ref borrow(PyObject* object) { return steal(Py_XNewRef(object)); }

    PyObject* get() const { return m_object; }
    PyObject* release() { return std::exchange(m_object, nullptr); }
    PyObject** out() { return &m_object; } // for functions that write a new reference
    explicit operator bool() const { return m_object != nullptr; }

private:
    PyObject* m_object = nullptr;
};

// A pending exception put aside for the length of a scope's work.
struct SavedError {
    PyObject* type = nullptr;
    PyObject* value = nullptr;
    PyObject* traceback = nullptr;

    void fetch() { PyErr_Fetch(&type, &value, &traceback); }
    void restore() {
        PyErr_Restore(std::exchange(type, nullptr), std::exchange(value, nullptr),
                      std::exchange(traceback, nullptr));
    }
    void drop() {
        Py_CLEAR(type);
        Py_CLEAR(value);
        Py_CLEAR(traceback);
    }
    ~SavedError() { drop(); }
};

inline const char* type_name_of(PyObject* object) { return Py_TYPE(object)->tp_name; }

#endif

// The callable that the method descriptors hand out.
#include "runtime/method_object.h"
#include "runtime/descriptors.h"

namespace {

PyShCMethodObject* as_method(PyObject* object) {
    return reinterpret_cast<PyShCMethodObject*>(object);
}

bool no_keywords(const PyMethodDef* def, PyObject* kwargs) {
    if (kwargs == nullptr || PyDict_GET_SIZE(kwargs) == 0) {
        return true;
    }
    PyErr_Format(PyExc_TypeError, "%.200s() takes no keyword arguments", def->ml_name);
    return false;
}

bool one_argument(const PyMethodDef* def, Py_ssize_t given) {
    if (given == 1) {
        return true;
    }
    PyErr_Format(PyExc_TypeError, "%.200s() takes exactly one argument (%zd given)", def->ml_name,
                 given);
    return false;
}

bool no_arguments(const PyMethodDef* def, Py_ssize_t given) {
    if (given == 0) {
        return true;
    }
    PyErr_Format(PyExc_TypeError, "%.200s() takes no arguments (%zd given)", def->ml_name, given);
    return false;
}

// The 'self' of an unbound call: the first positional argument, of the defining type.
PyObject* unbound_self(const PyShCMethodObject* method, PyObject* args) {
    const PyMethodDef* def = method->m_ml;
    if (PyTuple_GET_SIZE(args) < 1) {
        PyErr_Format(PyExc_TypeError, "unbound method %.200s() needs a 'self' argument",
                     def->ml_name);
        return nullptr;
    }
    PyObject* self = PyTuple_GET_ITEM(args, 0);
    if (!PyObject_TypeCheck(self, method->m_type)) {
        PyErr_Format(PyExc_TypeError,
                     "descriptor '%s' for '%.100s' objects doesn't apply to a '%.100s' object",
                     def->ml_name, method->m_type->tp_name, type_name_of(self));
        return nullptr;
    }
    return self;
}

PyObject* call_with_keywords(const PyMethodDef* def, PyObject* self, PyObject* args,
                             PyObject* kwargs) {
    return reinterpret_cast<PyCFunctionWithKeywords>(reinterpret_cast<void (*)()>(def->ml_meth))(
        self, args, kwargs);
}

PyObject* wrpPye_tpsb_cmethod_tp_call_with_args_linked(PyObject* self, PyObject* args,
                                                       PyObject* kwargs) {
    const PyShCMethodObject* method = as_method(self);
    return call_with_keywords(method->m_ml, method->m_self, args, kwargs);
}

PyObject* wrpPye_tpsb_cmethod_tp_call_o_arg_linked(PyObject* self, PyObject* args,
                                                   PyObject* kwargs) {
    const PyShCMethodObject* method = as_method(self);
    if (!one_argument(method->m_ml, PyTuple_GET_SIZE(args)) || !no_keywords(method->m_ml, kwargs)) {
        return nullptr;
    }
    return method->m_ml->ml_meth(method->m_self, PyTuple_GET_ITEM(args, 0));
}

PyObject* wrpPye_tpsb_cmethod_tp_call_no_args_linked(PyObject* self, PyObject* args,
                                                     PyObject* kwargs) {
    const PyShCMethodObject* method = as_method(self);
    if (!no_arguments(method->m_ml, args != nullptr ? PyTuple_GET_SIZE(args) : 0) ||
        !no_keywords(method->m_ml, kwargs)) {
        return nullptr;
    }
    return method->m_ml->ml_meth(method->m_self, nullptr);
}

// The slice ends one argument early, which programs of the family count on: an unbound call loses
// its last positional argument.
PyObject* wrpPye_tpsb_cmethod_tp_call_with_args_unbound(PyObject* self, PyObject* args,
                                                        PyObject* kwargs) {
    const PyShCMethodObject* method = as_method(self);
    PyObject* target = unbound_self(method, args);
    if (target == nullptr) {
        return nullptr;
    }
    const Ref rest = Ref::steal(PyTuple_GetSlice(args, 1, PyTuple_GET_SIZE(args) - 1));
    return rest ? call_with_keywords(method->m_ml, target, rest.get(), kwargs) : nullptr;
}

PyObject* wrpPye_tpsb_cmethod_tp_call_o_arg_unbound(PyObject* self, PyObject* args,
                                                    PyObject* kwargs) {
    const PyShCMethodObject* method = as_method(self);
    PyObject* target = unbound_self(method, args);
    if (target == nullptr || !one_argument(method->m_ml, PyTuple_GET_SIZE(args) - 1) ||
        !no_keywords(method->m_ml, kwargs)) {
        return nullptr;
    }
    return method->m_ml->ml_meth(target, PyTuple_GET_ITEM(args, 1));
}

PyObject* wrpPye_tpsb_cmethod_tp_call_no_args_unbound(PyObject* self, PyObject* args,
                                                      PyObject* kwargs) {
    const PyShCMethodObject* method = as_method(self);
    PyObject* target = unbound_self(method, args);
    if (target == nullptr || !no_arguments(method->m_ml, PyTuple_GET_SIZE(args) - 1) ||
        !no_keywords(method->m_ml, kwargs)) {
        return nullptr;
    }
    return method->m_ml->ml_meth(target, nullptr);
}

ternaryfunc choose_call(const PyMethodDef* def, const PyObject* self) {
    const bool unbound = self == nullptr && (def->ml_flags & METH_STATIC) == 0;
    if ((def->ml_flags & METH_NOARGS) != 0) {
        return unbound ? wrpPye_tpsb_cmethod_tp_call_no_args_unbound
                       : wrpPye_tpsb_cmethod_tp_call_no_args_linked;
    }
    if ((def->ml_flags & METH_O) != 0) {
        return unbound ? wrpPye_tpsb_cmethod_tp_call_o_arg_unbound
                       : wrpPye_tpsb_cmethod_tp_call_o_arg_linked;
    }
    return unbound ? wrpPye_tpsb_cmethod_tp_call_with_args_unbound
                   : wrpPye_tpsb_cmethod_tp_call_with_args_linked;
}

void wrpPye_tpsb_cmethod_tp_dealloc(PyObject* self) {
    PyObject_GC_UnTrack(self);
    PyShCMethodObject* method = as_method(self);
    if (method->m_weakreflist != nullptr) {
        PyObject_ClearWeakRefs(self);
    }
    Py_XDECREF(method->m_type);
    Py_XDECREF(method->m_self);
    PyObject_GC_Del(self);
}

int wrpPye_tpsb_cmethod_tp_traverse(PyObject* self, visitproc visit, void* arg) {
    Py_VISIT(as_method(self)->m_type);
    Py_VISIT(as_method(self)->m_self);
    return 0;
}

PyObject* wrpPye_tpsb_cmethod_tp_repr(PyObject* self) {
    const PyShCMethodObject* method = as_method(self);
    if (method->m_self == nullptr) {
        return PyUnicode_FromFormat("<extension method %s of %s>", method->m_ml->ml_name,
                                    method->m_type->tp_name);
    }
    return PyUnicode_FromFormat("<extension method %s of %s object at %p>", method->m_ml->ml_name,
                                type_name_of(method->m_self), method->m_self);
}

Py_hash_t wrpPye_tpsb_cmethod_tp_hash(PyObject* self) {
    const PyShCMethodObject* method = as_method(self);
    const Py_hash_t hash = _Py_HashPointer(method->m_self) ^
                           _Py_HashPointer(reinterpret_cast<const void*>(method->m_ml->ml_meth));
    return hash == -1 ? -2 : hash;
}

PyObject* wrpPye_tpsb_cmethod_tp_richcompare(PyObject* self, PyObject* other, int op) {
    const PyTypeObject* type = &wrpPye_tyds_FFFFFFFF_MethodObject;
    if ((op != Py_EQ && op != Py_NE) || Py_TYPE(self) != type || Py_TYPE(other) != type) {
        Py_RETURN_NOTIMPLEMENTED;
    }
    const bool same = as_method(self)->m_self == as_method(other)->m_self &&
                      as_method(self)->m_ml->ml_meth == as_method(other)->m_ml->ml_meth;
    return PyBool_FromLong(same == (op == Py_EQ));
}

PyObject* wrpPye_tpsb_cmethod_tp_call(PyObject* self, PyObject* args, PyObject* kwargs) {
    return as_method(self)->m_call(self, args, kwargs);
}

PyObject* wrpPye_bltp_cmethod_doc(PyObject* self, void*) {
    return doc_or_none(as_method(self)->m_ml->ml_doc);
}

PyGetSetDef method_getset[] = {{"__doc__", wrpPye_bltp_cmethod_doc, nullptr, nullptr, nullptr}, {}};

} // namespace

PyObject* doc_or_none(const char* doc) {
    if (doc == nullptr || *doc == '\0') {
        Py_RETURN_NONE;
    }
    return PyUnicode_FromString(doc);
}

PyTypeObject wrpPye_tyds_FFFFFFFF_MethodObject = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "_MethodObjectType",
    .tp_basicsize = sizeof(PyShCMethodObject),
    .tp_dealloc = wrpPye_tpsb_cmethod_tp_dealloc,
    .tp_repr = wrpPye_tpsb_cmethod_tp_repr,
    .tp_hash = wrpPye_tpsb_cmethod_tp_hash,
    .tp_call = wrpPye_tpsb_cmethod_tp_call,
    .tp_flags = Py_TPFLAGS_HAVE_GC,
    .tp_traverse = wrpPye_tpsb_cmethod_tp_traverse,
    .tp_richcompare = wrpPye_tpsb_cmethod_tp_richcompare,
    .tp_weaklistoffset = offsetof(PyShCMethodObject, m_weakreflist),
    .tp_getset = method_getset,
};

PyObject* PyShCMethod_New(PyTypeObject* type, PyMethodDef* def, PyObject* self) {
    auto* method = PyObject_GC_New(PyShCMethodObject, &wrpPye_tyds_FFFFFFFF_MethodObject);
    if (method == nullptr) {
        return nullptr;
    }
    method->m_ml = def;
    method->m_self = Py_XNewRef(self);
    method->m_weakreflist = nullptr;
    method->m_type = reinterpret_cast<PyTypeObject*>(Py_NewRef(type));
    method->m_call = choose_call(def, self);
    PyObject_GC_Track(method);
    return reinterpret_cast<PyObject*>(method);
}

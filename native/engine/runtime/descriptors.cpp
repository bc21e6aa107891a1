#include "runtime/descriptors.h"

#include "runtime/failures.h"
#include "runtime/method_object.h"

#include <cstring>
#include <string>

namespace {

struct PyShStaticMethodDescrObject {
    PyObject_HEAD
    PyTypeObject* d_type; // owned, as in all four records
    PyMethodDef* d_method;
    PyObject* d_cmethod; // owned
};

struct PyShInstanceMethodDescrObject {
    PyObject_HEAD
    PyTypeObject* d_type;
    PyMethodDef* d_method;
};

struct PyShMixMethodDescrObject {
    PyObject_HEAD
    PyTypeObject* d_type;
    PyObject* d_static_cmethod; // owned
    PyMethodDef* d_instance_method;
};

struct PyShFieldDescrObject {
    PyObject_HEAD
    PyTypeObject* d_type;
    PyGetSetDef* d_getset;
};

// What differs between the four: the name and doc of the definition, and the method object kept.
template <class Record> struct Definition;
template <> struct Definition<PyShStaticMethodDescrObject> {
    static const char* name(const PyShStaticMethodDescrObject* d) { return d->d_method->ml_name; }
    static const char* doc(const PyShStaticMethodDescrObject* d) { return d->d_method->ml_doc; }
    static PyObject* kept(const PyShStaticMethodDescrObject* d) { return d->d_cmethod; }
};
template <> struct Definition<PyShInstanceMethodDescrObject> {
    static const char* name(const PyShInstanceMethodDescrObject* d) { return d->d_method->ml_name; }
    static const char* doc(const PyShInstanceMethodDescrObject* d) { return d->d_method->ml_doc; }
    static PyObject* kept(const PyShInstanceMethodDescrObject*) { return nullptr; }
};
template <> struct Definition<PyShMixMethodDescrObject> {
    static const char* name(const PyShMixMethodDescrObject* d) {
        return d->d_instance_method->ml_name;
    }
    static const char* doc(const PyShMixMethodDescrObject* d) {
        return d->d_instance_method->ml_doc;
    }
    static PyObject* kept(const PyShMixMethodDescrObject* d) { return d->d_static_cmethod; }
};
template <> struct Definition<PyShFieldDescrObject> {
    static const char* name(const PyShFieldDescrObject* d) { return d->d_getset->name; }
    static const char* doc(const PyShFieldDescrObject* d) { return d->d_getset->doc; }
    static PyObject* kept(const PyShFieldDescrObject*) { return nullptr; }
};

template <class Record> Record* as(PyObject* object) { return reinterpret_cast<Record*>(object); }

template <class Record> void descr_dealloc(PyObject* self) {
    PyObject_GC_UnTrack(self);
    Py_XDECREF(as<Record>(self)->d_type);
    Py_XDECREF(Definition<Record>::kept(as<Record>(self)));
    PyObject_GC_Del(self);
}

template <class Record> int descr_traverse(PyObject* self, visitproc visit, void* arg) {
    Py_VISIT(as<Record>(self)->d_type);
    Py_VISIT(Definition<Record>::kept(as<Record>(self)));
    return 0;
}

template <class Record> PyObject* descr_repr(PyObject* self) {
    constexpr bool is_field = std::is_same_v<Record, PyShFieldDescrObject>;
    return PyUnicode_FromFormat(
        is_field ? "<attribute '%s' of '%s' objects>" : "<method '%s' of '%s' objects>",
        Definition<Record>::name(as<Record>(self)), as<Record>(self)->d_type->tp_name);
}

template <class Record> PyObject* descr_doc(PyObject* self, void*) {
    return doc_or_none(Definition<Record>::doc(as<Record>(self)));
}

// There is no type where __get__ is called with an instance alone.
template <class Record> bool accepts_type(PyObject* self, PyObject* type) {
    if (type != nullptr && PyType_Check(type)) {
        return true;
    }
    PyErr_Format(PyExc_TypeError, "descriptor '%s' needs a type, not '%s', as arg 2",
                 Definition<Record>::name(as<Record>(self)),
                 type_name_of(type != nullptr ? type : Py_None));
    return false;
}

template <class Record> bool accepts_instance(PyObject* self, PyObject* object) {
    PyTypeObject* type = as<Record>(self)->d_type;
    if (PyObject_TypeCheck(object, type)) {
        return true;
    }
    PyErr_Format(PyExc_TypeError,
                 "descriptor '%s' for '%.100s' objects doesn't apply to a '%.100s' object",
                 Definition<Record>::name(as<Record>(self)), type->tp_name, type_name_of(object));
    return false;
}

PyObject* wrpPye_tpsb_static_method_descr_tp_descr_get(PyObject* self, PyObject*, PyObject* type) {
    using Record = PyShStaticMethodDescrObject;
    return accepts_type<Record>(self, type) ? Py_NewRef(as<Record>(self)->d_cmethod) : nullptr;
}

PyObject* wrpPye_tpsb_instance_method_descr_tp_descr_get(PyObject* self, PyObject* object,
                                                         PyObject* type) {
    using Record = PyShInstanceMethodDescrObject;
    const bool accepted = object == nullptr ? accepts_type<Record>(self, type)
                                            : accepts_instance<Record>(self, object);
    const Record* descr = as<Record>(self);
    return accepted ? PyShCMethod_New(descr->d_type, descr->d_method, object) : nullptr;
}

PyObject* wrpPye_tpsb_mixed_method_descr_tp_descr_get(PyObject* self, PyObject* object,
                                                      PyObject* type) {
    using Record = PyShMixMethodDescrObject;
    const Record* descr = as<Record>(self);
    if (object == nullptr) {
        return accepts_type<Record>(self, type) ? Py_NewRef(descr->d_static_cmethod) : nullptr;
    }
    return accepts_instance<Record>(self, object)
               ? PyShCMethod_New(descr->d_type, descr->d_instance_method, object)
               : nullptr;
}

PyObject* wrpPye_tpsb_field_descr_tp_descr_get(PyObject* self, PyObject*, PyObject* type) {
    using Record = PyShFieldDescrObject;
    if (!accepts_type<Record>(self, type)) {
        return nullptr;
    }
    const PyGetSetDef* def = as<Record>(self)->d_getset;
    return def->get(nullptr, def->closure);
}

template <class Record>
PyGetSetDef descr_getset[] = {{"__doc__", descr_doc<Record>, nullptr, nullptr, nullptr}, {}};

template <class Record> constexpr PyTypeObject make_type(descrgetfunc get) {
    return {
        .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_basicsize = sizeof(Record),
        .tp_dealloc = descr_dealloc<Record>,
        .tp_repr = descr_repr<Record>,
        .tp_flags = Py_TPFLAGS_HAVE_GC,
        .tp_traverse = descr_traverse<Record>,
        .tp_getset = descr_getset<Record>,
        .tp_descr_get = get,
    };
}

template <class Record> Record* new_descr(PyTypeObject* kind, PyTypeObject* type) {
    Record* descr = PyObject_GC_New(Record, kind);
    if (descr != nullptr) {
        descr->d_type = reinterpret_cast<PyTypeObject*>(Py_NewRef(type));
    }
    return descr;
}

template <class Record> PyObject* track(Record* descr) {
    PyObject_GC_Track(descr);
    return reinterpret_cast<PyObject*>(descr);
}

} // namespace

PyTypeObject wrpPye_tyds_FFFFFFFF_StaticMethodDescr =
    make_type<PyShStaticMethodDescrObject>(wrpPye_tpsb_static_method_descr_tp_descr_get);
PyTypeObject wrpPye_tyds_FFFFFFFF_InstanceMethodDescr =
    make_type<PyShInstanceMethodDescrObject>(wrpPye_tpsb_instance_method_descr_tp_descr_get);
PyTypeObject wrpPye_tyds_FFFFFFFF_MixMethodDescr =
    make_type<PyShMixMethodDescrObject>(wrpPye_tpsb_mixed_method_descr_tp_descr_get);
PyTypeObject wrpPye_tyds_FFFFFFFF_FieldDescr =
    make_type<PyShFieldDescrObject>(wrpPye_tpsb_field_descr_tp_descr_get);

int fn_ready_descriptor_types(const char* module_name) {
    const struct {
        PyTypeObject* type;
        const char* name;
    } types[] = {
        {&wrpPye_tyds_FFFFFFFF_MethodObject, "_MethodObjectType"},
        {&wrpPye_tyds_FFFFFFFF_StaticMethodDescr, "_StaticMethodDescrType"},
        {&wrpPye_tyds_FFFFFFFF_InstanceMethodDescr, "_InstanceMethodDescrType"},
        {&wrpPye_tyds_FFFFFFFF_MixMethodDescr, "_MixMethodDescrType"},
        {&wrpPye_tyds_FFFFFFFF_FieldDescr, "_FieldDescrType"},
    };
    for (const auto& entry : types) {
        // Type names live as long as their types: for the whole process.
        entry.type->tp_name = strdup((std::string(module_name) + "." + entry.name).c_str());
        if (PyType_Ready(entry.type) != 0) {
            PyShlErr_TypeInitializationInternalError(load_error::ready_type, entry.type->tp_name);
            return -1;
        }
    }
    return 0;
}

PyObject* PyShDescr_NewStaticField(PyTypeObject* type, PyGetSetDef* def) {
    auto* descr = new_descr<PyShFieldDescrObject>(&wrpPye_tyds_FFFFFFFF_FieldDescr, type);
    if (descr == nullptr) {
        return nullptr;
    }
    descr->d_getset = def;
    return track(descr);
}

PyObject* PyShDescr_NewInstanceMethod(PyTypeObject* type, PyMethodDef* def) {
    auto* descr =
        new_descr<PyShInstanceMethodDescrObject>(&wrpPye_tyds_FFFFFFFF_InstanceMethodDescr, type);
    if (descr == nullptr) {
        return nullptr;
    }
    descr->d_method = def;
    return track(descr);
}

PyObject* PyShDescr_NewStaticMethod(PyTypeObject* type, PyMethodDef* def) {
    Ref method = Ref::steal(PyShCMethod_New(type, def, nullptr));
    if (!method) {
        return nullptr;
    }
    auto* descr =
        new_descr<PyShStaticMethodDescrObject>(&wrpPye_tyds_FFFFFFFF_StaticMethodDescr, type);
    if (descr == nullptr) {
        return nullptr;
    }
    descr->d_method = def;
    descr->d_cmethod = method.release();
    return track(descr);
}

PyObject* PyShDescr_NewMixedMethod(PyTypeObject* type, PyMethodDef* static_def,
                                   PyMethodDef* instance_def) {
    Ref method = Ref::steal(PyShCMethod_New(type, static_def, nullptr));
    if (!method) {
        return nullptr;
    }
    auto* descr = new_descr<PyShMixMethodDescrObject>(&wrpPye_tyds_FFFFFFFF_MixMethodDescr, type);
    if (descr == nullptr) {
        return nullptr;
    }
    descr->d_static_cmethod = method.release();
    descr->d_instance_method = instance_def;
    return track(descr);
}

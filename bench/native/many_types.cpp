// The baseline of a tree of types: as many static types as it is told, each with the methods and
// properties that a bound type has on average, ready and in a module. Nothing is behind them.
#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <string>
#include <vector>

namespace {

PyObject* nothing(PyObject*, PyObject*) { Py_RETURN_NONE; }
PyObject* get_nothing(PyObject*, void*) { Py_RETURN_NONE; }

PyMethodDef methods[] = {{"get_type", nothing, METH_NOARGS, nullptr},
                         {"_type_of", nothing, METH_NOARGS | METH_STATIC, nullptr},
                         {"_cast_to", nothing, METH_O | METH_STATIC, nullptr},
                         {"_cast_from", nothing, METH_O, nullptr},
                         {"_reinterpret_obj", nothing, METH_O | METH_STATIC, nullptr},
                         {"_cast_as", nothing, METH_O | METH_STATIC, nullptr},
                         {"_is_assignable", nothing, METH_O | METH_STATIC, nullptr},
                         {}};
PyGetSetDef properties[] = {{"first", get_nothing, nullptr, nullptr, nullptr},
                            {"second", get_nothing, nullptr, nullptr, nullptr},
                            {}};

// make(count): types T0, T1 and so on as attributes of this module
PyObject* make(PyObject* module, PyObject* argument) {
    const long count = PyLong_AsLong(argument);
    // For the life of the process, as static types are.
    auto* const names = new std::vector<std::string>(static_cast<size_t>(count));
    auto* const types = new std::vector<PyTypeObject>(static_cast<size_t>(count));
    for (size_t i = 0; i < names->size(); ++i) {
        PyTypeObject& type = (*types)[i];
        (*names)[i] = "many_types.T" + std::to_string(i);
        type = {.ob_base = {PyObject_HEAD_INIT(nullptr) 0}, .tp_name = (*names)[i].c_str()};
        type.tp_basicsize = sizeof(PyObject) + sizeof(void*);
        type.tp_methods = methods;
        type.tp_getset = properties;
        if (PyModule_AddType(module, &type) < 0) {
            return nullptr;
        }
    }
    Py_RETURN_NONE;
}

PyMethodDef functions[] = {{"make", make, METH_O, nullptr}, {}};
PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "many_types",
                          nullptr,
                          -1,
                          functions,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

} // namespace

PyMODINIT_FUNC PyInit_many_types() { return PyModule_Create(&definition); }

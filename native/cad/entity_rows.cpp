#include "entity_rows.h"

#include "host/host_record.h"
#include "runtime/strings.h"
#include "runtime/wrapped_objects.h"

#include <string>

namespace {

constexpr int array_count = 4;

enum Slot : std::uint16_t { collect, slot_count };
void* slots[slot_count];
HostRecord host = {"Korvan.WrpGen.Interop.EntityRowsHost", "call_Collect\0", slots, slot_count};

using Collect = int(void* source, PyStringArg* kind, PyStringArg* layers, PyObject** arrays,
                    int* width);

} // namespace

PyObject* cad_entity_rows(PyObject*, PyObject* arguments) {
    PyObject* source = nullptr;
    PyObject* kind = nullptr;
    PyObject* layers = nullptr;
    if (!PyArg_ParseTuple(arguments, "OUO:_entity_rows", &source, &kind, &layers)) {
        return nullptr;
    }
    VariantArg entities{};
    PyStringArg kind_text{};
    PyStringArg layers_text{};
    if (!fn_conv_py_obj_to_clr_gen_not_null_handle(source, &entities) ||
        entities.value == nullptr) {
        if (PyErr_Occurred() == nullptr) {
            PyErr_Format(PyExc_TypeError, "the source of entities can't be '%s'",
                         type_name_of(source));
        }
        return nullptr;
    }
    if (!fn_conv_py_string_to_clr_string(kind, &kind_text) ||
        !fn_conv_py_string_to_clr_string(layers, &layers_text)) {
        return nullptr;
    }
    if (host_is_not_valid(host)) {
        PyErr_SetString(PyExc_TypeError, host.error->c_str());
        return nullptr;
    }
    PyObject* arrays[array_count] = {};
    int width = 0;
    const int status =
        host_slot<Collect>(host, collect)(entities.value, &kind_text, &layers_text, arrays, &width);
    const Ref owned[array_count] = {Ref::steal(arrays[0]), Ref::steal(arrays[1]),
                                    Ref::steal(arrays[2]), Ref::steal(arrays[3])};
    if (status != 0 || PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return Py_BuildValue("OOOOi", arrays[0], arrays[1], arrays[2], arrays[3], width);
}

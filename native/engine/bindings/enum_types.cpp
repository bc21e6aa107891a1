#include "bindings/enum_types.h"

#include "runtime/py_base.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <iterator>

// The enum module runs some fifty lines of Python a member. There are thousands of members, so that
// most of the import's time was spent there. The module therefore makes the first type of a family
// alone; the others get what it wrote into that one, and their own members. A type that is special
// in any way, and every type of an enum module that writes something else than is known here, is
// made by the module as before.

namespace {

// Names of what an enum type and its members hold, interned.
struct EnumNames {
    PyObject* member_names = PyUnicode_InternFromString("_member_names_");
    PyObject* member_map = PyUnicode_InternFromString("_member_map_");
    PyObject* by_value = PyUnicode_InternFromString("_value2member_map_");
    PyObject* unhashable = PyUnicode_InternFromString("_unhashable_values_");
    PyObject* unhashable_map = PyUnicode_InternFromString("_unhashable_values_map_");
    PyObject* hashable = PyUnicode_InternFromString("_hashable_values_");
    PyObject* flag_mask = PyUnicode_InternFromString("_flag_mask_");
    PyObject* singles_mask = PyUnicode_InternFromString("_singles_mask_");
    PyObject* all_bits = PyUnicode_InternFromString("_all_bits_");
    PyObject* new_function = PyUnicode_InternFromString("__new__");
    PyObject* iterate = PyUnicode_InternFromString("_iter_member_");
    PyObject* iterate_declared = PyUnicode_InternFromString("_iter_member_by_def_");
    PyObject* value = PyUnicode_InternFromString("_value_");
    PyObject* name = PyUnicode_InternFromString("_name_");
    PyObject* owner = PyUnicode_InternFromString("__objclass__");
    PyObject* order = PyUnicode_InternFromString("_sort_order_");
};

const EnumNames& names() {
    static const EnumNames known;
    return known;
}

// What the first type of a family shows of all the others.
struct EnumModel {
    bool is_known = false;
    PyObject* space = nullptr; // dict: what the types share; null where they are made by the module
    PyObject* new_function = nullptr; // put into a finished type: `type` would wrap it
    PyObject* reserved = nullptr; // set: names of the bases, which a member does not take
};

PyObject* member_value(const EnumBinding& binding, const EnumMember& member) {
    return binding.storage == EnumStorage::uint64
               ? PyLong_FromUnsignedLongLong(static_cast<unsigned long>(member.value))
               : PyLong_FromLongLong(member.value);
}

// ((name, value), ...) in the order of declaration.
PyObject* member_list(const EnumBinding& binding) {
    Ref members = Ref::steal(PyTuple_New(binding.count));
    for (int i = 0; members && i < binding.count; ++i) {
        PyObject* pair = Py_BuildValue("(NN)", PyUnicode_FromString(binding.members[i].name),
                                       member_value(binding, binding.members[i]));
        if (pair == nullptr) {
            return nullptr;
        }
        PyTuple_SET_ITEM(members.get(), i, pair);
    }
    return members.release();
}

PyObject* create_by_module(const EnumBinding& binding, PyObject* family) {
    const Ref members = Ref::steal(member_list(binding));
    const Ref name = Ref::steal(PyUnicode_FromString(binding.short_name));
    if (!members || !name) {
        return nullptr;
    }
    return PyObject_CallFunctionObjArgs(family, name.get(), members.get(), nullptr);
}

// Values whose masks are plain sums of bits, and names that the module takes as they are.
bool is_plain(const EnumBinding& binding, PyObject* reserved) {
    for (int i = 0; i < binding.count; ++i) {
        const EnumMember& member = binding.members[i];
        const bool is_signed = binding.storage != EnumStorage::uint64;
        if (member.name[0] == '_' ||
            (member.value < 0 && (binding.kind == EnumKind::flag || !is_signed))) {
            return false;
        }
        const Ref name = Ref::steal(PyUnicode_InternFromString(member.name));
        if (!name || PySet_Contains(reserved, name.get()) != 0) {
            PyErr_Clear();
            return false;
        }
    }
    return binding.count != 0;
}

bool set_number(PyObject* space, PyObject* key, unsigned long long value) {
    const Ref number = Ref::steal(PyLong_FromUnsignedLongLong(value));
    return number && PyDict_SetItem(space, key, number.get()) == 0;
}

bool set_masks(PyObject* space, const EnumBinding& binding) {
    std::uint64_t mask = 0;
    std::uint64_t singles = 0;
    for (int i = 0; i < binding.count; ++i) {
        const auto value = static_cast<std::uint64_t>(binding.members[i].value);
        mask |= value;
        singles |= std::has_single_bit(value) ? value : 0;
    }
    const std::uint64_t all = mask == 0 ? 0 : std::bit_ceil(mask + 1) - 1;
    return set_number(space, names().flag_mask, mask) &&
           set_number(space, names().singles_mask, singles) &&
           set_number(space, names().all_bits, all);
}

// The members of one type on their way into it.
struct EnumMembers {
    PyTypeObject* type;
    Ref order; // list of the names that are no aliases
    Ref by_name;
    Ref by_value;
};

PyObject* new_member(const EnumMembers& members, PyObject* name, PyObject* value) {
    const Ref arguments = Ref::steal(PyTuple_Pack(1, value));
    Ref member = Ref::steal(arguments ? PyLong_Type.tp_new(members.type, arguments.get(), nullptr)
                                      : nullptr);
    const Ref position = Ref::steal(PyLong_FromSsize_t(PyList_GET_SIZE(members.order.get())));
    auto* owner = reinterpret_cast<PyObject*>(members.type);
    if (!member || !position || PyObject_GenericSetAttr(member.get(), names().value, value) != 0 ||
        PyObject_GenericSetAttr(member.get(), names().name, name) != 0 ||
        PyObject_GenericSetAttr(member.get(), names().owner, owner) != 0 ||
        PyObject_GenericSetAttr(member.get(), names().order, position.get()) != 0) {
        return nullptr;
    }
    return member.release();
}

// A second name of a value is an alias. Flags of several bits, and of none, are no names of their
// own.
bool add_member(EnumMembers& members, const EnumBinding& binding, const EnumMember& source) {
    const Ref name = Ref::steal(PyUnicode_InternFromString(source.name));
    const Ref value = Ref::steal(member_value(binding, source));
    if (!name || !value) {
        return false;
    }
    Ref member = Ref::borrow(PyDict_GetItemWithError(members.by_value.get(), value.get()));
    if (!member) {
        if (PyErr_Occurred() != nullptr) {
            return false;
        }
        member = Ref::steal(new_member(members, name.get(), value.get()));
        const bool is_listed = binding.kind == EnumKind::integer ||
                               std::has_single_bit(static_cast<std::uint64_t>(source.value));
        if (!member || PyDict_SetItem(members.by_value.get(), value.get(), member.get()) != 0 ||
            (is_listed && PyList_Append(members.order.get(), name.get()) != 0)) {
            return false;
        }
    }
    return PyDict_SetItem(members.by_name.get(), name.get(), member.get()) == 0 &&
           PyDict_SetItem(members.type->tp_dict, name.get(), member.get()) == 0;
}

// The module iterates over flags by their bits, unless they are declared in another order.
bool set_iteration(PyTypeObject* type, const EnumBinding& binding) {
    std::int64_t last = 0;
    bool is_sorted = true;
    for (int i = 0; i < binding.count; ++i) {
        const std::int64_t value = binding.members[i].value;
        if (std::has_single_bit(static_cast<std::uint64_t>(value))) {
            is_sorted = is_sorted && value >= last;
            last = value;
        }
    }
    if (is_sorted) {
        return true;
    }
    const Ref method =
        Ref::steal(PyObject_GetAttr(reinterpret_cast<PyObject*>(type), names().iterate_declared));
    return method && PyDict_SetItem(type->tp_dict, names().iterate, method.get()) == 0;
}

// The containers that each type has for itself; the last two came with later releases of the
// module.
bool set_containers(PyObject* space, const EnumMembers& members, const EnumModel& model) {
    const Ref unhashable = Ref::steal(PyList_New(0));
    const Ref unhashable_map = Ref::steal(PyDict_New());
    return unhashable && unhashable_map &&
           PyDict_SetItem(space, names().member_names, members.order.get()) == 0 &&
           PyDict_SetItem(space, names().member_map, members.by_name.get()) == 0 &&
           PyDict_SetItem(space, names().by_value, members.by_value.get()) == 0 &&
           PyDict_SetItem(space, names().unhashable, unhashable.get()) == 0 &&
           (!PyDict_Contains(model.space, names().unhashable_map) ||
            PyDict_SetItem(space, names().unhashable_map, unhashable_map.get()) == 0);
}

bool set_hashable_values(PyTypeObject* type, const EnumMembers& members, const EnumModel& model) {
    if (!PyDict_Contains(model.space, names().hashable)) {
        return true;
    }
    const Ref values = Ref::steal(PyDict_Keys(members.by_value.get()));
    return values && PyDict_SetItem(type->tp_dict, names().hashable, values.get()) == 0;
}

bool fill_type(EnumMembers& members, const EnumBinding& binding, const EnumModel& model) {
    bool is_made =
        PyDict_SetItem(members.type->tp_dict, names().new_function, model.new_function) == 0;
    for (int i = 0; is_made && i < binding.count; ++i) {
        is_made = add_member(members, binding, binding.members[i]);
    }
    is_made = is_made && set_hashable_values(members.type, members, model) &&
              (binding.kind == EnumKind::integer || set_iteration(members.type, binding));
    PyType_Modified(members.type);
    return is_made;
}

PyObject* create_by_model(const EnumBinding& binding, PyObject* family, const EnumModel& model) {
    const Ref space = Ref::steal(PyDict_Copy(model.space));
    EnumMembers members{nullptr, Ref::steal(PyList_New(0)), Ref::steal(PyDict_New()),
                        Ref::steal(PyDict_New())};
    if (!space || !members.order || !members.by_name || !members.by_value ||
        !set_containers(space.get(), members, model) ||
        (binding.kind != EnumKind::integer && !set_masks(space.get(), binding))) {
        return nullptr;
    }
    const Ref arguments =
        Ref::steal(Py_BuildValue("(s(O)O)", binding.short_name, family, space.get()));
    Ref type = Ref::steal(arguments ? PyType_Type.tp_new(Py_TYPE(family), arguments.get(), nullptr)
                                    : nullptr);
    if (!type) {
        return nullptr;
    }
    members.type = reinterpret_cast<PyTypeObject*>(type.get());
    return fill_type(members, binding, model) ? type.release() : nullptr;
}

// Whether the module writes into a type what is known here, and nothing else.
bool is_known_space(PyObject* space) {
    static constexpr const char* known[] = {"_generate_next_value_",
                                            "__module__",
                                            "_new_member_",
                                            "_use_args_",
                                            "_member_names_",
                                            "_member_map_",
                                            "_value2member_map_",
                                            "_unhashable_values_",
                                            "_unhashable_values_map_",
                                            "_hashable_values_",
                                            "_member_type_",
                                            "_value_repr_",
                                            "_boundary_",
                                            "_flag_mask_",
                                            "_singles_mask_",
                                            "_all_bits_",
                                            "_inverted_",
                                            "__doc__",
                                            "__format__",
                                            "__str__",
                                            "__repr__",
                                            "__reduce_ex__",
                                            "__or__",
                                            "__and__",
                                            "__xor__",
                                            "__ror__",
                                            "__rand__",
                                            "__rxor__",
                                            "__invert__"};
    PyObject* key = nullptr;
    Py_ssize_t position = 0;
    while (PyDict_Next(space, &position, &key, nullptr)) {
        const auto is_same = [key](const char* name) {
            return PyUnicode_Check(key) && PyUnicode_CompareWithASCIIString(key, name) == 0;
        };
        if (std::none_of(std::begin(known), std::end(known), is_same)) {
            return false;
        }
    }
    return true;
}

bool is_known_member(PyObject* member) {
    const Ref state = Ref::steal(PyObject_GenericGetDict(member, nullptr));
    return state && PyDict_GET_SIZE(state.get()) == 4 &&
           PyDict_Contains(state.get(), names().value) == 1 &&
           PyDict_Contains(state.get(), names().name) == 1 &&
           PyDict_Contains(state.get(), names().owner) == 1 &&
           PyDict_Contains(state.get(), names().order) == 1;
}

// The names that the bases of an enum type hold.
PyObject* reserved_names(PyTypeObject* type) {
    Ref reserved = Ref::steal(PySet_New(nullptr));
    for (Py_ssize_t i = 1; reserved && i < PyTuple_GET_SIZE(type->tp_mro); ++i) {
        const auto* base = reinterpret_cast<PyTypeObject*>(PyTuple_GET_ITEM(type->tp_mro, i));
        const Ref held = Ref::steal(PyType_GetDict(const_cast<PyTypeObject*>(base)));
        PyObject* key = nullptr;
        Py_ssize_t position = 0;
        while (held && PyDict_Next(held.get(), &position, &key, nullptr)) {
            if (PySet_Add(reserved.get(), key) != 0) {
                return nullptr;
            }
        }
    }
    return reserved.release();
}

// Reads the first type that the module made. Errors leave the model empty.
void read_model(PyTypeObject* type, EnumModel& model) {
    model.is_known = true;
    Ref space = Ref::steal(PyDict_Copy(type->tp_dict));
    PyObject* members = space ? PyDict_GetItemWithError(space.get(), names().member_map) : nullptr;
    Ref function =
        Ref::borrow(space ? PyDict_GetItemWithError(space.get(), names().new_function) : nullptr);
    if (members == nullptr || !function || PyDict_Check(members) == 0) {
        return;
    }
    PyObject* name = nullptr;
    PyObject* member = nullptr;
    Py_ssize_t position = 0;
    while (PyDict_Next(members, &position, &name, &member)) {
        if (!is_known_member(member) || PyDict_DelItem(space.get(), name) != 0) {
            return;
        }
    }
    PyDict_DelItem(space.get(), names().new_function);
    if (PyDict_Contains(space.get(), names().iterate) == 1) {
        PyDict_DelItem(space.get(), names().iterate);
    }
    Ref reserved = Ref::steal(reserved_names(type));
    if (reserved && is_known_space(space.get())) {
        model.space = space.release();
        model.new_function = function.release();
        model.reserved = reserved.release();
    }
}

} // namespace

PyObject* create_enum_type(const EnumBinding& binding, PyObject* family) {
    static EnumModel models[2];
    EnumModel& model = models[binding.kind == EnumKind::integer ? 0 : 1];
    if (model.space != nullptr && is_plain(binding, model.reserved)) {
        return create_by_model(binding, family, model);
    }
    PyObject* type = create_by_module(binding, family);
    if (type != nullptr && !model.is_known && PyType_Check(type)) {
        read_model(reinterpret_cast<PyTypeObject*>(type), model);
        PyErr_Clear();
    }
    return type;
}

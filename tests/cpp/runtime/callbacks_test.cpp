// The slots that the managed side calls: statuses, references, and what stays pending.
#include "interpreter.h"
#include "runtime/arg_stacks.h"
#include "runtime/buffers.h"
#include "runtime/callbacks.h"
#include "runtime/dates.h"
#include "runtime/decimals.h"
#include "runtime/markers.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"
#include "runtime/types_map.h"
#include "runtime/variant.h"

#include <vector>

namespace {

PyObject* number(long value) { return PyLong_FromLong(value); }

// A stream class whose methods are given as Python source.
Ref stream(const std::string& methods) {
    return run("class Stream:\n    closed = False\n" + methods + "\nresult = Stream()");
}

} // namespace

TEST(Tables, HaveTheirSlotsInOrder) {
    void*** tables = get_all_py_wrapper_callbacks();
    int table = -1;
    int slot = 0;
#define KORVAN_TABLE(name) ++table, slot = 0;
#define KORVAN_SLOT(name, function)                                                                \
    EXPECT_EQ(tables[table][slot++], reinterpret_cast<void*>(function)) << #function;
#include "contract/callbacks.def"
    EXPECT_EQ(table, 8);
}

TEST(ListSlots, TellStatusAndConsumeTheirValue) {
    const Ref list = evaluate("[1, 2]");
    VariantArg out{};
    EXPECT_EQ(fn_clbk_olist_get_item(list.get(), 1, &out), 0);
    EXPECT_EQ(out.kind, KORVAN_VAR_INT);
    EXPECT_EQ(fn_clbk_olist_get_item(list.get(), 2, &out), -2);
    EXPECT_EQ(take_error(), "IndexError: list index out of range");
    EXPECT_EQ(fn_clbk_olist_add(list.get(), number(7)), 3);
    EXPECT_EQ(fn_clbk_olist_insert(list.get(), 0, number(5)), 0);
    EXPECT_EQ(fn_clbk_olist_contains(list.get(), number(7)), 1);
    EXPECT_EQ(fn_clbk_olist_contains(list.get(), number(99)), 0);
    EXPECT_EQ(fn_clbk_olist_index_of(list.get(), number(7)), 3);
    EXPECT_EQ(fn_clbk_olist_index_of(list.get(), number(99)), -1);
    EXPECT_EQ(take_error(), "") << "a search that finds nothing is no error";
    EXPECT_EQ(fn_clbk_olist_remove(list.get(), number(99)), -1);
    EXPECT_EQ(take_error(), "ValueError: list.remove(x): x not in list");
    EXPECT_EQ(fn_clbk_olist_remove(list.get(), number(5)), 0);
    EXPECT_EQ(fn_clbk_ucol_remove_at(list.get(), 9), -2);
    EXPECT_EQ(take_error(), "IndexError: pop index out of range");
    EXPECT_EQ(text_of(list.get()), "[1, 2, 7]");
    EXPECT_EQ(fn_clbk_ucol_clear(list.get()), 0);
    EXPECT_EQ(fn_clbk_ucol_list_length(list.get()), 0);

    const Ref raising = run("class Bad:\n    def __eq__(self, other): raise OSError('eq')\n"
                            "result = [Bad()]");
    EXPECT_EQ(fn_clbk_olist_contains(raising.get(), number(1)), -1);
    EXPECT_EQ(take_error(), "OSError: eq") << "not the same as an item that is not there";
    EXPECT_EQ(fn_clbk_olist_index_of(raising.get(), number(1)), -2);
    EXPECT_EQ(take_error(), "OSError: eq");

    PyObject* made = nullptr;
    PyObject** items = fn_clbk_ucol_create_fast_list(2, &made);
    fn_clbk_olist_set_fast_item(items, 0, number(1));
    fn_clbk_olist_set_fast_item(items, 1, number(2));
    EXPECT_EQ(text_of(Ref::steal(made).get()), "[1, 2]");
}

TEST(SequenceSlots, WalkWhatMayChangeOrRaise) {
    const Ref tuple = evaluate("(1, 2)");
    EXPECT_EQ(fn_clbk_oseq_contains(tuple.get(), number(2)), 1);
    EXPECT_EQ(fn_clbk_oseq_contains(tuple.get(), number(3)), 0);
    EXPECT_EQ(fn_clbk_oseq_index_of(tuple.get(), number(2)), 1);
    EXPECT_EQ(fn_clbk_oseq_index_of(evaluate("()").get(), number(2)), -1);
    VariantArg out{};
    EXPECT_EQ(fn_clbk_oseq_get_item(tuple.get(), 5, &out), -2);
    take_error();
    EXPECT_EQ(fn_clbk_oseq_get_item(evaluate("({},)").get(), 0, &out), -1);
    EXPECT_EQ(take_error(), "TypeError: unknown variant type");

    const Ref raising = run("class Bad:\n    def __eq__(self, other): raise OSError('eq')\n"
                            "result = (Bad(),)");
    EXPECT_EQ(fn_clbk_oseq_contains(raising.get(), number(1)), 1) << "a raise counts as a match";
    EXPECT_EQ(take_error(), "OSError: eq");

    const Ref shrinking = run("class Shrinks(list):\n"
                              "    def __getitem__(self, i):\n"
                              "        self.pop()\n        return list.__getitem__(self, 0)\n"
                              "result = Shrinks([1, 2, 3, 4])");
    EXPECT_EQ(fn_clbk_oseq_contains(shrinking.get(), number(9)), 0) << "the size is asked anew";
}

TEST(IteratorSlot, TellsItemEndAndErrorApart) {
    const Ref iterator = run("def items():\n    yield 1\n    raise OSError('torn')\n"
                             "result = items()");
    PyObject* keep = nullptr;
    VariantArg out{};
    EXPECT_EQ(fn_clbk_iter_next(iterator.get(), &keep, &out), 0);
    Py_DECREF(keep);
    EXPECT_EQ(fn_clbk_iter_next(iterator.get(), &keep, &out), 2);
    EXPECT_EQ(take_error(), "OSError: torn");
    EXPECT_EQ(fn_clbk_iter_next(iterator.get(), &keep, &out), 1);
    EXPECT_EQ(fn_clbk_ucol_get_enumerator(evaluate("5").get()), nullptr);
    EXPECT_EQ(take_error(), "TypeError: 'int' object is not iterable");
}

TEST(StreamSlots, ReadWriteAndSeekAPythonStream) {
    ASSERT_EQ(PyType_Ready(&wrpPye_tyds_ShlBufferView), 0);
    const Ref io = run("import io\nresult = io.BytesIO(b'abc')");
    unsigned char buffer[8] = {};
    EXPECT_EQ(fn_clbk_rawio_read(io.get(), buffer, 2), 2);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(buffer)), "ab");
    EXPECT_EQ(fn_clbk_rawio_readbyte(io.get()), 'c');
    EXPECT_EQ(fn_clbk_rawio_readbyte(io.get()), -1) << "the end of the stream";
    EXPECT_EQ(fn_clbk_rawio_write(io.get(), reinterpret_cast<const unsigned char*>("de"), 2), 2);
    EXPECT_EQ(fn_clbk_rawio_write_byte(io.get(), 'f'), 1);
    EXPECT_EQ(fn_clbk_rawio_tell(io.get()), 6);
    EXPECT_EQ(fn_clbk_rawio_length(io.get()), 6);
    EXPECT_EQ(fn_clbk_rawio_tell(io.get()), 6) << "the position is where it was";
    EXPECT_EQ(fn_clbk_rawio_truncate(io.get(), 4), 0);
    EXPECT_EQ(fn_clbk_rawio_tell(io.get()), 4) << "never behind the new end";
    EXPECT_EQ(fn_clbk_rawio_seek(io.get(), 1, 0), 1);
    EXPECT_EQ(fn_clbk_rawio_flush(io.get()), 0);
    fn_clbk_rawio_close(io.get());
    EXPECT_EQ(fn_clbk_rawio_seekable(io.get()), 0) << "closed, and no error";
    EXPECT_EQ(fn_clbk_rawio_length(io.get()), -3);
    EXPECT_EQ(take_error(), "");
}

TEST(StreamSlots, TellWhatAStreamDoesWrong) {
    unsigned char buffer[4];
    const Ref silent = stream("    def readinto(self, b): return None\n"
                              "    def write(self, b): return None\n"
                              "    def seekable(self): return False");
    EXPECT_EQ(fn_clbk_rawio_read(silent.get(), buffer, 4), 0);
    EXPECT_EQ(fn_clbk_rawio_write(silent.get(), buffer, 4), 0);
    EXPECT_EQ(fn_clbk_rawio_readbyte(silent.get()), -2);
    EXPECT_EQ(take_error(), "OSError: no bytes are available for reading");
    EXPECT_EQ(fn_clbk_rawio_length(silent.get()), -2) << "not seekable";

    const Ref lying = stream("    def readinto(self, b): return 'many'\n"
                             "    def readable(self): return 1\n"
                             "    def seekable(self): return True\n"
                             "    def seek(self, *a): raise OSError('stuck')");
    EXPECT_EQ(fn_clbk_rawio_read(lying.get(), buffer, 4), -1);
    EXPECT_EQ(take_error(), "TypeError: integer argument expected, got 'str'");
    EXPECT_EQ(fn_clbk_rawio_readable(lying.get()), -1);
    EXPECT_EQ(take_error(), "TypeError: can't build bool from 'int'");
    EXPECT_EQ(fn_clbk_rawio_length(lying.get()), -1);
    EXPECT_EQ(take_error(), "TypeError: While calculating the length of the stream, an error "
                            "occurred. <- OSError: stuck");
    const Ref odd = run("class Odd:\n    closed = 'yes'\nresult = Odd()");
    EXPECT_EQ(fn_clbk_rawio_writable(odd.get()), -1);
    EXPECT_EQ(take_error(), "TypeError: An error occurred while checking if the stream is closed "
                            "<- TypeError: can't build bool from 'str'");
}

TEST(Text, IsLentInItsOwnWidthAndDecodedStrictly) {
    const struct {
        const char* literal;
        int length, width;
    } rows[] = {{"''", 0, 1},
                {"'e'", 1, 1},
                {"'\\u00e9'", 1, 1},
                {"'\\u20ac'", 1, 2},
                {"'\\U0001f600'", 1, 4}};
    for (const auto& row : rows) {
        const Ref text = evaluate(row.literal);
        PyStringArg out{};
        ASSERT_EQ(fn_conv_py_string_to_clr_string(text.get(), &out), 1);
        EXPECT_TRUE(out.length == row.length && out.char_size == row.width) << row.literal;
        EXPECT_EQ(out.data, PyUnicode_DATA(text.get())) << "no copy";
    }
    const char16_t pair[] = {0xD83D, 0xDE00, 0xFEFF};
    EXPECT_EQ(
        text_of(Ref::steal(fn_conv_clr_string_to_py_string(reinterpret_cast<const char*>(pair), 3))
                    .get()),
        "'\U0001f600\\ufeff'");
    EXPECT_EQ(fn_conv_clr_string_to_py_string(reinterpret_cast<const char*>(pair), 1), nullptr);
    EXPECT_EQ(take_error(), "LookupError: unknown error handler name ''");

    unsigned short unit = 0;
    EXPECT_EQ(fn_conv_py_string_to_clr_char(evaluate("'a'").get(), &unit), 1);
    EXPECT_EQ(unit, 'a');
    for (const char* bad : {"''", "'ab'", "'\\U0001f600'"}) {
        EXPECT_EQ(fn_conv_py_string_to_clr_char(evaluate(bad).get(), &unit), 0);
        EXPECT_EQ(take_error(), "TypeError: string must contain one UTF-16 code unit") << bad;
    }
    EXPECT_EQ(fn_conv_py_string_to_clr_char(Py_None, &unit), 0);
    EXPECT_EQ(take_error(), "TypeError: can't build Char from 'NoneType'");
}

TEST(Paths, AreTextByTheFileSystemsRules) {
    for (const char* path : {"'a/b'", "b'a/b'", "__import__('pathlib').PurePosixPath('a/b')"}) {
        const Ref object = evaluate(path);
        PyEphStrArg out{};
        ASSERT_EQ(fn_conv_py_strorpath_to_clr_string(object.get(), &out), 1) << path;
        const Ref owner = Ref::steal(static_cast<PyObject*>(out.owner));
        EXPECT_EQ(std::string(static_cast<const char*>(out.text.data), 3), "a/b");
    }
    PyEphStrArg out{};
    EXPECT_EQ(fn_conv_py_strorpath_to_clr_string(evaluate("5").get(), &out), 0);
    EXPECT_EQ(take_error().find("TypeError: "), 0u);
}

TEST(FrameStacks, ReleaseWhatWasNotHandedOver) {
    const Ref kept = evaluate("object()");
    const Ref dropped = evaluate("object()");
    {
        PyTrPyObjStack<3> stack;
        *stack[0] = Py_NewRef(kept.get());
        *stack[1] = Py_NewRef(dropped.get());
        ++stack; // the first is handed over
        PyEphStrArgBuilder path;
        path.owner = Py_NewRef(dropped.get());
        PyInterimArgBuilder interim;
        interim.value = Py_NewRef(dropped.get());
    }
    EXPECT_EQ(Py_REFCNT(kept.get()), 2);
    EXPECT_EQ(Py_REFCNT(dropped.get()), 1);
    Py_DECREF(kept.get());
}

TEST(Markers, AnswerForTheExactTypeAndNeverRaise) {
    const Ref object = evaluate("object()");
    int kind = 42;
    EXPECT_FALSE(fn_is_instance_has_host_markattr(object.get(), &kind));
    EXPECT_EQ(kind, 42);
    const Ref marked =
        run("class Marked:\n    _korvan_clr_host = ...\n    _implicit_interfaces = 5\n"
            "class Derived(Marked): pass\nresult = (Marked(), Derived())");
    PyObject* instance = PyTuple_GET_ITEM(marked.get(), 0);
    EXPECT_TRUE(fn_is_instance_has_host_markattr(instance, &kind));
    EXPECT_EQ(kind, KORVAN_REF_STRUCT);
    EXPECT_FALSE(fn_is_refobj_has_host_markattr(instance));
    EXPECT_FALSE(fn_is_instance_has_host_markattr(PyTuple_GET_ITEM(marked.get(), 1), &kind))
        << "markers are not inherited";
    EXPECT_FALSE(fn_contains_implicit_ifc_markattr(Py_TYPE(instance), &PyLong_Type));
    EXPECT_FALSE(fn_has_external_ancestor_markattr(instance, &PyLong_Type));
    EXPECT_TRUE(fn_set_external_ancestor_markattr(Py_TYPE(instance), &PyLong_Type));
    EXPECT_TRUE(fn_set_additional_ifcs_markattr(Py_TYPE(instance), 1, &PyFloat_Type));
    EXPECT_TRUE(fn_has_external_ancestor_markattr(instance, &PyLong_Type));
    EXPECT_FALSE(fn_has_external_ancestor_markattr(instance, &PyFloat_Type));
    EXPECT_TRUE(fn_contains_additional_ifc_markattr(instance, &PyFloat_Type));
    EXPECT_FALSE(fn_contains_additional_ifc_markattr(instance, &PyLong_Type));
    EXPECT_EQ(take_error(), "");
}

TEST(TypesMap, RemembersMissesInItsWeakHalfAlone) {
    PyWrpTypesMap map;
    PyTypeObject* found = &PyFloat_Type;
    EXPECT_FALSE(map.find(u"Korvan.Absent", found));
    EXPECT_EQ(found, &PyFloat_Type) << "a miss writes nothing";
    map.reserve(100);
    map.add(u"Korvan.Number", &PyLong_Type);
    map.add(7L, &PyLong_Type);
    EXPECT_TRUE(map.find(u"Korvan.Number", found) && found == &PyLong_Type);
    EXPECT_TRUE(map.find(7L, found));
    EXPECT_FALSE(map.find_weak(7L, found));
    map.add_weak(8L, nullptr);
    EXPECT_TRUE(map.find_weak(8L, found) && found == nullptr) << "known to have no binding";
    EXPECT_FALSE(map.find(8L, found));
    map.add_weak(8L, &PyFloat_Type);
    EXPECT_TRUE(map.find_weak(8L, found) && found == &PyFloat_Type);
}

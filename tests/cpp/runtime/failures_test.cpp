// Failures at load time and across the boundary.
#include "interpreter.h"
#include "runtime/exception_bridge.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/imports.h"
#include "runtime/version.h"

namespace {

// The text that the managed side would get, and what went to sys.unraisablehook.
std::string caught_text() {
    PyObject* owner = nullptr;
    PyStringArg text{};
    if (fn_catch_and_clear_py_error(&owner, &text) != 0) {
        return "<none>";
    }
    const Ref owned = Ref::steal(owner);
    EXPECT_EQ(text.length, PyUnicode_GET_LENGTH(owner));
    EXPECT_EQ(PyErr_Occurred(), nullptr);
    return PyUnicode_AsUTF8(owner);
}

void raise(const std::string& statement) {
    const Ref globals = Ref::steal(PyDict_New());
    PyDict_SetItemString(globals.get(), "__builtins__", PyEval_GetBuiltins());
    Py_XDECREF(PyRun_String(statement.c_str(), Py_file_input, globals.get(), globals.get()));
}

} // namespace

TEST(LoadFailures, ChainOverWhatIsPending) {
    PyShlErr_ModulePyInitError("korvan.cad", -1007);
    EXPECT_EQ(take_error(),
              "ImportError: One or more errors occurred while loading the module 'korvan.cad' "
              "(-1007)");
    PyErr_SetString(PyExc_TypeError, "deep");
    PyShlErr_TypeInitializationInternalError(-1015, "korvan.cad.Image");
    PyShlErr_ModulePyInitError("korvan.cad", -1006);
    EXPECT_EQ(take_error(),
              "ImportError: One or more errors occurred while loading the module 'korvan.cad' "
              "(-1006) <- ImportError: Type initialization internal error (-1015) "
              "<korvan.cad.Image> <- TypeError: deep");
    PyErr_SetString(PyExc_ValueError, "first");
    PyShlErr_ChainFormat(PyExc_TypeError, "second %d", 2);
    PyObject* error = PyErr_GetRaisedException();
    const Ref cause = Ref::steal(PyException_GetCause(error));
    const Ref context = Ref::steal(PyException_GetContext(error));
    EXPECT_EQ(cause.get(), context.get());
    EXPECT_EQ(text_of(Ref::steal(PyObject_GetAttrString(error, "__suppress_context__")).get()),
              "True");
    Py_DECREF(error);
}

TEST(ArgumentCounts, AreWordedByTheSideThatWasMissed) {
    EXPECT_FALSE(fn_check_args_count_out_of_range(1, "pop", 0, 1));
    EXPECT_EQ(take_error(), "");
    const struct {
        long given;
        const char* name;
        long min, max;
        const char* words;
    } rows[] = {
        {0, "pop", 1, 1, "TypeError: pop() takes exactly 1 argument (0 given)"},
        {3, "pop", 0, 1, "TypeError: pop() takes at most 1 argument (3 given)"},
        {1, nullptr, 2, 3, "TypeError: function takes at least 2 arguments (1 given)"},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(fn_check_args_count_out_of_range(row.given, row.name, row.min, row.max));
        EXPECT_EQ(take_error(), row.words);
    }
}

TEST(VersionGate, LetsPassExactlyWhatLiesBetweenThresholdAndVersion) {
    fn_name_version_type("tests._ModuleVersionType");
    ASSERT_EQ(PyType_Ready(&wrpPye_tyds_FFFFFFFF_ModuleVersion), 0);
    const int wanted[] = {24, 5, 3, 0};
    const struct {
        int version[4];
        int threshold[4];
        const char* words; // null: passes
    } rows[] = {
        {{24, 5, 3, 0}, {24, 5, 3, 0}, nullptr},
        {{25, 1, 0, 0}, {22, 6, 0, 0}, nullptr},
        {{24, 5, 2, 9},
         {22, 6, 0, 0},
         "that is lower than the referenced version of that module "
         "('24.5.3.0')"},
        {{25, 0, 0, 0},
         {24, 5, 3, 1},
         "is not compatible with the referenced vesion of the module "
         "('24.5.3.0')"},
    };
    const Ref module = run("import sys, types\nresult = sys.modules['sibling'] = "
                           "types.ModuleType('sibling')");
    for (const auto& row : rows) {
        const auto add = [&](const char* name, const int* n) {
            const Ref version = Ref::steal(PyShVersionAttr_Create(n[0], n[1], n[2], n[3], "view"));
            PyObject_SetAttrString(module.get(), name, version.get());
        };
        add("VERSION", row.version);
        add("_BACKWARD_COMPATIBILITY_THRESHOLD", row.threshold);
        const Ref imported = Ref::steal(PyShImport_ImportRefModule("self", "sibling", wanted));
        const std::string error = take_error();
        EXPECT_EQ(static_cast<bool>(imported), row.words == nullptr);
        EXPECT_NE(error.find(row.words != nullptr ? row.words : ""), std::string::npos) << error;
    }
    PyObject_DelAttrString(module.get(), "VERSION");
    EXPECT_EQ(PyShImport_ImportRefModule("self", "sibling", wanted), nullptr);
    EXPECT_NE(take_error().find("does not have 'VERSION' attribute"), std::string::npos);
}

TEST(Imports, FollowNamesAndTellWhereTheyEnd) {
    const Ref module = run("import sys, types\nresult = sys.modules['nest'] = "
                           "types.ModuleType('nest')\n"
                           "class Outer:\n    class Inner: pass\n    number = 5\n"
                           "result.Outer = Outer\nresult.number = 5");
    const auto name = [](const char* text) { return Ref::steal(PyUnicode_FromString(text)); };
    const Ref outer = name("Outer"), inner = name("Inner"), number = name("number");
    const Ref found = Ref::steal(PyShImport_ImportTypeExV("nest", 2, outer.get(), inner.get()));
    ASSERT_TRUE(found) << take_error();
    EXPECT_STREQ(reinterpret_cast<PyTypeObject*>(found.get())->tp_name, "Inner");
    const Ref first = Ref::steal(PyShImport_ImportTypeExV("nest", 1, outer.get(), inner.get()));
    EXPECT_STREQ(reinterpret_cast<PyTypeObject*>(first.get())->tp_name, "Outer");

    EXPECT_EQ(PyShImport_ImportTypeExV("nest", 2, outer.get(), outer.get()), nullptr);
    EXPECT_EQ(take_error(),
              "ImportError: type does not contain nested type Outer <- AttributeError: type object "
              "'Outer' has no attribute 'Outer'");
    EXPECT_EQ(PyShImport_ImportTypeExV("nest", 2, outer.get(), number.get()), nullptr);
    EXPECT_EQ(take_error(), "TypeError: Attribute must be type object, not 'int'");
    EXPECT_EQ(PyShImport_ImportTypeEx("nest", number.get()), nullptr);
    EXPECT_EQ(take_error(), "TypeError: Attribute must be type object, not 'int'");
    EXPECT_EQ(PyShImport_ImportType("nest", inner.get()), nullptr);
    EXPECT_EQ(take_error(),
              "ImportError: Unable to import the specified type Inner from the module nest. The "
              "type not found or errors occurred while initializing it. <- AttributeError: module "
              "'nest' has no attribute 'Inner'");
    EXPECT_EQ(PyShImport_ImportType("no_nest", inner.get()), nullptr);
    EXPECT_EQ(take_error(),
              "ImportError: Unable to import the specified module no_nest. The module not found or "
              "errors occurred while initializing it. <- ModuleNotFoundError: No module named "
              "'no_nest'");
}

TEST(LoadFailures, NameAnEnumOverItsText) {
    PyShlErr_EnumTypeInitialization("no host", "Choice");
    EXPECT_EQ(take_error(),
              "ImportError: enum type 'Choice' is not initialized <- TypeError: no host");
    PyErr_SetString(PyExc_OSError, "first");
    PyShlErr_ChainOrFormat(PyExc_ImportError, "over it");
    EXPECT_EQ(take_error(), "ImportError: over it <- OSError: first");
    PyShlErr_ChainOrFormat(PyExc_ImportError, "alone");
    EXPECT_EQ(take_error(), "ImportError: alone");
}

TEST(ExceptionBridge, WordsManagedFailures) {
    on_clr_exception(PyUnicode_FromString("IOException"), PyUnicode_FromString("no disk"));
    EXPECT_EQ(take_error(), "RuntimeError: Proxy error(IOException): no disk");
    on_clr_exception(nullptr, nullptr);
    EXPECT_EQ(take_error(), "RuntimeError: Proxy error(<unknown>): <unknown>");
}

TEST(ExceptionBridge, TurnsAPythonFailureIntoText) {
    PyObject* owner = reinterpret_cast<PyObject*>(1);
    PyStringArg text{7, 7, nullptr};
    EXPECT_EQ(fn_catch_and_clear_py_error(&owner, &text), -1);
    EXPECT_TRUE(owner == reinterpret_cast<PyObject*>(1) && text.length == 7) << "untouched";

    PyErr_SetString(PyExc_ValueError, "plain");
    EXPECT_EQ(caught_text(), "ValueError: plain\n");
    raise("def f():\n    raise KeyError('deep')\nf()");
    const std::string traced = caught_text();
    EXPECT_EQ(traced.find("Traceback (most recent call last):\n"), 0u);
    EXPECT_NE(traced.find("KeyError: 'deep'\n"), std::string::npos);
}

TEST(ExceptionBridge, FallsBackWhenTheTracebackModuleFails) {
    const Ref seen = run("import sys, traceback\n"
                         "result = []\n"
                         "sys.unraisablehook = lambda u: result.append((u.exc_type.__name__, "
                         "u.object))\n"
                         "traceback.kept = traceback.format_exception_only\n"
                         "def broken(*a): raise OSError('broken')\n"
                         "traceback.format_exception_only = broken");
    PyErr_SetString(PyExc_ValueError, "plain");
    EXPECT_EQ(caught_text(), "ValueError: plain");
    EXPECT_EQ(text_of(seen.get()), "[('OSError', 'FormatCallbackException')]");
    run("import sys, traceback\nsys.unraisablehook = sys.__unraisablehook__\n"
        "traceback.format_exception_only = traceback.kept");
}

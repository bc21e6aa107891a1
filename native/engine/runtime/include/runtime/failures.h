// runtime/failures.h: the shared vocabulary of load-time failures.
//
// A pending exception is never lost: it becomes __cause__ and __context__ of the new one.
#ifndef KORVAN_RUNTIME_FAILURES_H
#define KORVAN_RUNTIME_FAILURES_H

#include "runtime/py_base.h"

// What failed, as the numbers that the messages carry.
namespace load_error {
constexpr int version = -1001;
constexpr int child_module = -1002;
constexpr int create_module = -1003;
constexpr int version_type = -1004;
constexpr int wrappers = -1005;
constexpr int namespace_tree = -1006;
constexpr int hosts = -1007;
constexpr int pygc = -1008;
constexpr int linked_modules = -1009;
constexpr int extra_init = -1013;
constexpr int add_type = -1014;
constexpr int ready_type = -1015;
constexpr int host_marker = -1016;
constexpr int additional_interfaces = -1017;
constexpr int implicit_interfaces = -1018;
constexpr int threshold = -1019;
constexpr int add_member = -1020;
constexpr int castable_marker = -1021;
constexpr int package_attributes = -1022;
} // namespace load_error

// Raises a new exception over the pending one, which must exist.
void PyShlErr_ChainFormat(PyObject* exception_class, const char* format, ...);
// The same where one is pending, else a plain raise; the format takes no arguments.
void PyShlErr_ChainOrFormat(PyObject* exception_class, const char* format);

void PyShlErr_ModuleInitializationInternalError(int code);
void PyShlErr_ModuleInitializationInternalError(int code, const char* name);
void PyShlErr_ModuleInitializationInternalError(int code, const char* parent, const char* child);
void PyShlErr_ModulePyInitError(const char* module, int code);
void PyShlErr_DependencyImportError(const char* module);
void PyShlErr_UnableToImportModule(const char* module);
void PyShlErr_UnableToImportType(PyObject* name, const char* module);
void PyShlErr_UnableToImportNestedType(const char* owner, PyObject* name);
void PyShlErr_CapsuleImportError(const char* capsule);
void PyShlErr_TypeInitializationInternalError(int code, const char* name);
void PyShlErr_TypeInitializationInternalError(int code, const char* first, const char* second);
void PyShlErr_EnumTypeInitialization(const char* text, const char* enum_name);

// True, with TypeError set, when the count of arguments lies outside the range.
bool fn_check_args_count_out_of_range(long count, const char* name, long minimum, long maximum);

#endif

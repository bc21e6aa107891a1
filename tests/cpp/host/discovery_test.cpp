// Where the runtime and the assemblies are looked for.
#include "host/core_clr_init_exception.h"
#include "host/host_trace.h"
#include "host/netcore_version_parser.h"
#include "host/pal.h"
#include "host/utils.h"
#include "temporary_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

TEST(RuntimeFolderName, IsAcceptedOnlyInItsExactForm) {
    const struct {
        const char* name;
        int major, minor; // -1: refused
        const char* why;
    } rows[] = {
        {"netcore6.0", 6, 0, "plain"},
        {"netcore10.12", 10, 12, "two digits"},
        {"netcore06.00", 6, 0, "leading zeros"},
        {"netcore6", -1, -1, "no dot"},
        {"netcore6.", -1, -1, "no minor"},
        {"netcore.1", -1, -1, "no major"},
        {"netcore6.0.1", -1, -1, "two dots"},
        {"netcore6.x", -1, -1, "not digits"},
        {"NetCore6.0", -1, -1, "case matters"},
        {"netcore-6.0", -1, -1, "a sign is no digit"},
        {"", -1, -1, "empty"},
    };
    for (const auto& row : rows) {
        NetcoreVersion version(-1, -1);
        EXPECT_EQ(try_parse(row.name, version), row.major >= 0) << row.why;
        EXPECT_EQ(version.m_major, row.major) << row.why;
        EXPECT_EQ(version.m_minor, row.minor) << row.why;
    }
    NetcoreVersion version(0, 0);
    EXPECT_THROW(try_parse("netcore99999999999.0", version), std::out_of_range);
}

TEST(RuntimeFolder, IsTheHighestVersionThatHoldsTheFile) {
    const TemporaryFolder root;
    for (const char* name : {"netcore9.0", "netcore10.0", "netcore11.0", "runtime12.0"}) {
        root.folder(name);
    }
    root.file("netcore9.0/wrap.so");
    root.file("netcore10.0/wrap.so");
    root.file("runtime12.0/wrap.so");
    std::filesystem::create_directory_symlink(root / "netcore10.0", root / "netcore12.0");
    std::string found = "untouched";
    EXPECT_FALSE(pal::get_major_netcore_path(root.path(), "absent.so", found));
    EXPECT_EQ(found, "untouched");
    // Versions compare as numbers; the folder without the file and the link do not count.
    EXPECT_TRUE(pal::get_major_netcore_path(root.path(), "wrap.so", found));
    EXPECT_EQ(found, root / "netcore10.0");
    // A trailing slash is kept and doubled.
    EXPECT_TRUE(pal::get_major_netcore_path(root.path() + "/", "wrap.so", found));
    EXPECT_EQ(found, root.path() + "//netcore10.0");
    EXPECT_FALSE(pal::get_major_netcore_path(root / "nowhere", "wrap.so", found));
}

TEST(AssemblyFolders, EndWithTheDrawingTypesOfTheFamily) {
    const TemporaryFolder root;
    root.folder("cad");
    root.folder("pydrawing/debug");
    root.folder("pyreflection");
    root.file("readme");
    std::vector<std::string> folders;
    pal::get_app_folders(root.path(), false, folders);
    ASSERT_EQ(folders.size(), 3u);
    EXPECT_EQ(folders.back(), root / "pydrawing");
    EXPECT_TRUE(std::count(folders.begin(), folders.end(), root / "cad"));
    folders.clear();
    pal::get_app_folders(root.path(), true, folders);
    EXPECT_EQ(folders, std::vector<std::string>{root / "pydrawing/debug"});
}

TEST(Paths, AreBuiltAndTakenApartAsStrings) {
    EXPECT_EQ(pal::build_path("a", "b", std::string("c")), "a/b/c");
    EXPECT_EQ(pal::build_path("a/", "b"), "a//b");
    EXPECT_EQ(pal::build_path("", "x"), "x");
    EXPECT_EQ(pal::path_get_directory("/usr/bin/python"), "/usr/bin");
    EXPECT_EQ(pal::path_get_directory("/python"), "");
    EXPECT_EQ(pal::path_get_directory("python"), "");
    EXPECT_TRUE(pal::path_is_relative(""));
    EXPECT_TRUE(pal::path_is_relative("a/b"));
    EXPECT_FALSE(pal::path_is_relative("/a"));
    EXPECT_TRUE(pal::is_file_exists("/tmp")); // a directory can be opened
    EXPECT_EQ(pal::join({"a", "b", "a"}, ':', false), "a:b:a");
    EXPECT_EQ(pal::join_unique({"a", "b", "a"}, ':'), "a:b");
    EXPECT_EQ(pal::join({}, ':', true), "");
    EXPECT_EQ(pal::join_to_full_path("/base", {"x", "/y"}, ':'), "/base/x:/y");
    EXPECT_EQ(pal::join_to_full_path("", {""}, ':'), ":");
}

TEST(Environment, TreatsAnEmptyVariableAsUnset) {
    std::string value = "before";
    unsetenv("KORVAN_TEST_VARIABLE");
    EXPECT_FALSE(pal::getenv("KORVAN_TEST_VARIABLE", value));
    EXPECT_EQ(value, "");
    setenv("KORVAN_TEST_VARIABLE", "", 1);
    EXPECT_FALSE(pal::getenv("KORVAN_TEST_VARIABLE", value));
    setenv("KORVAN_TEST_VARIABLE", "x", 1);
    EXPECT_TRUE(pal::getenv("KORVAN_TEST_VARIABLE", value));
    EXPECT_EQ(value, "x");
}

TEST(Trace, IsSwitchedOnByAPositiveNumber) {
    const struct {
        const char* value;
        bool enabled;
    } rows[] = {{"0", false}, {"-1", false}, {"yes", false}, {"1", true}, {"2", true}};
    for (const auto& row : rows) {
        trace::disable();
        setenv("COREHOST_TRACE", row.value, 1);
        testing::internal::CaptureStdout();
        trace::initialize();
        fflush(stdout);
        const std::string printed = testing::internal::GetCapturedStdout();
        EXPECT_EQ(trace::is_enabled(), row.enabled) << row.value;
        EXPECT_EQ(printed, row.enabled ? "CLR host tracing enabled\r\n" : "") << row.value;
    }
    testing::internal::CaptureStdout();
    trace::disable();
    trace::warning("nobody sees %s", "this");
    fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    testing::internal::CaptureStderr();
    trace::error("always %d", 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "always 1\r\n");
    unsetenv("COREHOST_TRACE");
}

TEST(Texts, OfFailuresThatEndOrStopTheStart) {
    const char* keys[] = {"TRUSTED_PLATFORM_ASSEMBLIES", "APP_PATHS"};
    const char* values[] = {"", "/a"};
    EXPECT_STREQ(CoreClrInitException(-1, "/bin/python", "Domain", 2, keys, values).what(),
                 "coreclr_initialize failed (0xffffffff) [<APP_DOMAIN_NAME>='Domain',"
                 "<HOST_EXE_PATH>='/bin/python',<TRUSTED_PLATFORM_ASSEMBLIES>='',"
                 "<APP_PATHS>='/a']");
    EXPECT_EQ(missing_method_error_message("Assembly", "Some.Type", "Method", -5),
              "While initializing the host for the 'Some.Type (Assembly=Assembly)' type, an error "
              "occurred - Method 'Method' not found (error=-5)");
    EXPECT_EQ(missing_method_error_message("Assembly", nullptr, "Method", -5),
              "While initializing the host for the '");
}

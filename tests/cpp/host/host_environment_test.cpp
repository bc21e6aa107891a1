// The start of the host, against the scripted wrap library. The host is a singleton that ends with
// its process, so every start runs in a child.
#include "host/exchange_host.h"
#include "host/host_environment.h"
#include "host/host_record.h"
#include "host/object_host.h"
#include "scripted_wrap.h"
#include "temporary_folder.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <iostream>

namespace {

constexpr const char* exchange_type = "Korvan.WrpGen.Interop.ExchangeHost";

// An installation whose wrap library is the scripted one.
struct Installation {
    TemporaryFolder root;
    std::string runtime;

    Installation() {
        root.folder("netcore/netcore10.0");
        root.folder("assemblies/cad");
        runtime = root / "netcore/netcore10.0";
        std::filesystem::copy_file(KORVAN_SCRIPTED_WRAP,
                                   runtime + "/libkorvan.embed.coreclrwrap.so");
        setenv("NETCORE_WRAPPER_NETCORE_DIR_korvan", (root / "netcore").c_str(), 1);
        setenv("NETCORE_WRAPPER_ASSEMBLY_DIR_korvan", (root / "assemblies").c_str(), 1);
    }

    HostEnvironment& start() const {
        return HostEnvironment::instance("", false, "korvan", "cad", nullptr, nullptr);
    }

    template <class Function> Function* scripted(const char* name) const {
        void* library =
            dlopen((runtime + "/libkorvan.embed.coreclrwrap.so").c_str(), RTLD_NOW | RTLD_GLOBAL);
        return reinterpret_cast<Function*>(dlsym(library, name));
    }
};

// Ends the child: with 0 and what was to be shown, or with a text of what was wrong.
void expect_in_child(bool holds, const char* what) {
    if (!holds) {
        std::cerr << "wrong: " << what << "\n";
        _exit(1);
    }
}

} // namespace

TEST(Host, HandsTheFivePropertiesToTheRuntimeOnce) {
    EXPECT_EXIT(
        {
            const Installation installation;
            HostEnvironment& host = installation.start();
            expect_in_child(&installation.start() == &host, "second instance");
            const std::string folders =
                (installation.root / "assemblies/cad") + ":" + installation.runtime;
            expect_in_child(
                installation.scripted<const char*()>("scripted_wrap_properties")() ==
                    "TRUSTED_PLATFORM_ASSEMBLIES=\nAPP_PATHS=" + folders +
                        "\nAPP_NI_PATHS=" + folders + "\nNATIVE_DLL_SEARCH_DIRECTORIES=" + folders +
                        "\nAppDomainCompatSwitch=UseLatestBehaviorWhenTFMNotSpecified\n",
                "properties");
            const auto count = installation.scripted<int(const char*)>("scripted_wrap_count");
            expect_in_child(count("initialize") == 1 && count("load") == 1, "started once");
            expect_in_child(!host.create_default_app_domain(), "second domain");
            expect_in_child(host.try_shutdown_default_app_domain() == 0, "shutdown");
            expect_in_child(host.try_shutdown_default_app_domain() == -1, "second shutdown");
            expect_in_child(count("shutdown") == 1, "shut down once");
            _exit(0);
        },
        testing::ExitedWithCode(0), "");
}

TEST(Host, AttachesWhereTheLibraryIsLoadedAlready) {
    EXPECT_EXIT(
        {
            const Installation installation;
            const auto count = installation.scripted<int(const char*)>("scripted_wrap_count");
            HostEnvironment& host = installation.start();
            expect_in_child(count("load") == 0 && count("initialize") == 0, "no second start");
            expect_in_child(count("is_domain_initialized") == 1, "asked for the domain");
            expect_in_child(host.try_shutdown_default_app_domain() == -1, "left running");
            expect_in_child(count("shutdown") == 0, "no shutdown");
            _exit(0);
        },
        testing::ExitedWithCode(0), "");
}

TEST(Host, JoinsTheRuntimeOfTheProcessWhateverTheEnvironmentSays) {
    EXPECT_EXIT(
        {
            const Installation installation;
            unsetenv("NETCORE_WRAPPER_NETCORE_DIR_korvan");
            unsetenv("NETCORE_WRAPPER_ASSEMBLY_DIR_korvan");
            expect_in_child(!HostEnvironment::join_running(), "nothing to join");
            const auto count = installation.scripted<int(const char*)>("scripted_wrap_count");
            expect_in_child(HostEnvironment::join_running(), "joined");
            expect_in_child(count("load") == 0 && count("is_domain_initialized") == 1, "no start");
            _exit(0);
        },
        testing::ExitedWithCode(0), "");
}

// Nothing catches what the start throws: the process ends with the reason on standard error.
static void start_with_script(const char* script) noexcept {
    const Installation installation;
    setenv("KORVAN_WRAP_SCRIPT", (installation.root / "script").c_str(), 1);
    std::ofstream(installation.root / "script") << script << "\n";
    installation.start();
}

static void start_without_runtime() noexcept {
    const TemporaryFolder empty;
    setenv("NETCORE_WRAPPER_NETCORE_DIR_korvan", empty.path().c_str(), 1);
    HostEnvironment::instance("", false, "korvan", "cad", nullptr, nullptr);
}

TEST(Host, EndsTheProcessWithItsReasonWhenItCantStart) {
    EXPECT_DEATH(start_without_runtime(), "DynamicLibrary::load");
    EXPECT_DEATH(start_with_script("load 0"), "init coreclr wap");
    EXPECT_DEATH(start_with_script("initialize -2147450743"),
                 "coreclr_initialize failed \\(0x80008089\\) \\[<APP_DOMAIN_NAME>='Korvan");
}

TEST(ExchangeHost, StopsAtTheFirstMissingMethodInBindingOrder) {
    const struct {
        const char* missing;
        int asked; // delegates asked for, the missing one included
    } rows[] = {{"GetTypeName", 1}, {"SetPyStrBuilderCallback", 6}, {"BoxStcTarget", 15}};
    for (const auto& row : rows) {
        EXPECT_EXIT(
            {
                const Installation installation;
                installation.start();
                installation.scripted<void(const char*, const char*, int)>("scripted_wrap_fail")(
                    exchange_type, row.missing, -7);
                ExchangeHost& exchange = ExchangeHost::get_instance();
                expect_in_child(!exchange.initialize("Some.Assembly"), "initialize");
                const auto count = installation.scripted<int(const char*)>("scripted_wrap_count");
                expect_in_child(count("create_delegate") == row.asked, "count");
                std::cerr << exchange.error_msg();
                _exit(0);
            },
            testing::ExitedWithCode(0),
            std::string("ExchangeHost \\(Assembly=Some.Assembly\\)' type, an error occurred - "
                        "Method '") +
                row.missing + "' not found \\(error=-7\\)");
    }
}

TEST(ExchangeHost, FreesStructsThroughTheMethodForObjects) {
    EXPECT_EXIT(
        {
            static int freed = 0;
            const Installation installation;
            installation.start();
            installation.scripted<void(const char*, const char*, void*)>("scripted_wrap_serve")(
                exchange_type, "FreeInstance",
                reinterpret_cast<void*>(+[](void* handle) { freed += handle == &freed; }));
            ExchangeHost& exchange = ExchangeHost::get_instance();
            expect_in_child(exchange.initialize("Some.Assembly"), exchange.error_msg().c_str());
            exchange.free_instance(&freed);
            exchange.free_struct(&freed);
            expect_in_child(freed == 2, "both reached the managed method");
            _exit(0);
        },
        testing::ExitedWithCode(0), "");
}

TEST(ObjectHost, StaysInvalidOnceAMethodWasMissing) {
    EXPECT_EXIT(
        {
            const Installation installation;
            installation.start();
            ExchangeHost::get_instance().initialize("Some.Assembly");
            const auto fail =
                installation.scripted<void(const char*, const char*, int)>("scripted_wrap_fail");
            fail("Korvan.WrpGen.Interop.ObjectHost", "Dispose", -9);
            expect_in_child(ObjectHost::get_instance().is_not_valid(), "invalid");
            installation.scripted<void()>("scripted_wrap_reset")();
            expect_in_child(ObjectHost::get_instance().is_not_valid(), "nothing retries");
            std::cerr << ObjectHost::get_instance().error_msg();
            _exit(0);
        },
        testing::ExitedWithCode(0), "Method 'Dispose' not found \\(error=-9\\)");
}

static void bind_with_one_missing() {
    const Installation installation;
    installation.start();
    ExchangeHost::get_instance().initialize("Some.Assembly");
    void* slots[3] = {};
    HostRecord host = {"Wrapper", "first\0second\0third\0", slots, 3};
    installation.scripted<void(const char*, const char*, int)>("scripted_wrap_fail")("Wrapper",
                                                                                     "second", 5);
    expect_in_child(host_is_not_valid(host), "invalid");
    expect_in_child(slots[0] != nullptr && slots[2] == nullptr, "stopped at the second");
    installation.scripted<void()>("scripted_wrap_reset")();
    expect_in_child(host_is_not_valid(host), "nothing retries");
    std::cerr << *host.error;
    _exit(0);
}

TEST(HostRecord, BindsInOrderAndKeepsTheFirstFailure) {
    EXPECT_EXIT(bind_with_one_missing(), testing::ExitedWithCode(0),
                "'Wrapper \\(Assembly=Some.Assembly\\)'.*'second'.*error=5");
}

// What a codec unit makes of the services that its process offers: each case in a process of its own, as a unit looks
// once.
//
// The program has its own dlsym, so that a case can offer and count as it likes.

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/osal.h"
#include "reference/decode.h"
#include "reference/encode.h"
#include "reference/generate.h"
#include "reference/memory.h"
#include "tests/support/figures.h"
#include "tests/support/malloc_double.h"
#include "tests/support/unit_uses.h"
#include "tools/operations.h"

namespace {

using kesto::tests::malloc_watch;
using kesto::tests::one_empty_text;
using kesto::tests::Use;
using kesto::tests::use_every_unit;
using kesto::tests::uses;
using kesto::tests::WatchMalloc;

struct Offer {
    const char* name;
    int use_flag;   // what RVL_OsalMemUseFlagGet answers; -1 for no such service
    bool allocate;
    bool release;
    bool log;
    bool services_used;   // expected
};

const Offer offers[] = {
    {"nothing", -1, false, false, false, false},    {"memory_without_the_flag", -1, true, true, true, false},
    {"flag_0", 0, true, true, true, false},         {"flag_2", 2, true, true, true, false},
    {"flag_1_alone", 1, false, false, true, false}, {"no_release", 1, true, false, true, false},
    {"no_allocate", 1, false, true, true, false},   {"memory_without_log", 1, true, true, false, true},
    {"everything", 1, true, true, true, true},
};

const Offer* offer = &offers[0];
std::atomic<int> lookups_of_flag, lookups_of_allocate, lookups_of_release, lookups_of_log;
std::atomic<int> allocated, released, logged;
std::function<void()> at_lookup = [] {};   // what happens while the service answers

std::uint32_t use_flag(std::uint32_t module)
{
    at_lookup();
    return module == 12 ? static_cast<std::uint32_t>(offer->use_flag) : 0;
}

void* service_allocate(std::uint32_t size, std::uint32_t, const char*)
{
    ++allocated;
    return std::malloc(size);
}

void service_release(void* pointer, std::uint32_t, const char*)
{
    ++released;
    std::free(pointer);
}

std::uint32_t service_log(const OsalLogDescriptor*, std::uint32_t, std::uint32_t, const char*, std::uint32_t,
                          const char*, const char*, ...)
{
    ++logged;
    return 1;
}

// A thread that begins when another one has come to a look-up, which does not end before the newcomer has, or waits.
struct Newcomer {
    const char* service = "";   // the look-up; none once it has been met
    std::atomic<int> thread = 0;
    std::atomic<bool> may_start = false, finished = false;

    void reset(const char* at)
    {
        service = at;
        thread = 0;
        may_start = finished = false;
    }

    void start()
    {
        thread = gettid();
        while (!may_start)
            std::this_thread::yield();
    }

    void meet(const char* name)
    {
        if (std::strcmp(name, service) != 0)
            return;
        service = "";
        may_start = true;
        while (!finished && !is_asleep())
            std::this_thread::yield();
    }

private:
    bool is_asleep() const
    {
        std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
        std::string stat;
        std::getline(file, stat);
        const std::size_t state = stat.rfind(") ");
        return state != std::string::npos && stat[state + 2] == 'S';
    }
};

Newcomer newcomer;

// In the child of a case: prints what is not as expected and ends the process.
class Verdict {
public:
    void expect(const char* what, int is, int expected)
    {
        if (is != expected) {
            std::fprintf(stderr, "%s: %d, expected %d\n", what, is, expected);
            failed_ = true;
        }
    }
    [[noreturn]] void end() const { std::exit(failed_ ? 1 : 0); }

private:
    bool failed_ = false;
};

// Runs a case in a process of its own.
template <class Case>
void expect_in_child(Case run)
{
    const auto child = [&] {
        Verdict verdict;
        run(verdict);
        verdict.end();
    };
    EXPECT_EXIT(child(), testing::ExitedWithCode(0), "^$");
}

void expect_one_lookup_for_each_unit(Verdict& verdict)
{
    verdict.expect("look-ups of the flag", lookups_of_flag, 8);
    verdict.expect("look-ups of allocate", lookups_of_allocate, offer->use_flag == 1 ? 8 : 0);
    verdict.expect("look-ups of release", lookups_of_release, offer->use_flag == 1 ? 8 : 0);
    verdict.expect("look-ups of the log", lookups_of_log, 8);
}

class EveryOffer : public testing::TestWithParam<Offer> {};

INSTANTIATE_TEST_SUITE_P(All, EveryOffer, testing::ValuesIn(offers),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(EveryOffer, is_found_once_by_each_unit_and_never_mixed)
{
    expect_in_child([&](Verdict& verdict) {
        offer = &GetParam();
        for (const Use& use : uses) {
            const WatchMalloc watch;
            const int before = allocated;
            use.receive();
            verdict.expect("allocations", static_cast<int>(malloc_watch.mallocs), 1);
            verdict.expect("of them by the service", allocated - before, offer->services_used ? 1 : 0);
            use.send();
        }
        use_every_unit();   // the second time looks nothing up
        expect_one_lookup_for_each_unit(verdict);
        verdict.expect("allocated by the service", allocated, offer->services_used ? 8 : 0);
        verdict.expect("released by the service", released, offer->services_used ? 8 : 0);
        verdict.expect("log lines", logged, offer->log ? 16 : 0);
    });
}

TEST(Services, that_come_after_the_first_use_are_not_seen)
{
    expect_in_child([&](Verdict& verdict) {
        uses[0].receive();
        offer = &offers[8];
        uses[0].receive();
        verdict.expect("seen by the unit in use", allocated + logged, 0);
        uses[1].receive();
        verdict.expect("seen by another unit", allocated + logged, 2);
    });
}

TEST(Services, are_not_looked_up_without_need)
{
    expect_in_child([&](Verdict& verdict) {
        ifit_dfx_datetime_mesh record{};
        ifit_dfx_datetime_mesh_free__unpacked(&record);
        const std::uint8_t refused[] = {3, 0, 0, 0};
        ifit_dfx_datetime_mesh__unpack(refused, sizeof refused, &record);   // before memory is needed
        verdict.expect("memory", lookups_of_flag, 0);
        verdict.expect("log", lookups_of_log, 1);
        const std::vector<std::uint8_t>& bytes = one_empty_text;
        ifit_dfx_query_glbdata_item_mesh text{};
        ifit_dfx_query_glbdata_item_mesh__unpack(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &text);
        verdict.expect("memory", lookups_of_flag, 1);
        std::uint32_t length = 10;
        ifit_dfx_query_comm_param_mesh__pack(nullptr, nullptr, &length);
        ifit_dfx_query_comm_param_mesh__sendbatch(1, nullptr, 1, 0);
        ifit_dfx_query_comm_param_mesh__sendbatch(1, nullptr, 0, 0);
        ifit_dfx_reset_statis_mesh__sendbatch(1, nullptr, 0, 0);
        verdict.expect("memory of the send unit", lookups_of_flag, 1);
        verdict.expect("log", lookups_of_log, 1);
    });
}

// Each message as the first that its process decodes, in every form, by the fast paths and by others.
TEST(Services, are_looked_up_before_the_first_allocation_and_the_first_byte_of_any_record)
{
    namespace reference = kesto::reference;
    for (const reference::Message& message : kesto::tests::transcribed().messages) {
        reference::Random chance(message.id);
        const reference::Record full = reference::random_record(message, reference::Density::full, chance);
        const reference::Record sparse = reference::random_record(message, reference::Density::sparse, chance);
        std::vector<reference::Bytes> forms = {reference::compact_form(full), reference::compact_form(sparse)};
        if (message.fixed_length != 0)
            forms.push_back(reference::fixed_form(full));
        for (const reference::Bytes& bytes : forms)
            expect_in_child([&](Verdict& verdict) {
                offer = &offers[8];
                const kesto::tools::Operations& library = kesto::tools::operations(message.name);
                const auto length = static_cast<std::uint32_t>(bytes.size());
                reference::Outcome expected;
                reference::decode(message, bytes.data(), length, {}, expected);
                const std::vector<std::uint64_t> before(library.record_size / 8 + 1, 0xEEEEEEEEEEEEEEEE);
                std::vector<std::uint64_t> record = before;
                at_lookup = [&] { verdict.expect((message.name + ", untouched").c_str(), record == before, true); };
                library.unpack(bytes.data(), length, record.data());
                verdict.expect((message.name + ", look-ups of the flag").c_str(), lookups_of_flag, 1);
                verdict.expect((message.name + ", allocated by the service").c_str(), allocated,
                               static_cast<int>(expected.allocations));
            });
    }
}

TEST(Services, are_looked_up_by_the_general_path_and_by_a_release_too)
{
    void (*const ways[])() = {
        [] {   // one slot is missing: not for a fast path
            const std::uint8_t bytes[] = {10, 0, 0, 0, 4, 0, 4, 0, 0, 0, 6, 0, 0, 0};
            ifit_dfx_query_comm_param_mesh record{};
            ifit_dfx_query_comm_param_mesh__unpack(bytes, sizeof bytes, &record);
        },
        [] {
            ifit_dfx_query_comm_param_mesh record{};
            ifit_dfx_query_comm_param_mesh_free__unpacked(&record);
        },
    };
    for (void (*const use)() : ways)
        expect_in_child([&](Verdict& verdict) {
            offer = &offers[8];
            use();
            verdict.expect("look-ups of the flag", lookups_of_flag, 1);
        });
}

TEST(Services, are_looked_up_by_whichever_way_of_encoding_comes_first)
{
    static const ifit_color_intf_mesh plain[2] = {};
    static const ifit_dfx_query_comm_param_mesh with_block[2] = {};
    void (*const ways[])() = {
        [] {
            std::uint8_t buffer[64];
            std::uint32_t length = sizeof buffer;
            ifit_color_intf_mesh__pack(plain, buffer, &length);
        },
        [] {   // just enough, so that the size is measured first
            std::uint8_t buffer[22];
            std::uint32_t length = sizeof buffer;
            ifit_color_intf_mesh__pack(plain, buffer, &length);
        },
        [] { ifit_color_intf_mesh__sendsingle(1, plain, 0, 0); },
        [] { ifit_color_intf_mesh__sendmsg(1, plain, 2); },
        [] { ifit_dfx_query_comm_param_mesh__sendsingle(1, with_block, 0, 0); },
        [] { ifit_dfx_query_comm_param_mesh__sendmsg(1, with_block, 2); },
    };
    for (void (*const encode)() : ways)
        expect_in_child([&](Verdict& verdict) {
            encode();
            verdict.expect("look-ups of the flag", lookups_of_flag, 1);
        });
}

// While one thread is in a look-up, another one uses the same unit: it has to wait, and then finds everything.
TEST(Services, are_found_by_a_thread_that_comes_while_another_one_looks)
{
    for (const char* const service :
         {"RVL_OsalMemUseFlagGet", "RVL_OsalMemCacheAlloc", "RVL_OsalMemFree", "RVL_OsalLogWrite"})
        expect_in_child([&](Verdict& verdict) {
            offer = &offers[8];
            for (const Use& use : uses)
                for (void (*const operation)() : {use.receive, use.send}) {
                    newcomer.reset(service);
                    std::thread second([&] {
                        newcomer.start();
                        operation();
                        newcomer.finished = true;
                    });
                    operation();
                    newcomer.may_start = true;   // also where nothing was looked up
                    second.join();
                }
            expect_one_lookup_for_each_unit(verdict);
            verdict.expect("allocated by the service", allocated, 8);
            verdict.expect("released by the service", released, 8);
            verdict.expect("log lines", logged, 16);
        });
}

// With the plain pair it is malloc that fails, at each allocation of a record that has every part, once or from there
// on.
TEST(Services, plain_allocation_may_fail_anywhere)
{
    namespace reference = kesto::reference;
    expect_in_child([&](Verdict& verdict) {
        offer = &offers[1];
        int failures = 0;
        for (const reference::Message& message : kesto::tests::transcribed().messages) {
            const kesto::tools::Operations& library = kesto::tools::operations(message.name);
            reference::Random chance(message.id);
            const reference::Bytes bytes =
                reference::compact_form(reference::random_record(message, reference::Density::full, chance));
            const auto length = static_cast<std::uint32_t>(bytes.size());
            const std::vector<std::uint64_t> zeros(library.record_size / 8 + 1);
            reference::DecodeOptions options;
            reference::Outcome expected;
            for (const bool all_after : {false, true}) {
                std::uint32_t at = 0;
                do {
                    options.faults = {at, all_after};
                    reference::decode(message, bytes.data(), length, options, expected);
                    std::uint32_t releases = 0;
                    int lines = logged;
                    for (const reference::Event& event : expected.trace) {
                        releases += event.act == reference::Act::release && event.block >= 0;
                        lines += event.act == reference::Act::log;
                    }
                    std::vector<std::uint64_t> record = zeros;
                    {
                        const WatchMalloc watch(at, all_after);
                        library.unpack(bytes.data(), length, record.data());
                    }
                    verdict.expect("mallocs", static_cast<int>(malloc_watch.mallocs),
                                   static_cast<int>(expected.allocations));
                    verdict.expect("frees", static_cast<int>(malloc_watch.frees), static_cast<int>(releases));
                    verdict.expect("log lines", logged, lines);
                    const std::string fault = reference::difference(expected.record, record.data());
                    verdict.expect((message.name + " " + fault).c_str(), fault.empty(), true);
                    library.free_unpacked(record.data());
                    ++at;
                    failures += expected.failure ? 1 : 0;
                } while (expected.failure);
            }
        }
        verdict.expect("some failed", failures > 100, true);
    });
}

}   // namespace

// ---- the process's dlsym and MESH ----

extern "C" {

void* dlsym(void* handle, const char* name) noexcept
{
    const auto found = [](bool offered, auto* function) {
        return offered ? reinterpret_cast<void*>(function) : nullptr;
    };
    if (handle != RTLD_DEFAULT)
        return nullptr;
    newcomer.meet(name);
    if (std::strcmp(name, "RVL_OsalMemUseFlagGet") == 0) {
        ++lookups_of_flag;
        return found(offer->use_flag >= 0, use_flag);
    }
    if (std::strcmp(name, "RVL_OsalMemCacheAlloc") == 0) {
        ++lookups_of_allocate;
        return found(offer->allocate, service_allocate);
    }
    if (std::strcmp(name, "RVL_OsalMemFree") == 0) {
        ++lookups_of_release;
        return found(offer->release, service_release);
    }
    if (std::strcmp(name, "RVL_OsalLogWrite") == 0) {
        ++lookups_of_log;
        return found(offer->log, service_log);
    }
    return nullptr;
}

}   // extern "C"

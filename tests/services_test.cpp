// How a codec unit uses the services that its process offers. Each case has its own process, as a unit looks them up
// only once.
//
// The program has its own dlsym, so that a case can choose which services to offer and can count look-ups.

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

#include "model/decode.h"
#include "model/encode.h"
#include "model/generate.h"
#include "tests/support/counting_services.h"
#include "tests/support/figures.h"
#include "tests/support/malloc_double.h"
#include "tests/support/unit_uses.h"
#include "tools/operations.h"

namespace kesto::tests {
namespace {

struct Service {
    const char* name;
    void* function;
    std::atomic<std::uint32_t> lookups = 0;
};

enum ServiceNumber { flag, allocate, release, log_write, service_count };

Service services[service_count] = {
    {"RVL_OsalMemUseFlagGet", reinterpret_cast<void*>(RVL_OsalMemUseFlagGet)},
    {"RVL_OsalMemCacheAlloc", reinterpret_cast<void*>(RVL_OsalMemCacheAlloc)},
    {"RVL_OsalMemFree", reinterpret_cast<void*>(RVL_OsalMemFree)},
    {"RVL_OsalLogWrite", reinterpret_cast<void*>(RVL_OsalLogWrite)},
};

struct Offer {
    const char* name;
    std::uint32_t use_flag;
    bool has[service_count];
    bool memory_used;   // expected
};

const Offer everything = {"everything", 1, {true, true, true, true}, true};
const Offer offers[] = {
    {"nothing", 1, {false, false, false, false}, false},
    {"memory_without_the_flag", 1, {false, true, true, true}, false},
    {"flag_0", 0, {true, true, true, true}, false},
    {"flag_2", 2, {true, true, true, true}, false},
    {"flag_1_alone", 1, {true, false, false, true}, false},
    {"no_release", 1, {true, true, false, true}, false},
    {"no_allocate", 1, {true, false, true, true}, false},
    {"memory_without_log", 1, {true, true, true, false}, true},
    everything,
};

const Offer* offer = &everything;

// A thread that starts when another one has reached a look-up. The look-up does not return until the late thread has
// finished or is blocked.
struct LateThread {
    const char* service = "";   // the look-up; empty once it has been reached
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

    void on_lookup(const char* name)
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

LateThread late_thread;

// Runs in the child process of a case: prints differences from the expectation and ends the process.
class Verdict {
public:
    void expect(const std::string& what, std::uint32_t is, std::uint32_t expected)
    {
        if (is != expected) {
            std::fprintf(stderr, "%s: %u, expected %u\n", what.c_str(), is, expected);
            failed_ = true;
        }
    }
    [[noreturn]] void end() const { std::exit(failed_ ? 1 : 0); }

private:
    bool failed_ = false;
};

// Runs a case in its own process.
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

// After use of all units: each has looked up the services that it needs exactly once, whether they exist or not.
void expect_one_lookup_per_unit(Verdict& verdict)
{
    const bool needs_pair = offer->has[flag] && offer->use_flag == 1;
    for (const Service& service : services) {
        const bool is_pair = &service == &services[allocate] || &service == &services[release];
        verdict.expect(service.name, service.lookups, is_pair && !needs_pair ? 0 : units);
    }
    verdict.expect("allocated by the service", allocated, offer->memory_used ? units : 0);
    verdict.expect("released by the service", released, offer->memory_used ? units : 0);
    verdict.expect("log lines", logged, offer->has[log_write] ? 2 * units : 0);
}

class EveryOffer : public testing::TestWithParam<Offer> {};

INSTANTIATE_TEST_SUITE_P(All, EveryOffer, testing::ValuesIn(offers),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(EveryOffer, is_looked_up_once_per_unit_and_never_mixed_with_malloc)
{
    expect_in_child([&](Verdict& verdict) {
        offer = &GetParam();
        use_flag = offer->use_flag;
        for (const Use& use : uses) {
            const WatchMalloc watch;
            const std::uint32_t before = allocated;
            use.receive();
            verdict.expect("allocations", malloc_watch.mallocs, 1);
            verdict.expect("frees", malloc_watch.frees, 1);
            verdict.expect("of them by the service", allocated - before, offer->memory_used);
            use.send();
        }
        use_every_unit();   // the second use looks nothing up
        expect_one_lookup_per_unit(verdict);
    });
}

TEST(Services, are_looked_up_only_when_needed)
{
    expect_in_child([](Verdict& verdict) {
        ifit_dfx_datetime_mesh record{};
        ifit_dfx_datetime_mesh_free__unpacked(&record);
        const std::uint8_t refused[] = {3, 0, 0, 0};
        ifit_dfx_datetime_mesh__unpack(refused, sizeof refused, &record);   // refused before memory is needed
        verdict.expect("memory", services[flag].lookups, 0);
        verdict.expect("log", services[log_write].lookups, 1);
        const std::vector<std::uint8_t>& bytes = one_empty_text;
        ifit_dfx_query_glbdata_item_mesh text{};
        ifit_dfx_query_glbdata_item_mesh__unpack(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &text);
        verdict.expect("memory", services[flag].lookups, 1);
        std::uint32_t length = 10;
        ifit_dfx_query_comm_param_mesh__pack(nullptr, nullptr, &length);
        ifit_dfx_query_comm_param_mesh__sendbatch(1, nullptr, 1, 0);
        ifit_dfx_query_comm_param_mesh__sendbatch(1, nullptr, 0, 0);
        ifit_dfx_reset_statis_mesh__sendbatch(1, nullptr, 0, 0);
        verdict.expect("memory of the send unit", services[flag].lookups, 1);
        verdict.expect("log", services[log_write].lookups, 1);
    });
}

// Every message in every form as the first one that a process decodes, on fast paths and on general paths.
TEST(Services, are_looked_up_before_any_allocation_or_write_to_the_record)
{
    for (const model::Message& message : expected_catalogue().messages) {
        model::Random chance(message.id);
        const model::Record full = model::random_record(message, model::Density::full, chance);
        const model::Record sparse = model::random_record(message, model::Density::sparse, chance);
        std::vector<model::Bytes> forms = {model::compact_form(full), model::compact_form(sparse)};
        if (message.fixed_length != 0)
            forms.push_back(model::fixed_form(full));
        for (const model::Bytes& bytes : forms)
            expect_in_child([&](Verdict& verdict) {
                const tools::Operations& library = tools::operations(message.name);
                const auto length = static_cast<std::uint32_t>(bytes.size());
                model::Outcome expected;
                model::decode(message, bytes.data(), length, {}, expected);
                const std::vector<std::uint64_t> before(library.record_size / 8 + 1, 0xEEEEEEEEEEEEEEEE);
                std::vector<std::uint64_t> record = before;
                at_flag_read = [&] { verdict.expect(message.name + ", untouched", record == before, true); };
                library.unpack(bytes.data(), length, record.data());
                verdict.expect(message.name + ", look-ups of the flag", services[flag].lookups, 1);
                verdict.expect(message.name + ", allocated by the service", allocated, expected.allocations);
            });
    }
}

TEST(Services, are_looked_up_whichever_operation_comes_first)
{
    static const ifit_dfx_datetime_mesh plain[2] = {};
    static const ifit_dfx_query_comm_param_mesh with_block[2] = {};
    void (*const first_uses[])() = {
        [] {   // one slot is missing, so fast paths decline
            const std::uint8_t bytes[] = {10, 0, 0, 0, 4, 0, 4, 0, 0, 0, 6, 0, 0, 0};
            ifit_dfx_query_comm_param_mesh record{};
            ifit_dfx_query_comm_param_mesh__unpack(bytes, sizeof bytes, &record);
        },
        [] {
            ifit_dfx_query_comm_param_mesh record{};
            ifit_dfx_query_comm_param_mesh_free__unpacked(&record);
        },
        [] {
            std::uint8_t buffer[64];
            std::uint32_t length = sizeof buffer;
            ifit_dfx_datetime_mesh__pack(plain, buffer, &length);
        },
        [] {   // exact capacity, so that the size is measured first
            std::uint8_t buffer[24];
            std::uint32_t length = sizeof buffer;
            ifit_dfx_datetime_mesh__pack(plain, buffer, &length);
        },
        [] { ifit_dfx_datetime_mesh__sendsingle(1, plain, 0, 0); },
        [] { ifit_dfx_datetime_mesh__sendmsg(1, plain, 2); },
        [] { ifit_dfx_query_comm_param_mesh__sendsingle(1, with_block, 0, 0); },
        [] { ifit_dfx_query_comm_param_mesh__sendmsg(1, with_block, 2); },
    };
    for (void (*const use)() : first_uses)
        expect_in_child([&](Verdict& verdict) {
            use();
            verdict.expect("look-ups of the flag", services[flag].lookups, 1);
        });
}

// Another thread uses a unit while one looks up its services. It must wait and then find all of them.
TEST(Services, are_found_by_a_thread_that_arrives_during_a_lookup)
{
    for (const Service& service : services)
        expect_in_child([&](Verdict& verdict) {
            for (const Use& use : uses)
                for (void (*const operation)() : {use.receive, use.send}) {
                    late_thread.reset(service.name);
                    std::thread second([&] {
                        late_thread.start();
                        operation();
                        late_thread.finished = true;
                    });
                    operation();
                    late_thread.may_start = true;   // also if nothing was looked up
                    second.join();
                }
            expect_one_lookup_per_unit(verdict);
        });
}

}   // namespace
}   // namespace kesto::tests

// ---- the process's dlsym ----

extern "C" void* dlsym(void* handle, const char* name) noexcept
{
    using namespace kesto::tests;
    for (int i = 0; i < service_count && handle == RTLD_DEFAULT; ++i)
        if (std::strcmp(name, services[i].name) == 0) {
            late_thread.on_lookup(name);
            ++services[i].lookups;
            return offer->has[i] ? services[i].function : nullptr;
        }
    return nullptr;
}

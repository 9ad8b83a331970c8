// First use of all units by concurrent threads. A separate program, as it also runs under the race detector, which does
// not allow a test to define its own dlsym.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/support/counting_services.h"
#include "tests/support/unit_uses.h"

namespace kesto::tests {
namespace {

TEST(FirstUse, concurrent_threads_look_up_services_once_per_unit)
{
    std::atomic<int> waiting = 8;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&] {
            --waiting;
            while (waiting != 0) {}
            for (int round = 0; round < 100; ++round)
                use_every_unit();
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(flag_reads, units);
    EXPECT_EQ(allocated, 8u * 100 * (units / 2));
    EXPECT_EQ(released, 8u * 100 * (units / 2));
    EXPECT_EQ(logged, 8u * 100 * units);
}

}   // namespace
}   // namespace kesto::tests

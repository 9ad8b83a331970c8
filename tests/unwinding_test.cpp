// The stack can be unwound through every operation of the library, so that a debugger that stops in MESH or in a memory
// service shows the callers.

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <unwind.h>

#include <cstring>

#include "model/encode.h"
#include "model/generate.h"
#include "model/memory.h"
#include "tests/support/counting_services.h"
#include "tests/support/figures.h"
#include "tests/support/mesh_double.h"
#include "tools/operations.h"

namespace kesto::tests {
namespace {

int calls = 0, calls_from_main = 0;

// The program exports its functions, so that they have names here.
_Unwind_Reason_Code visit_frame(_Unwind_Context* context, void* found)
{
    Dl_info function;
    if (dladdr(reinterpret_cast<void*>(_Unwind_GetIP(context) - 1), &function) != 0 && function.dli_sname != nullptr &&
        std::strcmp(function.dli_sname, "main") == 0)
        *static_cast<bool*>(found) = true;
    return _URC_NO_REASON;
}

[[gnu::noinline]] void look_for_main()
{
    bool found = false;
    _Unwind_Backtrace(visit_frame, &found);
    ++calls;
    calls_from_main += found;
}

TEST(Unwinding, reaches_main_from_mesh_and_from_the_memory_service)
{
    mesh().at_send = look_for_main;
    at_memory_call = look_for_main;
    for (const model::Message& message : expected_catalogue().messages) {
        const tools::Operations& library = tools::operations(message.name);
        model::Random random(message.id);
        const std::vector<model::Record> records(2, model::random_record(message, model::Density::full, random));
        const model::RecordMemory memory(records);
        calls = calls_from_main = 0;
        library.sendsingle(1, memory.data(), 0, 2);
        library.sendbatch(1, memory.data(), 2, 0);
        library.sendmsg(1, memory.data(), 1);
        library.sendtomsg(1, memory.data(), 2, 3);
        EXPECT_EQ(calls, 4) << message.name;
        const model::Bytes bytes = model::compact_form(records[0]);
        std::vector<std::uint64_t> record(library.record_size / 8 + 1);
        library.unpack(bytes.data(), static_cast<std::uint32_t>(bytes.size()), record.data());
        EXPECT_EQ(calls > 4, message.owns_blocks) << message.name;
        library.free_unpacked(record.data());
        EXPECT_EQ(calls_from_main, calls) << message.name;
    }
}

}   // namespace
}   // namespace kesto::tests

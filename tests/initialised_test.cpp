// Sends every message through the MESH stand-in, which examines each byte that it receives. The memory sanitizer
// reports uninitialised bytes there: padding of a record, a gap in a form, stack contents.
//
// No test framework is used, as the sanitizer does not track writes by the precompiled C++ library.

#include <algorithm>
#include <cstdio>

#include "model/decode.h"
#include "model/encode.h"
#include "model/generate.h"
#include "model/memory.h"
#include "platform/standin/mesh_standin.h"
#include "tests/support/figures.h"
#include "tools/operations.h"

using namespace kesto;

namespace {

int failures = 0;
unsigned received = 0;

void expect(bool holds, const char* message, const char* what)
{
    if (holds)
        return;
    std::printf("%s: %s\n", message, what);
    ++failures;
}

// Delivered records are compared with the sent ones, which examines every byte of every field.
void on_message(void* context, uint32_t, uint32_t, const void* record, uint32_t, const uint8_t*, uint32_t)
{
    const auto* sent = static_cast<const std::vector<model::Record>*>(context);
    const model::Record& expected = (*sent)[received++ % sent->size()];
    expect(model::difference(model::as_decoded(expected), record).empty(), expected.message->name.c_str(),
           "arrived as another record");
}

void send(const tools::Operations& library, std::vector<model::Record>& records)
{
    mesh_standin_set_consumer(1, on_message, &records);
    const model::RecordMemory memory(records);
    received = 0;
    expect(library.sendmsg(1, memory.data(), 1) == 0, library.name, "single send");
    received = 0;
    expect(library.sendtomsg(1, memory.data(), static_cast<uint32_t>(records.size()), 5) == 0, library.name,
           "batch send");
    expect(received == records.size(), library.name, "not all delivered");

    // Packed: checks the bytes that the packer has written, which may be fewer than it reports.
    const model::Bytes expected = model::compact_form(records[0]);
    std::vector<uint8_t> buffer(1 << 16);
    uint32_t length = 1 << 16;
    expect(library.pack(memory.data(), buffer.data(), &length) == 0, library.name, "pack");
    expect(std::equal(expected.begin(), expected.end(), buffer.begin()), library.name, "packed other bytes");
}

}   // namespace

int main()
{
    mesh_standin_check_initialised(1);
    for (const tools::ModuleOperations& module : tools::module_operations())
        if (module.recv_init() != 0)
            return 1;
    model::Random random(7);
    for (const model::Message& message : tests::expected_catalogue().messages)
        for (const model::Density density : model::densities)
            for (int round = 0; round < 3; ++round) {
                std::vector<model::Record> records;
                for (int i = 0; i < 3; ++i)
                    records.push_back(model::random_record(message, density, random));
                send(tools::operations(message.name), records);
            }
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}

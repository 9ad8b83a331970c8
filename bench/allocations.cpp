// Prints how often the library allocates in one operation. A separate program, as it replaces malloc.

#include <cstdio>

#include "bench/ours.h"
#include "tests/support/malloc_double.h"

namespace kesto::bench {

namespace {

template <class Operation>
unsigned count(Operation&& operation)
{
    operation();   // a first call, so that one-time set-up is not counted
    const tests::WatchMalloc watch;
    operation();
    return tests::malloc_watch.mallocs;
}

void print_counts(const Shape& shape)
{
    const RecordSet set = make_records(shape, Fill::full);
    const Operations& library = tools::operations(shape.message);
    const bool fixed = set.records[0].message->fixed_length != 0;
    const void* const record = set.memory[0]->data();
    static u8 buffer[1 << 20];
    u32 length = 0;
    const unsigned pack = count([&] {
        length = sizeof buffer;
        library.pack(record, buffer, &length);
    });
    const unsigned unpack = count([&] {
        alignas(8) u8 decoded[record_bytes] = {};
        library.unpack(buffer, length, decoded);
        library.free_unpacked(decoded);
    });
    const std::string send = std::to_string(count([&] { library.sendsingle(0, record, 0, 0); }));
    std::printf("%-38s %7u %5u %11s %13s\n", shape.name().c_str(), unpack, pack, fixed ? send.c_str() : "-",
                fixed ? "-" : send.c_str());
}

}   // namespace

}   // namespace kesto::bench

int main()
{
    std::printf("%-38s %7s %5s %11s %13s\n", "message", "unpack", "pack", "fixed send", "compact send");
    for (const kesto::bench::Shape& shape : kesto::bench::shapes)
        kesto::bench::print_counts(shape);
    return 0;
}

// Runs each operation of the library under callgrind, one dump for each case of the benchmark; instructions.py reads
// them. Every operation runs once on each record of a set.

#include <valgrind/callgrind.h>

#include <cstdio>

#include "bench/ours.h"

namespace kesto::bench {

namespace {

u8 buffer[1 << 20];

// Once for all that is done only once and for the heap, then once counted. A dump's name says how many operations it
// is.
template <class Operation>
void count(const std::string& name, std::size_t records, Operation&& operation)
{
    const std::string dump = name + " " + std::to_string(records);
    for (std::size_t i = 0; i < records; ++i)
        operation(i);
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    for (std::size_t i = 0; i < records; ++i)
        operation(i);
    CALLGRIND_DUMP_STATS_AT(dump.c_str());
    CALLGRIND_STOP_INSTRUMENTATION;
}

void count_decodes(const std::string& name, const Operations& library, const ByteStrings& strings)
{
    alignas(8) u8 record[record_bytes] = {};
    count(name, strings.size(), [&](std::size_t i) {
        library.unpack(strings[i].data(), static_cast<u32>(strings[i].size()), record);
        library.free_unpacked(record);
    });
}

void count_all(const RecordSet& set)
{
    const Operations& library = tools::operations(set.shape.message);
    const ByteStrings packed = pack_all(library, set);
    const ByteStrings sent = send_all(library, set);
    count("send/" + set.name(), set.memory.size(),
          [&](std::size_t i) { library.sendsingle(0, set.memory[i]->data(), 0, 0); });
    count("pack/" + set.name(), set.memory.size(), [&](std::size_t i) {
        u32 length = sizeof buffer;
        library.pack(set.memory[i]->data(), buffer, &length);
    });
    count_decodes("unpack/" + set.name(), library, packed);
    if (sent != packed)
        count_decodes("unpack_sent/" + set.name(), library, sent);
}

}   // namespace

}   // namespace kesto::bench

int main()
{
    if (!RUNNING_ON_VALGRIND) {
        std::fprintf(stderr, "to be run by instructions.py\n");
        return 2;
    }
    for (const kesto::bench::RecordSet& set : kesto::bench::make_all_records())
        if (set.fill != kesto::bench::Fill::varied)   // takes as many as sparse
            kesto::bench::count_all(set);
    return 0;
}

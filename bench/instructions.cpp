// Runs each operation of the library, and a straight copy of the record, once on each record of a set while the
// instructions are counted: by callgrind, which is told when to start and stop, or by the emulator's plugin
// (count_plugin.c), which watches for writes to file -1. instructions.py runs both and reads the list of counted cases
// from this program's output.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string_view>
#if defined(__x86_64__) || defined(__i386__)
#include <valgrind/callgrind.h>
#endif

#include "bench/ours.h"

namespace kesto::bench {

namespace {

u8 buffer[1 << 20];

void begin_count()
{
    (void)!write(-1, "", 0);
#ifdef CALLGRIND_START_INSTRUMENTATION
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
#endif
}

void end_count()
{
#ifdef CALLGRIND_START_INSTRUMENTATION
    CALLGRIND_DUMP_STATS;
    CALLGRIND_STOP_INSTRUMENTATION;
#endif
    (void)!write(-1, "", 0);
}

// The first pass does one-time set-up and warms the heap; only the second one is counted.
template <class Operation>
void count(const std::string& name, std::size_t records, Operation&& operation)
{
    std::printf("%s %zu\n", name.c_str(), records);
    for (std::size_t i = 0; i < records; ++i)
        operation(i);
    begin_count();
    for (std::size_t i = 0; i < records; ++i)
        operation(i);
    end_count();
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

// A straight copy of the record, and back.
void count_copies(const RecordSet& set, const char* contender, std::span<const Codec> codecs)
{
    const Codec& copy = *std::ranges::find(codecs, std::string_view(set.shape.message), &Codec::message);
    const std::string name = set.name() + "/" + contender;
    std::vector<std::vector<u8>> strings(set.memory.size(), std::vector<u8>(sizeof buffer / set.memory.size()));
    count("pack/" + name, strings.size(), [&](std::size_t i) {
        u32 length = 0;
        copy.encode(set.memory[i]->data(), strings[i].data(), &length);
    });
    alignas(8) u8 record[record_bytes] = {};
    count("unpack/" + name, strings.size(), [&](std::size_t i) {
        copy.decode(strings[i].data(), 0, record);
        copy.release(record);
    });
}

}   // namespace

}   // namespace kesto::bench

int main()
{
    using namespace kesto::bench;
    for (const RecordSet& set : make_all_records()) {
        if (set.fill == Fill::varied)   // takes as many instructions as sparse
            continue;
        count_all(set);
        if (set.fill == Fill::full) {   // a copy takes as many for the others
            count_copies(set, "limit_memcpy", limit_memcpy);
            count_copies(set, "limit_moves", limit_moves);
        }
    }
    return 0;
}

// Measures the library and its peers, case by case. Case names are OPERATION/MESSAGE[:ROWS]/FILL/CONTENDER.
//
//   send           from a record to the messaging library; ours only, as it equals packing for the others
//   unpack_sent    from the sent bytes to a record, with its release; ours only, if they differ from the packed bytes
//   pack, unpack   all contenders; unpacking includes the release

#include <benchmark/benchmark.h>

#include <cstdio>
#include <deque>
#include <string_view>

#include "bench/data.h"
#include "bench/ours.h"
#include "kesto_verify.h"
#include "model/little_endian.h"

namespace kesto::bench {

namespace {

struct Contender {
    const char* name;
    std::span<const Codec> codecs;

    const Codec& codec(std::string_view message) const
    {
        for (const Codec& each : codecs)
            if (message == each.message)
                return each;
        std::abort();
    }
};

std::vector<Codec> our_codecs()
{
    std::vector<Codec> codecs;
    for (const tools::ModuleOperations& module : tools::module_operations())
        for (const Operations& message : module.messages)
            codecs.push_back({message.name, message.pack, message.unpack, message.free_unpacked});
    return codecs;
}

const std::vector<Contender>& contenders()
{
    static const std::vector<Codec> ours = our_codecs();
    static const std::vector<Contender> all = {
        {"ours", ours},
        {"limit_memcpy", limit_memcpy},
        {"limit_moves", limit_moves},
#if KESTO_BENCH_PROTOBUF
        {"protobuf", protobuf},
#endif
#if KESTO_BENCH_CAPNP
        {"capnp", capnproto},
#endif
#if KESTO_BENCH_NANOPB
        {"nanopb", nanopb},
#endif
    };
    return all;
}

alignas(64) u8 buffer[4 << 20];

// ---- timed code: each record of a set in turn ----

// Reports the mean length of the byte strings as well.
void count_bytes(benchmark::State& state, const ByteStrings& strings)
{
    std::size_t sum = 0;
    for (const auto& each : strings)
        sum += each.size();
    state.counters["bytes"] = benchmark::Counter(static_cast<double>(sum) / static_cast<double>(strings.size()),
                                                 benchmark::Counter::kAvgThreads);
}

void time_encode(benchmark::State& state, const Codec& codec, const RecordSet& set, const ByteStrings& strings)
{
    u8* const out = buffer + (std::size_t{2} << 20) * static_cast<std::size_t>(state.thread_index());
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(set.memory.size())))
        for (const auto& memory : set.memory) {
            u32 length = 2 << 20;
            benchmark::DoNotOptimize(codec.encode(memory->data(), out, &length));
        }
    count_bytes(state, strings);
}

void time_send(benchmark::State& state, const Operations& library, const RecordSet& set, const ByteStrings& strings)
{
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(set.memory.size())))
        for (const auto& memory : set.memory)
            benchmark::DoNotOptimize(library.sendsingle(0, memory->data(), 0, 0));
    count_bytes(state, strings);
}

void time_decode(benchmark::State& state, const Codec& codec, const ByteStrings& strings)
{
    alignas(64) u8 record[record_bytes] = {};
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(strings.size())))
        for (const std::vector<u8>& bytes : strings) {
            benchmark::DoNotOptimize(codec.decode(bytes.data(), static_cast<u32>(bytes.size()), record));
            codec.release(record);
        }
    count_bytes(state, strings);
}

void time_verify(benchmark::State& state, u32 id, const ByteStrings& strings)
{
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(strings.size())))
        for (const std::vector<u8>& bytes : strings)
            benchmark::DoNotOptimize(kesto_verify(id, bytes.data(), static_cast<u32>(bytes.size()), nullptr));
    count_bytes(state, strings);
}

// ---- checks before timing: a failure ends the program ----

[[noreturn]] void fail(const RecordSet& set, const char* contender, const std::string& what)
{
    std::fprintf(stderr, "%s/%s: %s\n", set.name().c_str(), contender, what.c_str());
    std::exit(1);
}

void check_decodes(const Codec& codec, const RecordSet& set, const ByteStrings& strings, const char* contender)
{
    for (std::size_t i = 0; i < strings.size(); ++i) {
        alignas(8) u8 record[record_bytes];
        std::memset(record, 0x5A, sizeof record);
        if (codec.decode(strings[i].data(), static_cast<u32>(strings[i].size()), record) == 0)
            fail(set, contender, "does not decode");
        const std::string difference = model::difference(set.records[i], record);
        if (!difference.empty())
            fail(set, contender, difference);
        codec.release(record);
    }
}

ByteStrings encode_all(const Codec& codec, const RecordSet& set, const char* contender)
{
    ByteStrings strings;
    for (const auto& memory : set.memory) {
        u32 length = sizeof buffer;
        if (codec.encode(memory->data(), buffer, &length) != 0)
            fail(set, contender, "does not encode");
        strings.emplace_back(buffer, buffer + length);
    }
    return strings;
}

// ---- the cases ----

// Lives as long as the process, as the timed functions refer to it.
template <class T>
const T& keep(T&& value)
{
    static std::deque<T> all;
    return all.emplace_back(std::forward<T>(value));
}

void add_pack_and_unpack(const RecordSet& set, const Contender& contender)
{
    const Codec& codec = contender.codec(set.shape.message);
    const ByteStrings& strings = keep(encode_all(codec, set, contender.name));
    check_decodes(codec, set, strings, contender.name);
    const std::string name = set.name() + "/" + contender.name;
    benchmark::RegisterBenchmark(("pack/" + name).c_str(),
                                 [&](benchmark::State& state) { time_encode(state, codec, set, strings); });
    benchmark::RegisterBenchmark(("unpack/" + name).c_str(),
                                 [&](benchmark::State& state) { time_decode(state, codec, strings); });
}

void add_send(const RecordSet& set)
{
    const Contender& ours = contenders()[0];
    const Codec& codec = ours.codec(set.shape.message);
    const Operations& library = tools::operations(set.shape.message);
    const ByteStrings& strings = keep(send_all(library, set));
    check_decodes(codec, set, strings, ours.name);
    const std::string name = set.name() + "/" + ours.name;
    benchmark::RegisterBenchmark(("send/" + name).c_str(),
                                 [&](benchmark::State& state) { time_send(state, library, set, strings); });
    if (strings != pack_all(library, set))
        benchmark::RegisterBenchmark(("unpack_sent/" + name).c_str(),
                                     [&](benchmark::State& state) { time_decode(state, codec, strings); });
}

// A table whose vtable lacks the last slot, which no fast path takes: X__unpack of these is the general path.
ByteStrings without_last_slot(ByteStrings strings)
{
    for (std::vector<u8>& bytes : strings) {
        const u32 table = model::get32(bytes.data()), vtable = table - model::get32(&bytes[table]);
        model::put(&bytes[vtable], model::get16(&bytes[vtable]) - 2, 2);
    }
    return strings;
}

// The verdict, beside unpack of the same bytes and, for messages without owned blocks, beside the general path.
void add_verify(const RecordSet& set)
{
    const Operations& library = tools::operations(set.shape.message);
    const ByteStrings& strings = keep(pack_all(library, set));
    for (const std::vector<u8>& bytes : strings)
        if (kesto_verify(library.id, bytes.data(), static_cast<u32>(bytes.size()), nullptr) != KESTO_ACCEPTED)
            fail(set, "verify", "refused");
    benchmark::RegisterBenchmark(("verify/" + set.name() + "/ours").c_str(),
                                 [&](benchmark::State& state) { time_verify(state, library.id, strings); });
    if (set.records[0].message->owns_blocks)
        return;
    const ByteStrings& shorter = keep(without_last_slot(strings));
    const Codec& codec = contenders()[0].codec(set.shape.message);
    benchmark::RegisterBenchmark(("unpack_general/" + set.name() + "/ours").c_str(),
                                 [&](benchmark::State& state) { time_decode(state, codec, shorter); });
}

void add_threads(const RecordSet& set)
{
    const Codec& codec = contenders()[0].codec(set.shape.message);
    const ByteStrings& strings = keep(pack_all(tools::operations(set.shape.message), set));
    const std::string name = set.name() + "/ours";
    const auto encode = [&](benchmark::State& state) {
        time_encode(state, codec, set, strings);
        state.SetItemsProcessed(state.iterations());
    };
    const auto decode = [&](benchmark::State& state) {
        time_decode(state, codec, strings);
        state.SetItemsProcessed(state.iterations());
    };
    for (const int threads : {1, 2}) {
        benchmark::RegisterBenchmark(("threads_pack/" + name).c_str(), encode)->Threads(threads)->UseRealTime();
        benchmark::RegisterBenchmark(("threads_unpack/" + name).c_str(), decode)->Threads(threads)->UseRealTime();
    }
}

void add_all()
{
    const std::vector<RecordSet>& sets = keep(make_all_records());
    for (const RecordSet& set : sets) {
        for (const Contender& contender : contenders())
            add_pack_and_unpack(set, contender);
        add_send(set);
        add_verify(set);
        if (set.name() == "ifit_flow_base_mesh/full")
            add_threads(set);
    }
    for (const u32 rows : {4u, 64u, 1024u, 4096u}) {   // 1, 16 and 256 are among the sets
        const RecordSet& set = keep(make_records({"ifit_flow_base_mesh_update", rows, 0, 0, false, false}, Fill::full));
        for (const Contender& contender : contenders())
            if (std::string_view(contender.name) != "nanopb")
                add_pack_and_unpack(set, contender);
    }
}

}   // namespace

}   // namespace kesto::bench

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    kesto::bench::add_all();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

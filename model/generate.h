#pragma once
// Random records, the same on every host for the same seed.

#include "model/record.h"

namespace kesto::model {

struct Random {
    u64 state;

    explicit Random(u64 seed) : state(seed) {}

    u64 next()
    {
        state += 0x9e3779b97f4a7c15U;
        u64 mixed = (state ^ (state >> 30)) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebU;
        return mixed ^ (mixed >> 31);
    }

    u32 below(u32 bound) { return static_cast<u32>((next() >> 32) * bound >> 32); }
    bool one_in(u32 n) { return below(n) == 0; }
    u8 octet() { return static_cast<u8>(next() >> 56); }
};

enum class Density : u8 {
    zero,     // nothing set
    sparse,   // about a quarter of the fields set; owned blocks null, empty or short
    full,     // no zero scalar, no zero array, no null or empty owned block
    edge,     // values and lengths at the limits of their ranges
};

inline constexpr Density densities[] = {Density::zero, Density::sparse, Density::full, Density::edge};

// Sparse and edge records may hold pointers with length or count 0, and null blocks with a length. All are encodable.
Record random_record(const Message& message, Density density, Random& random);

// Copies of the record with one string, bytes or vector absent or empty, for each one in it, including nested ones.
std::vector<Record> without_each_owned_block(Record record);

}   // namespace kesto::model

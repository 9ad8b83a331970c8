// A counterexample again, on real bytes: the programs of contracts.h with the shipping Input, whose bytes end in front
// of memory that cannot be read. A read outside ends the process.
#pragma once

#include "tests/proof/symbolic.h"

namespace kesto::proof {

// A byte string that is followed by more unreadable memory than two words can lead over.
class GuardedBytes {
public:
    explicit GuardedBytes(u32 length);
    ~GuardedBytes();
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;

    u8* bytes() const { return bytes_; }

private:
    std::size_t mapped_bytes_;
    u8* mapped_;
    u8* bytes_;
};

// The values go nowhere; that they are read is what matters.
struct GuardedInput {
    using Word = u32;

    Input shipping;
    u32 length;

    template <class T>
    u32 load_unchecked(u32 at, u32 behind = 0) const
    {
        const u32 value = shipping.load_unchecked<T>(at, behind);
        keep(&value);
        return value;
    }

    template <class T>
    void copy_value_unchecked(u32 at, u32 behind, void*) const
    {
        T value;
        shipping.copy_value_unchecked<T>(at, behind, &value);
        keep(&value);
    }

    template <class T>
    void copy_values_unchecked(u32 at, u32 count, u8*) const
    {
        u8 value[sizeof(T)];
        for (u64 i = 0; i < count; ++i) {   // one by one, as there is no room for them all
            shipping.copy_values_unchecked<T>(static_cast<u32>(at + i * sizeof(T)), 1, value);
            keep(value);
        }
    }

    const u8* bytes_unchecked(u32 at, u32 behind, u32 n) const
    {
        const u8* const bytes = shipping.bytes_unchecked(at, behind, n);
        for (u32 i = 0; i < n; ++i)
            (void)*static_cast<const volatile u8*>(bytes + i);
        return bytes;
    }

    void touch(u64 at, u64 count) const
    {
        for (u64 i = 0; i < count; ++i)
            (void)*static_cast<const volatile u8*>(shipping.bytes + at + i);
    }

    template <class T>
    u32 content(u64 at) const
    {
        return at + sizeof(T) <= length ? load<T>(shipping.bytes + at) : 0;
    }

private:
    // For all the compiler knows, somebody looks at the value, so it has to be read.
    static void keep(const void* value) { asm volatile("" : : "r"(value) : "memory"); }
};

// How the process ends when the program comes to a statement that is false.
constexpr int exit_broken_promise = 1, exit_outside_contract = 2;

class RealWorld {
public:
    using In = GuardedInput;
    using Word = u32;

    explicit RealWorld(const Counterexample& example);

    In input() const { return {{bytes_.bytes(), length_}, length_}; }
    Word any();
    void state(Role role, bool condition, const char* what) const;

private:
    u32 length_;
    std::vector<u32> words_;
    std::size_t next_word_ = 0;
    GuardedBytes bytes_;
};

}   // namespace kesto::proof

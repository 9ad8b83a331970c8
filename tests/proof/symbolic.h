// Words with unknown values, and the exploration of every path that a program takes with them.
#pragma once

#include <z3++.h>

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/wire.h"

namespace kesto::proof {

z3::context& solver_context();

// A condition. Converting it to bool is a decision: the path continues with one answer, and another path takes the
// other.
struct Truth {
    z3::expr expression;

    explicit Truth(const z3::expr& e) : expression(e) {}
    Truth(bool value) : expression(solver_context().bool_val(value)) {}
    explicit operator bool() const;
};

inline Truth operator!(const Truth& a) { return Truth(!a.expression); }
inline Truth operator&(const Truth& a, const Truth& b) { return Truth(a.expression && b.expression); }
inline Truth operator==(const Truth& a, const Truth& b) { return Truth(a.expression == b.expression); }

constexpr u64 word_range = u64{1} << 32;

// The solver uses integers. A Word is an integer below 2^32 with the arithmetic of a u32; an Exact does not wrap.
// Whether a Word's sum wraps is a decision as well, so that on each path it is a plain sum, which the solver handles
// well.
template <bool wraps>
struct Number {
    z3::expr expression;

    explicit Number(const z3::expr& e) : expression(e) {}
    Number(u64 value = 0) : expression(integer(value)) {}

    friend Number operator+(const Number& a, const Number& b)
    {
        const z3::expr sum = a.expression + b.expression;
        return Number(!wraps || Truth(sum < integer(word_range)) ? sum : sum - integer(word_range));
    }
    friend Number operator-(const Number& a, const Number& b)
    {
        static_assert(wraps);
        const z3::expr difference = a.expression - b.expression;
        return Number(Truth(difference >= 0) ? difference : difference + integer(word_range));
    }
    friend Number operator*(const Number& a, const Number& b)
    {
        const z3::expr product = a.expression * b.expression;
        return Number(!wraps || Truth(product < integer(word_range)) ? product : z3::mod(product, integer(word_range)));
    }
    friend Number operator/(const Number& a, const Number& b) { return Number(a.expression / b.expression); }
    friend Truth operator==(const Number& a, const Number& b) { return Truth(a.expression == b.expression); }
    friend Truth operator!=(const Number& a, const Number& b) { return Truth(a.expression != b.expression); }
    friend Truth operator<(const Number& a, const Number& b) { return Truth(a.expression < b.expression); }
    friend Truth operator>(const Number& a, const Number& b) { return Truth(a.expression > b.expression); }
    friend Truth operator<=(const Number& a, const Number& b) { return Truth(a.expression <= b.expression); }
    friend Truth operator>=(const Number& a, const Number& b) { return Truth(a.expression >= b.expression); }

private:
    static z3::expr integer(u64 value) { return solver_context().int_val(std::uint64_t{value}); }
};

using Word = Number<true>;
using Exact = Number<false>;

inline Exact wide(const Word& value) { return Exact(value.expression); }

class SymbolicWorld;

// Replaces Input in the templates of core/wire.h: any bytes, any length. A read out of bounds ends the proof.
struct SymbolicInput {
    using Word = proof::Word;

    SymbolicWorld* world;
    Word length;

    template <class T>
    Word load_unchecked(const Word& at, const Word& offset = 0) const
    {
        touch(wide(at) + wide(offset), sizeof(T));
        return content<T>(wide(at) + wide(offset));
    }

    template <class T>
    void copy_value_unchecked(const Word& at, const Word& offset, void*) const
    {
        touch(wide(at) + wide(offset), sizeof(T));
    }

    template <class T>
    void copy_values_unchecked(const Word& at, const Word& count, u8*) const
    {
        touch(wide(at), wide(count) * sizeof(T));
    }

    // The value at a position, without the claim that it may be read. Equal positions give equal values. Overlapping
    // values are unrelated, which only allows more cases.
    template <class T>
    Word content(const Exact& at) const
    {
        return content(at, sizeof(T));
    }

    // Proof obligation: these bytes lie inside, in numbers that do not wrap, like 64-bit addresses.
    void touch(const Exact& at, const Exact& bytes) const;

private:
    Word content(const Exact& at, unsigned bytes) const;
};

struct Verdict {
    std::string counterexample;   // empty when proved; otherwise the violated claim, and the length, words and values
    std::set<int> outcomes;       // what the program returned, over all paths
};

enum class Role { promised, relied_on };

// Runs a program once for every path, depth first. A path is a list of decisions; an answer that the earlier decisions
// exclude is never taken.
class SymbolicWorld {
public:
    explicit SymbolicWorld(u32 least_length);
    ~SymbolicWorld();
    SymbolicWorld(const SymbolicWorld&) = delete;
    SymbolicWorld& operator=(const SymbolicWorld&) = delete;

    Verdict explore(int (*program)(SymbolicWorld&));

    // Used by programs.
    SymbolicInput input() { return {this, length_}; }
    Word any();
    void state(Role role, const Truth& condition, const char* what);
    void promise(const Truth& condition, const char* what) { state(Role::promised, condition, what); }
    void rely(const Truth& condition, const char* what) { state(Role::relied_on, condition, what); }

    // Used by words, conditions and inputs.
    bool decide(const z3::expr& condition);
    void restrict(const z3::expr& condition) { path_.add(condition); }

private:
    struct EndOfPath {};
    struct Decision {
        bool answer;
        bool other_is_open;
    };

    void begin_path();
    bool next_path();
    bool possible(const z3::expr& condition);

    u32 least_length_;
    Word length_;
    z3::solver path_;
    std::vector<Decision> decisions_;
    std::size_t decided_ = 0;   // number of them on the current path so far
    unsigned words_ = 0;
    Verdict verdict_;
};

}   // namespace kesto::proof

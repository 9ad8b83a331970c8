// Words whose value is not known, and the exploration of every path that a program takes on them.
#pragma once

#include <z3++.h>

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/wire.h"

namespace kesto::proof {

z3::context& solver_context();

// A condition. As a plain bool it is a decision: the path goes on with one answer, and another path takes the other.
struct Truth {
    z3::expr expression;

    explicit Truth(const z3::expr& e) : expression(e) {}
    Truth(bool value) : expression(solver_context().bool_val(value)) {}
    explicit operator bool() const;
};

inline Truth operator!(const Truth& a) { return Truth(!a.expression); }
inline Truth operator&(const Truth& a, const Truth& b) { return Truth(a.expression && b.expression); }
inline Truth operator==(const Truth& a, const Truth& b) { return Truth(a.expression == b.expression); }

// An unsigned number of `bits` bits, with the arithmetic of the C++ type.
template <unsigned bits>
struct Number {
    z3::expr expression;

    explicit Number(const z3::expr& e) : expression(e) {}
    Number(u64 value = 0) : expression(solver_context().bv_val(std::uint64_t{value}, bits)) {}

    friend Number operator+(const Number& a, const Number& b) { return Number(a.expression + b.expression); }
    friend Number operator-(const Number& a, const Number& b) { return Number(a.expression - b.expression); }
    friend Number operator*(const Number& a, const Number& b) { return Number(a.expression * b.expression); }
    friend Number operator/(const Number& a, const Number& b) { return Number(z3::udiv(a.expression, b.expression)); }
    friend Truth operator==(const Number& a, const Number& b) { return Truth(a.expression == b.expression); }
    friend Truth operator!=(const Number& a, const Number& b) { return Truth(a.expression != b.expression); }
    friend Truth operator<(const Number& a, const Number& b) { return Truth(z3::ult(a.expression, b.expression)); }
    friend Truth operator>(const Number& a, const Number& b) { return Truth(z3::ugt(a.expression, b.expression)); }
    friend Truth operator<=(const Number& a, const Number& b) { return Truth(z3::ule(a.expression, b.expression)); }
    friend Truth operator>=(const Number& a, const Number& b) { return Truth(z3::uge(a.expression, b.expression)); }
};

// 64 bits, in which no sum and no product of the wire format wraps.
inline Number<64> wide(const Number<32>& value) { return Number<64>(z3::zext(value.expression, 32)); }
inline u64 wide(u32 value) { return value; }

// What breaks a proof: the length, the words and the bytes that were read.
struct Counterexample {
    bool outside;        // a read outside the input; else a broken promise
    std::string broken;  // which
    u32 length;
    std::vector<u32> words;   // what any() gave, in order
    std::map<u32, u8> bytes;
};

struct Verdict {
    bool proved = true;
    Counterexample counterexample;   // when not proved
    std::set<int> outcomes;          // what the program returned, over all paths
    unsigned paths = 0;
    unsigned queries = 0;
};

struct Lengths {
    u32 least, most;
};

// The lengths that the decoder's parameter test lets pass.
constexpr Lengths tested_lengths{least_length, 0x7fffffff};

enum class Role { promised, relied_on };

class SymbolicWorld;

// Stands for Input in the templates of core/wire.h: any bytes, any length. A read outside ends the proof.
struct SymbolicInput {
    using Word = Number<32>;

    SymbolicWorld* world;
    Word length;

    template <class T>
    Word load_unchecked(const Word& at, const Word& behind = 0) const
    {
        touch(wide(at) + wide(behind), sizeof(T));
        return content<T>(wide(at) + wide(behind));
    }

    template <class T>
    void copy_value_unchecked(const Word& at, const Word& behind, void*) const
    {
        touch(wide(at) + wide(behind), sizeof(T));
    }

    template <class T>
    void copy_values_unchecked(const Word& at, const Word& count, u8*) const
    {
        touch(wide(at), wide(count) * sizeof(T));
    }

    // What stands at a position, without a claim that it may be read: equal positions, equal bytes.
    template <class T>
    Word content(const Number<64>& at) const { return content(at, sizeof(T)); }

    // The proof's duty: these bytes lie inside, in numbers that do not wrap, as addresses of 64 bits do not.
    void touch(const Number<64>& at, const Number<64>& bytes) const;

private:
    Word content(const Number<64>& at, unsigned bytes) const;
};

// Runs a program once for every path, depth first. A path is the list of decisions on it; an answer that the path so far
// excludes is never taken.
class SymbolicWorld {
public:
    using In = SymbolicInput;
    using Word = Number<32>;

    explicit SymbolicWorld(Lengths lengths);
    ~SymbolicWorld();
    SymbolicWorld(const SymbolicWorld&) = delete;
    SymbolicWorld& operator=(const SymbolicWorld&) = delete;

    template <class Program>
    Verdict explore(Program program)
    {
        do {
            begin_path();
            try {
                verdict_.outcomes.insert(program(*this));
                ++verdict_.paths;
            } catch (const EndOfPath&) {
            }
        } while (verdict_.proved && next_path());
        return verdict_;
    }

    // For programs.
    In input() { return {this, length_}; }
    Word any();
    void state(Role role, const Truth& condition, const char* what);

    // For words, conditions and inputs.
    bool decide(const z3::expr& condition);
    void prove(const Truth& condition, bool outside, const char* what);
    z3::expr byte_at(const z3::expr& at);

private:
    struct EndOfPath {};
    struct Decision {
        bool answer;
        bool other_is_open;
    };

    void begin_path();
    bool next_path();
    bool possible(const z3::expr& condition);
    void keep_counterexample(bool outside, const char* what);

    Lengths lengths_;
    Word length_;
    z3::func_decl bytes_;
    z3::solver path_;
    std::vector<Decision> decisions_;
    std::size_t decided_ = 0;   // so many of them on the path so far
    std::vector<Word> words_;
    std::vector<z3::expr> positions_;   // of the bytes that were looked at
    Verdict verdict_;
};

}   // namespace kesto::proof

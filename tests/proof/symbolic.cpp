#include "tests/proof/symbolic.h"

namespace kesto::proof {

namespace {

SymbolicWorld* under_way = nullptr;

// A query that needs more has left the simple arithmetic that the reader is made of. Counts steps, not time.
constexpr unsigned most_solver_steps = 200'000'000;

z3::expr within(const z3::expr& value, u64 range)
{
    return value >= 0 && value < solver_context().int_val(std::uint64_t{range});
}

}   // namespace

z3::context& solver_context()
{
    static z3::context context;
    return context;
}

Truth::operator bool() const { return under_way->decide(expression); }

void SymbolicInput::touch(const Exact& at, const Exact& bytes) const
{
    world->prove(at + bytes <= wide(length), true, "a read outside");
}

Word SymbolicInput::content(const Exact& at, unsigned bytes) const { return world->value_at(at, bytes); }

SymbolicWorld::SymbolicWorld(Lengths lengths)
    : lengths_(lengths), length_(solver_context().int_const("length")), path_(solver_context(), "QF_UFLIA")
{
    z3::params limits(solver_context());
    limits.set("rlimit", most_solver_steps);
    path_.set(limits);
    under_way = this;
}

SymbolicWorld::~SymbolicWorld() { under_way = nullptr; }

void SymbolicWorld::begin_path()
{
    path_.reset();
    path_.add(((length_ >= lengths_.least) & (length_ <= lengths_.most)).expression);
    decided_ = 0;
    words_.clear();
    values_.clear();
}

bool SymbolicWorld::next_path()
{
    while (!decisions_.empty() && !decisions_.back().other_is_open)
        decisions_.pop_back();
    if (decisions_.empty())
        return false;
    decisions_.back() = {!decisions_.back().answer, false};
    return true;
}

bool SymbolicWorld::possible(const z3::expr& condition)
{
    ++verdict_.queries;
    path_.push();
    path_.add(condition);
    const z3::check_result result = path_.check();
    if (result == z3::unknown)
        throw std::runtime_error("undecided: " + path_.reason_unknown());
    path_.pop();
    return result == z3::sat;
}

bool SymbolicWorld::decide(const z3::expr& condition)
{
    if (decided_ == decisions_.size()) {
        const bool can_hold = possible(condition);
        decisions_.push_back({can_hold, can_hold && possible(!condition)});
    }
    const bool answer = decisions_[decided_++].answer;
    path_.add(answer ? condition : !condition);
    return answer;
}

Word SymbolicWorld::any()
{
    words_.emplace_back(solver_context().int_const(("word" + std::to_string(words_.size())).c_str()));
    path_.add(within(words_.back().expression, word_range));
    return words_.back();
}

Word SymbolicWorld::value_at(const Exact& at, unsigned bytes)
{
    z3::context& context = solver_context();
    const z3::func_decl value_of =
        context.function(("value" + std::to_string(bytes)).c_str(), context.int_sort(), context.int_sort());
    values_.push_back({at.expression, value_of(at.expression), bytes});
    path_.add(within(values_.back().value, u64{1} << 8 * bytes));
    return Word(values_.back().value);
}

void SymbolicWorld::state(Role role, const Truth& condition, const char* what)
{
    if (role == Role::promised)
        return prove(condition, false, what);
    if (!possible(condition.expression))
        throw EndOfPath{};
    path_.add(condition.expression);
}

void SymbolicWorld::prove(const Truth& condition, bool outside, const char* what)
{
    if (decided_ < decisions_.size())
        return;   // proved on an earlier path that began with the same decisions
    if (!possible(!condition.expression))
        return;
    // So far, values that overlap have nothing to do with each other, which only makes more possible.
    const z3::expr broken = !condition.expression && bytes_make_values();
    if (!possible(broken))
        return;
    keep_counterexample(broken, outside, what);
    throw EndOfPath{};
}

z3::expr SymbolicWorld::bytes_make_values() const
{
    z3::context& context = solver_context();
    const z3::func_decl byte = context.function("byte", context.int_sort(), context.int_sort());
    z3::expr all = context.bool_val(true);
    for (const Value& value : values_) {
        z3::expr sum = context.int_val(0);
        for (unsigned i = 0; i < value.bytes; ++i) {
            const z3::expr one = byte(value.at + context.int_val(i));
            sum = sum + one * context.int_val(std::uint64_t{1} << 8 * i);
            all = all && within(one, 256);
        }
        all = all && sum == value.value;
    }
    return all;
}

void SymbolicWorld::keep_counterexample(const z3::expr& condition, bool outside, const char* what)
{
    path_.add(condition);
    for (const u32 most : {16u, 64u, 256u, 4096u, 1u << 17})   // a short one, if there is one
        if (possible((length_ <= most).expression)) {
            path_.add((length_ <= most).expression);
            break;
        }
    path_.check();
    const z3::model model = path_.get_model();
    const auto number = [&](const z3::expr& e) { return model.eval(e, true).get_numeral_uint64(); };
    Counterexample& found = verdict_.counterexample;
    found = {outside, what, static_cast<u32>(number(length_.expression)), {}, {}};
    for (const Word& word : words_)
        found.words.push_back(static_cast<u32>(number(word.expression)));
    for (const Value& value : values_)
        for (unsigned i = 0; i < value.bytes; ++i)
            if (const u64 at = number(value.at) + i; at < found.length)
                found.bytes[static_cast<u32>(at)] = static_cast<u8>(number(value.value) >> 8 * i);
    verdict_.proved = false;
}

}   // namespace kesto::proof

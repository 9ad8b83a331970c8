#include "tests/proof/symbolic.h"

#include <sstream>

namespace kesto::proof {

namespace {

SymbolicWorld* current_world = nullptr;

// Limit per query, in steps, not time. A query that needs more is beyond the simple arithmetic that the reader uses.
constexpr unsigned max_solver_steps = 200'000'000;

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

Truth::operator bool() const { return current_world->decide(expression); }

void SymbolicInput::touch(const Exact& at, const Exact& bytes) const
{
    world->promise(at + bytes <= wide(length), "a read out of bounds");
}

Word SymbolicInput::content(const Exact& at, unsigned bytes) const
{
    z3::context& context = solver_context();
    const std::string name = "value" + std::to_string(bytes);
    const z3::expr value = context.function(name.c_str(), context.int_sort(), context.int_sort())(at.expression);
    world->restrict(within(value, u64{1} << 8 * bytes));
    return Word(value);
}

SymbolicWorld::SymbolicWorld(u32 least_length)
    : least_length_(least_length), length_(solver_context().int_const("length")), path_(solver_context(), "QF_UFLIA")
{
    z3::params limits(solver_context());
    limits.set("rlimit", max_solver_steps);
    path_.set(limits);
    current_world = this;
}

SymbolicWorld::~SymbolicWorld() { current_world = nullptr; }

Verdict SymbolicWorld::explore(int (*program)(SymbolicWorld&))
{
    do {
        begin_path();
        try {
            verdict_.outcomes.insert(program(*this));
        } catch (const EndOfPath&) {
        }
    } while (verdict_.counterexample.empty() && next_path());
    return verdict_;
}

void SymbolicWorld::begin_path()
{
    path_.reset();
    path_.add(within(length_.expression, word_range) && (length_ >= least_length_).expression);
    decided_ = 0;
    words_ = 0;
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
    const z3::expr word = solver_context().int_const(("word" + std::to_string(words_++)).c_str());
    path_.add(within(word, word_range));
    return Word(word);
}

void SymbolicWorld::state(Role role, const Truth& condition, const char* what)
{
    if (role == Role::relied_on) {
        if (!possible(condition.expression))
            throw EndOfPath{};
        path_.add(condition.expression);
        return;
    }
    if (decided_ < decisions_.size())
        return;   // proved on an earlier path with the same initial decisions
    if (!possible(!condition.expression))
        return;
    path_.add(!condition.expression);
    path_.check();
    std::ostringstream text;
    text << what << '\n' << path_.get_model();
    verdict_.counterexample = text.str();
    throw EndOfPath{};
}

}   // namespace kesto::proof

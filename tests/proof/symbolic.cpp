#include "tests/proof/symbolic.h"

namespace kesto::proof {

namespace {

SymbolicWorld* under_way = nullptr;

// A query that needs more than this has left the simple arithmetic that the reader is made of. Counts steps, not time.
constexpr unsigned most_solver_steps = 200'000'000;

}   // namespace

z3::context& solver_context()
{
    static z3::context context;
    return context;
}

Truth::operator bool() const { return under_way->decide(expression); }

void SymbolicInput::touch(const Number<64>& at, const Number<64>& bytes) const
{
    world->prove(at + bytes <= wide(length), true, "a read outside");
}

SymbolicInput::Word SymbolicInput::content(const Number<64>& at, unsigned bytes) const
{
    const z3::expr position = at.expression.extract(31, 0);
    z3::expr value = world->byte_at(position);
    for (unsigned i = 1; i < bytes; ++i)
        value = z3::concat(world->byte_at(position + solver_context().bv_val(i, 32)), value);
    return Word(bytes == 4 ? value : z3::zext(value, 32 - 8 * bytes));
}

SymbolicWorld::SymbolicWorld(Lengths lengths)
    : lengths_(lengths), length_(solver_context().bv_const("length", 32)),
      bytes_(solver_context().function("byte", solver_context().bv_sort(32), solver_context().bv_sort(8))),
      path_(solver_context())
{
    under_way = this;
}

SymbolicWorld::~SymbolicWorld() { under_way = nullptr; }

void SymbolicWorld::begin_path()
{
    path_.reset();
    path_.add(((length_ >= lengths_.least) & (length_ <= lengths_.most)).expression);
    decided_ = 0;
    words_.clear();
    positions_.clear();
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
    z3::solver fresh = z3::tactic(solver_context(), getenv("TAC")).mk_solver();
    fresh.add(path_.assertions());
    fresh.add(condition);
    const z3::check_result result = fresh.check();
    if (result == z3::unknown)
        throw std::runtime_error("undecided: " + fresh.reason_unknown());
    return result == z3::sat;
}

bool SymbolicWorld::decide(const z3::expr& condition)
{
    if (decided_ == decisions_.size()) {
        const bool can_hold = possible(condition);
        const bool can_fail = possible(!condition);
        decisions_.push_back({can_hold, can_hold && can_fail});
    }
    const bool answer = decisions_[decided_++].answer;
    path_.add(answer ? condition : !condition);
    return answer;
}

SymbolicWorld::Word SymbolicWorld::any()
{
    words_.emplace_back(solver_context().bv_const(("word" + std::to_string(words_.size())).c_str(), 32));
    return words_.back();
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
    path_.add(!condition.expression);
    keep_counterexample(outside, what);
    throw EndOfPath{};
}

z3::expr SymbolicWorld::byte_at(const z3::expr& at)
{
    positions_.push_back(at);
    return bytes_(at);
}

void SymbolicWorld::keep_counterexample(bool outside, const char* what)
{
    for (const u32 most : {16u, 64u, 256u, 4096u, 1u << 17, ~0u}) {   // a short one, if there is one
        path_.push();
        path_.add((length_ <= most).expression);
        if (path_.check() == z3::sat)
            break;
        path_.pop();
    }
    const z3::model model = path_.get_model();
    const auto value = [&](const z3::expr& e) { return static_cast<u32>(model.eval(e, true).get_numeral_uint64()); };
    Counterexample& found = verdict_.counterexample;
    found = {outside, what, value(length_.expression), {}, {}};
    for (const Word& word : words_)
        found.words.push_back(value(word.expression));
    for (const z3::expr& position : positions_)
        if (const u32 at = value(position); at < found.length)
            found.bytes[at] = static_cast<u8>(value(bytes_(position)));
    verdict_.proved = false;
}

}   // namespace kesto::proof

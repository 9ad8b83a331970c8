#include "tests/proof/replay.h"

#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace kesto::proof {

namespace {

constexpr std::size_t beyond = std::size_t{2} << 32;   // a position and what is added to it

std::size_t whole_pages(std::size_t bytes)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return (bytes + page - 1) / page * page;
}

}   // namespace

GuardedBytes::GuardedBytes(u32 length)
{
    const std::size_t readable = whole_pages(length);
    mapped_bytes_ = readable + beyond;
    void* const mapped = mmap(nullptr, mapped_bytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED || mprotect(mapped, readable, PROT_READ | PROT_WRITE) != 0) {
        std::perror("guarded bytes");
        std::abort();
    }
    mapped_ = static_cast<u8*>(mapped);
    bytes_ = mapped_ + readable - length;
}

GuardedBytes::~GuardedBytes() { munmap(mapped_, mapped_bytes_); }

RealWorld::RealWorld(const Counterexample& example)
    : length_(example.length), words_(example.words), bytes_(example.length)
{
    const rlimit none{};
    setrlimit(RLIMIT_CORE, &none);   // the process is meant to end here
    for (const auto& [at, byte] : example.bytes)
        bytes_.bytes()[at] = byte;
}

RealWorld::Word RealWorld::any()
{
    if (next_word_ == words_.size())
        std::_Exit(exit_outside_contract);   // the proof never came so far
    return words_[next_word_++];
}

void RealWorld::state(Role role, bool condition, const char* what) const
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::_Exit(role == Role::promised ? exit_broken_promise : exit_outside_contract);
}

}   // namespace kesto::proof

#include "platform/standin/capture.h"

#include <atomic>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <stdio.h>
#include <string.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include "platform/standin/little_endian.h"

namespace {

constexpr int no_file = -1;
constexpr int most_pieces = 2;
constexpr uint32_t magic_microseconds = 0xa1b2c3d4;
constexpr uint32_t version = 2 | 4 << 16;   // 2.4, two numbers of 16 bits
constexpr uint32_t link_type_user0 = 147;
// The most that readers take. What is longer is cut, and the packet's head in the file says so.
constexpr uint32_t most_captured = 262144;

struct Capture {
    int file;
    pid_t process;         // that opened the file
    char name[PATH_MAX];   // as given, with %p
};

constinit pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;   // guards the capture
constinit Capture capture{no_file, 0, {}};
constinit std::atomic<bool> capturing{};   // spares a process without a capture the lock

struct Lock {
    Lock() { pthread_mutex_lock(&mutex); }
    ~Lock() { pthread_mutex_unlock(&mutex); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
};

void report(const char* name, const char* what)
{
    char line[PATH_MAX + 256];
    snprintf(line, sizeof line, "mesh stand-in: no capture to %s: %s\n", name, what);
    [[maybe_unused]] const ssize_t ignored = write(STDERR_FILENO, line, strlen(line));
}

[[nodiscard]] bool expand(const char* name, pid_t process, char* path, size_t room)
{
    size_t length = 0;
    for (const char* at = name; *at != '\0'; ++at) {
        const bool is_process = at[0] == '%' && at[1] == 'p';
        const int wanted = is_process ? snprintf(path + length, room - length, "%ld", static_cast<long>(process))
                                      : snprintf(path + length, room - length, "%c", *at);
        length += static_cast<size_t>(wanted);
        if (length >= room) {
            errno = ENAMETOOLONG;
            return false;
        }
        at += is_process ? 1 : 0;
    }
    path[length] = '\0';
    return true;
}

void stop()
{
    capturing.store(false, std::memory_order_relaxed);
    if (capture.file != no_file)
        close(capture.file);
    capture.file = no_file;
}

constexpr size_t file_head = 24;

// An empty file is a capture too, and so is one that ended within its head.
[[nodiscard]] bool holds_capture(const uint8_t (&head)[file_head])
{
    uint8_t old[file_head];
    const ssize_t got = pread(capture.file, old, sizeof old, 0);
    return got >= 0 && memcmp(old, head, static_cast<size_t>(got)) == 0;
}

// Refuses a file of another user, one that holds anything but a capture, and one that another process is writing, which
// has locked it. An older capture may have been readable by all; nobody else can open this one.
[[nodiscard]] bool open_file(const char* path)
{
    capture.file = open(path, O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, 0600);
    if (capture.file == no_file)
        return false;
    struct stat status;
    if (fstat(capture.file, &status) != 0 || !S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return false;
    }
    if (status.st_uid != geteuid()) {
        errno = EPERM;
        return false;
    }
    if (flock(capture.file, LOCK_EX | LOCK_NB) != 0)
        return false;
    uint8_t head[file_head] = {};
    store_u32(head, magic_microseconds);
    store_u32(head + 4, version);
    store_u32(head + 16, most_captured);
    store_u32(head + 20, link_type_user0);
    if (!holds_capture(head)) {
        errno = EEXIST;
        return false;
    }
    return fchmod(capture.file, 0600) == 0 && ftruncate(capture.file, 0) == 0 &&
           write(capture.file, head, sizeof head) == static_cast<ssize_t>(sizeof head);
}

const char* text_of(int error)
{
    switch (error) {
    case EWOULDBLOCK: return "another process writes it; %p in the name stands for the process id";
    case EINVAL: return "not a regular file";
    case ELOOP: return "a symbolic link";
    case EPERM: return "it belongs to another user";
    case EEXIST: return "it holds something, and no capture of ours; it stays as it is";
    default: return strerror(error);
    }
}

// With the lock held and `capture.name` set.
[[nodiscard]] bool start()
{
    char path[PATH_MAX];
    capture.process = getpid();
    if (expand(capture.name, capture.process, path, sizeof path) && open_file(path)) {
        capturing.store(true, std::memory_order_relaxed);
        return true;
    }
    const int error = errno;
    stop();
    report(capture.name, text_of(error));
    errno = error;
    return false;
}

uint32_t least(uint64_t value, uint32_t bound) { return value < bound ? static_cast<uint32_t>(value) : bound; }

// The packet's head, then as much of the pieces as is kept. Gives the bytes in all.
size_t make_record(const iovec* pieces, int count, uint8_t (&head)[16], iovec (&record)[1 + most_pieces])
{
    uint64_t length = 0;
    size_t kept = 0;
    for (int i = 0; i < count; ++i) {
        record[1 + i] = {pieces[i].iov_base, least(pieces[i].iov_len, static_cast<uint32_t>(most_captured - kept))};
        length += pieces[i].iov_len;
        kept += record[1 + i].iov_len;
    }
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    store_u32(head, static_cast<uint32_t>(now.tv_sec));
    store_u32(head + 4, static_cast<uint32_t>(now.tv_nsec / 1000));
    store_u32(head + 8, static_cast<uint32_t>(kept));
    store_u32(head + 12, least(length, UINT32_MAX));
    record[0] = {head, sizeof head};
    return sizeof head + kept;
}

}   // namespace

bool capture_to(const char* path)
{
    const Lock lock;
    stop();
    if (path == nullptr)
        return true;
    if (strlen(path) >= sizeof capture.name) {
        errno = ENAMETOOLONG;
        report("a file", strerror(errno));
        return false;
    }
    memcpy(capture.name, path, strlen(path) + 1);
    return start();
}

void capture_packet(const iovec* pieces, int count)
{
    if (!capturing.load(std::memory_order_relaxed))
        return;
    const Lock lock;
    if (capture.file == no_file)
        return;
    // A child after a fork: the file belongs to the parent, and the child needs one of its own.
    if (capture.process != getpid()) {
        stop();
        if (!start())
            return;
    }
    uint8_t head[16];
    iovec record[1 + most_pieces];
    const size_t length = make_record(pieces, count, head, record);
    const off_t end = lseek(capture.file, 0, SEEK_END);
    const ssize_t written = writev(capture.file, record, 1 + count);
    if (written == static_cast<ssize_t>(length))
        return;
    const int error = written < 0 ? errno : ENOSPC;
    [[maybe_unused]] const int ignored = ftruncate(capture.file, end);   // no half packet at the end
    stop();
    report(capture.name, strerror(error));
}

#include "platform/standin/capture.h"

#include <algorithm>
#include <atomic>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <time.h>
#include <unistd.h>

#include "platform/standin/essentials.h"

namespace {

constexpr int no_file = -1;
// The longest packet that readers accept. A longer one is truncated, which shows in the packet's head in the file.
constexpr uint32_t most_captured = 262144;
// Magic number for microseconds, version 2.4, time zone, accuracy, longest packet, link type USER0.
constexpr uint8_t file_head[24] = {0xd4, 0xc3, 0xb2, 0xa1, 2, 0, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 0, 147};

struct Capture {
    int file;
    pid_t process;         // which opened the file
    char name[PATH_MAX];   // as given, with %p
};

constinit pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;   // guards the capture
constinit Capture capture{no_file, 0, {}};
constinit std::atomic<bool> capturing{};   // lets a process without a capture skip the lock

[[nodiscard]] bool expand(char (&path)[PATH_MAX])
{
    size_t length = 0;
    for (const char* at = capture.name; *at != '\0' && length < sizeof path; ++at) {
        if (at[0] == '%' && at[1] == 'p') {
            length += static_cast<size_t>(snprintf(path + length, sizeof path - length, "%d", capture.process));
            ++at;
        } else {
            path[length++] = *at;
        }
    }
    if (length < sizeof path)
        path[length] = '\0';
    return length < sizeof path;
}

void stop()
{
    capturing.store(false, std::memory_order_relaxed);
    if (capture.file != no_file)
        close(capture.file);
    capture.file = no_file;
}

[[nodiscard]] bool fail(int error, const char* name)
{
    stop();
    dprintf(STDERR_FILENO, "mesh stand-in: no capture to %s: %s\n", name,
            error == EWOULDBLOCK ? "another process writes it; %p in the name stands for the process id"
            : error == EINVAL    ? "not a regular file"
            : error == ELOOP     ? "a symbolic link"
            : error == EPERM     ? "it belongs to another user"
            : error == EEXIST    ? "it holds something, and no capture of ours; it stays as it is"
                                 : strerror(error));
    errno = error;
    return false;
}

// An empty file counts as a capture, and so does one that ends within its head.
[[nodiscard]] bool holds_capture()
{
    uint8_t old[sizeof file_head];
    const ssize_t got = pread(capture.file, old, sizeof old, 0);
    return got >= 0 && memcmp(old, file_head, static_cast<size_t>(got)) == 0;
}

// Opens and empties the file. Refuses a file of another user, one that holds anything but a capture, and one that
// another process is writing and has therefore locked. An older capture may have been readable by others, but nobody
// else can open this one. Returns 0 or an error.
[[nodiscard]] int open_file(const char* path)
{
    capture.file = open(path, O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, 0600);
    struct stat status;
    if (capture.file == no_file || fstat(capture.file, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    if (status.st_uid != geteuid())
        return EPERM;
    if (flock(capture.file, LOCK_EX | LOCK_NB) != 0)
        return errno;
    if (!holds_capture())
        return EEXIST;
    if (fchmod(capture.file, 0600) != 0 || ftruncate(capture.file, 0) != 0)
        return errno;
    const ssize_t written = write(capture.file, file_head, sizeof file_head);
    return written < 0 ? errno : written < static_cast<ssize_t>(sizeof file_head) ? ENOSPC : 0;
}

// The lock must be held and `capture.name` set.
[[nodiscard]] bool start()
{
    char path[PATH_MAX];
    capture.process = getpid();
    const int error = expand(path) ? open_file(path) : ENAMETOOLONG;
    if (error != 0)
        return fail(error, capture.name);
    capturing.store(true, std::memory_order_relaxed);
    return true;
}

}   // namespace

bool capture_to(const char* path)
{
    const Lock lock(mutex);
    stop();
    if (path == nullptr)
        return true;
    if (strlen(path) >= sizeof capture.name)
        return fail(ENAMETOOLONG, "a file");
    memcpy(capture.name, path, strlen(path) + 1);
    return start();
}

void capture_packet(const uint8_t* head, uint32_t head_length, const uint8_t* rest, uint32_t rest_length)
{
    if (!capturing.load(std::memory_order_relaxed))
        return;
    const Lock lock(mutex);
    if (capture.file == no_file)
        return;
    // In a child after a fork: the file is the parent's, so the child opens its own.
    if (capture.process != getpid()) {
        stop();
        if (!start())
            return;
    }
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    const uint32_t kept = std::min(rest_length, most_captured - head_length);
    uint8_t record[16];
    store_u32(record, static_cast<uint32_t>(now.tv_sec));
    store_u32(record + 4, static_cast<uint32_t>(now.tv_nsec / 1000));
    store_u32(record + 8, head_length + kept);
    store_u32(record + 12, rest_length < UINT32_MAX - head_length ? head_length + rest_length : UINT32_MAX);
    const iovec pieces[] = {
        {record, sizeof record}, {const_cast<uint8_t*>(head), head_length}, {const_cast<uint8_t*>(rest), kept}};
    const off_t end = lseek(capture.file, 0, SEEK_END);
    const ssize_t written = writev(capture.file, pieces, 3);
    if (written == static_cast<ssize_t>(sizeof record + head_length + kept))
        return;
    const int error = written < 0 ? errno : ENOSPC;
    [[maybe_unused]] const int ignored = ftruncate(capture.file, end);   // removes an incomplete packet
    (void)fail(error, capture.name);
}

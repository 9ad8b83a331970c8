#include "platform/standin/capture.h"

#include <algorithm>
#include <atomic>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <poll.h>
#include <stdarg.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <time.h>
#include <unistd.h>

#include "platform/standin/essentials.h"

namespace {

constexpr int no_file = -1;
constexpr pid_t another_process = 0;
// The longest packet that readers accept. A longer one is truncated, which shows in the packet's head in the file.
constexpr uint32_t most_captured = 262144;
constexpr uint32_t call_head = 24;
// Magic number for microseconds, version 2.4, time zone, accuracy, longest packet, link type USER1.
constexpr uint8_t file_head[24] = {0xd4, 0xc3, 0xb2, 0xa1, 2, 0, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 0, 148};
constexpr size_t link_type = 20;            // position in the head
constexpr uint8_t link_type_of_old = 147;   // captures of earlier versions, without the head of a call
constexpr uint64_t ns_per_second = 1000000000;

struct Capture {
    int file;
    dev_t device;   // together with the inode: which file it is
    ino_t inode;
    pid_t process;   // which opened the file
    const char* writer;
    uint64_t max_bytes;
    uint32_t files;
    char name[PATH_MAX];   // absolute, with %p
    char path[PATH_MAX];   // the same with the process id
};

constinit pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;   // guards all that follows but `capturing`
constinit Capture capture{no_file, 0, 0, 0, "", capture_without_limit, 1, {}, {}};
constinit char older[PATH_MAX]{}, newer[PATH_MAX]{};   // for rotation; the caller's stack may be small
constinit std::atomic<bool> capturing{};               // lets a process without a capture skip the lock

// Above 0 from before this thread takes the lock until after it has released it. A signal handler that interrupts the
// thread in between must not wait for the lock.
[[gnu::tls_model("initial-exec")]] constinit thread_local uint32_t lock_depth{};

void lock()
{
    if (lock_depth++ == 0)
        pthread_mutex_lock(&mutex);
}

void unlock()
{
    if (lock_depth == 1)
        pthread_mutex_unlock(&mutex);
    --lock_depth;
}

struct CaptureLock {
    CaptureLock() { lock(); }
    ~CaptureLock() { unlock(); }
    CaptureLock(const CaptureLock&) = delete;
    CaptureLock& operator=(const CaptureLock&) = delete;
};

// A child after a fork must not inherit the lock from a thread that it does not have, and needs a file of its own.
void follow_forks()
{
    static constinit pthread_once_t once = PTHREAD_ONCE_INIT;
    pthread_once(&once, [] {
        pthread_atfork(lock, unlock, [] {
            capture.process = another_process;
            unlock();
        });
    });
}

[[nodiscard]] bool expand()
{
    size_t length = 0;
    for (const char* at = capture.name; *at != '\0' && length < sizeof capture.path; ++at) {
        if (at[0] == '%' && at[1] == 'p') {
            length += static_cast<size_t>(
                snprintf(capture.path + length, sizeof capture.path - length, "%d", capture.process));
            ++at;
        } else {
            capture.path[length++] = *at;
        }
    }
    if (length < sizeof capture.path)
        capture.path[length] = '\0';
    return length < sizeof capture.path;
}

void close_file()
{
    if (capture.file != no_file)
        close(capture.file);
    capture.file = no_file;
}

void stop()
{
    capturing.store(false, std::memory_order_relaxed);
    close_file();
}

[[nodiscard]] bool fail(int error, const char* name)
{
    stop();
    report("%s: no capture to %s: %s\n", capture.writer, name,
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
[[nodiscard]] bool holds_capture(int file)
{
    uint8_t old[sizeof file_head];
    const ssize_t got = pread(file, old, sizeof old, 0);
    if (got > static_cast<ssize_t>(link_type) && old[link_type] == link_type_of_old)
        old[link_type] = file_head[link_type];
    return got >= 0 && memcmp(old, file_head, static_cast<size_t>(got)) == 0;
}

// Returns 0, or the reason why the file may not be replaced.
[[nodiscard]] int test_replaceable(int file, struct stat& status)
{
    if (fstat(file, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    if (status.st_uid != geteuid())
        return EPERM;
    return holds_capture(file) ? 0 : EEXIST;
}

// ---- rotation ----

// The name of the `number`th latest full file. Number 0 is the file being written.
[[nodiscard]] bool numbered(char (&name)[PATH_MAX], uint32_t number)
{
    const int length =
        snprintf(name, sizeof name, number == 0 ? "%s" : "%s.%u", capture.path, static_cast<unsigned>(number));
    return length > 0 && static_cast<size_t>(length) < sizeof name;
}

[[nodiscard]] int test_older(const char* name)
{
    const int file = open(name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
    if (file == no_file)
        return errno == ENOENT ? 0 : errno;
    struct stat status;
    const int error = test_replaceable(file, status);
    close(file);
    return error;
}

// Vacates the name for a new file at `capture.path`: PATH becomes PATH.1, PATH.1 becomes PATH.2, and the oldest one is
// replaced. All of these are tested before any is moved. Returns 0 or an error.
[[nodiscard]] int rotate()
{
    for (uint32_t number = 1; number < capture.files; ++number) {
        const int error = numbered(older, number) ? test_older(older) : ENAMETOOLONG;
        if (error != 0)
            return error;
    }
    for (uint32_t number = capture.files - 1; number > 0; --number)
        if (numbered(older, number) && numbered(newer, number - 1) && rename(newer, older) != 0 && errno != ENOENT)
            return errno;
    return 0;
}

// ---- the file ----

// The standard descriptors may be closed, and the process's own output must not end up in the capture.
int open_above_standard(const char* path)
{
    const int file = open(path, O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, 0600);
    if (file == no_file || file > STDERR_FILENO)
        return file;
    const int above = fcntl(file, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    close(file);
    return above;
}

// Refuses a file of another user, one that holds anything but a capture, and one that another process is writing and
// has therefore locked. Returns 0 or an error.
[[nodiscard]] int lock_file(struct stat& status)
{
    close_file();
    capture.file = open_above_standard(capture.path);
    if (capture.file == no_file)
        return errno;
    const int error = test_replaceable(capture.file, status);
    if (error != 0 && error != EEXIST)
        return error;
    return flock(capture.file, LOCK_EX | LOCK_NB) != 0 ? errno : error;
}

// Empties the file, or continues it if it is the one that was written last: then this process has closed it by
// mistake, or is a child whose parent has ended. With rotation, an earlier capture is kept as an older file. It may
// have been readable by others, but nobody else can open the new one. Returns 0 or an error.
[[nodiscard]] int open_file()
{
    struct stat status;
    int error = lock_file(status);
    if (error != 0)
        return error;
    const bool has_packets = status.st_size > static_cast<off_t>(sizeof file_head);
    if (has_packets && status.st_dev == capture.device && status.st_ino == capture.inode)
        return 0;
    if (has_packets && capture.files > 1) {
        error = rotate();
        if (error == 0)
            error = lock_file(status);
        if (error != 0)
            return error;
    }
    if (fchmod(capture.file, 0600) != 0 || ftruncate(capture.file, 0) != 0)
        return errno;
    const ssize_t written = write(capture.file, file_head, sizeof file_head);
    if (written < static_cast<ssize_t>(sizeof file_head))
        return written < 0 ? errno : ENOSPC;
    capture.device = status.st_dev;
    capture.inode = status.st_ino;
    return 0;
}

// The lock must be held and `capture.name` set.
[[nodiscard]] bool start()
{
    capture.process = getpid();
    const int error = expand() ? open_file() : ENAMETOOLONG;
    return error == 0 || fail(error, capture.name);
}

// Sets `capture.name`.
[[nodiscard]] bool make_absolute(const char* path)
{
    capture.name[0] = '\0';
    if (path[0] != '/') {
        if (getcwd(capture.name, sizeof capture.name - 1) == nullptr)
            return false;
        strcat(capture.name, "/");
    }
    errno = ENAMETOOLONG;
    const size_t length = strlen(capture.name);
    if (strlen(path) >= sizeof capture.name - length)
        return false;
    memcpy(capture.name + length, path, strlen(path) + 1);
    return true;
}

// Ensures that the file is open, this process's own and still the capture: the process may have closed our descriptor
// and got the number for a file of its own.
[[nodiscard]] bool ensure_file(struct stat& status)
{
    if (capture.file != no_file) {
        const bool is_ours =
            fstat(capture.file, &status) == 0 && status.st_dev == capture.device && status.st_ino == capture.inode;
        if (is_ours && capture.process != another_process)
            return true;
        if (!is_ours)
            capture.file = no_file;   // not ours to close
    }
    return start() && fstat(capture.file, &status) == 0;
}

// With rotation, a limit that the process has on its files counts too: a write beyond it would raise a signal.
uint64_t capacity_per_file()
{
    rlimit limit;
    if (capture.files == 1 && capture.max_bytes == capture_without_limit)
        return capture.max_bytes;
    return getrlimit(RLIMIT_FSIZE, &limit) == 0 ? std::min<uint64_t>(capture.max_bytes, limit.rlim_cur)
                                                : capture.max_bytes;
}

// Returns 0 or an error.
[[nodiscard]] int start_next_file_if_full(uint64_t bytes, struct stat& status)
{
    const uint64_t capacity = capacity_per_file();
    if (static_cast<uint64_t>(status.st_size) + bytes <= capacity)
        return 0;
    if (sizeof file_head + bytes > capacity)
        return EFBIG;
    int error = rotate();
    capture.inode = 0;   // a single file starts over
    if (error == 0)
        error = open_file();
    return error != 0 ? error : fstat(capture.file, &status) != 0 ? errno : 0;
}

void store_call(uint8_t* at, const CapturedCall& call)
{
    at[0] = 1;
    at[1] = static_cast<uint8_t>(call.direction);
    at[2] = static_cast<uint8_t>(call.known);
    at[3] = 0;
    store_u32(at + 4, call.channel);
    store_u32(at + 8, call.destination);
    store_u32(at + 12, static_cast<uint32_t>(call.result));
    store_u32(at + 16, static_cast<uint32_t>(call.began));
    store_u32(at + 20, static_cast<uint32_t>(call.began >> 32));
}

void write_packet(const CapturedCall& call, const uint8_t* head, uint32_t head_length, const uint8_t* rest,
                  uint32_t rest_length)
{
    const CaptureLock guard;
    struct stat status;
    if (!capturing.load(std::memory_order_relaxed) || !ensure_file(status))
        return;
    const uint32_t before_rest = call_head + head_length;
    const uint32_t kept = std::min(rest_length, most_captured - before_rest);
    uint8_t record[16 + call_head];
    const size_t bytes = sizeof record + head_length + kept;
    int error = start_next_file_if_full(bytes, status);
    if (error == 0) {
        const uint64_t now = capture_time();
        store_u32(record, static_cast<uint32_t>(now / ns_per_second));
        store_u32(record + 4, static_cast<uint32_t>(now % ns_per_second / 1000));
        store_u32(record + 8, before_rest + kept);
        store_u32(record + 12, rest_length < UINT32_MAX - before_rest ? before_rest + rest_length : UINT32_MAX);
        store_call(record + 16, call);
        const iovec pieces[] = {
            {record, sizeof record}, {const_cast<uint8_t*>(head), head_length}, {const_cast<uint8_t*>(rest), kept}};
        const ssize_t written = writev(capture.file, pieces, 3);
        if (written == static_cast<ssize_t>(bytes))
            return;
        error = written < 0 ? errno : ENOSPC;
        [[maybe_unused]] const int ignored = ftruncate(capture.file, status.st_size);   // removes an incomplete packet
        if (error == EFAULT)   // the caller's bytes cannot be read; MESH may not have tried to
            return;
    }
    (void)fail(error, capture.name);
}

}   // namespace

bool capture_to(const CapturePlan& plan)
{
    follow_forks();
    const CaptureLock guard;
    stop();
    if (plan.path == nullptr)
        return true;
    capture.device = 0;
    capture.inode = 0;
    capture.writer = plan.writer;
    capture.max_bytes = plan.max_bytes;
    capture.files = plan.files;
    if (!make_absolute(plan.path))
        return fail(errno, "a file");
    if (!plan.at_first_packet && !start())
        return false;
    capturing.store(true, std::memory_order_relaxed);
    return true;
}

void report(const char* format, ...)
{
    pollfd entry{STDERR_FILENO, POLLOUT, 0};
    if (poll(&entry, 1, 0) != 1 || entry.revents != POLLOUT)
        return;
    va_list arguments;
    va_start(arguments, format);
    vdprintf(STDERR_FILENO, format, arguments);
    va_end(arguments);
}

bool capture_is_on() { return capturing.load(std::memory_order_relaxed); }

uint64_t capture_time()
{
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    return static_cast<uint64_t>(now.tv_sec) * ns_per_second + static_cast<uint64_t>(now.tv_nsec);
}

void capture_packet(const CapturedCall& call, const uint8_t* head, uint32_t head_length, const uint8_t* rest,
                    uint32_t rest_length)
{
    if (!capture_is_on() || lock_depth != 0)
        return;
    const int error = errno;
    int cancellation;   // a thread that is cancelled here would leave the lock held
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &cancellation);
    write_packet(call, head, head_length, rest, rest_length);
    pthread_setcancelstate(cancellation, &cancellation);
    errno = error;
}

void capture_item(const CapturedCall& call, uint32_t id, const uint8_t* bytes, uint32_t length)
{
    uint8_t head[8];
    store_u32(head, id);
    store_u32(head + 4, length);
    capture_packet(call, head, sizeof head, bytes, length);
}

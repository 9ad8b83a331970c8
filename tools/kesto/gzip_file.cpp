#include "tools/kesto/gzip_file.h"

#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <climits>

namespace kesto::tools {

namespace {

gzFile file_of(void* cookie) { return static_cast<gzFile>(cookie); }

ssize_t read_part(void* cookie, char* to, std::size_t room)
{
    const int got = gzread(file_of(cookie), to, static_cast<unsigned>(std::min<std::size_t>(room, INT_MAX)));
    int status = Z_OK;
    (void)gzerror(file_of(cookie), &status);
    // A file that ends too early gives its content first, and Z_BUF_ERROR stays.
    if (got < 0 || (got == 0 && status != Z_OK)) {
        if (status != Z_ERRNO)
            errno = EILSEQ;
        return -1;
    }
    return got;
}

int close_file(void* cookie) { return gzclose_r(file_of(cookie)) == Z_OK ? 0 : EOF; }

// A file that may still grow: zlib remembers its end.
bool is_plain_file(int descriptor)
{
    unsigned char head[2];
    return pread(descriptor, head, sizeof head, 0) == sizeof head && (head[0] != 0x1f || head[1] != 0x8b);
}

}   // namespace

std::FILE* open_gzip(int descriptor)
{
    if (is_plain_file(descriptor))
        return fdopen(descriptor, "rb");
    gzFile file = gzdopen(descriptor, "rb");   // passes on what is not compressed
    if (file == nullptr)
        return nullptr;
    std::FILE* const stream = fopencookie(file, "rb", {read_part, nullptr, nullptr, close_file});
    if (stream == nullptr)
        gzclose_r(file);
    return stream;
}

}   // namespace kesto::tools

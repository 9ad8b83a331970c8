#include "tools/kesto/capture.h"

#include <fcntl.h>
#include <pcap/pcap.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "model/little_endian.h"
#include "tools/kesto/gzip_file.h"

namespace kesto::tools {

namespace {

constexpr std::uint32_t head_length = 8, call_head_length = 24;
constexpr std::uint8_t call_head_version = 1, most_direction = 1;
enum Known : std::uint16_t { channel_known = 1, destination_known = 2, result_known = 4 };
constexpr std::uint64_t file_head = 24, record_head = 16;
constexpr std::uint64_t report_every = 1 << 20;

std::string link_type_text(int type)
{
    const char* const name = pcap_datalink_val_to_name(type);
    const std::string number = std::to_string(type);
    return name == nullptr ? number : name + (" (" + number + ")");
}

bool is_call_head(const u_char* bytes) { return bytes[0] == call_head_version && bytes[1] <= most_direction; }

Call call_of(const u_char* bytes)
{
    const std::uint32_t known = model::get16(bytes + 2);
    Call call{bytes[1] == 0, {}, {}, {}, model::get(bytes + 16, 8)};
    if ((known & channel_known) != 0)
        call.channel = model::get32(bytes + 4);
    if ((known & destination_known) != 0)
        call.destination = model::get32(bytes + 8);
    if ((known & result_known) != 0)
        call.result = static_cast<std::int32_t>(model::get32(bytes + 12));
    return call;
}

// `bytes` are the packet without the call head.
PacketFault fault_of(bool is_cut, bool knows_head, std::span<const u_char> bytes)
{
    if (is_cut)
        return PacketFault::cut;
    if (!knows_head)
        return PacketFault::unknown_head;
    if (bytes.size() < head_length)
        return PacketFault::short_packet;
    return model::get32(bytes.data() + 4) == bytes.size() - head_length ? PacketFault::none
                                                                        : PacketFault::length_disagrees;
}

}   // namespace

const char* name_of(PacketFault fault)
{
    switch (fault) {
    case PacketFault::none: return "none";
    case PacketFault::cut: return "cut";
    case PacketFault::unknown_head: return "unknown_head";
    case PacketFault::short_packet: return "short_packet";
    case PacketFault::length_disagrees: break;
    }
    return "length_disagrees";
}

const char* text_of(PacketFault fault)
{
    switch (fault) {
    case PacketFault::none: return "a message";
    case PacketFault::cut: return "the capture kept only the first bytes of the packet";
    case PacketFault::unknown_head: return "the call head has an unknown version or direction";
    case PacketFault::short_packet: return "the packet has no room for id and length";
    case PacketFault::length_disagrees: break;
    }
    return "the packet's length disagrees with its bytes";
}

void CaptureReader::Closer::operator()(pcap* handle) const { pcap_close(handle); }

bool CaptureReader::open(const std::string& path, std::string& error)
{
    name_ = path == "-" ? "standard input" : path;
    number_ = all_ = 0;
    read_ = file_head;
    next_report_ = report_every;
    const int descriptor = path == "-" ? dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status;
    if (descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        all_ = static_cast<std::uint64_t>(status.st_size);
    std::FILE* const file = descriptor < 0 ? nullptr : open_gzip(descriptor);
    if (file == nullptr) {
        error = name_ + ": " + std::strerror(errno);
        if (descriptor >= 0)
            close(descriptor);
        return false;
    }
    char reason[PCAP_ERRBUF_SIZE] = "";
    handle_.reset(pcap_fopen_offline(file, reason));   // owns the file if it succeeds
    if (handle_ == nullptr) {
        error = name_ + ": " + reason;
        std::fclose(file);
        return false;
    }
    const int link_type = pcap_datalink(handle_.get());
    has_calls_ = link_type == DLT_USER1;
    if (link_type != DLT_USER0 && !has_calls_) {
        error = name_ + ": the capture has link type " + link_type_text(link_type) + ", not USER0 (147) or USER1 (148)";
        handle_.reset();
        return false;
    }
    return true;
}

bool CaptureReader::next(CapturedPacket& packet, std::string& error)
{
    pcap_pkthdr* head = nullptr;
    const u_char* bytes = nullptr;
    errno = 0;
    const int result = pcap_next_ex(handle_.get(), &head, &bytes);
    if (result != 1) {
        const char* const reason =   // open_gzip sets EILSEQ, whose text speaks of characters
            errno == EILSEQ ? "the compressed file is cut or damaged" : pcap_geterr(handle_.get());
        error = result == PCAP_ERROR ? name_ + ": after packet " + std::to_string(number_) + ": " + reason : "";
        return false;
    }
    packet.number = ++number_;
    // Classic captures store seconds as unsigned 32-bit numbers, which libpcap reads as signed; pcapng, whose version
    // is 1, has 64 bits.
    packet.seconds = head->ts.tv_sec;
    if (pcap_major_version(handle_.get()) != 1)
        packet.seconds = static_cast<std::uint32_t>(packet.seconds);
    packet.microseconds = static_cast<std::uint32_t>(head->ts.tv_usec);
    packet.call.reset();
    std::span<const u_char> rest(bytes, head->caplen);
    bool knows_head = true;
    if (has_calls_) {
        knows_head = rest.size() < call_head_length || is_call_head(bytes);
        if (knows_head && rest.size() >= call_head_length)
            packet.call = call_of(bytes);
        rest = rest.subspan(std::min<std::size_t>(rest.size(), call_head_length));
    }
    packet.fault = fault_of(head->caplen < head->len, knows_head, rest);
    packet.id = rest.size() < 4 ? 0 : model::get32(rest.data());
    packet.bytes = rest.subspan(std::min<std::size_t>(rest.size(), head_length));
    read_ += record_head + head->caplen;
    report_progress();
    return true;
}

void CaptureReader::report_progress()
{
    if (!progress || read_ < next_report_)
        return;
    progress(read_, all_);
    next_report_ = read_ + report_every;
}

}   // namespace kesto::tools
